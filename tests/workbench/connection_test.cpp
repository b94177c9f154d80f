#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "apps/workbench/connection/connectiondlg.h"
#include "apps/workbench/connection/connectiontest.h"
#include "apps/workbench/connection/passworddlg.h"
#include "apps/workbench/connection/secrets.h"
#include "tests/workbench/silentserver.h"
#include <tolvi/connect/sqlconnection.h>
#include <tolvi/connect/sqldbinfo.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

const QString ShopFile = QStringLiteral(TOLVI_SHOP_DATABASE);

/// What several keychains see: its texts, and how it behaves.
struct TVault {
  QMap<QString, QString> Texts = {};
  /// What it says to everything, or to writing alone.
  QString Fault = {}, WriteFault = {};
  /// It answers only when it is told to.
  bool IsSlow = false;
  std::vector<std::function<void()>> Waiting = {};

  void Answer() {
    for (const auto& answer : std::exchange(Waiting, {})) answer();
  }
};

class TTestKeychain final : public TKeychain {
 public:
  explicit TTestKeychain(TVault& vault) : FVault(vault) {}
  void Read(const QString& key, TAnswered answered) override {
    const bool isKnown = FVault.Fault.isEmpty() && FVault.Texts.contains(key);
    Tell({FVault.Fault, isKnown, isKnown ? FVault.Texts.value(key) : QString()}, std::move(answered));
  }
  void Write(const QString& key, const QString& password, TAnswered answered) override {
    const QString fault = FVault.Fault + FVault.WriteFault;
    if (fault.isEmpty()) FVault.Texts.insert(key, password);
    Tell({fault}, std::move(answered));
  }
  void Delete(const QString& key, TAnswered answered) override {
    if (FVault.Fault.isEmpty()) FVault.Texts.remove(key);
    Tell({FVault.Fault}, std::move(answered));
  }

 private:
  void Tell(const TKeychainAnswer& answer, TAnswered answered) {
    const auto call = [answer, answered = std::move(answered)] { answered(answer); };
    if (FVault.IsSlow) return FVault.Waiting.push_back(call);
    QTimer::singleShot(0, qApp, call);
  }

  TVault& FVault;
};

std::unique_ptr<TSecrets> SecretsIn(TVault& vault) {
  auto secrets = std::make_unique<TSecrets>(std::make_unique<TTestKeychain>(vault));
  if (!vault.IsSlow) secrets->WaitForKeychain(5000);
  return secrets;
}

