#pragma once

#include <QIcon>
#include <cstdint>
class QWidget;

namespace tolvi {

enum TStoreSign : std::uint8_t { stRename, stDuplicate, stDescribe, stRefresh, stMore };

/// A sign in the colours of `owner`, sharp at every size, like those of <tolvi/ui/dialogs/signicon.h>.
QIcon StoreIcon(TStoreSign sign, const QWidget& owner);

}  // namespace tolvi
