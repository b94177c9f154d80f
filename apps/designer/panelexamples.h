#pragma once

class QWidget;

namespace tolvi {

/// Let a new panel (`TJQueryPanelView`, `TJResultFieldsPanel`, `TJStructDesignPanel`) show a small query or model, so
/// that colours and spaces can be seen. The panel owns them.
void ShowQueryExample(QWidget& panel);
void ShowColumnsExample(QWidget& panel);
void ShowDiagramExample(QWidget& panel);

}  // namespace tolvi