class ConnectionDialog : public testing::Test {
 protected:
  void SetUp() override {
    Secrets.WaitForKeychain(5000);
    Dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Dialog));
  }

  template <typename T>
  T& Find(const char* name) {
    T* found = Dialog.findChild<T*>(QStringLiteral("connection.") + QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  void Type(const char* name, const QString& text) {
    auto& line = Find<QLineEdit>(name);
    EXPECT_TRUE(line.isVisible()) << name;
    line.setFocus();
    line.selectAll();
    for (const QChar c : text) QTest::keyClick(&line, c.toLatin1());
    if (text.isEmpty()) QTest::keyClick(&line, Qt::Key_Delete);
  }
  void ChooseKind(int index) { Find<QComboBox>("kind").setCurrentIndex(index); }
  std::string Url() { return FromQString(Find<QLineEdit>("url").text()); }
  std::string Fault() { return FromQString(Find<QLabel>("fault").text()); }
  bool CanAccept() { return Find<QPushButton>("ok").isEnabled(); }

  TVault Vault;
  TSecrets Secrets{std::make_unique<TTestKeychain>(Vault)};
  T_dlgConnection Dialog{Secrets};
};

TEST_F(ConnectionDialog, TellsWhatIsMissingOnceTheUserHasBegun) {
  for (const auto& [kind, field, fault] : {std::tuple{0, "file", "Choose a file."},
                                           {1, "database", "Name the database."},
                                           {3, "source", "Name the data source."}}) {
    ChooseKind(kind);
    QTest::keyClick(&Find<QLineEdit>("url"), Qt::Key_Tab);
    EXPECT_EQ(Fault(), "");
    QTest::mouseClick(&Find<QPushButton>(kind == 1 ? "test" : "ok"), Qt::LeftButton);
    EXPECT_EQ(Fault(), fault);
    EXPECT_FALSE(CanAccept());
    EXPECT_TRUE(Dialog.isVisible() && Find<QLineEdit>(field).hasFocus()) << field;
  }
  Type("source", QStringLiteral("shop"));
  EXPECT_EQ(Fault(), "");
  Type("source", {});
  EXPECT_EQ(Fault(), "Name the data source.");
}

TEST_F(ConnectionDialog, FitsALowScreenWithLargeLetters) {
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSize(20);
  QApplication::setFont(large);
  {
    T_dlgConnection dialog(Secrets);
    dialog.SetRecent({ParseConnectionUrl("postgresql://anna@db/shop")});
    dialog.resize(800, 600);
    dialog.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    EXPECT_LE(dialog.minimumSizeHint().width(), 800);
    EXPECT_LE(dialog.height(), 600);
    auto& ok = *dialog.findChild<QPushButton*>(QStringLiteral("connection.ok"));
    EXPECT_TRUE(dialog.rect().contains(QRect(ok.mapTo(&dialog, QPoint()), ok.size())));
    // Who goes on by key sees where he is.
    dialog.findChild<QComboBox*>(QStringLiteral("connection.kind"))->setCurrentIndex(1);
    auto& password = *dialog.findChild<QLineEdit*>(QStringLiteral("connection.password"));
    dialog.findChild<QLineEdit*>(QStringLiteral("connection.user"))->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(password.hasFocus());
    EXPECT_EQ(password.visibleRegion().boundingRect(), password.rect());
  }
  QApplication::setFont(usual);
}

TEST_F(ConnectionDialog, WritesTheUrlOfTheFields) {
  Type("file", ShopFile);
  EXPECT_EQ(Url(), "sqlite:" + FromQString(ShopFile));
  EXPECT_TRUE(CanAccept());
  Type("file", QStringLiteral("/nowhere/shop"));
  EXPECT_EQ(Fault(), "There is no such file.");
  Type("file", QDir::tempPath());
  EXPECT_EQ(Fault(), "This is no file.");

  ChooseKind(1);
  Type("host", QStringLiteral("db.example"));
  EXPECT_EQ(Fault(), "Name the database.");
  Type("port", QStringLiteral("5433"));
  Type("database", QStringLiteral("my/shop"));
  Type("schema", QStringLiteral("sales"));
  Type("user", QStringLiteral("anna"));
  Type("password", QStringLiteral("s3cret"));
  EXPECT_EQ(Url(), "postgresql://anna@db.example:5433/my%2Fshop?schema=sales");
  EXPECT_EQ(Dialog.GetUrl().Password, "s3cret");
  EXPECT_TRUE(CanAccept());
  Type("port", QStringLiteral("0"));
  EXPECT_EQ(Fault(), "The port is a number from 1 to 65535.");
  Type("port", {});
  // What the other kind does not have is not taken along.
  ChooseKind(2);
  EXPECT_EQ(Url(), "mysql://anna@db.example/my%2Fshop");
  EXPECT_FALSE(Find<QLineEdit>("schema").isVisible());
}

TEST_F(ConnectionDialog, FillsTheFieldsFromATypedUrl) {
  Type("url", QStringLiteral("mariadb://anna:s3cret@db:3307/shop"));
  EXPECT_EQ(Find<QComboBox>("kind").currentIndex(), 2);
  EXPECT_EQ(Find<QLineEdit>("host").text(), QStringLiteral("db"));
  EXPECT_EQ(Find<QLineEdit>("port").text(), QStringLiteral("3307"));
  EXPECT_EQ(Find<QLineEdit>("password").text(), QStringLiteral("s3cret"));
  EXPECT_EQ(Dialog.GetUrl(), ParseConnectionUrl("mysql://anna:s3cret@db:3307/shop"));
  // Once it is written, it shows no password.
  QTest::keyClick(&Find<QLineEdit>("url"), Qt::Key_Tab);
  EXPECT_EQ(Url(), "mysql://anna@db:3307/shop");

  Type("url", QStringLiteral("postgresql://anna:hush@db:x/shop"));
  EXPECT_EQ(Fault().find("hush"), std::string::npos);
  EXPECT_NE(Fault().find("has a port that is no number"), std::string::npos) << Fault();
  EXPECT_FALSE(CanAccept());
  // A wrong text stays, to be mended.
  QTest::keyClick(&Find<QLineEdit>("url"), Qt::Key_Tab);
  EXPECT_EQ(Url(), "postgresql://anna:hush@db:x/shop");
}

TEST_F(ConnectionDialog, TakesRecentConnectionsAndDroppedFiles) {
  const TConnectionUrl server = ParseConnectionUrl("postgresql://anna@db/shop");
  Secrets.KeepInSession(server, "known");
  Dialog.SetRecent({ParseConnectionUrl("sqlite:" + FromQString(ShopFile)), server});
  auto& list = Find<QListWidget>("recent");
  EXPECT_TRUE(list.isVisible());
  EXPECT_EQ(list.item(0)->text().section(u'\n', 0, 0), QStringLiteral("shop.sqlite"));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(1)).center());
  EXPECT_EQ(Url(), "postgresql://anna@db/shop");
  // The password that is known is used, but not shown.
  EXPECT_TRUE(QTest::qWaitFor([this] { return Dialog.GetUrl().Password == "known"; }));
  EXPECT_TRUE(Find<QLineEdit>("password").text().isEmpty());
  Type("user", QStringLiteral("bob"));
  EXPECT_EQ(Dialog.GetUrl().Password, "") << "that of another user";

  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(ShopFile)});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Dialog, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&Dialog, &drop);
  EXPECT_EQ(Url(), "sqlite:" + FromQString(ShopFile));
}

