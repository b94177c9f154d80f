#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include <tolvi/ui/controls/itemmodel.h>
#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/fillitems.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr Qt::ItemFlags Plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable;

// Items of the upper level have the id 0, those below the one of their parent's row.
quintptr IdBelow(const QModelIndex& parent) { return static_cast<quintptr>(parent.row()) + 1; }
bool IsBelow(const QModelIndex& index) { return index.internalId() != 0; }
std::size_t UpperRow(const QModelIndex& index) {
  return IsBelow(index) ? static_cast<std::size_t>(index.internalId()) - 1 : static_cast<std::size_t>(index.row());
}

Qt::CheckState StateOf(bool on) { return on ? Qt::Checked : Qt::Unchecked; }

}  // namespace

// What they have in common

void TFillItems::Find(const QString& text) {
  const QString sought = FoldedForSearch(text.trimmed());
  if (sought == FSought) return;
  FSought = sought;
  Reset();
}

void TFillItems::Reset() {
  beginResetModel();
  BuildRows();
  endResetModel();
}

void TFillItems::Check(const QModelIndexList& indexes, bool on) {
  std::set<int> parents;
  for (const QModelIndex& each : indexes) {
    SetOn(each, on);
    parents.insert(each.parent().isValid() ? each.parent().row() : each.row());
  }
  // Other tables may have been switched with these.
  const auto tell = [this](const QModelIndex& parent) {
    const int rows = rowCount(parent);
    if (rows == 0) return;
    Q_EMIT dataChanged(index(0, 0, parent), index(rows - 1, columnCount() - 1, parent), {Qt::CheckStateRole});
  };
  tell({});
  // Of so many, views had rather be painted anew.
  constexpr std::size_t mostTold = 50;
  if (parents.size() > mostTold) return Chosen();
  for (const int row : parents) tell(index(row, 0));
  Chosen();
}

void TFillItems::Chosen() {
  if (OnChoose) OnChoose();
}

QModelIndex TFillItems::parent(const QModelIndex&) const { return {}; }

bool TFillItems::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role == Qt::CheckStateRole && flags(index) & Qt::ItemIsUserCheckable) {
    Check({index}, value.toInt() != Qt::Unchecked);
    return true;
  }
  if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable) || !SetText(index, value)) return false;
  Q_EMIT dataChanged(index, index);
  Chosen();
  return true;
}

QVariant TFillItems::headerData(int section, Qt::Orientation orientation, int role) const {
  return orientation == Qt::Horizontal && role == Qt::DisplayRole ? Title(section) : QVariant();
}

bool TFillItems::IsFound(std::string_view text) const {
  return FSought.isEmpty() || FoldedForSearch(ToQString(text)).contains(FSought);
}

// Tables

void TFillTableItems::BuildRows() {
  FRows.clear();
  for (std::size_t table = 0; table < FWizard.Tables().size(); ++table) {
    if (IsFound(FWizard.Tables()[table].Name)) FRows.push_back(table);
  }
}

bool TFillTableItems::IsNew(const QModelIndex& index) const {
  return !FWizard.Tables()[FRows[static_cast<std::size_t>(index.row())]].Known;
}

QModelIndex TFillTableItems::index(int row, int column, const QModelIndex& parent) const {
  return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

int TFillTableItems::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(FRows.size());
}

QVariant TFillTableItems::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const std::size_t number = FRows[static_cast<std::size_t>(index.row())];
  const TFillTable& table = FWizard.Tables()[number];
  const std::array<QString, ColumnCount> texts = {ToQString(table.Name), table.View ? tr("View") : tr("Table"),
                                                  table.Known ? tr("In the model") : tr("New")};
  const auto column = static_cast<std::size_t>(index.column());
  if (role == Qt::DisplayRole) return texts[column];
  if (index.column() != ColTable) return {};
  if (role == Qt::CheckStateRole) return StateOf(FWizard.IsTableOn(number));
  if (role == Qt::AccessibleTextRole) return QStringList(texts.begin(), texts.end()).join(QStringLiteral(", "));
  return role == Qt::ToolTipRole ? PlainToolTip(texts[column]) : QVariant();
}

