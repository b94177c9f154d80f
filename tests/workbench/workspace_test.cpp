#include "apps/workbench/workspace/workspace.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <functional>

#include <gtest/gtest.h>

#include "apps/workbench/workspace/sample.h"
#include "apps/workbench/workspace/settings.h"
#include <tolvi/foundation/files.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

class Workspace : public testing::Test {
 protected:
  QString Path(const char* name) const { return FFolder.filePath(QLatin1String(name)); }
  std::unique_ptr<TWorkspace> Open(const TSource& source) const {
    return std::make_unique<TWorkspace>(source, std::string(), FolderOf(source, FFolder.path()), TFormatSettings{});
  }
  /// The sample's database, without its model and queries.
  TSource Bare() {
    QFile::copy(QStringLiteral(TOLVI_SHOP_DATABASE), Path("bare.sqlite"));
    return {"sqlite:" + FromQString(Path("bare.sqlite"))};
  }

  QTemporaryDir FFolder;
};

TEST_F(Workspace, UnpacksTheSampleOnceAndKeepsWhatTheUserDidToIt) {
  const QString folder = Path("sample");
  const TSource source = UnpackSample(folder);
  {
    const auto workspace = Open(source);
    EXPECT_EQ(workspace->Store().Count(), 40);
    EXPECT_EQ(workspace->Panel().GetQueryName(), workspace->Store().GetCurrentQuery()->GetQueryName());
    EXPECT_NE(workspace->Panel().GetQueryText(), "");
    EXPECT_FALSE(workspace->IsModelModified());
    workspace->Store().EraseQuery(3);
  }
  EXPECT_EQ(UnpackSample(folder), source);
  EXPECT_EQ(Open(source)->Store().Count(), 39);
  const QString kept = RestoreSample(folder);
  EXPECT_TRUE(QFile::exists(kept + QStringLiteral("/shop.sqlite")));
  EXPECT_EQ(Open(source)->Store().Count(), 40);
}

TEST_F(Workspace, FillsAModelAndMakesAFirstQueryForADatabaseThatHasNone) {
  const TSource source = Bare();
  {
    const auto workspace = Open(source);
    EXPECT_GE(workspace->Model().Fields().Count(), 100U);
    ASSERT_EQ(workspace->Store().Count(), 1);
    EXPECT_FALSE(workspace->IsQueryModified());
    EXPECT_NE(workspace->Panel().GetQueryText().find("SELECT"), std::string::npos);
    workspace->Model().GetTable(0).SetDisplayName("Renamed");
    EXPECT_TRUE(workspace->IsModelModified());
    workspace->SaveModel();
    EXPECT_FALSE(workspace->IsModelModified());
  }
  const auto again = Open(source);
  EXPECT_EQ(again->Model().GetTable(0).GetDisplayName(), "Renamed");
  EXPECT_EQ(again->Store().Count(), 1);
  EXPECT_TRUE(again->RefreshModel().AddedTables.Empty());
}

TEST_F(Workspace, KeepsQueriesInTheDatabaseWhenToldTo) {
  TSource source = Bare();
  source.QueriesInDatabase = true;
  Open(source)->Store().AddQuery("In here", {});
  EXPECT_GE(Open(source)->Store().IndexByName("In here"), 0);
}

/// The message of what cannot be opened.
std::string FaultOf(const std::function<void()>& open) {
  try {
    open();
  } catch (const EException& error) {
    return error.Message();
  }
  return "none";
}

TEST_F(Workspace, SaysWhatCannotBeReadAndHowToMendIt) {
  TSource source = Bare();
  source.ModelFile = FromQString(Path("broken.model"));
  WriteFileAtomically(source.ModelFile, "[FieldsCount]\nCount=many\n");
  EXPECT_EQ(FaultOf([&] { Open(source); }),
            source.ModelFile +
                " is no data model, or a damaged one: Can not find section Main. Choose another file; "
                "where there is none, a model is made from the tables of the database.");
  EXPECT_THROW(Open({"sqlite:" + FromQString(Path("none.sqlite"))}), EConnectError);

  source = Bare();
  source.QueriesInDatabase = true;
  TSqlConnection(ParseConnectionUrl(source.Url)).Execute("CREATE TABLE tolvi_queries (a)");
  EXPECT_EQ(FaultOf([&] { Open(source); }).find("Queries cannot be kept in this database: "), 0U);
  source = Bare();
  source.QueryFolder = FromQString(Path("broken.model"));
  EXPECT_EQ(FaultOf([&] { Open(source); }),
            source.QueryFolder + " is a file, not a folder: choose a folder for the queries");
  EXPECT_EQ(
      FaultOf([] { UnpackSample(QStringLiteral("/dev/null/sample")); }),
      "The sample cannot be put into /dev/null/sample: the folder cannot be made. The option --home names another "
      "place.");
}

