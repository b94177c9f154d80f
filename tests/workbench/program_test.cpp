#include "apps/workbench/window/program.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "apps/workbench/results/resultpane.h"
#include "apps/workbench/script/player.h"
#include "apps/workbench/window/mainwindow.h"
#include "apps/workbench/window/notebar.h"
#include "apps/workbench/window/openingdlg.h"
#include "apps/workbench/window/queryarea.h"
#include "apps/workbench/workspace/sample.h"
#include "tests/workbench/passwordserver.h"
#include "tests/workbench/silentserver.h"
#include <tolvi/foundation/files.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// Does things to the windows that open, one after the other.
class TUser final {
 public:
  explicit TUser(std::vector<std::function<bool(QWidget& dialog)>> acts) : FActs(std::move(acts)) {
    FTimer.callOnTimeout([this] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr || FDone == FActs.size()) return;
      if (FActs[FDone](*dialog)) ++FDone;
    });
    FTimer.start(5);
  }
  ~TUser() { EXPECT_EQ(FDone, FActs.size()); }
  TUser(const TUser&) = delete;
  TUser& operator=(const TUser&) = delete;

 private:
  std::vector<std::function<bool(QWidget& dialog)>> FActs;
  std::size_t FDone = 0;
  QTimer FTimer;
};

bool Click(QWidget& window, const char* name) {
  auto* button = window.findChild<QAbstractButton*>(QLatin1String(name));
  if (button == nullptr || !button->isVisible()) return false;
  QTest::mouseClick(button, Qt::LeftButton);
  return true;
}

TSource Silent(const TSilentServer& server) {
  return {"postgresql://anna@127.0.0.1:" + std::to_string(server.Port) + "/shop"};
}

class Program : public testing::Test {
 protected:
  void Start(TProgram::TOptions options = {}) {
    FProgram.reset();
    options.Home = FHome.path();
    FProgram = std::make_unique<TProgram>(options);
    FProgram->Start();
  }
  TMainWindow& Window() { return FProgram->Window(); }
  std::string Note() { return FromQString(Window().findChild<TNoteBar*>()->GetWords()); }
  void Choose(const QString& choice) {
    QCoreApplication::processEvents();  // shows the buttons
    for (QAbstractButton* button : Window().findChild<TNoteBar*>()->findChildren<QAbstractButton*>()) {
      if (button->text() == choice && button->isVisible()) return QTest::mouseClick(button, Qt::LeftButton);
    }
    ADD_FAILURE() << FromQString(choice);
  }
  void UseLanguage(const QString& code) {
    const auto call = Window().Requests.UseLanguage;  // which goes with its window
    call(code);
  }
  QString Path(const char* name) const { return FHome.filePath(QLatin1String(name)); }
  TSource Copy(const char* name) {
    QFile::copy(QStringLiteral(TOLVI_SHOP_DATABASE), Path(name));
    return SourceOf(Path(name));
  }
  TUnsavedWork Lose() {
    TJQueryPanel& panel = Window().GetWorkspace()->Panel();
    panel.AddCondition(panel.RootBracket(), Window().GetWorkspace()->Model().GetField(1));
    TUnsavedWork work = *Window().Unsaved();
    FProgram.reset();
    TRecovery(Path("unsaved")).Keep(work);
    return work;
  }

  QTemporaryDir FHome;
  std::unique_ptr<TProgram> FProgram;
};

TEST_F(Program, StaysAliveWhileAServerIsSilentAndCanStopWaiting) {
  Start();
  const TSource sample = Window().GetWorkspace()->GetSource();
  const TSilentServer server;
  FProgram->Secrets().KeepInSession(ParseConnectionUrl(Silent(server).Url), "s3cret");
  int ticks = 0;
  QTimer clock;
  clock.callOnTimeout([&] { ++ticks; });
  clock.start(10);
  QElapsedTimer time;
  time.start();
  {
    const TUser user({[&](QWidget& dialog) {
      const auto* words = dialog.findChild<QLabel*>(QStringLiteral("opening.words"));
      EXPECT_EQ(FromQString(words->text()), "Waiting for " + Silent(server).Url + "...");
      EXPECT_EQ(dialog.findChild<QProgressBar*>()->accessibleName(), QStringLiteral("Open a database"));
      return Click(dialog, "opening.cancel");
    }});
    EXPECT_FALSE(FProgram->Open(Silent(server)));
  }
  EXPECT_LT(time.elapsed(), 5000);
  EXPECT_GT(ticks, 10);
  EXPECT_EQ(Window().GetWorkspace()->GetSource(), sample);
}

