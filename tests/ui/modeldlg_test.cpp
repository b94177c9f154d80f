// The model editor, its pages of tables and fields, and the lines in which texts are checked.
#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <memory>

#include <gtest/gtest.h>

#include "modeldialog.h"
#include <tolvi/foundation/files.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/dialogs/entitiesmodel.h>
#include <tolvi/ui/dialogs/modeldlg.h>
#include <tolvi/ui/dialogs/modelpage.h>
#include <tolvi/ui/dialogs/tablesmodel.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

TEST_F(ModelDialog, TablesAreEditedByKeysEachChangeOneStep) {
  int changes = 0;
  model->OnChange = [&](TJCustomDBStructure&) { ++changes; };
  Open();
  EXPECT_TRUE(Tables().hasFocus());
  Press(Qt::Key_N, Qt::ControlModifier);
  TypeAndEnter(u"INVOICES"_s);
  EXPECT_EQ(Aliases(), "Customers Orders Order_Details Products NewTable");
  Line(u"Alias"_s).setFocus();
  TypeAndEnter(u"orders"_s);
  EXPECT_EQ(Line(u"Alias"_s).text(), u"NewTable"_s) << "another table has it";
  TypeAndEnter(u"my invoices"_s);
  EXPECT_EQ(Line(u"Alias"_s).text(), u"my_invoices"_s);
  EXPECT_EQ(Copy().GetTable(4).GetTableName(), "INVOICES");
  Tables().setFocus();
  Press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Aliases(), "Customers Orders Order_Details my_invoices Products");
  Press(Qt::Key_Z, Qt::ControlModifier);
  Press(Qt::Key_Z, Qt::ControlModifier);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Copy().GetTable(4).GetTableName(), "NewTable");
  EXPECT_EQ(Line(u"Alias"_s).text(), u"NewTable"_s) << "the same table is shown";
  Press(Qt::Key_Y, Qt::ControlModifier);
  Choose(Tables(), {u"Orders"_s, u"Products"_s});
  Line(u"Database"_s).setFocus();
  TypeAndEnter(u"shop"_s);
  EXPECT_EQ(Copy().GetTable(1).GetDatabaseName() + Copy().GetTable(3).GetDatabaseName(), "shopshop");
  EXPECT_FALSE(Line(u"Alias"_s).isEnabled());
  Tables().setFocus();
  const auto asked = Answer(QMessageBox::Yes);
  Press(Qt::Key_Delete);
  EXPECT_EQ(*asked, u"Delete table?|"_s);
  EXPECT_EQ(Aliases(), "Customers Order_Details NewTable");
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(model->GetTableCount(), 4u);
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(model->GetTableCount(), 3u);
}

TEST_F(ModelDialog, AnAliasThatExpressionsNameIsChangedThereOnlyWhenAsked) {
  Open();
  Choose(Tables(), {u"Order_Details"_s});
  for (const auto answer : {QMessageBox::Cancel, QMessageBox::No, QMessageBox::Yes}) {
    Line(u"Alias"_s).setFocus();
    const auto asked = Answer(answer);
    TypeAndEnter(u"D"_s);
    EXPECT_TRUE(asked->startsWith(u"The SQL of fields (2) and conditions (0) names the table \"Order_Details\"."_s));
    EXPECT_EQ(Line(u"Alias"_s).text(), answer == QMessageBox::Cancel ? u"Order_Details"_s : u"D"_s);
    EXPECT_EQ(Copy().FieldByID(20)->GetSQLExpr(), answer == QMessageBox::Yes ? "sum(D.Qty)" : "sum(Order_Details.Qty)");
    if (answer == QMessageBox::No) Press(Qt::Key_Z, Qt::ControlModifier);
  }
}