TEST_F(Workspace, OpensADatabaseAlsoWhereNothingCanBeKept) {
  TSource source = Bare();
  source.QueryFolder = "/proc/nowhere/queries";
  TWorkspace workspace(source, {}, QStringLiteral("/proc/nowhere"), {});
  const std::string notes = workspace.GetNotes().Joined(" ");
  EXPECT_NE(notes.find("The data model cannot be kept: "), std::string::npos) << notes;
  EXPECT_NE(notes.find("Queries cannot be kept: Cannot create the folder /proc/nowhere/queries: "), std::string::npos)
      << notes;
  EXPECT_EQ(workspace.Store().Count(), 0);
  EXPECT_NE(workspace.Panel().GetQueryText().find("SELECT"), std::string::npos);
  EXPECT_TRUE(workspace.Unsaved().IsEmpty()) << "the user has done nothing yet";
  EXPECT_THROW(workspace.SaveQuery(), EQueryStoreError);
}

TEST_F(Workspace, TellsOfADatabaseWithoutTablesAndOfADriverWithoutLinks) {
  const std::string file = FromQString(Path("small.sqlite")), odbc = "odbc:Driver={SQLite3};Database=" + file;
  TSqlConnection small({.Kind = dkSQLite, .Database = file}, {.MustExist = false});
  EXPECT_EQ(Open({"sqlite:" + file})->GetNotes().GetText(),
            "The database has no tables that can be read. Once it has some, Model > Read new tables from the database "
            "finds them.\r\n");
  small.Execute("CREATE TABLE customers (cust_no INTEGER PRIMARY KEY, name TEXT)");
  small.Execute("CREATE TABLE orders (order_no INTEGER PRIMARY KEY, cust_no INTEGER)");
  const auto workspace = Open({odbc});
  EXPECT_EQ(workspace->Model().GetLinkCount(), 1U);
  EXPECT_EQ(workspace->GetNotes().GetText(),
            "The driver tells nothing of links between tables. One link was found by the names of columns; Model > "
            "Diagram... shows it, and can draw others.\r\n");
}

TEST_F(Workspace, ReadsSharedQueriesTheSameWithAModelOfItsOwn) {
  const std::string file = FromQString(Path("books.sqlite"));
  TSqlConnection books({.Kind = dkSQLite, .Database = file}, {.MustExist = false});
  books.Execute("CREATE TABLE authors (id INTEGER PRIMARY KEY, name TEXT)");
  books.Execute("CREATE TABLE books (id INTEGER PRIMARY KEY, title TEXT)");
  TSource source{"sqlite:" + file};
  source.QueryFolder = FromQString(Path("shared"));
  std::string statement;
  {
    const auto mine = Open(source);
    TJQueryPanel& panel = mine->Panel();
    TDSField& title = *mine->Model().FieldByName(fnFullName, "books.title");
    panel.RFields().Clear();
    panel.RFields().Add(title);
    panel.AddSimpleCond(panel.RootBracket(), title, *mine->Model().OperatorByName("Equal"), "Crime");
    mine->SaveQuery();
    statement = panel.GetQueryText();
  }
  books.Execute("ALTER TABLE authors ADD email TEXT");
  const auto theirs = std::make_unique<TWorkspace>(source, "", Path("theirs"), TFormatSettings());
  EXPECT_NE(theirs->Model().FieldByName(fnFullName, "authors.email"), nullptr);
  EXPECT_EQ(theirs->Panel().GetQueryText(), statement);
}

