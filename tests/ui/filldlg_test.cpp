#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>
#include <memory>
#include <stdexcept>

#include <gtest/gtest.h>

#include "support/catalogue_of_text.h"
#include "uitest.h"
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/fillwizard.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/filldlg.h>
#include <tolvi/ui/dialogs/fillitems.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

using namespace Qt::Literals::StringLiterals;

class FillDialog : public TUiTest {
 protected:
  FillDialog() {
    info.Rows = {{"Customers", "3"}};
    model.SetDatabaseInfo(&info);
  }
  void TearDown() override {
    dialog.reset();
    TUiTest::TearDown();
  }

  void Open(const TFillOptions& options = {}) {
    dialog.reset();
    wizard = std::make_unique<TFillWizard>(editor, options);
    dialog = std::make_unique<T_dlgFill>(*wizard, &window);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    user::Settle();
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { user::Press(*dialog, key, modifiers); }
  /// Types into the editor of an item, in place of what it holds.
  void Edit(const QString& text) {
    Key(Qt::Key_F2);
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(line);
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    Type(text);
    QTest::keyClick(line, Qt::Key_Return);
    user::Settle();
  }
  QTreeView& View() {
    for (auto* view : dialog->findChildren<QTreeView*>()) {
      if (view->isVisible()) return *view;
    }
    throw std::runtime_error("no list");
  }
  /// The rows that are shown: "+", "~" and "-" for their check boxes, and the texts of their columns.
  QString Rows(const QModelIndex& parent = {}) {
    QString text;
    const QAbstractItemModel& items = *View().model();
    for (int row = 0; row < items.rowCount(parent); ++row) {
      const QModelIndex index = items.index(row, 0, parent);
      const QVariant state = index.data(Qt::CheckStateRole);
      if (state.isValid()) text += u"-~+"_s[state.toInt()];
      QStringList columns;
      for (int column = 0; column < items.columnCount(); ++column) {
        const QString shown = index.siblingAtColumn(column).data().toString();
        if (!shown.isEmpty()) columns << shown;
      }
      text += columns.join(u'|') + u'\n' + Rows(index);
    }
    return text;
  }
  QString Told() {
    QStringList texts;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
      if (label->isVisible() && label->buddy() == nullptr && !label->text().isEmpty()) texts << label->text();
    }
    return texts.join(u'\n');
  }
  bool Tells(const QString& text) { return Told().contains(text); }
  template <typename T = QPushButton>
  T& Button(const QString& caption) {
    for (auto* button : dialog->findChildren<T*>()) {
      if (button->isVisible() && button->text() == caption) return *button;
    }
    throw std::runtime_error("no button " + caption.toStdString());
  }

  TCatalogueOfText info{"Customers: CustNo* i, Company s\nOrders: OrderNo* i, CustNo i, ShipTo i\n~v_turnover: total f",
                        {"Orders.CustNo = Customers.CustNo", "Orders.ShipTo = Customers.CustNo"}};
  TJDBStructure model;
  TModelEditor editor{model};
  std::unique_ptr<TFillWizard> wizard;
  std::unique_ptr<T_dlgFill> dialog;
};

TEST_F(FillDialog, FillsAModelByPressingEnter) {
  Open();
  EXPECT_EQ(Rows(), u"+Customers|Table|New\n+Orders|Table|New\n+v_turnover|View|New\n"_s);
  Key(Qt::Key_Return);
  EXPECT_TRUE(Tells(u"Step 2"_s)) << Told().toStdString();
  EXPECT_TRUE(Rows().startsWith(u"+Customers|Customers|Customers|New table\n+CustNo|Cust no|ftInteger\n"_s))
      << Rows().toStdString();
  Key(Qt::Key_Return);
  EXPECT_TRUE(Tells(u"Added: 4 tables, 8 fields, 2 links. Changed: 0 types. Vanished: 0."_s)) << Told().toStdString();
  EXPECT_TRUE(Rows().contains(u"New links: 2\nOrders.CustNo = Customers.CustNo\n"_s));
  Key(Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(model.Fields().Count(), 8U);
  EXPECT_EQ(editor.UndoName(), "Fill from database");
}

TEST_F(FillDialog, ChoosesTablesByKeysAndSearch) {
  model.AddTable("Orders", "Orders");
  Open();
  EXPECT_EQ(Rows(), u"-Customers|Table|New\n+Orders|Table|In the model\n-v_turnover|View|New\n"_s);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  Key(Qt::Key_Space);
  EXPECT_EQ(wizard->TablesOn(), 0U) << "as the current one of two";
  EXPECT_FALSE(Button(u"&Next"_s).isEnabled());
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_Space);
  EXPECT_TRUE(Tells(u"3 of 3 tables are checked"_s)) << Told().toStdString();
  Key(Qt::Key_W, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !wizard->IsTableOn(1); }));
  EXPECT_EQ(wizard->TablesOn(), 2U);
  Key(Qt::Key_F, Qt::AltModifier);
  Type(u"TURN"_s);
  Key(Qt::Key_Return);
  EXPECT_TRUE(View().hasFocus()) << "Enter goes from the search to the list";
  Key(Qt::Key_Space);
  EXPECT_EQ(Rows(), u"-v_turnover|View|New\n"_s);
  const QModelIndex first = View().model()->index(0, 0);
  EXPECT_EQ(first.data(Qt::AccessibleTextRole), u"v_turnover, View, New"_s);
  Click(Button<QToolButton>(u"O&ptions"_s));
  for (auto* box : dialog->findChildren<QComboBox*>()) {
    if (box->isVisible()) box->setCurrentIndex(ltOuterLeft);
  }
  Key(Qt::Key_Return);
  EXPECT_EQ(wizard->GetOptions().LinkType, ltOuterLeft);
}

