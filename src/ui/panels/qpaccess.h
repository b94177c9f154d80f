#pragma once

#include <QAccessible>
#include <optional>

namespace tolvi {

class TQPRow;

/// Lets screen readers see query panels as lists of sentences. Any number of calls.
void InstallPanelAccess();
/// Tells them what has changed in the row's state since the last call for it (`told`, which is brought up to date).
void TellRowState(TQPRow& row, std::optional<QAccessible::State>& told);

}  // namespace tolvi
