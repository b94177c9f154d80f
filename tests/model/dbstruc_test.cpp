#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/model/dbstruc.h>

namespace tolvi {
namespace {

/// Two linked tables with two columns each.
struct TTwoTables {
  TTwoTables() {
    model.AddTable("Orders", "Orders list");
    model.AddTable("Order Lines", "Lines");
    for (TDSTable* table : {&orders(), &lines()}) {
      model.AddField(jfkData, "ID", table->GetDisplayName() + " ID", table);
      model.AddField(jfkData, "Unit Price", "Price", table);
    }
    auto link = std::make_unique<TDSLink>(orders(), lines());
    link->AddPair("ID", "=", "ID");
    model.AddLinkByRef(std::move(link));
  }
  TDSTable& orders() { return model.GetTable(0); }
  TDSTable& lines() { return model.GetTable(1); }

  TJDBStructure model;
};

std::pair<int, std::string> ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const EJDBStructError& error) {
    return {error.ErrorCode(), error.Message()};
  }
  return {-1, "no error"};
}

TEST(Model, NewOneHoldsTheDefaultsAndNothingElse) {
  TJDBStructure model;
  EXPECT_EQ(model.GetOperatCount(), 15u);
  EXPECT_TRUE(model.GetEmpty());
  EXPECT_EQ(model.GetNullField().GetFieldName(), "Unrecognized field");
  EXPECT_EQ(model.GetNullOperator().GetSQLExpr(), "@f @1");
  EXPECT_EQ(model.GetNullCondition().GetDisplayFormat(), "Unrecognized condition");
  model.AddField(jfkVirtual, "1", "One", nullptr);
  EXPECT_TRUE(model.GetEmpty());
  model.AddField(jfkVirtual, "2", "Two", nullptr);
  EXPECT_FALSE(model.GetEmpty());
}

TEST(Model, LookUpsFindTheFirstMatchByEveryKindOfName) {
  TTwoTables t;
  t.lines().SetTableAlias("order lines");
  EXPECT_EQ(t.lines().GetTableAlias(), "order_lines");
  EXPECT_EQ(t.model.TableByName(tnName, "ORDER LINES"), &t.lines());
  EXPECT_EQ(t.model.TableByName(tnAlias, "Order_Lines"), &t.lines());
  EXPECT_EQ(t.model.TableByName(tnDisplayName, "lines"), &t.lines());
  EXPECT_EQ(t.model.TableByName(tnFromExpr, "\"Order Lines\" order_lines"), &t.lines());
  EXPECT_EQ(t.model.TableByName(6, "Orders"), nullptr);
  EXPECT_EQ(t.model.FieldByName(fnFieldExpr, "id"), &t.model.GetField(0)) << "first in list order";
  EXPECT_EQ(t.model.FieldByName(fnFullName, "order lines.id"), &t.model.GetField(2));
  EXPECT_EQ(t.model.FieldByName(fnSQLExpr, "orders.[unit price]"), nullptr);
  EXPECT_EQ(t.model.FieldByName(fnSQLExpr, "orders.unit price"), &t.model.GetField(1)) << "quote symbols are ignored";
  EXPECT_EQ(t.model.FieldByName(4, "ID"), nullptr);
  EXPECT_EQ(t.model.FieldByID(3), &t.model.GetField(2));
  t.model.GetField(2).SetID(99);
  EXPECT_EQ(t.model.FieldByID(3), nullptr);
  EXPECT_EQ(t.model.FieldByID(99), &t.model.GetField(2));
  EXPECT_EQ(t.model.GetLastFieldID(), 99);
  t.model.GetField(0).SetID(0);
  EXPECT_EQ(t.model.GetField(0).GetID(), 100) << "no field of a model is without";
  t.orders().SetTableName("Bestellung");
  EXPECT_EQ(t.model.FieldByName(fnFullName, "bestellung.ID"), &t.model.GetField(0));
}

