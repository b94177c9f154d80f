#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/query/resultfields.h>

namespace tolvi {
namespace {

std::string Upper(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return upper;
}

std::string MessageOf(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const ERFPanelError& error) {
    return error.Message();
  }
  return "no error";
}

// The captions with the groups before them, joined by "; ".
std::string TextOf(const std::vector<TRFItem>& items) {
  std::string text;
  for (const TRFItem& item : items)
    text += (text.empty() ? "" : "; ") + item.Group + ":" + item.Value + ":" + item.Text;
  return text;
}

TEST(ResultRows, SplitTheFormulaAtItsFirstField) {
  const auto model = OrdersModel();
  TDSField& total = FieldOf(*model, "Orders.Total");
  struct {
    std::string_view formula;
    bool hasField;
    std::string before, after;
  } const cases[] = {
      {"@1", true, "", ""},
      {"sum(@1)", true, "SUM(", ")"},
      {"@1 + @1", true, "", " + @1"},
      {"count(*)", true, "COUNT(*)", ""},
      {"", true, "", ""},
      {"sum(@1)", false, "SUM(@1)", ""},
      {"", false, "", ""},
      {"@10", true, "", "0"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.formula);
    TRFieldList fields(model.get());
    TResultField& field = fields.New();
    if (c.hasField) field.AddDSField(total);
    field.SetFormula(c.formula);
    const TRFRowTexts texts = ResultRowTexts(field, 6, {}, Upper);
    EXPECT_EQ(texts.Number, "7");
    EXPECT_EQ(texts.Before, c.before);
    EXPECT_EQ(texts.After, c.after);
    EXPECT_EQ(texts.FieldValue, c.hasField ? std::optional<std::string>("11") : std::nullopt);
    EXPECT_EQ(texts.FieldCaption, c.hasField ? "Total" : "");
  }
}

TEST(ResultRows, ShowTheGroupAndAreReadOutAsPhrases) {
  const auto model = OrdersModel();
  TDSField& total = FieldOf(*model, "Orders.Total");
  total.SetGroup(model->FieldGroups().AddGroup("Money"));
  TRFieldList fields(model.get());
  TResultField& field = fields.Add(total);
  EXPECT_EQ(ResultRowPhrase(ResultRowTexts(field, 0, {}, Upper), "Not Sorted"), "1: Total, Not Sorted");
  field.SetFormula("sum(@1)");
  const TRFRowTexts texts = ResultRowTexts(field, 1, {true, " / "}, Upper);
  EXPECT_EQ(texts.FieldCaption, "Money / Total");
  EXPECT_EQ(ResultRowPhrase(texts, "Ascending"), "2: SUM( Money / Total ), Ascending");
  EXPECT_EQ(texts.Tip, "");

  // The line has place for one field; the others are told by their captions.
  field.AddDSField(FieldOf(*model, "Orders.SaleDate"));
  field.SetFormula("sum(@1 * @2) + @1");
  const TRFRowTexts two = ResultRowTexts(field, 1, {true, " / "}, Upper);
  EXPECT_EQ(two.After, " * @2) + @1");
  EXPECT_EQ(two.Tip, "sum(Money / Total * Sale date) + Money / Total");
  EXPECT_EQ(ResultRowPhrase(two, "Ascending"), "2: " + two.Tip + ", Ascending");
}

TEST(ResultRows, OfferFieldsByGroupsInTheModelsOrder) {
  TJDBStructure model;
  for (const char* name : {"a", "b", "c", "d"}) model.AddField(jfkVirtual, name, Upper(name), nullptr);
  TDSFieldGroup& second = model.FieldGroups().AddGroup("Second");
  TDSFieldGroup& first = model.FieldGroups().AddGroup("First");
  first.Add(model.GetField(1));
  second.Add(model.GetField(3));
  EXPECT_EQ(TextOf(ResultFieldItems(model)), "Second:4:D; First:2:B; :1:A; :3:C");
  EXPECT_EQ(GetFirstResultField(model), &model.GetField(3));
  model.SetRootFieldsFirst(true);
  EXPECT_EQ(TextOf(ResultFieldItems(model)), ":1:A; :3:C; Second:4:D; First:2:B");
  model.GetField(0).SetUseInResult(false);
  EXPECT_EQ(TextOf(ResultFieldItems(model)), ":3:C; Second:4:D; First:2:B");
  EXPECT_EQ(GetFirstResultField(model), &model.GetField(2));
  for (std::size_t i = 0; i < 4; ++i) model.GetField(i).SetUseInResult(false);
  EXPECT_EQ(TextOf(ResultFieldItems(model)), "");
  EXPECT_EQ(GetFirstResultField(model), nullptr);
}

TEST(ResultRows, StandOneBelowTheOtherAndTheirElementsInALine) {
  const TRFSpaces spaces{5, 7, 3, 4};
  // All elements: 20 wide button, then 30, 40 and 50 wide labels.
  const TRFRowSizes all{16, 20, 30, 40, 50};
  EXPECT_EQ(PlaceResultRow(0, all, spaces),
            (TRFRowPlaces{{5, 7, 20, 17}, TRFPoint{29, 7}, TRFPoint{63, 7}, TRFPoint{107, 7}, {161, 7}}));
  EXPECT_EQ(PlaceResultRow(2, all, spaces, {100, 10}),
            (TRFRowPlaces{{-95, 37, 20, 17}, TRFPoint{-71, 37}, TRFPoint{-37, 37}, TRFPoint{7, 37}, {61, 37}}));
  struct {
    TRFRowSizes sizes;
    TRFRowPlaces places;
  } const partly[] = {
      {{16, 20, {}, {}, {}}, {{5, 7, 20, 17}, {}, {}, {}, {29, 7}}},
      {{16, 20, {}, 40, {}}, {{5, 7, 20, 17}, {}, TRFPoint{29, 7}, {}, {73, 7}}},
      {{16, 20, 30, {}, {}}, {{5, 7, 20, 17}, TRFPoint{29, 7}, {}, {}, {63, 7}}},
      {{16, 20, {}, 40, 0}, {{5, 7, 20, 17}, {}, TRFPoint{29, 7}, TRFPoint{73, 7}, {77, 7}}},
  };
  for (const auto& [sizes, places] : partly) EXPECT_EQ(PlaceResultRow(0, sizes, spaces), places);
  EXPECT_EQ(PlaceAddRowLabel(TRFBox{-95, 37, 20, 17}, spaces), (TRFPoint{-95, 59}));
  EXPECT_EQ(PlaceAddRowLabel(std::nullopt, spaces), (TRFPoint{5, 7}));
}

TEST(ResultRows, TakeTheirTextsFromTheTitles) {
  TStrings titles = DefaultRFPanelTitles();
  EXPECT_EQ(titles.Joined("|"),
            "ttlDelField=Delete current field|ttlMoveUp=Move Up|ttlMoveDown=Move Down|ttlNotSorted=Not Sorted|"
            "ttlAscending=Ascending|ttlDescending=Descending|ttlClickToAdd=Click to add new field");
  EXPECT_EQ(AddRowText(titles), "< Click to add new field >");
  EXPECT_EQ(TextOf(SortingItems(titles)), ":0:Not Sorted; :1:Ascending; :2:Descending");
  titles.SetValue("ttlMoveUp", "Hoch");
  const std::vector<TRFMenuItem> menu{
      {"Delete current field", mtDelete}, {"-", mtSeparator}, {"Hoch", mtMoveUp}, {"Move Down", mtMoveDown}};
  EXPECT_EQ(ResultRowMenu(titles), menu);
  EXPECT_EQ(std::tuple(2, 3, 4), std::tuple(int{mtDelete}, int{mtMoveUp}, int{mtMoveDown}));
}

TEST(ResultRows, MoveUnlessTheyAreFirstOrLast) {
  const auto none = std::optional<std::size_t>();
  struct {
    std::size_t row, count;
    std::optional<std::size_t> up, down;
  } const cases[] = {{0, 1, none, none}, {0, 3, none, 1}, {1, 3, 0, 2}, {2, 3, 1, none}, {3, 3, none, none}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.row);
    EXPECT_EQ(MovedRowIndex(mtMoveUp, c.row, c.count), c.up);
    EXPECT_EQ(MovedRowIndex(mtMoveDown, c.row, c.count), c.down);
    EXPECT_EQ(MovedRowIndex(mtDelete, c.row, c.count), none);
    EXPECT_EQ(IsRowMenuItemEnabled(mtMoveUp, c.row, c.count), c.up.has_value());
    EXPECT_EQ(IsRowMenuItemEnabled(mtMoveDown, c.row, c.count), c.down.has_value());
    EXPECT_EQ(IsRowMenuItemEnabled(mtDelete, c.row, c.count), c.row < c.count);
  }
}

