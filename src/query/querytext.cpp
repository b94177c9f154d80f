#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/modeltext_keys.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/querytext.h>
#include <tolvi/query/querytext_keys.h>
#include <tolvi/query/resultformula.h>

namespace tolvi {
namespace {

// Sections. "Row" is followed by the ID of the row, "RField" by the number of the column.
constexpr std::string_view UserDataSection = "UserData", RFieldsSection = "RFields", RFieldPrefix = "RField",
                           RowPrefix = "Row", OldTitlesSection = "Titles";
constexpr std::string_view TitleSections[] = {"Query Panel", "PanelTitles", "Result Fields Editor"};
constexpr std::string_view OtherSections[] = {MainSection, DescriptionSection, UserDataSection, RFieldsSection,
                                              OldTitlesSection};

// Keys of "[Main]".
constexpr std::string_view OptionsKey = "Options", TopKey = "Top", LimitKey = "Limit";

// Keys of rows, as a bracket and as a condition write them.
constexpr std::string_view EnabledKey = "Enabled", RowTypeKey = "RowType", LinkTypeKey = "LinkType",
                           RowCountKey = "RowCount";
constexpr std::string_view CondIDKey = "CondID", FieldIDKey = "FieldID", OldFieldNameKey = "FldName",
                           OperatorKey = "Operator", SubQueryKey = "SubQuery", SubQueryOptionsKey = "SubQueryOptions",
                           SQLKey = "SQL", HavingKey = "Having";

/// The keys of a condition's value. A parameter has the format and, unless it is the automatic one, the name; any
/// other value the caption.
struct TValueKeys {
  int index;
  std::string_view param, value, format, caption, name;
};
constexpr TValueKeys ValueKeys[] = {
    {1, "Param1", "Value1", "VFormat1", "Caption1", "PName1"},
    {2, "Param2", "Value2", "VFormat2", "Caption2", "PName2"},
};

// Versions: of a text that tells none, and those since which a text holds something.
constexpr double UnnumberedQueryVersion = 1.1;
constexpr double ParamsSince = 1.2, FieldIDsSince = 2.0, CaptionsSince = 2.1;

}  // namespace

bool IsQueryHeader(std::string_view name) {
  const auto isName = [name](std::string_view section) { return SameText(section, name); };
  if (std::any_of(std::begin(OtherSections), std::end(OtherSections), isName)) return true;
  if (std::any_of(std::begin(TitleSections), std::end(TitleSections), isName)) return true;
  for (const auto& [prefix, characters] :
       {std::pair(RFieldPrefix, "0123456789"), std::pair(RowPrefix, "0123456789.")}) {
    if (AsciiSameText(name.substr(0, prefix.size()), prefix)) {
      return name.find_first_not_of(characters, prefix.size()) == std::string_view::npos;
    }
  }
  return false;
}

/// Reads a query text into a panel. What the text says is set as it stands, without what setters change besides.
class TQueryReader {
 public:
  TQueryReader(std::string_view text, TJQueryPanel& panel)
      : FText(text, IsQueryHeader), FPanel(panel), FModel(*panel.GetDBStruct()), FMain(FindMain(text)) {}

  void Read() {
    FVersion = ReadVersion();
    FPanel.FQueryName = FMain.Value(QueryNameKey);
    if (!Trim(FMain.Find(OptionsKey).value_or(std::string_view())).empty()) {
      FPanel.SetSQLOptions(IntToSQLOptions(FMain.Integer(OptionsKey, 0)));
    }
    ReadClause(TopKey, &TJQueryPanel::SetQueryTopClause);
    ReadClause(LimitKey, &TJQueryPanel::SetQueryLimitClause);
    FPanel.FDescription = FText.FirstFree(DescriptionSection).value_or(TStrings());
    FPanel.FUserData = FText.FirstFree(UserDataSection).value_or(TStrings());
    FPanel.RFields().Read(FText, FVersion, [this](std::string_view section, const std::string& message) {
      FPanel.AddLoadWarning({}, Format("%s: %s", {section, message}));
    });
    ReadRows(FPanel.RootBracket());
    ReadTitles();
  }

  void ReadRowsInto(TFilterBracket& bracket) {
    FVersion = ReadVersion();
    ReadRows(bracket);
  }

