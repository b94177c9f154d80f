#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <tolvi/store/storedqueries.h>

namespace tolvi {
namespace {

using TCopies = std::map<std::string, TQueryCopy, std::less<>>;

/// A store in memory, which several bases may share; its queries are known by the names that they had first.
class TMemoryBase final : public TJStoredQueryBase {
 public:
  explicit TMemoryBase(TCopies& copies) : FCopies(copies) {}

 protected:
  std::vector<TQueryEntry> ReadEntries() override {
    std::vector<TQueryEntry> entries;
    for (const auto& [id, copy] : FCopies) entries.push_back(copy.Entry);
    return entries;
  }
  std::optional<TQueryCopy> ReadCopy(std::string_view id) override {
    const auto found = FCopies.find(id);
    return found == FCopies.end() ? std::nullopt : std::optional(found->second);
  }
  TQueryEntry InsertCopy(std::string_view name, std::string_view description, std::string_view text) override {
    return Put({std::string(name), std::string(name), std::string(description), {}, {}, "1"}, text);
  }
  std::optional<TQueryEntry> ReplaceCopy(const TQueryEntry& seen, std::string_view name, std::string_view description,
                                         std::string_view text) override {
    if (!IsStored(seen)) return std::nullopt;
    return Put({seen.Id, std::string(name), std::string(description), {}, {}, seen.Revision + "1"}, text);
  }
  bool EraseCopy(const TQueryEntry& seen) override {
    if (!IsStored(seen)) return !FCopies.contains(seen.Id);
    FCopies.erase(seen.Id);
    return true;
  }

 private:
  bool IsStored(const TQueryEntry& seen) const {
    const auto found = FCopies.find(seen.Id);
    return found != FCopies.end() && found->second.Entry.Revision == seen.Revision;
  }
  TQueryEntry Put(const TQueryEntry& entry, std::string_view text) {
    FCopies[entry.Id] = {entry, std::string(text)};
    return entry;
  }

  TCopies& FCopies;
};

/// Shows the current query, and does something when one has been deleted.
class TView final : public TJQueryBaseLink {
 public:
  using TAction = void (*)(TJStoredQueryBase& base);

  void QueryIndexChanged() override { Shown = GetQueryBase()->GetCurrentQuery(); }
  void QueryListChanged(TQBOperation operation, int index) override {
    if (operation == qboItemDeleted && index == GetQueryBase()->GetItemIndex()) Shown = nullptr;
    if (operation == qboItemDeleted && WhenDeleted) WhenDeleted(static_cast<TJStoredQueryBase&>(*GetQueryBase()));
  }
  bool GetQueryContent(TStrings& strings) override {
    strings = {"text"};
    return Shown != nullptr;
  }

  const TJQueryItem* Shown = nullptr;
  TAction WhenDeleted = nullptr;
};

class StoredQueries : public testing::Test {
 protected:
  StoredQueries() {
    base.Open();
    for (const std::string_view name : {"a", "b", "c", "d", "e"}) base.AddQuery(name, {"of " + std::string(name)});
  }
  static std::string Names(const TJQueryBase& base) {
    std::string names;
    for (const TJQueryItem& query : base.Queries()) names += query.GetQueryName();
    return names;
  }

  TCopies copies;
  TMemoryBase base{copies};
};

TEST_F(StoredQueries, KeepTheCurrentOneWhateverHandlersDo) {
  const TView::TAction actions[] = {nullptr,
                                    [](TJStoredQueryBase& base) { base.AddQuery("new", {"x"}); },
                                    [](TJStoredQueryBase& base) { base.DeleteQuery(0); },
                                    [](TJStoredQueryBase& base) { base.DeleteQuery(base.Count() - 1); },
                                    [](TJStoredQueryBase& base) { base.SetItemIndex(1); },
                                    [](TJStoredQueryBase& base) { base.Refresh(); },
                                    [](TJStoredQueryBase& base) { base.Close(), base.Open(); }};
  for (std::size_t action = 0; action < std::size(actions); ++action) {
    for (int current = 0; current < 5; ++current) {
      for (int deleted = 0; deleted < 5; ++deleted) {
        TCopies ownCopies = copies;
        TMemoryBase own(ownCopies);
        own.Open();
        TView view;
        own.AddLink(view);
        own.SetItemIndex(4 - current);
        own.SetItemIndex(current);
        view.Shown = own.GetCurrentQuery();
        view.WhenDeleted = actions[action];
        own.DeleteQuery(deleted);
        EXPECT_EQ(view.Shown, own.GetCurrentQuery()) << action << ": " << deleted << " of " << current;
      }
    }
  }
}

TEST_F(StoredQueries, TakeOverWhatOthersDoOnceAndToTheEnd) {
  TMemoryBase other(copies);
  other.Open();
  TView view;
  base.AddLink(view);
  base.SetItemIndex(2);
  for (const std::string_view gone : {"c", "a", "e"}) other.EraseQuery(other.IndexByName(gone));
  other.RenameQuery(other.IndexByName("b"), "B2");
  other.AddQuery("f", {"x"});
  view.WhenDeleted = [](TJStoredQueryBase& sender) {
    sender.Refresh();
    throw EException("no time");
  };
  try {
    base.Refresh();
    ADD_FAILURE();
  } catch (const EException& error) {
    EXPECT_EQ(error.Message(), "no time");
  }
  EXPECT_EQ(Names(base), "B2cdf") << "the one that is shown stays, though it is erased";
  EXPECT_EQ(base.GetCurrentQuery(), view.Shown);
  EXPECT_TRUE(base.GetStoredQuery(1).IsChangedOutside());
  EXPECT_THROW(base.GetCurrentQuery()->Save(), EQueryConflictError);
  EXPECT_EQ(base.Refresh(), TStoreChanges{});
}

TEST_F(StoredQueries, AreNotEmptiedWhenNoViewShowsThem) {
  try {
    base.GetQuery(0).Save();
    ADD_FAILURE();
  } catch (const EQueryStoreError& error) {
    EXPECT_EQ(error.Message(), "There is no text to store as the query \"a\": no view shows the query");
  }
  EXPECT_EQ(copies.find("a")->second.Text, "of a\n");
}

TEST_F(StoredQueries, GetNamesThatAreFree) {
  const auto nameOf = [](int number) { return number == 1 ? "D" : "D " + std::to_string(number); };
  EXPECT_EQ(FreeQueryName(base, nameOf), "D 2");
  base.AddQuery("d 2", {});
  EXPECT_EQ(FreeQueryName(base, nameOf), "D 3");
}

}  // namespace
}  // namespace tolvi
