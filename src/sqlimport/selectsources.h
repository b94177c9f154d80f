#pragma once

#include <tolvi/sqlimport/selectcursor.h>
#include <tolvi/sqlimport/selectreader.h>

namespace tolvi {

/// Reads what follows FROM, as far as it goes, into the statement. Raises `ESQLImportError` for what is no table.
void ReadSelectSources(TSelectCursor& at, TSelectStatement& statement);

}  // namespace tolvi
