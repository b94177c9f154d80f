#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <exception>
#include <system_error>
#include <utility>

#include <tolvi/foundation/datetime.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/queryhead.h>
#include <tolvi/store/fileqrybase.h>
#include <tolvi/store/folderlock.h>
#include <tolvi/store/queryfiles.h>

namespace fs = std::filesystem;

namespace tolvi {
namespace {

// File systems allow 255 bytes; writing needs a temporary file beside it, with up to ".1000.tmp" more.
constexpr std::size_t MaxFileName = 255 - 9;

// Readers rather see a folder in the middle of a change than stand still.
constexpr std::chrono::milliseconds ReadWait{1000};

constexpr double UnixEpoch = 25569, SecondsPerDay = 86400;

/// Nothing when it is no UTF-8.
std::optional<std::string> FileNameOf(const fs::path& path) {
  try {
    std::string name = PathText(path.filename());
    if (IsValidUtf8(name)) return name;
  } catch (const std::exception&) {
    // Half of a pair of code units, where file names are made of these.
  }
  return std::nullopt;
}

/// The file name with "?" for all that is not ASCII.
std::string AsciiNameOf(const fs::path& path) {
  const fs::path file = path.filename();
  std::string name;
  for (const auto unit : file.native()) name += unit >= ' ' && unit <= '~' ? static_cast<char>(unit) : '?';
  return name;
}

EQueryStoreError CannotRead(const fs::path& folder, const std::error_code& error) {
  return EQueryStoreError("Cannot read the folder %s: %s", {PathText(folder), error.message()});
}

bool IsThere(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

bool IsFolderThere(const fs::path& folder) {
  std::error_code error;
  const fs::file_status status = fs::status(folder, error);
  if (status.type() == fs::file_type::none) throw CannotRead(folder, error);
  if (fs::exists(status) && !fs::is_directory(status)) {
    throw EQueryStoreError("%s is a file, not a folder: choose a folder for the queries", {PathText(folder)});
  }
  return fs::exists(status);
}

struct TFolderContent {
  std::vector<TQueryFile> Queries;
  std::vector<fs::path> Remnants;
  // Query files whose names are no UTF-8.
  std::vector<std::string> Unreadable;
};

TFolderContent ListFolder(const fs::path& folder) {
  TFolderContent content;
  std::vector<std::string> files;
  std::error_code error;
  for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
    const std::optional<std::string> file = FileNameOf(at->path());
    if (!file) {
      if (const std::string name = AsciiNameOf(at->path()); IsQueryFile(name)) content.Unreadable.push_back(name);
    } else if (IsQueryFile(*file)) {
      files.push_back(*file);
    } else if (IsQueryRemnant(*file)) {
      content.Remnants.push_back(at->path());
    }
  }
  if (error) throw CannotRead(folder, error);
  content.Queries = NameQueryFiles(std::move(files));
  return content;
}

const TQueryFile* FindFile(const TFolderContent& content, std::string_view file) {
  const auto found = std::find_if(content.Queries.begin(), content.Queries.end(),
                                  [file](const TQueryFile& query) { return query.File == file; });
  return found == content.Queries.end() ? nullptr : &*found;
}

/// As texts are handed over and stored, and therefore compared: with LF, without a byte order mark.
std::string Normalized(std::string_view text) {
  while (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isBeforeLf = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
    if (!isBeforeLf) result += text[at] == '\r' ? '\n' : text[at];
  }
  return result;
}

/// A hash (FNV-1a) of name and text: times are too coarse for two writes in a row.
std::string RevisionOf(std::string_view name, std::string_view text) {
  std::uint64_t hash = 14695981039346656037u;
  const auto add = [&hash](char c) { hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u; };
  std::for_each(name.begin(), name.end(), add);
  add('\0');
  std::for_each(text.begin(), text.end(), add);
  std::array<char, 16> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), hash, 16).ptr;
  return std::string(digits.data(), end) + "-" + std::to_string(text.size());
}

