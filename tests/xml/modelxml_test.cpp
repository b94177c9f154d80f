#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "support/random_models.h"
#include <tolvi/foundation/files.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/xml/modelxml.h>

namespace tolvi {
namespace {

const std::filesystem::path Source = TOLVI_SOURCE_DIR;

/// Texts that something on the way might spoil: markup, line breaks, blanks at the ends, control characters and bytes
/// that are no UTF-8, what reads like an escape, characters outside the first plane.
std::string OddText(TRandom& random) {
  using namespace std::string_literals;
  static const std::string Parts[] = {"<a b='c'>",    "&amp;", "]]>",      "\"",   " ",    "\r\n",     "\n",
                                      "\r",           "\t",    "\x01",     "\0"s,  "\xFF", "\xC3",     "\xEF\xBF\xBF",
                                      "\xED\xA0\x80", "_x0A_", "_x_x41__", "Łódź", "\\n,", "\xC2\x85", "=",
                                      "\U0001F600",   "@ :p",  "plain"};
  std::string text;
  for (std::size_t count = random.Below(5); count > 0; --count) text += random.Of(Parts);
  return text;
}

TStrings OddLines(TRandom& random) {
  TStrings lines;
  for (std::size_t count = random.Below(4); count > 0; --count) lines.Add(OddText(random));
  return lines;
}

std::unique_ptr<TDSValueEditor> OddEditor(TRandom& random, TDSEditType type, TJDBStructure& model) {
  std::unique_ptr<TDSValueEditor> editor = CreateValueEditor(type, &model);
  if (auto* text = dynamic_cast<TDSTextEditor*>(editor.get())) {
    text->SetDefaultValue(OddText(random));
    text->SetEditMask(OddText(random));
    text->SetKind(static_cast<TTextEditorKind>(random.Below(tekTime + 1)));
    text->SetValueType(ftDate);
    text->SetUseFormattedValue(random.Chance(50));
    text->SetOptions(static_cast<int>(random.Below(5)));
  } else if (auto* sql = dynamic_cast<TDSSQLEditor*>(editor.get())) {
    sql->SetSQL(OddLines(random));
    sql->SetSQLParams(OddLines(random));
  } else if (auto* list = dynamic_cast<TDSListEditor*>(editor.get())) {
    list->Items() = OddLines(random);
    list->Values() = OddLines(random);
  } else if (auto* custom = dynamic_cast<TDSCustomEditor*>(editor.get())) {
    custom->Data() = OddLines(random);
  }
  return editor;
}

void MakeFieldOdd(TRandom& random, TDSField& field, TJDBStructure& model) {
  if (random.Chance(50)) field.SetDisplayName(OddText(random));
  field.SetUseInResult(random.Chance(50));
  field.SetUseInConditions(random.Chance(50));
  field.SetFieldSize(static_cast<int>(random.Below(3)));
  const auto type = static_cast<TDSEditType>(random.Below(etSQL + 1));
  field.SetEditType(type);
  if (type == etAuto) return;
  // The field's own editor is filled, as a field takes none from outside.
  const std::unique_ptr<TDSValueEditor> odd = OddEditor(random, type, model);
  TDSValueEditor* const own = field.GetValueEditor();
  if (type == etEdit) static_cast<TDSTextEditor&>(*own) = static_cast<TDSTextEditor&>(*odd);
  if (type == etList) static_cast<TDSListEditor&>(*own) = static_cast<TDSListEditor&>(*odd);
  if (type == etCustom) static_cast<TDSCustomEditor&>(*own) = static_cast<TDSCustomEditor&>(*odd);
  if (type == etSQL) static_cast<TDSSQLEditor&>(*own) = static_cast<TDSSQLEditor&>(*odd);
}

/// Fills what a random model leaves at its defaults, and mixes the order of fields and groups.
void MakeOdd(TRandom& random, TJDBStructure& model) {
  model.SetRootFieldsFirst(random.Chance(50));
  if (random.Chance(30)) model.SQLFormats().SetDate(OddText(random));
  if (random.Chance(30)) model.SQLFormats().SetQuoteSymbol1(random.Chance(50) ? '\0' : '\x7F');
  if (random.Chance(30)) model.DMOptions().SetDefaultDBOwner(OddText(random));
  for (std::size_t i = 0; i < model.GetTableCount(); ++i) {
    TDSTable& table = model.GetTable(i);
    table.SetTableHints(OddText(random));
    table.SetDatabaseName(OddText(random));
    if (random.Chance(50)) table.SetDisplayName(OddText(random));
    table.SetDesignPositions({static_cast<int>(random.Below(3)), -5, 0, 100});
  }
  for (TDSLink& link : model.Links()) {
    if (random.Chance(30)) link.SetFields2(OddLines(random));
    if (random.Chance(30)) link.SetOperators({"<=", ">="});
    if (random.Chance(30)) link.SetLinkType(ltOuterFull);
  }
  for (const TDSOperator& op : model.Operators()) {
    if (random.Chance(30)) const_cast<TDSOperator&>(op).SetValFormat(OddText(random));
    if (random.Chance(30)) const_cast<TDSOperator&>(op).SetDisplayName(OddText(random));
  }
  const std::size_t groups = random.Below(4);
  for (std::size_t i = 0; i < groups; ++i) model.FieldGroups().AddGroup(OddText(random));
  for (TDSField& field : model.Fields()) {
    MakeFieldOdd(random, field, model);
    if (groups > 0 && random.Chance(60)) {
      TDSFieldGroup& group = model.FieldGroups()[random.Below(groups)];
      group.Insert(random.Chance(50) ? 0 : group.Count(), field);
    }
  }
  for (TDSCondition& condition : model.Conditions()) {
    if (random.Chance(50)) condition.Values().Add(std::make_unique<TDSValue>());
    for (TDSValue& value : condition.Values()) {
      value.SetDataKind(static_cast<TValueKind>(random.Below(vkSubQuery + 1)));
      if (random.Chance(20)) {
        auto query = std::make_unique<TDSSubQueryEditor>();
        query->QueryData() = OddLines(random);
        value.SetValueEditor(std::move(query));
      } else {
        value.SetValueEditor(OddEditor(random, static_cast<TDSEditType>(random.Below(etSQL + 1)), model));
      }
    }
  }
}

std::string TextOfXml(std::string_view xml) {
  TJDBStructure model;
  LoadModelFromXml(model, xml);
  return WriteModelText(model);
}

/// A document with this between the tags of its root.
std::string Document(std::string_view content) {
  return "<DataModel formatVersion=\"1\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
         "xsi:noNamespaceSchemaLocation=\"tolvi-model.xsd\">\n" +
         std::string(content) + "\n</DataModel>\n";
}

std::string ErrorOf(std::string_view xml) {
  TJDBStructure model;
  try {
    LoadModelFromXml(model, xml);
  } catch (const EModelXmlError& error) {
    return error.Message();
  }
  return "no error";
}

TEST(ModelXml, HoldsAllThatTheTextHolds) {
  for (unsigned seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE(seed);
    TRandom random(seed);
    const std::unique_ptr<TJDBStructure> model = TModelMaker(random).Make();
    MakeOdd(random, *model);
    const std::string xml = ModelToXml(*model);
    ASSERT_EQ(TextOfXml(xml), WriteModelText(*model)) << xml;

    // Through the text and back: what a text makes of the model is kept, too.
    TJDBStructure ofText, ofXml;
    ofText.SetStructString(WriteModelText(*model));
    LoadModelFromAnyText(ofXml, ModelToXml(ofText));
    ASSERT_EQ(ofXml.GetStructString(), ofText.GetStructString());
    ASSERT_EQ(ModelToXml(ofXml), ModelToXml(ofText));
  }
}

TEST(ModelXml, HoldsTheSampleModel) {
  const std::string text = ReadFile(Source / "samples/shop/shop.model");
  TJDBStructure model;
  LoadModelFromAnyText(model, text);
  const std::string xml = ModelToXml(model);
  EXPECT_TRUE(IsModelXml(xml));
  EXPECT_FALSE(IsModelXml(text));
  EXPECT_EQ(TextOfXml(xml), WriteModelText(model));
}

/// The blocks of a page of the documentation that begin so, one after the other.
std::string BlocksOf(const std::string& page, std::string_view beginning) {
  const std::string text = "\n" + ReadFile(Source / "docs" / page), fence = "\n```\n";
  std::string blocks;
  for (std::size_t at = text.find(fence); at != std::string::npos;) {
    const std::size_t start = at + fence.size(), end = text.find(fence, start - 1);
    const std::string block = text.substr(start, end + 1 - start);
    if (block.starts_with(beginning)) blocks += block;
    at = text.find(fence, end + fence.size());
  }
  return blocks;
}

TEST(ModelXml, ReadsLikeTheDocumentation) {
  TJDBStructure model;
  model.SetStructString(BlocksOf("model-text.md", "["));
  EXPECT_EQ(BlocksOf("model-xml.md", "<?xml"), ModelToXml(model));
}

TEST(ModelXml, SuitsItsSchema) {
  if (std::system("command -v xmllint >/dev/null") != 0) GTEST_SKIP() << "xmllint is not installed";
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "tolvi_xml_test";
  std::filesystem::create_directories(folder);
  std::string files;
  for (unsigned seed = 0; seed <= 40; ++seed) {
    TRandom random(seed);
    std::unique_ptr<TJDBStructure> model = TModelMaker(random).Make();
    if (seed == 0) model->LoadFromFile(Source / "samples/shop/shop.model");
    if (seed > 1) MakeOdd(random, *model);
    if (seed > 1) model->SetSpecInfo(OddLines(random));
    const std::filesystem::path file = folder / (std::to_string(seed) + ".xml");
    SaveModelToXmlFile(*model, file);
    TJDBStructure read;
    LoadModelFromXmlFile(read, file);
    EXPECT_EQ(WriteModelText(read), WriteModelText(*model));
    EXPECT_EQ(read.GetSpecInfo(), model->GetSpecInfo());
    files += " '" + file.string() + "'";
  }
  const std::string command = "xmllint --noout --schema '" + (Source / "docs/tolvi-model.xsd").string() + "'" + files;
  EXPECT_EQ(std::system((command + " >'" + (folder / "log").string() + "' 2>&1").c_str()), 0)
      << ReadFile(folder / "log");
  std::filesystem::remove_all(folder);
}

TEST(ModelXml, ReadsWhatPeopleWrite) {
  TJDBStructure model;
  int changes = 0;
  model.OnChange = [&changes](TJCustomDBStructure&) { ++changes; };
  model.SQLFormats().SetLowerFunc("lcase");
  changes = 0;
  LoadModelFromXml(model, "<?xml version='1.0'?><?editor wide?><!-- a model -->\r\n" + Document(R"(
    <operators><operator name="Equal" sqlExpr="@f = '@1'" appliedTypes=" ftString
      ftMemo "/></operators>
    <tables><table tableName="Order lines"/><table tableName="Orders" tableAlias="O" displayName="" quoted=" 1 "/></tables>
    <links><link table1="o" table2="order_lines"><pair field1="ID" field2="OrderID"/></link></links>
    <entities>
      <field fieldName="ID" tableAlias="O" position="2"/><group groupName="Money">
      <field fieldKind="jfkVirtual" operators="equal" position="1"><sqlExpr>sum(O.<!-- in euros -->Total)</sqlExpr></field>
      </group><field fieldName="Notes" tableAlias="O"><sqlEditor><sql>select 1
from x</sql></sqlEditor></field>
    </entities>)"));
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(model.SQLFormats().GetLowerFunc(), "lcase");
  EXPECT_EQ(model.GetOperator(0).GetAppliedTypes(), (TFieldTypes{ftString, ftMemo}));
  EXPECT_EQ(model.GetTable(0).GetTableAlias(), "Order_lines");
  EXPECT_EQ(model.GetTable(1).GetDisplayName(), "");
  EXPECT_EQ(model.GetLink(0).GetSQLExpr(), "O.ID = Order_lines.OrderID");
  ASSERT_EQ(model.Fields().Count(), 3U);
  EXPECT_EQ(model.GetField(0).GetCompoundName(), "Money.sum(O.Total)");
  EXPECT_EQ(model.GetField(1).GetID(), 2);
  const auto& editor = static_cast<const TDSSQLEditor&>(*model.GetField(2).GetValueEditor());
  EXPECT_EQ(editor.GetSQL(), (TStrings{"select 1", "from x"}));
}

TEST(ModelXml, TellsWhereADocumentIsWrongAndHowToMendIt) {
  constexpr std::pair<std::string_view, std::string_view> Contents[] = {
      {"<table/>",
       "Line 2, column 1: <DataModel> has no element <table>. Its elements: <sqlFormats>, <dmOptions>, <operators>, "
       "<tables>, <links>, <entities>, <conditions>, <specInfo>"},
      {"<tables/><operators/>", "Line 2, column 10: <operators> must stand once, and before <tables>"},
      {"<tables>\n  <!-- none --><table colour='red'/></tables>",
       "Line 3, column 16: <table> has no attribute \"colour\". Its attributes: databaseName, tableName, displayName, "
       "tableAlias, quoted, tableHints, left, top, width, height"},
      {"<tables><table displayName='&#10;&lt;\r\n\U0001F600&amp;'/>\r\n<!-- \U0001F600 --> <table left=''/></tables>",
       "Line 4, column 13: attribute \"left\": '' is no integer of up to 32 bits"},
      {"<tables>orders</tables>", "Line 2, column 9: only elements may stand here, and no text"},
      {"<tables><table quoted='maybe'/></tables>",
       "Line 2, column 9: attribute \"quoted\": 'maybe' is none of false,true,0,1"},
      {"<tables><table left='12345678901'/></tables>",
       "Line 2, column 9: attribute \"left\": '12345678901' is no integer of up to 32 bits"},
      {"<sqlFormats quotedTypes='ftString ftText'/>",
       "Line 2, column 1: attribute \"quotedTypes\": 'ftText' is no field type such as ftString"},
      {"<links><link table1='a' table2='b'/></links>",
       "Line 2, column 8: attribute \"table1\": no table has the alias 'a'"},
      {"<links><link/></links>", "Line 2, column 8: <link> needs the attribute \"table1\", the alias of a table"},
      {"<tables><table tableName='a'/></tables><links><link table1='a' table2='a'><pair field1='x'/>\n"
       "<pair field1='x' field2='y'/></link></links>",
       "Line 3, column 1: attribute \"field2\": a <pair> before this one lacks it"},
      {"<entities><field operators='Like'/></entities>",
       "Line 2, column 11: attribute \"operators\": the model has no operator 'Like'"},
      {"<entities><field><sqlExpr>1</sqlExpr></field></entities>",
       "Line 2, column 18: <sqlExpr>: Can not assign expression to data field"},
      {"<entities><group><group/></group></entities>",
       "Line 2, column 18: <group> has no element <group>. Its elements: <field>"},
      {"<entities><field><textEditor/><listEditor/></field></entities>",
       "Line 2, column 31: there is one editor already. Remove this one or the other"},
      {"<conditions><condition><sqlExpr>a <b/></sqlExpr></condition></conditions>",
       "Line 2, column 35: <sqlExpr> has no element <b>. Its elements: none"},
      {"<tables xmlns='urn:x'/>", "Line 2, column 1: the elements of a model have no namespace. Remove xmlns"},
      {"<tables></links>", "Line 2, column 17: this is no well-formed XML: Opening and ending tag mismatch"},
      {"<tables><![CDATA[ ]]>\n &lt;</tables>", "Line 2, column 9: only elements may stand here, and no text"},
      {"<tables>\xFF", "Line 2, column 1: this line is no UTF-8. Save the document in that encoding"},
      {"<specInfo>&me;</specInfo>", "Line 2, column 15: this is no well-formed XML: Entity 'me' not declared"},
  };
  for (const auto& [content, message] : Contents) EXPECT_EQ(ErrorOf(Document(content)), message) << content;
  constexpr std::pair<std::string_view, std::string_view> Documents[] = {
      {"", "Line 1, column 1: this is no well-formed XML: Premature end of document"},
      {"<model/>", "Line 1, column 1: a data model begins with <DataModel>, not with <model>"},
      {"<?xml version='1.0'?>\n\n <!-- nothing -->\n <model>\n",
       "Line 4, column 2: a data model begins with <DataModel>, "
       "not with <model>"},
      {"<DataModel/>", "Line 1, column 1: <DataModel> needs the attribute \"formatVersion\": formatVersion=\"1\""},
      {"<DataModel formatVersion='x'/>", "Line 1, column 1: formatVersion=\"x\" is no version of the format"},
      {"<DataModel formatVersion='2' news='1'/>",
       "Line 1, column 1: the document was written in version 2 of the format; this program reads versions up to 1. "
       "Use "
       "a newer release of the program"},
      {"<!DOCTYPE m [<!ENTITY a 'ha'><!ENTITY b '&a;&a;'>]>\n<DataModel formatVersion='1'>&b;</DataModel>",
       "Line 1, column 1: document types are not read. Remove <!DOCTYPE ...> and its entities"},
      {"<DataModel formatVersion='1'/><more/>",
       "Line 1, column 38: this is no well-formed XML: Extra content at end of document"},
  };
  for (const auto& [document, message] : Documents) EXPECT_EQ(ErrorOf(document), message) << document;
}

TEST(ModelXml, LeavesTheModelAloneWhenADocumentIsSpoilt) {
  TRandom random(7);
  const std::unique_ptr<TJDBStructure> maker = TModelMaker(random).Make();
  MakeOdd(random, *maker);
  const std::string xml = ModelToXml(*maker);
  TJDBStructure model;
  model.AddTable("Orders", "Orders");
  const std::string before = model.GetStructString();
  std::size_t failures = 0;
  for (unsigned i = 0; i < 2000; ++i) {
    std::string spoilt = i % 3 == 0 ? xml.substr(0, random.Below(xml.size())) : xml;
    for (std::size_t count = i % 3; count > 0; --count) {
      const std::size_t at = random.Below(spoilt.size());
      if (random.Chance(50)) {
        spoilt[at] = static_cast<char>(random.Below(256));
      } else {
        spoilt.erase(at, random.Below(40));
      }
    }
    try {
      LoadModelFromXml(model, spoilt);
      model.SQLFormats() = TSQLFormats();
      model.DMOptions() = TDMOptions();
      model.SetStructString(before);
    } catch (const EModelXmlError&) {
      ++failures;
      ASSERT_EQ(model.GetStructString(), before) << spoilt;
    }
  }
  EXPECT_GT(failures, 1000U);
}

}  // namespace
}  // namespace tolvi
