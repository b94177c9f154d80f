#include <tolvi/ui/dialogs/syntaxcaptions.h>
#include <tolvi/ui/dialogs/trypane.h>

namespace tolvi {

std::vector<TSyntaxCaption> SyntaxCaptions() {
  return {{ssSQL2, TTryPane::tr("SQL with JOIN")},
          {ssSQL1, TTryPane::tr("SQL with joins in WHERE")},
          {ssOracle, TTryPane::tr("Oracle")},
          {ssAccess, TTryPane::tr("Access")},
          {ssNexusDB, TTryPane::tr("NexusDB")}};
}

}  // namespace tolvi
