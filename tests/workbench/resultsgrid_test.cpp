#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>

#include "apps/workbench/results/resultgrid.h"
#include "apps/workbench/results/resultsort.h"
#include "apps/workbench/results/valuedlg.h"
#include "tests/ui/uitest.h"
#include "workbench/results.h"

namespace tolvi {
namespace {

using namespace results;

constexpr std::atomic<bool> go{false};

std::vector<std::uint32_t> Order(const TResultRows& rows, bool isDescending = false,
                                 const QLocale& locale = QLocale::C) {
  return *SortedOrder(rows, 0, isDescending, locale, go);
}

TEST(ResultSort, ComparesValuesByWhatTheyAre) {
  const auto numbers = Rows({"n"}, {{svNumber, "10"},
                                    {svNumber, "9.5"},
                                    {svNull, ""},
                                    {svNumber, "-3"},
                                    {svNumber, "1e2"},
                                    {svNumber, "9007199254740993"},
                                    {svNumber, "9007199254740992"},
                                    {svNumber, "0.10000000000000000001"},
                                    {svNumber, "0.1"},
                                    {svNumber, "-9007199254740993"},
                                    {svNumber, "-9007199254740992.0"}});
  EXPECT_EQ(Order(*numbers), (std::vector<std::uint32_t>{9, 10, 3, 8, 7, 1, 0, 4, 6, 5, 2}));
  EXPECT_EQ(Order(*numbers, true), (std::vector<std::uint32_t>{5, 6, 4, 0, 1, 7, 8, 3, 10, 9, 2}));

  // Equal values keep their order in both directions; NULL is last in both.
  const auto texts = Rows(
      {"t"}, {{svText, "pear"}, {svNull, ""}, {svText, "Zoe"}, {svText, "apple"}, {svText, "pear"}, {svText, "Äpfel"}});
  EXPECT_EQ(Order(*texts, false, QLocale(QLocale::German)), (std::vector<std::uint32_t>{5, 3, 0, 4, 2, 1}));
  EXPECT_EQ(Order(*texts, true, QLocale(QLocale::German)), (std::vector<std::uint32_t>{2, 0, 4, 3, 5, 1}));
  EXPECT_EQ(Order(*texts), (std::vector<std::uint32_t>{3, 0, 4, 2, 5, 1})) << "folded where there is no language";

  const auto mixed = Rows({"m"}, {{svBytes, "\x01"},
                                  {svText, "5"},
                                  {svDateTime, "2021-01-01 10:00:00"},
                                  {svDate, "2021-01-01"},
                                  {svBoolean, "true"},
                                  {svBoolean, "false"},
                                  {svNumber, "7"}});
  EXPECT_EQ(Order(*mixed), (std::vector<std::uint32_t>{6, 5, 4, 3, 2, 1, 0}));
  EXPECT_EQ(SortedOrder(*texts, 0, false, QLocale(), std::atomic<bool>(true)), std::nullopt);
}

TEST(CellText, WritesValuesInTheMannerOfALocale) {
  const TCellText german(QLocale(QLocale::German, QLocale::Germany)), arabic(QLocale(QLocale::Arabic, QLocale::Egypt));
  const struct {
    TCellView Cell;
    const char *Line, *Whole;
  } cases[] = {
      {{svNumber, "-12345.6700"}, "-12345,6700", "-12345,6700"},
      {{svNull, ""}, "NULL", ""},
      {{svBoolean, "true"}, "Yes", "Yes"},
      {{svDate, "2021-02-03"}, "03.02.2021", "03.02.2021"},
      {{svDateTime, "2021-02-03 04:05:06.7"}, "03.02.2021 04:05:06.7", "03.02.2021 04:05:06.7"},
      {{svDate, ""}, "", ""},
      {{svText, "one\r\ntwo\tthree"}, "one↵two three", "one\r\ntwo\tthree"},
      {{svBytes, "\x01\xff"}, "2 bytes", "0x01ff"},
      {{svBytes, "x"}, "1 byte", "0x78"},
  };
  for (const auto& [cell, line, whole] : cases) {
    EXPECT_EQ(german.Line(cell).toStdString(), line);
    EXPECT_EQ(german.Whole(cell).toStdString(), whole);
  }
  EXPECT_EQ(arabic.Line({svNumber, "1.5"}).toStdString(), "١٫٥");
  const std::string lots(5000, 'x');
  EXPECT_EQ(german.Line({svText, lots}).size(), 301);
  EXPECT_EQ(german.Whole({svText, lots}).size(), 5000);
}

TEST(CellText, GivesTheNumbersOfAColumnTheSameDecimals) {
  const auto shown = [](TFieldType type, std::initializer_list<std::pair<TSqlValueKind, const char*>> cells) {
    const auto column = Rows({"c"}, cells, {{type}});
    const TCellText german(QLocale(QLocale::German, QLocale::Germany));
    std::string lines;
    for (std::size_t i = 0; i < column->GetRowCount(); ++i) {
      lines += german.Line(column->Cell(i, 0), ShownDecimals(*column, 0)).toStdString() + " ";
    }
    return lines;
  };
  EXPECT_EQ(shown(ftCurrency, {{svNumber, "47818.9"}, {svNumber, "-3"}, {svNull, ""}, {svNumber, "1."}}),
            "47818,90 -3,00 NULL 1,00 ");
  EXPECT_EQ(shown(ftCurrency, {{svNumber, "1.125"}, {svNumber, "2.5"}}), "1,125 2,500 ");
  EXPECT_EQ(shown(ftBCD, {{svNumber, "4"}, {svNumber, "4.5"}, {svNumber, "1e3"}, {svNumber, "NaN"}, {svText, "n/a"}}),
            "4,0 4,5 1e3 NaN n/a ");
  EXPECT_EQ(shown(ftBCD, {{svNumber, "3.33333333"}, {svNumber, "4.5"}}), "3,33333333 4,5 ") << "nothing is cut";
  EXPECT_EQ(shown(ftFloat, {{svNumber, "0.25"}, {svNumber, "4"}}), "0,25 4 ");
}

/// 200 customers: a number, a name that comes twice, a text or NULL.
std::shared_ptr<TResultRows> Customers(int count = 200) {
  TRowBlock block(3);
  for (int i = 0; i < count; ++i) {
    block.Add(svNumber, std::to_string(count - i));
    block.Add(svText, "name " + std::to_string(i / 2 + 100'000));
    i % 3 == 0 ? block.Add(svNull, "") : block.Add(svText, "say \"" + std::to_string(i) + "\"");
  }
  auto rows = std::make_shared<TResultRows>(std::vector<std::string>{"Number", "Name", "Remark"});
  rows->Append(std::move(block));
  return rows;
}

class ResultGrid : public TUiTest {
 protected:
  void SetUp() override {
    TUiTest::SetUp();
    grid = &Place(new TResultGrid(nullptr));
    grid->resize(500, 300);
    grid->OnMessage = [this](const QString& words) { messages << words; };
    Show(Customers());
  }

  void Show(std::shared_ptr<TResultRows> rows) {
    grid->SetRows(std::move(rows));
    grid->Model().SetComplete();
    QCoreApplication::processEvents();
  }

  QString Text(int row, int column) { return grid->model()->index(row, column).data().toString(); }

  void ClickHead(int column) {
    QHeaderView& head = *grid->horizontalHeader();
    const int x = head.sectionViewportPosition(column) + head.sectionSize(column) / 2;
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, head.viewport()->mapTo(&window, QPoint(x, 5)));
    QCoreApplication::processEvents();
  }

  static void Choose(QMenu& menu, const char* name) {
    QAction* action = menu.findChild<QAction*>(QLatin1String(name));
    ASSERT_NE(action, nullptr);
    ASSERT_TRUE(action->isEnabled());
    action->trigger();
  }

  static QString Clipboard() { return QGuiApplication::clipboard()->text(); }

  TResultGrid* grid = nullptr;
  QStringList messages;
};

TEST_F(ResultGrid, KeepsTheRulesOfModelsWhileRowsComeAndAreSorted) {
  TResultModel model;
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  const auto rows = std::make_shared<TResultRows>(std::vector<std::string>{"a"});
  model.SetRows(rows);
  model.sort(0, Qt::AscendingOrder);
  for (const char* text : {"3", "1", "2"}) {
    TRowBlock block(1);
    block.Add(svNumber, text);
    model.Append(std::move(block));
  }
  const QPersistentModelIndex three(model.index(0, 0));
  EXPECT_TRUE(model.GetOrder()->empty()) << "sorting waits for the last row";
  model.SetComplete();
  EXPECT_EQ(*model.GetOrder(), (std::vector<std::uint32_t>{1, 2, 0}));
  EXPECT_EQ(three.row(), 2);
  const auto shared = model.GetOrder();
  model.sort(0, Qt::DescendingOrder);
  EXPECT_EQ(three.row(), 0);
  EXPECT_EQ(shared->front(), 1U) << "an order that was given out stays";
  model.sort(-1, Qt::AscendingOrder);
  EXPECT_TRUE(model.GetOrder()->empty());
  model.SetRows(nullptr);
}

TEST_F(ResultGrid, SortsByClicksOnAHeadAndTheThirdBringsTheFirstOrderBack) {
  EXPECT_EQ(Text(0, 0), QStringLiteral("200"));
  ClickHead(0);
  EXPECT_EQ(Text(0, 0), QStringLiteral("1"));
  EXPECT_EQ(Text(9, 0), QStringLiteral("10"));
  ClickHead(0);
  EXPECT_EQ(Text(0, 0), QStringLiteral("200"));
  EXPECT_EQ(grid->Model().GetSortOrder(), Qt::DescendingOrder);
  ClickHead(0);
  EXPECT_EQ(grid->Model().GetSortColumn(), -1);
  EXPECT_TRUE(grid->Model().GetOrder()->empty());
}

TEST_F(ResultGrid, SortsManyRowsInTheBackgroundAndTakesTheLastWish) {
  Show(Customers(100'000));
  grid->selectAll();
  QVector<bool> changes;
  grid->Model().OnSortingChange = [&] { changes << grid->Model().IsSorting(); };
  grid->Model().sort(1, Qt::DescendingOrder);
  EXPECT_TRUE(grid->Model().IsSorting());
  EXPECT_EQ(Text(0, 0), QStringLiteral("100000")) << "the old order until the new one is there";
  grid->Model().sort(0, Qt::AscendingOrder);
  ASSERT_TRUE(Wait([&] { return !grid->Model().IsSorting(); }));
  EXPECT_EQ(Text(0, 0), QStringLiteral("1"));
  EXPECT_EQ(changes, (QVector<bool>{true, false, true, false}));
  grid->Model().sort(2, Qt::AscendingOrder);
  Show(Customers(10));
  EXPECT_EQ(grid->Model().rowCount(), 10) << "other rows end a sort";
}

TEST_F(ResultGrid, KeepsWidthsAndSortingForTheSameColumns) {
  ClickHead(0);
  grid->horizontalHeader()->resizeSection(1, 177);
  grid->hideColumn(2);
  Show(Customers(50));
  EXPECT_EQ(grid->columnWidth(1), 177);
  EXPECT_TRUE(grid->isColumnHidden(2));
  EXPECT_EQ(Text(0, 0), QStringLiteral("1"));
  Show(Rows({"Other", "Name", "Remark"}, {{svNumber, "2"}, {svText, "b"}, {svNull, ""}}));
  EXPECT_NE(grid->columnWidth(1), 177);
  EXPECT_FALSE(grid->isColumnHidden(2));
  EXPECT_EQ(grid->Model().GetSortColumn(), -1);
}

TEST_F(ResultGrid, MeasuresWidthsOnRowsUnlessTheUserGaveThem) {
  const std::vector<std::string> names{"Id", "Word"};
  const auto wide = [&] { return Rows(names, {{svText, "a long text in it"}, {svText, "a longer text in that one"}}); };
  Show(std::make_shared<TResultRows>(names));
  const int narrow = grid->columnWidth(1);
  QHeaderView& head = *grid->horizontalHeader();
  const auto mouse = [&](int x) { return head.viewport()->mapTo(&window, QPoint(x, 5)); };
  const int border = head.sectionViewportPosition(0) + head.sectionSize(0) - 1;
  QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, mouse(border));
  QTest::mouseMove(window.windowHandle(), mouse(border + 10));
  QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, mouse(border + 10));
  const int dragged = grid->columnWidth(0);
  ASSERT_EQ(dragged, border + 11);
  Show(wide());
  EXPECT_EQ(grid->columnWidth(0), dragged);
  const int fitted = grid->columnWidth(1);
  EXPECT_GT(fitted, 2 * narrow);
  // Measured on rows, they stay: without rows and with shorter ones.
  Show(std::make_shared<TResultRows>(names));
  EXPECT_EQ(grid->columnWidth(1), fitted);
  Show(Rows(names, {{svText, "a"}, {svText, "b"}}));
  EXPECT_EQ(grid->columnWidth(1), fitted);
  Choose(*grid->MakeColumnMenu(0), "results.fitColumns");
  EXPECT_LT(grid->columnWidth(0), dragged);
  EXPECT_LT(grid->columnWidth(1), fitted);
}

TEST_F(ResultGrid, ShowsMoneyWithItsDecimalsAndCopiesWhatTheDatabaseGave) {
  const auto rows =
      std::make_shared<TResultRows>(std::vector<std::string>{"Sum"}, TKnownColumns{{ftCurrency, "Total"}});
  grid->SetRows(rows);
  for (const char* text : {"12.5", "3", "0.125"}) {
    TRowBlock block(1);
    block.Add(svNumber, text);
    grid->Model().Append(std::move(block));
    EXPECT_EQ(Text(0, 0).toStdString(), text == std::string_view("0.125") ? "12.500" : "12.50");
  }
  grid->Model().SetComplete();
  EXPECT_EQ(grid->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Total"));
  grid->selectAll();
  grid->Copy(false);
  EXPECT_EQ(Clipboard().toStdString(), "12.5\n3\n0.125\n");
}

TEST_F(ResultGrid, CopiesWhatIsSelectedAsTextAndHtml) {
  grid->selectionModel()->select(QItemSelection(grid->Model().index(0, 1), grid->Model().index(1, 2)),
                                 QItemSelectionModel::Select);
  grid->setFocus();
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard().toStdString(), "name 100000\t\nname 100000\t\"say \"\"1\"\"\"\n");
  grid->selectionModel()->select(grid->Model().index(3, 0), QItemSelectionModel::Select);
  Key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Clipboard().toStdString(),
            "Number\tName\tRemark\n\tname 100000\t\n\tname 100000\t\"say \"\"1\"\"\"\n197\t\t\n");
  const QString html = QGuiApplication::clipboard()->mimeData()->html();
  EXPECT_TRUE(html.contains(QLatin1String("<th>Remark</th></tr><tr><td></td><td>name 100000</td>")))
      << html.toStdString();
  EXPECT_TRUE(html.contains(QLatin1String("<td align=\"right\">197</td>"))) << html.toStdString();

  // In the order of the screen, without what is hidden.
  ClickHead(0);
  grid->hideColumn(1);
  grid->horizontalHeader()->moveSection(2, 0);
  grid->selectAll();
  grid->Copy(false);
  EXPECT_TRUE(Clipboard().startsWith(QLatin1String("\"say \"\"199\"\"\"\t1\n\t2\n")))
      << Clipboard().left(40).toStdString();
  EXPECT_EQ(Clipboard().count(u'\n'), 200);
}

TEST_F(ResultGrid, AsksBeforeItCopiesVeryManyCellsAndCanBeStopped) {
  Show(Customers(100'000));
  grid->selectAll();
  QGuiApplication::clipboard()->setText(QStringLiteral("before"));
  const auto answer = [this](const QString& button) {
    grid->Copy(false);
    auto* box = grid->findChild<QMessageBox*>(QStringLiteral("results.copyQuestion"));
    ASSERT_NE(box, nullptr);
    for (QAbstractButton* one : box->buttons()) {
      if (one->text() == button) return one->click();
    }
    FAIL() << "no such button";
  };
  answer(QStringLiteral("Cancel"));
  EXPECT_FALSE(grid->IsCopying());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  answer(QStringLiteral("&Copy"));
  ASSERT_TRUE(grid->IsCopying());
  EXPECT_TRUE(messages.last().startsWith(QLatin1String("Copying: "))) << messages.last().toStdString();
  QTest::keyClick(grid, Qt::Key_Escape);
  EXPECT_FALSE(grid->IsCopying());
  EXPECT_EQ(Clipboard().toStdString(), "before");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  answer(QStringLiteral("&Copy"));
  ASSERT_TRUE(Wait([this] { return !grid->IsCopying(); }));
  EXPECT_EQ(Clipboard().count(u'\n'), 100'000);
  EXPECT_EQ(messages.last().toStdString(), "Copied 100,000 rows");
}

TEST_F(ResultGrid, ShowsAValueWhole) {
  grid->setFocus();
  grid->setCurrentIndex(grid->Model().index(1, 2));
  for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return}) {
    Key(key);
    auto* dialog = grid->findChild<TValueDlg*>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Remark"));
    EXPECT_EQ(dialog->findChild<QPlainTextEdit*>()->toPlainText(), QStringLiteral("say \"1\""));
    dialog->findChild<QPushButton*>(QStringLiteral("results.value.copy"))->click();
    EXPECT_EQ(Clipboard(), QStringLiteral("say \"1\""));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
}

TEST_F(ResultGrid, OffersWhatAColumnCanDo) {
  Choose(*grid->MakeColumnMenu(0), "results.sortUp");
  EXPECT_EQ(Text(0, 0), QStringLiteral("1"));
  Choose(*grid->MakeColumnMenu(0), "results.sortNone");
  EXPECT_EQ(Text(0, 0), QStringLiteral("200"));
  Choose(*grid->MakeColumnMenu(1), "results.copyName");
  EXPECT_EQ(Clipboard(), QStringLiteral("Name"));
  grid->setColumnWidth(1, 400);
  Choose(*grid->MakeColumnMenu(1), "results.fitColumn");
  EXPECT_LT(grid->columnWidth(1), 400);
  Choose(*grid->MakeColumnMenu(1), "results.hideColumn");
  EXPECT_TRUE(grid->isColumnHidden(1));
  Choose(*grid->MakeColumnMenu(2), "results.hideColumn");
  const auto menu = grid->MakeColumnMenu(0);
  EXPECT_FALSE(menu->findChild<QAction*>(QStringLiteral("results.hideColumn"))->isEnabled()) << "one must stay";
  const QList<QAction*> shown = menu->findChildren<QAction*>(QStringLiteral("results.showColumn"));
  ASSERT_EQ(shown.size(), 3);
  EXPECT_FALSE(shown[1]->isChecked());
  shown[1]->trigger();
  EXPECT_FALSE(grid->isColumnHidden(1));
}

}  // namespace
}  // namespace tolvi
