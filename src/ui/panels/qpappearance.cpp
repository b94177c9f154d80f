#include <tolvi/ui/panels/qpappearance.h>

namespace tolvi {

const QFont& TQPAppearance::FontOf(TPhraseKind kind) const {
  static const QFont viewFont;
  switch (kind) {
    case pkLinkWord:
      return FLinkWordFont;
    case pkField:
      return FFieldFont;
    case pkOperator:
      return FOperatorFont;
    case pkParameter:
      return FParameterFont;
    case pkValue:
    case pkSubQuery:
    case pkSQL:
      return FValueFont;
    case pkText:
      break;
  }
  return viewFont;
}

void TQPAppearance::Assign(const TQPAppearance& source) {
  const auto changed = OnChange;
  OnChange = nullptr;
  SetLinkWordColor(source.FLinkWordColor);
  SetFieldColor(source.FFieldColor);
  SetOperatorColor(source.FOperatorColor);
  SetValueColor(source.FValueColor);
  SetParameterColor(source.FParameterColor);
  SetLinkWordFont(source.FLinkWordFont);
  SetFieldFont(source.FFieldFont);
  SetOperatorFont(source.FOperatorFont);
  SetValueFont(source.FValueFont);
  SetParameterFont(source.FParameterFont);
  SetLeftMargin(source.FLeftMargin);
  SetTopMargin(source.FTopMargin);
  SetRowSpace(source.FRowSpace);
  SetElemSpace(source.FElemSpace);
  SetIndent(source.FIndent);
  SetOptions(source.FOptions);
  OnChange = changed;
  if (OnChange) OnChange();
}

}  // namespace tolvi
