#pragma once

#include <QString>
#include <vector>

#include <tolvi/query/sqltypes.h>
#include <tolvi/ui/api.h>

namespace tolvi {

/// A syntax of SQL and how users read it: "SQL with JOIN".
struct TSyntaxCaption {
  TSQLSyntax Syntax;
  QString Caption;
};

/// All of them in the language of the program, in the order of a list to choose from: the default first.
TOLVI_WIDGETS_API std::vector<TSyntaxCaption> SyntaxCaptions();

}  // namespace tolvi
