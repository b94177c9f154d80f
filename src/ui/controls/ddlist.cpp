#include <QHash>
#include <algorithm>
#include <string>
#include <utility>

#include <tolvi/foundation/text.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/controls/itemlist.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

namespace {

bool IsGroupLine(const QString& line) { return line.startsWith(u'[') && line.endsWith(u']'); }

/// The values in a comma text, with those that no item has at the end.
struct TChosen {
  std::vector<int> items;
  std::vector<std::string> unknown;
};

TChosen ChosenItems(const QString& commaText, const std::vector<TDropDownItem>& items) {
  const std::vector<std::string> values = SplitCommaText(FromQString(commaText));
  TChosen result;
  if (values.empty()) return result;
  QHash<QString, int> firstItems;
  firstItems.reserve(static_cast<qsizetype>(items.size()));
  for (std::size_t item = items.size(); item-- > 0;) firstItems[items[item].Value] = static_cast<int>(item);
  for (const std::string& value : values) {
    const auto found = firstItems.constFind(ToQString(value));
    if (found == firstItems.cend())
      result.unknown.push_back(value);
    else
      result.items.push_back(*found);
  }
  return result;
}

}  // namespace

void TDropDownList::AddItem(const QString& group, const QString& value, const QString& text) {
  FItems.push_back({group, value, text});
  if (FItemIndex < 0 && !value.isEmpty() && value == GetValue()) FItemIndex = static_cast<int>(FItems.size()) - 1;
  TellList();
}

void TDropDownList::SetItems(std::vector<TDropDownItem> items) {
  FItems = std::move(items);
  FItemIndex = GetValue().isEmpty() ? -1 : FindValue(GetValue());
  TellList();
}

QStringList TDropDownList::GetItemLines() const {
  QStringList lines;
  QString group;
  for (const TDropDownItem& item : FItems) {
    if (item.Group != group) lines << u'[' + item.Group + u']';
    group = item.Group;
    const bool plain = !item.Text.isEmpty() && !item.Text.contains(u'=') && !IsGroupLine(item.Text);
    lines << (plain && item.Value == item.Text ? item.Text : item.Value + u'=' + item.Text);
  }
  return lines;
}

void TDropDownList::SetItemLines(const QStringList& lines) {
  std::vector<TDropDownItem> items;
  QString group;
  for (const QString& line : lines) {
    const qsizetype sign = line.indexOf(u'=');
    if (IsGroupLine(line))
      group = line.mid(1, line.size() - 2);
    else if (!line.isEmpty())
      items.push_back({group, sign < 0 ? line : line.left(sign), line.mid(sign + 1)});
  }
  const int index = FItemIndex >= 0 ? FItemIndex : FAwaitedIndex;
  SetItems(std::move(items));
  if (index >= 0)
    SetItemIndex(index);
  else if (FItemIndex >= 0 && GetCaption().isEmpty())
    SetItemIndex(FItemIndex);
}

int TDropDownList::FindValue(const QString& value) const {
  const auto found = std::ranges::find(FItems, value, &TDropDownItem::Value);
  return found == FItems.end() ? -1 : static_cast<int>(found - FItems.begin());
}

void TDropDownList::SetItemIndex(int index) {
  const bool inside = index >= 0 && index < static_cast<int>(FItems.size());
  const TDropDownItem item = inside ? FItems[static_cast<size_t>(index)] : TDropDownItem();
  TDropDownLabel::SetValue(item.Value);
  FItemIndex = inside ? index : -1;
  if (FItems.empty()) FAwaitedIndex = index;
  SetCaption(item.Text);
}

void TDropDownList::SetValue(const QString& value) {
  TDropDownLabel::SetValue(value);
  FItemIndex = FindValue(value);
  FAwaitedIndex = -1;
}

void TDropDownList::SetBusy(bool busy) {
  FBusy = busy;
  TellList();
}

void TDropDownList::SetListFault(const QString& fault) {
  FListFault = fault;
  TellList();
}

TItemList* TDropDownList::List() const { return qobject_cast<TItemList*>(Editor()); }

void TDropDownList::TellList() {
  TItemList* list = List();
  if (!list) return;
  if (list->Model().Items() != FItems) FillList(*list);
  list->SetState(FBusy, FListFault);
  PlaceEditor();
}

void TDropDownList::FillList(TItemList& list) {
  list.SetItems(FItems);
  list.SetItemIndex(FItemIndex);
}

QWidget* TDropDownList::CreateEditor(QWidget* parent) { return MakeList(false, parent); }

TItemList* TDropDownList::MakeList(bool checkable, QWidget* parent) {
  const int headings = HasHeadings() ? TItemList::WithHeadings : TItemList::PlainList;
  auto* list = new TItemList(headings | (checkable ? TItemList::Checkable : TItemList::PlainList), parent);
  FillList(*list);
  list->SetState(FBusy, FListFault);
  connect(list, &TItemList::Accepted, this, [this] { DropUp(true); });
  return list;
}

bool TDropDownList::TakeFromEditor(QWidget& editor) {
  const int item = static_cast<TItemList&>(editor).GetItemIndex();
  if (item < 0) return false;
  SetItemIndex(item);
  return true;
}

QWidget* TDropDownCheckList::CreateEditor(QWidget* parent) { return MakeList(true, parent); }

void TDropDownCheckList::FillList(TItemList& list) {
  list.SetItems(Items());
  const std::vector<int> chosen = ChosenItems(GetValue(), Items()).items;
  list.Model().SetCheckedItems(chosen);
  list.SetItemIndex(chosen.empty() ? -1 : *std::ranges::min_element(chosen));
}

bool TDropDownCheckList::TakeFromEditor(QWidget& editor) {
  const TItemModel& model = static_cast<TItemList&>(editor).Model();
  std::vector<std::string> values;
  QStringList texts;
  for (int item = 0; item < static_cast<int>(Items().size()); ++item) {
    if (!model.IsChecked(item)) continue;
    const TDropDownItem& shown = Items()[static_cast<size_t>(item)];
    values.push_back(FromQString(shown.Value));
    texts.push_back(shown.Text);
  }
  for (const std::string& value : ChosenItems(GetValue(), Items()).unknown) {
    values.push_back(value);
    texts.push_back(ToQString(value));
  }
  SetValue(ToQString(ComposeCommaText(values)));
  SetCaption(texts.join(QStringLiteral(", ")));
  return true;
}

}  // namespace tolvi
