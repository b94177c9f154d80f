#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include "apps/workbench/sql/scintilla.h"
#include "apps/workbench/sql/sqledit.h"
#include "apps/workbench/sql/sqlpane.h"
#include "support/models.h"
#include "tests/ui/userevents.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/ui/controls/contrast.h>

namespace tolvi {
namespace {

class SqlPane : public testing::Test {
 protected:
  void SetUp() override {
    pane.resize(500, 300);
    pane.show();
    QApplication::setActiveWindow(&pane);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pane));
    pane.SetStatement("select Name\r\nfrom Customers\r\nwhere City = 'Linz'");
  }
  void TearDown() override { QApplication::clipboard()->clear(); }

  template <typename T>
  T* Child(const char* name) {
    return pane.findChild<T*>(QLatin1String(name));
  }
  void Copy(const char* item) {
    auto* menu = Child<QToolButton>("sql.copy")->menu();
    menu->popup(pane.mapToGlobal(QPoint()));
    user::ChooseFromMenu(QLatin1String(item));
  }
  static QString Copied() { return QApplication::clipboard()->text(); }

  TSqlPane pane;
};

TEST_F(SqlPane, ShowsTheStatementAndCopiesItInEachForm) {
  EXPECT_EQ(Child<TSqlEdit>("sql.view")->text(), QStringLiteral("select Name\nfrom Customers\nwhere City = 'Linz'"));
  EXPECT_TRUE(Child<TSqlEdit>("sql.view")->isReadOnly());
  user::Click(*Child<QToolButton>("sql.copy"));
  EXPECT_EQ(Copied(), QStringLiteral("select Name\nfrom Customers\nwhere City = 'Linz'"));
  // Without the host's help, there are no parameters.
  QApplication::clipboard()->clear();
  Copy("sql.copy.question");
  EXPECT_EQ(Copied(), QString());
  user::Popup()->close();
  pane.OnMarkersRequest = [](TMarkerStyle style) {
    if (style == msDollarNumber) throw EJQueryPanelError(1, "No value");
    return std::string(style == msQuestion ? "City\r\n= ?" : "City = :Town");
  };
  Copy("sql.copy.question");
  EXPECT_EQ(Copied(), QStringLiteral("City\n= ?"));
  Copy("sql.copy.colon");
  EXPECT_EQ(Copied(), QStringLiteral("City = :Town"));
  Copy("sql.copy.values");
  EXPECT_EQ(Copied().left(11), QStringLiteral("select Name"));
  Copy("sql.copy.dollar");
  EXPECT_EQ(pane.GetFault(), QStringLiteral("No value"));
}

TEST_F(SqlPane, AFaultGreysTheStatementAndLeadsToItsRow) {
  std::vector<std::string> rows;
  pane.OnShowRow = [&rows](const std::string& row) { rows.push_back(row); };
  pane.SetWarnings({{".1.2", "Moved to <WHERE>"}, {"", "Grouped"}});
  auto* told = Child<QLabel>("sql.told");
  EXPECT_TRUE(told->text().contains(QStringLiteral("Moved to &lt;WHERE&gt; <a href=\"0\">Show in query</a>")));
  pane.ShowFault(QStringLiteral("Value \"x\" is no number"), ".2");
  EXPECT_TRUE(Child<TSqlEdit>("sql.view")->GetGreyed());
  EXPECT_FALSE(Child<QToolButton>("sql.copy")->isEnabled());
  EXPECT_FALSE(told->text().contains(QStringLiteral("WHERE")));
  EXPECT_GE(ContrastRatio(told->palette().color(QPalette::WindowText), pane.palette().color(QPalette::Window)), 4.5);
  // The link by keys.
  told->setFocus();
  QTest::keyClick(told, Qt::Key_Tab);
  QTest::keyClick(told, Qt::Key_Return);
  pane.SetStatement("select 1");
  EXPECT_FALSE(Child<TSqlEdit>("sql.view")->GetGreyed());
  EXPECT_TRUE(Child<QToolButton>("sql.copy")->isEnabled());
  EXPECT_TRUE(told->text().isEmpty()) << "they are of another statement";
  pane.SetWarnings({{".1.2", "Moved to <WHERE>"}});
  Q_EMIT told->linkActivated(QStringLiteral("0"));
  EXPECT_EQ(rows, (std::vector<std::string>{".2", ".1.2"}));
}

TEST_F(SqlPane, TellsOfAnotherSyntaxOnlyWhenTheUserChoosesIt) {
  std::vector<TSQLSyntax> chosen;
  pane.OnSyntaxChange = [&chosen](TSQLSyntax syntax) { chosen.push_back(syntax); };
  pane.SetSyntax(ssAccess);
  EXPECT_EQ(pane.GetSyntax(), ssAccess);
  auto* box = Child<QComboBox>("sql.dialect");
  EXPECT_EQ(box->currentText(), QStringLiteral("Access"));
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Home);
  QTest::keyClick(box, Qt::Key_Down);
  EXPECT_EQ(chosen, (std::vector<TSQLSyntax>{ssSQL2, ssSQL1}));
  int pasted = 0;
  pane.OnPaste = [&pasted] { ++pasted; };
  user::Click(*Child<QPushButton>("sql.paste"));
  pane.SetCanPaste(false, QStringLiteral("no model"));
  user::Click(*Child<QPushButton>("sql.paste"));
  EXPECT_EQ(pasted, 1);
}

TEST_F(SqlPane, TabLeavesTheStatementAndColoursCanBeRead) {
  auto* view = Child<TSqlEdit>("sql.view");
  view->setFocus();
  QTest::keyClick(view, Qt::Key_Tab);
  EXPECT_FALSE(view->hasFocus());
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(30, 31, 34));
  dark.setColor(QPalette::Text, QColor(230, 230, 230));
  pane.setPalette(dark);
  for (const int style : {QsciLexerSQL::Default, QsciLexerSQL::Keyword, QsciLexerSQL::SingleQuotedString,
                          QsciLexerSQL::Number, QsciLexerSQL::CommentLine, QsciLexerSQL::Identifier}) {
    EXPECT_EQ(view->lexer()->paper(style), QColor(30, 31, 34));
    EXPECT_GE(ContrastRatio(view->lexer()->color(style), QColor(30, 31, 34)), 4.5) << style;
  }
  QFont large = pane.font();
  large.setPointSize(20);
  pane.setFont(large);
  EXPECT_EQ(view->lexer()->font(QsciLexerSQL::Keyword).pointSize(), 20);
}

}  // namespace
}  // namespace tolvi
