#include <QApplication>
#include <QKeyEvent>
#include <QRubberBand>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>

#include <tolvi/model/link.h>
#include <tolvi/model/table.h>
#include <tolvi/ui/panels/stdsgestures.h>
#include <tolvi/ui/panels/stdspnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// How far an arrow key goes, in pixels; how long after the last one the next begins a new step, in milliseconds.
constexpr int ArrowStep = 8, ArrowsTime = 600;
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

/// They come before the key that they modify.
bool IsModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
         key == Qt::Key_AltGr;
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
  FPanel.FEditor->Begin(FromQString(stepName));
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
  FPanel.FEditor->End();
  FPanel.RefreshActions();
}

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
  if (TLinkRep* link = FPanel.GetCurrentLink()) {
    FPanel.SetActiveLink(link);
    return true;
  }
  FGesture = gsBand;
  if (!(event.modifiers() & Qt::ControlModifier)) FPanel.ChooseOnly(nullptr);
  return true;
}

bool TDesignGestures::PressBox(TTableRep& box, const QMouseEvent& event) {
  const TTableRep::THit hit =
      box.HitAt(QPointF(FStartContent.X - box.GetPlace().Left, FStartContent.Y - box.GetPlace().Top));
  const QPointer<TJStructDesignPanel> guard(&FPanel);
  FPanel.SetActiveTable(&box);
  if (!guard || !FPanel.FindTblRepByDSTable(&box.GetTable())) return true;
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
    Begin(gsResize, TJStructDesignPanel::tr("Resize table"));
    FStartPlaces.assign(1, {&box, box.GetPlace()});
  } else if (!isAdding && box.GetChosen()) {
    Begin(gsMove, TJStructDesignPanel::tr("Move tables"));
  }
  return true;
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
      box->GetTable().SetDesignPositions({place.Left, place.Top, place.Width, place.Height});
    }
  });
}

