#pragma once

namespace tolvi {

/// Lets screen readers see query panels as lists of sentences. Any number of calls.
void InstallPanelAccess();

}  // namespace tolvi
