#include <QListView>

#include "queryview.h"

namespace tolvi {
namespace {

const char* const orders =
    "Choose records where all of the following apply\n"
    " Total is greater than 500\n"
    " any of the following apply\n"
    "  City is equal to Berlin\n"
    "  City is equal to Paris\n"
    " Sale date is between 2026-01-01 and 2026-12-31\n";

TEST_F(QueryPanelView, BuildsTheSameQueryByKeysAndByMouse) {
  const std::string empty = Phrases();
  const auto choose = [this](const char* text) {
    Press(Qt::Key_Return);
    Enter(QLatin1String(text));
    Press(view->isRightToLeft() ? Qt::Key_Left : Qt::Key_Right);
  };
  const auto addByKeys = [&](const char* field, const char* op, const char* value) {
    Press(Qt::Key_Insert);
    choose(field);
    choose(op);
    choose(value);
  };
  addByKeys("Total", "is greater than", "500");
  Press(Qt::Key_Insert, Qt::ShiftModifier);
  choose("any");
  addByKeys("City", "is equal", "Berlin");
  addByKeys("City", "is equal", "Paris");
  Press(Qt::Key_Up);
  Press(Qt::Key_Up);
  ASSERT_EQ(panel->GetCurrentRow(), panel->RowByNum(2));
  Press(Qt::Key_Insert, Qt::AltModifier);
  choose("Sale date");
  choose("is between");
  choose("2026-01-01");
  choose("2026-12-31");
  ASSERT_EQ(Phrases(), orders);
  const std::string sql = SQL();
  Settle();

  // Back to the start, and forward again.
  const std::size_t steps = view->GetEditor()->GetUndoCount();
  for (std::size_t i = 0; i < steps; ++i) Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Phrases(), empty);
  for (std::size_t i = 0; i < steps; ++i) Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Phrases(), orders);

  panel->ClearRows();
  Settle();
  const auto fill = [&](int row, const char* field, const char* op, const char* value) {
    ClickLabel(row, "field", QLatin1String(field));
    ClickLabel(row, "operator", QLatin1String(op));
    ClickLabel(row, "value1", QLatin1String(value));
  };
  Click(view->GetAddRowLabel());
  Settle();
  fill(1, "Total", "is greater than", "500");
  user::RightClick(view->GetAddRowLabel());
  Choose(pcAddBracket);
  ClickLabel(2, "linkWord", QStringLiteral("any"));
  for (const int row : {3, 4}) {
    Click(Row(2).GetButton());
    Choose(pcAddCondInside);
    fill(row, "City", "is equal", row == 3 ? "Berlin" : "Paris");
  }
  Click(view->GetAddRowLabel());
  Settle();
  fill(5, "Sale date", "is between", "2026-01-01");
  ClickLabel(5, "value2", QStringLiteral("2026-12-31"));
  EXPECT_EQ(Phrases(), orders);
  EXPECT_EQ(SQL(), sql);
  EXPECT_TRUE(errors.isEmpty());
}

TEST_F(QueryPanelView, CopiesRowsFromOneViewToAnother) {
  TFilterBracket& bracket = panel->AddBracket(panel->RootBracket());
  bracket.SetLinkType(fltNone);
  Add("Customers.City", "Equal", "Berlin", &bracket);
  TJQueryPanel other;
  other.SetDBStruct(model.get());
  other.SetActive(true);
  auto* otherView = new TJQueryPanelView(&window);
  otherView->SetQueryPanel(&other);
  otherView->setGeometry(0, 200, 600, 200);
  otherView->show();
  view->resize(600, 200);
  Settle();
  Click(Label(1, "linkWord"));
  PopupKey(Qt::Key_Escape);
  Press(Qt::Key_C, Qt::ControlModifier);
  otherView->setFocus();
  Settle();
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(other.SaveToText().substr(other.SaveToText().find("[Row")),
            panel->SaveToText().substr(panel->SaveToText().find("[Row")));
  ASSERT_NE(otherView->FocusedRow(), nullptr);
  EXPECT_EQ(otherView->FocusedRow()->GetSentence(), QStringLiteral("none of the following apply"));

  view->setFocus();
  Settle();
  Press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(panel->RootBracket().GetRowCount(), 0u);
  QApplication::clipboard()->setText(QStringLiteral("no rows"));
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(panel->RootBracket().GetRowCount(), 0u);
  delete otherView;
}

