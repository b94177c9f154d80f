#include <QApplication>
#include <QKeyEvent>
#include <QRubberBand>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>

#include <tolvi/model/link.h>
#include <tolvi/model/table.h>
#include <tolvi/panel/stdsplaces.h>
#include <tolvi/ui/panels/stdsgestures.h>
#include <tolvi/ui/panels/stdspnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// How long after an arrow key the next one begins a new step, in milliseconds.
constexpr int ArrowsTime = 600;
/// Fields for one notch of the wheel.
constexpr int WheelFields = 3;

Qt::CursorShape CursorOf(Qt::Edges edges) {
  const bool sideways = edges & (Qt::LeftEdge | Qt::RightEdge), upward = edges & (Qt::TopEdge | Qt::BottomEdge);
  if (sideways && upward) {
    const bool isFalling = edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge);
    return isFalling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
  }
  return sideways ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

/// The place with the edges moved; the other edges stay, whatever the smallest size is.
TDesignRect Resized(TDesignRect place, Qt::Edges edges, int dx, int dy, TDesignSize least) {
  if (edges & Qt::RightEdge) place.Width = std::max(least.Width, place.Width + dx);
  if (edges & Qt::BottomEdge) place.Height = std::max(least.Height, place.Height + dy);
  if (edges & Qt::LeftEdge) {
    dx = std::max(-place.Left, std::min(dx, place.Width - least.Width));
    place.Left += dx;
    place.Width -= dx;
  }
  if (edges & Qt::TopEdge) {
    dy = std::max(-place.Top, std::min(dy, place.Height - least.Height));
    place.Top += dy;
    place.Height -= dy;
  }
  return place;
}

}  // namespace

TDesignGestures::TDesignGestures(TJStructDesignPanel& panel)
    : FPanel(panel), FBand(new QRubberBand(QRubberBand::Rectangle, panel.DesignArea().viewport())) {
  TJDesignArea& area = panel.DesignArea();
  area.OnPress = [this](QMouseEvent& event) { return Press(event); };
  area.OnMove = [this](QMouseEvent& event) { return Move(event); };
  area.OnRelease = [this](QMouseEvent& event) { return Release(event); };
  area.OnDoubleClick = [this](QMouseEvent& event) { return DoubleClick(event); };
  area.OnWheel = [this](QWheelEvent& event) { return Wheel(event); };
  area.OnKey = [this](QKeyEvent& event) { return Key(event); };
  FArrowsEnd.setSingleShot(true);
  FArrowsEnd.setInterval(ArrowsTime);
  connect(&FArrowsEnd, &QTimer::timeout, this, [this] { Stop(); });
  area.installEventFilter(this);
}

TDesignGestures::~TDesignGestures() = default;

TTableRep* TDesignGestures::BoxAt(TDesignPoint point) const {
  TTableRep* active = FPanel.GetActiveTable();
  if (active && active->GetPlace().Contains(point)) return active;
  TTableRep* found = nullptr;
  for (TTableRep& box : FPanel.GetTablesRep()) {
    if (box.GetPlace().Contains(point)) found = &box;
  }
  return found;
}

void TDesignGestures::Begin(TGesture gesture, const QString& stepName) {
  FGesture = gesture;
  FPanel.StopAnimation();
  FPanel.FMoving = true;
  FPanel.BeginStep(stepName);
  FPanel.StorePlaces();
  FStartPlaces.clear();
  for (TTableRep* box : FPanel.ChosenBoxes()) FStartPlaces.emplace_back(box, box->GetPlace());
}

void TDesignGestures::Stop() {
  const TGesture ended = std::exchange(FGesture, gsNone);
  FArrowsEnd.stop();
  FBand->hide();
  FBox = nullptr;
  FStartPlaces.clear();
  if (ended != gsMove && ended != gsResize && ended != gsArrows) return;
  FPanel.FMoving = false;
  FPanel.ContentChanged();
  FPanel.RefreshActions();
  FPanel.EndStep();
}