TEST_F(ConnectionDialog, TestsInTheBackground) {
  auto& told = Find<QLabel>("told");
  const auto test = [&] {
    QTest::mouseClick(&Find<QPushButton>("test"), Qt::LeftButton);
    EXPECT_EQ(Find<QPushButton>("test").text(), QStringLiteral("S&top"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.isVisible(); }, 20000));
    return FromQString(told.text());
  };
  Type("file", ShopFile);
  const TSqlConnection connection(ParseConnectionUrl("sqlite:" + FromQString(ShopFile)));
  TJSqlDBInfo info(connection.GetName());
  TStrings tables;
  info.GetTableNames(tables);
  EXPECT_EQ(test(), "The connection works; " + std::to_string(tables.Count()) + " tables found.");
  EXPECT_EQ(Find<QPushButton>("test").text(), QStringLiteral("&Test"));
  // What was said of another connection goes.
  Type("file", QStringLiteral(TOLVI_SOURCE_DIR "/README.md"));
  EXPECT_FALSE(told.isVisible());
  EXPECT_NE(test().find("check that it is an SQLite database"), std::string::npos);
}

TEST_F(ConnectionDialog, GivesPasswordsAndKeepsThemNowhere) {
  EXPECT_TRUE(Find<QCheckBox>("remember").isEnabled());
  ChooseKind(1);
  Type("database", QStringLiteral("shop"));
  EXPECT_FALSE(Dialog.GetGiven());
  Type("password", QStringLiteral("s3cret"));
  for (const bool remember : {false, true}) {
    Dialog.show();
    Find<QCheckBox>("remember").setChecked(remember);
    QTest::mouseClick(&Find<QPushButton>("ok"), Qt::LeftButton);
    EXPECT_EQ(Dialog.result(), QDialog::Accepted);
    ASSERT_TRUE(Dialog.GetGiven());
    EXPECT_EQ(Dialog.GetGiven()->Password, "s3cret");
    EXPECT_EQ(Dialog.GetGiven()->IsForKeychain, remember);
  }
  EXPECT_EQ(Secrets.InSession(Dialog.GetUrl()), std::nullopt) << "nobody knows yet whether it is the right one";
  EXPECT_TRUE(Vault.Texts.isEmpty());
}

TEST_F(ConnectionDialog, GivesThePasswordThatStandsAmongTheAttributesOfASource) {
  ChooseKind(3);
  Type("source", QStringLiteral("Driver={SQLite3};Database=/x;UID=anna;PWD=s3cret"));
  ASSERT_TRUE(Dialog.GetGiven());
  EXPECT_EQ(Dialog.GetGiven()->Password, "s3cret");
  EXPECT_EQ(Url(), "odbc:Driver={SQLite3};Database=/x;UID=anna");
}

TEST_F(ConnectionDialog, ForgetsWhatTheUserWantsRememberedNoMore) {
  Vault.Texts.insert(QStringLiteral("postgresql://anna@db/shop"), QStringLiteral("s3cret"));
  auto& remember = Find<QCheckBox>("remember");
  Dialog.SetUrl(ParseConnectionUrl("postgresql://anna@db/shop"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return remember.isChecked(); }));
  EXPECT_FALSE(Dialog.GetGiven()) << "all stays as it is";
  Type("password", QStringLiteral("new"));
  EXPECT_TRUE(Dialog.GetGiven()->IsForKeychain) << "the new one comes in its place";
  Type("password", {});
  remember.click();
  ASSERT_TRUE(Dialog.GetGiven());
  EXPECT_EQ(Dialog.GetGiven()->Password, "s3cret");
  EXPECT_FALSE(Dialog.GetGiven()->IsForKeychain);
  // The choice was for this connection.
  Dialog.SetUrl(ParseConnectionUrl("postgresql://bob@db/shop"));
  QTest::qWait(300);
  Dialog.SetUrl(ParseConnectionUrl("postgresql://anna@db/shop"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return remember.isChecked(); }));
}