TEST_F(ModelDialog, FieldsAreEditedSeveralAtOnceAndStaySelected) {
  Open();
  GoTo(u"Entities"_s);
  Choose(Fields(), {u"Company"_s, u"City"_s, u"Active"_s});
  EXPECT_FALSE(Line(u"Display name"_s).isEnabled());
  auto& offered = WithText<QCheckBox>(u"Offered as result column"_s);
  EXPECT_EQ(offered.checkState(), Qt::Checked);
  offered.setFocus();
  Press(Qt::Key_Space);
  EXPECT_FALSE(Copy().FieldByID(3)->GetUseInResult());
  Fields().setFocus();
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Copy().RootGroup()[1].GetID(), 5) << "the next field has gone before them";
  EXPECT_EQ(Fields().selectionModel()->selectedRows().size(), 3);
  Press(Qt::Key_N, Qt::ControlModifier);
  TypeAndEnter(u"People"_s);
  EXPECT_EQ(Copy().FieldGroups()[0].GetGroupName(), "People");
  Choose(Fields(), {u"Company"_s, u"City"_s});
  auto& group = Named<QComboBox>(u"Group"_s);
  group.setFocus();
  Press(Qt::Key_Down);
  user::Settle();
  EXPECT_EQ(Copy().FieldGroups()[0].Count(), 2u);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Copy().FieldGroups()[0].Count(), 0u);
  EXPECT_EQ(Fields().selectionModel()->selectedRows().size(), 2) << "though all parts of the model are others now";
  Fields().setFocus();
  Press(Qt::Key_E, Qt::ControlModifier);
  TypeAndEnter(u"Gross"_s);
  Line(u"Expression"_s).setFocus();
  TypeAndEnter(u"sum(Orders.Total)"_s);
  const TDSField& gross = *Copy().FieldByID(21);
  EXPECT_TRUE(gross.GetIsAggregate());
  EXPECT_EQ(gross.Tables().GetCommaText(), "Orders");
  const auto asked = Answer(QMessageBox::Yes);
  Fields().setFocus();
  Press(Qt::Key_Delete);
  EXPECT_EQ(*asked, u"Delete field?|"_s);
  EXPECT_EQ(Copy().FieldByID(21), nullptr);
  EXPECT_FALSE(Fields().selectionModel()->selectedRows().isEmpty()) << "what is next to it is chosen";
}

TEST_F(ModelDialog, OperatorsAreOfferedAndWithdrawn) {
  Open();
  GoTo(u"Entities"_s);
  Choose(Fields(), {u"Company"_s, u"Total"_s});
  for (auto* tabs : dialog->findChildren<QTabWidget*>()) tabs->setCurrentIndex(1);
  auto& offered = Named<QListWidget>(u"Offered operators"_s);
  auto& missing = Named<QListWidget>(u"Operators that are not offered"_s);
  EXPECT_TRUE(offered.findItems(u"contains (Contains) - by some"_s, Qt::MatchExactly).size() == 1);
  missing.setCurrentItem(missing.findItems(u"(Contains)"_s, Qt::MatchContains).front());
  missing.setFocus();
  Press(Qt::Key_Insert);
  const TDSOperator& contains = OperatorOf(Copy(), "Contains");
  EXPECT_GE(FieldOf(Copy(), "Orders.Total").IndexOfOperator(contains), 0);
  offered.setFocus();
  offered.selectAll();
  Press(Qt::Key_Delete);
  EXPECT_EQ(FieldOf(Copy(), "Customers.Company").GetOperatCount(), 0u);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_GT(FieldOf(Copy(), "Customers.Company").GetOperatCount(), 5u);
}

TEST_F(ModelDialog, FieldsAreDraggedToAPlaceOrAGroup) {
  Open();
  GoTo(u"Entities"_s);
  QAbstractItemModel& rows = *Fields().model();
  const QModelIndex root = rows.index(0, 0);
  const auto drop = [&](const QModelIndexList& dragged, int row, const QModelIndex& parent) {
    const std::unique_ptr<QMimeData> data(rows.mimeData(dragged));
    EXPECT_FALSE(rows.dropMimeData(data.get(), Qt::MoveAction, row, 0, parent)) << "the view must remove nothing";
    user::Settle();
  };
  drop({rows.index(3, 0, root), rows.index(1, 0, root)}, 0, root);
  EXPECT_EQ(Copy().RootGroup()[0].GetID() * 100 + Copy().RootGroup()[1].GetID(), 204);
  Fields().setFocus();
  Press(Qt::Key_N, Qt::ControlModifier);
  const QModelIndex group = rows.index(0, 0);
  drop({rows.index(0, 0, rows.index(1, 0))}, -1, group);
  EXPECT_EQ(Copy().FieldGroups()[0].Count(), 1u);
  const auto names = [this] {
    std::string all;
    for (const TDSFieldGroup& each : Copy().FieldGroups()) all += each.GetGroupName() + ' ';
    return all;
  };
  dialog->Editor().Edit("x", [this] {
    for (const char* name : {"B", "C"}) Copy().FieldGroups().AddGroup(name);
  });
  user::Settle();
  drop({rows.index(0, 0)}, 2, {});
  EXPECT_EQ(names(), "B New group C ") << "before the group whose gap it is";
  drop({rows.index(0, 0)}, 3, {});
  EXPECT_EQ(names(), "New group C B ") << "behind the last named one";
  drop({rows.index(2, 0)}, -1, rows.index(0, 0));
  EXPECT_EQ(names(), "B New group C ") << "in the place of the other";
}

