#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <tolvi/foundation/files.h>
#include <tolvi/store/fileqrybase.h>
#include <tolvi/store/folderlock.h>
#include <tolvi/store/queryfiles.h>

namespace tolvi {
namespace {

namespace fs = std::filesystem;

TStrings QueryText(const std::string& name, const std::string& description, const std::string& data = "") {
  return {"[Main]", "QueryName=" + name, "Version=3.6", "", "[Description]", description, "", "[UserData]", data, ""};
}

std::string ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const EException& error) {
    return error.Message();
  }
  return "none";
}

class FileQueryBase : public testing::Test {
 protected:
  void SetUp() override {
    root = fs::path(testing::TempDir()) / ("tolvi_queries_" + std::to_string(std::random_device()()));
    folder = root / "queries";
    for (TJFileQueryBase* base : {&a, &b}) base->SetFolder(PathText(folder));
  }
  void TearDown() override { fs::remove_all(root); }

  void Put(const std::string& file, const std::string& content) {
    fs::create_directories(folder);
    WriteFileAtomically(folder / TextPath(file), content);
  }
  std::string Files() const {
    std::vector<std::string> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      if (const std::string name = PathText(entry.path().filename()); name != ".lock") files.push_back(name);
    }
    std::sort(files.begin(), files.end());
    return TStrings(files).Joined("|");
  }
  static std::string Names(const TJFileQueryBase& base) {
    TStrings names;
    for (int index = 0; index < base.Count(); ++index) names.Add(base.GetQuery(index).GetQueryName());
    return names.Joined("|");
  }
  static TStrings Load(TJFileQueryBase& base, int index = 0) {
    TStrings lines;
    base.GetQuery(index).LoadContent(lines);
    return lines;
  }
  std::string InFolder(const std::string& file) const { return PathText(folder / TextPath(file)); }

  fs::path root, folder;
  TJFileQueryBase a, b;
};

TEST_F(FileQueryBase, SharesAFolderWithAnother) {
  for (TJFileQueryBase* base : {&a, &b}) base->Open();
  EXPECT_FALSE(fs::exists(folder)) << "reading makes no folder";
  EXPECT_EQ(a.Count(), 0);

  a.AddQuery("Late orders", QueryText("Another name", "of five cities"));
  a.AddQuery("Żółw", {});
  EXPECT_EQ(ReadFile(folder / "Late orders.qry"), QueryText("Late orders", "of five cities").Joined("\n") + "\n");
  EXPECT_EQ(b.Refresh(), (TStoreChanges{.Added = {"Late orders", "Żółw"}, .Changed = {}, .Erased = {}}));
  EXPECT_EQ(b.GetQuery(0).GetDescription(), "of five cities");
  EXPECT_EQ(Load(b), QueryText("Late orders", "of five cities"));

  b.DescribeQuery(0, "of six cities");
  b.RenameQuery(0, "late Orders");
  EXPECT_EQ(Files(), "late Orders.qry|Żółw.qry");
  EXPECT_EQ(a.Refresh(), (TStoreChanges{.Added = {"late Orders"}, .Changed = {}, .Erased = {"Late orders"}}));
  EXPECT_EQ(Load(a, 1), QueryText("late Orders", "of six cities"));

  EXPECT_EQ(ErrorOf([&] { b.RenameQuery(0, "żÓŁw"); }), "There is a query \"żÓŁw\" in the store: choose another name");
  b.EraseQuery(1);
  EXPECT_EQ(a.Refresh().Erased, TStrings{"Żółw"});
  EXPECT_EQ(a.GetStoredQuery(a.IndexByName("late Orders")).Entry().Id, "late Orders.qry");
  a.SetFolder("elsewhere");
  EXPECT_FALSE(a.GetActive());

  auto base = std::make_unique<TJFileQueryBase>();
  base->AfterClose = [&](TJQueryBase&) { base.reset(); };
  base->SetFolder(PathText(folder));
  base->Open();
  base->SetFolder("elsewhere");
  EXPECT_EQ(base, nullptr);
}