bool TDesignGestures::Move(const QMouseEvent& event) {
  if (!FPanel.GetActive()) return false;
  FPanel.SyncWhenStale();
  TJDesignArea& area = FPanel.DesignArea();
  const TDesignPoint point = area.ToContent(event.pos());
  const int dx = point.X - FStartContent.X, dy = point.Y - FStartContent.Y;
  switch (FGesture) {
    case gsMove:
    case gsResize:
      if (FStartPlaces.empty()) return true;
      if (FGesture == gsMove) {
        MoveBy(dx, dy);
      } else {
        const auto& [box, start] = FStartPlaces.front();
        box->SetPlace(Resized(start, FEdges, dx, dy, box->MinSize()));
        const TDesignRect& place = box->GetPlace();
        box->GetTable().SetDesignPositions({place.Left, place.Top, place.Width, place.Height});
      }
      FPanel.ContentChanged();
      area.ensureVisible(QRectF(point.X, point.Y, 1, 1), 8, 8);
      return true;
    case gsBand:
      FBand->setGeometry(QRect(FStart, event.pos()).normalized());
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
    if (!guard || FPanel.GetAddLinkStage() != alsSelField1) return;
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
  TLinkRep* link = IsOverSomeLink(FPanel.GetLinksRep(), point);
  FPanel.SetCurrentLink(link);
  const TTableRep::THit hit =
      box ? box->HitAt(QPointF(point.X - box->GetPlace().Left, point.Y - box->GetPlace().Top)) : TTableRep::THit();
  if (box && hit.Part == TTableRep::bpEdge) {
    area.viewport()->setCursor(CursorOf(hit.Edges));
  } else if (!box && link) {
    area.viewport()->setCursor(Qt::PointingHandCursor);
  } else {
    area.viewport()->unsetCursor();
  }
  FPanel.ShowHint(link ? dtLink : IsOverSomeTable(FPanel.GetTablesRep(), point) ? dtTable : dtNothing);
  ShowToolTip(point);
}

void TDesignGestures::ShowToolTip(TDesignPoint point) {
  QString text;
  if (const TTableRep* box = BoxAt(point)) {
    const TTableRep::THit hit = box->HitAt(QPointF(point.X - box->GetPlace().Left, point.Y - box->GetPlace().Top));
    text = hit.Part == TTableRep::bpField ? ToQString(box->FieldsLB().Items()[hit.Field]) : box->GetTitle();
  } else if (const TLinkRep* link = FPanel.GetCurrentLink()) {
    text = ToQString(link->GetLink().GetDisplayName());
  }
  FPanel.DesignArea().viewport()->setToolTip(text.toHtmlEscaped());
}

bool TDesignGestures::Release(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  const TGesture ended = FGesture;
  const TDesignPoint point = FPanel.DesignArea().ToContent(event.pos());
  TTableRep* box = BoxAt(point);
  if (ended == gsBand) ChooseInBand();
  TTableRep* pressed = FBox;
  Stop();
  if (ended == gsField && box && box == pressed) {
    if (const TTableRep::TBoxEvent click = box->OnFieldClick) click(*box);
  } else if (ended == gsDragField) {
    if (!box ||
        box->HitAt(QPointF(point.X - box->GetPlace().Left, point.Y - box->GetPlace().Top)).Part != TTableRep::bpField) {
      FPanel.CancelAddLink();
      return true;
    }
    box->FieldsLB().SetItemIndex(static_cast<std::ptrdiff_t>(
        box->HitAt(QPointF(point.X - box->GetPlace().Left, point.Y - box->GetPlace().Top)).Field));
    if (const TTableRep::TBoxEvent click = box->OnFieldClick) click(*box);
  }
  return true;
}

void TDesignGestures::ChooseInBand() {
  if (!FBand->isVisible()) return;
  const QRectF band = FPanel.DesignArea().mapToScene(FBand->geometry()).boundingRect();
  for (TTableRep& box : FPanel.GetTablesRep()) {
    if (band.intersects(box.boundingRect().translated(box.pos()))) box.SetChosen(true);
  }
}

bool TDesignGestures::DoubleClick(const QMouseEvent& event) {
  if (!FPanel.GetActive() || FPanel.GetAddLinkStage() != alsIdle) return false;
  const TDesignPoint point = FPanel.DesignArea().ToContent(event.pos());
  if (TTableRep* box = BoxAt(point)) {
    const TTableRep::THit hit = box->HitAt(QPointF(point.X - box->GetPlace().Left, point.Y - box->GetPlace().Top));
    if (hit.Part == TTableRep::bpTitle) FPanel.FitHeights();
  } else if (FPanel.GetCurrentLink()) {
    FPanel.SetActiveLink(FPanel.GetCurrentLink());
    FPanel.EditActiveLink();
  }
  return true;
}

bool TDesignGestures::Wheel(const QWheelEvent& event) {
  TTableRep* box = BoxAt(FPanel.DesignArea().ToContent(event.position().toPoint()));
  const int notches = event.angleDelta().y();
  if (!box || notches == 0 || box->FieldsLB().MaxTopIndex() == 0) return false;
  const int fields = notches * WheelFields / QWheelEvent::DefaultDeltasPerStep;
  box->FieldsLB().SetTopIndex(static_cast<std::ptrdiff_t>(box->FieldsLB().GetTopIndex()) - fields);
  return true;
}

bool TDesignGestures::Key(QKeyEvent& event) {
  if (!FPanel.GetActive() || IsModifier(event.key())) return false;
  FPanel.SyncWhenStale();
  if (FPanel.OnKeyPress) {
    const auto told = FPanel.OnKeyPress;
    const QPointer<TJStructDesignPanel> guard(&FPanel);
    if (told(FPanel, event) || !guard) return true;
  }
  if (FPanel.GetAddLinkStage() != alsIdle) return KeyWhileAdding(event);
  const bool isPlain = event.key() == Qt::Key_Escape || event.key() == Qt::Key_Delete || event.key() == Qt::Key_Return;
  if (QAction* action = isPlain ? nullptr : FPanel.ActionOf(event)) {
    Stop();
    action->trigger();
    return true;
  }
  if (event.key() == Qt::Key_Escape) return CancelByEscape();
  if (ArrowKey(event)) return true;
  Stop();
  return KeyOnBox(event);
}

/// What is being dragged goes back, else the full screen ends.
bool TDesignGestures::CancelByEscape() {
  if (FGesture == gsMove || FGesture == gsResize) {
    FGesture = gsNone;
    FPanel.FMoving = false;
    FPanel.FEditor->Cancel();
    Stop();
    return true;
  }
  if (!FPanel.GetFullScreenMode()) return false;
  FPanel.SetFullScreenMode(false);
  return true;
}

bool TDesignGestures::KeyWhileAdding(const QKeyEvent& event) {
  TTableRep* box = FPanel.GetActiveTable();
  switch (event.key()) {
    case Qt::Key_Escape:
      FPanel.CancelAddLink();
      return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      NextBox(event.key() == Qt::Key_Tab);
      return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
      if (box) {
        const std::ptrdiff_t index = box->FieldsLB().GetItemIndex() + (event.key() == Qt::Key_Down ? 1 : -1);
        const auto last = static_cast<std::ptrdiff_t>(box->FieldsLB().Items().size()) - 1;
        box->FieldsLB().SetItemIndex(std::clamp<std::ptrdiff_t>(index, 0, last));
        FPanel.RefreshAccessibleText();
      }
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (box && box->OnFieldClick) {
        const TTableRep::TBoxEvent click = box->OnFieldClick;
        click(*box);
      }
      return true;
    default:
      return false;
  }
}

bool TDesignGestures::KeyOnBox(const QKeyEvent& event) {
  const bool isControl = event.modifiers() & Qt::ControlModifier;
  TTableRep* box = FPanel.GetActiveTable();
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab: {
      const bool forward = event.key() == Qt::Key_Tab;
      const TTableRepList& boxes = FPanel.GetTablesRep();
      // At the end Tab leaves the diagram.
      if (boxes.Empty() || isControl || box == &boxes[forward ? boxes.Count() - 1 : 0]) return false;
      NextBox(forward);
      return true;
    }
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      if (isControl) {
        NextLink(event.key() == Qt::Key_PageDown);
      } else if (box) {
        const auto page = static_cast<std::ptrdiff_t>(box->FieldsLB().VisibleCount());
        box->FieldsLB().SetTopIndex(static_cast<std::ptrdiff_t>(box->FieldsLB().GetTopIndex()) +
                                    (event.key() == Qt::Key_PageDown ? page : -page));
      }
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (isControl) return false;
      FPanel.EditActiveLink();
      return true;
    case Qt::Key_Delete:
      FPanel.AskToDelete();
      return true;
    default:
      return false;
  }
}