TEST(ConnectionDialogAlone, SaysThatThereIsNoKeychain) {
  TVault vault{.Fault = QStringLiteral("no such service")};
  const auto secrets = SecretsIn(vault);
  const T_dlgConnection dialog(*secrets);
  EXPECT_FALSE(dialog.findChild<QCheckBox*>(QStringLiteral("connection.remember"))->isEnabled());
  EXPECT_EQ(FromQString(dialog.findChild<QLabel*>(QStringLiteral("connection.rememberTold"))->text()),
            "This system has no keychain: passwords are forgotten when the program ends.");
}

TEST(ConnectionTest, EndsWhereAServerIsSilentAndIsNotHeardOnceStopped) {
  TSilentServer server;
  const TConnectionUrl url{.Kind = dkPostgreSQL, .Database = "shop", .Host = "127.0.0.1", .Port = server.Port};
  TConnectionTest test;
  QString words;
  test.OnEnd = [&](bool works, const QString& told) {
    EXPECT_FALSE(works);
    words = told;
  };
  QElapsedTimer time;
  time.start();
  test.Start(url, 1);
  EXPECT_TRUE(test.IsRunning());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !words.isEmpty(); }));
  EXPECT_EQ(words, QStringLiteral("There was no answer within a second: check host and port."));
  EXPECT_LT(time.elapsed(), 3000);
  EXPECT_EQ(FromQString(TConnectionTest::NoAnswer(dkODBC, 2)),
            "There was no answer within 2 seconds: check the data source and its driver.");
  words.clear();
  test.Start({.Kind = dkSQLite, .Database = "/nowhere"}, 1);
  test.Stop();
  QTest::qWait(100);
  EXPECT_TRUE(words.isEmpty());
}

class Secrets : public testing::Test {
 protected:
  static std::optional<std::string> Find(TSecrets& secrets) {
    std::optional<std::string> found;
    bool isDone = false;
    secrets.Find(Url, [&](const std::optional<std::string>& password) {
      found = password;
      isDone = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }));
    return found;
  }
  /// What it says.
  static std::string Keep(TSecrets& secrets) {
    std::optional<QString> fault;
    secrets.KeepInKeychain(Url, "s3cret", [&](const QString& words) { fault = words; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return fault.has_value(); }));
    return FromQString(*fault);
  }

  static inline const TConnectionUrl Url = ParseConnectionUrl("postgresql://anna@db/shop");
  TVault Vault;
};

TEST_F(Secrets, OutliveTheProgramInTheKeychainUntilTheyAreForgotten) {
  EXPECT_EQ(Keep(*SecretsIn(Vault)), "");
  EXPECT_EQ(Vault.Texts.value(QStringLiteral("postgresql://anna@db/shop")), QStringLiteral("s3cret"));
  const auto later = SecretsIn(Vault);
  EXPECT_EQ(later->InSession(Url), std::nullopt);
  EXPECT_EQ(Find(*later), "s3cret");
  Vault.Texts.clear();
  EXPECT_EQ(Find(*later), "s3cret") << "the keychain is not asked again";
  later->Forget(Url);
  EXPECT_EQ(Find(*later), std::nullopt);
}

TEST_F(Secrets, LastAsLongAsTheProgramWhereAKeychainIsMissingOrRefuses) {
  Vault.Fault = QStringLiteral("no such service");
  const auto missing = SecretsIn(Vault);
  EXPECT_EQ(missing->GetKeychain(), TSecrets::kcNone);
  EXPECT_EQ(missing->GetKeychainFault(), Vault.Fault);
  EXPECT_EQ(Keep(*missing), "no such service");
  EXPECT_EQ(Find(*missing), "s3cret");
  std::optional<QString> fault;
  missing->Forget(Url, [&](const QString& words) { fault = words; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return fault.has_value(); }));
  EXPECT_EQ(*fault, QString()) << "there was nothing to forget";
  EXPECT_EQ(Find(*missing), std::nullopt);

  Vault = {.WriteFault = QStringLiteral("it is locked")};
  const auto refusing = SecretsIn(Vault);
  EXPECT_EQ(refusing->GetKeychain(), TSecrets::kcReady);
  EXPECT_EQ(Keep(*refusing), "it is locked");
  EXPECT_EQ(Find(*refusing), "s3cret");
}

