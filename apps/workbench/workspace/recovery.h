#pragma once

#include <QLockFile>
#include <QString>
#include <memory>
#include <optional>
#include <string>

#include "apps/workbench/workspace/source.h"

namespace tolvi {

/// What would be lost if the program ended now: the query and the model that are shown, as far as they are not stored.
struct TUnsavedWork {
  TSource Source = {};
  /// The query that it is a change of, by its ID in the store; empty for none.
  std::string QueryId = {};
  std::string QueryName = {};
  /// Of the stored query that was changed.
  std::string Revision = {};
  /// Nothing: it is as stored.
  std::optional<std::string> QueryText = {};
  std::optional<std::string> ModelText = {};

  bool IsEmpty() const { return !QueryText && !ModelText; }
  bool operator==(const TUnsavedWork&) const = default;
};

/// Keeps unsaved work in a file of a folder, and finds what programs have left there that were killed. Each program has
/// a file of its own, locked while it runs.
class TRecovery final {
 public:
  explicit TRecovery(QString folder);
  ~TRecovery();
  TRecovery(const TRecovery&) = delete;
  TRecovery& operator=(const TRecovery&) = delete;

  /// Writes the work whole or not at all, if it is not what was written last; empty work removes the file. Raises
  /// `EFileError`.
  void Keep(const TUnsavedWork& work);
  /// The latest work that a program left which runs no more. It stays in its file until `Drop`; a file that cannot be
  /// read is left alone. The same work is not found twice.
  std::optional<TUnsavedWork> Find();
  /// Removes what `Find` has found, as it has been put back.
  void Drop();

 private:
  QString FFolder, FFile;
  std::unique_ptr<QLockFile> FLock;
  std::optional<TUnsavedWork> FKept;
  // The file that was found, and its lock; the next program takes it when this one ends before `Drop`.
  QString FFound;
  std::unique_ptr<QLockFile> FFoundLock;
};

}  // namespace tolvi