TEST_F(QueryPanelView, MovesRowsByDraggingAndByKeys) {
  TFilterRow& first = Add("Customers.City", "Equal", "A");
  TFilterBracket& bracket = panel->AddBracket(panel->RootBracket());
  TFilterRow& inner = Add("Customers.City", "Equal", "B", &bracket);
  TFilterRow& last = Add("Customers.City", "Equal", "C");
  Settle();
  const auto drag = [this](TFilterRow& row, TFilterRow& below, bool release = true) {
    TJRndBtn& button = view->RowWidget(row)->GetButton();
    TJRndBtn& target = view->RowWidget(below)->GetButton();
    QWindow* handle = window.windowHandle();
    const QPoint from = button.mapTo(&window, button.rect().center());
    const QPoint to = target.mapTo(&window, QPoint(target.width() / 2, target.height()));
    QTest::mousePress(handle, Qt::LeftButton, {}, from);
    QTest::mouseMove(handle, from + QPoint(0, QApplication::startDragDistance() + 1));
    QTest::mouseMove(handle, to);
    Settle();
    if (release) QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
    Settle();
  };
  drag(first, inner);
  EXPECT_EQ(first.GetRowID(), ".1.2");
  drag(bracket, inner);
  EXPECT_EQ(bracket.GetRowID(), ".1");
  drag(bracket, last);
  EXPECT_EQ(bracket.GetRowID(), ".2");

  auto* mark = view->viewport()->findChild<QWidget*>(QStringLiteral("insertMark"));
  drag(last, inner, false);
  EXPECT_TRUE(mark->isVisible());
  Press(Qt::Key_Escape);
  EXPECT_FALSE(mark->isVisible());
  QTest::mouseRelease(window.windowHandle(), Qt::LeftButton);
  EXPECT_EQ(last.GetRowID(), ".1");

  Click(view->RowWidget(last)->GetButton());
  PopupKey(Qt::Key_Escape);
  Press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(last.GetRowID(), ".2");
  Press(view->isRightToLeft() ? Qt::Key_Left : Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(last.GetRowID(), ".1.3");
  ASSERT_NE(view->FocusedRow(), nullptr);
  EXPECT_EQ(view->FocusedRow()->GetRow(), &last);
}

TEST_F(QueryPanelView, DragsUntilTheButtonIsReleasedOrGone) {
  for (int i = 0; i < 60; ++i) Add("Customers.City", "Equal", "A");
  Settle();
  const auto* mark = view->viewport()->findChild<QWidget*>(QStringLiteral("insertMark"));
  QWindow* handle = window.windowHandle();
  const auto drag = [&](const QPoint& to) {
    TJRndBtn& button = Row(2).GetButton();
    const QPoint from = button.mapTo(&window, button.rect().center());
    QTest::mousePress(handle, Qt::LeftButton, {}, from);
    QTest::mouseMove(handle, from + QPoint(0, QApplication::startDragDistance() + 1));
    QTest::mouseMove(handle, to);
    Settle();
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    return &button;
  };
  const std::string before = Phrases();
  TJRndBtn* button = drag(Row(5).mapTo(&window, QPoint(30, 0)));
  Press(Qt::Key_Delete);
  QMouseEvent right(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::RightButton, Qt::LeftButton, {});
  QApplication::sendEvent(button, &right);
  EXPECT_EQ(Phrases(), before);
  EXPECT_TRUE(mark->isVisible());
  panel->RootBracket().DeleteRow(1);
  Settle();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_FALSE(mark->isVisible());
  QTest::mouseRelease(handle, Qt::LeftButton);

  const int first = view->verticalScrollBar()->value();
  drag(QPoint(30, window.height() + 5));
  EXPECT_TRUE(QTest::qWaitFor([&] { return view->verticalScrollBar()->value() > first + 3 * Row(1).height(); }));
  delete view;
  view = nullptr;
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  QTest::mouseRelease(handle, Qt::LeftButton);
}

TEST_F(QueryPanelView, OpensMenusWithWhatIsPossible) {
  Add("Customers.City", "Equal", "A");
  Settle();
  Click(Row(1).GetButton());
  Settle();
  EXPECT_EQ(Menu().split(u'\n').mid(0, 11),
            QStringList({QStringLiteral("Add new &condition (after current)"),
                         QStringLiteral("Open new &bracket (after current)"),
                         QStringLiteral("!Add new &condition (inside current)"),
                         QStringLiteral("!Open new &bracket (inside current)"), QStringLiteral("-"),
                         QStringLiteral("Add custom condition"), QStringLiteral("-"), QStringLiteral("&Delete row"),
                         QStringLiteral("-"), QStringLiteral("&Enable/Disable row"), QStringLiteral("-")}));
  PopupKey(Qt::Key_Escape);
  Press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(Menu().startsWith(QStringLiteral("Add new &condition\nOpen new &bracket\nAdd custom condition\n-\n")));
  PopupKey(Qt::Key_Escape);
  Label(1, "value1").setFocus();
  Press(Qt::Key_2, Qt::ControlModifier);
  EXPECT_EQ(Row(1).GetSentence(), QStringLiteral("City is equal to <Param1: A>"));
  QContextMenuEvent event(QContextMenuEvent::Mouse, {}, Label(1, "value1").mapToGlobal(QPoint(3, 3)));
  QApplication::sendEvent(&Label(1, "value1"), &event);
  EXPECT_EQ(Menu(), QStringLiteral("Constant value\nParameter\n!Sub-query\n"));
  Choose(pcConstant);
  EXPECT_FALSE(static_cast<TFilterCond*>(panel->RowByNum(1))->GetValueIsParam(1));
}

TEST_F(QueryPanelView, KeepsItsActionsToWhatIsPossible) {
  const auto state = [this](TPanelCommand command) {
    const QAction& action = view->GetAction(command);
    return std::string(action.isEnabled() ? "on" : "off") + (action.isChecked() ? ", checked" : "");
  };
  EXPECT_EQ(state(pcUndo) + " " + state(pcDelete), "off off");
  Press(Qt::Key_Insert);
  EXPECT_EQ(state(pcUndo) + " " + state(pcDelete), "on on");
  EXPECT_EQ(state(pcEnable) + " " + state(pcConstant) + " " + state(pcParameter), "on, checked on, checked on");
  Press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(state(pcEnable), "on");
  Press(Qt::Key_Home);
  EXPECT_EQ(state(pcEnable) + " " + state(pcDelete), "off off") << "the root stays, with all its rows off";
  view->GetAddRowLabel().setFocus();
  EXPECT_EQ(state(pcEnable) + " " + state(pcAddCond), "off on");

  // An import that fails leaves nothing to click, but can be taken back.
  EXPECT_THROW(panel->ParseSQL("select"), EException);
  Settle();
  EXPECT_TRUE(view->Rows().empty());
  view->setFocus();
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), view->viewport()->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(view->viewport(), &event);
  EXPECT_EQ(Menu(), QStringLiteral("&Undo\n!&Redo\n"));
  PopupKey(Qt::Key_Escape);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(view->Rows().size(), 2u);
}

