#include <algorithm>
#include <exception>
#include <utility>

#include <tolvi/foundation/format.h>
#include <tolvi/foundation/text.h>
#include <tolvi/panel/linkeditor.h>

namespace tolvi {
namespace {

/// What a comparison becomes when its sides change places.
constexpr std::pair<std::string_view, std::string_view> TurnedSymbols[] = {
    {"<", ">"}, {">", "<"}, {"<=", ">="}, {">=", "<="}};

constexpr TDSLinkType TurnedTypes[] = {ltInner, ltOuterRight, ltOuterLeft, ltOuterFull};

std::string TextAt(const TStrings& lines, std::size_t index, std::string_view otherwise) {
  return std::string(index < lines.Count() ? std::string_view(lines[index]) : otherwise);
}

std::string& SideOf(TLinkPair& pair, std::size_t side) { return side == 0 ? pair.Side1 : pair.Side2; }

/// The columns on which the model has fields.
TStrings ColumnsOfFields(const TJCustomDBStructure& model, const TDSTable& table) {
  TStrings columns;
  for (const TDSField& field : model.Fields()) {
    const bool isColumn = field.GetFieldKind() == jfkData && field.GetTable() == &table;
    if (isColumn && columns.IndexOf(field.GetFieldName()) < 0) columns.Add(field.GetFieldName());
  }
  return columns;
}

}  // namespace

TLinkEditor::TLinkEditor(TJCustomDBStructure& model, const TDSLink& link)
    : FModel(model),
      FTables{link.GetTable1(), link.GetTable2()},
      FLinkType(link.GetLinkType()),
      FQuoteFields(link.GetQuoteFields()) {
  if (FTables[0] == nullptr || FTables[1] == nullptr) throw EJDBStructError(0, "The link has no tables");
  const std::vector<TDSLink*>& links = FTables[0]->Links();
  if (std::find(links.begin(), links.end(), &link) != links.end()) FInModel = &link;
  const TStrings &fields1 = link.GetFields1(), &fields2 = link.GetFields2();
  for (std::size_t i = 0; i < std::max(fields1.Count(), fields2.Count()); ++i) {
    FPairs.push_back({TextAt(fields1, i, ""), TextAt(link.GetOperators(), i, "="), TextAt(fields2, i, "")});
  }
  for (const std::size_t side : {0U, 1U}) ReadColumns(side);
}

// Tables

void TLinkEditor::SetTable(std::size_t side, TDSTable& table) {
  if (!CanChooseTables() || FTables[side] == &table) return;
  FTables[side] = &table;
  ReadColumns(side);
}

void TLinkEditor::Swap() {
  std::swap(FTables[0], FTables[1]);
  std::swap(FSides[0], FSides[1]);
  std::swap(FFaults[0], FFaults[1]);
  for (TLinkPair& pair : FPairs) {
    std::swap(pair.Side1, pair.Side2);
    const auto* turned = std::find_if(std::begin(TurnedSymbols), std::end(TurnedSymbols),
                                      [&pair](const auto& symbols) { return symbols.first == Trim(pair.Symbol); });
    if (turned != std::end(TurnedSymbols)) pair.Symbol = turned->second;
  }
  FLinkType = TurnedTypes[FLinkType];
}

std::string TLinkEditor::TableName(std::size_t side) const {
  const TDSTable &table = Table(side), &other = Table(1 - side);
  const std::string& name = table.GetDisplayName();
  if (name.empty()) return table.GetTableAlias();
  const bool alike = &table != &other && SameText(name, other.GetDisplayName());
  return alike ? name + " (" + table.GetTableAlias() + ")" : name;
}

void TLinkEditor::ReadColumns(std::size_t side) {
  const TDSTable& table = Table(side);
  TLinkSideInfo& info = FSides[side] = {&table, {}, false};
  FFaults[side].clear();
  TJDBInfo* catalogue = FModel.GetDatabaseInfo();
  // A link can be edited without the catalogue, too.
  try {
    for (const std::string& name : {table.GetFullName(), table.GetCompoundName()}) {
      if (catalogue == nullptr || !catalogue->GetConnected() || !info.Columns.Empty()) break;
      catalogue->GetFieldNamesByTable(name, info.Columns);
    }
  } catch (const std::exception& error) {
    info.Columns.Clear();
    FFaults[side] = Format("the columns of table \"%s\" cannot be read: %s", {table.GetTableAlias(), error.what()});
  }
  info.FromCatalogue = !info.Columns.Empty();
  if (!info.FromCatalogue) info.Columns = ColumnsOfFields(FModel, table);
}

// Pairs

void TLinkEditor::AddPair() { FPairs.emplace_back(); }

void TLinkEditor::DeletePair(std::size_t index) {
  if (index < FPairs.size()) FPairs.erase(FPairs.begin() + static_cast<std::ptrdiff_t>(index));
}

void TLinkEditor::MovePair(std::size_t from, std::size_t to) {
  if (from >= FPairs.size() || to >= FPairs.size()) return;
  TLinkPair moved = std::move(FPairs[from]);
  FPairs.erase(FPairs.begin() + static_cast<std::ptrdiff_t>(from));
  FPairs.insert(FPairs.begin() + static_cast<std::ptrdiff_t>(to), std::move(moved));
}

void TLinkEditor::SetSide(std::size_t index, std::size_t side, std::string_view entry) {
  if (index >= FPairs.size()) return;
  TLinkPair& pair = FPairs[index];
  const bool isFirst = pair.Side1.empty() && pair.Side2.empty();
  SideOf(pair, side) = entry;
  if (!isFirst || &Table(0) == &Table(1)) return;
  const TStrings& others = Columns(1 - side);
  const std::ptrdiff_t same = others.IndexOf(LinkEntryText(entry));
  if (same >= 0 && !IsLinkConstant(entry)) SideOf(pair, 1 - side) = others[static_cast<std::size_t>(same)];
}

void TLinkEditor::SetSymbol(std::size_t index, std::string_view symbol) {
  if (index < FPairs.size()) FPairs[index].Symbol = symbol;
}

TStrings TLinkEditor::Texts(std::string TLinkPair::*part) const {
  TStrings texts;
  for (const TLinkPair& pair : FPairs) texts.Add(pair.*part);
  return texts;
}

// Results

TLinkFindings TLinkEditor::Findings() const {
  const TStrings side1 = Texts(&TLinkPair::Side1), symbols = Texts(&TLinkPair::Symbol),
                 side2 = Texts(&TLinkPair::Side2);
  TLinkFindings findings = CheckLinkPairs(side1, symbols, side2);
  for (TLinkFinding& finding : CheckLinkSides(side1, symbols, side2, FSides[0], FSides[1], FInModel)) {
    findings.push_back(std::move(finding));
  }
  for (const std::string& fault : FFaults) {
    if (!fault.empty()) findings.push_back({csWarning, fault, {}});
  }
  std::stable_partition(findings.begin(), findings.end(),
                        [](const TLinkFinding& finding) { return finding.Severity == csError; });
  return findings;
}

std::string TLinkEditor::Condition() const {
  TDSLink scratch;
  ApplyTo(scratch);
  return scratch.GetSQLExpr();
}

void TLinkEditor::Apply(TDSLink& link) const {
  FModel.AsOneChange([&] { ApplyTo(link); });
}

void TLinkEditor::ApplyTo(TDSLink& link) const {
  if (link.GetTable1() != FTables[0] || link.GetTable2() != FTables[1]) link.SetTables(*FTables[0], *FTables[1]);
  link.SetFields1(Texts(&TLinkPair::Side1));
  link.SetFields2(Texts(&TLinkPair::Side2));
  link.SetOperators(Texts(&TLinkPair::Symbol));
  link.SetLinkType(FLinkType);
  link.SetQuoteFields(FQuoteFields);
}

}  // namespace tolvi
