#include <QFile>
#include <QMessageBox>
#include <QPrinter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QXmlStreamReader>
#include <memory>

#include <gtest/gtest.h>

#include "designpanel.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/panel/stdsplaces.h>

namespace tolvi {
namespace {

TEST_F(StructDesignPanel, ArrangesTablesWithoutPlacesAndLeavesTheModelAlone) {
  EXPECT_FALSE(Panel->GetDesignPositionsDefined());
  EXPECT_EQ(Box("Customers").GetPlace(), (TDesignRect{12, 10, 110, 160}));
  EXPECT_EQ(Box("Orders").GetPlace(), (TDesignRect{162, 10, 110, 160}));
  EXPECT_FALSE(HasStoredPlace(Model->GetTable(0)));
  EXPECT_EQ(Panel->GetActiveTable(), &Panel->GetTablesRep()[0]);
  EXPECT_EQ(Panel->GetActiveLink(), &Panel->GetLinksRep()[0]);
  // The line of Orders - Customers ends at the middle of its columns' items.
  const TLinkRep& link = Panel->GetLinksRep()[0];
  const TTableBox orders = Box("Orders").GetBox();
  ASSERT_EQ(link.Nodes1().size(), 1U);
  EXPECT_EQ(link.Nodes1()[0].X, 161);
  EXPECT_EQ(link.Nodes1()[0].Y, 10 + orders.ListTop + orders.ItemHeight + orders.ItemHeight / 2);
  EXPECT_EQ(Box("Customers").FieldsLB().GetMarks(0), TTableRepListBox::mkKey | TTableRepListBox::mkLinked);
  EXPECT_EQ(Box("Customers").FieldsLB().GetMarks(1), TTableRepListBox::mkNone);
}

TEST_F(StructDesignPanel, MovesAndSizesBoxesByMouseInStepsThatCanBeUndone) {
  Drag(AtTitle("Orders"), AtTitle("Orders") + QPoint(30, 60));
  EXPECT_EQ(Box("Orders").GetPlace(), (TDesignRect{192, 70, 110, 160}));
  EXPECT_EQ(Model->TableByName(tnAlias, "Orders")->GetDesignPositions(), (TDesignPositions{192, 70, 110, 160}));
  // All others are stored, too: the diagram stays as it was seen.
  EXPECT_TRUE(HasStoredPlace(Model->GetTable(0)));
  Drag(AtTitle("Orders"), QPoint(1, 1));
  EXPECT_EQ(Box("Orders").GetPlace().Top, 0) << "boxes stay inside";
  Drag(At(Box("Orders"), 108, 158), At(Box("Orders"), 138, 178));
  EXPECT_EQ(Box("Orders").GetPlace().Width, 140);
  EXPECT_EQ(Box("Orders").GetPlace().Height, 180);
  Panel->Undo();
  EXPECT_EQ(Box("Orders").GetPlace().Width, 110);
  Panel->Undo();
  EXPECT_EQ(Box("Orders").GetPlace(), (TDesignRect{192, 70, 110, 160}));
  Panel->Undo();
  EXPECT_EQ(Box("Orders").GetPlace(), (TDesignRect{162, 10, 110, 160}));
  EXPECT_EQ(Panel->GetActiveTable(), &Box("Orders")) << "the same table is active as before";
  Panel->Redo();
  EXPECT_EQ(Box("Orders").GetPlace().Left, 192);

  QTest::mousePress(&Viewport(), Qt::LeftButton, {}, AtTitle("Orders"));
  QTest::mouseMove(&Viewport(), AtTitle("Orders") + QPoint(50, 50));
  Press(Qt::Key_Escape);
  EXPECT_EQ(Box("Orders").GetPlace().Left, 192);
}

TEST_F(StructDesignPanel, MovesSeveralBoxesByBandAndArrowKeys) {
  Drag(QPoint(2, 2), AtTitle("Orders") + QPoint(0, 30));
  EXPECT_EQ(Panel->ChosenBoxes().size(), 2U);
  Press(Qt::Key_Down);
  Press(Qt::Key_Down);
  Press(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(Box("Customers").GetPlace(), (TDesignRect{13, 26, 110, 160}));
  EXPECT_EQ(Box("Orders").GetPlace(), (TDesignRect{163, 26, 110, 160}));
  Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(Box("Orders").GetPlace().Width, 118);
  // A further key ends the series: one step.
  Press(Qt::Key_Tab);
  EXPECT_EQ(Panel->GetActiveTable(), &Box("Orders"));
  Panel->Undo();
  EXPECT_EQ(Box("Customers").GetPlace(), (TDesignRect{12, 10, 110, 160}));
}

TEST_F(StructDesignPanel, LinksFollowListsThatScroll) {
  TTableRep& orders = Box("Orders");
  Panel->MoveBoxes({{&orders, {162, 10, 110, 60}}}, QStringLiteral("Size"));
  TLinkRep& link = Panel->GetLinksRep()[0];
  QWheelEvent down(At(orders, 40, 40), Viewport().mapToGlobal(At(orders, 40, 40)), {}, QPoint(0, -120), {}, {},
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&Viewport(), &down);
  EXPECT_EQ(orders.FieldsLB().GetTopIndex(), 3U);
  // The column is above what is seen: the line ends below the box's upper edge.
  EXPECT_EQ(link.Nodes1()[0].Y, 20);
  Press(Qt::Key_Tab);
  Press(Qt::Key_PageUp);
  EXPECT_NE(link.Nodes1()[0].Y, 20);
}

TEST_F(StructDesignPanel, AddsALinkByTwoClicks) {
  std::vector<std::string> told;
  Panel->OnAddLinkStart = [&](TJStructDesignPanel&) { told.push_back("start"); };
  Panel->OnAddLinkFinish = [&](TJStructDesignPanel&, TLinkRep* link) { told.push_back(link ? "added" : "cancelled"); };
  Panel->StartAddLink();
  Hover(QPoint(5, 5));
  EXPECT_EQ(Panel->GetActionHint(), QStringLiteral("Select a field in the first linking table"));
  Click(Viewport(), AtField("Customers", 0));
  EXPECT_EQ(Panel->GetAddLinkStage(), alsSelField2);
  Hover(QPoint(300, 250));
  EXPECT_EQ(Panel->GetActionHint(), QStringLiteral("Select a field in the second linking table"));
  EXPECT_EQ(Panel->GetNewLink()->Nodes2()[0].Y, Panel->DesignArea().ToContent(QPoint(300, 250)).Y);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Panel->GetAddLinkStage(), alsIdle);

  Panel->StartAddLink();
  Click(Viewport(), AtField("Customers", 0));
  Answer(Qt::Key_Return, Qt::ControlModifier);
  Click(Viewport(), AtField("Products", 1));
  ASSERT_EQ(Model->GetLinkCount(), 4U);
  EXPECT_EQ(Model->GetLink(3).GetSQLExpr(), "Customers.CustNo = Products.Description");
  EXPECT_EQ(&Panel->GetActiveLink()->GetLink(), &Model->GetLink(3));
  EXPECT_EQ(told, (std::vector<std::string>{"start", "cancelled", "start", "added"}));
  Panel->Undo();
  EXPECT_EQ(Panel->GetLinksRep().Count(), 3U);
}

TEST_F(StructDesignPanel, AddsLinksByDraggingAFieldAndByKeys) {
  Answer(Qt::Key_Return, Qt::ControlModifier);
  Drag(AtField("Customers", 1), AtField("Orders", 2));
  ASSERT_EQ(Model->GetLinkCount(), 4U);
  EXPECT_EQ(Model->GetLink(3).GetSQLExpr(), "Customers.Company = Orders.SaleDate");
  Drag(AtField("Customers", 1), QPoint(500, 300));
  EXPECT_EQ(Panel->GetAddLinkStage(), alsIdle);
  EXPECT_EQ(Model->GetLinkCount(), 4U);

  Panel->SetActiveTable(&Box("Customers"));
  Box("Customers").FieldsLB().SetItemIndex(-1);
  Box("Orders").FieldsLB().SetItemIndex(-1);
  Panel->StartAddLink();
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  Press(Qt::Key_Tab);
  Press(Qt::Key_Down);
  Answer(Qt::Key_Escape);
  Press(Qt::Key_Return);
  EXPECT_EQ(Panel->GetAddLinkStage(), alsIdle);
  EXPECT_EQ(Model->GetLinkCount(), 4U);
}

TEST_F(StructDesignPanel, DeletesTheTableAfterAQuestionAndActivatesTheNext) {
  int tables = 0;
  Panel->OnSelectTable = [&](TJStructDesignPanel&) { ++tables; };
  Panel->SetActiveTable(&Box("Orders"));
  Answer(Qt::Key_Escape);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Model->GetTableCount(), 4U);
  Panel->DeleteActiveTable();
  EXPECT_EQ(Model->GetTableCount(), 3U);
  EXPECT_EQ(Panel->GetActiveTable(), &Box("Order_Details"));
  EXPECT_EQ(Panel->GetLinksRep().Count(), 1U);
  EXPECT_EQ(Panel->GetActiveLink(), &Panel->GetLinksRep()[0]);
  Panel->SetActiveTable(&Box("Products"));
  Panel->DeleteActiveTable();
  EXPECT_EQ(Panel->GetActiveTable(), &Box("Order_Details")) << "the previous one, behind the last";
  EXPECT_EQ(tables, 4);
  EXPECT_EQ(Panel->GetActiveLink(), nullptr);
  Panel->Undo();
  Panel->Undo();
  EXPECT_EQ(Panel->GetTablesRep().Count(), 4U);
  EXPECT_EQ(Panel->GetLinksRep().Count(), 3U);
  Panel->SetActiveLink(&Panel->GetLinksRep()[2]);
  Panel->DeleteActiveLink();
  EXPECT_EQ(Panel->GetActiveLink(), &Panel->GetLinksRep()[1]);
}

TEST_F(StructDesignPanel, FollowsTheModel) {
  Model->AddTable("Stores", "Stores");
  EXPECT_EQ(Panel->GetTablesRep().Count(), 5U);
  Model->GetTable(4).SetDisplayName("Shops");
  EXPECT_EQ(Box("Stores").GetTitle(), QStringLiteral("Shops"));
  Model->DelTable(0);
  EXPECT_EQ(Panel->GetTablesRep().Count(), 4U);
  EXPECT_EQ(Panel->GetActiveTable(), &Box("Orders"));
  Model->GetTable(0).SetDesignPositions({300, 200, 120, 130});
  EXPECT_EQ(Box("Orders").GetPlace(), (TDesignRect{300, 200, 120, 130}));
  Model->BeginUpdate();
  Model->DelTable(0);
  Panel->grab();
  Hover(QPoint(20, 20));
  Model->EndUpdate();
  Model->ClearStructure();
  EXPECT_TRUE(Panel->GetTablesRep().Empty());
  Hover(QPoint(20, 20));
  EXPECT_EQ(Panel->GetActionHint(), QStringLiteral("To add/delete tables and links - right click on selected object "
                                                   "and chose necessary operation"));
  Model.reset();
  EXPECT_FALSE(Panel->GetActive());
  EXPECT_EQ(Panel->GetDBStruct(), nullptr);
  try {
    Panel->Activate();
    FAIL();
  } catch (const EStructureDesignError& error) {
    EXPECT_EQ(error.Message(), "Structure is not specified");
  }
}

TEST_F(StructDesignPanel, SaysSoWhileTheCatalogueCannotBeAsked) {
  CatalogueFails = true;
  Info.ForgetFields();
  Panel->RefreshFields();
  EXPECT_EQ(Box("Orders").FieldsLB().Items(), std::vector<std::string>{"<Not connected>"});
  Panel->StartAddLink();
  Click(Viewport(), AtField("Customers", 0));
  EXPECT_EQ(Panel->GetNewLink()->GetLink().GetFields1()[0], "Field1");
  EXPECT_EQ(Panel->GetNewLink()->GetLink().GetFields2()[0], "Field2");
  Panel->CancelAddLink();
  CatalogueFails = false;
  Panel->RefreshFields();
  EXPECT_EQ(Box("Orders").FieldsLB().Items().front(), "OrderNo");
}

TEST_F(StructDesignPanel, SelectsLinksUnderTheMouse) {
  Panel->MoveBoxes({{&Box("Orders"), {250, 10, 110, 160}}}, QStringLiteral("Move"));
  const TLinkRep& link = Panel->GetLinksRep()[0];
  const TDesignPoint one = link.Nodes1()[0].StubEnd(), other = link.Nodes2()[0].StubEnd();
  const QPoint middle = Panel->DesignArea().mapFromScene((one.X + other.X) / 2.0, (one.Y + other.Y) / 2.0);
  Panel->SetActiveLink(nullptr);
  Hover(middle);
  EXPECT_EQ(Panel->GetCurrentLink(), &link);
  EXPECT_EQ(Viewport().cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(Panel->GetActionHint(), QStringLiteral("Click on link line to select it"));
  Click(Viewport(), middle);
  EXPECT_EQ(Panel->GetActiveLink(), &link);
  Hover(AtTitle("Orders"));
  EXPECT_EQ(Panel->GetActionHint(), QStringLiteral("Click inside table to select it"));
  Answer(Qt::Key_Escape);
  QTest::mouseMove(&Viewport(), middle);
  QTest::mouseDClick(&Viewport(), Qt::LeftButton, {}, middle);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(StructDesignPanel, ZoomsAtTheMouseAndIsPushed) {
  TJDesignArea& area = Panel->DesignArea();
  Panel->MoveBoxes({{&Box("Products"), {2000, 1500, 110, 160}}}, QStringLiteral("Move"));
  const QPointF before = area.mapToScene(QPoint(300, 200));
  QWheelEvent in(QPointF(300, 200), Viewport().mapToGlobal(QPointF(300, 200)), {}, QPoint(0, 120), {},
                 Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&Viewport(), &in);
  EXPECT_GT(Panel->GetZoom(), 1);
  EXPECT_LT((area.mapToScene(QPoint(300, 200)) - before).manhattanLength(), 3);
  Panel->SetZoom(100);
  EXPECT_EQ(Panel->GetZoom(), 4);
  Panel->SetZoom(0.001);
  EXPECT_EQ(Panel->GetZoom(), 0.1);
  Panel->SetZoom(1);
  constexpr int value = 100;
  area.verticalScrollBar()->setValue(value);
  QTest::mousePress(&Viewport(), Qt::MiddleButton, {}, QPoint(300, 200));
  QTest::mouseMove(&Viewport(), QPoint(300, 150));
  QTest::mouseRelease(&Viewport(), Qt::MiddleButton, {}, QPoint(300, 150));
  EXPECT_EQ(area.verticalScrollBar()->value(), value + 50);
  Panel->DesignArea().ZoomToFit();
  EXPECT_TRUE(Viewport().rect().contains(At(Box("Products"), 109, 159)));
}

TEST_F(StructDesignPanel, ArrangesByRowsAndByLinks) {
  Panel->LayOutByLinks();
  const TDesignPositions stored = Model->GetTable(3).GetDesignPositions();
  EXPECT_TRUE(HasStoredPlace(Model->GetTable(3)));
  const TDesignRect end{stored.Left, stored.Top, stored.Width, stored.Height};
  EXPECT_TRUE(QTest::qWaitFor([&] { return Box("Products").GetPlace() == end; }, 2000));
  Panel->RearrangeTables();
  Panel->Undo();
  EXPECT_EQ(Model->GetTable(3).GetDesignPositions(), stored);
}

TEST_F(StructDesignPanel, ExportsAllOfTheDiagram) {
  Panel->MoveBoxes({{&Box("Products"), {2000, 1500, 110, 160}}}, QStringLiteral("Move"));
  const QTemporaryDir folder;
  const QString base = folder.filePath(QStringLiteral("diagram"));
  for (const char* end : {".png", ".svg", ".pdf"}) Panel->ExportTo(base + QLatin1String(end));
  const QImage image(base + QStringLiteral(".png"));
  EXPECT_GT(image.width(), 2110);
  EXPECT_GT(image.height(), 1660);
  const QRgb back = image.pixel(0, 0);
  EXPECT_NE(image.pixel(image.width() - 40, image.height() - 164), back) << "the last box is there";
  QFile svg(base + QStringLiteral(".svg"));
  ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
  QXmlStreamReader reader(&svg);
  QString texts;
  for (; !reader.atEnd(); reader.readNext()) {
    if (reader.isCharacters()) texts += reader.text();
  }
  EXPECT_FALSE(reader.hasError());
  for (const char* title : {"Customers", "Order Details", "Products", "Description"}) {
    EXPECT_TRUE(texts.contains(QLatin1String(title))) << title;
  }
  QFile pdf(base + QStringLiteral(".pdf"));
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_TRUE(pdf.readAll().startsWith("%PDF"));
  const QString nowhere = folder.filePath(QStringLiteral("none/diagram.png"));
  EXPECT_THROW(Panel->ExportTo(nowhere), EStructureDesignError);
  EXPECT_THROW(Panel->ExportTo(base + QStringLiteral(".xyz")), EStructureDesignError);

  QPrinter printer(QPrinter::ScreenResolution);
  printer.setOutputFileName(base + QStringLiteral("_paper.pdf"));
  Panel->Print(printer);
  QFile paper(base + QStringLiteral("_paper.pdf"));
  ASSERT_TRUE(paper.open(QIODevice::ReadOnly));
  EXPECT_GT(paper.readAll().count("/Type /Page\n"), 1) << "a large diagram takes several pages";
}

TEST_F(StructDesignPanel, CoversTheScreenAndComesBack) {
  Panel->SetFullScreenMode(true);
  ASSERT_TRUE(Panel->GetFullScreenMode());
  EXPECT_NE(Panel->DesignArea().window(), &window);
  EXPECT_EQ(Panel->DesignArea().window()->windowTitle(), QStringLiteral("Design panel full screen mode "));
  QTest::keyClick(&Panel->DesignArea(), Qt::Key_Escape);
  EXPECT_FALSE(Panel->GetFullScreenMode());
  EXPECT_EQ(Panel->DesignArea().window(), &window);
  Panel->SetFullScreenMode(true);
  Panel->DesignArea().window()->close();
  EXPECT_FALSE(Panel->GetFullScreenMode());
}

TEST_F(StructDesignPanel, MayBeDestroyedByItsHandlers) {
  const QPointer<TJStructDesignPanel> guard(Panel);
  Panel->OnSelectTable = [](TJStructDesignPanel& sender) { delete &sender; };
  Panel->DeleteActiveTable();
  EXPECT_TRUE(guard.isNull());
  EXPECT_EQ(Model->GetTableCount(), 3U);
}

TEST_F(StructDesignPanel, SharesAHistoryWithOtherEditors) {
  TModelEditor editor(*Model);
  Panel->SetEditor(&editor);
  Panel->Activate();
  editor.Edit("Rename", [&] { Model->GetTable(0).SetDisplayName("Clients"); });
  Drag(AtTitle("Orders"), AtTitle("Orders") + QPoint(30, 60));
  EXPECT_EQ(editor.UndoName(), "Move tables");
  editor.Undo();
  editor.Undo();
  EXPECT_EQ(Box("Customers").GetTitle(), QStringLiteral("Customers"));
  EXPECT_FALSE(editor.CanUndo());
}

TEST_F(StructDesignPanel, KeepsTheHintsOfItsOwn) {
  TStrings hints;
  hints.Add("IdleHint=Was tun?");
  hints.Add("SelectTableHint=");
  hints.Add("Other=x");
  Panel->SetActionHints(hints);
  EXPECT_EQ(Panel->GetActionHints().Value("IdleHint"), "Was tun?");
  EXPECT_EQ(Panel->GetActionHints().Value("SelectTableHint"), "Click inside table to select it");
  EXPECT_EQ(Panel->GetActionHints().Count(), 5U);
  EXPECT_EQ(Panel->GetActionHint(), QStringLiteral("Was tun?"));
}

}  // namespace
}  // namespace tolvi
