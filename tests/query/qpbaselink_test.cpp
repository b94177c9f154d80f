#include <map>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "support/models.h"
#include "support/stored_item.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/query/qpbaselink.h>

namespace tolvi {
namespace {

class TTitleView final : public TQueryPanelView {
 public:
  void TitlesChanged() override { ++Count; }
  int Count = 0;
};

/// Two queries, "big" with one condition and "rest" with two, and a panel that shows the first.
class QPBaseLink : public testing::Test {
 protected:
  QPBaseLink() {
    for (TJQueryPanel* each : {panel.get(), &other}) each->SetDBStruct(model.get());
    for (const auto& [name, rows] : {std::pair("big", 1), std::pair("rest", 2)}) {
      TJQueryPanel source;
      source.SetDBStruct(model.get());
      source.SetQueryName(name);
      for (int row = 0; row < rows; ++row) source.RootBracket().AddCond();
      source.SaveToStrings(store[name]);
      base.AddItem(std::make_unique<TStoredItem>(store, name));
    }
    link->SetQueryBase(&base);
    base.Open();
  }
  std::string Shown(const TJQueryPanel& shown) const {
    return shown.GetQueryName() + std::to_string(shown.RootBracket().GetRowCount());
  }
  std::string Shown() const { return Shown(*panel); }