Qt::ItemFlags TFillTableItems::flags(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const Qt::ItemFlags flags = Plain | Qt::ItemNeverHasChildren;
  return index.column() == ColTable ? flags | Qt::ItemIsUserCheckable : flags;
}

void TFillTableItems::SetOn(const QModelIndex& index, bool on) {
  FWizard.SetTableOn(FRows[static_cast<std::size_t>(index.row())], on);
}

QString TFillTableItems::Title(int column) const {
  return std::array<QString, ColumnCount>{tr("Table"), tr("Kind"), tr("Model")}[static_cast<std::size_t>(column)];
}

// Tables and fields that are added

void TFillFieldItems::BuildRows() {
  FRows.clear();
  for (const std::size_t table : FChoice.Tables()) {
    TRow row{table, {}};
    const bool found = IsFound(FChoice.Plan().Tables[table].Alias) || IsFound(FChoice.TableName(table));
    for (const std::size_t field : FChoice.FieldsOf(table)) {
      const bool fieldFound =
          found || IsFound(FChoice.Plan().Fields[field].Column) || IsFound(FChoice.FieldName(field));
      if (fieldFound) row.Fields.push_back(field);
    }
    if (found || !row.Fields.empty()) FRows.push_back(std::move(row));
  }
}

QModelIndex TFillFieldItems::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  return createIndex(row, column, parent.isValid() ? IdBelow(parent) : 0);
}

QModelIndex TFillFieldItems::parent(const QModelIndex& index) const {
  return index.isValid() && IsBelow(index) ? createIndex(static_cast<int>(UpperRow(index)), 0, quintptr{0})
                                           : QModelIndex();
}

int TFillFieldItems::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(FRows.size());
  return IsBelow(parent) || parent.column() > 0 ? 0 : static_cast<int>(RowOf(parent).Fields.size());
}

const TFillFieldItems::TRow& TFillFieldItems::RowOf(const QModelIndex& index) const { return FRows[UpperRow(index)]; }

bool TFillFieldItems::IsWhole(const QModelIndex& index) const {
  return RowOf(index).Fields.size() == FChoice.FieldsOf(RowOf(index).Table).size();
}

std::size_t TFillFieldItems::FieldOf(const QModelIndex& index) const {
  return RowOf(index).Fields[static_cast<std::size_t>(index.row())];
}

QString TFillFieldItems::TableText(std::size_t table, int column) const {
  const TPlannedTable& planned = FChoice.Plan().Tables[table];
  switch (column) {
    case ColName:
      return ToQString(planned.Alias);
    case ColDisplayName:
      return ToQString(FChoice.TableName(table));
    case ColGroup:
      return ToQString(FChoice.GroupName(table));
    case ColKind:
      if (planned.Role) return tr("Further alias of %1").arg(ToQString(planned.Name));
      return planned.Existing != nullptr ? tr("In the model") : tr("New table");
    default:
      return {};
  }
}

QString TFillFieldItems::Text(const QModelIndex& index) const {
  if (!IsBelow(index)) return TableText(RowOf(index).Table, index.column());
  const TPlannedField& field = FChoice.Plan().Fields[FieldOf(index)];
  if (index.column() == ColName) return ToQString(field.Column);
  if (index.column() == ColDisplayName) return ToQString(FChoice.FieldName(FieldOf(index)));
  return index.column() == ColKind ? ToQString(TypeText(field.Type, field.Size)) : QString();
}

QVariant TFillFieldItems::CheckState(const QModelIndex& index) const {
  if (!(flags(index) & Qt::ItemIsUserCheckable)) return {};
  if (IsBelow(index)) {
    return StateOf(index.column() == ColName ? FChoice.IsFieldOn(FieldOf(index)) : FChoice.IsListOn(FieldOf(index)));
  }
  const TFillState state = FChoice.TableState(RowOf(index).Table);
  return state == fsSome ? Qt::PartiallyChecked : StateOf(state == fsAll);
}

