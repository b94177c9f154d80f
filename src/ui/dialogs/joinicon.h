#pragma once

#include <QIcon>

#include <tolvi/model/link.h>
class QWidget;

namespace tolvi {

/// Two overlapping sets, those rows filled that a join keeps; in the colours of `owner` and mirrored with it. `owner`
/// may go before the icon.
QIcon JoinIcon(TDSLinkType linkType, const QWidget& owner);

}  // namespace tolvi