bool TDesignGestures::IsHere(const TTableRep* box) const { return FPanel.GetTablesRep().IndexOf(box) >= 0; }

void TDesignGestures::Forget(const TTableRep& box) {
  if (FBox == &box) FBox = nullptr;
  std::erase_if(FStartPlaces, [&](const auto& place) { return place.first == &box; });
}

bool TDesignGestures::Press(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || !FPanel.GetActive()) return false;
  Stop();
  FPanel.SyncWhenStale();
  FStart = event.pos();
  FStartContent = FPanel.DesignArea().ToContent(FStart);
  if (TTableRep* box = BoxAt(FStartContent)) return PressBox(*box, event);
  if (FPanel.GetAddLinkStage() != alsIdle) return true;
  // The mouse may not have moved since lines did.
  FPanel.SetCurrentLink(IsOverSomeLink(FPanel.GetLinksRep(), FStartContent));
  if (TLinkRep* link = FPanel.GetCurrentLink()) {
    FPanel.SetActiveLink(link);
    return true;
  }
  FGesture = gsBand;
  if (!(event.modifiers() & Qt::ControlModifier)) FPanel.ChooseOnly(nullptr);
  return true;
}

bool TDesignGestures::PressBox(TTableRep& box, const QMouseEvent& event) {
  const TTableRep::THit hit = box.HitAt(FStartContent);
  const QPointer<TJStructDesignPanel> guard(&FPanel);
  FPanel.SetActiveTable(&box);
  if (!guard || !IsHere(&box)) return true;
  if (event.modifiers() & Qt::ControlModifier) {
    box.SetChosen(!box.GetChosen());
  } else if (!box.GetChosen()) {
    FPanel.ChooseOnly(&box);
  }
  FBox = &box;
  const bool isAdding = FPanel.GetAddLinkStage() != alsIdle;
  if (hit.Part == TTableRep::bpField) {
    box.FieldsLB().SetItemIndex(static_cast<std::ptrdiff_t>(hit.Field));
    FGesture = gsField;
  } else if (hit.Part == TTableRep::bpList) {
    FGesture = gsField;
  } else if (hit.Part == TTableRep::bpScrollBar) {
    FGesture = gsThumb;
    box.FieldsLB().SetTopIndex(box.TopIndexAt(FStartContent.Y - box.GetPlace().Top));
  } else if (!isAdding && hit.Part == TTableRep::bpEdge) {
    FEdges = hit.Edges;
    FGesture = gsPressEdge;
  } else if (!isAdding && box.GetChosen()) {
    FGesture = gsPressTitle;
  }
  return true;
}

/// Whether boxes are being moved or sized. A click alone is no edit.
bool TDesignGestures::BeginDrag(const QMouseEvent& event, TDesignPoint point) {
  if (FGesture == gsMove || FGesture == gsResize) return !FStartPlaces.empty();
  if (!FBox) return false;
  const bool isFar = (event.pos() - FStart).manhattanLength() >= QApplication::startDragDistance();
  if (FGesture == gsPressTitle && isFar) Begin(gsMove, TJStructDesignPanel::tr("Move tables"));
  if (FGesture == gsPressEdge && point != FStartContent) {
    Begin(gsResize, TJStructDesignPanel::tr("Resize table"));
    if (FBox) FStartPlaces.assign(1, {FBox, FBox->GetPlace()});
  }
  return (FGesture == gsMove || FGesture == gsResize) && !FStartPlaces.empty();
}

void TDesignGestures::MoveBy(int dx, int dy) {
  // The boxes keep their distances at the edges of the content.
  for (const auto& [box, place] : FStartPlaces) {
    dx = std::max(dx, -place.Left);
    dy = std::max(dy, -place.Top);
  }
  FPanel.GetDBStruct()->AsOneChange([&] {
    for (const auto& [box, start] : FStartPlaces) {
      TDesignRect place = start;
      place.Left += dx;
      place.Top += dy;
      box->SetPlace(place);
      StorePlace(box->GetTable(), place);
    }
  });
}

