#pragma once

#include <QColor>
#include <QObject>
#include <QString>
#include <functional>

#include <tolvi/panel/rfldrows.h>
#include <tolvi/ui/api.h>

namespace tolvi {

/// How a result fields panel looks. The setters only store: rows take the settings when they are placed the next time.
class TOLVI_WIDGETS_API TRFPAppearance final : public QObject {
  Q_OBJECT
  Q_PROPERTY(int leftMargin READ GetLeftMargin WRITE SetLeftMargin)
  Q_PROPERTY(int topMargin READ GetTopMargin WRITE SetTopMargin)
  Q_PROPERTY(int rowSpace READ GetRowSpace WRITE SetRowSpace)
  Q_PROPERTY(int elemSpace READ GetElemSpace WRITE SetElemSpace)
  Q_PROPERTY(QColor sortColor READ GetSortColor WRITE SetSortColor RESET ResetSortColor)
  Q_PROPERTY(QColor fieldColor READ GetFieldColor WRITE SetFieldColor RESET ResetFieldColor)
  Q_PROPERTY(TRFPAppearanceOptions options READ GetOptions WRITE SetOptions)
  Q_PROPERTY(QString nameSeparator READ GetNameSeparator WRITE SetNameSeparator)

 public:
  enum TRFPAppearanceOption {
    /// Row buttons are flat, are round.
    aoFlatButtons = 1,
    aoRoundButtons = 2,
    /// Fields drop down by sections (`TDropDownPopup`), not as one list (`TDropDownListBox`).
    aoPopupField = 4,
    /// Fields show the name of their group, too.
    aoShowGroupName = 8,
  };
  Q_DECLARE_FLAGS(TRFPAppearanceOptions, TRFPAppearanceOption)
  Q_FLAG(TRFPAppearanceOptions)

  using QObject::QObject;

  /// After a setter has changed something, for hosts that show it at once (`TJResultFieldsPanel::Refresh`).
  std::function<void()> OnChange;

  /// In pixels: x of the row buttons, y of the first row, space between rows, between the elements of a row. Defaults
  /// 5, 5, 3, 5.
  int GetLeftMargin() const { return FSpaces.LeftMargin; }
  void SetLeftMargin(int pixels) { Set(FSpaces.LeftMargin, pixels); }
  int GetTopMargin() const { return FSpaces.TopMargin; }
  void SetTopMargin(int pixels) { Set(FSpaces.TopMargin, pixels); }
  int GetRowSpace() const { return FSpaces.RowSpace; }
  void SetRowSpace(int pixels) { Set(FSpaces.RowSpace, pixels); }
  int GetElemSpace() const { return FSpaces.ElemSpace; }
  void SetElemSpace(int pixels) { Set(FSpaces.ElemSpace, pixels); }
  const TRFSpaces& Spaces() const { return FSpaces; }

  /// Of the sort label (default green) and the field label (default blue), adjusted where they could not be read on
  /// the background: blue becomes the palette's link colour there.
  const QColor& GetSortColor() const { return FSortColor; }
  void SetSortColor(const QColor& color) { Set(FSortColor, color); }
  void ResetSortColor() { SetSortColor(TRFPAppearance().FSortColor); }
  const QColor& GetFieldColor() const { return FFieldColor; }
  void SetFieldColor(const QColor& color) { Set(FFieldColor, color); }
  void ResetFieldColor() { SetFieldColor(TRFPAppearance().FFieldColor); }

  /// Default `aoFlatButtons`, `aoRoundButtons`, `aoPopupField`.
  TRFPAppearanceOptions GetOptions() const { return FOptions; }
  void SetOptions(TRFPAppearanceOptions options) { Set(FOptions, options); }
  /// Between the name of the group and that of the field. Default ".".
  const QString& GetNameSeparator() const { return FNameSeparator; }
  void SetNameSeparator(const QString& separator) { Set(FNameSeparator, separator); }

  void Assign(const TRFPAppearance& source) {
    FSpaces = source.FSpaces;
    FSortColor = source.FSortColor;
    FFieldColor = source.FFieldColor;
    FOptions = source.FOptions;
    FNameSeparator = source.FNameSeparator;
    if (OnChange) OnChange();
  }

 private:
  template <typename T>
  void Set(T& property, const T& value) {
    if (property == value) return;
    property = value;
    if (OnChange) OnChange();
  }

  TRFSpaces FSpaces;
  QColor FSortColor = QColor(0, 128, 0), FFieldColor = QColor(0, 0, 255);
  TRFPAppearanceOptions FOptions = TRFPAppearanceOptions(aoFlatButtons | aoRoundButtons | aoPopupField);
  QString FNameSeparator = QStringLiteral(".");
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TRFPAppearance::TRFPAppearanceOptions)

}  // namespace tolvi