TEST_F(QueryPanelView, LeadsTheFocusThroughRowsAndOut) {
  TFilterBracket& bracket = panel->AddBracket(panel->RootBracket());
  Add("Customers.City", "Equal", "A", &bracket);
  QLineEdit after(&window);
  after.show();
  Settle();
  view->FocusRow(*panel->RowByNum(2), 0);
  for (const char* name : {"", "field", "operator", "value1"}) {
    Press(Qt::Key_Tab);
    EXPECT_TRUE(*name == '\0' ? Row(2).GetCheckBox()->hasFocus() : Label(2, name).hasFocus()) << name;
  }
  Press(Qt::Key_Tab);
  EXPECT_TRUE(view->GetAddRowLabel().hasFocus());
  Press(Qt::Key_Tab);
  EXPECT_TRUE(after.hasFocus());
  Press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_TRUE(view->GetAddRowLabel().hasFocus());
  Press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_TRUE(Label(2, "value1").hasFocus());

  panel->SetCurrentRow(panel->RowByNum(2));
  view->GetEditor()->SetCollapsed(bracket, true);
  Settle();
  EXPECT_EQ(view->GetRowWidgetCount(), 2u);
  EXPECT_EQ(panel->GetCurrentRow(), &bracket);
  Press(Qt::Key_Plus);
  EXPECT_EQ(view->GetRowWidgetCount(), 3u);

  // A click beside the words, too, makes the row the current one.
  Click(Row(1), {Row(1).width() / 2, Row(1).height() / 2});
  Press(Qt::Key_Delete);
  EXPECT_EQ(panel->RootBracket().GetRowCount(), 0u);
}

