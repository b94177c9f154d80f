#pragma once

#include <QVariantList>
#include <string>
#include <string_view>

#include <tolvi/connect/connecturl.h>
#include <tolvi/query/values.h>

// Bound values as a database must get them to find the rows that the statement with literals finds.

namespace tolvi {

/// The statement's SQL. A marker whose value would take the type of what it is compared with, and lose digits or its
/// range, is put into CAST.
std::string SqlOf(const TBoundStatement& statement, TDatabaseKind kind);

/// The values for its markers. `quotedBooleans`: booleans are texts in the database.
QVariantList ValuesOf(const TBoundStatement& statement, TDatabaseKind kind, bool quotedBooleans);

}  // namespace tolvi
