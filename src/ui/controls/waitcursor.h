#pragma once

#include <QApplication>

namespace tolvi {

/// The mouse shows that one has to wait, as long as this lives.
struct TWaitCursor {
  TWaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~TWaitCursor() { QApplication::restoreOverrideCursor(); }
  TWaitCursor(const TWaitCursor&) = delete;
  TWaitCursor& operator=(const TWaitCursor&) = delete;
};

}  // namespace tolvi