TTextFindings TFillFieldItems::Findings(const QModelIndex& index) const {
  if (index.column() == ColDisplayName) {
    return IsBelow(index) ? FChoice.CheckField(FieldOf(index)) : FChoice.CheckTable(RowOf(index).Table);
  }
  return index.column() == ColGroup && !IsBelow(index) ? FChoice.CheckGroup(RowOf(index).Table) : TTextFindings();
}

QString TFillFieldItems::AccessibleText(const QModelIndex& index) const {
  QStringList texts;
  for (int column = 0; column < ColList; ++column) {
    const QString text = Text(index.siblingAtColumn(column));
    if (!text.isEmpty()) texts << text;
  }
  if (index.siblingAtColumn(ColList).data(Qt::CheckStateRole).toInt() == Qt::Checked) texts << tr("with a list");
  return texts.join(QStringLiteral(", "));
}

QVariant TFillFieldItems::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::EditRole) return Text(index);
  if (role == Qt::DisplayRole) {
    // What is wrong must have a place for the mark.
    const QString text = Text(index);
    return text.isEmpty() && !Findings(index).empty() ? tr("(no name)") : text;
  }
  if (role == Qt::CheckStateRole) return CheckState(index);
  if (role == Qt::AccessibleTextRole && index.column() == ColName) return AccessibleText(index);
  if (role != Qt::ToolTipRole && role != Qt::AccessibleDescriptionRole && role != TFaultDelegate::WrongRole) return {};
  const TTextFindings findings = Findings(index);
  if (role == TFaultDelegate::WrongRole) return !findings.empty();
  if (!findings.empty()) return ToQString(findings.front().Text);
  return role == Qt::ToolTipRole ? PlainToolTip(Text(index)) : QString();
}

Qt::ItemFlags TFillFieldItems::flags(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const bool below = IsBelow(index);
  Qt::ItemFlags flags = below ? Plain | Qt::ItemNeverHasChildren : Plain;
  const bool hasNew = below || FChoice.IsTableNew(RowOf(index).Table);
  const bool hasGroup = !below && !FChoice.FieldsOf(RowOf(index).Table).empty();
  const bool isName = index.column() == ColDisplayName && hasNew;
  if (isName || (index.column() == ColGroup && hasGroup)) flags |= Qt::ItemIsEditable;
  const bool isList = index.column() == ColList && below && FChoice.HasList(FieldOf(index));
  if (index.column() == ColName || isList) flags |= Qt::ItemIsUserCheckable;
  return flags;
}

void TFillFieldItems::SetOn(const QModelIndex& index, bool on) {
  if (index.column() == ColName) {
    if (IsBelow(index)) return FChoice.SetFieldOn(FieldOf(index), on);
    return FChoice.SetTableOn(RowOf(index).Table, on);
  }
  if (IsBelow(index)) {
    if (FChoice.HasList(FieldOf(index))) FChoice.SetListOn(FieldOf(index), on);
    return;
  }
  for (const std::size_t field : RowOf(index).Fields) {
    if (FChoice.HasList(field)) FChoice.SetListOn(field, on);
  }
}

bool TFillFieldItems::SetText(const QModelIndex& index, const QVariant& value) {
  const std::string text = FromQString(value.toString().simplified());
  if (index.column() == ColGroup) {
    FChoice.SetGroupName(RowOf(index).Table, text);
  } else if (IsBelow(index)) {
    FChoice.SetFieldName(FieldOf(index), text);
  } else {
    FChoice.SetTableName(RowOf(index).Table, text);
  }
  return true;
}

QString TFillFieldItems::Title(int column) const {
  return std::array<QString, ColumnCount>{tr("Table, column"), tr("Display name"), tr("Group"), tr("Type"),
                                          tr("List of values")}[static_cast<std::size_t>(column)];
}

// Links

void TFillLinkItems::BuildRows() {
  FRows.clear();
  const TFillPlan& plan = FChoice.Plan();
  for (std::size_t link = 0; link < plan.Links.size(); ++link) {
    if (IsFindingAll() || IsFound(plan.LinkText(plan.Links[link]))) FRows.push_back(link);
  }
}

QModelIndex TFillLinkItems::index(int row, int column, const QModelIndex& parent) const {
  return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

int TFillLinkItems::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(FRows.size());
}

