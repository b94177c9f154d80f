#pragma once

#include <QList>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace tolvi {

struct TDesignWidget;

/// One of the widgets, as Designer and form loaders see it. Only in Designer it shows an example.
class TDesignerWidget final : public QObject, public QDesignerCustomWidgetInterface {
  Q_OBJECT
  Q_INTERFACES(QDesignerCustomWidgetInterface)

 public:
  TDesignerWidget(const TDesignWidget& kind, QObject* parent) : QObject(parent), FKind(kind) {}

  QString name() const override;
  QString group() const override { return QStringLiteral("Tolvi"); }
  QString toolTip() const override;
  QString whatsThis() const override;
  QString includeFile() const override;
  QIcon icon() const override;
  QString domXml() const override;
  bool isContainer() const override { return false; }
  bool isInitialized() const override { return FInDesigner; }
  /// Called by Designer, not by form loaders.
  void initialize(QDesignerFormEditorInterface* core) override;
  QWidget* createWidget(QWidget* parent) override;

 private:
  const TDesignWidget& FKind;
  bool FInDesigner = false;
};

class TDesignerPlugin final : public QObject, public QDesignerCustomWidgetCollectionInterface {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
  Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

 public:
  explicit TDesignerPlugin(QObject* parent = nullptr);

  QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return FWidgets; }

 private:
  QList<QDesignerCustomWidgetInterface*> FWidgets;
};

}  // namespace tolvi
