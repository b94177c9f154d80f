// Whatever a value holds, the statement has the structure that it has with a harmless value, or an error names the
// field. To repeat a run: TOLVI_TEST_SEED=number.

#include <cstdlib>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/sqlimport/scanner.h>

namespace tolvi {
namespace {

using namespace std::string_view_literals;

/// Nasty texts, one after each bar.
constexpr std::string_view Nasty =
    "|'|''|'''|' or '1'='1|'; drop table T; --|x' /*|*/ or 1=1 --|--|\\|\\'|\"|\" or \"|`|]|;|%|_%'|@1|@2|@f|@v|:Param1"
    "|?|$1|{T.F}|\r\n--|\n|1 or 1=1|1; x|1,5|-1|--1|0x41|1e5|1e999|nan|true or 1|2020-13-45|2020-01-01' or '1|#1#|"
    "TO_DATE('x')| |,|\t'|a\0'|\0|\xC3|\xFF'|\xC0\xA7|\xCA\xBC or 1|\xEF\xBC\x87"sv;
constexpr TSQLSyntax Syntaxes[] = {ssSQL1, ssSQL2, ssOracle, ssAccess, ssNexusDB};

unsigned Seed() {
  static const unsigned seed = [] {
    const char* given = std::getenv("TOLVI_TEST_SEED");
    return given != nullptr ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : std::random_device()();
  }();
  return seed;
}

/// The nasty texts, long ones, and random strings of them.
std::vector<std::string> HostileTexts(std::size_t randomCount) {
  std::vector<std::string> texts;
  for (std::string_view rest = Nasty; !rest.empty();) {
    rest.remove_prefix(1);
    const std::string_view text = rest.substr(0, rest.find('|'));
    texts.emplace_back(text);
    rest.remove_prefix(text.size());
  }
  const std::size_t nastyCount = texts.size();
  texts.insert(texts.end(), {"", std::string(3000, '\''), std::string(400, '9')});
  std::mt19937 random(Seed());
  while (randomCount-- > 0) {
    std::string text;
    for (std::size_t pieces = random() % 6 + 1; pieces > 0; --pieces) text += texts[random() % nastyCount];
    texts.push_back(text + static_cast<char>(random() % 256));
  }
  return texts;
}

/// The kinds and texts of the tokens, without the texts of literals; a minus sign before a number is part of it, and a
/// name in double quotes is one token. The literals' texts go to `literals`.
std::string Structure(std::string_view sql, std::vector<std::string>* literals = nullptr) {
  TJScanner scanner;
  scanner.SetSkipComments(false);
  scanner.SetSource(sql);
  std::string result;
  for (scanner.FirstToken(); !scanner.EOS(); scanner.NextToken()) {
    const TTokenType type = scanner.GetTokType(), next = scanner.GetToken(1).Type;
    if (type == ttDelimiter && scanner.GetRealStr() == "-" && (next == ttInteger || next == ttReal)) continue;
    if (scanner.Unterminated()) result += "unterminated ";
    if (type == ttString) {
      result += "text ";
      if (literals != nullptr) literals->push_back(UnquotedString(scanner.GetRealStr()));
    } else if (type == ttInteger || type == ttReal) {
      result += "number ";
    } else if (scanner.GetRealStr() == "\"") {
      std::size_t end = sql.find('"', scanner.GetTokEnd());
      while (sql.substr(end + 1, 1) == "\"") end = sql.find('"', end + 2);
      while (scanner.GetTokEnd() <= end && !scanner.EOS()) scanner.NextToken();
      result += scanner.GetTokPos() == end ? "name " : "broken name ";
    } else {
      result += std::to_string(type) + ':' + std::string(scanner.GetRealStr()) + ' ';
    }
  }
  return result;
}

/// What a value should be in the statement: the parts of the template in quotes that hold one, with the value.
std::vector<std::string> ExpectedTexts(const TDSOperator& op, const std::string& value) {
  std::vector<std::string> parts;
  if (op.GetValueKind() == vkList) return {value, value};
  Structure(op.GetSQLExpr(), &parts);
  for (std::string& part : parts) part.replace(part.find('@'), 2, value);
  return parts;
}

class Injection : public testing::Test {
 protected:
  Injection() {
    model.AddTable("T", "T");
    for (int type = 0; type < FieldTypeCount; ++type) {
      const std::string name(FldTypeToStr(static_cast<TFieldType>(type)));
      TDSField& field = model.GetField(model.AddField(jfkData, name, name, model.TableByName(tnName, "T")));
      field.SetFieldType(static_cast<TFieldType>(type));
    }
    model.GetOperator(model.AddOperator("Same", "is", "@f = '@1'", "", {})).SetCaseInsensative(true);
    panel.SetDBStruct(&model);
    panel.SetActive(true);
    panel.RFields().Add(model.GetField(ftString));
  }

  /// The statement; nothing when an error names the field.
  std::optional<std::string> Statement(const TDSField& field, TBoundStatement* bound = nullptr) {
    try {
      if (bound == nullptr) return panel.GetQueryText();
      *bound = panel.GetBoundStatement(msColonName);
      return bound->SQL;
    } catch (const EJQueryPanelError& error) {
      EXPECT_TRUE(error.Message().starts_with("Field \"" + field.GetDisplayName() + "\": \"")) << error.Message();
      EXPECT_TRUE(IsValidUtf8(error.Message()) && error.Message().size() < 400) << error.Message();
      return std::nullopt;
    }
  }

