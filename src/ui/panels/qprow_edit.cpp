// What the labels of a row offer, and what becomes of it.
#include <QApplication>
#include <QPointer>
#include <algorithm>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

std::vector<TDropDownItem> LinkWordItems(const TFilterBracket& bracket) {
  static constexpr std::pair<TFilterLinkType, std::string_view> words[] = {
      {fltAll, "ttlAll"}, {fltAny, "ttlAny"}, {fltNone, "ttlNone"}, {fltNotAll, "ttlNotAll"}};
  const TJQueryPanel& panel = bracket.GetQueryPanel();
  std::vector<TDropDownItem> items;
  for (const auto& [linkType, title] : words) {
    if (!panel.GetLinkTypes().Contains(linkType) && bracket.GetLinkType() != linkType) continue;
    items.push_back({QString(), QString::number(linkType), ToQString(panel.GetTitle(title))});
  }
  return items;
}

std::vector<TDropDownItem> OperatorItems(const TSimpleCond& condition) {
  std::vector<TDropDownItem> items;
  for (const TDSOperator* op : condition.GetField().Operators()) {
    items.push_back({QString(), ToQString(op->GetName()), ToQString(op->GetDisplayName())});
  }
  return items;
}

}  // namespace

TQPRow::TPart* TQPRow::PartOf(const TDropDownLabel& label) {
  if (FRow == nullptr) return nullptr;
  const auto found =
      std::find_if(FParts.begin(), FParts.end(), [&](const TPart& part) { return part.Label == &label; });
  return found != FParts.end() ? &*found : nullptr;
}

void TQPRow::BeforeEdit(TDropDownLabel& label) {
  const TPart* part = PartOf(label);
  if (part == nullptr) return;
  if (part->ValueIndex > 0) {
    auto& condition = static_cast<TFilterCond&>(*FRow);
    FValueBefore = LabelValue(part->ValueKind, condition, part->ValueIndex);
    PrepareLabel(label, part->ValueKind, condition, part->ValueIndex);
    if (part->ValueKind != TQPValueKind::qvFetchedItem && part->ValueKind != TQPValueKind::qvFetchedItems) return;
    const QPointer<TDropDownLabel> target(&label);
    QMetaObject::invokeMethod(
        this, [this, target] { Fetch(target); }, Qt::QueuedConnection);
    return;
  }
  auto& list = static_cast<TDropDownList&>(label);
  const QString caption = label.GetCaption();
  if (part->Kind == pkLinkWord) {
    const auto& bracket = static_cast<TFilterBracket&>(*FRow);
    list.SetItems(LinkWordItems(bracket));
    list.SetValue(QString::number(bracket.GetLinkType()));
  } else if (part->Kind == pkField) {
    list.SetItems(FView.FieldItems());
    list.SetValue(QString::number(static_cast<TSimpleCond&>(*FRow).GetFieldID()));
  } else {
    list.SetItems(OperatorItems(static_cast<TSimpleCond&>(*FRow)));
    list.SetValue(ToQString(static_cast<TSimpleCond&>(*FRow).GetOperatorName()));
  }
  list.SetCaption(caption);
  FValueBefore = list.GetValue();
}

void TQPRow::Fetch(const QPointer<TDropDownLabel>& label) {
  const TPart* part = label ? PartOf(*label) : nullptr;
  auto* editor = part == nullptr
                     ? nullptr
                     : dynamic_cast<TDSSQLEditor*>(static_cast<TFilterCond*>(FRow)->GetValueEditor(part->ValueIndex));
  if (editor == nullptr) return;
  // The list shows that it is busy first.
  if (QWidget* popup = QApplication::activePopupWidget()) popup->repaint();
  const QPointer<TQPRow> self(this);
  FView.FetchItems(*editor, [self, label](const QString& fault) {
    const TPart* own = self && label ? self->PartOf(*label) : nullptr;
    if (own != nullptr) ShowFetched(*label, static_cast<TFilterCond&>(*self->FRow), own->ValueIndex, fault);
  });
}

void TQPRow::AfterEdit(TDropDownLabel& label, bool accepted) {
  const TPart* part = PartOf(label);
  if (part == nullptr) return;
  const bool isParam = part->ValueKind == TQPValueKind::qvParam;
  // The label may hold a default value, or what its list calls the value.
  if (!accepted || (!isParam && IsSameValue(part->ValueKind, label.GetValue(), FValueBefore))) return Refresh();
  const TPart edited = *part;
  FView.Edit(*FRow, [this, &label, edited] { TakePartValue(label, edited); });
}

void TQPRow::TakePartValue(TDropDownLabel& label, const TPart& part) {
  if (part.ValueIndex > 0) {
    return TakeValue(label, part.ValueKind, static_cast<TFilterCond&>(*FRow), part.ValueIndex);
  }
  const TJCustomDBStructure* model = FRow->GetQueryPanel().GetDBStruct();
  if (part.Kind == pkLinkWord) {
    static_cast<TFilterBracket*>(FRow)->SetLinkType(static_cast<TFilterLinkType>(label.GetValue().toInt()));
  } else if (part.Kind == pkField) {
    TDSField* field = model->FieldByID(label.GetValue().toInt());
    if (field != nullptr) static_cast<TSimpleCond*>(FRow)->SetField(*field);
  } else if (TDSOperator* op = model->OperatorByName(FromQString(label.GetValue()))) {
    static_cast<TSimpleCond*>(FRow)->SetOperator(*op);
  }
}

}  // namespace tolvi