std::string ChangedAt(const fs::path& path) {
  std::error_code error;
  const fs::file_time_type time = fs::last_write_time(path, error);
  if (error) return {};
#ifdef _MSC_VER
  const auto utc = std::chrono::clock_cast<std::chrono::system_clock>(time);
#else
  const auto utc = std::chrono::file_clock::to_sys(time);
#endif
  const auto seconds = std::chrono::floor<std::chrono::seconds>(utc.time_since_epoch()).count();
  return FormatDateTime("yyyy-mm-dd hh:nn:ss", UnixEpoch + static_cast<double>(seconds) / SecondsPerDay);
}

TQueryEntry EntryOf(const fs::path& folder, const TQueryFile& query, std::string_view text) {
  return {.Id = query.File,
          .Name = query.Name,
          .Description = ReadQueryHead(text).Description,
          .Owner = {},
          .ChangedAt = ChangedAt(folder / TextPath(query.File)),
          .Revision = RevisionOf(query.Name, text)};
}

/// Nothing when the file is gone.
std::optional<TQueryCopy> ReadQuery(const fs::path& folder, const TQueryFile& query) {
  const fs::path path = folder / TextPath(query.File);
  if (!IsThere(path)) return std::nullopt;
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  // Opening one of these might wait for ever.
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    throw EQueryStoreError("Cannot read the file %s: it is no ordinary file", {PathText(path)});
  }
  std::string text = Normalized(ReadFile(path));
  TQueryEntry entry = EntryOf(folder, query, text);
  return TQueryCopy{.Entry = std::move(entry), .Text = std::move(text)};
}

/// The folder while nobody else writes in it.
class TFolderWriter final {
 public:
  TFolderWriter(const fs::path& folder, std::chrono::milliseconds wait)
      : FFolder(folder), FLock(TFolderLock::ForWriting(folder, wait)), FContent(ListFolder(folder)) {
    std::error_code ignored;
    for (const fs::path& remnant : FContent.Remnants) fs::remove(remnant, ignored);
  }

  bool Has(std::string_view file) const { return FindFile(FContent, file) != nullptr; }

  /// The file to be written or erased; null when the stored query is not the one that was seen.
  const TQueryFile* FindSeen(const TQueryEntry& seen) const {
    const TQueryFile* query = FindFile(FContent, seen.Id);
    const std::optional<TQueryCopy> copy = query ? ReadQuery(FFolder, *query) : std::nullopt;
    if (!copy || copy->Entry.Revision != seen.Revision) return nullptr;
    constexpr fs::perms Writable = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    const fs::path path = PathOf(*query);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!error && (status.permissions() & Writable) == fs::perms::none) {
      throw EQueryStoreError("The file %s is write-protected: allow writing it, or store the query under another name",
                             {PathText(path)});
    }
    return query;
  }

  /// The file for a name that no query but `own` has.
  TQueryFile NewFile(std::string_view name, const TQueryFile* own) const {
    for (const TQueryFile& query : FContent.Queries) {
      if (&query != own && SameText(query.Name, name)) throw EQueryNameTakenError(name);
    }
    TQueryFile query{.File = QueryFileName(name), .Name = std::string(name)};
    if (query.File.size() > MaxFileName) {
      throw EQueryStoreError("The name \"%s\" is too long for a file by %d bytes: choose a shorter one",
                             {name, query.File.size() - MaxFileName});
    }
    // File systems may take names for the same that differ for us; one of them may be the query's own.
    std::error_code error;
    const bool isOwn = own && fs::equivalent(PathOf(query), PathOf(*own), error);
    if (!isOwn && IsThere(PathOf(query))) throw EQueryNameTakenError(name);
    return query;
  }

  TQueryEntry Write(const TQueryFile& query, std::string_view text) const {
    const std::string content = Normalized(text);
    WriteFileAtomically(PathOf(query), content);
    return EntryOf(FFolder, query, content);
  }

  /// A crash after the first step leaves the old text under the new name. The other order would leave two copies, or
  /// would have to take a new text back when the file cannot be renamed.
  TQueryEntry Move(const TQueryFile& from, const TQueryFile& to, std::string_view text) const {
    Rename(from, to);
    try {
      return Write(to, text);
    } catch (...) {
      std::error_code ignored;
      fs::rename(PathOf(to), PathOf(from), ignored);
      throw;
    }
  }

  void Remove(const TQueryFile& query) const {
    std::error_code error;
    fs::remove(PathOf(query), error);
    if (error) throw EQueryStoreError("Cannot erase the file %s: %s", {PathText(PathOf(query)), error.message()});
  }

 private:
  fs::path PathOf(const TQueryFile& query) const { return FFolder / TextPath(query.File); }

  void Rename(const TQueryFile& from, const TQueryFile& to) const {
    std::error_code error;
    fs::rename(PathOf(from), PathOf(to), error);
    if (!error) return;
    throw EQueryStoreError("Cannot rename the file %s to %s: %s", {PathText(PathOf(from)), to.File, error.message()});
  }

  const fs::path& FFolder;
  TFolderLock FLock;
  TFolderContent FContent;
};

}  // namespace