TEST_F(ModelDialog, ClosingAsksBeforeChangesAreLost) {
  const std::string before = WriteModelText(*model);
  Open();
  Press(Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible()) << "nothing has changed";
  for (const auto answer : {QMessageBox::Cancel, QMessageBox::Discard, QMessageBox::Save}) {
    Open();
    Line(u"Display name"_s).setFocus();
    Type(u"X"_s);  // not yet handed over
    const auto asked = Answer(answer);
    dialog->close();
    EXPECT_EQ(*asked, u"The model has been changed.|Do you want to keep the changes?"_s);
    EXPECT_EQ(dialog->isVisible(), answer == QMessageBox::Cancel);
    EXPECT_EQ(WriteModelText(*model) == before, answer != QMessageBox::Save);
  }
  EXPECT_EQ(model->GetTable(0).GetDisplayName(), "XCustomers");
}

TEST_F(ModelDialog, FilesAreOpenedAndSavedAndABadOneChangesNothing) {
  model->SetDMEButtons({dmbOpenSave});
  std::string hooked;
  const TModelFormat format{u"Other"_s, u"oth"_s,
                            [](const QString&, TJCustomDBStructure& read) { read.AddTable("FromOther", ""); },
                            [&](const QString&, const TJCustomDBStructure&) { hooked = "saved"; }};
  Open({format});
  const QString file = folder.filePath(u"m\u00f6dell.model"_s);
  EXPECT_TRUE(dialog->SaveToFile(file));
  WriteFileAtomically(std::filesystem::path(folder.filePath(u"bad.model"_s).toStdU16String()), "[Table:1]\n");
  const std::string before = WriteModelText(Copy());
  const auto told = Answer(QMessageBox::Ok);
  EXPECT_FALSE(dialog->LoadFromFile(folder.filePath(u"bad.model"_s)));
  EXPECT_TRUE(told->contains(u"bad.model"_s) && told->contains(u"section Main"_s)) << told->toStdString();
  EXPECT_EQ(WriteModelText(Copy()), before);
  EXPECT_TRUE(dialog->LoadFromFile(u"x.OTH"_s));
  EXPECT_TRUE(dialog->SaveToFile(u"x.oth"_s));
  EXPECT_EQ(hooked, "saved");
  EXPECT_EQ(Copy().GetTableCount(), 5u);
  EXPECT_TRUE(dialog->LoadFromFile(file));
  EXPECT_EQ(WriteModelText(Copy()), before);
  user::Settle();
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Copy().GetTableCount(), 5u) << "opening is a step";
}

TEST_F(ModelDialog, WhatIsWrongLeadsToItsPlace) {
  model->GetField(4).SetDisplayName("");
  Open();
  Press(Qt::Key_F7);
  auto& list = Named<QListView>(u"What is wrong with the model"_s);
  const QModelIndexList found =
      list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, u"Field number 5"_s, 1, Qt::MatchContains);
  ASSERT_FALSE(found.isEmpty());
  const int before = list.model()->rowCount();
  list.setCurrentIndex(found[0]);
  Press(Qt::Key_Return);
  EXPECT_EQ(WithText<QLabel>(u"5"_s).text(), u"5"_s) << "the ID of the field";
  Line(u"Display name"_s).setFocus();
  TypeAndEnter(u"Notes"_s);
  EXPECT_LT(list.model()->rowCount(), before);
}

TEST_F(ModelDialog, PageSizesAndPanesAreKept) {
  Open();
  GoTo(u"Entities"_s);
  Press(Qt::Key_F7);
  const QSize size(dialog->minimumSizeHint() + QSize(77, 33));
  dialog->resize(size);
  dialog->move(100000, 100000);
  dialog->accept();
  Open();
  EXPECT_TRUE(Fields().isVisible());
  EXPECT_TRUE(Named<QListView>(u"What is wrong with the model"_s).isVisible());
  EXPECT_TRUE(dialog->screen()->availableGeometry().intersects(dialog->geometry()));
  EXPECT_LE(dialog->minimumSizeHint().width(), 1024);
  EXPECT_LE(dialog->minimumSizeHint().height(), 768);
}

