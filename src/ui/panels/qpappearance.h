#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <functional>

#include <tolvi/query/rowphrase.h>
#include <tolvi/ui/api.h>

namespace tolvi {

/// How a query panel looks. Colours that are not set are those of the palette; all are adjusted where they could not be
/// read on the background. What a font does not set, such as its size, is that of the view's font. Sizes are in pixels;
/// -1, the default, fits the view's font. The view takes changes at once.
class TOLVI_WIDGETS_API TQPAppearance final : public QObject {
  Q_OBJECT
  Q_PROPERTY(QColor linkWordColor READ GetLinkWordColor WRITE SetLinkWordColor RESET ResetLinkWordColor)
  Q_PROPERTY(QColor fieldColor READ GetFieldColor WRITE SetFieldColor RESET ResetFieldColor)
  Q_PROPERTY(QColor operatorColor READ GetOperatorColor WRITE SetOperatorColor RESET ResetOperatorColor)
  Q_PROPERTY(QColor valueColor READ GetValueColor WRITE SetValueColor RESET ResetValueColor)
  Q_PROPERTY(QColor parameterColor READ GetParameterColor WRITE SetParameterColor RESET ResetParameterColor)
  Q_PROPERTY(QFont linkWordFont READ GetLinkWordFont WRITE SetLinkWordFont RESET ResetLinkWordFont)
  Q_PROPERTY(QFont fieldFont READ GetFieldFont WRITE SetFieldFont RESET ResetFieldFont)
  Q_PROPERTY(QFont operatorFont READ GetOperatorFont WRITE SetOperatorFont RESET ResetOperatorFont)
  Q_PROPERTY(QFont valueFont READ GetValueFont WRITE SetValueFont RESET ResetValueFont)
  Q_PROPERTY(QFont parameterFont READ GetParameterFont WRITE SetParameterFont RESET ResetParameterFont)
  Q_PROPERTY(int leftMargin READ GetLeftMargin WRITE SetLeftMargin)
  Q_PROPERTY(int topMargin READ GetTopMargin WRITE SetTopMargin)
  Q_PROPERTY(int rowSpace READ GetRowSpace WRITE SetRowSpace)
  Q_PROPERTY(int elemSpace READ GetElemSpace WRITE SetElemSpace)
  Q_PROPERTY(int indent READ GetIndent WRITE SetIndent)
  Q_PROPERTY(TQPAppearanceOptions options READ GetOptions WRITE SetOptions)

 public:
  enum TQPAppearanceOption {
    /// Row buttons are flat, are round.
    aoFlatButtons = 1,
    aoRoundButtons = 2,
    /// Fields are called by their group, too, not only where two have the same name.
    aoCompoundNames = 4,
    /// Row buttons show the row's number.
    aoRowNumbers = 8,
    /// Lines lead from brackets to their rows.
    aoTreeLines = 16,
  };
  Q_DECLARE_FLAGS(TQPAppearanceOptions, TQPAppearanceOption)
  Q_FLAG(TQPAppearanceOptions)

  using QObject::QObject;

  /// After a setter has changed something.
  std::function<void()> OnChange;

  /// Defaults: link words and operators green, parameters violet, the rest the palette's link colour.
  const QColor& GetLinkWordColor() const { return FLinkWordColor; }
  void SetLinkWordColor(const QColor& color) { Set(FLinkWordColor, color); }
  const QColor& GetFieldColor() const { return FFieldColor; }
  void SetFieldColor(const QColor& color) { Set(FFieldColor, color); }
  const QColor& GetOperatorColor() const { return FOperatorColor; }
  void SetOperatorColor(const QColor& color) { Set(FOperatorColor, color); }
  const QColor& GetValueColor() const { return FValueColor; }
  void SetValueColor(const QColor& color) { Set(FValueColor, color); }
  const QColor& GetParameterColor() const { return FParameterColor; }
  void SetParameterColor(const QColor& color) { Set(FParameterColor, color); }
  /// Back to the default colour.
  void ResetLinkWordColor() { SetLinkWordColor(TQPAppearance().FLinkWordColor); }
  void ResetFieldColor() { SetFieldColor(TQPAppearance().FFieldColor); }
  void ResetOperatorColor() { SetOperatorColor(TQPAppearance().FOperatorColor); }
  void ResetValueColor() { SetValueColor(TQPAppearance().FValueColor); }
  void ResetParameterColor() { SetParameterColor(TQPAppearance().FParameterColor); }

