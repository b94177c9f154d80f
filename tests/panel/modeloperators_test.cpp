#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/panel/modeloperators.h>

namespace tolvi {
namespace {

std::string Names(const TJCustomDBStructure& model) {
  TStrings names;
  model.GetOperatorNames(names);
  return names.Joined(" ");
}

std::string Text(const TSampleCondition& sample) { return sample.Sentence + " | " + sample.SQL + sample.Fault; }

TEST(ModelOperators, AreDuplicatedMovedAndDeletedTogether) {
  const auto model = OrdersModel();
  model->ClearOperators();
  for (const char* name : {"A", "B", "C"}) model->AddOperator(name, name, "@f = '@1'", "", {ftString});
  TDSField& field = model->GetField(0);
  for (const char* name : {"A", "B"}) field.AddOperatorByName(name);
  model->GetOperator(1).SetValueKind(vkList);

  EXPECT_EQ(DuplicateOperators(*model, {2, 1}), (std::vector<std::size_t>{2, 4}));
  EXPECT_EQ(Names(*model), "A B B2 C C2");
  EXPECT_EQ(model->GetOperator(2).GetValueKind(), vkList);
  ASSERT_EQ(field.GetOperatCount(), 3U);
  EXPECT_EQ(field.GetOperator(2).GetName(), "B2");

  EXPECT_EQ(StepModelOperators(*model, {2, 4}, -1), (std::vector<std::size_t>{1, 3}));
  EXPECT_EQ(Names(*model), "A B2 B C2 C");
  DeleteOperators(*model, {0, 3, 1});
  EXPECT_EQ(Names(*model), "B C");
  EXPECT_EQ(AddNewOperator(*model), 2U);
  EXPECT_EQ(Names(*model), "B C Operator1");
  EXPECT_EQ(CountLackingDefaults(*model), 15U);
  model->SetExOperators({xoBetween});
  EXPECT_EQ(CountLackingDefaults(*model), 7U);
}

TEST(ModelOperators, AreOfferedToAllFieldsOfTheirTypes) {
  const auto model = OrdersModel();
  TDSOperator& op = model->GetOperator(AddNewOperator(*model));
  op.SetAppliedTypes({ftString});
  FieldOf(*model, "Customers.City").AddOperator(op);
  FieldOf(*model, "Orders.Total").AddOperator(op);
  const TOperatorUse use = UseOfOperator(*model, op);
  EXPECT_EQ(use.Applies, 3U);
  EXPECT_EQ(use.Offers, 2U);
  EXPECT_EQ(use.Lacking.size(), 2U);
  OfferToAll(*model, op);
  EXPECT_EQ(UseOfOperator(*model, op).Offers, 4U);
  EXPECT_TRUE(UseOfOperator(*model, op).Lacking.empty());
}

TEST(ModelOperators, ShowWhatTheyMean) {
  const auto model = OrdersModel();
  const std::uint64_t revision = model->GetRevision();
  const auto sample = [&](const char* name) { return Text(SampleOfOperator(*model, OperatorOf(*model, name))); };
  EXPECT_EQ(sample("Between"), "Customer no is between 10 and 20 | Customers.CustNo between 10 and 20");
  EXPECT_EQ(sample("Contains"), "Company contains abc | Customers.Company like '%abc%'");
  EXPECT_EQ(sample("InList"), "Customer no is in list 10, 20 | Customers.CustNo in (10,20)");
  EXPECT_EQ(sample("InQuery").substr(0, 22), "Customer no is in the ");
  TDSOperator typed;
  typed.SetName("Later");
  typed.SetDisplayName("is later than");
  typed.SetSQLExpr("@f > '@1'");
  typed.SetAppliedTypes({ftDate});
  EXPECT_EQ(Text(SampleOfOperator(*model, typed)),
            "Sale date is later than 2000-01-01 | Orders.SaleDate > '2000-01-01'");
  typed.SetAppliedTypes({ftGuid});
  EXPECT_EQ(Text(SampleOfOperator(*model, typed)), " | The model has no field to which the operator applies");
  EXPECT_EQ(Text(SampleOfCondition(*model, model->Conditions()[1])),
            "Sold between 2000-01-01 and 2000-12-31 | Orders.SaleDate between '2000-01-01' and '2000-12-31'");
  EXPECT_EQ(model->GetRevision(), revision);
}

TEST(ModelConditions, KeepOneValueForEachPlace) {
  const auto model = OrdersModel();
  TDSCondition& condition = model->Conditions()[1];
  ChangeDisplayFormat(condition, "Sold on @");
  EXPECT_EQ(condition.Values().Count(), 1U);
  EXPECT_EQ(condition.Values()[0].GetDataType(), ftDate);
  EXPECT_EQ(condition.GetCaption(), "Sold on ");
  ChangeDisplayFormat(condition, "Sold on @ or @");
  EXPECT_EQ(condition.Values().Count(), 2U);

  EXPECT_EQ(AddNewCondition(*model), 2U);
  EXPECT_EQ(AddNewCondition(*model), 3U);
  EXPECT_EQ(model->Conditions()[3].GetDisplayFormat(), "Condition 2");
  EXPECT_EQ(model->Conditions()[3].GetID(), 4);
  DeleteConditions(*model, {0, 2, 3});
  ASSERT_EQ(model->Conditions().Count(), 1U);
  EXPECT_EQ(model->Conditions()[0].GetID(), 2);
}

}  // namespace
}  // namespace tolvi
