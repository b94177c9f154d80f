#pragma once

#include <tolvi/ui/dialogs/modelpage.h>

namespace tolvi {

class TJStructDesignPanel;

/// The tables and links of the model as a diagram.
class TDiagramPage final : public TModelPage {
  Q_OBJECT

 public:
  TDiagramPage(TModelEditor& editor, QWidget* parent);

  void Refresh() override;
  TJStructDesignPanel& Panel() const { return *FPanel; }

 private:
  TJStructDesignPanel* FPanel;
};

}  // namespace tolvi