  /// Default: the view's font (a font that sets nothing). Values that are sub-queries or SQL have the font of values.
  const QFont& GetLinkWordFont() const { return FLinkWordFont; }
  void SetLinkWordFont(const QFont& font) { Set(FLinkWordFont, font); }
  const QFont& GetFieldFont() const { return FFieldFont; }
  void SetFieldFont(const QFont& font) { Set(FFieldFont, font); }
  const QFont& GetOperatorFont() const { return FOperatorFont; }
  void SetOperatorFont(const QFont& font) { Set(FOperatorFont, font); }
  const QFont& GetValueFont() const { return FValueFont; }
  void SetValueFont(const QFont& font) { Set(FValueFont, font); }
  const QFont& GetParameterFont() const { return FParameterFont; }
  void SetParameterFont(const QFont& font) { Set(FParameterFont, font); }
  void ResetLinkWordFont() { SetLinkWordFont({}); }
  void ResetFieldFont() { SetFieldFont({}); }
  void ResetOperatorFont() { SetOperatorFont({}); }
  void ResetValueFont() { SetValueFont({}); }
  void ResetParameterFont() { SetParameterFont({}); }
  /// That of such a part of a row.
  const QFont& FontOf(TPhraseKind kind) const;

  /// Beside and above the rows, between rows, between the elements of a row, for each level of brackets.
  int GetLeftMargin() const { return FLeftMargin; }
  void SetLeftMargin(int pixels) { Set(FLeftMargin, pixels); }
  int GetTopMargin() const { return FTopMargin; }
  void SetTopMargin(int pixels) { Set(FTopMargin, pixels); }
  int GetRowSpace() const { return FRowSpace; }
  void SetRowSpace(int pixels) { Set(FRowSpace, pixels); }
  int GetElemSpace() const { return FElemSpace; }
  void SetElemSpace(int pixels) { Set(FElemSpace, pixels); }
  int GetIndent() const { return FIndent; }
  void SetIndent(int pixels) { Set(FIndent, pixels); }

  /// Default: all but `aoCompoundNames`.
  TQPAppearanceOptions GetOptions() const { return FOptions; }
  void SetOptions(TQPAppearanceOptions options) { Set(FOptions, options); }

  void Assign(const TQPAppearance& source);

 private:
  template <typename T>
  void Set(T& property, const T& value) {
    if (IsSame(property, value)) return;
    property = value;
    if (OnChange) OnChange();
  }
  template <typename T>
  static bool IsSame(const T& one, const T& other) {
    return one == other;
  }
  // A font that sets what the program's font has is not one that leaves it to the view.
  static bool IsSame(const QFont& one, const QFont& other) {
    return one == other && one.resolveMask() == other.resolveMask();
  }

  QColor FLinkWordColor = QColor(0, 128, 0), FFieldColor, FOperatorColor = QColor(0, 128, 0), FValueColor,
         FParameterColor = QColor(128, 0, 160);
  QFont FLinkWordFont, FFieldFont, FOperatorFont, FValueFont, FParameterFont;
  int FLeftMargin = -1, FTopMargin = -1, FRowSpace = -1, FElemSpace = -1, FIndent = -1;
  TQPAppearanceOptions FOptions = TQPAppearanceOptions(aoFlatButtons | aoRoundButtons | aoRowNumbers | aoTreeLines);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(TQPAppearance::TQPAppearanceOptions)

}  // namespace tolvi
