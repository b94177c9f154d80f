#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <memory>
#include <optional>

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "apps/workbench/connection/connectiondlg.h"
#include "apps/workbench/connection/connectiontest.h"
#include "apps/workbench/connection/secrets.h"
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

const QString ShopFile = QStringLiteral(TOLVI_SHOP_DATABASE);

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

  TSecrets Secrets;
  T_dlgConnection Dialog{Secrets};
};

TEST_F(ConnectionDialog, WritesTheUrlOfTheFields) {
  EXPECT_EQ(Fault(), "Choose a file.");
  EXPECT_FALSE(CanAccept());
  Type("file", ShopFile);
  EXPECT_EQ(Url(), "sqlite:" + FromQString(ShopFile));
  EXPECT_TRUE(CanAccept());
  Type("file", QStringLiteral("/nowhere/shop"));
  EXPECT_EQ(Fault(), "There is no such file.");
  Type("file", QDir::tempPath());
  EXPECT_EQ(Fault(), "This is no file.");

  ChooseKind(1);
  EXPECT_EQ(Fault(), "Name the database.");
  Type("host", QStringLiteral("db.example"));
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
  const std::string words = test();
  EXPECT_TRUE(words.starts_with("The connection works; ")) << words;
  EXPECT_EQ(Find<QPushButton>("test").text(), QStringLiteral("&Test"));
  // What was said of another connection goes.
  Type("file", QStringLiteral(TOLVI_SOURCE_DIR "/README.md"));
  EXPECT_FALSE(told.isVisible());
  EXPECT_NE(test().find("check that it is an SQLite database"), std::string::npos);
}

TEST_F(ConnectionDialog, KeepsPasswordsWhereTheUserWants) {
  const bool hasKeychain = Secrets.GetKeychain() == TSecrets::kcReady;
  ChooseKind(1);
  EXPECT_EQ(Find<QCheckBox>("remember").isEnabled(), hasKeychain);
  EXPECT_EQ(Find<QLabel>("rememberTold").text().isEmpty(), hasKeychain);
  Type("database", QStringLiteral("shop"));
  Type("password", QStringLiteral("s3cret"));
  EXPECT_FALSE(Secrets.InSession(Dialog.GetUrl()).has_value());
  QTest::mouseClick(&Find<QPushButton>("ok"), Qt::LeftButton);
  EXPECT_EQ(Dialog.result(), QDialog::Accepted);
  EXPECT_EQ(Secrets.InSession(Dialog.GetUrl()), "s3cret");
}

/// Takes connections and says nothing.
class TSilentServer final {
 public:
  TSilentServer() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    EXPECT_EQ(bind(FSocket, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(listen(FSocket, 5), 0);
    getsockname(FSocket, reinterpret_cast<sockaddr*>(&address), &size);
    Port = ntohs(address.sin_port);
  }
  ~TSilentServer() { close(FSocket); }
  TSilentServer(const TSilentServer&) = delete;
  TSilentServer& operator=(const TSilentServer&) = delete;

  int Port = 0;

 private:
  const int FSocket = socket(AF_INET, SOCK_STREAM, 0);
};

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
  EXPECT_EQ(words, QStringLiteral("There was no answer within 1 second(s): check host and port."));
  EXPECT_LT(time.elapsed(), 3000);
  words.clear();
  test.Start({.Kind = dkSQLite, .Database = "/nowhere"}, 1);
  test.Stop();
  QTest::qWait(100);
  EXPECT_TRUE(words.isEmpty());
}

TEST(Secrets, AreForgottenOnRequestAndNotToldToTheDead) {
  const TConnectionUrl url = ParseConnectionUrl("postgresql://tolvi-test@localhost/nowhere");
  auto secrets = std::make_unique<TSecrets>();
  const bool hasKeychain = secrets->WaitForKeychain(5000) == TSecrets::kcReady;
  EXPECT_EQ(secrets->GetKeychainFault().isEmpty(), hasKeychain);
  std::optional<QString> fault;
  secrets->KeepInKeychain(url, "s3cret", [&](const QString& words) { fault = words; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return fault.has_value(); }));
  EXPECT_EQ(fault->isEmpty(), hasKeychain);
  const auto find = [&] {
    std::optional<std::string> found;
    bool isDone = false;
    secrets->Find(url, [&](const std::optional<std::string>& password) {
      found = password;
      isDone = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }));
    return found;
  };
  // Without a keychain, it is known for the session.
  EXPECT_EQ(find(), "s3cret");
  secrets->Forget(url);
  EXPECT_EQ(find(), std::nullopt);
  secrets->Find(url, [](const std::optional<std::string>&) { ADD_FAILURE() << "told to nobody"; });
  secrets.reset();
  QTest::qWait(20);
}

TEST(Passwords, AreAskedForWithWhatTheServerSaid) {
  const TConnectionUrl url = ParseConnectionUrl("postgresql://anna@db/shop");
  TSecrets secrets;
  const auto ask = [&](Qt::Key key, const QString& fault) {
    QTimer timer;
    timer.callOnTimeout([&] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr) return;
      timer.stop();
      EXPECT_EQ(dialog->findChild<QLabel*>(QStringLiteral("password.fault")) != nullptr, !fault.isEmpty());
      QTest::keyClicks(dialog->findChild<QLineEdit*>(QStringLiteral("password.password")), QStringLiteral("s3cret"));
      QTest::keyClick(dialog, key);
    });
    timer.start(5);
    return AskPassword(nullptr, url, secrets, fault);
  };
  EXPECT_EQ(ask(Qt::Key_Escape, {}), std::nullopt);
  EXPECT_EQ(secrets.InSession(url), std::nullopt);
  EXPECT_EQ(ask(Qt::Key_Return, QStringLiteral("password authentication failed")), "s3cret");
  EXPECT_EQ(secrets.InSession(url), "s3cret");
}

}  // namespace
}  // namespace tolvi