TEST_F(Program, WaitsForASilentServerOnlySoLong) {
  Start();
  const TSilentServer server;
  try {
    OpenWorkspace(nullptr, Silent(server), "s3cret", Path("db"), {}, {.Dialog = 50, .Server = 1000});
    FAIL() << "nobody has answered";
  } catch (const EConnectError& error) {
    EXPECT_EQ(error.Message(), "There was no answer within a second: check host and port.");
  }
}

TEST_F(Program, UsesInItsOwnThreadWhatAnotherOneHasOpened) {
  TSource source = Copy("bare.sqlite");
  source.QueriesInDatabase = true;
  const auto workspace = OpenWorkspace(nullptr, source, {}, Path("db"), {});
  workspace->Store().AddQuery("From here", {});
  EXPECT_GE(workspace->Store().IndexByName("From here"), 0);
  EXPECT_TRUE(workspace->RefreshModel().AddedTables.Empty());
  EXPECT_THROW(OpenWorkspace(nullptr, SourceOf(Path("none.sqlite")), {}, Path("db"), {}), EConnectError);
}

TEST_F(Program, KeepsAPasswordOnceItHasWorked) {
  const TSource source{"odbc:Driver={SQLite3};Database=" + FromQString(Path("late/shop.sqlite")) + ";UID=anna"};
  const TConnectionUrl url = ParseConnectionUrl(source.Url);
  Start();
  {
    const TUser user({[](QWidget& dialog) {
      EXPECT_EQ(FromQString(dialog.objectName()), "fault") << "no password mends it";
      return dialog.close();
    }});
    EXPECT_FALSE(FProgram->Open(source, TGivenPassword{"s3cret"}));
  }
  EXPECT_EQ(FProgram->Secrets().InSession(url), std::nullopt);
  QDir().mkpath(Path("late"));
  EXPECT_TRUE(FProgram->Open(source, TGivenPassword{"s3cret"}));
  EXPECT_EQ(FProgram->Secrets().InSession(url), "s3cret");
  EXPECT_NE(Note().find("The database has no tables that can be read."), std::string::npos) << Note();
  UseLanguage(QStringLiteral("de"));
  EXPECT_EQ(Note(), "") << "it is told once";
}

TEST_F(Program, AsksForAPasswordOnlyWhereTheServerWantsOne) {
  const TPasswordServer server;
  const TSource source{"postgresql://anna@127.0.0.1:" + std::to_string(server.Port()) + "/shop"};
  const auto fault = [](QWidget& dialog) {
    const auto* label = dialog.findChild<QLabel*>(QStringLiteral("password.fault"));
    return label == nullptr ? std::string() : FromQString(label->text());
  };
  const auto answer = [](QWidget& dialog, const char* password, Qt::Key key = Qt::Key_Return) {
    auto* line = dialog.findChild<QLineEdit*>(QStringLiteral("password.password"));
    if (line == nullptr || !line->text().isEmpty()) return false;
    QTest::keyClicks(line, QLatin1String(password));
    QTest::keyClick(&dialog, key);
    return true;
  };
  {
    const TUser user({[&](QWidget& dialog) {
                        EXPECT_EQ(fault(dialog), "") << "none was given";
                        return answer(dialog, "wrong");
                      },
                      [&](QWidget& dialog) {
                        if (fault(dialog).empty()) return false;
                        EXPECT_NE(fault(dialog).find("Passwort-Authentifizierung"), std::string::npos);
                        return answer(dialog, "", Qt::Key_Escape);
                      }});
    Start({.Source = source});
  }
  EXPECT_NE(Note().find("Passwort-Authentifizierung"), std::string::npos) << Note();
  {
    const TUser user({[&](QWidget& dialog) { return answer(dialog, "right"); }});
    Choose(QStringLiteral("Try again"));
  }
  EXPECT_NE(Note().find("database \"shop\" does not exist"), std::string::npos) << Note();
  EXPECT_EQ(FProgram->Secrets().InSession(ParseConnectionUrl(source.Url)), std::nullopt);
}

