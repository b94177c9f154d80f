#include <string>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/panel/valueentry.h>

namespace tolvi {
namespace {

std::string Text(const std::vector<TEntryItem>& items) {
  std::string text;
  for (const TEntryItem& item : items) text += item.Text + "=" + item.Value + ";";
  return text;
}

/// One with something set for every way.
TValueEntry FullEntry() {
  TValueEntry entry;
  entry.DefaultValue = "7";
  entry.EditMask = "00";
  entry.Kind = tekMask;
  entry.LetterCase = lcLower;
  entry.ValueType = ftInteger;
  entry.UseFormattedValue = true;
  entry.Items = {{"One", "1"}, {"Two", "2"}};
  entry.Data = {"a=b"};
  entry.SQL = {"SELECT 1", ":max"};
  entry.SQLParams = {"max=9"};
  entry.QueryData = {"[Query]"};
  return entry;
}

TEST(ValueEntry, ComesBackInEveryWayAndKeepsTheOtherWays) {
  const auto model = OrdersModel();
  for (int way = 0; way < EntryWayCount; ++way) {
    TValueEntry entry = FullEntry();
    entry.Way = static_cast<TEntryWay>(way);
    for (const bool ofField : {true, false}) {
      if (ofField && way == ewSubQuery) continue;
      const std::uint64_t revision = model->GetRevision();
      if (ofField) {
        WriteEntry(model->GetField(2), entry);
      } else {
        WriteEntry(model->Conditions()[1].Values()[0], *model, entry);
      }
      EXPECT_NE(model->GetRevision(), revision);
      // Through the model text, as undo goes.
      model->SetStructString(model->GetStructString());
      TValueEntry read = entry;
      read.Way = ewAuto;
      if (ofField) {
        ReadEntry(model->GetField(2), read);
      } else {
        ReadEntry(model->Conditions()[1].Values()[0], read);
      }
      EXPECT_EQ(read, entry) << way << ofField;
    }
  }
}

TEST(ValueEntry, StoresValuesOnlyWhereTheyDifferFromTheTexts) {
  const auto model = OrdersModel();
  TDSField& field = FieldOf(*model, "Customers.City");
  TValueEntry entry;
  entry.Way = ewList;
  entry.Items = ItemsFromTable("Rome\tR\r\n\n Oslo \t\n");
  WriteEntry(field, entry);
  const auto& list = dynamic_cast<TDSListEditor&>(*field.GetValueEditor());
  EXPECT_EQ(list.Items().Joined(";"), "Rome;Oslo");
  EXPECT_EQ(list.Values().Joined(";"), "R;Oslo");
  entry.Items = ItemsFromTable("Rome\nOslo");
  WriteEntry(field, entry);
  EXPECT_TRUE(list.Values().Empty());
  EXPECT_EQ(Text(ItemsFromTable("Rome\tR\tmore\n\tO")), "Rome=R;O=O;");
  entry.Way = ewSubQuery;
  EXPECT_THROW(WriteEntry(field, entry), EJDBStructError);
}

TEST(ValueEntry, RunsItsQueryWithoutTouchingTheModel) {
  const auto model = OrdersModel();
  TValueEntry entry = FullEntry();
  EXPECT_THROW(RunEntry(*model, entry, 2), EJDBStructError);
  TJDBInfo info;
  std::string asked;
  info.OnGetSQLValues = [&asked](TJDBInfo&, std::string_view sql, TStrings& values, TStrings& captions) {
    asked = sql;
    values = {"1", "2", "3"};
    captions = {"One", "Two", "Three"};
  };
  model->SetDatabaseInfo(&info);
  const std::uint64_t revision = model->GetRevision();
  const TQueriedItems found = RunEntry(*model, entry, 2);
  EXPECT_EQ(Text(found.Items), "One=1;Two=2;");
  EXPECT_EQ(found.Count, 3U);
  EXPECT_EQ(asked, "SELECT 1\r\n9\r\n");
  EXPECT_EQ(model->GetRevision(), revision);
}

}  // namespace
}  // namespace tolvi