  /// The name of a field that only texts without field IDs name, and that the model lacked.
  static const std::string& MissingFieldName(const TSimpleCond& condition) { return condition.FMissingFieldName; }

 private:
  /// A bracket whose rows are being read.
  struct TOpenBracket {
    TFilterBracket* bracket;
    TSection section;
    std::size_t nameLength;
    std::int64_t rowCount, rowsRead = 0;
  };

  /// A blank text is an empty query.
  TSection FindMain(std::string_view text) const {
    if (const std::optional<TSection> main = FText.First(MainSection)) return *main;
    if (Trim(text).empty()) return TSection(MainSection, {}, 1);
    throw EJQueryPanelError(0, "%s: the text is no query", {Format(SDBSECantFindSection, {MainSection})});
  }

  double ReadVersion() const {
    const std::string_view text = Trim(FMain.Find(VersionKey).value_or(std::string_view()));
    if (text.empty()) return UnnumberedQueryVersion;
    const std::optional<double> version = TryStrToFloat(text);
    if (!version || *version <= 0) RaiseWrongValue(FMain, VersionKey, text, "version");
    if (*version > CurrentQueryVersion) {
      throw EConvertError(
          "%s: the query was written in version %s of the format; this program reads versions up to %s. Use a newer "
          "release of the program, or save the query in version %s",
          {FMain.Where(VersionKey), text, XFloatToStr(CurrentQueryVersion), XFloatToStr(CurrentQueryVersion)});
    }
    return *version;
  }

  void ReadClause(std::string_view key, void (TJQueryPanel::*set)(std::string_view)) {
    try {
      (FPanel.*set)(FMain.Value(key));
    } catch (const EJQueryPanelError& error) {
      throw EConvertError("%s: %s", {FMain.Where(key), error.Message()});
    }
  }

  void ReadTitles() {
    TStrings lines;
    for (const std::string_view section : TitleSections) {
      const std::optional<TStrings> titles = FText.FirstFree(section);
      if (!titles) continue;
      lines.Add(Format("[%s]", {section}));
      lines.AddStrings(*titles);
    }
    if (!lines.Empty()) FPanel.FTitles.Assign(lines);
    if (const std::optional<TStrings> titles = FText.FirstFree(OldTitlesSection)) FPanel.FTitles.AssignOld(*titles);
  }

  // Rows. The brackets whose rows are being read stand in a list, so that depth costs no stack.

  void ReadRows(TFilterBracket& rootBracket) {
    std::string name(RowPrefix);
    const std::optional<TSection> root = FText.First(name);
    if (!root) {
      if (!FText.Names().empty()) Warn(name, Format(SDBSECantFindSection, {name}));
      return;
    }
    if (ReadRowType(*root, frtBracket) != frtBracket) {
      RaiseWrongValue(*root, RowTypeKey, root->Value(RowTypeKey), "row type of the root");
    }
    std::vector<TOpenBracket> open{ReadBracket(*root, rootBracket)};
    while (!open.empty()) {
      TOpenBracket& current = open.back();
      name.resize(current.nameLength);
      name.append(".").append(std::to_string(current.rowsRead + 1));
      const std::optional<TSection> section = FText.First(name);
      if (current.rowsRead == current.rowCount) {
        if (section) Warn(name, Format("Section %s lies beyond the row count and was not read", {name}));
        open.pop_back();
        continue;
      }
      if (!section) {
        throw EJQueryPanelError(0, "%s: %s",
                                {current.section.Where(RowCountKey), Format(SDBSECantFindSection, {name})});
      }
      ++current.rowsRead;
      if (open.size() > static_cast<std::size_t>(MaxRowLevel)) {
        throw EJQueryPanelError(
            0, "Line %d: brackets are nested deeper than %d levels: put the conditions into fewer brackets",
            {section->HeaderLine(), MaxRowLevel});
      }
      if (ReadRowType(*section, frtSimpleCondition) == frtBracket) {
        open.push_back(ReadBracket(*section, current.bracket->AddNewBracket()));
      } else {
        ReadCondition(*section, *current.bracket);
      }
    }
  }

  static TFilterRowType ReadRowType(const TSection& section, TFilterRowType byDefault) {
    return static_cast<TFilterRowType>(
        ReadInt32(section, RowTypeKey, byDefault, frtSimpleCondition, frtSQLFragment, "row type"));
  }

