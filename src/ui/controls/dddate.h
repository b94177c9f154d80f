#pragma once

#include <tolvi/ui/api.h>
#include <tolvi/ui/controls/ddlabel.h>

namespace tolvi {

/// A label that takes a date, a time or both: typed, or chosen in a calendar. The value is "yyyy-mm-dd", "hh:nn:ss", or
/// both with a blank between; the caption is written by the display format. Both may be empty. A text that is no date
/// can be accepted: it is kept as typed, in value and caption, and the label has a fault.
class TOLVI_WIDGETS_API TDropDownDate : public TDropDownLabel {
  Q_OBJECT
  Q_PROPERTY(QString displayFormat READ GetDisplayFormat WRITE SetDisplayFormat)
  Q_PROPERTY(TDateKind kind READ GetKind WRITE SetKind)

 public:
  enum TDateKind { dkDate, dkTime, dkDateTime };
  Q_ENUM(TDateKind)

  explicit TDropDownDate(QWidget* parent = nullptr) : TDropDownDate(TDateKind::dkDate, parent) {}
  explicit TDropDownDate(TDateKind kind, QWidget* parent = nullptr);

  /// Default `dkDate`, unless it is constructed otherwise.
  TDateKind GetKind() const { return FKind; }
  void SetKind(TDateKind kind);
  /// A pattern of `FormatDateTime` made of yyyy yy mm dd hh nn ss and separators ("dd.mm.yyyy hh:nn"). Empty, the
  /// default: in the order of the widget's locale.
  const QString& GetDisplayFormat() const { return FDisplayFormat; }
  void SetDisplayFormat(const QString& format);
  /// Sets caption and fault, too. A value that is not in ISO form is kept and shown as it is, with a fault.
  void SetValue(const QString& value) override;

 protected:
  QWidget* CreateEditor(QWidget* parent) override;
  bool TakeFromEditor(QWidget& editor) override;
  bool TabMovesInEditor() const override { return true; }
  void changeEvent(QEvent* event) override;

 private:
  QString ShownFormat() const;

  TDateKind FKind;
  QString FDisplayFormat;
};

using TDateKind = TDropDownDate::TDateKind;

}  // namespace tolvi
