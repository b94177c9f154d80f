#include <tolvi/ui/panels/qpappearance.h>

namespace tolvi {

void TQPAppearance::Assign(const TQPAppearance& source) {
  const auto changed = OnChange;
  OnChange = nullptr;
  SetLinkWordColor(source.FLinkWordColor);
  SetFieldColor(source.FFieldColor);
  SetOperatorColor(source.FOperatorColor);
  SetValueColor(source.FValueColor);
  SetParameterColor(source.FParameterColor);
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
