#include "apps/designer/taskmenu.h"

#include <QAction>
#include <QColor>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>

#include "apps/designer/propertypage.h"
#include <tolvi/panel/titlefiles.h>
#include <tolvi/ui/dialogs/titlesdlg.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// As a step that the developer can undo.
void SetInForm(QWidget& widget, const QVariantMap& values) {
  QDesignerFormWindowInterface* form = QDesignerFormWindowInterface::findFormWindow(&widget);
  if (!form) return;
  for (auto value = values.begin(); value != values.end(); ++value) {
    // A form cannot say "no colour".
    const bool noColor = value->typeId() == QMetaType::QColor && !value->value<QColor>().isValid();
    if (noColor)
      form->cursor()->resetWidgetProperty(&widget, value.key());
    else
      form->cursor()->setWidgetProperty(&widget, value.key(), value.value());
  }
}

}  // namespace

TTaskMenu::TTaskMenu(const TDesignWidget& kind, QWidget& widget, QObject* parent)
    : QObject(parent), FKind(kind), FWidget(widget) {
  const auto add = [this](const QString& text, void (TTaskMenu::*run)()) {
    auto* action = new QAction(text, this);
    connect(action, &QAction::triggered, this, run);
    FActions << action;
  };
  add(tr("Properties and preview..."), &TTaskMenu::EditProperties);
  if (kind.TitlesProperty) add(tr("Edit titles..."), &TTaskMenu::EditTitles);
}

void TTaskMenu::EditProperties() {
  TPropertyPage page(FKind, FWidget, FWidget.window());
  if (page.exec() == QDialog::Accepted) SetInForm(FWidget, page.GetChanges());
}

void TTaskMenu::EditTitles() {
  const TStrings& defaults = FKind.DefaultTitles();
  TStrings titles = TitlesFromFile(defaults, FromQStringList(FWidget.property(FKind.TitlesProperty).toStringList()));
  if (!tolvi::EditTitles(FWidget.window(), defaults, titles)) return;
  SetInForm(FWidget, {{QLatin1String(FKind.TitlesProperty), ToQStringList(ChangedTitles(defaults, titles))}});
}

QObject* TTaskMenuFactory::createExtension(QObject* object, const QString& iid, QObject* parent) const {
  auto* widget = qobject_cast<QWidget*>(object);
  const TDesignWidget* kind = widget ? DesignWidgetOf(*widget) : nullptr;
  return kind && iid == Q_TYPEID(QDesignerTaskMenuExtension) ? new TTaskMenu(*kind, *widget, parent) : nullptr;
}

}  // namespace tolvi
