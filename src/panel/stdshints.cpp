#include <tolvi/panel/stdshints.h>

namespace tolvi {

const TStrings& DefaultActionHints() {
  static const TStrings hints = [] {
    TStrings lines;
    lines.Add("SelectTableHint=Click inside table to select it");
    lines.Add("SelectLinkHint=Click on link line to select it");
    lines.Add("IdleHint=To add/delete tables and links - right click on selected object and chose necessary operation");
    lines.Add("AddLinkStage1Hint=Select a field in the first linking table");
    lines.Add("AddLinkStage2Hint=Select a field in the second linking table");
    return lines;
  }();
  return hints;
}

std::string_view ActionHintKey(TAddLinkStage stage, TDesignTarget target) {
  if (stage == alsSelField1) return "AddLinkStage1Hint";
  if (stage == alsSelField2) return "AddLinkStage2Hint";
  if (target == dtLink) return "SelectLinkHint";
  return target == dtTable ? "SelectTableHint" : "IdleHint";
}

}  // namespace tolvi
