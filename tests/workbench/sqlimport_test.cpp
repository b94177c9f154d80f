#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "apps/workbench/sql/importdlg.h"
#include "apps/workbench/sql/sqledit.h"
#include "support/models.h"
#include <tolvi/query/explain.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

class ImportSql : public testing::Test {
 protected:
  void Open(const std::string& sql, bool fragments = false) {
    TImportOptions options;
    options.Sql = sql;
    options.AllowFragments = fragments;
    dialog = std::make_unique<T_dlgImportSql>(*model, options);
    Show();
  }
  void Show() {
    dialog->show();
    QApplication::setActiveWindow(dialog.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  template <typename T>
  T* Child(const char* name) const {
    return dialog->findChild<T*>(QLatin1String(name));
  }
  TSqlEdit& Editor() const { return *Child<TSqlEdit>("import.sql"); }
  QStringList Remarks() const {
    const auto* list = Child<QListWidget>("import.list");
    QStringList texts;
    for (int i = 0; i < list->count(); ++i) texts << list->item(i)->text();
    return texts;
  }
  bool CanMake() const { return Child<QDialogButtonBox>(nullptr)->button(QDialogButtonBox::Ok)->isEnabled(); }
  int Line() const {
    int line = 0, index = 0;
    Editor().getCursorPosition(&line, &index);
    return line + 1;
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(dialog->windowHandle(), key, modifiers);
  }
  void Type(const char* text) {
    for (const char* letter = text; *letter != 0; ++letter) QTest::keyClick(&Editor(), *letter);
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  std::unique_ptr<T_dlgImportSql> dialog;
};

constexpr const char* Doubtful =
    "select Customers.Company\nfrom Customers\nwhere Customers.City = 'Linz'\norder by Customers.Company nulls last\n";

TEST_F(ImportSql, ReadsWhatIsPastedAndTypedAndMakesAQuery) {
  QApplication::clipboard()->setText(QStringLiteral("-- all\n(Select Customers.Company from Customers)"));
  Open({});
  EXPECT_TRUE(Editor().text().startsWith(QStringLiteral("-- all")));
  QApplication::clipboard()->setText(QStringLiteral("selected words"));
  Open({});
  EXPECT_EQ(Editor().text(), QString());
  EXPECT_FALSE(CanMake());
  EXPECT_EQ(Child<QLabel>("import.told")->text(), QStringLiteral("Paste or type a SELECT statement."));
  QApplication::clipboard()->setText(QStringLiteral("select Customers.Company\r\nfrom Customers\r\n"));
  QTest::keyClick(&Editor(), Qt::Key_V, Qt::ControlModifier);
  Type("where Customers.City = 'Wien'");
  // Read some time after the last key.
  EXPECT_EQ(Child<QPlainTextEdit>("import.preview")->toPlainText(), QString());
  EXPECT_TRUE(QTest::qWaitFor([this] { return dialog->GetImported().has_value(); }));
  EXPECT_EQ(Child<QPlainTextEdit>("import.preview")->toPlainText(),
            QStringLiteral("Choose records where all of the following apply\n  City is equal to Wien\n"
                           "Result fields:\n  Company"));
  EXPECT_EQ(Child<QLabel>("import.told")->text(), QStringLiteral("The query says what the statement says."));
  EXPECT_TRUE(CanMake());
  Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  TJQueryPanel panel;
  panel.SetDBStruct(model.get());
  panel.LoadFromText(dialog->GetImported()->QueryText);
  EXPECT_EQ(Explain(panel)[1], "  City is equal to Wien");
}

TEST_F(ImportSql, WarningsStandAtTheirLinesAndKeysLeadThere) {
  Open(
      "select c.Company\nfrom Customers c left join Orders o on o.CustNo = c.CustNo\nwhere c.City = 'Linz'\n"
      "order by c.Company nulls last");
  const QStringList remarks = Remarks();
  ASSERT_EQ(remarks.size(), 2) << remarks.join(u'\n').toStdString();
  EXPECT_TRUE(remarks[0].startsWith(QStringLiteral("Line 2: ")));
  EXPECT_TRUE(remarks[1].startsWith(QStringLiteral("Line 4: \"nulls last\": left out")));
  EXPECT_EQ(Editor().markersAtLine(0), 0U);
  EXPECT_EQ(Editor().markersAtLine(1), 1U << 1);
  EXPECT_EQ(Editor().markersAtLine(3), 1U << 1);
  Key(Qt::Key_F8);
  EXPECT_EQ(Line(), 2);
  Key(Qt::Key_F8);
  EXPECT_EQ(Line(), 4);
  EXPECT_EQ(Child<QListWidget>("import.list")->currentRow(), 1);
  Key(Qt::Key_F8);
  EXPECT_EQ(Line(), 2);
  Key(Qt::Key_F8, Qt::ShiftModifier);
  EXPECT_EQ(Line(), 4);
  EXPECT_TRUE(Editor().hasFocus());
  auto* list = Child<QListWidget>("import.list");
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Up);
  EXPECT_EQ(Line(), 2);
  EXPECT_TRUE(CanMake());
}

TEST_F(ImportSql, AnExactImportTellsWhatStandsInItsWayUntilItIsMended) {
  Open(Doubtful);
  QTest::keyClick(Child<QCheckBox>("import.exact"), Qt::Key_Space);
  ASSERT_EQ(Remarks().size(), 1);
  EXPECT_TRUE(Remarks()[0].startsWith(QStringLiteral("Line 4: NULLS LAST: ")));
  EXPECT_EQ(Editor().markersAtLine(3), 1U << 2);
  EXPECT_FALSE(CanMake());
  Editor().setFocus();
  Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Line(), 4);
  // The fault begins at the caret: cut it off.
  QTest::keyClick(&Editor(), Qt::Key_End, Qt::ShiftModifier);
  QTest::keyClick(&Editor(), Qt::Key_Delete);
  Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(dialog->isVisible());
  ASSERT_TRUE(dialog->GetImported());
  EXPECT_TRUE(dialog->GetImported()->Warnings.empty());
}

TEST_F(ImportSql, RowsOfSqlAreTheUsersChoiceWhereTheHostAllowsThem) {
  const std::string sql = "select Company from Customers where length(Customers.City) * 2 > Customers.CustNo";
  Open(sql);
  EXPECT_FALSE(Child<QCheckBox>("import.fragments")->isVisible());
  EXPECT_FALSE(dialog->GetImported() && dialog->GetImported()->HasFragments);
  Open(sql, true);
  ASSERT_TRUE(dialog->GetImported());
  EXPECT_TRUE(dialog->GetImported()->HasFragments);
  QTest::keyClick(Child<QCheckBox>("import.fragments"), Qt::Key_Space);
  EXPECT_FALSE(dialog->GetImported() && dialog->GetImported()->HasFragments);
}

TEST_F(ImportSql, HostileTextsAreRefusedQuickly) {
  Open(std::string(T_dlgImportSql::MaxSize + 1, 'x'));
  EXPECT_FALSE(CanMake());
  EXPECT_EQ(Child<QLabel>("import.told")->text(),
            QStringLiteral("The statement is too long: statements of up to 256 KB can be read."));
  Open("select Company from Customers where " + std::string(100'000, '('));
  EXPECT_FALSE(CanMake());
  EXPECT_EQ(Remarks().size(), 1);
  std::string many = "select Company from Customers where Nothing = 1";
  while (many.size() < 60'000) many += "\nor Nothing = 1";
  Open(many);
  EXPECT_LE(Remarks().size(), 501);
}

TEST_F(ImportSql, CancelGivesNothing) {
  QTimer::singleShot(0, [] {
    QWidget* open = QApplication::activeModalWidget();
    ASSERT_NE(open, nullptr);
    QTest::keyClick(open->findChild<QWidget*>(QStringLiteral("import.sql")), Qt::Key_Escape);
  });
  TImportOptions options;
  options.Sql = Doubtful;
  EXPECT_FALSE(tolvi::ImportSql(nullptr, *model, options));
}

}  // namespace
}  // namespace tolvi
