#include <tolvi/foundation/errors.h>

namespace tolvi {

EListError EListError::OutOfBounds(std::int64_t index) { return EListError("List index out of bounds (%d)", {index}); }

}  // namespace tolvi
