// The structure designer: making and placing boxes and lines.
#include <QStyle>
#include <QVariantAnimation>
#include <algorithm>
#include <unordered_set>

#include <tolvi/foundation/consts.h>
#include <tolvi/panel/stdslayout.h>
#include <tolvi/panel/stdsplaces.h>
#include <tolvi/ui/panels/stdsgestures.h>
#include <tolvi/ui/panels/stdspnl.h>

namespace tolvi {
namespace {

/// In milliseconds.
constexpr int AnimationTime = 250;

}  // namespace

void TJStructDesignPanel::BuildReps() {
  const THeldEvents held(*this);
  const bool wasLinkSelectedLast = FLinkSelectedLast;
  FStale = false;
  FCatalogueFails = false;
  for (TDSTable& table : FDBStruct->Tables()) {
    TTableRep& box = AddBox(table);
    const auto known = FMemory.find(table.GetTableAlias());
    if (known == FMemory.end()) continue;
    box.FieldsLB().SetTopIndex(static_cast<std::ptrdiff_t>(known->second.TopIndex));
    box.SetChosen(known->second.Chosen);
  }
  PlaceBoxes();
  AddLinks();
  const bool isFirst = FMemory.empty();
  TDSTable* activeTable = isFirst ? nullptr : FDBStruct->TableByName(tnAlias, FActiveAlias);
  TTableRep* first = FTablesRep.Empty() ? nullptr : &FTablesRep[0];
  SetActiveTable(activeTable ? FindTblRepByDSTable(activeTable) : first);
  const auto link = static_cast<std::size_t>(isFirst ? 0 : std::max<std::ptrdiff_t>(0, FActiveLinkIndex));
  SetActiveLink(FLinksRep.Empty() ? nullptr : &FLinksRep[std::min(link, FLinksRep.Count() - 1)]);
  FLinkSelectedLast = wasLinkSelectedLast;
  ContentChanged();
  RefreshActions();
}

/// Boxes without a place: all are arranged, but for a model that has been shown already only the new ones are placed.
void TJStructDesignPanel::PlaceBoxes() {
  std::vector<TTableRep*> unknown;
  bool isShown = false;
  FDesignPositionsDefined = true;
  for (TTableRep& box : FTablesRep) {
    const TDSTable& table = box.GetTable();
    const auto unstored = FUnstored.find(table.GetTableAlias());
    isShown = isShown || FMemory.contains(table.GetTableAlias());
    if (HasStoredPlace(table)) {
      box.SetPlace(StoredPlace(table));
      continue;
    }
    FDesignPositionsDefined = false;
    if (unstored != FUnstored.end()) {
      box.SetPlace(unstored->second);
    } else {
      unknown.push_back(&box);
    }
  }
  if (isShown) {
    for (TTableRep* box : unknown) PlaceNewBox(*box);
  } else if (!FDesignPositionsDefined) {
    ArrangeAll();
    FArrangeWhenShown = !isVisible();
  }
}

TTableRep& TJStructDesignPanel::AddBox(TDSTable& table) {
  TTableRep& box = FTablesRep.Add(std::make_unique<TTableRep>(table, FStyle));
  FBoxOf[&table] = &box;
  FillFieldsList(box);
  box.OnMove = [this](TTableRep& moved) { BoxMoved(moved); };
  FDesignArea->scene()->addItem(&box);
  return box;
}

bool TJStructDesignPanel::IsConnected() const {
  const TJDBInfo* info = FDBStruct.Get() ? FDBStruct->GetDatabaseInfo() : nullptr;
  return info && info->GetConnected() && !FCatalogueFails;
}

void TJStructDesignPanel::FillFieldsList(TTableRep& box) {
  box.FieldsLB().SetSource(box.GetTable().GetFullName());
  if (!IsConnected()) {
    box.FieldsLB().SetMessage(SNotConnected);
    return;
  }
  TJDBInfo& info = *FDBStruct->GetDatabaseInfo();
  TStrings names, keys;
  try {
    info.GetFieldNamesByTable(box.FieldsLB().GetSource(), names);
    info.GetKeyNames(box.FieldsLB().GetSource(), keys);
  } catch (const std::exception&) {
    // A catalogue that fails once would fail, and perhaps wait, for every table.
    FCatalogueFails = true;
    box.FieldsLB().SetMessage(SNotConnected);
    return;
  }
  if (names.Empty()) {
    box.FieldsLB().SetMessage(STableNotFound);
    return;
  }
  box.FieldsLB().SetItems(names);
  box.FieldsLB().SetKeys(keys);
}

void TJStructDesignPanel::RefreshFields() {
  if (!FActive) return;
  SyncWhenStale();
  FCatalogueFails = false;
  for (TTableRep& box : FTablesRep) FillFieldsList(box);
  RefreshLinkedMarks();
  InvalidateLinks();
}

/// Lines for links without one; all lines take over what their links are now.
void TJStructDesignPanel::AddLinks() {
  std::unordered_map<const TDSLink*, TLinkRep*> shown;
  for (TLinkRep& link : FLinksRep) shown.emplace(&link.GetLink(), &link);
  FLinksOf.clear();
  for (TDSLink& link : FDBStruct->Links()) {
    TTableRep& box1 = *FBoxOf.at(link.GetTable1());
    TTableRep& box2 = *FBoxOf.at(link.GetTable2());
    TLinkRep*& rep = shown[&link];
    if (rep) {
      // The tables may have changed places.
      rep->SetTableReps(box1, box2);
      rep->RefreshFields();
    } else {
      rep = &FLinksRep.Add(std::make_unique<TLinkRep>(link, box1, box2, FStyle));
      FDesignArea->scene()->addItem(rep);
    }
    FLinksOf[&box1].push_back(rep);
    if (&box1 != &box2) FLinksOf[&box2].push_back(rep);
  }
  RefreshLinkedMarks();
}

void TJStructDesignPanel::RefreshLinkedMarks() {
  for (TTableRep& box : FTablesRep) {
    std::vector<std::string> names;
    const auto links = FLinksOf.find(&box);
    if (links != FLinksOf.end()) {
      for (const TLinkRep* link : links->second) {
        for (const bool second : {false, true}) {
          if ((second ? &link->GetTableRep2() : &link->GetTableRep1()) != &box) continue;
          for (const TLinkNode& node : second ? link->Nodes2() : link->Nodes1()) names.push_back(node.FieldName);
        }
      }
    }
    box.FieldsLB().SetLinked(names);
  }
}

void TJStructDesignPanel::DropLink(std::size_t index) {
  TLinkRep& link = FLinksRep[index];
  if (&link == FActiveLink) {
    FActiveLink = nullptr;
    const std::size_t next = index + 1 < FLinksRep.Count() ? index + 1 : index - 1;
    if (FLinksRep.Count() > 1) SetActiveLink(&FLinksRep[next]);
  }
  if (&link == FCurrentLink) FCurrentLink = nullptr;
  if (&link == FFinishedLink) FFinishedLink = nullptr;
  for (const TTableRep* box : {&link.GetTableRep1(), &link.GetTableRep2()}) std::erase(FLinksOf[box], &link);
  const std::unique_ptr<TLinkRep> dropped = FLinksRep.Delete(index);
}

void TJStructDesignPanel::DropBox(std::size_t index) {
  StopAnimation();
  TTableRep& box = FTablesRep[index];
  FGestures->Forget(box);
  if (&box == FActiveTable) {
    FActiveTable = nullptr;
    const std::size_t next = index + 1 < FTablesRep.Count() ? index + 1 : index - 1;
    if (FTablesRep.Count() > 1) SetActiveTable(&FTablesRep[next]);
  }
  FLinksOf.erase(&box);
  FBoxOf.erase(&box.GetTable());
  const std::unique_ptr<TTableRep> dropped = FTablesRep.Delete(index);
}

TTableRep* TJStructDesignPanel::FindTblRepByDSTable(const TDSTable* table) const {
  const auto found = FBoxOf.find(table);
  return found == FBoxOf.end() ? nullptr : found->second;
}

TLinkRep* TJStructDesignPanel::FindLinkRepByDSLink(const TDSLink* link) const {
  for (TLinkRep& rep : FLinksRep) {
    if (&rep.GetLink() == link) return &rep;
  }
  return nullptr;
}

void TJStructDesignPanel::BoxMoved(TTableRep& box) {
  const auto links = FLinksOf.find(&box);
  if (links == FLinksOf.end()) return;
  for (TLinkRep* link : links->second) link->RecalcPositions();
}

void TJStructDesignPanel::InvalidateLinks() {
  SyncWhenStale();
  for (TLinkRep& link : FLinksRep) link.RecalcPositions();
}

void TJStructDesignPanel::ContentChanged() {
  QRectF all;
  std::vector<QRect> boxes;
  for (TTableRep& box : FTablesRep) {
    const TDesignRect& place = box.GetPlace();
    boxes.emplace_back(place.Left, place.Top, place.Width, place.Height);
    all |= QRectF(boxes.back());
  }
  // Under the hand that drags boxes the view must not slip away.
  FDesignArea->SetContent(all, !FMoving);
  FDesignArea->Minimap().SetBoxes(std::move(boxes));
}

// Places

std::vector<TDesignSize> TJStructDesignPanel::BoxSizes() const {
  std::vector<TDesignSize> sizes;
  for (const TTableRep& box : FTablesRep) sizes.push_back({box.GetPlace().Width, box.GetPlace().Height});
  return sizes;
}

void TJStructDesignPanel::ArrangeAll() {
  const std::vector<TDesignPoint> places = ArrangeTables(BoxSizes(), FDesignArea->ClientWidth(), FArrange);
  for (std::size_t i = 0; i < places.size(); ++i) {
    const TDesignRect& place = FTablesRep[i].GetPlace();
    FTablesRep[i].SetPlace({places[i].X, places[i].Y, place.Width, place.Height});
    FUnstored[FTablesRep[i].GetTable().GetTableAlias()] = FTablesRep[i].GetPlace();
  }
}

void TJStructDesignPanel::PlaceNewBox(TTableRep& added) {
  std::vector<TDesignRect> others;
  for (const TTableRep& box : FTablesRep) {
    if (&box != &added) others.push_back(box.GetPlace());
  }
  const TDesignRect& size = added.GetPlace();
  const TDesignPoint at = ArrangeNewTable(others, {size.Width, size.Height}, FDesignArea->ClientWidth(), FArrange);
  added.SetPlace({at.X, at.Y, size.Width, size.Height});
  FUnstored[added.GetTable().GetTableAlias()] = added.GetPlace();
}

void TJStructDesignPanel::MoveBoxes(const std::vector<std::pair<TTableRep*, TDesignRect>>& places,
                                    const QString& stepName) {
  if (!FActive) return;
  FGestures->Stop();
  StopAnimation();
  const QPointer<TJStructDesignPanel> guard(this);
  const THeldEvents held(*this);
  for (const auto& [box, place] : places) box->SetPlace(place);
  FMoving = true;
  EditModel(stepName, [] {});
  if (!guard) return;
  FMoving = false;
  ContentChanged();
}

void TJStructDesignPanel::RearrangeTables() {
  if (!FActive) return;
  SyncWhenStale();
  GoTo(ArrangeTables(BoxSizes(), FDesignArea->ClientWidth(), FArrange), tr("Arrange tables in rows"));
}

void TJStructDesignPanel::LayOutByLinks() {
  if (!FActive) return;
  SyncWhenStale();
  std::unordered_map<const TTableRep*, std::size_t> indexes;
  for (const TTableRep& box : FTablesRep) indexes.emplace(&box, indexes.size());
  std::vector<TBoxLink> links;
  for (const TLinkRep& link : FLinksRep) {
    links.push_back({indexes.at(&link.GetTableRep1()), indexes.at(&link.GetTableRep2())});
  }
  GoTo(LayOutTables(BoxSizes(), links, FArrange), tr("Arrange tables by links"));
}

/// The model has the new places at once; the boxes glide to them.
void TJStructDesignPanel::GoTo(const std::vector<TDesignPoint>& places, const QString& stepName) {
  StopAnimation();
  std::vector<std::pair<TTableRep*, TDesignRect>> from, to;
  for (std::size_t i = 0; i < places.size(); ++i) {
    TTableRep& box = FTablesRep[i];
    const TDesignRect place = box.GetPlace();
    from.emplace_back(&box, place);
    to.emplace_back(&box, TDesignRect{places[i].X, places[i].Y, place.Width, place.Height});
  }
  const QPointer<TJStructDesignPanel> guard(this);
  MoveBoxes(to, stepName);
  if (!guard || FTablesRep.Count() != places.size() || FTablesRep.Empty() || from.front().first != &FTablesRep[0])
    return;
  const TTableRep& seen = FActiveTable ? *FActiveTable : FTablesRep[0];
  FDesignArea->centerOn(seen.sceneBoundingRect().center());
  const bool isAnimated = isVisible() && style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
  if (!isAnimated) return;
  auto* animation = new QVariantAnimation(this);
  FAnimation = animation;
  animation->setDuration(AnimationTime);
  animation->setStartValue(0.0);
  animation->setEndValue(1.0);
  connect(animation, &QVariantAnimation::valueChanged, this, [from, to](const QVariant& value) {
    const double part = value.toDouble();
    const auto between = [part](int one, int other) { return one + static_cast<int>((other - one) * part); };
    for (std::size_t i = 0; i < from.size(); ++i) {
      const TDesignRect &start = from[i].second, &end = to[i].second;
      from[i].first->SetPlace({between(start.Left, end.Left), between(start.Top, end.Top), end.Width, end.Height});
    }
  });
  connect(animation, &QVariantAnimation::finished, this, [this] { ContentChanged(); });
  animation->start(QAbstractAnimation::DeleteWhenStopped);
}

void TJStructDesignPanel::StopAnimation() {
  if (!FAnimation) return;
  QVariantAnimation* animation = FAnimation;
  FAnimation.clear();
  // Jumps to the end, where the model has the boxes already.
  if (!FTablesRep.Empty()) animation->setCurrentTime(AnimationTime);
  animation->stop();
}

void TJStructDesignPanel::FitHeights() {
  if (!FActive) return;
  SyncWhenStale();
  StopAnimation();
  std::vector<std::pair<TTableRep*, TDesignRect>> places;
  for (TTableRep* box : ChosenBoxes()) {
    TDesignRect place = box->GetPlace();
    place.Height = box->FittingHeight();
    places.emplace_back(box, place);
  }
  if (!places.empty()) MoveBoxes(places, tr("Fit height"));
}

}  // namespace tolvi