TEST_F(FillDialog, ChoosesAndNamesWhatIsAdded) {
  Open();
  Key(Qt::Key_Return);
  Edit(u"Clients"_s);
  Key(Qt::Key_Down);
  Key(Qt::Key_Space);
  EXPECT_TRUE(Rows().startsWith(u"~Customers|Clients|Clients|New table\n-CustNo|"_s)) << Rows().toStdString();
  Key(Qt::Key_Down);
  Edit({});
  EXPECT_TRUE(Tells(u"Customers.Company: the display name is empty"_s)) << Told().toStdString();
  EXPECT_TRUE(Rows().contains(u"+Company|(no name)|"_s)) << Rows().toStdString();
  EXPECT_FALSE(Button(u"&Next"_s).isEnabled());
  Edit(u"Firm"_s);
  const std::size_t custNo = 3;
  EXPECT_TRUE(wizard->Choice().IsListOn(custNo));
  Key(Qt::Key_Down);
  Key(Qt::Key_L, Qt::ControlModifier);
  EXPECT_FALSE(wizard->Choice().IsListOn(custNo)) << "all lists of the table";
  Key(Qt::Key_K, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Rows().startsWith(u"+Orders.CustNo"_s); })) << Rows().toStdString();
  View().setFocus();
  Key(Qt::Key_F2);
  Key(Qt::Key_End);
  Key(Qt::Key_Return);
  EXPECT_TRUE(Rows().startsWith(u"+Orders.CustNo = Customers.CustNo|All rows of both\n"_s)) << Rows().toStdString();
  Key(Qt::Key_Down);
  Key(Qt::Key_Space);
  EXPECT_FALSE(wizard->Choice().IsTableOn(3)) << "the alias that only the link needs";
  Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_TRUE(Tells(u"Step 1"_s)) << Told().toStdString();
  Key(Qt::Key_Return);
  Key(Qt::Key_Return);
  Key(Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(model.GetTable(0).GetDisplayName(), "Clients");
  EXPECT_EQ(model.GetField(0).GetDisplayName(), "Firm");
  ASSERT_EQ(model.GetLinkCount(), 1U);
  EXPECT_EQ(model.GetLink(0).GetLinkType(), ltOuterFull);
}