TEST_F(QueryPanelView, IsAListOfSentencesToScreenReaders) {
  Add("Customers.City", "Equal", "A").SetEnabled(false);
  Settle();
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(view);
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->childCount(), 3);
  QAccessibleInterface* row = list->child(1);
  EXPECT_EQ(row->text(QAccessible::Name), QStringLiteral("City is equal to A"));
  EXPECT_EQ(row->role(), QAccessible::ListItem);
  EXPECT_FALSE(row->state().checked);
  EXPECT_EQ(row->parent(), list);
  EXPECT_EQ(list->indexOfChild(row), 1);
  EXPECT_FALSE(list->child(0)->state().checked) << "the root has no check box";
  Add("Orders.Total", "Between", "");
  Settle();
  const auto told = [this](int number, const char* name) {
    QAccessibleInterface* label = QAccessible::queryAccessibleInterface(&Label(number, name));
    return label->text(QAccessible::Name) + u'=' + label->text(QAccessible::Value);
  };
  EXPECT_EQ(told(0, "linkWord"), QStringLiteral("Link word=all"));
  EXPECT_EQ(told(1, "field"), QStringLiteral("Field=City"));
  EXPECT_EQ(told(1, "operator"), QStringLiteral("Operator=is equal to"));
  EXPECT_EQ(told(1, "value1"), QStringLiteral("Value=A"));
  EXPECT_TRUE(told(2, "value2").startsWith(QStringLiteral("Value 2=")) && told(2, "value2").size() > 8);
}

TEST_F(QueryPanelView, SetsItsPartsInFontsOfTheirOwnOnOneLine) {
  Add("Customers.City", "Equal", "A");
  Settle();
  const int height = Row(1).height();
  const int size = view->fontInfo().pointSize();
  QFont large;
  large.setPointSize(2 * size);
  view->setProperty("fieldFont", large);
  Settle();
  EXPECT_GT(Row(1).height(), height * 3 / 2);
  EXPECT_EQ(Label(1, "operator").font(), view->font());
  TJRndBtn& button = Row(1).GetButton();
  for (const char* name : {"field", "operator", "value1"}) {
    const TDropDownLabel& label = Label(1, name);
    EXPECT_EQ(label.y() + label.GetBaseline(), button.y() + button.GetBaseline()) << name;
    EXPECT_TRUE(Row(1).rect().contains(label.geometry())) << name;
  }
  QFont italic;
  italic.setItalic(true);
  TQPAppearance other;
  other.SetOperatorFont(italic);
  other.SetValueFont(view->font());
  QFont explicitSize;
  explicitSize.setPointSize(QFont().pointSize());
  other.SetFieldFont(explicitSize);
  view->SetAppearance(other);
  view->setFont(large);
  Settle();
  EXPECT_TRUE(Label(1, "operator").font().italic() && Label(1, "operator").font().pointSize() == 2 * size);
  EXPECT_EQ(Label(1, "field").font().pointSize(), QFont().pointSize());
}

TEST_F(QueryPanelView, OffersFieldsByGroupsInTheModelsOrder) {
  FieldOf(*model, "Orders.Total").SetGroup(model->FieldGroups().AddGroup("Money"));
  Add("Customers.City", "Equal", "A");
  for (const bool rootFirst : {false, true}) {
    model->SetRootFieldsFirst(rootFirst);
    Settle();
    Click(Label(1, "field"));
    Settle();
    ASSERT_NE(Popup(), nullptr);
    const QModelIndex top = Popup()->findChild<QListView*>()->model()->index(0, 0);
    EXPECT_EQ(top.data().toString() == QStringLiteral("Money"), !rootFirst);
    PopupKey(Qt::Key_Escape);
  }
}

TEST_F(QueryPanelView, KeepsWidgetsForTheRowsInSightOnly) {
  for (int i = 0; i < 1000; ++i) Add("Customers.City", "Equal", "A");
  int told = 0;
  panel->OnChange = [&told](TJQueryPanel&) { ++told; };
  Settle();
  EXPECT_EQ(view->Rows().size(), 1001u);
  EXPECT_LT(view->GetRowWidgetCount(), 60u);
  Press(Qt::Key_End);
  EXPECT_EQ(panel->GetCurrentRow(), panel->RowByNum(1000));
  EXPECT_TRUE(Row(1000).isVisible());
  EXPECT_GT(view->verticalScrollBar()->value(), 0);
  EXPECT_LT(view->GetRowWidgetCount(), 60u);
  EXPECT_EQ(told, 0);
}