TEST_F(Workspace, CopiesTheQueriesOfAnotherPlaceOnce) {
  const TSource sample = UnpackSample(Path("sample"));
  TSource database = sample;
  database.QueriesInDatabase = true;
  const auto workspace = Open(database);
  EXPECT_EQ(workspace->QueryFolderOf(sample), Path("sample/queries"));
  EXPECT_EQ(workspace->QueryFolderOf(database), QString());
  const std::string shown = workspace->QueryText();
  EXPECT_EQ(workspace->CopyQueries(sample), 40);
  EXPECT_EQ(workspace->Store().Count(), 41);
  EXPECT_EQ(workspace->QueryText(), shown);
  EXPECT_EQ(workspace->CopyQueries(sample), 0);
  // One of the same name that says something else is another one.
  workspace->Store().SetItemIndex(workspace->Store().IndexByName("Best customers"));
  workspace->Panel().AddCondition(workspace->Panel().RootBracket(), workspace->Model().GetField(1));
  workspace->SaveQuery();
  EXPECT_EQ(workspace->CopyQueries(sample), 1);
  EXPECT_GE(workspace->Store().IndexByName("Best customers (2)"), 0);
  EXPECT_EQ(workspace->CopyQueries(sample), 0) << "the copy with another name is known";
  // The other way round, out of a database that is open for reading only.
  EXPECT_EQ(Open(sample)->CopyQueries(database), 3);
}

TEST_F(Workspace, PutsUnsavedWorkBackAlsoWhenItsQueryIsGone) {
  const TSource source = UnpackSample(Path("sample"));
  TUnsavedWork work;
  {
    const auto workspace = Open(source);
    EXPECT_TRUE(workspace->Unsaved().IsEmpty());
    workspace->Store().SetItemIndex(2);
    workspace->Panel().AddCondition(workspace->Panel().RootBracket(),
                                    *workspace->Model().FieldByName(fnFullName, "Customers.City"));
    workspace->Model().GetTable(0).SetDisplayName("Edited");
    work = workspace->Unsaved();
    EXPECT_EQ(work, workspace->Unsaved());
    EXPECT_TRUE(workspace->IsQueryModified());
  }
  const auto check = [&work](TWorkspace& workspace) {
    workspace.Restore(work);
    EXPECT_EQ(workspace.Model().GetTable(0).GetDisplayName(), "Edited");
    EXPECT_TRUE(workspace.IsModelModified());
    EXPECT_EQ(workspace.QueryText().find("[Row"), work.QueryText->find("[Row"));
  };
  const auto workspace = Open(source);
  check(*workspace);
  EXPECT_EQ(workspace->Store().GetItemIndex(), 2);
  EXPECT_EQ(workspace->QueryText(), *work.QueryText);
  EXPECT_TRUE(workspace->IsQueryModified());

  const auto other = Open(source);
  other->Store().EraseQuery(2);
  check(*other);
  EXPECT_EQ(other->Store().Count(), 40);
  EXPECT_EQ(other->Store().GetCurrentQuery()->GetQueryName(), work.QueryName);
}

TEST_F(Workspace, KeepsAQueryModifiedThatCouldNotBeSaved) {
  const TSource source = UnpackSample(Path("sample"));
  const auto workspace = Open(source), other = Open(source);
  const auto change = [](TWorkspace& one) {
    one.Panel().AddCondition(one.Panel().RootBracket(), *one.Model().FieldByName(fnFullName, "Customers.City"));
  };
  change(*workspace);
  change(*other);
  const TUnsavedWork work = workspace->Unsaved();
  other->SaveQuery();
  EXPECT_THROW(workspace->SaveQuery(), EQueryConflictError);
  EXPECT_TRUE(workspace->IsQueryModified());
  EXPECT_EQ(workspace->Unsaved(), work);

  // Put back after somebody else has stored the query, it takes nothing of theirs away.
  const auto again = Open(source);
  again->Restore(work);
  EXPECT_EQ(again->Store().Count(), 41);
  EXPECT_EQ(again->Store().GetCurrentQuery()->GetQueryName(), work.QueryName + " (2)");
}

TEST_F(Workspace, SavesWhatIsShownAlsoWhenTheStoreHasNoQueryLeft) {
  const auto workspace = Open(Bare());
  workspace->Store().EraseQuery(0);
  workspace->Panel().AddCondition(workspace->Panel().RootBracket(), workspace->Model().GetField(1));
  workspace->SaveQuery();
  ASSERT_EQ(workspace->Store().Count(), 1);
  EXPECT_EQ(workspace->Panel().RootBracket().GetRowCount(), 1U);
  EXPECT_FALSE(workspace->IsQueryModified());
}

