// The pages of the model editor for operators and conditions, and what stands beside them.
#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <memory>
#include <string>

#include "support/models.h"
#include "uitest.h"
#include <tolvi/panel/modeleditor.h>
#include <tolvi/panel/modeloperators.h>
#include <tolvi/panel/valueentry.h>
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/dialogs/entrytable.h>
#include <tolvi/ui/dialogs/modelconds.h>
#include <tolvi/ui/dialogs/modelops.h>
#include <tolvi/ui/dialogs/modelsettings.h>
#include <tolvi/ui/dialogs/trypane.h>
#include <tolvi/ui/dialogs/valueeditorbox.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/panels/rfldpnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

class ModelPages : public TUiTest {
 protected:
  template <typename T>
  T& Show(T* page) {
    page->setParent(&window);
    page->setGeometry(window.rect());
    page->show();
    if constexpr (std::is_base_of_v<TModelPage, T>) {
      page->Refresh();
      // As the frame does: when events have been handled.
      model->OnChange = [page](TJCustomDBStructure&) {
        QMetaObject::invokeMethod(
            page, [page] { page->Refresh(); }, Qt::QueuedConnection);
      };
    }
    user::Settle();
    return *page;
  }
  void TearDown() override {
    model->OnChange = nullptr;
    qDeleteAll(window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    TUiTest::TearDown();
  }

  /// The control of that accessible name, or caption.
  template <typename T>
  static T& ControlOf(const QWidget& parent, const QString& name) {
    for (T* widget : parent.findChildren<T*>()) {
      if (widget->accessibleName() == name) return *widget;
      if constexpr (std::is_base_of_v<QAbstractButton, T>) {
        if (widget->text().remove(u'&') == name) return *widget;
      }
    }
    throw EListError("no control \"%s\"", {FromQString(name)});
  }
  template <typename T>
  T& Control(const QString& name) const {
    return ControlOf<T>(window, name);
  }
  void Enter(const QString& name, const QString& text) {
    auto& line = Control<QLineEdit>(name);
    line.setFocus();
    line.selectAll();
    Type(text);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Key(key, modifiers);
    user::Settle();
  }
  /// Chooses by the first letters, as keys do.
  void Choose(const QString& name, int index) {
    auto& combo = Control<QComboBox>(name);
    combo.setFocus();
    while (combo.currentIndex() < index) Press(Qt::Key_Down);
    while (combo.currentIndex() > index) Press(Qt::Key_Up);
  }
  /// Clicks the button of the box that opens when the keys before have been handled.
  static void Answer(QMessageBox::StandardButton button, int patience = 100) {
    QTimer::singleShot(0, qApp, [button, patience] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        QTest::mouseClick(box->button(button), Qt::LeftButton);
      } else if (patience > 0) {
        Answer(button, patience - 1);
      } else {
        ADD_FAILURE() << "nothing was asked";
      }
    });
  }
  void ClickBox(QCheckBox& box) {
    QStyleOptionButton option;
    option.initFrom(&box);
    option.text = box.text();
    Click(box, box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box).center());
    user::Settle();
  }
  std::string UndoName() { return editor.UndoName(); }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TModelEditor editor{*model};
};

TEST_F(ModelPages, CheckATemplateAsItIsTypedAndShowWhatItMeans) {
  auto& page = Show(new TOperatorsPage(editor, nullptr));
  ASSERT_TRUE(page.GoTo("Operator:4"));
  ASSERT_FALSE(page.GoTo("Operator:99"));
  ASSERT_FALSE(page.GoTo("Table:1"));
  const TDSOperator& op = model->GetOperator(3);
  const std::string before = op.GetSQLExpr();
  Enter(QStringLiteral("SQL template"), QStringLiteral("@f !< @2"));
  user::Settle();
  auto& line = Control<TCheckedLine>(QStringLiteral("SQL template"));
  ASSERT_EQ(line.Findings().size(), 1U);
  EXPECT_EQ(line.Findings()[0].Text, "the template has \"@2\" but no \"@1\": the value is never filled in");
  EXPECT_EQ(op.GetSQLExpr(), before);
  Enter(QStringLiteral("SQL template"), QStringLiteral("@f !< @1"));
  user::Settle();
  EXPECT_TRUE(line.Findings().empty());
  EXPECT_TRUE(Control<QLabel>(QStringLiteral("Example")).text().endsWith(QStringLiteral("Customers.CustNo !< 10")));
  Press(Qt::Key_Return);
  EXPECT_EQ(op.GetSQLExpr(), "@f !< @1");
  EXPECT_EQ(UndoName(), "Change SQL template");

  // Another one's name is not taken; fields know operators by their names.
  Enter(QStringLiteral("Name"), QStringLiteral("equal"));
  Press(Qt::Key_Return);
  EXPECT_EQ(Control<QLineEdit>(QStringLiteral("Name")).text(), QStringLiteral("LessOrEqual"));
  editor.Undo();
  user::Settle();
  EXPECT_EQ(FromQString(line.text()), before);
}

