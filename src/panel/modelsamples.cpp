// Samples of what the operators and predefined conditions of a model mean.
#include <algorithm>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/panel/modeloperators.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/rowphrase.h>
#include <tolvi/query/values.h>

namespace tolvi {
namespace {

/// A value of the type as rows keep it; the second one is greater.
std::string_view SampleValue(TFieldType type, int index) {
  const bool first = index == 1;
  if (type == ftBoolean) return "True";
  if (type == ftTime) return first ? "0.375" : "0.75";
  if (DateFieldTypes.Contains(type)) return first ? "36526" : "36891";
  const bool isNumber = (IntegerFieldTypes + FloatFieldTypes).Contains(type);
  return isNumber ? (first ? "10" : "20") : (first ? "abc" : "xyz");
}

/// A query text with the field as its only column.
TStrings SampleSubQuery(TJCustomDBStructure& model, TDSField& field) {
  TJQueryPanel panel;
  panel.SetDBStruct(&model);
  panel.SetActive(true);
  panel.RFields().Add(field);
  TStrings lines;
  panel.SaveToStrings(lines);
  return lines;
}

void FillValues(TFilterCond& condition, TJCustomDBStructure& model, TDSField& field) {
  for (int index = 1; index <= std::min(condition.GetValueCount(), 2); ++index) {
    const TFieldType type = condition.GetValueType(index);
    switch (condition.GetValueKind(index)) {
      case vkScalar:
        condition.SetValue(index, SampleValue(type, index));
        break;
      case vkList:
        condition.SetValue(index,
                           ComposeCommaText({std::string(SampleValue(type, 1)), std::string(SampleValue(type, 2))}));
        break;
      case vkSubQuery:
        condition.SetSubQuery(SampleSubQuery(model, field));
        break;
    }
  }
}

/// The clause without the brackets of the root.
std::string WithoutBrackets(std::string_view clause) {
  clause = Trim(clause);
  const bool inBrackets = clause.size() >= 2 && clause.front() == '(' && clause.back() == ')';
  return std::string(inBrackets ? Trim(clause.substr(1, clause.size() - 2)) : clause);
}

/// What the panel's only condition says. `field` is there for the statement to have a column and a table.
TSampleCondition Describe(TJQueryPanel& panel, TFilterCond& condition, TDSField& field) {
  TSampleCondition sample;
  FillValues(condition, *panel.GetDBStruct(), field);
  sample.Sentence = PhraseText(RowPhrase(condition, TFieldNames(nullptr)));
  panel.RFields().Add(field);
  try {
    panel.BuildQuery();
    const TQueryResult& result = panel.QResult();
    sample.SQL = WithoutBrackets(result.GetWhereClause().Joined(" ") + result.GetHavingClause());
  } catch (const EException& error) {
    sample.Fault = error.Message();
  }
  return sample;
}

/// The first of the model's fields that fits best.
TDSField* SampleField(const TJCustomDBStructure& model, const TDSOperator& op) {
  TDSField* best = nullptr;
  int bestMerit = 0;
  for (TDSField& field : model.Fields()) {
    // An operator that is being typed is known by its name only.
    const auto& offered = field.Operators();
    const bool offers = std::any_of(offered.begin(), offered.end(), [&op](const TDSOperator* other) {
      return SameText(other->GetName(), op.GetName());
    });
    const bool applies = op.GetAppliedTypes().Contains(field.GetFieldType());
    const int merit = (applies ? 4 : 0) + (offers ? 2 : 0) + (field.GetIsAggregate() ? 0 : 1);
    if (merit <= bestMerit || (!applies && !offers)) continue;
    best = &field;
    bestMerit = merit;
    if (merit == 7) break;
  }
  return best;
}

}  // namespace

TSampleCondition SampleOfOperator(TJCustomDBStructure& model, TDSOperator& op) {
  TDSField* field = SampleField(model, op);
  if (field == nullptr) return {{}, {}, "The model has no field to which the operator applies"};
  TJQueryPanel panel;
  panel.SetDBStruct(&model);
  panel.SetActive(true);
  return Describe(panel, panel.AddSimpleCond(panel.RootBracket(), *field, op, {}), *field);
}

TSampleCondition SampleOfCondition(TJCustomDBStructure& model, TDSCondition& condition) {
  if (model.Fields().Empty()) return {{}, {}, "The model has no fields"};
  TJQueryPanel panel;
  panel.SetDBStruct(&model);
  panel.SetActive(true);
  return Describe(panel, panel.AddCustomCondition(panel.RootBracket(), condition), model.GetField(0));
}

}  // namespace tolvi
