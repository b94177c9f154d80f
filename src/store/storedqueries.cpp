#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <tolvi/foundation/components.h>
#include <tolvi/foundation/deferrederrors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/queryhead.h>
#include <tolvi/store/storedqueries.h>

namespace tolvi {
namespace {

constexpr std::size_t MaxNameLength = 200;
constexpr std::string_view NewQueryName = "New query";

std::string TextOf(const TStrings& lines) { return lines.Empty() ? std::string() : lines.Joined("\n") + "\n"; }

TStrings LinesOf(std::string_view text) {
  TStrings lines;
  lines.SetText(text);
  return lines;
}

std::size_t CharactersOf(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

void CheckName(std::string_view name) {
  const auto fail = [name](std::string_view reason) {
    throw EQueryStoreError("\"%s\" cannot be the name of a query: %s", {name, reason});
  };
  if (Trim(name).empty()) throw EQueryStoreError("A query needs a name to be stored");
  if (Trim(name) != name) fail("remove the blanks at its ends");
  if (!IsValidUtf8(name)) fail("it is no UTF-8");
  if (CharactersOf(name) > MaxNameLength) fail("it is longer than " + std::to_string(MaxNameLength) + " characters");
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; };
  if (std::any_of(name.begin(), name.end(), isControl)) fail("remove line breaks and other control characters");
}

std::string ConflictMessage(std::string_view name, const std::optional<TQueryCopy>& stored) {
  if (!stored) {
    return Format("The query \"%s\" was erased by somebody else since it was read; nothing was changed", {name});
  }
  const TQueryEntry& entry = stored->Entry;
  const std::string by = entry.Owner.empty() ? "somebody else" : entry.Owner;
  const std::string at = entry.ChangedAt.empty() ? "" : " (" + entry.ChangedAt + " UTC)";
  return Format(
      "The query \"%s\" was changed by %s since it was read%s; nothing was changed. Compare the two, then store "
      "one of them, or store yours under another name",
      {name, by, at});
}

}  // namespace

EQueryNameTakenError::EQueryNameTakenError(std::string_view name)
    : EQueryStoreError("There is a query \"%s\" in the store: choose another name", {name}) {}

EQueryConflictError::EQueryConflictError(std::string_view name, std::string ownText, std::optional<TQueryCopy> stored)
    : EQueryStoreError(ConflictMessage(name, stored)), FOwnText(std::move(ownText)), FStored(std::move(stored)) {}

// Queries

TJStoredQuery::TJStoredQuery(const TQueryEntry& entry)
    : TJQueryItem(entry.Name, entry.Description), FEntry(entry), FSeen(entry.Revision) {}

TJStoredQueryBase& TJStoredQuery::Store() const { return static_cast<TJStoredQueryBase&>(*GetQueryBase()); }

TQueryEntry TJStoredQuery::Seen() const {
  TQueryEntry entry = FEntry;
  entry.Revision = FSeen;
  return entry;
}

// Links are told last: they may destroy the query.
void TJStoredQuery::TakeOver(const TQueryEntry& entry) {
  FEntry = entry;
  TJStoredQueryBase& store = Store();
  TRef<TJQueryBase> alive;
  alive.Set(&store);
  const std::string id = entry.Id, description = entry.Description;
  SetQueryName(std::string(entry.Name));
  if (const int index = alive ? store.IndexByID(id) : -1; index >= 0) store.GetQuery(index).SetDescription(description);
}

void TJStoredQuery::LoadContent(TStrings& strings) {
  const std::optional<TQueryCopy> copy = Store().ReadCopy(FEntry.Id);
  if (!copy) {
    throw EQueryStoreError("The query \"%s\" is no longer stored: somebody has erased it", {GetQueryName()});
  }
  strings = WithQueryHead(LinesOf(copy->Text), {.Name = copy->Entry.Name, .Description = copy->Entry.Description});
  FSeen = copy->Entry.Revision;
  TakeOver(copy->Entry);
}

void TJStoredQuery::SaveContent(const TStrings& strings) {
  const std::string name = GetQueryName();
  if (strings.Empty()) {
    throw EQueryStoreError("There is no text to store as the query \"%s\": no view shows the query", {name});
  }
  CheckName(name);
  const std::string description = ReadQueryHead(strings.GetText()).Description;
  const std::string text = TextOf(WithQueryHead(strings, {.Name = name, .Description = description}));
  TJStoredQueryBase& store = Store();
  std::optional<TQueryEntry> entry;
  if (FEntry.Id.empty()) {
    entry = store.InsertCopy(name, description, text);
  } else {
    entry = store.ReplaceCopy(Seen(), name, description, text);
  }
  if (!entry) throw EQueryConflictError(name, text, store.ReadCopy(FEntry.Id));
  FSeen = entry->Revision;
  TakeOver(*entry);
}

void TJStoredQuery::Accept(const EQueryConflictError& conflict) {
  FEntry = conflict.GetStored() ? conflict.GetStored()->Entry : TQueryEntry{};
  FSeen = FEntry.Revision;
}

// The base

TJStoredQuery& TJStoredQueryBase::GetStoredQuery(int index) const {
  return static_cast<TJStoredQuery&>(GetQuery(index));
}

void TJStoredQueryBase::CheckOpen() const {
  if (!GetActive()) throw EQueryStoreError("The query store is not open");
}

int TJStoredQueryBase::IndexByID(std::string_view id) const {
  for (int index = 0; index < Count(); ++index) {
    if (GetStoredQuery(index).FEntry.Id == id) return index;
  }
  return -1;
}

void TJStoredQueryBase::LoadQueries() {
  std::vector<TQueryEntry> entries = ReadEntries();
  std::sort(entries.begin(), entries.end(), [](const TQueryEntry& a, const TQueryEntry& b) {
    return std::pair(FoldCase(a.Name), a.Id) < std::pair(FoldCase(b.Name), b.Id);
  });
  for (const TQueryEntry& entry : entries) AddItem(std::unique_ptr<TJQueryItem>(new TJStoredQuery(entry)));
}

TJQueryItem* TJStoredQueryBase::NewQuery() {
  for (int taken = 0;; ++taken) {
    const std::string name = FreeQueryName(*this, [taken](int number) {
      return std::string(NewQueryName) + (number + taken == 1 ? "" : " " + std::to_string(number + taken));
    });
    try {
      TRef<TJQueryBase> alive;
      alive.Set(this);
      AddQuery(name, {});
      const int index = alive ? IndexByName(name) : -1;
      return index >= 0 ? &GetQuery(index) : nullptr;
    } catch (const EQueryNameTakenError&) {
      // Somebody else was faster.
    }
  }
}

int TJStoredQueryBase::AddQuery(std::string_view name, const TStrings& strings) {
  CheckOpen();
  CheckName(name);
  const std::string description = ReadQueryHead(strings.GetText()).Description;
  const std::string text = TextOf(WithQueryHead(strings, {.Name = std::string(name), .Description = description}));
  return AddItem(std::unique_ptr<TJQueryItem>(new TJStoredQuery(InsertCopy(name, description, text))));
}

TQueryCopy TJStoredQueryBase::ReadSeen(const TJStoredQuery& query) {
  std::optional<TQueryCopy> copy = ReadCopy(query.FEntry.Id);
  if (!copy || copy->Entry.Revision != query.FSeen) throw EQueryConflictError(query.GetQueryName(), {}, copy);
  return *std::move(copy);
}

void TJStoredQueryBase::Replace(TJStoredQuery& query, std::string_view name, std::string_view description) {
  const TQueryCopy copy = ReadSeen(query);
  const TQueryHead head{.Name = std::string(name), .Description = std::string(description)};
  const std::string text = TextOf(WithQueryHead(LinesOf(copy.Text), head));
  const std::optional<TQueryEntry> entry = ReplaceCopy(query.Seen(), name, description, text);
  if (!entry) throw EQueryConflictError(query.GetQueryName(), {}, ReadCopy(query.FEntry.Id));
  query.FSeen = entry->Revision;
  query.TakeOver(*entry);
}

void TJStoredQueryBase::RenameQuery(int index, std::string_view name) {
  TJStoredQuery& query = GetStoredQuery(index);
  CheckName(name);
  if (name != query.FEntry.Name) Replace(query, name, query.FEntry.Description);
}

void TJStoredQueryBase::DescribeQuery(int index, std::string_view description) {
  TJStoredQuery& query = GetStoredQuery(index);
  if (description != query.FEntry.Description) Replace(query, query.FEntry.Name, description);
}

void TJStoredQueryBase::EraseQuery(int index) {
  CheckIndex(index);
  const TJStoredQuery& query = GetStoredQuery(index);
  if (!query.FEntry.Id.empty() && !EraseCopy(query.Seen())) {
    throw EQueryConflictError(query.GetQueryName(), {}, ReadCopy(query.FEntry.Id));
  }
  DeleteQuery(index);
}

// What views show and the current query stay the same one, whatever handlers do to the list meanwhile.
void TJStoredQueryBase::DeleteQuery(int index) {
  // The number of the current query is that of before, here: the outer deletion sets it right.
  if (FHasInner != nullptr) {
    *FHasInner = true;
    return TJQueryBase::DeleteQuery(index);
  }
  const int current = GetItemIndex();
  const TJQueryItem* const shown = index == current ? nullptr : GetCurrentQuery();
  TRef<TJQueryBase> alive;
  alive.Set(this);
  TDeferredErrors errors;
  bool hasInner = false;
  FHasInner = &hasInner;
  errors.Try([&] { TJQueryBase::DeleteQuery(index); });
  if (alive) {
    FHasInner = nullptr;
    // Otherwise another one has come into the views.
    if (current >= 0 && GetItemIndex() == current) errors.Try([&] { Follow(shown, current, hasInner); });
  }
  errors.Raise();
}

void TJStoredQueryBase::Follow(const TJQueryItem* shown, int former, bool reload) {
  const int index = shown != nullptr ? static_cast<int>(Queries().IndexOf(shown)) : -1;
  if (index >= 0 && !reload) return MoveItemIndex(index);
  MoveItemIndex(-1);
  if (Count() > 0) SetItemIndex(index >= 0 ? index : std::min(former, Count() - 1));
}

TStoreChanges TJStoredQueryBase::Refresh() {
  TStoreChanges changes;
  if (!GetActive() || FHasInner != nullptr) return changes;
  TRef<TJQueryBase> alive;
  alive.Set(this);
  std::vector<TQueryEntry> entries = ReadEntries();
  std::unordered_map<std::string_view, const TQueryEntry*> stored;
  for (const TQueryEntry& entry : entries) stored.emplace(entry.Id, &entry);

  // What handlers do meanwhile must not confuse: queries are found by their IDs again, and what is newer than the
  // entries stays.
  std::unordered_set<std::string> listed;
  std::vector<std::string> gone;
  std::vector<std::pair<const TQueryEntry*, std::string>> changed;
  for (int index = 0; index < Count(); ++index) {
    TJStoredQuery& query = GetStoredQuery(index);
    listed.insert(query.FEntry.Id);
    const auto found = stored.find(query.FEntry.Id);
    if (found == stored.end()) {
      if (query.FEntry.Id.empty()) continue;
      if (!query.FEntry.Revision.empty()) changes.Erased.Add(query.GetQueryName());
      query.FEntry.Revision.clear();
      if (index != GetItemIndex()) gone.push_back(query.FEntry.Id);
    } else if (found->second->Revision != query.FEntry.Revision) {
      changes.Changed.Add(query.GetQueryName());
      changed.emplace_back(found->second, query.FEntry.Revision);
    }
  }
  for (const TQueryEntry& entry : entries) {
    if (!listed.contains(entry.Id)) changes.Added.Add(entry.Name);
  }

  TDeferredErrors errors;
  for (const std::string& id : gone) {
    const int index = alive ? IndexByID(id) : -1;
    if (index >= 0 && GetStoredQuery(index).FEntry.Revision.empty()) errors.Try([&] { DeleteQuery(index); });
  }
  for (const auto& [entry, former] : changed) {
    const int index = alive ? IndexByID(entry->Id) : -1;
    if (index < 0 || GetStoredQuery(index).FEntry.Revision != former) continue;
    errors.Try([&, newer = entry] { GetStoredQuery(index).TakeOver(*newer); });
  }
  for (const TQueryEntry& entry : entries) {
    if (!alive || listed.contains(entry.Id) || IndexByID(entry.Id) >= 0) continue;
    errors.Try([&] { AddItem(std::unique_ptr<TJQueryItem>(new TJStoredQuery(entry))); });
  }
  errors.Raise();
  return changes;
}

std::string FreeQueryName(const TJQueryBase& base, const std::function<std::string(int number)>& nameOf) {
  for (int number = 1;; ++number) {
    std::string name = nameOf(number);
    if (base.IndexByName(name) < 0) return name;
  }
}

}  // namespace tolvi