TEST(ResultColumns, AreAppendedWithTheFirstFieldThatMayBeUsed) {
  const auto model = OrdersModel();
  model->GetField(0).SetUseInResult(false);
  TRFieldList fields(model.get());
  AppendResultField(fields, model.get());
  const TResultField& second = AppendResultField(fields, model.get());
  EXPECT_EQ(fields.GetCaption(), "Company, Company 2");
  EXPECT_EQ(second.GetFormula(), "@1");
  EXPECT_EQ(second.DSFields(), std::vector{&FieldOf(*model, "Customers.Company")});
  EXPECT_EQ(second.GetSorting(), stNoSort);

  EXPECT_EQ(MessageOf([&] { AppendResultField(fields, nullptr); }), "DBStructure is not specified");
  TJDBStructure small;
  TRFieldList none(&small);
  for (const char* name : {"a", "b"}) {
    EXPECT_EQ(MessageOf([&] { AppendResultField(none, &small); }), "Structure is empty");
    small.AddField(jfkVirtual, name, name, nullptr);
    small.GetField(small.Fields().Count() - 1).SetUseInResult(false);
  }
  EXPECT_EQ(MessageOf([&] { AppendResultField(none, &small); }), "Structure is empty");
  EXPECT_TRUE(none.Empty());
  small.GetField(1).SetUseInResult(true);
  EXPECT_EQ(AppendResultField(none, &small).GetCaption(), "b");
}