bool TDesignGestures::Move(const QMouseEvent& event) {
  if (!FPanel.GetActive()) return false;
  FPanel.SyncWhenStale();
  if (FGesture != gsNone && FGesture != gsArrows && !(event.buttons() & Qt::LeftButton)) {
    // Another window took the release.
    const bool isLink = FGesture == gsDragField;
    Stop();
    if (isLink) FPanel.CancelAddLink();
    return true;
  }
  TJDesignArea& area = FPanel.DesignArea();
  const TDesignPoint point = area.ToContent(event.pos());
  const int dx = point.X - FStartContent.X, dy = point.Y - FStartContent.Y;
  const QPointer<TJStructDesignPanel> guard(&FPanel);
  switch (FGesture) {
    case gsPressTitle:
    case gsPressEdge:
    case gsMove:
    case gsResize:
      if (!BeginDrag(event, point)) return true;
      if (FGesture == gsMove) {
        MoveBy(dx, dy);
      } else {
        const auto& [box, start] = FStartPlaces.front();
        box->SetPlace(Resized(start, FEdges, dx, dy, box->MinSize()));
        StorePlace(box->GetTable(), box->GetPlace());
      }
      if (!guard || !FPanel.GetActive()) return true;
      FPanel.ContentChanged();
      area.BringIntoView(QRectF(point.X, point.Y, 1, 1));
      return true;
    case gsBand:
      // The area may have been scrolled.
      FBand->setGeometry(QRect(area.mapFromScene(FStartContent.X, FStartContent.Y), event.pos()).normalized());
      FBand->show();
      return true;
    case gsThumb:
      if (FBox) FBox->FieldsLB().SetTopIndex(FBox->TopIndexAt(point.Y - FBox->GetPlace().Top));
      return true;
    case gsField:
    case gsDragField:
      DragField(event);
      return true;
    default:
      break;
  }
  Hover(point);
  return false;
}

/// A field that is pulled away begins a link.
void TDesignGestures::DragField(const QMouseEvent& event) {
  const bool isFar = (event.pos() - FStart).manhattanLength() >= QApplication::startDragDistance();
  if (FGesture == gsField && isFar && FBox && FBox->FieldsLB().GetItemIndex() >= 0 &&
      FPanel.GetAddLinkStage() == alsIdle) {
    TTableRep* box = FBox;
    const QPointer<TJStructDesignPanel> guard(&FPanel);
    FPanel.StartAddLink();
    if (!guard || FPanel.GetAddLinkStage() != alsSelField1 || !IsHere(box)) return;
    FPanel.FirstFieldClick(*box);
    FGesture = gsDragField;
    FBox = nullptr;
  }
  Hover(FPanel.DesignArea().ToContent(event.pos()));
}

void TDesignGestures::Hover(TDesignPoint point) {
  TJDesignArea& area = FPanel.DesignArea();
  const TTableRep* box = BoxAt(point);
  if (FPanel.GetAddLinkStage() != alsIdle) {
    if (FPanel.GetNewLink()) FPanel.GetNewLink()->MoveSecondEnd(point);
    area.viewport()->setCursor(box ? Qt::PointingHandCursor : Qt::ArrowCursor);
    FPanel.ShowHint(dtNothing);
    return;
  }
  // Boxes hide the lines below them.
  TLinkRep* link = box ? nullptr : IsOverSomeLink(FPanel.GetLinksRep(), point);
  FPanel.SetCurrentLink(link);
  const TTableRep::THit hit = box ? box->HitAt(point) : TTableRep::THit();
  if (box && hit.Part == TTableRep::bpEdge) {
    area.viewport()->setCursor(CursorOf(hit.Edges));
  } else if (link) {
    area.viewport()->setCursor(Qt::PointingHandCursor);
  } else {
    area.viewport()->unsetCursor();
  }
  FPanel.ShowHint(link ? dtLink : IsOverSomeTable(FPanel.GetTablesRep(), point) ? dtTable : dtNothing);
  QString text;
  if (box) {
    text = hit.Part == TTableRep::bpField ? ToQString(box->FieldsLB().Items()[hit.Field]) : box->GetTitle();
  } else if (link) {
    text = ToQString(link->GetLink().GetDisplayName());
  }
  area.viewport()->setToolTip(PlainToolTip(text));
}

