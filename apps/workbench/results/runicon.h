// The signs of running a query.
#pragma once

#include <QIcon>
#include <cstdint>
class QWidget;

namespace tolvi {

enum TRunSign : std::uint8_t { rsRun, rsStop, rsPreview };

/// The sign in the colours of `owner`, which may go before the icon.
QIcon RunIcon(TRunSign sign, const QWidget& owner);

}  // namespace tolvi
