#include <csignal>
#include <filesystem>
#include <functional>
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/strings.h>

namespace fs = std::filesystem;
using namespace tolvi;

namespace {

class Files : public testing::Test {
 protected:
  void SetUp() override {
    folder = fs::path(testing::TempDir()) / ("tolvi_" + std::to_string(::getpid()));
    fs::create_directories(folder);
  }
  void TearDown() override { fs::remove_all(folder); }

  std::string ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const EFileError& error) {
      return error.Message();
    }
    return "none";
  }
  std::ptrdiff_t Entries() { return std::distance(fs::directory_iterator(folder), fs::directory_iterator()); }

  fs::path folder;
};

TEST_F(Files, AreReplacedWholeAndReadBackWithoutTheByteOrderMark) {
  const fs::path file = folder / "zażółć.txt";
  WriteFileAtomically(file, "old content that is longer");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  WriteFileAtomically(file, std::string("\xEF\xBB\xBF") + "a" + std::string(100000, 'x'));
  EXPECT_EQ(ReadFile(file), "a" + std::string(100000, 'x'));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(Entries(), 1);
}

TEST_F(Files, KeepASymbolicLinkAndReplaceItsTarget) {
  WriteFileAtomically(folder / "target", "old");
  fs::create_symlink(folder / "target", folder / "link");
  WriteFileAtomically(folder / "link", "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(ReadFile(folder / "target"), "new");
}

TEST_F(Files, ThatCannotBeWrittenStayAsTheyWereWithoutLeftovers) {
  const fs::path missing = folder / "no" / "file", occupied = folder / "occupied";
  EXPECT_EQ(ErrorOf([&] { WriteFileAtomically(missing, "x"); }),
            "Cannot write the file " + missing.string() + ": No such file or directory");
  fs::create_directories(occupied / "inside");
  EXPECT_EQ(ErrorOf([&] { WriteFileAtomically(occupied, "x"); }),
            "Cannot write the file " + occupied.string() + ": Is a directory");
  EXPECT_TRUE(fs::exists(occupied / "inside"));
  EXPECT_EQ(Entries(), 1) << "no temporary file is left";
}

TEST_F(Files, StayAsTheyWereWhenTheDiskRefusesTheNewContent) {
  const fs::path file = folder / "file";
  WriteFileAtomically(file, "old");
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{1000, before.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  const std::string message = ErrorOf([&] { WriteFileAtomically(file, std::string(1000000, 'x')); });
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(message, "Cannot write the file " + file.string() + ": File too large");
  EXPECT_EQ(ReadFile(file), "old");
  EXPECT_EQ(Entries(), 1);
}

TEST_F(Files, OfATemporaryNameAreLeftAlone) {
  WriteFileAtomically(folder / "a.1.tmp", "of somebody else");
  WriteFileAtomically(folder / "a", "mine");
  EXPECT_EQ(ReadFile(folder / "a.1.tmp"), "of somebody else");
}

TEST_F(Files, ThatCannotBeReadAreNamedWithTheReason) {
  EXPECT_EQ(ErrorOf([&] { ReadFile(folder / "none"); }),
            "Cannot read the file " + (folder / "none").string() + ": No such file or directory");
  EXPECT_EQ(ErrorOf([&] { ReadFile(folder); }), "Cannot read the file " + folder.string() + ": Is a directory");
}

TEST_F(Files, HoldLineListsWithCrLf) {
  TStrings{"a", "", "ż"}.SaveToFile(folder / "lines");
  EXPECT_EQ(ReadFile(folder / "lines"), "a\r\n\r\nż\r\n");
  TStrings read;
  read.LoadFromFile(folder / "lines");
  EXPECT_EQ(read, (TStrings{"a", "", "ż"}));
}

}  // namespace
