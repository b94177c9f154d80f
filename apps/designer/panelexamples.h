#pragma once

class QWidget;

namespace tolvi {

/// Let a new panel (`TJQueryPanelView`, `TJResultFieldsPanel`) show a small query, so that colours and spaces can be
/// seen. The panel owns model and query.
void ShowQueryExample(QWidget& panel);
void ShowColumnsExample(QWidget& panel);

}  // namespace tolvi