TEST_F(Program, SaysThatTheNamedDatabaseCannotBeOpenedAndOpensNoOther) {
  Start();
  Window().close();
  Start({.Source = SourceOf(Path("none.sqlite"))});
  EXPECT_EQ(Window().GetWorkspace(), nullptr);
  EXPECT_NE(Note().find("none.sqlite"), std::string::npos) << Note();
  Copy("none.sqlite");
  Choose(QStringLiteral("Try again"));
  ASSERT_NE(Window().GetWorkspace(), nullptr);
  EXPECT_EQ(Window().GetWorkspace()->GetSource(), SourceOf(Path("none.sqlite")));

  Window().close();
  QFile::remove(Path("none.sqlite"));
  Start();
  EXPECT_EQ(Window().GetWorkspace(), nullptr) << "nor when it is the last one";
  Choose(QStringLiteral("Open the sample"));
  ASSERT_NE(Window().GetWorkspace(), nullptr);
  EXPECT_EQ(SourceName(Window().GetWorkspace()->GetSource()), QStringLiteral("shop"));
}

TEST_F(Program, TellsAllThatIsWrongOneAfterTheOther) {
  WriteFileAtomically(ToPath(Path("settings.json")), "{");
  Start({.Source = SourceOf(Path("none.sqlite"))});
  EXPECT_NE(Note().find("settings.json"), std::string::npos) << Note();
  Click(Window(), "note.close");
  EXPECT_NE(Note().find("none.sqlite"), std::string::npos) << Note();
  UseLanguage(QStringLiteral("en"));
  Copy("none.sqlite");
  Choose(QStringLiteral("Try again"));
  ASSERT_NE(Window().GetWorkspace(), nullptr);
  EXPECT_EQ(Note(), "");
}

TEST_F(Program, SaysWhyNothingCanBeAskedOfADatabaseWithoutTables) {
  const TSource source = SourceOf(Path("empty.sqlite"));
  TSqlConnection(ParseConnectionUrl(source.Url), {.MustExist = false}).Execute("PRAGMA user_version = 1");
  Start({.Source = source});
  TJQueryPanelView& conditions = Window().QueryArea().Conditions();
  QAbstractButton* addColumn = nullptr;
  for (QAbstractButton* button : Window().QueryArea().Columns().findChildren<QAbstractButton*>()) {
    if (button->isVisible() && addColumn == nullptr) addColumn = button;
  }
  ASSERT_NE(addColumn, nullptr);
  const std::function<void()> tries[] = {[&] { QTest::keyClick(&conditions, Qt::Key_Insert); },
                                         [&] { QTest::mouseClick(addColumn, Qt::LeftButton); }};
  for (const auto& tried : tries) {
    Click(Window(), "note.close");
    EXPECT_EQ(Note(), "");
    tried();
    EXPECT_NE(Note().find("The database has no tables that can be read."), std::string::npos);
  }
  TSqlConnection(ParseConnectionUrl(source.Url)).Execute("CREATE TABLE orders (order_no INTEGER PRIMARY KEY)");
  Choose(QStringLiteral("Read new tables from the data&base"));
  EXPECT_EQ(Window().GetWorkspace()->Model().GetTableCount(), 1U);
}

TEST_F(Program, OffersUnsavedWorkOfAnotherDatabaseThanTheNamedOne) {
  const TSource source = Copy("other.sqlite");
  Start();
  const TUnsavedWork work = Lose();
  Start({.Source = source});
  EXPECT_EQ(Window().GetWorkspace()->GetSource(), source);
  EXPECT_FALSE(Window().isWindowModified());
  EXPECT_EQ(Note(), "The program ended before changes of “" + work.QueryName +
                        "” in shop were saved. They are kept until you take them or discard them.");
  // It waits for an answer, whatever else is told and done.
  const std::string offer = Note();
  Window().Tell(QStringLiteral("for a moment"));
  EXPECT_EQ(Note(), "for a moment");
  TJStoredQueryBase& store = Window().GetWorkspace()->Store();
  store.SetItemIndex(store.AddQuery("Another", {}));
  EXPECT_EQ(Note(), offer);
  UseLanguage(QStringLiteral("de"));
  EXPECT_NE(Note(), "");
  EXPECT_NE(Note(), offer);
  UseLanguage(QStringLiteral("en"));
  EXPECT_EQ(Note(), offer);
  // Not answered, they are there the next time.
  Start({.Source = source});
  Choose(QStringLiteral("Open shop with them"));
  EXPECT_EQ(Window().GetWorkspace()->GetSource(), work.Source);
  EXPECT_EQ(Window().GetWorkspace()->QueryText(), *work.QueryText);
  EXPECT_NE(Note().find("Here they are again"), std::string::npos);
}

