// What keys do to the boxes and lines of the structure designer.
#include <QKeyEvent>
#include <algorithm>

#include <tolvi/ui/panels/stdsgestures.h>
#include <tolvi/ui/panels/stdspnl.h>

namespace tolvi {
namespace {

/// How far an arrow key goes, in pixels.
constexpr int ArrowStep = 8;

/// They come before the key that they modify.
bool IsModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
         key == Qt::Key_AltGr;
}

/// The entry behind or before that one, round the ends; the first one when it is none. The list is not empty.
template <typename T>
T& NextOf(const TJObjectList<T>& list, const T* entry, bool forward) {
  const auto count = static_cast<std::ptrdiff_t>(list.Count());
  const std::ptrdiff_t at = list.IndexOf(entry);
  return list[static_cast<std::size_t>(at < 0 ? 0 : (at + (forward ? 1 : count - 1)) % count)];
}

}  // namespace

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
    Stop();
    FPanel.CancelStep();
    return true;
  }
  if (FGesture == gsBand) {
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
  if (FGesture != gsArrows) {
    Stop();
    Begin(gsArrows, TJStructDesignPanel::tr(isSizing ? "Resize table" : "Move tables"));
  }
  FStartPlaces.clear();
  for (TTableRep* box : FPanel.ChosenBoxes()) {
    TDesignRect place = box->GetPlace();
    if (isSizing) {
      const TDesignSize least = box->MinSize();
      place.Width = std::max(least.Width, place.Width + right * way);
      place.Height = std::max(least.Height, place.Height + down * way);
    }
    FStartPlaces.emplace_back(box, place);
  }
  const QPointer<TJStructDesignPanel> guard(&FPanel);
  MoveBy(isSizing ? 0 : right * way, isSizing ? 0 : down * way);
  if (!guard || FGesture != gsArrows || !FPanel.GetActiveTable()) return true;
  FPanel.ContentChanged();
  const TTableRep& box = *FPanel.GetActiveTable();
  FPanel.DesignArea().BringIntoView(box.boundingRect().translated(box.pos()));
  FArrowsEnd.start();
  return true;
}

/// Before a key of another command, and before another widget has the keys, the series of arrows is complete.
bool TDesignGestures::eventFilter(QObject* watched, QEvent* event) {
  const bool isOtherKey = event->type() == QEvent::ShortcutOverride && FGesture == gsArrows;
  if (isOtherKey) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool isArrow = key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
    if (!isArrow && !IsModifier(key)) Stop();
  }
  if (event->type() == QEvent::FocusOut && FGesture == gsArrows) Stop();
  return QObject::eventFilter(watched, event);
}

void TDesignGestures::NextBox(bool forward) {
  const TTableRepList& boxes = FPanel.GetTablesRep();
  if (boxes.Empty()) return;
  TTableRep& box = NextOf(boxes, FPanel.GetActiveTable(), forward);
  FPanel.ChooseOnly(&box);
  FPanel.DesignArea().BringIntoView(box.boundingRect().translated(box.pos()));
  FPanel.SetActiveTable(&box);
}

void TDesignGestures::NextLink(bool forward) {
  const TLinkRepList& links = FPanel.GetLinksRep();
  if (links.Empty()) return;
  TLinkRep& link = NextOf(links, FPanel.GetActiveLink(), forward);
  FPanel.DesignArea().BringIntoView(link.boundingRect());
  FPanel.SetActiveLink(&link);
}

}  // namespace tolvi