bool TDesignGestures::Release(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  const TGesture ended = FGesture;
  const TDesignPoint point = FPanel.DesignArea().ToContent(event.pos());
  TTableRep* box = BoxAt(point);
  if (ended == gsBand) {
    const QRect band = FBand->isVisible() ? FBand->geometry() : QRect();
    Stop();
    ChooseInBand(band);
    return true;
  }
  TTableRep* pressed = FBox;
  const QPointer<TJStructDesignPanel> guard(&FPanel);
  Stop();
  if (!guard || !IsHere(box)) box = nullptr;
  if (ended == gsField && box && box == pressed) {
    if (const TTableRep::TBoxEvent click = box->OnFieldClick) click(*box);
  } else if (ended == gsDragField) {
    const TTableRep::THit hit = box ? box->HitAt(point) : TTableRep::THit();
    if (hit.Part != TTableRep::bpField) {
      FPanel.CancelAddLink();
      return true;
    }
    box->FieldsLB().SetItemIndex(static_cast<std::ptrdiff_t>(hit.Field));
    if (const TTableRep::TBoxEvent click = box->OnFieldClick) click(*box);
  }
  return true;
}

void TDesignGestures::ChooseInBand(const QRect& inViewport) {
  if (inViewport.isNull()) return;
  const QRectF band = FPanel.DesignArea().mapToScene(inViewport).boundingRect();
  for (TTableRep& box : FPanel.GetTablesRep()) {
    if (band.intersects(box.boundingRect().translated(box.pos()))) box.SetChosen(true);
  }
  // What commands work on is among the chosen ones.
  const std::vector<TTableRep*> chosen = FPanel.ChosenBoxes();
  if (chosen.empty()) return;
  TTableRep* active = FPanel.GetActiveTable();
  FPanel.SetActiveTable(active && active->GetChosen() ? active : chosen.front());
}

bool TDesignGestures::DoubleClick(const QMouseEvent& event) {
  if (!FPanel.GetActive() || FPanel.GetAddLinkStage() != alsIdle) return false;
  const TDesignPoint point = FPanel.DesignArea().ToContent(event.pos());
  if (TTableRep* box = BoxAt(point)) {
    const TTableRep::THit hit = box->HitAt(point);
    if (hit.Part == TTableRep::bpTitle) FPanel.FitHeights();
  } else if (FPanel.GetCurrentLink()) {
    const QPointer<TJStructDesignPanel> guard(&FPanel);
    FPanel.SetActiveLink(FPanel.GetCurrentLink());
    if (guard) FPanel.EditActiveLink();
  }
  return true;
}

bool TDesignGestures::Wheel(const QWheelEvent& event) {
  FPanel.SyncWhenStale();
  TTableRep* box = BoxAt(FPanel.DesignArea().ToContent(event.position().toPoint()));
  const int turned = event.angleDelta().y();
  if (!box || turned == 0 || box->FieldsLB().MaxTopIndex() == 0) return false;
  // Touch pads turn by small parts of a notch.
  if ((FWheelRest < 0) != (turned < 0)) FWheelRest = 0;
  FWheelRest += turned * WheelFields;
  const int fields = FWheelRest / QWheelEvent::DefaultDeltasPerStep;
  FWheelRest -= fields * QWheelEvent::DefaultDeltasPerStep;
  box->FieldsLB().SetTopIndex(static_cast<std::ptrdiff_t>(box->FieldsLB().GetTopIndex()) - fields);
  return true;
}

}  // namespace tolvi