TEST(ResultColumns, TakeFieldAndSortingFromTheirRow) {
  const auto model = OrdersModel();
  TRFieldList fields(model.get());
  TResultField& plain = fields.Add(FieldOf(*model, "Customers.City"));
  TResultField& sum = fields.Add(FieldOf(*model, "Orders.Total"));
  sum.SetFormula("sum(@1)");
  sum.SetCaption("Turnover");
  sum.SetSortOrder(9);
  int changes = 0;
  fields.OnChange = [&changes] { ++changes; };

  RefreshResultField(fields, 0, plain, "2", stDescending);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(plain.GetExpression(), "{Customers.Company}");
  EXPECT_EQ(plain.GetCaption(), "Company");
  EXPECT_EQ(plain.GetSorting(), stDescending);
  RefreshResultField(fields, 1, sum, "18", stAscending);
  EXPECT_EQ(sum.GetExpression(), "sum({Products.Price})");
  EXPECT_EQ(sum.GetCaption(), "Turnover");
  EXPECT_EQ(sum.GetSorting(), stAscending);
  EXPECT_EQ(sum.GetSortOrder(), 9);

  for (const char* unknown : {"99", "", "x", "4294967298"}) {
    RefreshResultField(fields, 0, plain, unknown, stNoSort);
    EXPECT_EQ(plain.GetExpression(), "{Customers.Company}") << unknown;
  }
  RefreshResultField(fields, 0, plain, std::nullopt, stAscending);
  EXPECT_EQ(plain.GetSorting(), stAscending);
  RefreshResultField(fields, 2, plain, "2", stDescending);
  EXPECT_EQ(plain.GetSorting(), stAscending);
}

TEST(ResultColumns, AreRenumberedByAMoveAndNotByADelete) {
  const auto model = OrdersModel();
  TRFieldList fields(model.get());
  const auto orders = [&fields] {
    std::string text;
    for (const TResultField& field : fields) text += field.GetCaption() + std::to_string(field.GetSortOrder()) + " ";
    return text;
  };
  for (const char* name : {"Customers.City", "Customers.Company", "Orders.Total", "Products.Price"}) {
    fields.Add(FieldOf(*model, name)).SetSorting(stAscending);
  }
  fields[1].SetSorting(stNoSort);
  fields[1].SetSortOrder(8);
  RenumberSortOrders(fields);
  EXPECT_EQ(orders(), "City1 Company8 Total2 Price3 ");
  fields.Delete(0).reset();
  EXPECT_EQ(orders(), "Company8 Total2 Price3 ");
  MoveResultField(fields, 2, 0);
  EXPECT_EQ(orders(), "Price1 Company8 Total2 ");
  EXPECT_THROW(MoveResultField(fields, 0, 3), EListError);
  EXPECT_EQ(orders(), "Price1 Company8 Total2 ");
}

}  // namespace
}  // namespace tolvi
