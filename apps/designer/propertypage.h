#pragma once

#include <QDialog>
#include <QMap>
#include <QMetaProperty>
#include <QVariant>
#include <functional>
#include <vector>

#include "apps/designer/designwidgets.h"

class QFormLayout;

namespace tolvi {

/// The properties that Tolvi's classes add to those of Qt and that a form stores, base classes first.
std::vector<QMetaProperty> OwnProperties(const QMetaObject& metaObject);

/// All properties of a widget that are Tolvi's own, beside a preview with an example that takes every change at once.
/// The widget itself stays as it is.
class TPropertyPage final : public QDialog {
  Q_OBJECT

 public:
  /// The widget must be one of that kind.
  TPropertyPage(const TDesignWidget& kind, const QWidget& widget, QWidget* parent = nullptr);

  QWidget& GetPreview() const { return *FPreview; }
  /// The properties that the user has changed, by their names.
  QVariantMap GetChanges() const;

 private:
  /// A widget that edits the property of the preview; its object name is that of the property.
  QWidget* MakeEditor(const QMetaProperty& property);
  QWidget* MakeColorEditor(const QMetaProperty& property);
  QWidget* MakeFontEditor(const QMetaProperty& property);
  /// What the property has when it is reset.
  QVariant DefaultOf(const QMetaProperty& property);
  QWidget* MakeEnumEditor(const QMetaProperty& property);
  QWidget* MakeFlagsEditor(const QMetaProperty& property);
  QWidget* MakeLinesEditor(const QMetaProperty& property);
  std::function<void(const QVariant& value)> Setter(const QMetaProperty& property);

  QWidget* FPreview;
  QVariantMap FGiven;
};

}  // namespace tolvi