TEST_F(Secrets, AreNotWaitedForLongerThanIsWanted) {
  Vault.Texts.insert(QStringLiteral("postgresql://anna@db/shop"), QStringLiteral("s3cret"));
  EXPECT_EQ(SecretsIn(Vault)->WaitFor(Url, 60'000), "s3cret");
  Vault.IsSlow = true;
  auto secrets = SecretsIn(Vault);
  EXPECT_EQ(secrets->WaitForKeychain(10), TSecrets::kcUnknown);
  EXPECT_EQ(secrets->WaitFor(Url, 10), std::nullopt);
  Vault.Answer();
  EXPECT_EQ(secrets->InSession(Url), "s3cret") << "the answer came after all";
  EXPECT_EQ(secrets->GetKeychain(), TSecrets::kcReady);

  // What is typed meanwhile is not replaced by an older one.
  secrets->Forget(Url);
  secrets->Find(Url, [](const std::optional<std::string>& password) { EXPECT_EQ(password, "typed"); });
  secrets->KeepInSession(Url, "typed");
  Vault.Answer();
  EXPECT_EQ(secrets->InSession(Url), "typed");

  const TConnectionUrl other = ParseConnectionUrl("postgresql://bob@db/shop");
  secrets->Find(other, [](const std::optional<std::string>&) { ADD_FAILURE() << "told to nobody"; });
  secrets.reset();
  Vault.Answer();
}

TEST_F(Secrets, OfTheSystemAnswerBeThereAKeychainOrNot) {
  TSecrets secrets;
  const bool hasKeychain = secrets.WaitForKeychain(5000) == TSecrets::kcReady;
  EXPECT_EQ(secrets.GetKeychainFault().isEmpty(), hasKeychain);
  EXPECT_EQ(Keep(secrets).empty(), hasKeychain);
  EXPECT_EQ(Find(secrets), "s3cret");
  secrets.Forget(Url);
  EXPECT_EQ(Find(secrets), std::nullopt);
}

TEST(Passwords, AreAskedForWithWhatTheServerSaid) {
  const TConnectionUrl url = ParseConnectionUrl("postgresql://anna@db/shop");
  TVault vault;
  const auto secrets = SecretsIn(vault);
  bool wasChecked = false;
  const auto ask = [&](Qt::Key key, const QString& fault, bool remember,
                       const std::optional<TGivenPassword>& refused = {}) {
    QTimer timer;
    timer.callOnTimeout([&] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr) return;
      timer.stop();
      EXPECT_EQ(dialog->findChild<QLabel*>(QStringLiteral("password.fault")) != nullptr, !fault.isEmpty());
      QTest::keyClicks(dialog->findChild<QLineEdit*>(QStringLiteral("password.password")), QStringLiteral("s3cret"));
      auto* box = dialog->findChild<QCheckBox*>(QStringLiteral("password.remember"));
      wasChecked = box->isChecked();
      box->setChecked(remember);
      QTest::keyClick(dialog, key);
    });
    timer.start(5);
    return AskPassword(nullptr, url, *secrets, fault, refused);
  };
  EXPECT_FALSE(ask(Qt::Key_Escape, {}, false));
  for (const bool remember : {false, true}) {
    const auto given = ask(Qt::Key_Return, QStringLiteral("password authentication failed"), remember);
    ASSERT_TRUE(given);
    EXPECT_EQ(given->Password, "s3cret");
    EXPECT_EQ(given->IsForKeychain, remember);
    ask(Qt::Key_Escape, QStringLiteral("password authentication failed"), false, given);
    EXPECT_EQ(wasChecked, remember) << "as it was chosen the first time";
  }
  EXPECT_EQ(secrets->InSession(url), std::nullopt) << "nobody knows yet whether it is the right one";

  std::string told;
  const auto tell = [&](const QString& words) { told = FromQString(words); };
  KeepPassword(*secrets, url, {"s3cret", true}, tell);
  EXPECT_TRUE(QTest::qWaitFor([&] { return secrets->IsInKeychain(url); }));
  EXPECT_EQ(vault.Texts.size(), 1);
  ask(Qt::Key_Escape, {}, false);
  EXPECT_TRUE(wasChecked) << "the keychain has one";
  // The user wants it in the keychain no more.
  KeepPassword(*secrets, url, {"other", false}, tell);
  EXPECT_EQ(secrets->InSession(url), "other");
  EXPECT_TRUE(QTest::qWaitFor([&] { return vault.Texts.isEmpty(); }));
  EXPECT_EQ(told, "");

  vault.WriteFault = QStringLiteral("it is locked");
  KeepPassword(*secrets, url, {"s3cret", true}, tell);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !told.empty(); }));
  EXPECT_EQ(told, "The keychain did not take the password: it is locked. It is known until the program ends.");
  EXPECT_EQ(secrets->InSession(url), "s3cret");
}

}  // namespace
}  // namespace tolvi
