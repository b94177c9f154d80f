#pragma once

namespace tolvi {

/// Lets screen readers see drop-down labels as combo boxes. Any number of calls.
void InstallLabelAccess();

}  // namespace tolvi
