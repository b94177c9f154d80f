#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/schema/dbinfo.h>

namespace tolvi {
namespace {

std::string LoadError(const TStrings& lines) {
  TDBFieldList fields;
  fields.Add("Kept");
  try {
    fields.LoadFromStrings(lines);
  } catch (const EJDBInfoError& error) {
    EXPECT_EQ(fields.Count(), 1U);
    return std::to_string(error.ErrorCode()) + ": " + error.Message();
  }
  return {};
}

TEST(DBFieldList, ReadsWhatItWrites) {
  TDBFieldList fields;
  fields.Add("Id", ftInteger);
  fields.Add("Größe=1", ftString, 40);
  TStrings lines{"old"};
  fields.SaveToStrings(lines);
  EXPECT_EQ(lines, (TStrings{"Count=2", "F1Name=Id", "F1Size=0", "F1Type=ftInteger", "F2Name=Größe=1", "F2Size=40",
                             "F2Type=ftString"}));
  TDBFieldList copy, fromText;
  copy.Add("old");
  fields.CopyTo(copy);
  fromText.SetText(fields.GetText());
  for (const TDBFieldList* read : {&copy, &fromText}) {
    ASSERT_EQ(read->Count(), 2U);
    EXPECT_EQ((*read)[0], fields[0]);
    EXPECT_EQ((*read)[1], fields[1]);
  }
}

TEST(DBFieldList, TakesDefaultsForWhatIsMissingOrNoNumber) {
  TDBFieldList fields;
  for (const char* const count : {"Count=0", "Count=x", "Count=-1", "Count=", "F1Name=a"}) {
    fields.LoadFromStrings({count, "F1Size=1"});
    EXPECT_TRUE(fields.Empty()) << count;
  }
  fields.LoadFromStrings({"count=3", "f1name=a", "F1Name=b", "F1Size=9999999999", "F2Size=x", "F2Type=FTDATE"});
  ASSERT_EQ(fields.Count(), 3U);
  EXPECT_EQ(fields[0], TDBFieldInfo("a", ftUnknown, 0));
  EXPECT_EQ(fields[1], TDBFieldInfo("", ftDate, 0));
  EXPECT_EQ(fields[2], TDBFieldInfo());
}

TEST(DBFieldList, RefusesUnknownTypesAndImpossibleCountsAndStaysAsItWas) {
  EXPECT_EQ(LoadError({"Count=2", "F2Type=ftNone"}), "2: Field list, line 2: unknown field type \"ftNone\"");
  EXPECT_EQ(LoadError({"Count=4000000000"}), "1: Field list: count 4000000000 is too large for 1 lines");
}

TEST(DBFieldList, FindsTheFirstFieldOfANameAfterEveryChange) {
  TDBFieldList fields;
  EXPECT_EQ(fields.FindByName("a"), nullptr);
  fields.Add("A", ftInteger);
  fields.Add("a", ftString);
  EXPECT_EQ(fields.FindByName("a"), &fields[0]);
  const auto old = fields.Replace(0, std::make_unique<TDBFieldInfo>("Ä"));
  EXPECT_EQ(old->GetFieldName(), "A");
  EXPECT_EQ(fields.FindByName("A"), &fields[1]);
  EXPECT_EQ(fields.FindByName("ä"), &fields[0]);
  fields.Insert(0, std::make_unique<TDBFieldInfo>("a"));
  EXPECT_EQ(fields.FindByName("A"), &fields[0]);
  EXPECT_EQ(fields.Delete(0)->GetFieldName(), "a");
  EXPECT_EQ(fields.FindByName("A"), &fields[1]);
  fields.Clear();
  EXPECT_EQ(fields.FindByName("A"), nullptr);
}

// Answers every question with its own name, and records what it is told.
class TKnownDBInfo final : public TJDBInfo {
 public:
  std::vector<std::string> Calls;

