#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <vector>

#include "apps/rowformats/rowwriter.h"
#include "apps/tolvi/database.h"
#include <tolvi/connect/sqlqrybase.h>
#include <tolvi/foundation/text.h>
#include <tolvi/store/fileqrybase.h>

// The command "store": named queries in a folder or a database.

namespace tolvi {
namespace {

/// An open store, and the connection that it may need.
struct TStore {
  std::string Name;
  std::unique_ptr<TSqlConnection> Connection;
  std::unique_ptr<TJStoredQueryBase> Base;
};

TStore OpenStore(TSession& session, TDatabaseUse use) {
  const std::string place(session.Arguments.Value("store"));
  TStore store{.Name = place, .Connection = {}, .Base = {}};
  if (IsConnectionUrl(place)) {
    store.Connection = std::make_unique<TSqlConnection>(OpenDatabase(session, place, use));
    store.Name = store.Connection->GetUrl().Shown();
    store.Base = std::make_unique<TJSqlQueryBase>(store.Connection->GetName());
  } else {
    if (std::error_code error; std::filesystem::is_regular_file(place, error)) {
      throw EInputError(place + " is a file: a store is a folder or the URL of a database, such as sqlite:" + place);
    }
    auto base = std::make_unique<TJFileQueryBase>();
    base->SetFolder(place);
    store.Base = std::move(base);
  }
  return store;
}

/// What a folder holds besides.
void TellNotes(TSession& session, const TJStoredQueryBase& base) {
  const auto* files = dynamic_cast<const TJFileQueryBase*>(&base);
  if (files == nullptr) return;
  for (const std::string& note : files->GetNotes()) session.Streams.Err << "tolvi: warning: " << note << '\n';
}

/// Opens the store and calls `use` with it; what the library raises becomes an `EInputError` about the store.
template <typename TUse>
void WithStore(TSession& session, TDatabaseUse access, TUse use) {
  TStore store = OpenStore(session, access);
  Using(store.Name, [&] {
    store.Base->Open();
    use(*store.Base);
  });
}

int IndexOfQuery(TJStoredQueryBase& base, std::string_view name) {
  const int index = base.IndexByName(name);
  if (index < 0) {
    throw EQueryStoreError("there is no query \"%s\"; `tolvi store list` shows them", {name});
  }
  return index;
}

/// --revision R: what was seen is that one.
void CheckRevision(const TSession& session, const TJStoredQuery& query) {
  const std::string_view wanted = session.Arguments.Value("revision");
  const TQueryEntry& entry = query.Entry();
  if (session.Arguments.Has("revision") && entry.Revision != wanted) {
    throw EQueryStoreError("the query \"%s\" is of revision %s by now, not %s: nothing was changed. Look at it first",
                           {entry.Name, entry.Revision, wanted});
  }
}

void List(TSession& session, const std::string&) {
  WithStore(session, duRead, [&session](TJStoredQueryBase& base) {
    const auto writer = MakeRowWriter(session.Arguments.Value("format", "table"), session.Streams.Out);
    writer->Begin({"Name", "Description", "Owner", "Changed", "Revision"});
    for (int index = 0; index < base.Count(); ++index) {
      const TQueryEntry& entry = base.GetStoredQuery(index).Entry();
      writer->Row({{svText, entry.Name},
                   {svText, entry.Description},
                   {svText, entry.Owner},
                   {svText, entry.ChangedAt},
                   {svText, entry.Revision}});
      session.CheckOutput();
    }
    writer->End();
    TellNotes(session, base);
  });
}

void Show(TSession& session, const std::string& name) {
  WithStore(session, duRead, [&](TJStoredQueryBase& base) {
    TStrings lines;
    base.GetStoredQuery(IndexOfQuery(base, name)).LoadContent(lines);
    session.Print(WithLineFeeds(lines.GetText()));
  });
}

void Save(TSession& session, const std::string& name) {
  session.QuerySource = ReadSource(std::string(session.Arguments.Value("query", "-")), session.Streams.In);
  // As of a command before this one in a pipe that has failed.
  if (Trim(session.QuerySource.Text).empty())
    throw EInputError(session.QuerySource.Name + ": there is no text to store");
  // Without a model, whatever the text names is unknown; only its form is checked.
  session.Panel.SetDBStruct(&session.Model);
  session.Panel.SetAllowSQLFragments(true);
  Reading(session.QuerySource, [&session] { session.Panel.LoadFromText(session.QuerySource.Text); });
  TStrings lines;
  lines.SetText(session.QuerySource.Text);
  WithStore(session, duCreate, [&](TJStoredQueryBase& base) {
    const int index = base.IndexByName(name);
    if (index < 0) {
      if (session.Arguments.Has("revision")) IndexOfQuery(base, name);
      base.AddQuery(name, lines);
      return;
    }
    TJStoredQuery& query = base.GetStoredQuery(index);
    if (!session.Arguments.Has("revision")) {
      throw EQueryStoreError("there is a query \"%s\" already: choose another name, or replace it with --revision %s",
                             {query.Entry().Name, query.Entry().Revision});
    }
    CheckRevision(session, query);
    query.SaveContent(lines);
  });
}

void Delete(TSession& session, const std::string& name) {
  WithStore(session, duChange, [&](TJStoredQueryBase& base) {
    const int index = IndexOfQuery(base, name);
    CheckRevision(session, base.GetStoredQuery(index));
    base.EraseQuery(index);
  });
}

struct TAction {
  std::string_view Name;
  bool NeedsName;
  /// Those of the options of "store" that are for it, separated by blanks.
  std::string_view Options;
  void (*Run)(TSession& session, const std::string& name);
};
constexpr TAction Actions[] = {{"list", false, "format", List},
                               {"show", true, "", Show},
                               {"save", true, "query revision", Save},
                               {"delete", true, "revision", Delete}};

const TAction& ActionOf(std::string_view name) {
  for (const TAction& action : Actions) {
    if (action.Name == name) return action;
  }
  throw EUsageError("store is followed by list, show, save or delete, not \"" + std::string(name) + "\"");
}

}  // namespace

int RunStore(TSession& session) {
  const std::vector<std::string>& words = session.Arguments.Operands;
  const TAction& action = ActionOf(words[0]);
  if (action.NeedsName && words.size() < 2) throw EUsageError("store " + words[0] + " needs the name of a query");
  if (!action.NeedsName && words.size() > 1) {
    throw EUsageError("store " + words[0] + " takes no \"" + words[1] + "\"");
  }
  for (const std::string_view option : {"query", "format", "revision"}) {
    if (session.Arguments.Has(option) && action.Options.find(option) == std::string_view::npos) {
      throw EUsageError("store " + words[0] + " has no option --" + std::string(option));
    }
  }
  action.Run(session, words.size() > 1 ? words[1] : std::string());
  return 0;
}

}  // namespace tolvi