TEST_F(ModelPages, AddMoveCopyAndDeleteOperators) {
  Show(new TOperatorsPage(editor, nullptr));
  auto& list = Control<QTreeView>(QStringLiteral("Operators"));
  const std::size_t count = model->GetOperatCount();
  list.setFocus();
  Press(Qt::Key_N, Qt::ControlModifier);
  ASSERT_EQ(model->GetOperatCount(), count + 1);
  Enter(QStringLiteral("Name"), QStringLiteral("Nearly"));
  Press(Qt::Key_Return);
  EXPECT_EQ(model->GetOperator(count).GetName(), "Nearly");
  list.setFocus();
  Press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(model->GetOperator(count - 1).GetName(), "Nearly");
  Press(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(model->GetOperator(count).GetName(), "Nearly2");
  Press(Qt::Key_Up, Qt::ShiftModifier);
  Answer(QMessageBox::No);
  Press(Qt::Key_Delete);
  EXPECT_EQ(model->GetOperatCount(), count + 2);
  // The box has taken the focus.
  QApplication::setActiveWindow(&window);
  list.setFocus();
  Answer(QMessageBox::Yes);
  Press(Qt::Key_Delete);
  EXPECT_EQ(model->GetOperatCount(), count);
  EXPECT_EQ(UndoName(), "Delete operator");

  ClickBox(Control<QCheckBox>(QStringLiteral("Contains")));
  EXPECT_EQ(model->OperatorByName("NotContains"), nullptr);
  editor.Undo();
  user::Settle();
  EXPECT_TRUE(Control<QCheckBox>(QStringLiteral("Contains")).isChecked());
  EXPECT_NE(model->OperatorByName("NotContains"), nullptr);
}

TEST_F(ModelPages, ApplyAnOperatorToGroupsOfTypes) {
  auto& page = Show(new TOperatorsPage(editor, nullptr));
  page.GoTo("Operator:" + std::to_string(model->OperatorIndexByName("StartsWith") + 1));
  user::Settle();
  const auto op = [this]() -> TDSOperator& { return OperatorOf(*model, "StartsWith"); };
  auto& dates = Control<QCheckBox>(QStringLiteral("Date"));
  EXPECT_EQ(dates.checkState(), Qt::Unchecked);
  page.findChild<QListWidget*>()->scrollToBottom();
  ClickBox(dates);
  user::Settle();
  EXPECT_TRUE((DateFieldTypes - op().GetAppliedTypes()).Empty());
  auto& offer = Control<QPushButton>(QStringLiteral("Offer for all of them"));
  ASSERT_TRUE(offer.isEnabled());
  offer.setFocus();
  Press(Qt::Key_Space);
  EXPECT_GE(FieldOf(*model, "Orders.SaleDate").IndexOfOperator(op()), 0);
  EXPECT_FALSE(offer.isEnabled());
  EXPECT_EQ(UndoName(), "Offer operator");
}

TEST_F(ModelPages, EditAConditionAndItsValues) {
  auto& page = Show(new TConditionsPage(editor, nullptr));
  ASSERT_TRUE(page.GoTo("Cond:2"));
  Enter(QStringLiteral("SQL"), QStringLiteral("Orders.SaleDate > @1 and Orders.Wate > 1"));
  auto& format = Control<TCheckedLine>(QStringLiteral("Display format"));
  auto& sql = Control<TCheckedLine>(QStringLiteral("SQL"));
  ASSERT_EQ(sql.Findings().size(), 1U);
  EXPECT_EQ(sql.Findings()[0].Severity, csWarning);
  ASSERT_EQ(format.Findings().size(), 1U);
  EXPECT_EQ(format.Findings()[0].Text, "the display format has 2 places (\"@\") for 1 values");
  Enter(QStringLiteral("Display format"), QStringLiteral("Sold after @"));
  Press(Qt::Key_Return);
  EXPECT_TRUE(format.Findings().empty());
  const auto condition = [this]() -> TDSCondition& { return model->Conditions()[1]; };
  ASSERT_EQ(condition().Values().Count(), 1U);
  EXPECT_EQ(Control<QTreeWidget>(QStringLiteral("Values")).topLevelItemCount(), 1);

  Choose(QStringLiteral("Value editor"), ewText);
  Enter(QString(), QStringLiteral("36526"));
  Press(Qt::Key_Return);
  const auto* text = dynamic_cast<TDSTextEditor*>(condition().Values()[0].GetValueEditor());
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->GetDefaultValue(), "36526");
  editor.Undo();
  editor.Undo();
  user::Settle();
  EXPECT_EQ(condition().Values()[0].GetValueEditor(), nullptr);
  EXPECT_EQ(Control<QComboBox>(QStringLiteral("Value editor")).currentIndex(), int{ewAuto});

  Control<QTreeView>(QStringLiteral("Predefined conditions")).setFocus();
  Answer(QMessageBox::Yes);
  Press(Qt::Key_Delete);
  EXPECT_EQ(model->Conditions().Count(), 1U);
}

