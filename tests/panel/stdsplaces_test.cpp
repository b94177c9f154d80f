#include <gtest/gtest.h>

#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/stdshints.h>
#include <tolvi/panel/stdsplaces.h>

namespace tolvi {
namespace {

TEST(DesignPlaces, GivesNewTablesAPlaceBelowThoseThatStand) {
  TJDBStructure model;
  for (const char* name : {"a", "b", "c", "d"}) model.AddTable(name, name);
  PlaceNewTables(model);
  EXPECT_FALSE(HasStoredPlace(model.GetTable(0))) << "nothing has been arranged yet";
  model.GetTable(1).SetDesignPositions({30, 40, 1, 1});
  model.GetTable(2).SetDesignPositions({50, 400, 110, 0});
  EXPECT_TRUE(HasStoredPlace(model.GetTable(1)));
  EXPECT_FALSE(HasStoredPlace(model.GetTable(2)));
  int changes = 0;
  model.OnChange = [&](TJCustomDBStructure&) { ++changes; };
  PlaceNewTables(model);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(model.GetTable(0).GetDesignPositions(), (TDesignPositions{12, 61, 110, 160}));
  EXPECT_EQ(model.GetTable(1).GetDesignPositions(), (TDesignPositions{30, 40, 1, 1}));
  EXPECT_EQ(model.GetTable(2).GetDesignPositions(), (TDesignPositions{162, 61, 110, 160}));
  EXPECT_EQ(model.GetTable(3).GetDesignPositions(), (TDesignPositions{312, 61, 110, 160}));
}

TEST(DesignHints, StandForEveryState) {
  for (const TAddLinkStage stage : {alsIdle, alsSelField1, alsSelField2}) {
    for (const TDesignTarget target : {dtNothing, dtTable, dtLink}) {
      EXPECT_FALSE(DefaultActionHints().Value(ActionHintKey(stage, target)).empty());
    }
  }
  EXPECT_EQ(ActionHintKey(alsIdle, dtLink), "SelectLinkHint");
  EXPECT_EQ(ActionHintKey(alsSelField1, dtLink), "AddLinkStage1Hint");
}

}  // namespace
}  // namespace tolvi
