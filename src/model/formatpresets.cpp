#include <algorithm>
#include <iterator>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/formatpresets.h>
#include <tolvi/model/sqlformats.h>

namespace tolvi {
namespace {

/// What differs from the defaults stands behind the syntax.
struct TPreset {
  std::string_view Name, Syntax;
  char Quote1 = '"', Quote2 = '"';
  std::string_view FalseValue = "false", TrueValue = "true";
  bool QuoteBool = false;
  std::string_view FullTableName = "DB.TABLE";
  std::string_view Date = {}, Time = {}, DateTime = {};
  std::string_view LowerFunc = "LOWER";
  char Wildcard = '%';
  bool OuterKeyword = true, AsInFrom = false;
  std::string_view ListFunction = "list(@1)";
};

constexpr TPreset Presets[] = {
    {.Name = "generic", .Syntax = "ssSQL2", .QuoteBool = true, .FullTableName = "DB.OWNER.TABLE"},
    // Has no type for booleans, and compares dates as texts: the ISO form sorts as the dates do.
    {.Name = "sqlite", .Syntax = "ssSQL2", .FalseValue = "0", .TrueValue = "1", .ListFunction = "group_concat(@1)"},
    // Joins nothing across databases: what stands before a table is its schema. An alias that is also a keyword must
    // follow AS. Only texts can be listed.
    {.Name = "postgresql",
     .Syntax = "ssSQL2",
     .AsInFrom = true,
     .ListFunction = "string_agg(cast(@1 as varchar), ', ')"},
    // Takes double quotes for those of texts unless told otherwise. Booleans are small numbers.
    {.Name = "mysql",
     .Syntax = "ssSQL2",
     .Quote1 = '`',
     .Quote2 = '`',
     .FalseValue = "0",
     .TrueValue = "1",
     .ListFunction = "group_concat(@1)"},
    // Booleans are bits and have no words. Dates with dashes are read by the language of the session, those without
    // always the same way. With no owner, "db..table" means the user's own schema.
    {.Name = "sqlserver",
     .Syntax = "ssSQL2",
     .Quote1 = '[',
     .Quote2 = ']',
     .FalseValue = "0",
     .TrueValue = "1",
     .FullTableName = "DB.OWNER.TABLE",
     .Date = "'yyyymmdd'",
     .DateTime = "'yyyymmdd hh:nn:ss'",
     .ListFunction = "string_agg(@1, ', ')"},
    // Booleans are numbers. A plain text is read as a date by the session's settings, so that dates need their keyword;
    // there are no times without a date, but those of such a day compare as times. AS before an alias is an error.
    {.Name = "oracle",
     .Syntax = "ssSQL2",
     .FalseValue = "0",
     .TrueValue = "1",
     .Date = "\"DATE '\"yyyy-mm-dd\"'\"",
     .Time = "\"TO_DATE('\"hh:nn:ss\"', 'HH24:MI:SS')\"",
     .DateTime = "\"TIMESTAMP '\"yyyy-mm-dd hh:nn:ss\"'\"",
     .ListFunction = "listagg(@1, ', ') within group (order by @1)"},
    // Dates stand between number signs, LIKE has wildcards of its own, joins of three tables need brackets (the option
    // for bracketed joins), and OUTER is not written. No function lists values.
    {.Name = "access",
     .Syntax = "ssAccess",
     .Quote1 = '[',
     .Quote2 = ']',
     .FalseValue = "False",
     .TrueValue = "True",
     .Date = "#yyyy-mm-dd#",
     .Time = "#hh:nn:ss#",
     .DateTime = "#yyyy-mm-dd hh:nn:ss#",
     .LowerFunc = "LCase",
     .Wildcard = '*',
     .OuterKeyword = false,
     .AsInFrom = true,
     .ListFunction = ""},
    // What stands before a table is its schema; texts in the ISO form are dates, and booleans are words.
    {.Name = "db2", .Syntax = "ssSQL2", .ListFunction = "listagg(@1, ', ')"},
    // Has neither schemas nor other databases within a statement.
    {.Name = "firebird", .Syntax = "ssSQL2", .FullTableName = "TABLE"},
};

const TPreset& PresetByName(std::string_view name) {
  const auto* found = std::find_if(std::begin(Presets), std::end(Presets),
                                   [name](const TPreset& preset) { return SameText(preset.Name, name); });
  if (found == std::end(Presets)) {
    throw EJDBStructError(0, "No preset of SQL formats is called \"%s\"; there are %s",
                          {name, FormatPresetNames().Joined(", ")});
  }
  return *found;
}

}  // namespace

TStrings FormatPresetNames() {
  TStrings names;
  for (const TPreset& preset : Presets) names.Add(preset.Name);
  return names;
}

void ApplyFormatPreset(TSQLFormats& formats, std::string_view name) {
  const TPreset& preset = PresetByName(name);
  TSQLFormats wanted;
  wanted.SetQuoteSymbol1(preset.Quote1);
  wanted.SetQuoteSymbol2(preset.Quote2);
  wanted.SetFalseValue(preset.FalseValue);
  wanted.SetTrueValue(preset.TrueValue);
  wanted.SetQuoteBool(preset.QuoteBool);
  wanted.SetFullTableName(preset.FullTableName);
  wanted.SetDate(preset.Date);
  wanted.SetTime(preset.Time);
  wanted.SetDateTime(preset.DateTime);
  wanted.SetLowerFunc(preset.LowerFunc);
  wanted.SetWildcardChar(preset.Wildcard);
  wanted.SetUseOuterKeyword(preset.OuterKeyword);
  wanted.SetUseAsInFrom(preset.AsInFrom);
  wanted.SetListFunction(preset.ListFunction);
  formats = wanted;
}

std::string_view FormatPresetSyntax(std::string_view name) { return PresetByName(name).Syntax; }

}  // namespace tolvi
