#include <algorithm>
#include <bitset>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/exprnames.h>
#include <tolvi/model/modelcheck_texts.h>

namespace tolvi {
namespace {

/// Conditions hold two values.
constexpr std::size_t MaxValues = 2;

void AddIf(TTextFindings& findings, bool wrong, TCheckSeverity severity, std::string_view text,
           std::initializer_list<TFormatArg> args = {}) {
  if (wrong) findings.push_back({severity, Format(text, args)});
}

/// The numbers of the placeholders "@1" to "@9" of a template.
std::bitset<10> Placeholders(std::string_view text) {
  std::bitset<10> numbers;
  for (std::size_t at = text.find('@'); at != std::string_view::npos; at = text.find('@', at + 1)) {
    if (at + 1 < text.size() && text[at + 1] >= '1' && text[at + 1] <= '9') {
      numbers.set(static_cast<std::size_t>(text[at + 1] - '0'));
    }
  }
  return numbers;
}

/// The character at `at` with its UTF-8 tail.
std::string_view CharacterAt(std::string_view text, std::size_t at) {
  std::size_t end = at + 1;
  while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
  return text.substr(at, end - at);
}

/// Whatever follows an "@" and is no placeholder goes into the statement as it stands.
void AddStrangePlaceholders(TTextFindings& findings, std::string_view sql, bool hasField) {
  for (std::size_t at = sql.find('@'); at != std::string_view::npos; at = sql.find('@', at + 1)) {
    if (at + 1 == sql.size()) {
      AddIf(findings, true, csWarning, "nothing follows the \"@\" at the end");
      continue;
    }
    const char next = sql[at + 1];
    if ((next >= '1' && next <= '9') || (hasField && next == 'f')) continue;
    const TTextFinding finding{csWarning,
                               Format(hasField ? "\"@%s\" is no placeholder: those are \"@f\", \"@1\" and \"@2\""
                                               : "\"@%s\" is no placeholder: those are \"@1\" and \"@2\"",
                                      {CharacterAt(sql, at + 1)})};
    if (std::find(findings.begin(), findings.end(), finding) == findings.end()) findings.push_back(finding);
  }
}

/// Qualified names that the model does not know. An expression with a select may have tables of its own.
void AddUnknownNames(TTextFindings& findings, const TJCustomDBStructure& model, std::string_view expr) {
  if (CXPos("select", expr, 0, true) != std::string_view::npos) return;
  TExprReader reader(expr, model.SQLFormats());
  while (!reader.AtEnd()) {
    const TColumnName name = reader.ReadNames();
    if (name.Names.empty()) {
      reader.Scanner().NextToken();
      continue;
    }
    if (name.Names.size() < 2 || reader.At("(") || reader.At(".")) continue;
    const TDSTable* table = FindTable(model, name);
    const std::string tableText = name.TableText(false);
    const std::string& column = name.Last().Text;
    AddIf(findings, !table, csWarning, "the model has no table \"%s\"", {tableText});
    AddIf(findings, table && !model.FieldByName(fnFullName, table->GetTableName() + "." + column), csWarning,
          "the model has no field for the column \"%s\" of table \"%s\"", {column, tableText});
  }
}

/// Whether one of the parts, other than `self`, has the name.
template <typename TList, typename TPart, typename TNameOf>
bool IsTaken(const TList& parts, const TPart* self, std::string_view name, TNameOf nameOf) {
  return std::any_of(parts.begin(), parts.end(),
                     [&](const TPart& part) { return &part != self && SameText(nameOf(part), name); });
}

bool MentionsTable(const TJCustomDBStructure& model, std::string_view expr) {
  TSimpleDSTableList tables;
  TStrings references;
  model.ExcludeTablesBySQLExpr(expr, tables, references);
  return !tables.Empty();
}

}  // namespace

namespace checks {

void AddTemplate(TTextFindings& findings, std::string_view sql) {
  AddIf(findings, Trim(sql).empty(), csError, "the SQL template is empty");
  const std::bitset<10> numbers = Placeholders(sql);
  const std::size_t values = TemplateParamCount(sql);
  for (std::size_t number = values + 1; number < numbers.size(); ++number) {
    AddIf(findings, numbers[number], csError, "the template has \"@%d\" but no \"@%d\": the value is never filled in",
          {number, values + 1});
  }
  AddIf(findings, values > MaxValues, csError, "the template has %d values; conditions have at most %d",
        {values, MaxValues});
}

void AddOperatorTemplate(TTextFindings& findings, TValueKind kind, std::string_view sql) {
  AddTemplate(findings, sql);
  AddIf(findings, sql.find("@f") == std::string_view::npos, csWarning,
        "the template does not mention the field (\"@f\")");
  AddIf(findings, kind != vkScalar && TemplateParamCount(sql) == 0, csWarning,
        "the template has no place for the %s (\"@1\")", {kind == vkList ? "list" : "sub-query"});
}

void AddEmptyExpr(TTextFindings& findings, TJFieldKind kind, std::string_view expr) {
  AddIf(findings, Trim(expr).empty(), csError, "the %s is empty", {kind == jfkData ? "column name" : "SQL expression"});
}

void AddVirtualExpr(TTextFindings& findings, bool mentionsTable, bool isAggregate, std::string_view expr) {
  AddIf(findings, !mentionsTable, csWarning, "the SQL expression mentions no table of the model");
  const bool calls = TJCustomDBStructure::CheckIfAggregate(expr);
  // A sub-select may well call an aggregate function without the field being one.
  const bool subSelect = CXPos("select", expr, 0, true) != std::string_view::npos;
  AddIf(findings, calls && !subSelect && !isAggregate, csWarning,
        "the SQL expression calls an aggregate function, but the field is not marked as an aggregate: conditions on "
        "it go to WHERE");
  AddIf(findings, !calls && isAggregate, csWarning,
        "the field is marked as an aggregate, but the SQL expression calls no aggregate function");
}

void AddPlaces(TTextFindings& findings, std::string_view displayFormat, std::size_t values) {
  const std::size_t places = CharCount(displayFormat, '@');
  AddIf(findings, places != values, csError, "the display format has %d places (\"@\") for %d values",
        {places, values});
}

void AddConditionTables(TTextFindings& findings, bool mentionsTable) {
  AddIf(findings, !mentionsTable, csWarning,
        "the SQL mentions no table of the model: it brings none into the statement");
}

}  // namespace checks

TTextFindings CheckTableName(std::string_view name) {
  TTextFindings findings;
  AddIf(findings, name.empty(), csError, checks::NoTableName);
  return findings;
}

TTextFindings CheckTableAlias(const TJCustomDBStructure& model, const TDSTable* self, std::string_view alias) {
  TTextFindings findings;
  AddIf(findings, alias.empty(), csError, checks::NoAlias);
  AddIf(findings,
        IsTaken(model.Tables(), self, ReplaceStr(alias, " ", "_"),
                [](const TDSTable& table) -> const std::string& { return table.GetTableAlias(); }),
        csError, checks::SameAlias);
  return findings;
}

TTextFindings CheckFieldDisplayName(const TDSField& self, std::string_view name) {
  TTextFindings findings;
  AddIf(findings, name.empty(), csWarning, checks::NoDisplayName);
  const TDSFieldGroup* group = self.GetGroup();
  const auto nameOf = [](const TDSField& field) -> const std::string& { return field.GetDisplayName(); };
  AddIf(findings,
        group && std::any_of(group->begin(), group->end(),
                             [&](const TDSField* field) { return field != &self && SameText(nameOf(*field), name); }),
        csWarning, checks::SameFieldInGroup);
  return findings;
}

TTextFindings CheckFieldExpr(const TJCustomDBStructure& model, TJFieldKind kind, bool isAggregate,
                             std::string_view expr) {
  TTextFindings findings;
  checks::AddEmptyExpr(findings, kind, expr);
  if (kind == jfkData || !findings.empty()) return findings;
  checks::AddVirtualExpr(findings, MentionsTable(model, expr), isAggregate, expr);
  AddUnknownNames(findings, model, expr);
  return findings;
}

TTextFindings CheckGroupName(const TJCustomDBStructure& model, const TDSFieldGroup* self, std::string_view name) {
  TTextFindings findings;
  AddIf(findings, name.empty(), csWarning, checks::NoName);
  AddIf(findings,
        IsTaken(model.FieldGroups(), self, name,
                [](const TDSFieldGroup& group) -> const std::string& { return group.GetGroupName(); }),
        csWarning, checks::SameGroup);
  return findings;
}

TTextFindings CheckOperatorName(const TJCustomDBStructure& model, const TDSOperator* self, std::string_view name) {
  TTextFindings findings;
  AddIf(findings, name.empty(), csError, checks::NoName);
  AddIf(
      findings,
      IsTaken(model.Operators(), self, name, [](const TDSOperator& op) -> const std::string& { return op.GetName(); }),
      csError, checks::SameOperator);
  return findings;
}

TTextFindings CheckOperatorTemplate(TValueKind kind, std::string_view sql) {
  TTextFindings findings;
  checks::AddOperatorTemplate(findings, kind, sql);
  AddStrangePlaceholders(findings, sql, true);
  return findings;
}

TTextFindings CheckConditionFormat(std::string_view sql, std::string_view displayFormat) {
  TTextFindings findings;
  AddIf(findings, displayFormat.empty(), csWarning, checks::NoDisplayFormat);
  checks::AddPlaces(findings, displayFormat, TemplateParamCount(sql));
  return findings;
}

TTextFindings CheckConditionSQL(const TJCustomDBStructure& model, std::string_view sql) {
  TTextFindings findings;
  checks::AddTemplate(findings, sql);
  if (!findings.empty() && Trim(sql).empty()) return findings;
  checks::AddConditionTables(findings, MentionsTable(model, sql));
  AddStrangePlaceholders(findings, sql, false);
  AddUnknownNames(findings, model, sql);
  return findings;
}

}  // namespace tolvi
