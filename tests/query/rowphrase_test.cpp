#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/query/querpnl.h>
#include <tolvi/query/rowphrase.h>

namespace tolvi {
namespace {

/// Rows on the orders model, shown as their parts: a letter for the kind, the index of a value, "_" for a blank before.
class RowPhrases : public testing::Test {
 protected:
  RowPhrases() {
    FPanel.SetDBStruct(FModel.get());
    FPanel.SetActive(true);
  }
  TSimpleCond& Add(std::string_view field, std::string_view op, std::string_view value1, std::string_view value2 = {}) {
    return FPanel.AddSimpleCond(FPanel.RootBracket(), FieldOf(*FModel, field), OperatorOf(*FModel, op), value1, value2);
  }
  std::string Parts(const TFilterRow& row) {
    static constexpr std::string_view Letters = "TLFOVPQS";
    std::string text;
    for (const TPhrasePart& part : RowPhrase(row, TFieldNames(FModel.get()))) {
      text += part.SpaceBefore ? "_[" : "[";
      text += Letters[part.Kind];
      if (part.ValueIndex > 0) text += std::to_string(part.ValueIndex);
      text += (part.IsPlaceholder ? "?:" : part.IsUnknown ? "!:" : ":") + part.Text + "]";
    }
    return text;
  }

  std::unique_ptr<TJDBStructure> FModel = OrdersModel();
  TJQueryPanel FPanel;
};

TEST_F(RowPhrases, BracketsFollowTheirTitles) {
  struct TCase {
    std::string_view Title, Parts, Sentence;
  };
  static constexpr TCase Cases[] = {
      {"@ of the following apply", "[L:any]_[T:of the following apply]", "any of the following apply"},
      {"sind @ erfüllt?", "[T:sind]_[L:any]_[T:erfüllt?]", "sind any erfüllt?"},
      {"以下の@に一致", "[T:以下の][L:any][T:に一致]", "以下のanyに一致"},
      {"@ @", "[L:any]_[L:any]", "any any"},
      {" @  of ", "[T: ]_[L:any]_[T: of]_[T:]", "  any  of "},
      {"@,  @", "[L:any][T:, ]_[L:any]", "any,  any"},
      {"no place", "[T:no place]", "no place"},
  };
  TFilterBracket& bracket = FPanel.AddBracket(FPanel.RootBracket());
  bracket.SetLinkType(fltAny);
  for (const TCase& test : Cases) {
    FPanel.SetTitle("ttlBracket", test.Title);
    const std::string expected = ReplaceStr(test.Title, "@", "any");
    EXPECT_EQ(PhraseText(RowPhrase(bracket, TFieldNames(FModel.get()))), expected);
    if (test.Title.front() != ' ') {
      EXPECT_EQ(Parts(bracket), test.Parts);
    }
  }
  EXPECT_EQ(Parts(FPanel.RootBracket()), "[T:Choose records where]_[L:all]_[T:of the following apply]");
}

TEST_F(RowPhrases, ConditionsAreFieldOperatorAndValues) {
  EXPECT_EQ(Parts(Add("Customers.City", "InList", "Oslo,\"Den\nHaag\"")),
            "[F:City]_[O:is in list]_[V1:Oslo, Den Haag]");
  EXPECT_EQ(Parts(Add("Orders.SaleDate", "Between", "2024-01-01")),
            "[F:Sale date]_[O:is between]_[V1:2024-01-01]_[T:and]_[V2?:<empty>]");
  EXPECT_EQ(Parts(Add("Customers.Active", "Equal", "0")), "[F:Active]_[O:is equal to]_[V1:False]");
  TSimpleCond& param = Add("Orders.Total", "GreaterThan", "7");
  param.SetValueIsParam(1, true);
  EXPECT_EQ(Parts(param), "[F:Total]_[O:is greater than]_[P1:<Param1: 7>]");
  EXPECT_EQ(Parts(Add("Customers.CustNo", "InQuery", "")), "[F:Customer no]_[O:is in the sub-query]_[Q1?:<Sub-query>]");
  EXPECT_EQ(Parts(FPanel.AddSQLFragment(FPanel.RootBracket(), "Orders.Total >\n1")), "[T:SQL:]_[S:Orders.Total > 1]");
  OperatorOf(*FModel, "Equal").SetDisplayName("");
  EXPECT_EQ(Parts(Add("Customers.City", "Equal", "a")), "[F:City][O:]_[V1:a]");
}

TEST_F(RowPhrases, PredefinedConditionsFollowTheirFormat) {
  EXPECT_EQ(Parts(FPanel.AddCustomCondition(FPanel.RootBracket(), FModel->Conditions()[0])),
            "[T:Orders that have not been shipped]");
  TDSCondition& between = FModel->Conditions()[1];
  TCustomCond& row = FPanel.AddCustomCondition(FPanel.RootBracket(), between);
  row.SetValue(2, "2024-05-01");
  EXPECT_EQ(Parts(row), "[T:Sold between]_[V1?:<empty>]_[T:and]_[V2:2024-05-01]");
  between.SetDisplayFormat("@-@ (@)");
  between.Values().Delete(2).reset();
  EXPECT_EQ(Parts(row), "[V1?:<empty>][T:-][V2:2024-05-01]_[T:(@)]");
}

TEST_F(RowPhrases, WhatTheModelLacksIsNamed) {
  TSimpleCond& noField = Add("Customers.City", "Equal", "Oslo");
  TSimpleCond& noOperator = Add("Customers.Company", "Contains", "x");
  TCustomCond& noCondition = FPanel.AddCustomCondition(FPanel.RootBracket(), FModel->Conditions()[0]);
  FModel->DelField(2);
  FModel->DeleteOperatorByName("Contains");
  FModel->Conditions().Delete(0).reset();
  EXPECT_EQ(Parts(noField), "[F!:<" + noField.GetMissing() + ">]_[O:is equal to]_[V1:Oslo]");
  EXPECT_EQ(Parts(noOperator), "[F:Company]_[O!:<Contains>]_[V1:x]");
  EXPECT_EQ(Parts(noCondition), "[T!:<" + noCondition.GetMissing() + ">]");
}

}  // namespace
}  // namespace tolvi