/// In the order of the link types.
QStringList TFillLinkItems::JoinWords(std::size_t link) const {
  const TFillPlan& plan = FChoice.Plan();
  return {tr("Only rows that match"), tr("All rows of %1").arg(ToQString(plan.Tables[plan.Links[link].Table1].Alias)),
          tr("All rows of %1").arg(ToQString(plan.Tables[plan.Links[link].Table2].Alias)), tr("All rows of both")};
}

QVariant TFillLinkItems::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const std::size_t link = FRows[static_cast<std::size_t>(index.row())];
  if (index.column() == ColJoin) {
    if (role == ChoicesRole) return JoinWords(link);
    if (role == Qt::EditRole) return static_cast<int>(FChoice.LinkType(link));
    return role == Qt::DisplayRole ? JoinWords(link).at(FChoice.LinkType(link)) : QVariant();
  }
  if (role == Qt::CheckStateRole) return StateOf(FChoice.IsLinkOn(link));
  const QString text = ToQString(FChoice.Plan().LinkText(FChoice.Plan().Links[link]));
  if (role == Qt::DisplayRole) return text;
  if (role == Qt::AccessibleTextRole)
    return QString(text + QStringLiteral(", ") + JoinWords(link).at(FChoice.LinkType(link)));
  return role == Qt::ToolTipRole ? PlainToolTip(text) : QVariant();
}

Qt::ItemFlags TFillLinkItems::flags(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const Qt::ItemFlags flags = Plain | Qt::ItemNeverHasChildren;
  return flags | (index.column() == ColLink ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

void TFillLinkItems::SetOn(const QModelIndex& index, bool on) {
  FChoice.SetLinkOn(FRows[static_cast<std::size_t>(index.row())], on);
}

bool TFillLinkItems::SetText(const QModelIndex& index, const QVariant& value) {
  const int type = value.toInt();
  if (type < ltInner || type > ltOuterFull) return false;
  FChoice.SetLinkType(FRows[static_cast<std::size_t>(index.row())], static_cast<TDSLinkType>(type));
  return true;
}

QString TFillLinkItems::Title(int column) const { return column == ColLink ? tr("Link") : tr("Rows of the result"); }

// The report

void TFillReportItems::SetReport(const TFillReport& report, bool takesTypes) {
  const QString types = takesTypes ? tr("Types that change") : tr("Types that differ in the database");
  const std::pair<QString, const TStrings&> kinds[] = {
      {tr("New tables"), report.AddedTables},         {tr("New groups"), report.AddedGroups},
      {tr("New fields"), report.AddedFields},         {tr("New lists of values"), report.AddedLists},
      {tr("New links"), report.AddedLinks},           {types, report.ChangedTypes},
      {tr("Vanished tables"), report.VanishedTables}, {tr("Vanished fields"), report.VanishedFields},
      {tr("Vanished links"), report.VanishedLinks},   {tr("Notes"), report.Notes},
  };
  beginResetModel();
  FKinds.clear();
  for (const auto& [title, lines] : kinds) {
    if (!lines.Empty()) FKinds.push_back({title, lines});
  }
  endResetModel();
}

QModelIndex TFillReportItems::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  return createIndex(row, column, parent.isValid() ? IdBelow(parent) : 0);
}

QModelIndex TFillReportItems::parent(const QModelIndex& index) const {
  return index.isValid() && IsBelow(index) ? createIndex(static_cast<int>(UpperRow(index)), 0, quintptr{0})
                                           : QModelIndex();
}

int TFillReportItems::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(FKinds.size());
  return IsBelow(parent) ? 0 : static_cast<int>(FKinds[UpperRow(parent)].Lines.Count());
}

QVariant TFillReportItems::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) return {};
  const TKind& kind = FKinds[UpperRow(index)];
  const QString text = IsBelow(index) ? ToQString(kind.Lines[static_cast<std::size_t>(index.row())])
                                      : tr("%1: %2").arg(kind.Title).arg(kind.Lines.Count());
  return role == Qt::ToolTipRole ? PlainToolTip(text) : text;
}

}  // namespace tolvi
