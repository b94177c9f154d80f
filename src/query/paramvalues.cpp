#include <algorithm>
#include <cstddef>
#include <functional>

#include <tolvi/foundation/text.h>
#include <tolvi/query/explain.h>
#include <tolvi/query/paramvalues.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/rowphrase.h>

namespace tolvi {
namespace {

/// Whether the call has changed the parameter.
using TParamCall = std::function<bool(TSQLParam&)>;

/// Visits parameters in the order in which a statement numbers them: those of the query, then those of the sub-queries
/// of its WHERE and of its HAVING.
class TParamWalk {
 public:
  explicit TParamWalk(const TParamCall& call) : FCall(call) {}

  /// Whether a parameter has changed.
  bool Run(TJQueryPanel& panel) {
    bool changed = false;
    for (TSQLParam& param : panel.QResult().Params()) changed |= FCall(param);
    FTaken = panel.QResult().Params().GetParentParamCount() + panel.QResult().GetParamCount();
    changed |= WalkBracket(panel.RootBracket(), false);
    changed |= WalkBracket(panel.RootBracket(), true);
    return changed;
  }

 private:
  bool WalkBracket(TFilterBracket& bracket, bool having) {
    bool changed = false;
    for (TFilterRow& row : bracket) {
      // The root takes part in both clauses, any other row in one.
      if (!row.GetEnabled() || row.GetIsHavingRow() != having) continue;
      changed |= row.GetRowType() == frtBracket ? WalkBracket(static_cast<TFilterBracket&>(row), having)
                                                : WalkSubQuery(static_cast<TFilterCond&>(row));
    }
    return changed;
  }

  bool WalkSubQuery(TFilterCond& condition) {
    if (condition.GetValueCount() == 0 || condition.GetValueKind(1) != vkSubQuery || condition.GetSubQuery().Empty()) {
      return false;
    }
    TJQueryPanel panel;
    panel.SetDBStruct(condition.GetQueryPanel().GetDBStruct());
    panel.SetFormatSettings(condition.GetQueryPanel().GetFormatSettings());
    panel.LoadFromStrings(condition.GetSubQuery());
    panel.QResult().Params().SetParentParamCount(FTaken);
    panel.QResult().ReindexParams();
    TParamWalk walk(FCall);
    const bool changed = walk.Run(panel);
    FTaken = walk.FTaken;
    if (changed) {
      TStrings lines;
      panel.SaveToStrings(lines);
      condition.SetSubQuery(lines);
    }
    return changed;
  }

  const TParamCall& FCall;
  std::size_t FTaken = 0;
};

std::string PromptOf(const TSQLParam& param) {
  if (!param.GetOwnDisplayName().empty()) return param.GetOwnDisplayName();
  return param.HasAutomaticName() ? std::string() : param.GetParamName();
}

std::string QuestionOf(const TSQLParam& param) {
  const TFilterCond& condition = param.GetCondition();
  TPhrase phrase = RowPhrase(condition, TFieldNames(condition.GetQueryPanel().GetDBStruct()));
  for (TPhrasePart& part : phrase) {
    if (part.Kind == pkParameter && part.ValueIndex == param.GetValueIndex()) part.Text = "…";
  }
  return PhraseText(phrase);
}

}  // namespace

std::vector<TParamInfo> ListParams(TJQueryPanel& panel) {
  std::vector<TParamInfo> params;
  const TParamCall call = [&params](TSQLParam& param) {
    const TFilterCond& condition = param.GetCondition();
    const int index = param.GetValueIndex();
    params.push_back({param.GetParamName(), param.GetDisplayName(), ExplainCondition(condition), param.GetValue(),
                      param.GetFullValue(), param.GetParamType(), condition.GetValueKind(index) == vkList,
                      condition.GetValueName(index), condition.GetValueEditor(index), PromptOf(param),
                      QuestionOf(param)});
    return false;
  };
  TParamWalk(call).Run(panel);
  return params;
}

bool SetParamValue(TJQueryPanel& panel, std::string_view name, std::string_view value) {
  bool found = false;
  const TParamCall call = [&](TSQLParam& param) {
    if (!SameText(param.GetParamName(), name)) return false;
    param.SetValue(value);
    found = true;
    return true;
  };
  TParamWalk(call).Run(panel);
  return found;
}

void TakeEmptyTexts(TBoundStatement& statement, TJQueryPanel& panel, const TParamNames& given) {
  const std::vector<TParamInfo> params = ListParams(panel);
  for (TBoundValue& value : statement.Values) {
    if (!value.IsMissing || !given.contains(value.Name) || !TextFieldTypes.Contains(value.Type)) continue;
    const auto param = std::find_if(params.begin(), params.end(),
                                    [&value](const TParamInfo& info) { return SameText(info.Name, value.Name); });
    if (param != params.end()) value.Text = param->FullValue;
    value.Value = value.Text;
    value.IsMissing = false;
  }
}

}  // namespace tolvi
