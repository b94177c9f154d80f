// Statements of every temper, and waiting for what they give.
#pragma once

#include <QCoreApplication>
#include <QTest>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "apps/workbench/results/resultrows.h"
#include <tolvi/connect/connecturl.h>
#include <tolvi/query/values.h>

namespace tolvi::results {

constexpr int patience = 20'000;

inline TConnectionUrl Shop() { return ParseConnectionUrl("sqlite:" TOLVI_SHOP_DATABASE); }

inline TBoundStatement Statement(std::string sql) { return {std::move(sql), {}}; }

/// Numbers from 1 on.
inline std::string Numbers(const std::string& select, const std::string& end = {}) {
  return "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n" + end + ") " + select;
}
/// Gives rows without an end.
inline TBoundStatement EndlessRows() { return Statement(Numbers("SELECT i FROM n")); }
/// Computes without an end, and gives no row.
inline TBoundStatement EndlessWork() { return Statement(Numbers("SELECT count(*) FROM n")); }

/// Cells row by row.
inline std::shared_ptr<TResultRows> Rows(std::vector<std::string> columns,
                                         std::initializer_list<std::pair<TSqlValueKind, const char*>> cells,
                                         TKnownColumns known = {}) {
  TRowBlock block(columns.size());
  for (const auto& [kind, text] : cells) block.Add(kind, text);
  auto rows = std::make_shared<TResultRows>(std::move(columns), std::move(known));
  rows->Append(std::move(block));
  return rows;
}

template <typename TCondition>
[[nodiscard]] bool Wait(TCondition condition) {
  return QTest::qWaitFor(condition, patience);
}

}  // namespace tolvi::results
