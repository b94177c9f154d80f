#include <algorithm>
#include <cstddef>

#include <tolvi/foundation/sections.h>
#include <tolvi/panel/titlefiles.h>
#include <tolvi/ui/controls/itemmodel.h>
#include <tolvi/ui/dialogs/titlesmodel.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

QStandardItem* MakeItem(const QString& text, Qt::ItemFlags flags) {
  auto* item = new QStandardItem(text);
  item->setFlags(flags);
  return item;
}

QString TextOf(const QModelIndex& index, int column) { return index.siblingAtColumn(column).data().toString(); }

}  // namespace

TTitlesModel::TTitlesModel(const TStrings& defaults, QObject* parent)
    : QStandardItemModel(0, ColumnCount, parent), FDefaults(defaults), FTexts(defaults.Count(), nullptr) {
  setHorizontalHeaderLabels({tr("Key"), tr("Default text"), tr("Text"), tr("Note")});
  constexpr Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  QStandardItem* section = invisibleRootItem();
  for (std::size_t i = 0; i < FDefaults.Count(); ++i) {
    const std::string& line = FDefaults[i];
    if (IsSectionHeader(line)) {
      section = MakeItem(ToQString(line).mid(1).chopped(1), Qt::ItemIsEnabled);
      section->setColumnCount(ColumnCount);
      appendRow(section);
    } else if (line.find('=') != std::string::npos) {
      const QString text = ToQString(FDefaults.ValueAt(i));
      FTexts[i] = MakeItem(text, shown | Qt::ItemIsEditable);
      section->appendRow(
          {MakeItem(ToQString(FDefaults.NameAt(i)), shown), MakeItem(text, shown), FTexts[i], MakeItem({}, shown)});
    }
  }
}

TStrings TTitlesModel::GetTitles() const {
  TStrings titles = FDefaults;
  for (std::size_t i = 0; i < FTexts.size(); ++i) {
    if (FTexts[i] != nullptr) {
      titles.SetLine(i, std::string(FDefaults.NameAt(i)) + "=" + FromQString(FTexts[i]->text()));
    }
  }
  return titles;
}

void TTitlesModel::SetTitles(const TStrings& titles) {
  const TStrings merged = TitlesFromFile(FDefaults, titles);
  for (std::size_t i = 0; i < FTexts.size(); ++i) {
    if (FTexts[i] != nullptr) setData(FTexts[i]->index(), ToQString(merged.ValueAt(i)), Qt::EditRole);
  }
}

bool TTitlesModel::IsChanged(const QModelIndex& index) const {
  return TextOf(index, ColText) != TextOf(index, ColDefault);
}

void TTitlesModel::Reset(const QModelIndex& index) { setData(index.siblingAtColumn(ColText), QString(), Qt::EditRole); }

bool TTitlesModel::IsAnyChanged() const {
  return std::ranges::any_of(FTexts, [this](const QStandardItem* text) { return text && IsChanged(text->index()); });
}

int TTitlesModel::GetFaultCount() const {
  return static_cast<int>(std::ranges::count_if(
      FTexts, [](const QStandardItem* text) { return text && !TextOf(text->index(), ColNote).isEmpty(); }));
}

QVariant TTitlesModel::data(const QModelIndex& index, int role) const {
  // Tool tips are read as rich text.
  if (role == Qt::ToolTipRole) return PlainToolTip(TextOf(index, index.column()));
  if (role == Qt::AccessibleTextRole && index.column() == ColText && itemFromIndex(index) != nullptr) {
    return QString(TextOf(index, ColKey) + QStringLiteral(": ") + TextOf(index, ColText));
  }
  if (role == Qt::AccessibleDescriptionRole && index.column() == ColText) return TextOf(index, ColNote);
  return QStandardItemModel::data(index, role);
}

bool TTitlesModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || index.column() != ColText || !index.flags().testFlag(Qt::ItemIsEditable)) return false;
  const QString byDefault = TextOf(index, ColDefault);
  QString text = value.toString();
  text.replace(u'\n', u' ').remove(u'\r');
  if (text.isEmpty()) text = byDefault;
  if (text == TextOf(index, ColText)) return true;
  QStandardItemModel::setData(index, text, role);
  const std::string fault = TitleFault(FromQString(byDefault), FromQString(text));
  QStandardItemModel::setData(index.siblingAtColumn(ColNote), ToQString(fault), Qt::EditRole);
  return true;
}

TTitlesFilter::TTitlesFilter(TTitlesModel& model, QObject* parent) : QSortFilterProxyModel(parent) {
  setDynamicSortFilter(false);
  setRecursiveFilteringEnabled(true);
  setSourceModel(&model);
}

void TTitlesFilter::Find(const QString& text) {
  FFolded = FoldedForSearch(text.trimmed());
  invalidateFilter();
}

bool TTitlesFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  if (FFolded.isEmpty()) return true;
  const QModelIndex index = sourceModel()->index(row, 0, parent);
  if (sourceModel()->hasChildren(index)) return false;  // shown with what is found in it
  for (int column = 0; column < TTitlesModel::ColumnCount; ++column) {
    if (FoldedForSearch(TextOf(index, column)).contains(FFolded)) return true;
  }
  return false;
}

}  // namespace tolvi
