#include <QVBoxLayout>

#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/modeldiagram.h>
#include <tolvi/ui/panels/stdspnl.h>

namespace tolvi {

TDiagramPage::TDiagramPage(TModelEditor& editor, QWidget* parent)
    : TModelPage(editor, parent), FPanel(new TJStructDesignPanel(this)) {
  FPanel->SetEditor(&editor);
  FPanel->SetShowActionHints(true);
  FPanel->SetShowFullScreenButton(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(FPanel);
  setFocusProxy(FPanel);
}

// The panel follows the model by itself, once it is seen.
void TDiagramPage::Refresh() {
  if (isVisible()) FPanel->SetActive(true);
}

}  // namespace tolvi
