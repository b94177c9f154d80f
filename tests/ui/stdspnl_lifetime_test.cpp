// What must not happen to the structure panel when things go, or events come, at an unlucky time.
#include <QContextMenuEvent>
#include <QDialog>
#include <QMouseEvent>
#include <optional>

#include <gtest/gtest.h>

#include "designpanel.h"
#include <tolvi/panel/stdsplaces.h>

namespace tolvi {
namespace {

TEST_F(StructDesignPanel, TakesNoClickForAnEdit) {
  Click(Viewport(), AtTitle("Orders"));
  Click(Viewport(), At(Box("Orders"), 109, 80));
  Drag(AtTitle("Orders"), AtTitle("Orders") + QPoint(2, 2));
  EXPECT_FALSE(HasStoredPlace(Model->GetTable(0)));
  // The release may go to another window.
  QTest::mousePress(&Viewport(), Qt::LeftButton, {}, AtTitle("Orders"));
  QTest::mouseMove(&Viewport(), AtTitle("Orders") + QPoint(30, 30));
  const QPoint free(20, 300);
  QMouseEvent moved(QEvent::MouseMove, free, Viewport().mapToGlobal(free), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(&Viewport(), &moved);
  EXPECT_EQ(Box("Orders").GetPlace().Left, 192);
  Panel->Undo();
  EXPECT_EQ(Box("Orders").GetPlace().Left, 162);
  QTest::mouseRelease(&Viewport(), Qt::LeftButton, {}, free);
}

TEST_F(StructDesignPanel, EndsEveryStepSoThatItCanBeUndone) {
  TModelEditor editor(*Model);
  Panel->SetEditor(&editor);
  Panel->Activate();
  QTest::mousePress(&Viewport(), Qt::LeftButton, {}, AtTitle("Orders"));
  QTest::mouseMove(&Viewport(), AtTitle("Orders") + QPoint(30, 60));
  Press(Qt::Key_Right);
  QTest::mouseRelease(&Viewport(), Qt::LeftButton, {}, QPoint(300, 300));
  Press(Qt::Key_Down);
  Press(Qt::Key_Home);
  for (const TDesignRect& place : {TDesignRect{200, 70, 110, 160}, {192, 70, 110, 160}, {162, 10, 110, 160}}) {
    editor.Undo();
    EXPECT_EQ(Box("Orders").GetPlace(), place);
  }
  QTest::mousePress(&Viewport(), Qt::LeftButton, {}, AtTitle("Orders"));
  QTest::mouseMove(&Viewport(), AtTitle("Orders") + QPoint(30, 60));
  delete Panel;
  editor.Undo();
  EXPECT_FALSE(HasStoredPlace(Model->GetTable(0)));
}

TEST_F(StructDesignPanel, KeepsTheViewUnderTheHand) {
  Panel->MoveBoxes({{&Box("Products"), {2000, 10, 110, 160}}}, QStringLiteral("Move"));
  Panel->DesignArea().BringIntoView(QRectF(2100, 10, 4, 4));
  const QPoint from = AtTitle("Products");
  QTest::mousePress(&Viewport(), Qt::LeftButton, {}, from);
  for (int i = 0; i < 5; ++i) QTest::mouseMove(&Viewport(), from - QPoint(60 + i % 2, 0));
  QTest::mouseRelease(&Viewport(), Qt::LeftButton, {}, from - QPoint(60, 0));
  EXPECT_NEAR(Box("Products").GetPlace().Left, 1940, 1);
  // It begins with the first boxes.
  TJStructDesignPanel other(&window);
  other.resize(300, 200);
  other.SetDBStruct(Model.get());
  other.Activate();
  other.show();
  user::Settle();
  EXPECT_EQ(other.DesignArea().ToContent(QPoint()), TDesignPoint());
}

TEST_F(StructDesignPanel, DeletesWhatTheBandHasChosen) {
  Panel->SetActiveTable(&Box("Customers"));
  Panel->SetActiveLink(&Panel->GetLinksRep()[0]);
  const TDesignRect last = Box("Products").GetPlace();
  Drag(Panel->DesignArea().mapFromScene(last.Left + 55, last.Top + 170), AtTitle("Products"));
  EXPECT_EQ(Panel->GetActiveTable(), &Box("Products"));
  Answer(Qt::Key_Return);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Model->TableByName(tnAlias, "Products"), nullptr);
  EXPECT_EQ(Model->GetTableCount(), 3U);
}

TEST_F(StructDesignPanel, StoresWhereBoxesGlideTo) {
  Panel->LayOutByLinks();
  const TDesignPositions end = Model->GetTable(3).GetDesignPositions();
  Panel->DeleteActiveLink();
  EXPECT_EQ(Model->GetTable(3).GetDesignPositions(), end);
  Panel->RearrangeTables();
  const TDesignPositions rows = Model->GetTable(3).GetDesignPositions();
  Panel->ChooseOnly(&Box("Products"));
  Panel->FitHeights();
  EXPECT_EQ(Box("Products").GetPlace().Left, rows.Left);
}

TEST_F(StructDesignPanel, ShowsLinksAndTablesAsTheyAreNow) {
  TDSLink& link = Model->GetLink(0);
  Model->AsOneChange([&] {
    const TStrings fields1 = link.GetFields1(), fields2 = link.GetFields2();
    link.SetTables(*link.GetTable2(), *link.GetTable1());
    link.SetFields1(fields2);
    link.SetFields2(fields1);
  });
  EXPECT_EQ(&Panel->GetLinksRep()[0].GetTableRep1(), &Box("Customers"));
  EXPECT_EQ(Panel->GetLinksRep()[0].Nodes1()[0].X, 123);
  Box("Orders").FieldsLB().SetItemIndex(0);
  Model->TableByName(tnAlias, "Orders")->SetTableName("Products");
  EXPECT_EQ(Box("Orders").FieldsLB().Items().front(), "PartNo");
  // What is loaded in its place keeps its arrangement.
  Panel->MoveBoxes({{&Box("Customers"), {300, 200, 110, 160}}}, QStringLiteral("Move"));
  TJDBStructure more;
  Model->AssignTo(more);
  more.AddTable("Stores", "Stores");
  more.AssignTo(*Model);
  EXPECT_EQ(Box("Customers").GetPlace(), (TDesignRect{300, 200, 110, 160}));
}

TEST_F(StructDesignPanel, OutlivesWhatGoesWhileItsDialogIsOpen) {
  for (const std::string_view lost : {"link", "first table", "content", "model", "panel"}) {
    SCOPED_TRACE(lost);
    Model = OrdersModel();
    Model->SetDatabaseInfo(&Info);
    std::optional<TModelEditor> editor;
    auto* panel = new TJStructDesignPanel(&window);
    const QPointer<TJStructDesignPanel> guard(panel);
    if (lost == "model") {
      panel->SetDBStruct(Model.get());
    } else {
      panel->SetEditor(&editor.emplace(*Model));
    }
    panel->Activate();
    int finished = 0;
    panel->OnAddLinkFinish = [&](TJStructDesignPanel&, TLinkRep* added) { finished += added ? 100 : 1; };
    const auto loseInDialog = [&] {
      QTimer::singleShot(0, &window, [&, lost] {
        ASSERT_NE(QApplication::activeModalWidget(), nullptr);
        if (lost == "link") Model->DelLink(0);
        if (lost == "first table") Model->DelTable(0);
        if (lost == "content") Model->ClearStructure();
        if (lost == "panel") delete panel;
        if (lost == "model") Model.reset();
        if (QWidget* still = QApplication::activeModalWidget()) static_cast<QDialog*>(still)->reject();
      });
    };
    TTableRep* first = panel->FindTblRepByDSTable(&Model->GetTable(0));
    if (lost != "link") {
      first->FieldsLB().SetItemIndex(0);
      panel->StartAddLink();
      first->OnFieldClick(*first);
      loseInDialog();
      first->OnFieldClick(*first);
      if (guard && lost != "model") {
        EXPECT_EQ(finished, 1);
        EXPECT_EQ(panel->GetAddLinkStage(), alsIdle);
      }
    } else {
      loseInDialog();
      EXPECT_FALSE(panel->EditActiveLink());
      EXPECT_EQ(panel->GetLinksRep().Count(), 2U);
    }
    // No step is left open.
    if (editor) {
      editor->Edit("Last", [&] { Model->AddTable("Last", "Last"); });
      EXPECT_EQ(editor->UndoName(), "Last");
    }
    delete guard.data();
  }
}

TEST_F(StructDesignPanel, GoesWithItsModelInTheMidstOfADrag) {
  QTest::mousePress(&Viewport(), Qt::LeftButton, {}, AtTitle("Orders"));
  QTest::mouseMove(&Viewport(), AtTitle("Orders") + QPoint(30, 60));
  Model.reset();
  QTest::mouseRelease(&Viewport(), Qt::LeftButton, {}, QPoint(300, 300));
  EXPECT_FALSE(Panel->GetActive());
  Model = OrdersModel();
  Panel->SetDBStruct(Model.get());
  Panel->Activate();
  Panel->LayOutByLinks();
  Panel->SetFullScreenMode(true);
  delete Panel;
}

TEST_F(StructDesignPanel, MayBeDestroyedByAnyEvent) {
  const auto destroy = [](TJStructDesignPanel& sender) { delete &sender; };
  const std::vector<std::pair<const char*, std::function<void(TJStructDesignPanel&)>>> cases = {
      {"key",
       [&](TJStructDesignPanel& panel) {
         panel.OnKeyPress = [](TJStructDesignPanel& sender, QKeyEvent&) {
           delete &sender;
           return false;
         };
         Press(Qt::Key_A);
       }},
      {"tab",
       [&](TJStructDesignPanel& panel) {
         panel.OnSelectTable = destroy;
         Press(Qt::Key_Tab);
       }},
      {"press",
       [&](TJStructDesignPanel& panel) {
         panel.OnSelectTable = destroy;
         Click(*panel.DesignArea().viewport(), QPoint(200, 15));
       }},
      {"start",
       [&](TJStructDesignPanel& panel) {
         panel.OnAddLinkStart = destroy;
         panel.StartAddLink();
       }},
      {"finish",
       [&](TJStructDesignPanel& panel) {
         panel.OnAddLinkFinish = [](TJStructDesignPanel& sender, TLinkRep*) { delete &sender; };
         panel.StartAddLink();
         Press(Qt::Key_Escape);
       }},
  };
  for (const auto& [name, run] : cases) {
    SCOPED_TRACE(name);
    QPointer<TJStructDesignPanel> panel = new TJStructDesignPanel(&window);
    panel->resize(600, 400);
    panel->SetDBStruct(Model.get());
    panel->Activate();
    panel->show();
    panel->raise();
    panel->setFocus();
    user::Settle();
    run(*panel);
    user::Settle();
    EXPECT_TRUE(panel.isNull());
    delete panel.data();
  }
}

TEST_F(StructDesignPanel, OpensItsMenuByKeyAndOnABox) {
  Panel->SetActiveTable(&Box("Orders"));
  QContextMenuEvent byKey(QContextMenuEvent::Keyboard, QPoint(1, 1), Viewport().mapToGlobal(QPoint(1, 1)));
  QApplication::sendEvent(&Viewport(), &byKey);
  auto* menu = qobject_cast<QMenu*>(Popup());
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->actions().front()->objectName(), QStringLiteral("addLink"));
  for (QAction* action : Panel->GetActions()) {
    const bool isOfLinks = action->objectName() == QStringLiteral("editLink");
    EXPECT_EQ(menu->actions().contains(action), !isOfLinks) << action->objectName().toStdString();
  }
  EXPECT_TRUE(user::ChooseFromMenu(QStringLiteral("addLink")));
  EXPECT_EQ(Panel->GetAddLinkStage(), alsSelField1);
}

}  // namespace
}  // namespace tolvi