  static TOpenBracket ReadBracket(const TSection& section, TFilterBracket& bracket) {
    bracket.StoreEnabled(section.Boolean(EnabledKey, true));
    bracket.SetLinkType(
        static_cast<TFilterLinkType>(ReadInt32(section, LinkTypeKey, fltAll, fltAll, fltNotAll, "link type")));
    const std::int64_t rowCount = section.Integer(RowCountKey, 0);
    if (rowCount < 0) RaiseWrongValue(section, RowCountKey, std::to_string(rowCount), "row count");
    return {&bracket, section, section.Name().size(), rowCount};
  }

  void ReadFragment(const TSection& section, TFilterBracket& bracket) {
    auto& fragment = static_cast<TSQLFragment&>(bracket.AddRow(std::make_unique<TSQLFragment>(FPanel)));
    fragment.StoreEnabled(section.Boolean(EnabledKey, true));
    fragment.StoreSQLExpr(section.Value(SQLKey));
    fragment.FHaving = section.Boolean(HavingKey, false);
    if (const std::string fault = fragment.TextFault(); !fault.empty()) Warn(section.Name(), fault);
  }

  void ReadCondition(const TSection& section, TFilterBracket& bracket) {
    const TFilterRowType rowType = ReadRowType(section, frtSimpleCondition);
    if (rowType == frtSQLFragment) return ReadFragment(section, bracket);
    TFilterCond* condition;
    if (rowType == frtSimpleCondition) {
      TSimpleCond& simple = bracket.AddCond();
      ReadField(section, simple);
      ReadOperator(section, simple);
      condition = &simple;
    } else {
      condition = &ReadCustomCond(section, bracket);
    }
    condition->StoreEnabled(section.Boolean(EnabledKey, true));
    for (const TValueKeys& keys : ValueKeys) ReadValue(section, keys, *condition);
    condition->FSubQuery = TStrings(SplitCommaText(section.Value(SubQueryKey)));
    if (!condition->FSubQuery.Empty()) condition->SetHint(1, condition->FSubQuery.Joined(CrLf));
    condition->FSubQueryOptions = IntToSQLOptions(section.Integer(SubQueryOptionsKey, 0));
  }

  void ReadField(const TSection& section, TSimpleCond& condition) {
    const std::int32_t id = FVersion >= FieldIDsSince ? ReadInt32(section, FieldIDKey, 0) : 0;
    const std::string name = id == 0 ? section.Value(OldFieldNameKey) : std::string();
    if (TDSField* field = name.empty() ? FModel.FieldByID(id) : FindNamedField(FModel, name, FVersion)) {
      condition.FField = field;
      return;
    }
    condition.FField = &FModel.GetNullField();
    condition.FMissingFieldID = id;
    condition.FMissingFieldName = name;
    Warn(section.Name(), Format(SUnrecognizedFieldName, {name.empty() ? std::to_string(id) : name}));
  }

  void ReadOperator(const TSection& section, TSimpleCond& condition) {
    const std::string name = section.Value(OperatorKey);
    if (TDSOperator* op = FModel.OperatorByName(name)) {
      condition.FOperator = op;
      return;
    }
    condition.FOperator = &FModel.GetNullOperator();
    condition.FMissingOperator = name;
    Warn(section.Name(), Format(SUnrecognizedOperatorName, {name}));
  }

  TCustomCond& ReadCustomCond(const TSection& section, TFilterBracket& bracket) {
    const std::int32_t id = ReadInt32(section, CondIDKey, 0);
    TDSCondition* found = FModel.ConditionByID(id);
    TCustomCond& condition = bracket.AddCustomCond(found != nullptr ? *found : FModel.GetNullCondition());
    if (found == nullptr) {
      condition.FMissingID = id;
      Warn(section.Name(), condition.GetMissing());
    }
    return condition;
  }

  void ReadValue(const TSection& section, const TValueKeys& keys, TFilterCond& condition) const {
    condition.SetValueIsParam(keys.index, FVersion >= ParamsSince && section.Boolean(keys.param, false));
    TFilterCond::TSlot& slot = condition.Slot(keys.index);
    slot.value = section.Value(keys.value);
    if (slot.param == nullptr) {
      if (FVersion >= CaptionsSince) slot.caption = section.Value(keys.caption);
      return;
    }
    slot.param->SetValueFormat(section.Value(keys.format));
    const std::string name = section.Value(keys.name);
    if (name.empty()) return;
    try {
      slot.param->SetParamName(name);
    } catch (const EJQueryPanelError& error) {
      throw EJQueryPanelError(error.ErrorCode(), "%s: %s", {section.Where(keys.name), error.Message()});
    }
  }

