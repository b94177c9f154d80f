// Columns as text: expressions for people and for import, and the sections of a query text.
#include <algorithm>
#include <limits>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/exprnames.h>
#include <tolvi/query/resultfields.h>
#include <tolvi/query/resultformula.h>

namespace tolvi {
namespace {

constexpr std::string_view ListSection = "RFields", FieldSection = "RField";
constexpr std::string_view CountKey = "Count", VersionKey = "Version", JustSortingKey = "JustSorting";
constexpr std::string_view FormulaKey = "Formula", FieldsKey = "Fields", AliasKey = "Alias", OldAliasKey = "Name",
                           CaptionKey = "Caption", SortingKey = "Sorting", SortOrderKey = "SortOrder",
                           HiddenKey = "Hidden";

// Version of columns that do not tell it and belong to no query text, and those since which a text holds something.
constexpr double UnnumberedVersion = 1.7;
constexpr double AliasesSince = 1.4, FullNamesSince = 1.4, FieldIDsSince = 2.0;

// More placeholders cannot be told apart: "@10" holds "@1".
constexpr std::size_t MaxFields = 9;

TDSField* FindByReference(const TJCustomDBStructure* model, std::string_view name) {
  if (model == nullptr) return nullptr;
  for (const TFieldNameKind kind : {fnFullName, fnDisplayName, fnSQLExpr}) {
    if (TDSField* field = model->FieldByName(kind, name)) return field;
  }
  return nullptr;
}

TDSField* FindColumn(const TJCustomDBStructure& model, const TColumnName& name) {
  const TDSTable* table = FindTable(model, name);
  if (table == nullptr) return nullptr;
  const auto fits = [table, &name](const TDSField& field) {
    return field.GetFieldKind() == jfkData && field.GetTable() == table &&
           SameText(field.GetFieldName(), name.Last().Text);
  };
  TDSField* field = model.FieldByName(fnSQLExpr, table->GetWhereExpr() + "." + name.Last().Text);
  if (field != nullptr && fits(*field)) return field;
  for (TDSField& other : model.Fields()) {
    if (fits(other)) return &other;
  }
  return nullptr;
}

// Splits at commas outside double quotes: names with blanks were written without quotes, too.
std::vector<std::string> SplitNames(std::string_view text) {
  std::vector<std::string> names;
  if (Trim(text).empty()) return names;
  std::size_t start = 0;
  bool inQuotes = false;
  for (std::size_t pos = 0; pos <= text.size(); ++pos) {
    if (pos < text.size() && text[pos] == '"') inQuotes = !inQuotes;
    if (pos < text.size() && (text[pos] != ',' || inQuotes)) continue;
    names.push_back(UnquotedString(Trim(text.substr(start, pos - start)), '"'));
    start = pos + 1;
  }
  return names;
}

double ReadVersion(const TSection& section, double byDefault) {
  const std::string_view text = Trim(section.Find(VersionKey).value_or(std::string_view()));
  if (text.empty()) return byDefault;
  if (const std::optional<double> version = TryStrToFloat(text)) return *version;
  throw EConvertError("%s: '%s' is not a valid floating point value", {section.Where(VersionKey), text});
}

int ReadInt(const TSection& section, std::string_view key, int from, int to) {
  const std::int64_t value = section.Integer(key, 0);
  if (value >= from && value <= to) return static_cast<int>(value);
  throw EConvertError("%s: %d is not in the range of %d to %d", {section.Where(key), value, from, to});
}

bool IsColumnHeader(std::string_view name) {
  if (SameText(name, ListSection)) return true;
  return AsciiSameText(name.substr(0, FieldSection.size()), FieldSection) &&
         name.find_first_not_of("0123456789", FieldSection.size()) == std::string_view::npos;
}

}  // namespace

TDSField* FindStoredField(const TJCustomDBStructure& model, std::string_view text, double version) {
  if (version >= FieldIDsSince) {
    if (const std::optional<std::int64_t> id = TryStrToInt(text)) {
      const bool fits =
          *id >= std::numeric_limits<std::int32_t>::min() && *id <= std::numeric_limits<std::int32_t>::max();
      return fits ? model.FieldByID(static_cast<std::int32_t>(*id)) : nullptr;
    }
  }
  return FindNamedField(model, text, version);
}

TDSField* FindNamedField(const TJCustomDBStructure& model, std::string_view name, double version) {
  const bool fullFirst = version >= FullNamesSince;
  TDSField* field = model.FieldByName(fullFirst ? fnFullName : fnFieldExpr, name);
  return field != nullptr ? field : model.FieldByName(fullFirst ? fnFieldExpr : fnFullName, name);
}

// Expressions

std::string TResultField::TContent::PlaceholderOf(TDSField& field, std::string_view missing) {
  for (std::size_t i = 0; i < Fields.size(); ++i) {
    if (Fields[i] == &field && Missing[i] == missing) return "@" + std::to_string(i + 1);
  }
  if (Fields.size() == MaxFields) throw EJQueryPanelError(0, "An expression can refer to 9 fields at most");
  Fields.push_back(&field);
  Missing.emplace_back(missing);
  return "@" + std::to_string(Fields.size());
}

void TResultField::Take(TContent content) {
  FFormula = std::move(content.Formula);
  FDSFields = std::move(content.Fields);
  FMissing = std::move(content.Missing);
}

void TResultField::AppendReference(std::string& out, std::size_t index) const {
  std::string name = FMissing[index];
  if (TDSField* field = FDSFields[index]; name.empty()) {
    name = field->GetFullName();
    for (const std::string& other : {field->GetDisplayName(), field->GetSQLExpr()}) {
      if (FindByReference(GetModel(), name) == field) break;
      if (FindByReference(GetModel(), other) == field) name = other;
    }
  }
  // A name that begins with a brace is kept apart by a blank: "{{" is a brace that is none of a name.
  out += name.starts_with('{') ? "{ " : "{";
  for (const char c : name) out.append(c == '}' ? 2 : 1, c);
  out += '}';
}

std::string TResultField::GetExpression() const {
  std::string expression;
  ForEachPlaceholder(
      FFormula, std::min(CharCount(FFormula, '@'), FDSFields.size()),
      [&expression](std::string_view text) {
        // Nor may a brace that is none of a name follow one at once.
        if (text.starts_with('}') && expression.ends_with('}')) expression += ' ';
        for (const char c : text) expression.append(c == '{' ? 2 : 1, c);
      },
      [this, &expression](std::size_t index) { AppendReference(expression, index); });
  return expression;
}

TResultField::TContent TResultField::ParseExpression(const TJCustomDBStructure* model,
                                                     std::string_view expression) const {
  TContent content;
  for (std::size_t pos = 0; pos < expression.size(); ++pos) {
    if (expression[pos] != '{') {
      // It would be taken for a placeholder, inside quotes, too.
      const char next = pos + 1 < expression.size() ? expression[pos + 1] : '\0';
      if (expression[pos] == '@' && next >= '1' && next <= '9') {
        throw EJQueryPanelError(0, "The expression \"%s\" has \"@%s\" in column %d: fields are written in braces",
                                {expression, std::string(1, next), pos + 1});
      }
      content.Formula += expression[pos];
      continue;
    }
    const std::size_t open = pos++;
    if (pos < expression.size() && expression[pos] == '{') {
      content.Formula += '{';
      continue;
    }
    std::string name;
    for (;; ++pos) {
      if (pos >= expression.size()) {
        throw EJQueryPanelError(0, "The expression \"%s\" has no \"}\" for the \"{\" in column %d",
                                {expression, open + 1});
      }
      if (expression[pos] == '}' && (++pos >= expression.size() || expression[pos] != '}')) break;
      name += expression[pos];
    }
    --pos;
    name = Trim(name);
    TDSField* field = FindByReference(model, name);
    const auto known = std::find(FMissing.begin(), FMissing.end(), name);
    if (field != nullptr) {
      content.Formula += content.PlaceholderOf(*field, {});
    } else if (!name.empty() && known != FMissing.end()) {
      content.Formula += content.PlaceholderOf(*FDSFields[static_cast<std::size_t>(known - FMissing.begin())], name);
    } else {
      throw EJQueryPanelError(0, SUnrecognizedFieldName, {name});
    }
  }
  return content;
}

TResultField::TContent TResultField::ParseSQLExpr(const TJCustomDBStructure* model, std::string_view sqlExpr) {
  TContent content;
  if (TDSField* field = model != nullptr ? model->FieldByName(fnSQLExpr, Trim(sqlExpr)) : nullptr) {
    content.Formula = content.PlaceholderOf(*field, {});
    return content;
  }
  if (model == nullptr) {
    content.Formula = sqlExpr;
    return content;
  }
  TExprReader reader(sqlExpr, model->SQLFormats());
  const std::string_view source = reader.Scanner().GetSource();
  std::size_t done = 0;
  while (!reader.AtEnd()) {
    const std::size_t start = reader.Scanner().GetTokPos();
    const TColumnName name = reader.ReadNames();
    if (name.Names.empty()) reader.Scanner().NextToken();
    if (name.Names.size() < 2 || reader.At("(")) continue;
    TDSField* field = FindColumn(*model, name);
    if (field == nullptr) continue;
    content.Formula.append(source.substr(done, start - done)).append(content.PlaceholderOf(*field, {}));
    const std::string_view last = name.Last().Written;
    done = static_cast<std::size_t>(last.data() - source.data()) + last.size();
  }
  content.Formula += source.substr(done);
  return content;
}

void TResultField::ProcessExpression(std::string_view expression) {
  Take(ParseExpression(GetModel(), expression));
  Changed();
}

void TResultField::ProcessSQLExpr(std::string_view sqlExpr) {
  Take(ParseSQLExpr(GetModel(), sqlExpr));
  Changed();
}

// Query text

std::string TResultField::FieldsText() const {
  std::string text;
  for (std::size_t i = 0; i < FDSFields.size(); ++i) {
    if (i > 0) text += ',';
    text += FMissing[i].empty() ? std::to_string(FDSFields[i]->GetID()) : ComposeCommaText({FMissing[i]});
  }
  return text;
}

void TRFieldList::Write(TSectionWriter& writer) const {
  writer.Header(ListSection);
  writer.Key(CountKey, static_cast<std::int64_t>(Count()));
  writer.Key(VersionKey, XFloatToStr(CurrentQueryVersion));
  writer.Key(JustSortingKey, std::int64_t{FJustSorting});
  writer.Line({});
  std::size_t number = 0;
  for (const TResultField& field : FItems) {
    writer.Header(std::string(FieldSection) + std::to_string(++number));
    writer.Key(FormulaKey, field.FFormula);
    writer.Key(FieldsKey, field.FieldsText());
    writer.Key(AliasKey, field.FAlias);
    writer.Key(CaptionKey, field.FCaption);
    writer.Key(SortingKey, std::int64_t{field.FSorting});
    writer.Key(SortOrderKey, std::int64_t{field.FSortOrder});
    if (field.FHidden) writer.Key(HiddenKey, std::int64_t{field.FHidden});
    writer.Line({});
  }
}

std::unique_ptr<TResultField> TRFieldList::ReadField(const TSection& section, double version,
                                                     const TMissingHandler& missing) const {
  std::unique_ptr<TResultField> field = CreateRField();
  field->FFormula = section.Value(FormulaKey);
  const std::string fields = section.Value(FieldsKey);
  for (std::string& text : version >= FieldIDsSince ? SplitCommaText(fields) : SplitNames(fields)) {
    TDSField* found = FDBStruct != nullptr ? FindStoredField(*FDBStruct, text, version) : nullptr;
    if (found == nullptr && missing) missing(section.Name(), Format(SUnrecognizedFieldName, {text}));
    // The list puts its placeholder in the place of an unknown field. An old name that is a number would be an ID.
    field->FDSFields.push_back(found);
    const bool noName = text.empty() || (version < FieldIDsSince && TryStrToInt(text));
    field->FMissing.push_back(found != nullptr ? std::string() : noName ? "0" : std::move(text));
  }
  field->FAlias = section.Value(version >= AliasesSince ? AliasKey : OldAliasKey);
  field->FCaption = section.Value(CaptionKey);
  field->FSorting = static_cast<TSortingType>(ReadInt(section, SortingKey, stNoSort, stDescending));
  field->FSortOrder = ReadInt(section, SortOrderKey, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  field->FHidden = section.Boolean(HiddenKey, false);
  return field;
}

void TRFieldList::Read(TSectionedText& text, double panelVersion, const TMissingHandler& missing) {
  std::vector<std::unique_ptr<TResultField>> fields;
  bool justSorting = false;
  std::size_t count = 0;
  if (const std::optional<TSection> list = text.First(ListSection)) {
    count = static_cast<std::size_t>(ReadInt(*list, CountKey, 0, std::numeric_limits<int>::max()));
    const double version = ReadVersion(*list, panelVersion);
    justSorting = list->Boolean(JustSortingKey, false);
    // Not more sections are looked for than the text has.
    const std::size_t present = std::min(count, text.Names().size());
    for (std::size_t number = 1; number <= present; ++number) {
      const std::string name = std::string(FieldSection) + std::to_string(number);
      if (const std::optional<TSection> section = text.First(name)) {
        fields.push_back(ReadField(*section, version, missing));
      } else if (missing) {
        missing(ListSection, Format(SDBSECantFindSection, {name}));
      }
    }
  }
  if (const std::string next = std::string(FieldSection) + std::to_string(count + 1); missing && text.First(next)) {
    missing(ListSection, Format("Section %s lies beyond the count and was not read", {next}));
  }
  FJustSorting = justSorting;
  Replace(std::move(fields));
  RFieldChanged();
}

void TRFieldList::SaveToStrings(TStrings& lines) const {
  TSectionWriter writer(IsColumnHeader);
  Write(writer);
  lines.SetText(writer.Text());
}

void TRFieldList::LoadFromStrings(const TStrings& lines) {
  const std::string text = lines.GetText();
  TSectionedText sections(text, IsColumnHeader);
  Read(sections, UnnumberedVersion);
}

}  // namespace tolvi
