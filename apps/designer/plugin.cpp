#include "apps/designer/plugin.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QExtensionManager>

#include "apps/designer/designwidgets.h"
#include "apps/designer/taskmenu.h"

namespace tolvi {

QString TDesignerWidget::name() const { return QLatin1String(FKind.Class); }

QString TDesignerWidget::toolTip() const { return QString::fromUtf8(FKind.ToolTip); }

QString TDesignerWidget::whatsThis() const { return QString::fromUtf8(FKind.WhatsThis); }

QString TDesignerWidget::includeFile() const { return QStringLiteral("<%1>").arg(QLatin1String(FKind.Header)); }

QIcon TDesignerWidget::icon() const { return ShapeIcon(FKind.Icon); }

QString TDesignerWidget::domXml() const { return DomXml(FKind); }

void TDesignerWidget::initialize(QDesignerFormEditorInterface* core) {
  if (!core || FInDesigner) return;
  FInDesigner = true;
  // One factory serves all widgets.
  QExtensionManager* manager = core->extensionManager();
  if (manager->findChild<TTaskMenuFactory*>()) return;
  manager->registerExtensions(new TTaskMenuFactory(manager), Q_TYPEID(QDesignerTaskMenuExtension));
}

QWidget* TDesignerWidget::createWidget(QWidget* parent) {
  QWidget* widget = FKind.Create(parent);
  if (FInDesigner && FKind.ShowExample) FKind.ShowExample(*widget);
  return widget;
}

TDesignerPlugin::TDesignerPlugin(QObject* parent) : QObject(parent) {
  for (const TDesignWidget& kind : DesignWidgets()) FWidgets << new TDesignerWidget(kind, this);
}

}  // namespace tolvi
