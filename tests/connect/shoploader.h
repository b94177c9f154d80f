#pragma once

#include <tolvi/connect/connecturl.h>

namespace tolvi {

/// The sample database as one of this kind: the file itself, or a database "shop" on the servers of the tests with the
/// same tables and rows in it, which the first call makes. Throws as `TestDatabase` does.
///
/// On MySQL, texts are compared by their letters as they stand, as the others compare them; its own way, which takes
/// capitals for small letters and leaves accents out, would find more rows.
TConnectionUrl ShopDatabase(TDatabaseKind kind);

}  // namespace tolvi
