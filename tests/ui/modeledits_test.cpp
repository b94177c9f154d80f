// Where edits in the model editor could get lost, go to another part, or lead nowhere.
#include <QComboBox>
#include <QCompleter>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPointer>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>

#include "modeldialog.h"
#include <tolvi/foundation/files.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/columnsdlg.h>
#include <tolvi/ui/dialogs/faultdelegate.h>
#include <tolvi/ui/dialogs/linkdlg.h>
#include <tolvi/ui/dialogs/modelsettings.h>

namespace tolvi {
namespace {

class ModelEdits : public ModelDialog {
 protected:
  void Activate(QAbstractItemView& list, const QString& text) {
    const QModelIndexList found =
        list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchContains);
    ASSERT_FALSE(found.isEmpty()) << text.toStdString();
    list.setCurrentIndex(found[0]);
    list.setFocus();
    Press(Qt::Key_Return);
  }

  /// What the dialog of that class does that opens next.
  template <typename TDialog, typename TCall>
  void InDialog(TCall call, int tries = 200) {
    QTimer::singleShot(5, &window, [this, call, tries] {
      if (auto* shown = qobject_cast<TDialog*>(QApplication::activeModalWidget()); shown && shown->isActiveWindow()) {
        const QPointer<TDialog> open = shown;
        call(*shown);
        // A key that did not close it would leave the test waiting.
        if (open && open->isVisible()) {
          ADD_FAILURE() << "the dialog is still open";
          open->close();
        }
        return;
      }
      if (tries > 0) return InDialog<TDialog>(call, tries - 1);
      ADD_FAILURE() << "the dialog has not been opened";
    });
  }
  /// By the mouse, which leaves the focus where it is.
  void ClickTool(const QString& name) {
    for (auto* button : dialog->findChildren<QToolButton*>()) {
      if (button->accessibleName() != name || !button->isVisible()) continue;
      QTest::mouseClick(button, Qt::LeftButton);
      return user::Settle();
    }
    ADD_FAILURE() << "no button " << name.toStdString();
  }
};

TEST_F(ModelEdits, WhatIsBeingTypedGoesToItsPartWhateverComesNext) {
  Open();
  const auto type = [this](const QString& page, const QString& list, const QString& row, const QString& line) {
    GoTo(page);
    Choose(Named<QTreeView>(list), {row});
    Line(line).setFocus();
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(u"Typed"_s);
  };
  const auto typed = [](const std::string& text) { EXPECT_EQ(text, "Typed"); };
  type(u"Operators"_s, u"Operators"_s, u"contains"_s, u"Display name"_s);
  ClickTool(u"New operator"_s);
  typed(OperatorOf(Copy(), "Contains").GetDisplayName());
  EXPECT_EQ(Line(u"Name"_s).text(), u"Operator1"_s) << "the new one is shown";
  EXPECT_EQ(Line(u"Display name"_s).text(), u"is"_s);
  type(u"Operators"_s, u"Operators"_s, u"starts with"_s, u"Display name"_s);
  ClickTool(u"Copy"_s);
  typed(OperatorOf(Copy(), "StartsWith").GetDisplayName());
  const std::size_t count = Copy().GetOperatCount();
  Named<QTreeView>(u"Operators"_s).setFocus();
  Press(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Copy().GetOperatCount(), count + 1) << "no other action of the window has the key";
  type(u"Conditions"_s, u"Predefined conditions"_s, u"Sold between @ and @"_s, u"SQL"_s);
  ClickTool(u"New condition"_s);
  typed(Copy().Conditions()[1].GetSQLExpr());
  EXPECT_EQ(Copy().Conditions()[2].GetSQLExpr(), "");
  type(u"Tables"_s, u"Tables"_s, u"Orders"_s, u"Display name"_s);
  Press(Qt::Key_Tab, Qt::ControlModifier);
  typed(Copy().GetTable(1).GetDisplayName());
  type(u"Entities"_s, u"Fields in groups"_s, u"Company"_s, u"Display name"_s);
  Press(Qt::Key_F9);
  typed(Copy().FieldByID(2)->GetDisplayName());
  type(u"Entities"_s, u"Fields in groups"_s, u"City"_s, u"Column"_s);
  Press(Qt::Key_Return, Qt::ControlModifier);
  typed(model->FieldByID(3)->GetFieldName());
}

TEST_F(ModelEdits, AFileIsNotReplacedUnasked) {
  model->SetDMEButtons({dmbOpenSave});
  const QString file = folder.filePath(u"kept.model"_s);
  const auto path = std::filesystem::path(file.toStdU16String());
  WriteFileAtomically(path, "former");
  Open();
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    InDialog<QFileDialog>([this](QFileDialog& shown) {
      auto* name = shown.findChild<QLineEdit*>();
      name->setText(folder.filePath(u"kept"_s));
      QTest::keyClick(name, Qt::Key_Return);
    });
    std::shared_ptr<QString> asked;
    QTimer::singleShot(50, &window, [&] { asked = Answer(answer); });
    Press(Qt::Key_S, Qt::ControlModifier);
    QTest::qWait(100);
    ASSERT_NE(asked, nullptr);
    EXPECT_EQ(*asked, u"Replace %1?|"_s.arg(file));
    EXPECT_EQ(ReadFile(path) == "former", answer == QMessageBox::No);
  }
}

TEST_F(ModelEdits, LargeLettersLeaveTheDialogOnASmallScreen) {
  const QFont font = QApplication::font();
  QFont large = font;
  large.setPointSize(18);
  QApplication::setFont(large);
  Open();
  EXPECT_LE(dialog->minimumSizeHint().width(), 1280);
  EXPECT_LE(dialog->minimumSizeHint().height(), 600);
  T_dlgModelSettings settings(*model, &window);
  EXPECT_LE(settings.minimumSizeHint().width(), 1280);
  EXPECT_LE(settings.minimumSizeHint().height(), 600);
  QApplication::setFont(font);
}

