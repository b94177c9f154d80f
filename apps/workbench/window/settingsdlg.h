#pragma once

class QWidget;

namespace tolvi {

struct TSettings;

/// Lets the user choose colours, size of letters, how many rows are read, and whether queries may hold SQL. Whether OK
/// was chosen.
bool EditSettings(QWidget* parent, TSettings& settings);

}  // namespace tolvi
