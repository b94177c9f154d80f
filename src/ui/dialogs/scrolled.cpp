#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QScrollArea>

#include <tolvi/ui/dialogs/scrolled.h>

namespace tolvi {
namespace {

/// Leaves the wheel to the area.
class TWheelGuard final : public QObject {
 public:
  using QObject::QObject;

  void Watch(QWidget& box) {
    box.setFocusPolicy(Qt::StrongFocus);
    box.installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) return false;
    event->ignore();
    return true;
  }
};

}  // namespace

QScrollArea* Scrolled(QWidget* form, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setWidget(form);
  // What lies below it shines through, as that of a tab does.
  area->viewport()->setAutoFillBackground(false);
  form->setAutoFillBackground(false);
  auto* guard = new TWheelGuard(area);
  for (QComboBox* box : form->findChildren<QComboBox*>()) guard->Watch(*box);
  for (QAbstractSpinBox* box : form->findChildren<QAbstractSpinBox*>()) guard->Watch(*box);
  return area;
}

}  // namespace tolvi