TEST_F(FillDialog, TellsOfErrorsAndTriesAgain) {
  info.Databases = {"archive"};
  info.Connected = false;
  Open();
  EXPECT_TRUE(Tells(u"The database is not connected"_s)) << Told().toStdString();
  EXPECT_FALSE(Button(u"&Next"_s).isEnabled());
  info.Connected = true;
  Key(Qt::Key_T, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return View().model()->rowCount() == 3; }));
  info.OnFieldsRequest = [](TJDBInfo&, std::string_view, TDBFieldList&) { throw std::runtime_error("server is gone"); };
  Key(Qt::Key_Return);
  EXPECT_TRUE(Tells(u"Step 1"_s) && Tells(u"server is gone"_s)) << Told().toStdString();
  info.OnFieldsRequest = nullptr;
  Click(Button(u"&Try Again"_s));
  EXPECT_TRUE(Tells(u"Step 2"_s) && !Tells(u"server is gone"_s)) << Told().toStdString();
  Key(Qt::Key_Return);
  info.Columns["Orders"] += ", Paid f";
  const std::string before = model.GetStructString();
  Key(Qt::Key_Return);
  EXPECT_TRUE(Tells(u"Step 2"_s) && Tells(u"has changed meanwhile"_s)) << Told().toStdString();
  EXPECT_TRUE(Rows().contains(u"Paid"_s));
  EXPECT_EQ(model.GetStructString(), before);
  Key(Qt::Key_Left, Qt::AltModifier);
  EXPECT_TRUE(Tells(u"Step 1"_s)) << Told().toStdString();
  auto& databases = *dialog->findChild<QComboBox*>();
  databases.setFocus();
  Key(Qt::Key_Down);
  EXPECT_EQ(info.GetCurrentDBName(), "archive");
  EXPECT_EQ(Rows(), QString());
  Key(Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  wizard.reset();
  EXPECT_EQ(info.GetCurrentDBName(), "");
}

TEST_F(FillDialog, ShowsWhatHasVanishedAndChanged) {
  FillModel(model, info, {});
  info.Columns["Orders"] = "OrderNo* i, CustNo f";
  info.Columns["Customers"] = "CustNo* i, Company s";
  info.Links = {"Orders.CustNo = Customers.CustNo"};
  Open();
  Key(Qt::Key_Return);
  EXPECT_TRUE(Tells(u"Nothing is added"_s)) << Told().toStdString();
  Key(Qt::Key_Return);
  EXPECT_TRUE(Tells(u"stays in the model"_s) && Tells(u"There is nothing to fill in."_s)) << Told().toStdString();
  EXPECT_TRUE(Rows().contains(u"Types that differ in the database: 1\n"_s)) << Rows().toStdString();
  EXPECT_TRUE(Rows().contains(u"Vanished fields: 1\nOrders.ShipTo\n"_s)) << Rows().toStdString();
  EXPECT_FALSE(Button(u"F&inish"_s).isEnabled());
}

TEST_F(FillDialog, TellsWhetherTheModelWasFilled) {
  const auto run = [this](QWidget* parent, auto close) {
    QTimer::singleShot(0, &window, [close] {
      auto* shown = QApplication::activeModalWidget();
      ASSERT_TRUE(QTest::qWaitForWindowActive(shown));
      close(*shown);
    });
    return FillFromDatabase(parent, editor, {});
  };
  EXPECT_FALSE(run(&window, [](QWidget& shown) { user::Press(shown, Qt::Key_Escape); }));
  auto* parent = new QWidget(&window);
  EXPECT_FALSE(run(parent, [parent](QWidget&) { delete parent; }));
  EXPECT_EQ(model.GetTableCount(), 0U);
  EXPECT_TRUE(run(&window, [](QWidget& shown) {
    for (int step = 0; step < 3; ++step) user::Press(shown, Qt::Key_Return);
  }));
  EXPECT_EQ(model.GetTableCount(), 4U);
}

TEST_F(FillDialog, TheListsKeepTheRulesOfModels) {
  TFillWizard filling(editor, {});
  TFillTableItems tables(filling, &window);
  TFillFieldItems fields(filling.Choice(), &window);
  TFillLinkItems links(filling.Choice(), &window);
  TFillReportItems report(&window);
  const auto fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
  QAbstractItemModelTester testers[] = {{&tables, fatal}, {&fields, fatal}, {&links, fatal}, {&report, fatal}};
  filling.ReadTables();
  filling.ReadPlan();
  report.SetReport(filling.Choice().Chosen().Report(), true);
  for (TFillItems* items :
       {static_cast<TFillItems*>(&tables), static_cast<TFillItems*>(&fields), static_cast<TFillItems*>(&links)}) {
    for (const QString& text : {u"cust"_s, u"no such"_s, QString()}) items->Find(text);
    EXPECT_TRUE(items->setData(items->index(0, 0), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_EQ(items->index(0, 0).data(Qt::CheckStateRole), Qt::Unchecked);
    EXPECT_FALSE(items->setData(items->index(0, 0), u"x"_s, Qt::EditRole));
  }
  const QModelIndex orders = fields.index(1, 0);
  fields.Check({orders, fields.index(0, 0, orders)}, false);
  EXPECT_FALSE(links.setData(links.index(0, TFillLinkItems::ColJoin), 4, Qt::EditRole)) << "no such join";
}

}  // namespace
}  // namespace tolvi