 private:
  void AvailableDatabases(TStrings& list) override { list.Add("db of descendant"); }
  void TablesByDatabase(TStrings& list) override { list.Add("table of descendant"); }
  void LinksByDatabase(TStrings& list) override { list.Add("link of descendant"); }
  void ViewsByDatabase(TStrings& list) override { list.Add("view of descendant"); }
  void KeysByTable(std::string_view tableName, TStrings& list) override { list.Add(std::string(tableName) + "_id"); }
  void FieldsByTable(std::string_view tableName, TDBFieldList& fields) override {
    Calls.emplace_back(tableName);
    if (tableName == "broken") throw std::runtime_error("no connection");
    fields.Add(std::string(tableName) + "_id", ftInteger);
  }
  bool GetSQLValues(std::string_view sql, TStrings& values, TStrings& items) override {
    values.Add(sql);
    items.Add("One");
    return true;
  }
  void DatabaseChanged() override { Calls.push_back("changed to " + GetCurrentDBName()); }
};

TEST(DBInfo, IsConnectedAndKnowsNothingWithoutHandlers) {
  TJDBInfo info;
  TStrings values, items, names{"old"};
  EXPECT_TRUE(info.GetConnected());
  EXPECT_EQ(info.GetTableNameFormat(), "DB.OWNER.TABLE");
  EXPECT_EQ(info.GetDatabaseNamesAsText() + info.GetTableNamesAsText() + info.GetLinksAsText() + info.GetInfoText(),
            "");
  EXPECT_EQ(info.GetFieldsAsText("t"), "Count=0\r\n");
  EXPECT_FALSE(info.RunQuery("select", values, items));
  info.GetViewNames(values);
  info.GetKeyNames("t", items);
  info.GetFieldNamesByTable("t", names);
  EXPECT_TRUE(names.Empty() && values.Empty() && items.Empty());
}

TEST(DBInfo, PrefersHandlersToTheDescendantAndAsksBothForLinks) {
  TKnownDBInfo info;
  TStrings values, items;
  EXPECT_EQ(info.GetDatabaseNamesAsText(), "db of descendant\r\n");
  EXPECT_EQ(info.GetTableNamesAsText(), "table of descendant\r\n");
  EXPECT_TRUE(info.RunQuery("select 1", values, items));
  info.OnDBNamesRequest = [](TJDBInfo&, TStrings& names) { names.Add("db of host"); };
  info.OnTablesRequest = [](TJDBInfo&, TStrings& tables) { tables.Add("table of host"); };
  info.OnLinksRequest = [](TJDBInfo&, TStrings& links) { links.Add("link of host"); };
  info.OnFieldsRequest = [](TJDBInfo&, std::string_view, TDBFieldList& fields) { fields.Add("field of host"); };
  info.OnGetSQLValues = [](TJDBInfo&, std::string_view, TStrings& v, TStrings& captions) {
    v.Add("2");
    captions.Add("Two");
  };
  EXPECT_EQ(info.GetDatabaseNamesAsText(), "db of host\r\n");
  EXPECT_EQ(info.GetTableNamesAsText(), "table of host\r\n");
  EXPECT_EQ(info.GetLinksAsText(), "link of host\r\nlink of descendant\r\n");
  EXPECT_NE(info.GetFieldList("t").FindByName("FIELD OF HOST"), nullptr);
  EXPECT_TRUE(info.RunQuery("select 2", values, items));
  EXPECT_EQ(values, (TStrings{"select 1", "2"}));
  EXPECT_EQ(items, (TStrings{"One", "Two"}));
  EXPECT_TRUE(info.Calls.empty());
}

TEST(DBInfo, TellsOfViewsAndPrimaryKeys) {
  TKnownDBInfo info;
  TStrings views, keys{"kept"};
  const auto ask = [&] {
    info.GetViewNames(views);
    info.GetKeyNames("t", keys);
  };
  ask();
  info.OnViewsRequest = [](TJDBInfo&, TStrings& list) { list.Add("view of host"); };
  info.OnKeysRequest = [](TJDBInfo&, std::string_view table, TStrings& list) {
    list.Add("key of " + std::string(table));
  };
  ask();
  EXPECT_EQ(views, (TStrings{"view of descendant", "view of host"}));
  EXPECT_EQ(keys, (TStrings{"kept", "t_id", "key of t"}));
}

TEST(DBInfo, AsksForTheFieldsOfATableOnceUntilTableOrDatabaseChange) {
  TKnownDBInfo info;
  TStrings names;
  for (const char* const table : {"a", "a", "A", "b"}) info.GetFieldNamesByTable(table, names);
  EXPECT_EQ(names, TStrings{"b_id"});
  EXPECT_EQ(info.GetCurrentTableName(), "b");
  EXPECT_EQ(&info.GetFieldList("b"), &info.Fields());
  for (int i = 0; i < 2; ++i) {
    info.SetCurrentDBName("shop");
    info.GetFieldList("b");
  }
  for (int i = 0; i < 2; ++i) EXPECT_THROW(info.GetFieldList("broken"), std::runtime_error);
  EXPECT_EQ(info.Calls, (std::vector<std::string>{"a", "A", "b", "changed to shop", "b", "broken", "broken"}));
}

}  // namespace
}  // namespace tolvi