TEST_F(ModelPages, KeepWhatAValueEditorHadWhileOtherWaysAreTried) {
  auto& box = Show(new TValueEditorBox(editor, nullptr));
  TDSField &city = FieldOf(*model, "Customers.City"), &company = FieldOf(*model, "Customers.Company");
  box.ShowField(&city);
  Choose(QStringLiteral("Value editor"), ewList);
  auto& list = Control<TEntryTable>(QStringLiteral("List of values"));
  QGuiApplication::clipboard()->setText(QStringLiteral("Rome\tR\nOslo\tO\n"));
  list.setFocus();
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(dynamic_cast<TDSListEditor&>(*city.GetValueEditor()).Values().Joined(";"), "R;O");
  list.setCurrentCell(0, 0);
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(dynamic_cast<TDSListEditor&>(*city.GetValueEditor()).Items().Joined(";"), "Oslo;Rome");
  // Typed into the row for a new one.
  list.setCurrentCell(2, 0);
  Press(Qt::Key_Return);
  Type(QStringLiteral("Bonn"));
  box.CommitEdits();
  EXPECT_EQ(dynamic_cast<TDSListEditor&>(*city.GetValueEditor()).Values().Joined(";"), "O;R;Bonn");

  Choose(QStringLiteral("Value editor"), ewAuto);
  EXPECT_EQ(city.GetValueEditor(), nullptr);
  box.ShowField(&city);
  Choose(QStringLiteral("Value editor"), ewList);
  EXPECT_EQ(dynamic_cast<TDSListEditor&>(*city.GetValueEditor()).Items().Joined(";"), "Oslo;Rome;Bonn");

  // Another field begins anew, and typing ends where it began.
  box.ShowFields({&company, &city});
  EXPECT_EQ(list.GetItems().size(), 0U);
  Choose(QStringLiteral("Value editor"), ewCustom);
  EXPECT_EQ(city.GetEditType(), etCustom);
  auto& data = Control<QPlainTextEdit>(QStringLiteral("Data for the host:"));
  data.setFocus();
  Type(QStringLiteral("a=b"));
  Control<QComboBox>(QStringLiteral("Value editor")).setFocus();
  EXPECT_EQ(dynamic_cast<TDSCustomEditor&>(*company.GetValueEditor()).Data().Joined(";"), "a=b");
  EXPECT_EQ(UndoName(), "Change value editor");
}

TEST_F(ModelPages, RunTheQueryOfAValueEditor) {
  auto& box = Show(new TValueEditorBox(editor, nullptr));
  TDSField& city = FieldOf(*model, "Customers.City");
  box.ShowField(&city);
  Choose(QStringLiteral("Value editor"), ewSQL);
  EXPECT_FALSE(Control<QPushButton>(QStringLiteral("Run")).isEnabled());
  TJDBInfo info;
  info.OnGetSQLValues = [](TJDBInfo&, std::string_view sql, TStrings& values, TStrings& captions) {
    if (sql.find("cities") == std::string_view::npos) throw EException("no such table");
    for (int i = 0; i < 150; ++i) values.Add(std::to_string(i));
    captions = values;
  };
  model->SetDatabaseInfo(&info);
  box.ShowField(nullptr);
  box.ShowField(&city);
  auto& sql = Control<QPlainTextEdit>(QStringLiteral("Query"));
  const auto run = [&](const QString& text) {
    sql.setFocus();
    sql.selectAll();
    Type(text);
    Click(Control<QPushButton>(QStringLiteral("Run")));
    QStringList told;
    for (const QLabel* label : box.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (label->isVisible() && label->buddy() == nullptr) told << label->text();
    }
    return told.join(u'|');
  };
  EXPECT_EQ(run(QStringLiteral("select town")), QStringLiteral("no such table"));
  EXPECT_EQ(run(QStringLiteral("select * from cities")), QStringLiteral("Rows: 150; the first 100 are shown"));
  EXPECT_EQ(Control<QTableWidget>(QStringLiteral("Values that the query gives")).rowCount(), 100);
  model->SetDatabaseInfo(nullptr);
}