TEST_F(FileQueryBase, ReplacesNothingThatItHasNotSeen) {
  a.Open();
  a.AddQuery("Q", {"first"});
  b.Open();
  a.GetStoredQuery(0).SaveContent({"of a"});
  std::optional<EQueryConflictError> conflict;
  const auto attempt = [&](const std::function<void()>& write) {
    conflict.reset();
    try {
      write();
    } catch (const EQueryConflictError& error) {
      conflict = error;
    }
    return conflict.has_value();
  };
  const auto save = [&] { b.GetStoredQuery(0).SaveContent({"of b"}); };
  ASSERT_TRUE(attempt(save));
  EXPECT_EQ(conflict->GetOwnText(), "of b\n");
  EXPECT_EQ(conflict->GetStored()->Text, "of a\n");
  ASSERT_TRUE(attempt([&] { b.EraseQuery(0); }));
  EXPECT_EQ(Load(a), TStrings{"of a"});

  b.GetStoredQuery(0).Accept(*conflict);
  save();
  ASSERT_TRUE(attempt([&] { a.RenameQuery(0, "R"); }));
  EXPECT_EQ(Load(a), TStrings{"of b"}) << "loaded is seen";
  a.RenameQuery(0, "R");
  ASSERT_TRUE(attempt(save));
  EXPECT_FALSE(conflict->GetStored()) << "under another name it is another query";
  b.GetStoredQuery(0).Accept(*conflict);
  save();
  EXPECT_EQ(Files(), "Q.qry|R.qry");

  a.EraseQuery(0);
  b.EraseQuery(0);
  EXPECT_EQ(Files(), "");
  a.AddQuery("Q", {"x"});
  b.Refresh();
  a.EraseQuery(0);
  b.EraseQuery(0);
  EXPECT_EQ(b.Count(), 0) << "both want it gone";
}

TEST_F(FileQueryBase, HasAFileForEveryName) {
  const std::map<std::string, std::string> cases = {
      {"a/b\\c:d*e?f\"g<h>i|j", "a%2Fb%5Cc%3Ad%2Ae%3Ff%22g%3Ch%3Ei%7Cj.qry"},
      {"50% off, 100%25", "50%25 off, 100%2525.qry"},
      {".hidden.", "%2Ehidden%2E.qry"},
      {"..", "%2E%2E.qry"},
      {"Con", "%43on.qry"},
      {"nul.txt", "%6Eul.txt.qry"},
      {"com1", "%63om1.qry"},
      {"LPT² .x", "%4CPT² .x.qry"},
      {"company", "company.qry"},
      {"com", "com.qry"},
      {"x.qry", "x.qry.qry"},
      {"Zażółć 漢字", "Zażółć 漢字.qry"}};
  a.Open();
  for (const auto& [name, file] : cases) {
    EXPECT_EQ(QueryFileName(name), file);
    a.AddQuery(name, {name});
    EXPECT_TRUE(fs::exists(folder / TextPath(file))) << file;
  }
  b.Open();
  ASSERT_EQ(b.Count(), static_cast<int>(cases.size()));
  for (const auto& [name, file] : cases) EXPECT_EQ(Load(b, b.IndexByName(name)), TStrings{name});
  EXPECT_EQ(QueryFileName(" a\x1F\x7F "), "%20a%1F%7F%20.qry");

  EXPECT_EQ(ErrorOf([&] { a.AddQuery(std::string(80, '?') + "abc", {}); }),
            "The name \"" + std::string(80, '?') + "abc\" is too long for a file by 1 bytes: choose a shorter one");
}

#ifndef _WIN32

