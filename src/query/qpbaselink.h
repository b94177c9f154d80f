#pragma once

#include <memory>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/components.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/schema/qrybase.h>

namespace tolvi {

/// Links a query panel to a query base: the current query comes into the panel, the panel's query is what the base is
/// given. Once the panel is destroyed, the link does nothing and hands nothing over. Attach it before the base opens,
/// or call `LoadCurBaseQuery`: until then, the panel shows another query than the current one.
class TOLVI_CORE_API TJQPBaseLink : public TJQueryBaseLink {
 public:
  /// The panel is not owned.
  explicit TJQPBaseLink(TJQueryPanel& panel);

  /// Null once the panel is destroyed.
  TJQueryPanel* GetQueryPanel() const { return FQueryPanel.Get(); }

  /// Reads the text of the base's current query into the panel, whose unsaved changes are lost; the host asks for them
  /// in `BeforeScroll`. Does nothing without a current query. Errors as in `TJQueryPanel::LoadFromStrings`; the panel
  /// then keeps its old query, and hands nothing over until it can show one of the base again.
  void LoadCurBaseQuery();

  /// For the current query: name and description come into the panel, which counts as modified no more than before, and
  /// its view refreshes its titles.
  void QueryChanged(int index) override;
  void QueryIndexChanged() override;
  /// The panel's query is cleared when the current one has been deleted, and has nothing to save then.
  void QueryListChanged(TQBOperation operation, int index) override;
  bool GetQueryContent(TStrings& strings) override;
  bool PutQueryContent(const TStrings& strings) override;

 private:
  TRef<TJQueryPanel> FQueryPanel;
  // Whether the panel shows the query of before, as the current one could not be read: saving must not take it for
  // that. Outlives the link while handlers run.
  std::shared_ptr<bool> FIsOld = std::make_shared<bool>(false);
};

}  // namespace tolvi
