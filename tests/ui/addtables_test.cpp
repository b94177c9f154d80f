#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <memory>
#include <stdexcept>

#include "support/models.h"
#include "uitest.h"
#include <tolvi/panel/modeleditor.h>
#include <tolvi/panel/tablechoice.h>
#include <tolvi/ui/dialogs/addtablesdlg.h>
#include <tolvi/ui/dialogs/addtablesmodel.h>

namespace tolvi {
namespace {

using namespace Qt::Literals::StringLiterals;

class AddTablesDialog : public TUiTest {
 protected:
  AddTablesDialog() {
    info.OnDBNamesRequest = [](TJDBInfo&, TStrings& names) { names.AddStrings({"live", "old"}); };
    info.OnTablesRequest = [this](TJDBInfo& sender, TStrings& tables) {
      if (sender.GetCurrentDBName() == "old") throw std::runtime_error("the database is locked");
      tables = names;
    };
    info.OnViewsRequest = [](TJDBInfo&, TStrings& views) { views.Add("Rates"); };
    info.OnFieldsRequest = [this](TJDBInfo&, std::string_view, TDBFieldList& fields) {
      if (broken) throw std::runtime_error("connection lost");
      for (const std::string_view column : {"id", "Seller"}) fields.Add(column, ftInteger);
    };
    info.OnLinksRequest = [](TJDBInfo&, TStrings& links) {
      links.AddStrings({"Orders.Seller = Sellers.id", "Sellers.Seller = hr.Staff.id"});
    };
    model->SetDatabaseInfo(&info);
  }
  void Open() {
    choice = std::make_unique<TTableChoice>(*model);
    dialog = std::make_unique<T_dlgAddTables>(*choice, editor, &window);
    const auto fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
    new QAbstractItemModelTester(Tree().model(), fatal, dialog.get());
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { user::Press(*dialog, key, modifiers); }
  QTreeView& Tree() { return *dialog->findChild<QTreeView*>(); }
  QListWidget& Links() { return *dialog->findChild<QListWidget*>(); }
  QString Shown() {
    QString text;
    const QAbstractItemModel& tables = *Tree().model();
    for (int row = 0; row < tables.rowCount(); ++row) {
      text += tables.index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked ? u"+"_s : QString();
      text += tables.index(row, 0).data(Qt::AccessibleTextRole).toString() + u"|"_s;
    }
    return text;
  }
  QString ShownLinks() {
    QString text;
    for (int row = 0; row < Links().count(); ++row) text += Links().item(row)->text() + u"|"_s;
    return text;
  }
  bool Tells(const QString& text) {
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
      if (label->text().contains(text)) return true;
    }
    return false;
  }

  bool broken = false;
  TStrings names{"Orders", "Customers", "Sellers", "hr.Staff", "Rates"};
  TJDBInfo info;
  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TModelEditor editor{*model};
  std::unique_ptr<TTableChoice> choice;
  std::unique_ptr<T_dlgAddTables> dialog;
};

TEST_F(AddTablesDialog, AddsSeveralTablesByKeysAsOneStep) {
  Open();
  EXPECT_EQ(Shown(),
            u"+Customers, table, in the model|+Orders, table, in the model|Rates, view|Sellers, table|"
            u"Staff, table|"_s);
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(dialog->isVisible()) << "nothing is chosen";
  Type(u"S"_s);
  Press(Qt::Key_Down);
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_Space);
  EXPECT_EQ(choice->ChosenCount(), 3u);
  EXPECT_EQ(ShownLinks(), u"Orders.Seller = Sellers.id|Sellers.Seller = Staff.id|"_s);
  Press(Qt::Key_Space);
  EXPECT_EQ(choice->ChosenCount(), 0u);
  EXPECT_EQ(ShownLinks(), QString());
  Press(Qt::Key_Space);
  Press(Qt::Key_L, Qt::AltModifier);
  Press(Qt::Key_Down);
  Press(Qt::Key_Space);
  EXPECT_EQ(Links().currentItem()->checkState(), Qt::Unchecked);
  Press(Qt::Key_F, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !choice->GetAddFields(); }));
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(dialog->AddedAliases(), (std::vector<std::string>{"Sellers", "Staff", "Rates"}));
  EXPECT_EQ(model->GetLinkCount(), 4u);
  EXPECT_EQ(editor.UndoName(), "Add tables");
  editor.Undo();
  EXPECT_EQ(model->GetTableCount(), 4u);
  EXPECT_FALSE(editor.CanUndo());
}

TEST_F(AddTablesDialog, TellsWhatTheCatalogueRaises) {
  Open();
  broken = true;
  Type(u"sell"_s);
  Press(Qt::Key_Return);
  EXPECT_EQ(Shown(), u"Sellers, table|"_s);
  Press(Qt::Key_Space);
  EXPECT_TRUE(Tells(u"connection lost"_s));
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(model->GetTableCount(), 4u);
  EXPECT_FALSE(editor.CanUndo());
  broken = false;
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(dialog->AddedAliases(), (std::vector<std::string>{"Sellers"}));
}

TEST_F(AddTablesDialog, ShowsSchemasAndDatabases) {
  info.SetCurrentDBName("live");
  Open();
  const QList<QComboBox*> boxes = dialog->findChildren<QComboBox*>();
  QComboBox &databases = *boxes[0], &schemas = *boxes[1];
  EXPECT_EQ(databases.currentText(), u"live"_s);
  schemas.setFocus();
  Press(Qt::Key_End);
  EXPECT_EQ(Shown(), u"Staff, table|"_s);
  databases.setFocus();
  Press(Qt::Key_Down);
  EXPECT_TRUE(Tells(u"the database is locked"_s));
  EXPECT_EQ(databases.currentText(), u"live"_s);
  EXPECT_EQ(Tree().model()->rowCount(), 5) << "those that were shown";
  Press(Qt::Key_Escape);
  EXPECT_EQ(info.GetCurrentDBName(), "live");
}

TEST_F(AddTablesDialog, NeedsACatalogueAndGoesWithItsParent) {
  std::vector<std::string> added{"x"};
  auto* parent = new QWidget(&window);
  QTimer::singleShot(0, &window, [parent] { delete parent; });
  EXPECT_FALSE(AddTables(parent, editor, added));
  model->SetDatabaseInfo(nullptr);
  QString told;
  QTimer::singleShot(0, &window, [&told] {
    auto& box = *qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    told = box.text();
    box.accept();
  });
  EXPECT_FALSE(AddTables(&window, editor, added));
  EXPECT_EQ(told, u"Database info component is not specified"_s);
  EXPECT_TRUE(added.empty());
}

}  // namespace
}  // namespace tolvi