TEST_F(FileQueryBase, ReadsFilesMadeByHand) {
  for (const std::string file : {"50% off.qry", "%zz%4.qry", "%C5%BC.qry", "%FF.qry", "%20.qry", " a\nb .qry", "UP.QRY",
                                 "up.qry", "Up (2).qry", "%55p.qry", ".x.qry", "x.qry~", "x.txt", "x.qry.1.tmp"}) {
    Put(file, file);
  }
  Put("crlf.qry", "\xEF\xBB\xBF[Main]\r\nQueryName=Old name\r\n\r\n[Description]\r\nOne\r\nTwo\r\n");
  const std::string before = Files();
  a.Open();
  EXPECT_EQ(Names(a), "%FF|%zz%4|50% off|a b|crlf|unnamed|Up|Up (2)|UP (3)|up (4)|ż");
  EXPECT_EQ(a.GetQuery(a.IndexByName("crlf")).GetDescription(), "One\nTwo");
  EXPECT_EQ(Load(a, a.IndexByName("crlf"))[1], "QueryName=crlf");
  for (const std::string name : {"crlf", "50% off", "UP (3)", "unnamed"}) {
    a.GetStoredQuery(a.IndexByName(name)).SaveContent({"new " + name});
  }
  EXPECT_EQ(ReadFile(folder / "UP.QRY") + ReadFile(folder / "%20.qry"), "new UP (3)\nnew unnamed\n");
  Put("x.qry.1.tmp", "removed by writers");
  EXPECT_EQ(Files(), before) << "no file has another name";
  a.RenameQuery(a.IndexByName("UP (3)"), "Down");
  EXPECT_EQ(ReadFile(folder / "Down.qry") + ReadFile(folder / "up.qry"), "new UP (3)\nup.qry");
}

TEST_F(FileQueryBase, TellsTheTimeOfAFileInUtcAndGoesByItsContent) {
  using namespace std::chrono;
  Put("Q.qry", "x\r\n");
  a.Open();
  fs::last_write_time(folder / "Q.qry", file_clock::from_sys(sys_seconds(seconds(951782399))));
  b.Open();
  EXPECT_EQ(b.GetStoredQuery(0).Entry().ChangedAt, "2000-02-28 23:59:59");
  EXPECT_EQ(b.Refresh(), TStoreChanges{});
  Put("Q.qry", "x\n");
  EXPECT_EQ(b.Refresh(), TStoreChanges{});
  Put("Q.qry", "y\n");
  EXPECT_EQ(b.Refresh().Changed, TStrings{"Q"});
}

TEST_F(FileQueryBase, LeavesOutWhatItCannotReadAndSaysSo) {
  Put("Good.qry", "good");
  fs::create_directories(folder / "Folder.qry");
  fs::create_symlink("nowhere", folder / "Link.qry");
  for (const char* const pipe : {"Pipe.qry", ".lock"}) ASSERT_EQ(mkfifo((folder / pipe).c_str(), 0600), 0);
  Put("b\xFF-.qry", "");
  Put("b\xFF.txt", "");
  a.Open();
  EXPECT_EQ(Names(a), "Good");
  const auto leftOut = [&](const std::string& name, const std::string& reason) {
    return "The query \"" + name + "\" is left out: Cannot read the file " + InFolder(name + ".qry") + ": " + reason;
  };
  EXPECT_EQ(a.GetNotes(),
            (TStrings{leftOut("Folder", "it is no ordinary file"), leftOut("Link", "No such file or directory"),
                      leftOut("Pipe", "it is no ordinary file"),
                      "The file \"b?-.qry\" is left out: its name is no UTF-8; rename it"}));
  EXPECT_EQ(ErrorOf([&] { a.AddQuery("link", {}); }), "There is a query \"link\" in the store: choose another name");
}

TEST_F(FileQueryBase, WritesThroughLinksAndNotToProtectedFiles) {
  const fs::path target = root / "target";
  Put("Protected.qry", "protected");
  WriteFileAtomically(target, "linked\n");
  fs::create_symlink(target, folder / "Link.qry");
  fs::permissions(folder / "Protected.qry", fs::perms::owner_read);
  a.Open();
  a.GetStoredQuery(0).SaveContent({"new"});
  a.RenameQuery(0, "Linked");
  EXPECT_EQ(ReadFile(target), "new\n");
  EXPECT_TRUE(fs::is_symlink(folder / "Linked.qry"));
  a.EraseQuery(0);
  EXPECT_TRUE(fs::exists(target));
  const std::string message = "The file " + InFolder("Protected.qry") +
                              " is write-protected: allow writing it, or store the query under another name";
  EXPECT_EQ(ErrorOf([&] { a.GetStoredQuery(0).SaveContent({"x"}); }), message);
  EXPECT_EQ(ErrorOf([&] { a.EraseQuery(0); }), message);
  EXPECT_EQ(Load(a), TStrings{"protected"});
}