TEST(Model, LinksAreFoundByTableNamesInEitherOrderAndExactCase) {
  TTwoTables t;
  EXPECT_EQ(t.model.FindLink("Orders", "Order Lines"), &t.model.GetLink(0));
  EXPECT_EQ(t.model.FindLink("Order Lines", "Orders"), &t.model.GetLink(0));
  EXPECT_EQ(t.model.FindLink("orders", "Order Lines"), nullptr);
  EXPECT_EQ(t.orders().LinkByTable(t.lines()), &t.model.GetLink(0));
  EXPECT_EQ(ErrorOf([&] { t.model.GetLink(1); }), std::pair(2, std::string("Invalid link index 1")));
  EXPECT_EQ(ErrorOf([&] { t.model.GetTable(7); }), std::pair(1, std::string("Invalid table index 7")));
}

TEST(Model, SQLNamesFollowFormatsAndOptions) {
  TTwoTables t;
  EXPECT_EQ(t.model.GetField(1).GetSQLExpr(), "Orders.\"Unit Price\"");
  EXPECT_EQ(t.lines().GetFromExpr(), "\"Order Lines\" Order_Lines");
  t.model.SQLFormats().SetQuoteSymbol1('[');
  t.model.SQLFormats().SetQuoteSymbol2(']');
  t.model.SQLFormats().SetUseAsInFrom(true);
  t.lines().SetTableHints("(NOLOCK)");
  EXPECT_EQ(t.lines().GetFromExpr(), "[Order Lines] AS Order_Lines WITH (NOLOCK)");
  EXPECT_EQ(t.model.GetField(3).GetSQLExpr(), "Order_Lines.[Unit Price]");
  EXPECT_EQ(t.model.GetField(3).GetNormalSQLExpr(), "Order_Lines.\"Unit Price\"");
  t.model.DMOptions().SetMultiDB(true);
  t.orders().SetDatabaseName("OWNERS");
  t.model.DMOptions().SetDefaultDBOwner("dbo");
  EXPECT_EQ(t.orders().GetMainExpr(), "dboS.dbo.Orders") << "the replacements run over the whole text";
  EXPECT_EQ(t.orders().GetFullName(), "dbo.Orders");
  t.model.DMOptions().SetDefaultDatabase("OWNERS");
  EXPECT_EQ(t.orders().GetMainExpr(), "Orders");
  t.lines().SetTableName("\"Order Lines\"");
  EXPECT_EQ(t.lines().GetMainExpr(), "\"Order Lines\"") << "not quoted twice";
}

TEST(Model, DeletingATableTakesItsLinksAndColumnsAlong) {
  TTwoTables t;
  t.model.AddField(jfkVirtual, "Orders.ID + Order_Lines.ID", "Sum", nullptr);
  const TDSField& sum = t.model.GetField(4);
  EXPECT_EQ(sum.Tables().GetCommaText(), "Orders,\"Order Lines\"");
  t.model.DelTable(0);
  EXPECT_EQ(t.model.GetLinkCount(), 0u);
  EXPECT_EQ(t.model.Fields().Count(), 3u);
  EXPECT_EQ(sum.Tables().GetCommaText(), "\"Order Lines\"");
  EXPECT_EQ(t.model.GetTable(0).Links().size(), 0u);
  EXPECT_EQ(t.model.RootGroup().Count(), 3u);
}

TEST(Model, ExpressionsFindTablesThatComeOrAreRenamedLater) {
  TJDBStructure model;
  model.AddField(jfkVirtual, "Orders.Total * 2", "Twice", nullptr);
  auto condition = std::make_unique<TDSCondition>();
  condition->SetSQLExpr("Orders.Total > 5");
  const TDSCondition& large = model.Conditions().Add(std::move(condition));
  EXPECT_TRUE(model.GetField(0).Tables().Empty());
  model.AddTable("Bills", "");
  EXPECT_TRUE(large.Tables().Empty());
  model.GetTable(0).SetTableAlias("Orders");
  EXPECT_EQ(model.GetField(0).GetTable(), &model.GetTable(0));
  EXPECT_TRUE(large.Tables().Contains(model.GetTable(0)));
  EXPECT_EQ(model.GetField(0).GetGroupByFields(), "Orders.Total");
}

