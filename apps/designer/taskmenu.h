#pragma once

#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionFactory>

namespace tolvi {

struct TDesignWidget;

/// What Designer's context menu offers for a widget of Tolvi: the property page, and its texts where it has some.
class TTaskMenu final : public QObject, public QDesignerTaskMenuExtension {
  Q_OBJECT
  Q_INTERFACES(QDesignerTaskMenuExtension)

 public:
  TTaskMenu(const TDesignWidget& kind, QWidget& widget, QObject* parent);

  QAction* preferredEditAction() const override { return FActions.first(); }
  QList<QAction*> taskActions() const override { return FActions; }

 private:
  void EditProperties();
  void EditTitles();

  const TDesignWidget& FKind;
  QWidget& FWidget;
  QList<QAction*> FActions;
};

class TTaskMenuFactory final : public QExtensionFactory {
  Q_OBJECT

 public:
  using QExtensionFactory::QExtensionFactory;

 protected:
  QObject* createExtension(QObject* object, const QString& iid, QObject* parent) const override;
};

}  // namespace tolvi
