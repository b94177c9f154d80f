#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/store/storedqueries.h>

namespace tolvi {

/// Queries kept as files "*.qry" in a folder, where other programs may read, add, change and erase them, too.
///
/// 1. The name of a query is that of its file, as `QueryFileName` and `NameQueryFiles` of <tolvi/store/queryfiles.h>
///    tell; its ID is the file's name. Files are never renamed but by renaming the query, also those whose names were
///    made by hand. A query is erased and added for others when it is renamed.
/// 2. Files have LF for line ends; CR LF and a byte order mark are read, too.
/// 3. A folder that is not there has no queries; the first query added makes it, with the folders above it.
/// 4. Writers take turns (`TFolderLock`), so that two of them lose nothing of each other; who waits longer than
///    `LockWait` gets an `EQueryStoreError`. Programs that do not take part are noticed by the revisions.
/// 5. Writes remove what writers that were killed have left behind (`IsQueryRemnant`).
/// 6. A write-protected file is neither written nor erased. Of a symbolic link, the file that it names is written, and
///    the link is erased.
class TOLVI_CORE_API TJFileQueryBase final : public TJStoredQueryBase {
 public:
  std::string_view ClassName() const override { return "TJFileQueryBase"; }

  /// UTF-8; empty by default. Setting another one closes the base.
  const std::string& GetFolder() const { return FFolder; }
  void SetFolder(std::string_view folder);
  /// Default 10 seconds.
  std::chrono::milliseconds GetLockWait() const { return FLockWait; }
  void SetLockWait(std::chrono::milliseconds wait) { FLockWait = wait; }

  /// One sentence for each query file that the last `Open` or `Refresh` had to leave out: its name is not UTF-8, or it
  /// cannot be read. No other query takes its name.
  const TStrings& GetNotes() const { return FNotes; }

 protected:
  std::vector<TQueryEntry> ReadEntries() override;
  std::optional<TQueryCopy> ReadCopy(std::string_view id) override;
  TQueryEntry InsertCopy(std::string_view name, std::string_view description, std::string_view text) override;
  std::optional<TQueryEntry> ReplaceCopy(const TQueryEntry& seen, std::string_view name, std::string_view description,
                                         std::string_view text) override;
  bool EraseCopy(const TQueryEntry& seen) override;

 private:
  // Raises `EQueryStoreError` when none is set, or it is none.
  std::filesystem::path NeedFolder() const;

  std::string FFolder;
  std::chrono::milliseconds FLockWait{10000};
  TStrings FNotes;
};

}  // namespace tolvi