TEST_F(QueryPanelView, FollowsWhatAProgramDoesMeanwhile) {
  TFilterRow& typed = Add("Customers.City", "Equal", "abc");
  Settle();
  const int narrow = Row(1).GetButton().width();
  Click(Label(1, "value1"));
  Settle();
  Type(QStringLiteral("new"));
  for (int i = 0; i < 120; ++i) panel->AddCondition(panel->RootBracket(), FieldOf(*model, "Customers.City"));
  while (typed.MoveDown()) {
  }
  Settle();
  ASSERT_NE(Popup(), nullptr) << "what is being typed stays";
  PopupKey(Qt::Key_Return);
  EXPECT_TRUE(Phrases().ends_with(" City is equal to new\n")) << Phrases();
  EXPECT_GT(Row(static_cast<int>(panel->RootBracket().GetRowCount())).GetButton().width(), narrow);

  // Another view takes the panel over.
  TJQueryPanelView other(&window);
  other.SetQueryPanel(panel.get());
  EXPECT_EQ(view->GetQueryPanel(), nullptr);
  panel->ClearRows();
  Settle();
  EXPECT_EQ(other.Rows().size(), 1u);
  EXPECT_EQ(view->GetRowWidgetCount(), 0u);
}

TEST_F(QueryPanelView, OutlivesPanelAndModelAndIsDestroyedByHandlers) {
  Add("Customers.City", "Equal", "A");
  Settle();
  Click(Label(1, "value1"));
  Settle();
  model.reset();
  Settle();
  EXPECT_EQ(view->GetRowWidgetCount(), 0u);
  model = OrdersModel();
  panel->SetDBStruct(model.get());
  panel->SetActive(true);
  Add("Customers.City", "Equal", "A");
  Settle();
  EXPECT_EQ(view->GetRowWidgetCount(), 2u);
  panel.reset();
  Settle();
  EXPECT_EQ(view->GetRowWidgetCount(), 0u);
  EXPECT_FALSE(view->GetAddRowLabel().isVisible());
  Press(Qt::Key_Insert);

  panel = std::make_unique<TJQueryPanel>();
  panel->SetDBStruct(model.get());
  panel->SetActive(true);
  view->SetQueryPanel(panel.get());
  view->setFocus();
  Settle();
  panel->OnChange = [this](TJQueryPanel&) {
    delete view;
    view = nullptr;
    panel.release()->OnChange = nullptr;
  };
  std::unique_ptr<TJQueryPanel> owned(panel.get());
  Press(Qt::Key_Insert);
  EXPECT_EQ(view, nullptr);
}

TEST_F(QueryPanelView, MayBeDestroyedOrGetAnotherPanelWhileAHostEdits) {
  FieldOf(*model, "Customers.City").SetEditType(etCustom);
  TJQueryPanel next;
  next.SetDBStruct(model.get());
  next.SetActive(true);
  Add("Customers.City", "Equal", "A");
  int changes = 0;
  panel->OnChange = [&changes](TJQueryPanel&) { ++changes; };
  view->OnCustomEdit = [&next](TJQueryPanelView& sender, TFilterCond& condition, int index) {
    condition.SetValue(index, "B");
    sender.SetQueryPanel(&next);
  };
  Settle();
  Click(Label(1, "value1"));
  Settle();
  EXPECT_EQ(changes, 1);
  panel->AddBracket(panel->RootBracket());
  EXPECT_EQ(changes, 2) << "the old panel's events come again";
  Press(Qt::Key_Insert);
  EXPECT_TRUE(view->GetEditor()->CanUndo());

  view->SetQueryPanel(panel.get());
  view->OnCustomEdit = [this](TJQueryPanelView&, TFilterCond&, int) { delete std::exchange(view, nullptr); };
  Settle();
  Click(Label(1, "value1"));
  Settle();
  EXPECT_EQ(view, nullptr);
}

}  // namespace
}  // namespace tolvi
