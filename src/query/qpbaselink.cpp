#include <string>

#include <tolvi/query/panelview.h>
#include <tolvi/query/qpbaselink.h>

namespace tolvi {

TJQPBaseLink::TJQPBaseLink(TJQueryPanel& panel) { FQueryPanel.Set(&panel); }

void TJQPBaseLink::LoadCurBaseQuery() {
  TJQueryItem* query = GetQueryBase() != nullptr ? GetQueryBase()->GetCurrentQuery() : nullptr;
  if (query == nullptr || !FQueryPanel) return;
  const std::shared_ptr<bool> isOld = FIsOld;
  try {
    TStrings strings;
    query->LoadContent(strings);
    *isOld = false;
    PutQueryContent(strings);
  } catch (...) {
    *isOld = true;
    throw;
  }
}

// The panel's handlers may destroy the link, the query and the panel.
void TJQPBaseLink::QueryChanged(int index) {
  if (GetQueryBase() == nullptr || index != GetQueryBase()->GetItemIndex()) return;
  const TJQueryItem* query = GetQueryBase()->GetCurrentQuery();
  if (query == nullptr) return;
  const std::string name = query->GetQueryName();
  TStrings description;
  description.SetText(query->GetDescription());
  TRef<TJQueryPanel> panel;
  panel.Set(GetQueryPanel());
  // The base has them: there is nothing to save.
  const bool isModified = panel && panel->GetModified();
  if (panel) panel->SetDescription(description);
  if (panel) panel->SetQueryName(name);
  if (panel) panel->SetModified(isModified);
  if (panel && panel->GetView() != nullptr) panel->GetView()->TitlesChanged();
}

void TJQPBaseLink::QueryIndexChanged() {
  if (GetQueryBase() != nullptr && GetQueryBase()->GetItemIndex() != -1) LoadCurBaseQuery();
}

void TJQPBaseLink::QueryListChanged(TQBOperation operation, int index) {
  if (operation == qboListCleared) *FIsOld = false;
  if (operation != qboItemDeleted || !FQueryPanel || GetQueryBase() == nullptr) return;
  if (index != GetQueryBase()->GetItemIndex()) return;
  *FIsOld = false;
  TRef<TJQueryPanel> panel;
  panel.Set(FQueryPanel.Get());
  panel->ClearAll();
  // Nothing is shown that could be saved.
  if (panel) panel->SetModified(false);
}

bool TJQPBaseLink::GetQueryContent(TStrings& strings) {
  if (!FQueryPanel || *FIsOld) return false;
  FQueryPanel->SaveToStrings(strings);
  return true;
}

bool TJQPBaseLink::PutQueryContent(const TStrings& strings) {
  if (!FQueryPanel) return false;
  FQueryPanel->LoadFromStrings(strings);
  return true;
}

}  // namespace tolvi