/// Arrows in quick succession are one step.
bool TDesignGestures::ArrowKey(const QKeyEvent& event) {
  const int right = (event.key() == Qt::Key_Right) - (event.key() == Qt::Key_Left);
  const int down = (event.key() == Qt::Key_Down) - (event.key() == Qt::Key_Up);
  if ((right == 0 && down == 0) || !FPanel.GetActiveTable()) return false;
  if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return false;
  if (FPanel.ChosenBoxes().empty()) FPanel.ChooseOnly(FPanel.GetActiveTable());
  const bool isSizing = event.modifiers() & Qt::ShiftModifier;
  const int way = event.modifiers() & Qt::ControlModifier ? 1 : ArrowStep;
  if (FGesture != gsArrows) Begin(gsArrows, TJStructDesignPanel::tr(isSizing ? "Resize table" : "Move tables"));
  FStartPlaces.clear();
  for (TTableRep* box : FPanel.ChosenBoxes()) {
    TDesignRect place = box->GetPlace();
    if (isSizing) {
      place = Resized(place, Qt::RightEdge | Qt::BottomEdge, right * way, down * way, box->MinSize());
    }
    FStartPlaces.emplace_back(box, place);
  }
  MoveBy(isSizing ? 0 : right * way, isSizing ? 0 : down * way);
  FPanel.ContentChanged();
  const TTableRep& box = *FPanel.GetActiveTable();
  FPanel.DesignArea().ensureVisible(box.boundingRect().translated(box.pos()), 8, 8);
  FArrowsEnd.start();
  return true;
}

void TDesignGestures::NextBox(bool forward) {
  const TTableRepList& boxes = FPanel.GetTablesRep();
  if (boxes.Empty()) return;
  const auto count = static_cast<std::ptrdiff_t>(boxes.Count());
  const std::ptrdiff_t at = boxes.IndexOf(FPanel.GetActiveTable());
  const std::ptrdiff_t next = at < 0 ? 0 : (at + (forward ? 1 : count - 1)) % count;
  TTableRep& box = boxes[static_cast<std::size_t>(next)];
  FPanel.ChooseOnly(&box);
  FPanel.DesignArea().ensureVisible(box.boundingRect().translated(box.pos()), 8, 8);
  FPanel.SetActiveTable(&box);
}

void TDesignGestures::NextLink(bool forward) {
  const TLinkRepList& links = FPanel.GetLinksRep();
  if (links.Empty()) return;
  const auto count = static_cast<std::ptrdiff_t>(links.Count());
  const std::ptrdiff_t at = links.IndexOf(FPanel.GetActiveLink());
  const std::ptrdiff_t next = at < 0 ? 0 : (at + (forward ? 1 : count - 1)) % count;
  TLinkRep& link = links[static_cast<std::size_t>(next)];
  FPanel.DesignArea().ensureVisible(link.boundingRect(), 8, 8);
  FPanel.SetActiveLink(&link);
}

}  // namespace tolvi