  /// `section` is the section of the row.
  void Warn(std::string_view section, const std::string& message) {
    FPanel.AddLoadWarning(section.substr(RowPrefix.size()), message);
  }

  TSectionedText FText;
  TJQueryPanel& FPanel;
  TJCustomDBStructure& FModel;
  const TSection FMain;
  double FVersion = CurrentQueryVersion;
};

namespace {

/// Writes a query text. The rows of the tree are visited with their IDs in one text that grows and shrinks.
class TQueryWriter {
 public:
  explicit TQueryWriter(const TJQueryPanel& panel) : FPanel(panel), FWriter(IsQueryHeader) {}

  std::string Write() && {
    if (FPanel.GetSaveTitles()) WriteTitles();
    FWriter.Header(MainSection);
    FWriter.Key(QueryNameKey, FPanel.GetQueryName());
    FWriter.Key(VersionKey, XFloatToStr(CurrentQueryVersion));
    FWriter.Key(OptionsKey,
                FPanel.GetSaveSQLOptions() ? std::to_string(SQLOptionsToInt(FPanel.GetSQLOptions())) : std::string());
    for (const auto& [key, clause] :
         {std::pair(TopKey, FPanel.GetQueryTopClause()), std::pair(LimitKey, FPanel.GetQueryLimitClause())}) {
      if (!clause.empty()) FWriter.Key(key, clause);
    }
    FWriter.Line({});
    WriteLines(DescriptionSection, FPanel.GetDescription());
    WriteLines(UserDataSection, FPanel.GetUserData());
    FPanel.QResult().RFields().Write(FWriter);
    WriteRow(FPanel.RootBracket());
    return std::move(FWriter).Text();
  }

  std::string WriteRows(const std::vector<const TFilterRow*>& rows) && {
    FWithAutomaticNames = false;
    FWriter.Header(MainSection);
    FWriter.Key(VersionKey, XFloatToStr(CurrentQueryVersion));
    FWriter.Line({});
    FWriter.Line("[Row]");
    WriteBracketKeys(true, fltAll, rows.size());
    std::size_t number = 0;
    for (const TFilterRow* row : rows) {
      FRowID = "." + std::to_string(++number);
      WriteRow(*row);
    }
    return std::move(FWriter).Text();
  }

 private:
  void WriteTitles() {
    for (const std::string& line : FPanel.Titles().Lines()) {
      if (IsSectionHeader(line)) {
        FWriter.Line(line);
      } else {
        FWriter.FreeLines({line});
      }
    }
    FWriter.Line({});
  }

  void WriteLines(std::string_view section, const TStrings& lines) {
    FWriter.Header(section);
    FWriter.FreeLines(lines);
    FWriter.Line({});
  }

  void WriteRow(const TFilterRow& row) {
    FWriter.Line("[Row", FRowID, "]");
    if (row.GetRowType() == frtBracket) {
      WriteBracket(static_cast<const TFilterBracket&>(row));
    } else if (row.GetRowType() == frtSQLFragment) {
      WriteFragment(static_cast<const TSQLFragment&>(row));
    } else {
      WriteCondition(static_cast<const TFilterCond&>(row));
    }
  }

  void WriteBracketKeys(bool enabled, TFilterLinkType linkType, std::size_t rowCount) {
    FWriter.Key(EnabledKey, std::int64_t{enabled});
    FWriter.Key(RowTypeKey, std::int64_t{frtBracket});
    FWriter.Key(LinkTypeKey, std::int64_t{linkType});
    FWriter.Key(RowCountKey, static_cast<std::int64_t>(rowCount));
    FWriter.Line({});
  }

  void WriteBracket(const TFilterBracket& bracket) {
    WriteBracketKeys(bracket.GetEnabled(), bracket.GetLinkType(), bracket.GetRowCount());
    const std::size_t ownID = FRowID.size();
    std::size_t number = 0;
    for (const TFilterRow& row : bracket) {
      FRowID.append(".").append(std::to_string(++number));
      WriteRow(row);
      FRowID.resize(ownID);
    }
  }