TEST(Model, FieldKindsGuardTheirExpressions) {
  TTwoTables t;
  TDSField& column = t.model.GetField(0);
  t.model.AddField(jfkVirtual, "Orders.ID * 2", "Twice", nullptr);
  TDSField& twice = t.model.GetField(4);
  EXPECT_EQ(twice.GetFieldType(), ftString);
  EXPECT_EQ(twice.GetFieldSize(), 100);
  EXPECT_EQ(twice.GetGroupByFields(), "Orders.ID");
  t.orders().SetTableAlias("o");
  twice.SetSQLExpr(twice.GetSQLExpr());
  EXPECT_EQ(twice.Tables().Count(), 1u) << "found by its name, when set anew";
  t.orders().SetTableName("Bills");
  twice.SetSQLExpr(twice.GetSQLExpr());
  EXPECT_TRUE(twice.Tables().Empty());
  EXPECT_EQ(ErrorOf([&] { column.SetSQLExpr("x"); }),
            std::pair(8, std::string("Can not assign expression to data field")));
  EXPECT_EQ(ErrorOf([&] { twice.SetFieldName("x"); }),
            std::pair(7, std::string("Can not assign field name to virtual field")));
  EXPECT_EQ(ErrorOf([&] { column.AddOperatorByName("Like"); }), std::pair(6, std::string("Operator not found: Like")));
  column.SetFieldType(ftBoolean);
  column.AddAppliedOperators();
  EXPECT_EQ(column.GetOperatCount(), 5u);
  column.MoveOperat(0, 4);
  EXPECT_EQ(column.GetOperator(4).GetName(), "Equal");
  t.model.DeleteOperatorByName("equalto");
  EXPECT_EQ(column.GetOperatCount(), 5u) << "the older name is taken only as written";
  t.model.DeleteOperatorByName("EqualTo");
  EXPECT_EQ(column.GetOperatCount(), 4u);
  EXPECT_EQ(column.GetCompoundName(), "Orders list ID");
  column.SetGroup(t.model.FieldGroups().AddGroup("Keys"));
  EXPECT_EQ(column.GetCompoundName(), "Keys.Orders list ID");
  EXPECT_EQ(t.model.RootGroup().IndexOf(column), -1);
}

TEST(Model, CatalogueCompletesNewColumns) {
  TTwoTables t;
  TJDBInfo info;
  info.OnFieldsRequest = [](TJDBInfo&, std::string_view table, TDBFieldList& fields) {
    fields.Add("Photo", ftBlob, 0);
    fields.Add(std::string(table) + "Memo", ftMemo, 12);
  };
  t.model.SetDatabaseInfo(&info);
  t.model.AddField(jfkData, "Photo", "", &t.orders());
  t.model.AddField(jfkData, "OrdersMemo", "", &t.orders());
  EXPECT_FALSE(t.model.GetField(4).GetUseInResult());
  EXPECT_TRUE(t.model.GetField(5).GetUseInResult());
  EXPECT_EQ(t.model.GetField(5).GetFieldSize(), 12);
  EXPECT_EQ(ErrorOf([&] { t.model.AddField(jfkData, "Nose", "", &t.orders()); }),
            std::pair(10, std::string("Can not find field \"Nose\" in table \"Orders\"")));
  EXPECT_EQ(t.model.Fields().Count(), 6u);
}

TEST(Model, TellsOfEveryChangeUnlessUpdating) {
  TTwoTables t;
  int changes = 0;
  t.model.OnChange = [&changes](TJCustomDBStructure&) { ++changes; };
  t.orders().SetDisplayName("Bills");
  t.model.GetLink(0).SetLinkType(ltOuterLeft);
  t.model.GetOperator(0).SetDisplayName("is");
  t.model.SQLFormats().SetTrueValue("1");
  t.model.GetField(0).SetQuoted(true);
  EXPECT_EQ(changes, 5);
  t.orders().SetDisplayName("Bills");
  EXPECT_EQ(changes, 5) << "nothing has changed";
  t.model.BeginUpdate();
  t.model.AddTable("X", "X");
  t.model.EndUpdate();
  EXPECT_EQ(changes, 5);
}

