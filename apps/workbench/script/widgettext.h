#pragma once

#include <QString>
class QWidget;

namespace tolvi {

/// What a user reads in the widget and in the widgets within it, one text a line: labels, lines, lists, tables (their
/// first rows), statements.
QString TextOf(const QWidget& widget);

}  // namespace tolvi