  void WriteFragment(const TSQLFragment& fragment) {
    FWriter.Key(RowTypeKey, std::int64_t{fragment.GetRowType()});
    FWriter.Key(EnabledKey, std::int64_t{fragment.GetEnabled()});
    FWriter.Key(SQLKey, fragment.GetSQLExpr());
    if (fragment.GetHaving()) FWriter.Key(HavingKey, std::int64_t{fragment.GetHaving()});
    FWriter.Line({});
  }

  void WriteCondition(const TFilterCond& condition) {
    const bool isSimple = condition.GetRowType() == frtSimpleCondition;
    FWriter.Key(RowTypeKey, std::int64_t{condition.GetRowType()});
    FWriter.Key(EnabledKey, std::int64_t{condition.GetEnabled()});
    if (isSimple) {
      FWriter.Key(FieldIDKey, std::int64_t{static_cast<const TSimpleCond&>(condition).GetFieldID()});
    } else {
      FWriter.Key(CondIDKey, std::int64_t{static_cast<const TCustomCond&>(condition).GetConditionID()});
    }
    for (const TValueKeys& keys : ValueKeys)
      FWriter.Key(keys.param, std::int64_t{condition.GetValueIsParam(keys.index)});
    if (isSimple) FWriter.Key(OperatorKey, static_cast<const TSimpleCond&>(condition).GetOperatorName());
    for (const TValueKeys& keys : ValueKeys) FWriter.Key(keys.value, condition.GetValue(keys.index));
    for (const TValueKeys& keys : ValueKeys) {
      const TSQLParam* param = condition.GetParam(keys.index);
      if (param != nullptr) {
        FWriter.Key(keys.format, param->GetValueFormat());
      } else {
        FWriter.Key(keys.caption, condition.GetCaption(keys.index));
      }
    }
    FWriter.Key(SubQueryKey, condition.GetSubQuery().GetCommaText());
    FWriter.Key(SubQueryOptionsKey, std::int64_t{SQLOptionsToInt(condition.GetSubQueryOptions())});
    for (const TValueKeys& keys : ValueKeys) {
      const TSQLParam* param = condition.GetParam(keys.index);
      if (param != nullptr && !NeedsNoName(*param)) FWriter.Key(keys.name, param->GetParamName());
    }
    if (isSimple) {
      // A field that an old text named and the model lacked has no ID.
      const std::string& fieldName = TQueryReader::MissingFieldName(static_cast<const TSimpleCond&>(condition));
      if (!fieldName.empty()) FWriter.Key(OldFieldNameKey, fieldName);
    }
    FWriter.Line({});
  }

  // Whether the parameter is called as a reader will call it without its name, or may be.
  bool NeedsNoName(const TSQLParam& param) {
    if (!FWithAutomaticNames) return param.HasAutomaticName();
    while (FParamNames.contains("Param" + std::to_string(FNextParam))) ++FNextParam;
    FParamNames.insert(param.GetParamName());
    return param.GetParamName() == "Param" + std::to_string(FNextParam);
  }

  const TJQueryPanel& FPanel;
  TSectionWriter FWriter;
  std::string FRowID;
  std::unordered_set<std::string, TFoldedHash, TFoldedEqual> FParamNames;
  std::size_t FNextParam = 1;
  bool FWithAutomaticNames = true;
};

}  // namespace

std::string WriteQueryText(const TJQueryPanel& panel) { return TQueryWriter(panel).Write(); }

void ReadQueryText(std::string_view text, TJQueryPanel& panel) {
  panel.CheckIfDBStructAssigned();
  TQueryReader(text, panel).Read();
}

std::string WriteRowsText(const TJQueryPanel& panel, const std::vector<const TFilterRow*>& rows) {
  return TQueryWriter(panel).WriteRows(rows);
}

void ReadRowsText(std::string_view text, TFilterBracket& bracket) {
  TQueryReader(text, bracket.GetQueryPanel()).ReadRowsInto(bracket);
}

bool HasRows(std::string_view text) {
  const TSectionedText sections(text, IsQueryHeader);
  const std::string firstRow = std::string(RowPrefix) + ".1";
  return sections.First(MainSection) && sections.First(RowPrefix) && sections.First(firstRow);
}

}  // namespace tolvi
