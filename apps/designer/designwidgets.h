// The widgets that Qt Designer offers.
#pragma once

#include <QString>
#include <span>

#include "apps/designer/widgeticons.h"
#include <tolvi/foundation/strings.h>
class QWidget;

namespace tolvi {

struct TDesignWidget {
  /// The class with its namespace; the Qt class that stands for it where Tolvi is not at hand; the header.
  const char *Class, *Extends, *Header;
  /// The name of new widgets, and what new widgets begin with, as properties of a form.
  const char *Name, *Properties;
  const char *ToolTip, *WhatsThis;
  std::span<const TIconShape> Icon;
  QWidget* (*Create)(QWidget* parent);
  /// Shows an example in a new widget, which owns it; null for none. Nothing of it becomes part of a form.
  void (*ShowExample)(QWidget& widget);
  /// The property with the texts of the widget, and the default texts; null for none.
  const char* TitlesProperty;
  const TStrings& (*DefaultTitles)();
};

std::span<const TDesignWidget> DesignWidgets();
/// Null when the widget is of another class.
const TDesignWidget* DesignWidgetOf(const QWidget& widget);

/// What Designer wants to know in its own format: how a new widget begins, what the properties mean.
QString DomXml(const TDesignWidget& kind);
/// A sentence about a property; null for one that says all by its name.
const char* PropertyHelp(const char* name);

}  // namespace tolvi