TEST_F(ModelPages, ChangeSettingsAsOneStep) {
  const auto edit = [this](bool accept) {
    QTimer::singleShot(0, qApp, [accept] {
      auto* dialog = qobject_cast<T_dlgModelSettings*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      auto* preset = &ControlOf<QComboBox>(*dialog, QStringLiteral("Preset"));
      preset->setFocus();
      for (int i = 0; i < 2; ++i) QTest::keyClick(preset, Qt::Key_Down);
      auto* sample = dialog->findChild<QPlainTextEdit*>();
      EXPECT_TRUE(sample->toPlainText().contains(QStringLiteral("\"Order items\" AS Order_items")));
      EXPECT_EQ(preset->currentText(), QStringLiteral("postgresql"));
      auto* quote = &ControlOf<QLineEdit>(*dialog, QStringLiteral("Opening quote of names"));
      quote->selectAll();
      QTest::keyClicks(quote, QStringLiteral("<<"));
      EXPECT_EQ(quote->text(), QStringLiteral("<"));
      EXPECT_EQ(preset->currentIndex(), 0);
      QTest::keyClick(dialog, accept ? Qt::Key_Return : Qt::Key_Escape);
    });
    return EditModelSettings(&window, editor);
  };
  EXPECT_FALSE(edit(false));
  EXPECT_FALSE(editor.CanUndo());
  EXPECT_TRUE(edit(true));
  EXPECT_TRUE(model->SQLFormats().GetUseAsInFrom());
  EXPECT_EQ(model->SQLFormats().GetQuoteSymbol1(), '<');
  editor.Undo();
  EXPECT_FALSE(editor.CanUndo());
  EXPECT_EQ(model->SQLFormats(), TSQLFormats());
}

TEST_F(ModelPages, KeepTheQueryThatIsTriedThroughEditsAndUndo) {
  auto& pane = Show(new TTryPane(editor, nullptr));
  model->OnChange = [&pane](TJCustomDBStructure&) { pane.Refresh(); };
  auto& statement = Control<QPlainTextEdit>(QStringLiteral("Statement"));
  const auto shown = [&statement] {
    user::Settle();
    return FromQString(statement.toPlainText());
  };
  EXPECT_EQ(shown(), "");
  TJQueryPanel& panel = *pane.findChild<TJQueryPanelView*>()->GetQueryPanel();
  auto& columns = *pane.findChild<TJResultFieldsPanel*>();
  user::Click(columns.GetAddRowLabel());
  panel.AddSimpleCond(panel.RootBracket(), FieldOf(*model, "Customers.City"), OperatorOf(*model, "Equal"), "Rome");
  const std::string before = shown();
  EXPECT_NE(before.find("Customers.City = 'Rome'"), std::string::npos);
  EXPECT_NE(before.find("SELECT Customers.CustNo"), std::string::npos);

  // The fields of the condition and of the column go, and come back.
  editor.Edit("Delete table", [this] { model->DelTable(0); });
  EXPECT_EQ(shown(), "");
  editor.Undo();
  EXPECT_EQ(shown(), before);
  editor.Edit("Delete operator", [this] { model->DeleteOperatorByName("Equal"); });
  user::Settle();
  QStringList told;
  for (const QLabel* label : pane.findChildren<QLabel*>()) told << label->text();
  EXPECT_TRUE(told.contains(QStringLiteral("Row 1: Unrecognized operator \"Equal\""))) << FromQString(told.join(u'|'));
  editor.Undo();
  EXPECT_EQ(shown(), before);
  editor.Redo();
  editor.Undo();
  EXPECT_EQ(shown(), before);

  // Nothing is made while it cannot be seen.
  pane.hide();
  editor.Edit("Rename", [this] { model->GetTable(0).SetTableAlias("c"); });
  EXPECT_EQ(shown(), before);
  pane.show();
  EXPECT_NE(shown().find("c.City = 'Rome'"), std::string::npos);
}

}  // namespace
}  // namespace tolvi