TEST_F(FileQueryBase, SaysWhyAFolderIsOfNoUse) {
  a.SetFolder("");
  EXPECT_EQ(ErrorOf([&] { a.Open(); }), "No folder is set for the queries: choose one");
  Put("file", "");
  a.SetFolder(InFolder("file"));
  EXPECT_EQ(ErrorOf([&] { a.Open(); }), InFolder("file") + " is a file, not a folder: choose a folder for the queries");
  a.SetFolder(InFolder("file/below"));
  a.Open();
  EXPECT_EQ(ErrorOf([&] { a.AddQuery("Q", {}); }), "Cannot create the folder " + InFolder("file/below") +
                                                       ": Not a directory; create it, or choose another folder");
  fs::create_directories(folder / ".lock");
  b.Open();
  EXPECT_EQ(ErrorOf([&] { b.AddQuery("Q", {}); }),
            "Cannot write in the folder " + PathText(folder) + ": Is a directory; allow it, or choose another folder");
  EXPECT_EQ(b.Count(), 0);
}

TEST_F(FileQueryBase, TakesARenamingBackWhenTheDiskIsFull) {
  a.Open();
  a.AddQuery("Q", QueryText("Q", "big", std::string(10000, 'x')));
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{1000, before.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  const std::string message = ErrorOf([&] { a.RenameQuery(0, "R"); });
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(message, "Cannot write the file " + InFolder("R.qry") + ": File too large");
  EXPECT_EQ(Files(), "Q.qry");
  EXPECT_EQ(Load(a), QueryText("Q", "big", std::string(10000, 'x')));
}

TEST_F(FileQueryBase, WaitsForOtherWritersAndTidiesUpAfterThem) {
  for (const std::string file :
       {"Q.qry", "Q.qry.1.tmp", "R.QRY.1000.tmp", "Q.qry.tmp", "Q.qry..tmp", "Q.1.tmp", ".1.tmp"})
    Put(file, "x");
  a.SetLockWait(std::chrono::milliseconds(30));
  a.Open();
  EXPECT_FALSE(fs::exists(folder / ".lock")) << "readers make no lock file";
  const auto add = [&] { return ErrorOf([&] { a.AddQuery("R", {}); }); };
  constexpr std::chrono::milliseconds NoWait{0};
  const std::string busy =
      "Another program is writing in the folder " + PathText(folder) + "; try again when it is done";
  {
    const TFolderLock writer = TFolderLock::ForWriting(folder, NoWait);
    EXPECT_EQ(add(), busy);
  }
  {
    const TFolderLock one = TFolderLock::ForReading(folder, NoWait), two = TFolderLock::ForReading(folder, NoWait);
    EXPECT_EQ(add(), busy) << "readers see no half of a change";
  }
  EXPECT_EQ(add(), "none");
  EXPECT_EQ(Files(), ".1.tmp|Q.1.tmp|Q.qry|Q.qry..tmp|Q.qry.tmp|R.qry");
}

/// Runs the action in a process of its own, which ends with it.
pid_t Fork(const std::function<void()>& action) {
  const pid_t process = fork();
  if (process != 0) return process;
  try {
    action();
  } catch (...) {
    _exit(1);
  }
  _exit(0);
}

TEST_F(FileQueryBase, LosesNothingWhenTwoProcessesWriteOneQuery) {
  constexpr int LinesEach = 100;
  a.Open();
  a.AddQuery("Q", {});
  std::vector<pid_t> writers;
  for (const std::string writer : {"a", "b"}) {
    writers.push_back(Fork([&] {
      TJFileQueryBase base;
      base.SetFolder(PathText(folder));
      base.Open();
      for (int number = 0; number < LinesEach;) {
        TStrings lines = Load(base);
        lines.Add(writer + std::to_string(number));
        try {
          base.GetStoredQuery(0).SaveContent(lines);
          ++number;
        } catch (const EQueryConflictError&) {
        }
      }
    }));
  }
  for (const pid_t writer : writers) {
    int status = -1;
    waitpid(writer, &status, 0);
    EXPECT_EQ(status, 0);
  }
  const TStrings lines = Load(a);
  for (int number = 0; number < LinesEach; ++number) {
    for (const std::string writer : {"a", "b"}) EXPECT_GE(lines.IndexOf(writer + std::to_string(number)), 0);
  }
}

TEST_F(FileQueryBase, NamesNewQueriesAroundThoseThatOthersHaveMadeMeanwhile) {
  a.Open();
  b.Open();
  for (const char* name : {"New query", "New query 2"}) EXPECT_EQ(b.NewQuery()->GetQueryName(), name);
  a.AddQuery("new query 3", {});
  EXPECT_EQ(a.NewQuery()->GetQueryName(), "New query 4");
}

TEST_F(FileQueryBase, HoldsTheOldOrTheNewQueryAfterAnyCrash) {
  using TClock = std::chrono::steady_clock;
  constexpr int Crashes = 300;
  const std::string data[] = {std::string(100000, 'x'), std::string(60000, 'y')};
  const auto text = [&](int which, const std::string& name) { return QueryText(name, "described", data[which]); };
  const auto write = [&](TJFileQueryBase& base, int which) {
    const std::string name = base.GetQuery(0).GetQueryName();
    base.GetStoredQuery(0).SaveContent(text(which, name));
    base.RenameQuery(0, name == "One" ? "Two" : "One");
  };
  a.Open();
  a.AddQuery("One", text(0, "One"));
  const TClock::time_point start = TClock::now();
  for (const int which : {0, 1}) write(a, which);
  const auto longestDelay = std::chrono::duration_cast<std::chrono::microseconds>(2 * (TClock::now() - start)).count();
  std::uniform_int_distribution<std::int64_t> delay(0, longestDelay);
  std::mt19937 random(20251121);
  std::map<std::string, int> seen;
  // A slow disk has fewer crashes.
  for (int crash = 0; crash < Crashes && TClock::now() < start + std::chrono::seconds(4); ++crash) {
    int ready[2];
    ASSERT_EQ(pipe(ready), 0);
    const pid_t writer = Fork([&] {
      TJFileQueryBase base;
      base.SetFolder(PathText(folder));
      base.Open();
      for (int number = ::write(ready[1], "!", 1) == 1 ? 0 : 1;; ++number) write(base, number % 2);
    });
    char byte = 0;
    close(ready[1]);
    ASSERT_EQ(read(ready[0], &byte, 1), 1);
    close(ready[0]);
    std::this_thread::sleep_for(std::chrono::microseconds(delay(random)));
    kill(writer, SIGKILL);
    int status = 0;
    waitpid(writer, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the writer gave up";

    TJFileQueryBase base;
    base.SetFolder(PathText(folder));
    base.Open();
    const std::string name = Names(base);
    ASSERT_TRUE(name == "One" || name == "Two") << name;
    const TStrings lines = Load(base);
    const int which = lines == text(0, name) ? 0 : 1;
    ASSERT_TRUE(lines == text(which, name)) << "crash " << crash;
    ++seen[name + std::to_string(which)];
  }
  EXPECT_GE(seen.size(), 2u) << "the crashes came too early";
  a.AddQuery("Three", {});
  EXPECT_TRUE(Files() == "One.qry|Three.qry" || Files() == "Three.qry|Two.qry") << Files();
}

#endif

}  // namespace
}  // namespace tolvi