  static void SetValues(TSimpleCond& condition, const std::string& value) {
    const bool isList = condition.GetDSOperator().GetValueKind() == vkList;
    for (const int index : {1, 2}) condition.SetValue(index, isList ? ComposeCommaText({value, value}) : value);
  }

  /// The structure of the statement and the bound statement; nothing for an error.
  struct TShape {
    std::optional<std::string> plain, bound;
    bool operator==(const TShape&) const = default;
  };

  TShape ShapeWith(TSimpleCond& condition, const std::string& value, std::vector<std::string>& literals,
                   TBoundStatement& bound) {
    SetValues(condition, value);
    TShape shape{Statement(condition.GetField()), Statement(condition.GetField(), &bound)};
    if (shape.plain) shape.plain = Structure(*shape.plain, &literals);
    return shape;
  }

  /// Whether the condition with the value keeps the shape and, if it is one on text, the very value.
  bool IsSafe(TSimpleCond& condition, const TShape& expected, const std::string& value) {
    std::vector<std::string> literals, values;
    TBoundStatement bound;
    const TShape shape = ShapeWith(condition, value, literals, bound);
    const TFieldType type = condition.GetField().GetFieldType();
    if ((IntegerFieldTypes + FloatFieldTypes + DateFieldTypes + TFieldTypes{ftBoolean}).Contains(type)) {
      return shape == expected || shape == TShape{};
    }
    if (!IsValidUtf8(value) || value.find('\0') != std::string::npos) {
      return shape == (condition.GetValueCount() > 0 ? TShape{} : expected);
    }
    for (const TBoundValue& item : bound.Values) values.push_back(item.Text);
    return shape == expected && literals == ExpectedTexts(condition.GetDSOperator(), value) && values == literals;
  }

  /// The shortest text that is still unsafe after leaving out bytes.
  template <typename TSafe>
  static std::string Shrunk(std::string text, TSafe isSafe) {
    for (std::size_t pos = 0; text.size() < 200 && pos < text.size();) {
      std::string shorter = text;
      shorter.erase(pos, 1);
      isSafe(shorter) ? ++pos : (text = shorter, pos = 0);
    }
    return text;
  }

  TJDBStructure model;
  TJQueryPanel panel;
};

TEST_F(Injection, NoValueChangesTheStructureOfAStatement) {
  const std::vector<std::string> texts = HostileTexts(20);
  for (int type = 0; type < FieldTypeCount; ++type) {
    TDSField& field = model.GetField(static_cast<std::size_t>(type));
    for (TDSOperator& op : model.Operators()) {
      panel.RootBracket().ClearRows();
      TSimpleCond& condition = panel.AddSimpleCond(panel.RootBracket(), field, op, "");
      for (const TSQLSyntax syntax : Syntaxes) {
        panel.SetSQLSyntax(syntax);
        std::vector<std::string> literals;
        TBoundStatement bound;
        const TShape expected = ShapeWith(condition, type == ftBoolean ? "True" : "5", literals, bound);
        EXPECT_TRUE(expected.plain || DateFieldTypes.Contains(field.GetFieldType()));
        for (const std::string& text : texts) {
          const auto isSafe = [&](const std::string& value) { return IsSafe(condition, expected, value); };
          if (isSafe(text)) continue;
          const std::string shrunk = Shrunk(text, isSafe);
          SetValues(condition, shrunk);
          FAIL() << "seed " << Seed() << ", " << field.GetDisplayName() << " " << op.GetName() << ", syntax " << syntax
                 << ", value " << testing::PrintToString(shrunk) << ": " << panel.GetQueryText();
        }
      }
    }
  }
}

TEST_F(Injection, NeitherTheFormatNorTheValueOfAParameterReachesTheSQL) {
  TSimpleCond& condition =
      panel.AddSimpleCond(panel.RootBracket(), model.GetField(ftString), *model.OperatorByName("Contains"), "");
  condition.SetValueIsParam(1, true);
  const std::string sql = panel.GetQueryText(), boundSql = panel.GetBoundStatement(msColonName).SQL;
  for (const std::string& text : HostileTexts(50)) {
    condition.SetValue(1, text);
    condition.GetParam(1)->SetValueFormat(text + "@v" + text);
    EXPECT_EQ(panel.GetQueryText(), sql);
    TBoundStatement bound;
    if (!Statement(condition.GetField(), &bound)) continue;
    EXPECT_EQ(bound.SQL, boundSql);
    if (!text.empty() && text.find("@v") == std::string::npos) {
      EXPECT_EQ(bound.Values.at(0).Text, text + text + text);
    }
  }
}

TEST_F(Injection, CaptionsBecomeOneNameEach) {
  const auto structure = [&](std::string_view caption) {
    panel.RFields()[0].SetCaption(caption);
    std::string result = Structure(panel.GetQueryText());
    const std::size_t start = result.find("as ") + 3;
    return result.replace(start, result.find(' ', start) - start, "NAME");
  };
  for (const TSQLOptions options : {TSQLOptions{}, TSQLOptions{soQuoteAliases}, TSQLOptions{soASCIIRFields},
                                    TSQLOptions{soQuoteAliases, soASCIIRFields}}) {
    panel.SetSQLOptions(options);
    const std::string expected = structure("Total");
    for (const std::string& text : HostileTexts(50)) {
      if (text.empty()) continue;
      EXPECT_EQ(structure(text), expected) << "seed " << Seed() << ": " << testing::PrintToString(text.substr(0, 60));
    }
  }
}

}  // namespace
}  // namespace tolvi
