#include <string>

#include <gtest/gtest.h>

#include <tolvi/foundation/datetime.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/formatpresets.h>

namespace tolvi {
namespace {

std::string Described(const TSQLFormats& formats) {
  constexpr TDateTime Noon = 36525.5;
  std::string text;
  formats.AppendQuoted(text, "a");
  for (const std::string& part : {formats.GetFalseValue(), formats.GetTrueValue(), formats.GetFullTableName(),
                                  formats.GetLowerFunc(), std::string(1, formats.GetWildcardChar())}) {
    text += " " + part;
  }
  if (formats.GetQuoteBool()) text += " bool";
  if (formats.GetQuoteDate()) text += " date";
  if (formats.GetUseOuterKeyword()) text += " outer";
  if (formats.GetUseAsInFrom()) text += " as";
  text += " " + formats.GetListFunction();
  for (const std::string& pattern : {formats.GetDate(), formats.GetTime(), formats.GetDateTime()}) {
    text += "|" + FormatDateTime(pattern, Noon);
  }
  return text;
}

TEST(FormatPresets, SetWhatEachEngineWants) {
  struct TCase {
    std::string name, syntax, formats;
  };
  const TCase cases[] = {
      {"generic", "ssSQL2", "\"a\" false true DB.OWNER.TABLE LOWER % bool date outer list(@1)|||"},
      {"sqlite", "ssSQL2", "\"a\" 0 1 DB.TABLE LOWER % date outer group_concat(@1)|||"},
      {"postgresql", "ssSQL2",
       "\"a\" false true DB.TABLE LOWER % date outer as string_agg(cast(@1 as varchar), ', ')|||"},
      {"mysql", "ssSQL2", "`a` 0 1 DB.TABLE LOWER % date outer group_concat(@1)|||"},
      // A pattern that is one quoted part is a literal as a whole; the builder writes the date into it.
      {"sqlserver", "ssSQL2",
       "[a] 0 1 DB.OWNER.TABLE LOWER % date outer string_agg(@1, ', ')|yyyymmdd||yyyymmdd hh:nn:ss"},
      {"oracle", "ssSQL2",
       "\"a\" 0 1 DB.TABLE LOWER % date outer listagg(@1, ', ') within group (order by @1)|DATE "
       "'1999-12-31'|TO_DATE('12:00:00', 'HH24:MI:SS')|"
       "TIMESTAMP '1999-12-31 12:00:00'"},
      {"access", "ssAccess", "[a] False True DB.TABLE LCase * date as |#1999-12-31#|#12:00:00#|#1999-12-31 12:00:00#"},
      {"db2", "ssSQL2", "\"a\" false true DB.TABLE LOWER % date outer listagg(@1, ', ')|||"},
      {"firebird", "ssSQL2", "\"a\" false true TABLE LOWER % date outer list(@1)|||"},
  };
  std::string names;
  TSQLFormats formats;
  for (const TCase& test : cases) {
    ApplyFormatPreset(formats, test.name);
    EXPECT_EQ(Described(formats), test.formats) << test.name;
    EXPECT_EQ(FormatPresetSyntax(test.name), test.syntax) << test.name;
    names += test.name + "\r\n";
  }
  EXPECT_EQ(FormatPresetNames().GetText(), names);
}

TEST(FormatPresets, AreOneChangeOfTheModelAndLeaveNothingOfTheFormerOne) {
  TJDBStructure model;
  int changes = 0;
  model.OnChange = [&changes](TJCustomDBStructure&) { ++changes; };
  for (const char* const name : {"Access", "ACCESS", "generic", "Generic"}) ApplyFormatPreset(model.SQLFormats(), name);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(model.SQLFormats(), TSQLFormats());
}

TEST(FormatPresets, ListTheKnownNamesForAnUnknownOne) {
  constexpr const char* Message =
      "No preset of SQL formats is called \"dbase\"; there are generic, sqlite, postgresql, mysql, sqlserver, oracle, "
      "access, db2, firebird";
  TSQLFormats formats;
  const auto messageOf = [](const auto& call) {
    try {
      call();
    } catch (const EJDBStructError& error) {
      return error.Message();
    }
    return std::string();
  };
  EXPECT_EQ(messageOf([&] { ApplyFormatPreset(formats, "dbase"); }), Message);
  EXPECT_EQ(messageOf([] { FormatPresetSyntax("dbase"); }), Message);
}

}  // namespace
}  // namespace tolvi
