#include "apps/workbench/workspace/recovery.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tolvi {
namespace {

const TUnsavedWork Work{{"sqlite:shop.sqlite"}, "late.qry", "Late", "7", "[Query]\r\nä\r\n", std::nullopt};

TEST(Recovery, FindsTheWorkOfAProgramThatRunsNoMore) {
  const QTemporaryDir folder;
  auto first = std::make_unique<TRecovery>(folder.path());
  EXPECT_FALSE(first->Find());
  first->Keep(Work);
  TRecovery second(folder.path());
  EXPECT_FALSE(second.Find()) << "the other program still runs";
  first.reset();

  EXPECT_EQ(second.Find(), Work);
  {
    TRecovery third(folder.path());
    EXPECT_FALSE(third.Find()) << "the second has taken it";
  }
  // It is not given up before it has been put back.
  second.Keep({});
  EXPECT_EQ(QDir(folder.path()).entryList({QStringLiteral("*.work")}).size(), 1);
  second.Keep(Work);
  second.Drop();
  EXPECT_FALSE(second.Find());
  second.Keep({});
  EXPECT_TRUE(QDir(folder.path()).entryList({QStringLiteral("*.work")}).isEmpty());
}

TEST(Recovery, LeavesAFileAloneThatIsNoWork) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("broken.work")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("{");
  file.close();
  TRecovery recovery(folder.path());
  EXPECT_FALSE(recovery.Find());
  recovery.Keep({});
  EXPECT_TRUE(file.exists());
}

}  // namespace
}  // namespace tolvi