  std::map<std::string, TStrings> store;
  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryBase base;
  std::unique_ptr<TJQueryPanel> panel = std::make_unique<TJQueryPanel>();
  TJQueryPanel other;
  std::unique_ptr<TJQPBaseLink> link = std::make_unique<TJQPBaseLink>(*panel);
};

TEST_F(QPBaseLink, BringsTheCurrentQueryIntoThePanelAndTakesItBack) {
  EXPECT_EQ(Shown(), "big1");
  EXPECT_TRUE(panel->GetActive() && !panel->GetModified());
  base.SetItemIndex(1);
  EXPECT_EQ(Shown(), "rest2");
  const TStrings stored = store["rest"];
  panel->RootBracket().AddCond();
  base.GetCurrentQuery()->Load();
  EXPECT_EQ(Shown(), "rest3") << "a query gives nothing to the panel";
  base.GetCurrentQuery()->Save();
  EXPECT_FALSE(panel->GetModified());
  EXPECT_NE(store["rest"], stored);
  base.GetCurrentQuery()->SetDescription("the others");
  EXPECT_EQ(panel->GetDescription().GetText(), "the others\r\n");
  EXPECT_FALSE(panel->GetModified()) << "the base has it";
  base.SetItemIndex(0);
  base.SetItemIndex(1);
  EXPECT_EQ(Shown(), "rest3");
  TStrings content;
  EXPECT_TRUE(link->GetQueryContent(content) && link->PutQueryContent(stored));
  EXPECT_EQ(content, store["rest"]);
  EXPECT_EQ(Shown(), "rest2");
  link->LoadCurBaseQuery();
  EXPECT_EQ(Shown(), "rest3");
  base.AddItem(std::make_unique<TStoredItem>(store, "new"));
  base.SetItemIndex(2);
  EXPECT_EQ(Shown(), "0") << "no text yet";
}

TEST_F(QPBaseLink, ShowsNameAndDescriptionOfTheCurrentQueryOnly) {
  TTitleView view;
  panel->SetView(&view);
  base.GetQuery(1).SetQueryName("others");
  EXPECT_EQ(Shown(), "big1");
  EXPECT_EQ(view.Count, 0);
  base.GetQuery(0).SetQueryName("large");
  base.GetQuery(0).SetDescription("first\nsecond");
  EXPECT_EQ(Shown(), "large1");
  EXPECT_EQ(panel->GetDescription(), (TStrings{"first", "second"}));
  EXPECT_EQ(view.Count, 2);
}

TEST_F(QPBaseLink, ClearsThePanelWhenItsQueryIsDeleted) {
  base.AddItem(std::make_unique<TStoredItem>(store, "last"));
  base.DeleteQuery(2);
  EXPECT_EQ(Shown(), "big1");
  base.AddItem(std::make_unique<TStoredItem>(store, "last"));
  base.DeleteQuery(0);
  EXPECT_EQ(Shown(), "0") << "the next query is the current one, unseen";
  EXPECT_FALSE(panel->GetModified()) << "nothing is to be saved over it";
  EXPECT_EQ(base.GetCurrentQuery()->GetQueryName(), "rest");
  link->LoadCurBaseQuery();
  base.Close();
  EXPECT_EQ(Shown(), "rest2") << "closing leaves the query";
  link->LoadCurBaseQuery();
  EXPECT_EQ(Shown(), "rest2");
}

TEST_F(QPBaseLink, LeavesOtherPanelsInStepWhenAQueryCannotBeRead) {
  TJQPBaseLink second(other);
  TJQueryPanel third;
  TJQPBaseLink withoutModel(third);
  withoutModel.SetQueryBase(&base);
  second.SetQueryBase(&base);
  try {
    base.SetItemIndex(1);
    ADD_FAILURE();
  } catch (const EJQueryPanelError& error) {
    EXPECT_EQ(error.Message(), "DBStruct is not specified");
  }
  EXPECT_EQ(Shown() + Shown(other), "rest2rest2");
  withoutModel.SetQueryBase(nullptr);
  store["big"] = {"[Nothing]"};
  EXPECT_THROW(base.SetItemIndex(0), EJQueryPanelError);
  EXPECT_EQ(Shown() + Shown(other), "rest2rest2");
  TStrings content;
  EXPECT_FALSE(base.NeedContent(content)) << "the other query is not handed over as this one";
  base.SetItemIndex(1);
  EXPECT_TRUE(base.NeedContent(content));
}

TEST_F(QPBaseLink, OutlivesPanelAndBase) {
  TStrings content{"kept"};
  panel.reset();
  base.SetItemIndex(1);
  base.GetQuery(1).SetQueryName("x");
  base.DeleteQuery(1);
  EXPECT_EQ(link->GetQueryPanel(), nullptr);
  EXPECT_FALSE(link->GetQueryContent(content) || link->PutQueryContent(content));
  EXPECT_EQ(content, TStrings{"kept"});
  TJQPBaseLink loose(other);
  {
    TJQueryBase gone;
    loose.SetQueryBase(&gone);
  }
  loose.LoadCurBaseQuery();
  loose.QueryChanged(0);
  loose.QueryIndexChanged();
  loose.QueryListChanged(qboItemDeleted, 0);
  EXPECT_EQ(Shown(other), "0");
}

TEST_F(QPBaseLink, HandlersOfThePanelMayDestroyPanelLinkAndQuery) {
  const auto destroy = [this](TJQueryPanel&) {
    link.reset();
    panel.reset();
    base.ClearQueries();
  };
  for (const auto operation :
       {+[](TJQueryBase& base) { base.GetQuery(0).SetDescription("x"); },
        +[](TJQueryBase& base) { base.SetItemIndex(1); }, +[](TJQueryBase& base) { base.DeleteQuery(0); },
        +[](TJQueryBase& base) { base.Close(), base.Open(); }}) {
    base.Close();
    panel = std::make_unique<TJQueryPanel>();
    panel->SetDBStruct(model.get());
    for (const char* const name : {"big", "rest"}) base.AddItem(std::make_unique<TStoredItem>(store, name));
    base.Open();
    link = std::make_unique<TJQPBaseLink>(*panel);
    link->SetQueryBase(&base);
    panel->SetQueryName("shown");
    panel->OnChange = destroy;
    operation(base);
    EXPECT_EQ(panel == nullptr, link == nullptr);
    EXPECT_EQ(base.GetCurrentQuery(), nullptr);
  }
}

}  // namespace
}  // namespace tolvi