TEST_F(ModelDialog, ConnectAsksTheModelThatWasGiven) {
  model->SetDMEButtons({dmbConnect});
  TJDBInfo info;
  const TJCustomDBStructure* sender = nullptr;
  model->OnConnectClick = [&](TJCustomDBStructure& from) {
    sender = &from;
    model->SetDatabaseInfo(&info);
  };
  Open();
  Press(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(sender, model.get());
  EXPECT_EQ(Copy().GetDatabaseInfo(), &info);
  model->OnConnectClick = [&](TJCustomDBStructure&) { dialog.reset(); };
  Press(Qt::Key_K, Qt::ControlModifier);
  EXPECT_EQ(dialog, nullptr) << "a handler may destroy the dialog";
}

TEST_F(ModelDialog, GoesWithItsModelOrItsParent) {
  model->FieldByID(1)->SetUserData(7);
  const auto edit = [&](QWidget* parent, auto close) {
    QTimer::singleShot(0, &window, [&] {
      auto& shown = *qobject_cast<T_dlgModelEdit*>(QApplication::activeModalWidget());
      shown.Editor().Edit("x", [&] { shown.Model().AddTable("More", "More"); });
      close(shown);
    });
    return EditModel(parent, *model);
  };
  EXPECT_TRUE(edit(&window, [](T_dlgModelEdit& shown) { shown.accept(); }));
  EXPECT_EQ(model->GetTableCount(), 5u);
  EXPECT_EQ(model->FieldByID(1)->GetUserData(), 7u) << "what the host has hung on a field";
  auto* parent = new QWidget(&window);
  EXPECT_FALSE(edit(parent, [&](T_dlgModelEdit&) { delete parent; }));
  EXPECT_EQ(model->GetTableCount(), 5u);
  EXPECT_FALSE(edit(&window, [&](T_dlgModelEdit&) { model.reset(); }));
}

TEST_F(ModelDialog, TheItemModelsKeepTheRulesOfModels) {
  TTablesModel tables;
  TEntitiesModel entities;
  const auto fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
  QAbstractItemModelTester tablesTester(&tables, fatal), entitiesTester(&entities, fatal);
  const auto read = [&] {
    tables.Read(*model);
    entities.Read(*model);
  };
  read();
  model->FieldGroups().AddGroup("Prices");
  model->FieldByID(18)->SetGroup(model->FieldGroups()[0]);
  read();
  for (const QString& text : {u"price"_s, u"ORD"_s, u"no such"_s, QString()}) {
    tables.Find(text);
    entities.Find(text);
    read();
  }
  entities.Find(u"item price"_s);
  EXPECT_EQ(entities.rowCount(), 1);
  entities.Find(u"prices"_s);
  EXPECT_EQ(entities.rowCount(entities.IndexOfGroup(1)), 1) << "all of a group that is found";
  entities.Find({});
  model->ClearStructure();
  read();
  EXPECT_EQ(tables.rowCount() + entities.rowCount(), 1) << "the root group";
}

TEST_F(ModelDialog, ACheckedLineTellsWhatIsWrongAndHandsOverOnce) {
  auto& line = Place(new TCheckedLine);
  auto& other = Place(new QLineEdit, 20, 80);
  QStringList committed;
  line.OnCheck = [](const QString& text) {
    return text.contains(u'x') ? TTextFindings{{csError, "no \"x\" here"}} : TTextFindings();
  };
  line.OnCommit = [&](const QString& text) { committed << text; };
  line.ShowText(u"ab"_s);
  line.setFocus();
  Type(u"x"_s);
  EXPECT_EQ(line.accessibleDescription(), u"no \"x\" here"_s);
  line.ShowText(u"other"_s);
  EXPECT_EQ(line.text(), u"xab"_s) << "the user is typing";
  Press(Qt::Key_Escape);
  EXPECT_EQ(line.text() + line.accessibleDescription(), u"ab"_s);
  Type(u"x"_s);
  line.SetKeepsWrong(false);
  other.setFocus();
  EXPECT_EQ(line.text(), u"ab"_s);
  line.SetKeepsWrong(true);
  line.setFocus();
  Type(u"y"_s);
  Press(Qt::Key_Return);
  other.setFocus();
  EXPECT_EQ(committed, QStringList{line.text()}) << "once";
  line.OnCommit = [&](const QString&) { delete &line; };
  line.setFocus();
  Type(u"z"_s);
  Press(Qt::Key_Return);
}

}  // namespace
}  // namespace tolvi