void TJFileQueryBase::SetFolder(std::string_view folder) {
  if (folder == FFolder) return;
  // Handlers may destroy the base, and the text handed over.
  std::string taken(folder);
  TRef<TJFileQueryBase> alive;
  alive.Set(this);
  if (GetActive()) Close();
  if (alive) FFolder = std::move(taken);
}

fs::path TJFileQueryBase::NeedFolder() const {
  if (FFolder.empty()) throw EQueryStoreError("No folder is set for the queries: choose one");
  return TextPath(FFolder);
}

std::vector<TQueryEntry> TJFileQueryBase::ReadEntries() {
  FNotes.Clear();
  const fs::path folder = NeedFolder();
  if (!IsFolderThere(folder)) return {};
  const TFolderLock lock = TFolderLock::ForReading(folder, ReadWait);
  const TFolderContent content = ListFolder(folder);
  std::vector<TQueryEntry> entries;
  for (const TQueryFile& query : content.Queries) {
    try {
      if (std::optional<TQueryCopy> copy = ReadQuery(folder, query)) entries.push_back(std::move(copy->Entry));
    } catch (const std::exception& error) {
      FNotes.Add(Format("The query \"%s\" is left out: %s", {query.Name, error.what()}));
    }
  }
  for (const std::string& file : content.Unreadable) {
    FNotes.Add(Format("The file \"%s\" is left out: its name is no UTF-8; rename it", {file}));
  }
  return entries;
}

std::optional<TQueryCopy> TJFileQueryBase::ReadCopy(std::string_view id) {
  const fs::path folder = NeedFolder();
  if (!IsFolderThere(folder)) return std::nullopt;
  const TFolderLock lock = TFolderLock::ForReading(folder, ReadWait);
  const TFolderContent content = ListFolder(folder);
  const TQueryFile* query = FindFile(content, id);
  return query ? ReadQuery(folder, *query) : std::nullopt;
}

TQueryEntry TJFileQueryBase::InsertCopy(std::string_view name, std::string_view, std::string_view text) {
  const fs::path folder = NeedFolder();
  if (!IsFolderThere(folder)) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
      throw EQueryStoreError("Cannot create the folder %s: %s; create it, or choose another folder",
                             {PathText(folder), error.message()});
    }
  }
  const TFolderWriter writer(folder, FLockWait);
  return writer.Write(writer.NewFile(name, nullptr), text);
}

std::optional<TQueryEntry> TJFileQueryBase::ReplaceCopy(const TQueryEntry& seen, std::string_view name,
                                                        std::string_view, std::string_view text) {
  const fs::path folder = NeedFolder();
  if (!IsFolderThere(folder)) return std::nullopt;
  const TFolderWriter writer(folder, FLockWait);
  const TQueryFile* query = writer.FindSeen(seen);
  if (!query) return std::nullopt;
  if (name == query->Name) return writer.Write(*query, text);
  const TQueryFile target = writer.NewFile(name, query);
  return target.File == query->File ? writer.Write(target, text) : writer.Move(*query, target, text);
}

bool TJFileQueryBase::EraseCopy(const TQueryEntry& seen) {
  const fs::path folder = NeedFolder();
  if (!IsFolderThere(folder)) return true;
  const TFolderWriter writer(folder, FLockWait);
  if (!writer.Has(seen.Id)) return true;
  const TQueryFile* query = writer.FindSeen(seen);
  if (query) writer.Remove(*query);
  return query != nullptr;
}

}  // namespace tolvi
