#pragma once

#include <QColor>
#include <QObject>
#include <QString>

#include <tolvi/panel/rfldrows.h>

namespace tolvi {

/// How a result fields panel looks. The setters only store: rows take the settings when they are placed the next time.
class TRFPAppearance final : public QObject {
  Q_OBJECT
  Q_PROPERTY(int leftMargin READ GetLeftMargin WRITE SetLeftMargin)
  Q_PROPERTY(int topMargin READ GetTopMargin WRITE SetTopMargin)
  Q_PROPERTY(int rowSpace READ GetRowSpace WRITE SetRowSpace)
  Q_PROPERTY(int elemSpace READ GetElemSpace WRITE SetElemSpace)
  Q_PROPERTY(QColor sortColor READ GetSortColor WRITE SetSortColor)
  Q_PROPERTY(QColor fieldColor READ GetFieldColor WRITE SetFieldColor)
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

  /// In pixels: x of the row buttons, y of the first row, space between rows, between the elements of a row. Defaults
  /// 5, 5, 3, 5.
  int GetLeftMargin() const { return FSpaces.LeftMargin; }
  void SetLeftMargin(int pixels) { FSpaces.LeftMargin = pixels; }
  int GetTopMargin() const { return FSpaces.TopMargin; }
  void SetTopMargin(int pixels) { FSpaces.TopMargin = pixels; }
  int GetRowSpace() const { return FSpaces.RowSpace; }
  void SetRowSpace(int pixels) { FSpaces.RowSpace = pixels; }
  int GetElemSpace() const { return FSpaces.ElemSpace; }
  void SetElemSpace(int pixels) { FSpaces.ElemSpace = pixels; }
  const TRFSpaces& Spaces() const { return FSpaces; }

  /// Of the sort label (default green) and the field label (default blue), adjusted where they could not be read on
  /// the background.
  const QColor& GetSortColor() const { return FSortColor; }
  void SetSortColor(const QColor& color) { FSortColor = color; }
  const QColor& GetFieldColor() const { return FFieldColor; }
  void SetFieldColor(const QColor& color) { FFieldColor = color; }

  /// Default `aoFlatButtons`, `aoRoundButtons`, `aoPopupField`.
  TRFPAppearanceOptions GetOptions() const { return FOptions; }
  void SetOptions(TRFPAppearanceOptions options) { FOptions = options; }
  /// Between the name of the group and that of the field. Default ".".
  const QString& GetNameSeparator() const { return FNameSeparator; }
  void SetNameSeparator(const QString& separator) { FNameSeparator = separator; }

  void Assign(const TRFPAppearance& source) {
    FSpaces = source.FSpaces;
    FSortColor = source.FSortColor;
    FFieldColor = source.FFieldColor;
    FOptions = source.FOptions;
    FNameSeparator = source.FNameSeparator;
  }

 private:
  TRFSpaces FSpaces;
  QColor FSortColor = QColor(0, 128, 0), FFieldColor = QColor(0, 0, 255);
  TRFPAppearanceOptions FOptions = TRFPAppearanceOptions(aoFlatButtons | aoRoundButtons | aoPopupField);
  QString FNameSeparator = QStringLiteral(".");
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TRFPAppearance::TRFPAppearanceOptions)

}  // namespace tolvi