TEST(Model, HandlerOfAChangeMayChangeTheModelOrThrow) {
  TTwoTables t;
  int changes = 0;
  t.model.OnChange = [&changes](TJCustomDBStructure& model) {
    if (++changes == 2) throw EException("enough");
    model.GetTable(0).SetDisplayName(model.GetTable(0).GetDisplayName() + "!");
  };
  t.orders().SetDatabaseName("a");
  EXPECT_EQ(changes, 1) << "the handler's own change is not told again";
  EXPECT_EQ(t.orders().GetDisplayName(), "Orders list!");
  EXPECT_THROW(t.model.DelTable(1), EException);
  EXPECT_EQ(t.model.GetTableCount(), 1u) << "the change is complete";
  t.model.SetExOperators({});
  EXPECT_EQ(changes, 3) << "one change, though it deletes eight operators";
  t.model.BeginUpdate();
  TJDBStructure().AssignTo(t.model);
  t.model.RootGroup().SetGroupName("x");
  EXPECT_EQ(changes, 3) << "assigning does not end the update";
}

TEST(Model, HandlerOfAChangeMayDestroyTheModel) {
  const std::function<void(TJDBStructure&)> actions[] = {
      [](TJDBStructure& model) { model.SetExOperators({}); },
      [](TJDBStructure& model) { model.SetDefOperators({"Equal=is"}); },
      [](TJDBStructure& model) { model.AddDefOperators(false); },
      [](TJDBStructure& model) { model.AddInListOperator(false); },
      [](TJDBStructure& model) { model.AddTable("a", "a"); },
      [](TJDBStructure& model) { model.AddField(jfkVirtual, "1", "1", nullptr); },
      [](TJDBStructure& model) { model.DelOperator(0); },
      [](TJDBStructure& model) { model.SQLFormats().SetQuoteBool(false); },
      [](TJDBStructure& model) { model.FieldGroups().AddGroup("g"); },
      [](TJDBStructure& model) { model.Conditions().Add(std::make_unique<TDSCondition>()); },
      [](TJDBStructure& model) { model.ClearStructure(); },
      [](TJDBStructure& model) { TJDBStructure().AssignTo(model); },
      [](TJDBStructure& model) { model.SetStructString("[Main]\nVersion=3.6"); },
  };
  for (const auto& action : actions) {
    auto model = std::make_unique<TJDBStructure>();
    TJDBStructure& sender = *model;
    int changes = 0;
    model->OnChange = [&model, &changes](TJCustomDBStructure&) {
      ++changes;
      model.reset();
    };
    action(sender);
    EXPECT_EQ(changes, 1);
  }
}

TEST(Model, MovingAGroupToABadPlaceLosesNothing) {
  TTwoTables t;
  TDSFieldGroup& group = t.model.FieldGroups().AddGroup("Keys");
  group.Add(t.model.GetField(0));
  EXPECT_THROW(t.model.FieldGroups().Move(0, 1), EListError);
  ASSERT_EQ(t.model.FieldGroups().Count(), 1u);
  EXPECT_EQ(t.model.GetField(0).GetGroup(), &group);
}

TEST(Model, TablesWithoutALinkLeaveThePaths) {
  TTwoTables t;
  EXPECT_NE(t.model.GetPath("Orders", "Order_Lines"), nullptr);
  t.orders().DelLink(0);
  EXPECT_EQ(t.model.GetPath("Orders", "Order_Lines"), nullptr);
  EXPECT_NE(t.model.GetPath("Order_Lines", "Orders"), nullptr) << "the other table still knows it";
  t.orders().AddLinkRef(t.model.GetLink(0));
  EXPECT_NE(t.model.GetPath("Orders", "Order_Lines"), nullptr);
}

TEST(Model, FailedLoadingLeavesTheModelAsItWas) {
  TTwoTables t;
  const std::string before = t.model.GetStructString();
  EXPECT_THROW(t.model.SetStructString("[Main]\r\nVersion=3.6\r\nTableCount=1\r\n"), EException);
  EXPECT_EQ(t.model.GetStructString(), before);
  TJDBStructure copy;
  t.model.SQLFormats().SetLowerFunc("LCASE");
  t.model.AssignTo(copy);
  EXPECT_EQ(copy.GetStructString(), t.model.GetStructString());
  EXPECT_EQ(copy.SQLFormats(), t.model.SQLFormats());
  copy.ClearStructure();
  EXPECT_EQ(copy.GetOperatCount(), 0u);
  EXPECT_EQ(copy.GetTableCount(), 0u);
}

}  // namespace
}  // namespace tolvi