TEST_F(ModelEdits, LinksAreAddedChangedAndMarkedAtTheirTable) {
  Open();
  Choose(Tables(), {u"Customers"_s});
  auto& links = Named<QTreeWidget>(u"Links of the table"_s);
  EXPECT_EQ(links.topLevelItemCount(), 1);
  const auto add = [&](bool accept) {
    InDialog<T_dlgLinkEdit>([accept](T_dlgLinkEdit& shown) {
      QAbstractItemModel& pairs = *shown.findChild<QAbstractItemView*>()->model();
      EXPECT_TRUE(pairs.setData(pairs.index(0, 0), u"CustNo"_s));
      EXPECT_TRUE(pairs.setData(pairs.index(0, 2), u"OrderNo"_s));
      QTest::keyClick(&shown, accept ? Qt::Key_Return : Qt::Key_Escape, accept ? Qt::ControlModifier : Qt::NoModifier);
    });
    links.setFocus();
    Press(Qt::Key_Insert);
  };
  add(false);
  EXPECT_EQ(Copy().GetLinkCount(), 3U);
  EXPECT_FALSE(dialog->Editor().CanUndo());
  add(true);
  ASSERT_EQ(Copy().GetLinkCount(), 4U);
  EXPECT_EQ(dialog->Editor().UndoName(), "Add link");
  ASSERT_EQ(links.topLevelItemCount(), 2);
  EXPECT_EQ(Copy().GetLink(3).GetFields2()[0], "OrderNo");
  for (const bool accept : {false, true}) {
    InDialog<T_dlgLinkEdit>([accept](T_dlgLinkEdit& shown) {
      for (auto* radio : shown.findChildren<QRadioButton*>()) {
        if (radio->text() == u"All rows of Customers"_s) radio->click();
      }
      accept ? shown.accept() : shown.reject();
    });
    links.setFocus();
    Press(Qt::Key_F2);
    EXPECT_EQ(dialog->Editor().UndoName(), accept ? "Edit link" : "Add link");
  }
  EXPECT_EQ(Copy().GetLink(3).GetLinkType(), ltOuterLeft);
  QTest::qWait(20);
  EXPECT_EQ(links.currentItem()->text(1), u"Left"_s);
  dialog->Editor().Undo();
  user::Settle();
  EXPECT_EQ(links.findItems(u"Left"_s, Qt::MatchExactly, 1).size(), 0) << "one step back";

  // Links stand in the order of the model text after undo.
  const auto item = [&links] { return links.findItems(u"Order_Details"_s, Qt::MatchExactly).value(0); };
  EXPECT_FALSE(item()->data(0, TFaultDelegate::WrongRole).toBool());
  dialog->Editor().Edit(
      "Break", [this] { Copy().TableByName(tnAlias, "Order_Details")->LinkByTableAlias("Customers")->SetFields2({}); });
  QTest::qWait(20);
  EXPECT_TRUE(item()->data(0, TFaultDelegate::WrongRole).toBool());
  EXPECT_TRUE(item()->toolTip(0).contains(u"the link has 1 columns on the first side and 0"_s));
  links.setCurrentItem(item());
  links.setFocus();
  const auto asked = Answer(QMessageBox::Yes);
  Press(Qt::Key_Delete);
  EXPECT_EQ(*asked, u"Delete Link?|"_s);
  EXPECT_EQ(Copy().GetLinkCount(), 3U);
}

TEST_F(ModelEdits, WhatIsWrongWithTheWholeModelLeadsToItsSettings) {
  model->SetDefaultMainTable("Nowhere");
  Open();
  GoTo(u"Entities"_s);
  Press(Qt::Key_F7);
  InDialog<T_dlgModelSettings>([](T_dlgModelSettings& shown) {
    auto* main = qobject_cast<QComboBox*>(shown.focusWidget());
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(main->currentText(), u"Nowhere"_s);
    QTest::keyClick(main, Qt::Key_Home);
    QTest::keyClick(&shown, Qt::Key_Return);
  });
  Activate(Named<QListView>(u"What is wrong with the model"_s), u"default main table"_s);
  EXPECT_EQ(Copy().GetDefaultMainTable(), "");
  EXPECT_EQ(dialog->Editor().UndoName(), "Change settings");
  GoTo(u"Operators"_s);
  dialog->Editor().Edit("Empty", [this] { Copy().ClearStructure(); });
  user::Settle();
  Activate(Named<QListView>(u"What is wrong with the model"_s), u"no tables"_s);
  EXPECT_TRUE(Tables().hasFocus());
}

TEST_F(ModelEdits, EnterInTheTableOfNewColumnsAddsNone) {
  T_dlgColumns columns(*model, 0, &window);
  columns.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&columns));
  auto& table = *columns.findChild<QComboBox*>();
  const auto enter = [&](const QString& text) {
    table.setFocus();
    table.lineEdit()->selectAll();
    QTest::keyClicks(table.lineEdit(), text);
    table.completer()->popup()->hide();
    QTest::keyClick(table.lineEdit(), Qt::Key_Return);
    EXPECT_TRUE(columns.isVisible());
    return table.currentText();
  };
  EXPECT_EQ(enter(u"products"_s), u"Products"_s);
  EXPECT_EQ(columns.GetTable(), 3U);
  EXPECT_EQ(enter(u"no such table"_s), u"Products"_s);
}

}  // namespace
}  // namespace tolvi
