#include <QAccessibleWidget>

#include <tolvi/ui/controls/ddlabel.h>
#include <tolvi/ui/controls/ddlabelaccess.h>

namespace tolvi {

namespace {

class TLabelAccess final : public QAccessibleWidget {
 public:
  explicit TLabelAccess(TDropDownLabel& label) : QAccessibleWidget(&label, QAccessible::ComboBox) {}

  QString text(QAccessible::Text kind) const override {
    const TDropDownLabel& label = Label();
    QString shown = label.GetCaption().isEmpty() ? label.GetPlaceholder() : label.GetCaption();
    switch (kind) {
      case QAccessible::Name:
        return label.accessibleName().isEmpty() ? shown : label.accessibleName();
      case QAccessible::Value:
        return shown;
      case QAccessible::Description:
        return label.GetFault().isEmpty() ? label.accessibleDescription() : label.GetFault();
      default:
        return QAccessibleWidget::text(kind);
    }
  }

  QAccessible::State state() const override {
    QAccessible::State result = QAccessibleWidget::state();
    result.hasPopup = true;
    result.expandable = true;
    result.expanded = Label().IsDroppedDown();
    result.collapsed = !result.expanded;
    result.readOnly = Label().GetReadOnly();
    return result;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (!Label().GetReadOnly() && Label().isEnabled()) names.prepend(showMenuAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name == showMenuAction())
      Label().DropDown();
    else
      QAccessibleWidget::doAction(name);
  }

 private:
  TDropDownLabel& Label() const { return static_cast<TDropDownLabel&>(*object()); }
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  auto* label = qobject_cast<TDropDownLabel*>(object);
  return label ? new TLabelAccess(*label) : nullptr;
}

}  // namespace

void InstallLabelAccess() {
  static const bool installed = (QAccessible::installFactory(&MakeAccess), true);
  static_cast<void>(installed);
}

}  // namespace tolvi