TEST_F(Workspace, KeepsPasswordsOutOfWhatIsWritten) {
  EXPECT_EQ(SourceOf(QStringLiteral("postgresql://anna:secret@db/shop")).Url, "postgresql://anna@db/shop");
  EXPECT_EQ(SourceOf(QStringLiteral("/a/50%.db")).Url,
            SourceOf(ToQString(SourceOf(QStringLiteral("/a/50%.db")).Url)).Url);
  QJsonObject json = ToJson({"postgresql://anna@db/shop"});
  json.insert(QStringLiteral("url"), QStringLiteral("odbc:shop;PWD=secret"));
  EXPECT_EQ(SourceFromJson(json).Url, "odbc:shop");
  json.insert(QStringLiteral("url"), QStringLiteral("nonsense://"));
  EXPECT_EQ(SourceFromJson(json).Url, "");
}

TEST_F(Workspace, KeepsWhatTwoProgramsChangeInTheSettings) {
  const auto entry = [](const char* key) { return QLatin1String(key); };
  TSettingsFile first(Path("settings.json"));
  first.Settings.Remember({"sqlite:old"});
  first.Settings.Orders = {{entry("a"), 1}, {entry("gone"), 1}};
  first.Settings.Params = {entry("p"), entry("1")};
  first.Save();
  TSettingsFile second(Path("settings.json"));
  first.Settings.Remember({"sqlite:first"});
  first.Settings.Theme = thDark;
  first.Settings.FontSize = 12;
  first.Settings.Orders.insert(entry("b"), 1);
  first.Settings.Params.append(entry("q")), first.Settings.Params.append(entry("2"));
  first.Save();
  second.Settings.Remember({"sqlite:second"});
  second.Settings.FontSize = 14;
  second.Settings.Orders.insert(entry("a"), 2);
  second.Settings.Orders.remove(entry("gone"));
  second.Save();
  const TSettings all = TSettingsFile(Path("settings.json")).Settings;
  std::string recent;
  for (const TSource& source : all.Recent) recent += source.Url + " ";
  EXPECT_EQ(recent, "sqlite:second sqlite:old sqlite:first ");
  EXPECT_EQ(all.Theme, thDark);
  EXPECT_EQ(all.FontSize, 14) << "the last one wins where both have changed the same";
  EXPECT_EQ(all.Orders, (QJsonObject{{entry("a"), 2}, {entry("b"), 1}}));
  EXPECT_EQ(all.Params, (QJsonArray{entry("p"), entry("1"), entry("q"), entry("2")}));
  EXPECT_EQ(second.Settings.Theme, thDark);
  second.Save();
  EXPECT_EQ(TSettingsFile(Path("settings.json")).Settings.Orders, all.Orders);
}

TEST_F(Workspace, RemembersSettingsAndKeepsAFileItCannotRead) {
  const QString file = Path("settings.json");
  const TSource source{"sqlite:/a.db", "a.model", "queries", true};
  {
    TSettingsFile settings(file);
    settings.Settings.Theme = thDark;
    settings.Settings.MaxRows = 0;
    settings.Settings.Orders.insert(QStringLiteral("a"), QStringLiteral("b"));
    for (int i = 0; i < 20; ++i) settings.Settings.Remember({"sqlite:" + std::to_string(i)});
    settings.Settings.Remember({"sqlite:/a.db"});
    settings.Settings.Remember(source);
    settings.Save();
  }
  {
    const TSettingsFile settings(file);
    EXPECT_EQ(settings.Settings.Theme, thDark);
    EXPECT_EQ(settings.Settings.MaxRows, 0);
    EXPECT_EQ(settings.Settings.Orders.size(), 1);
    EXPECT_EQ(settings.Settings.Recent.size(), 12U);
    EXPECT_EQ(settings.Settings.Recent[0], source);
    EXPECT_EQ(settings.Settings.Recent[1].Url, "sqlite:19");
    EXPECT_TRUE(settings.GetNote().isEmpty());
  }
  WriteFileAtomically(ToPath(file), "{ half");
  const TSettingsFile settings(file);
  EXPECT_TRUE(settings.GetNote().contains(QStringLiteral("settings.json.broken")));
  EXPECT_EQ(ReadFile(ToPath(file + QStringLiteral(".broken"))), "{ half");
}

}  // namespace
}  // namespace tolvi