TEST_F(Program, LeavesUnsavedWorkWhereItIsUntilItIsKeptAnew) {
  const TSource source = Copy("other.sqlite");
  Start();
  Lose();
  Start({.Source = source});
  QDir unsaved(Path("unsaved"));
  const QStringList work = unsaved.entryList({QStringLiteral("*.work")});
  ASSERT_EQ(work.size(), 1);
  // In the way of this program's own file.
  QString own;
  for (const QString& lock : unsaved.entryList({QStringLiteral("*.lock")})) {
    if (!lock.startsWith(work.front())) own = lock.chopped(5);
  }
  ASSERT_TRUE(unsaved.mkpath(own + QStringLiteral("/full")));
  Choose(QStringLiteral("Open shop with them"));
  EXPECT_NE(Note().find("Here they are again"), std::string::npos) << Note();
  EXPECT_TRUE(unsaved.exists(work.front()));
  QDir(unsaved.filePath(own)).removeRecursively();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !unsaved.exists(work.front()); }, 2 * TProgram::KeepMilliseconds));
  EXPECT_TRUE(unsaved.exists(own));
}

TEST_F(Program, DropsUnsavedWorkThatNobodyWants) {
  const TSource source = Copy("other.sqlite");
  Start();
  Lose();
  Start({.Source = source});
  Choose(QStringLiteral("Discard"));
  Start({.Source = source});
  EXPECT_EQ(Note(), "");
}

TEST_F(Program, OffersUnsavedWorkOfADatabaseThatIsGoneUntilItIsBack) {
  const TSource source = Copy("gone.sqlite");
  const QString file = Path("gone.sqlite");
  Start({.Source = source});
  const TUnsavedWork work = Lose();
  ASSERT_TRUE(QFile::rename(file, file + QStringLiteral(".away")));
  // The source of the last time, and then the one that is named: no other one is opened.
  for (const bool isNamed : {false, true}) {
    Start(isNamed ? TProgram::TOptions{.Source = source} : TProgram::TOptions{});
    EXPECT_EQ(Window().GetWorkspace(), nullptr);
    EXPECT_NE(Note().find("gone.sqlite"), std::string::npos) << Note();
  }
  ASSERT_TRUE(QFile::rename(file + QStringLiteral(".away"), file));
  Choose(QStringLiteral("Try again"));
  EXPECT_NE(Note().find("were saved. They are kept"), std::string::npos) << Note();
  Choose(QStringLiteral("Open %1 with them").arg(SourceName(source)));
  EXPECT_EQ(Window().GetWorkspace()->QueryText(), *work.QueryText);
}

TEST_F(Program, BringsUnsavedWorkOfTheNamedDatabaseBack) {
  const TSource source = Copy("shop.sqlite");
  Start({.Source = source});
  const TUnsavedWork work = Lose();
  Start({.Source = source});
  EXPECT_EQ(Window().GetWorkspace()->QueryText(), *work.QueryText);
  EXPECT_NE(Note().find("Here they are again"), std::string::npos);
}

TEST_F(Program, MakesThePictureOfAScriptThatQuitsAndTellsOfLinesThatAreLeft) {
  const auto play = [this](std::string_view script) {
    WriteFileAtomically(ToPath(Path("a.script")), script);
    QFile::remove(Path("a.png"));
    FProgram = std::make_unique<TProgram>(TProgram::TOptions{FHome.path()});
    return PlayScript(*FProgram, Path("a.script"), Path("a.png"));
  };
  EXPECT_EQ(play("expect results.status rows\nquit\n\n# the end\n"), 0);
  EXPECT_EQ(QImage(Path("a.png")).size(), Window().size());
  testing::internal::CaptureStderr();
  EXPECT_EQ(play("expect results.status rows\nkey Ctrl+Q\nexpect note.words nothing\n"), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            FromQString(Path("a.script")) + ":3: the program ended before this line\n");
  EXPECT_TRUE(QFile::exists(Path("a.png")));
}

}  // namespace
}  // namespace tolvi
