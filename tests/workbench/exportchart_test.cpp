#include <QAccessible>
#include <QApplication>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QGraphicsTextItem>
#include <QImage>
#include <QLabel>
#include <QLineSeries>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>

#include <gtest/gtest.h>

#include "apps/workbench/export/chartpane.h"
#include "apps/workbench/export/printrows.h"
#include "resultdata.h"
#include <tolvi/foundation/errors.h>

namespace tolvi {
namespace {

TEST(ChartData, TellsWhatItLeavesOutAndPutsTogether) {
  const auto rows = ResultOf({"Town", "Sum"}, {{{svText, "Linz"}, {svNumber, "1.5"}},
                                               {{svText, "Wien"}, {svNull, ""}},
                                               {{svNull, ""}, {svNumber, "-2"}},
                                               {{svText, "Graz"}, {svText, "3"}}});
  const TChartData bars = MakeChartData({*rows, {2, 0, 1, 3}}, 0, 1, chBar);
  EXPECT_EQ(bars.Values, (std::vector<double>{-2, 1.5}));
  EXPECT_EQ(bars.Labels, (QStringList{QStringLiteral("NULL"), QStringLiteral("Linz")}));
  EXPECT_EQ(
      bars.Told,
      QStringLiteral("%n rows without a number are left out.").replace(QStringLiteral("%n"), QStringLiteral("2")));

  const auto many = CountedResult(1001);
  const TChartData first = MakeChartData({*many, {}}, 0, 1, chBar);
  EXPECT_EQ(first.Values.size(), MaxBars);
  EXPECT_EQ(first.Told, QStringLiteral("The first 60 of 1,001 rows."));
  const TChartData line = MakeChartData({*many, {}}, 0, 1, chLine);
  EXPECT_EQ(line.RowsPerPoint, 3U);
  EXPECT_EQ(line.Values.size(), 334U);
  EXPECT_EQ(line.Values[1], 4);
  EXPECT_EQ(line.Values.back(), 999.5);
  EXPECT_EQ(line.Told, QStringLiteral("1,001 rows: each point is the average of 3 rows that follow each other."));
}

TEST(ChartData, ColumnsToBeginWithAreThoseThatMakeSense) {
  const auto rows = ResultOf({"ID", "Paid", "Day", "Sum"},
                             {{{svNumber, "7"}, {svBoolean, "true"}, {svNull, ""}, {svNull, ""}},
                              {{svNumber, "8"}, {svNull, ""}, {svDate, "2025-01-31"}, {svNumber, "2"}}});
  EXPECT_EQ(SuggestedColumns(*rows).X, 2);
  EXPECT_EQ(SuggestedColumns(*rows).Y, 3);
  EXPECT_EQ(NumberColumns(*rows), (std::vector<std::size_t>{0, 3}));
  const auto numbers = ResultOf({"A", "B"}, {{{svNumber, "1"}, {svNumber, "2"}}});
  EXPECT_EQ(SuggestedColumns(*numbers).X, 0);
  EXPECT_EQ(SuggestedColumns(*numbers).Y, 1);
  EXPECT_EQ(SuggestedColumns(*ResultOf({"A"}, {{{svText, "x"}}})).Y, -1);

  // Numbers that count something go before keys, whether a key is known as one or only called so.
  const auto valuesOf = [](std::vector<std::string> names, TKnownColumns known = {}) {
    TResultRows numbers(std::move(names), std::move(known));
    TRowBlock block(numbers.Columns().size());
    block.Add(svText, "x");
    for (std::size_t i = 1; i < numbers.Columns().size(); ++i) block.Add(svNumber, "1");
    numbers.Append(std::move(block));
    return SuggestedColumns(numbers).Y;
  };
  for (const char* key : {"id", "ID", "OrderID", "order_id", "Order no", "OrderNo", "Key"}) {
    EXPECT_EQ(valuesOf({"T", "Sum", key}), 1) << key;
  }
  for (const char* value : {"Paid", "PAID", "Casino", "Turnover (€)", "Nose", ""}) {
    EXPECT_EQ(valuesOf({"T", "Sum", value}), 2) << value;
  }
  EXPECT_EQ(valuesOf({"T", "a", "b"}, {{}, {}, {ftInteger, "Customer", true}}), 1);
  EXPECT_EQ(valuesOf({"T", "ID"}), 1) << "rather a key than nothing";
}

class ChartPane : public testing::Test {
 protected:
  void SetUp() override {
    pane.resize(600, 400);
    pane.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&pane));
  }
  template <typename T>
  T* Child(const char* name) {
    return pane.findChild<T*>(QLatin1String(name));
  }
  QChart* Drawn() {
    QTest::qWait(60);
    return Child<QChartView>("chart.view")->chart();
  }

  TChartPane pane;
};

TEST_F(ChartPane, DrawsTheColumnsThatAreChosenByKeys) {
  const auto rows = ResultOf({"Town", "A", "B"}, {{{svText, "Linz"}, {svNumber, "1"}, {svNumber, "10"}},
                                                  {{svText, "Linz"}, {svNumber, "2"}, {svNumber, "30"}}});
  pane.SetRows(rows);
  EXPECT_EQ(Drawn()->series().size(), 1);
  EXPECT_EQ(Child<QChartView>("chart.view")->accessibleDescription().left(27),
            QStringLiteral("Bars: B by Town. 2 values, "));
  QTest::keyClick(Child<QComboBox>("chart.y"), Qt::Key_Up);
  QTest::keyClick(Child<QComboBox>("chart.kind"), Qt::Key_Down);
  EXPECT_EQ(Drawn()->series().constFirst()->type(), QAbstractSeries::SeriesTypeLine);
  EXPECT_EQ(pane.GetY(), 1);
  EXPECT_EQ(pane.GetData().Values, (std::vector<double>{1, 2}));
  // The same columns again: what was chosen stays. Others: it does not.
  pane.SetRows(ResultOf(rows->Columns(), {{{svText, "Graz"}, {svNumber, "1"}, {svNumber, "5"}}}));
  EXPECT_EQ(pane.GetY(), 1);
  pane.SetRows(ResultOf({"Town", "C", "D"}, {{{svText, "Graz"}, {svNumber, "1"}, {svNumber, "5"}}}));
  EXPECT_EQ(pane.GetY(), 2);
  pane.SetRows(CountedResult(3), {2, 1, 0});
  EXPECT_EQ(pane.GetY(), 1);
  EXPECT_EQ(pane.GetData().Values, (std::vector<double>{2, 1, 0}));
}

TEST_F(ChartPane, SaysWhyThereIsNoChart) {
  pane.SetRows(nullptr);
  EXPECT_EQ(Drawn()->series().size(), 0);
  EXPECT_EQ(Child<QLabel>("chart.told")->text(), QStringLiteral("There are no rows to draw."));
  EXPECT_FALSE(Child<QPushButton>("chart.copy")->isEnabled());
  pane.SetRows(ResultOf({"A"}, {{{svText, "x"}}}));
  EXPECT_EQ(Drawn()->series().size(), 0);
  EXPECT_EQ(Child<QLabel>("chart.told")->text(), QStringLiteral("There is no column of numbers to draw."));
}

TEST_F(ChartPane, ShowsTextsAsTheyAre) {
  const std::string label = "<img src=x> & co";
  const QStringList texts{QString::fromStdString(label), QStringLiteral("&lt;"), QStringLiteral("<b>Town</b>"),
                          QStringLiteral("A & B"), QStringLiteral("1 < 2")};
  for (const TChartKind kind : {chBar, chLine}) {
    pane.SetKind(kind);
    pane.SetRows(ResultOf(
        {"<b>Town</b>", "A & B"},
        {{{svText, label}, {svNumber, "1"}}, {{svText, "&lt;"}, {svNumber, "2"}}, {{svText, "c"}, {svNumber, "3"}}}));
    pane.SetTitle(QStringLiteral("1 < 2"));
    QChart& chart = *Drawn();
    QStringList seen;
    for (const QGraphicsItem* item : Child<QChartView>("chart.view")->scene()->items()) {
      if (const auto* text = dynamic_cast<const QGraphicsTextItem*>(item)) seen << text->toPlainText();
    }
    for (const QString& text : texts) EXPECT_TRUE(seen.contains(text)) << text.toStdString();
    if (kind == chBar) {
      Q_EMIT static_cast<QBarSeries*>(chart.series().constFirst())->barSets().constFirst()->hovered(true, 0);
    } else {
      Q_EMIT static_cast<QLineSeries*>(chart.series().constFirst())->hovered(QPointF(0, 1), true);
    }
    QTextDocument tip;
    tip.setHtml(QToolTip::text());
    EXPECT_TRUE(Qt::mightBeRichText(QToolTip::text())) << "else the signs that stand for others would be seen";
    EXPECT_EQ(tip.toPlainText().toStdString(), label + ": 1");
    QToolTip::hideText();
  }
}

TEST_F(ChartPane, SaysWhenItsRowsAreNotAll) {
  const auto rows = CountedResult(100);
  int asked = 0;
  pane.OnReadAll = [&asked] { ++asked; };
  pane.SetRows(rows, {}, exBeginning);
  Drawn();
  auto* told = Child<QLabel>("chart.told");
  auto* readAll = Child<QPushButton>("chart.readall");
  const QString words = QStringLiteral("Only the first 100 rows have been read.");
  EXPECT_EQ(told->text(), words + QStringLiteral(" The first 60 of 100 rows."));
  EXPECT_TRUE(Child<QChartView>("chart.view")->accessibleDescription().contains(words));
  ASSERT_TRUE(readAll->isVisible());
  QTest::mouseClick(readAll, Qt::LeftButton);
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(readAll->hasFocus());
  pane.SetKind(chLine);
  pane.SetRows(rows, {}, exMost);
  Drawn();
  EXPECT_EQ(told->text(), words);
  EXPECT_FALSE(readAll->isVisible()) << "a run reads no more";
  EXPECT_TRUE(Child<QChartView>("chart.view")->hasFocus()) << "and not what comes next in the window";
  pane.SetRows(rows);
  Drawn();
  EXPECT_FALSE(told->isVisible() || readAll->isVisible());
  pane.SetRows(nullptr, {}, exBeginning);
  Drawn();
  EXPECT_FALSE(readAll->isVisible());
}

TEST_F(ChartPane, GivesPictures) {
  pane.SetRows(CountedResult(20));
  pane.SetTitle(QStringLiteral("<Title>"));
  Drawn();
  QTest::mouseClick(Child<QPushButton>("chart.copy"), Qt::LeftButton);
  EXPECT_GT(QApplication::clipboard()->image().width(), 300);
  const QTemporaryDir folder;
  pane.SaveTo(folder.filePath(QStringLiteral("a.png")));
  EXPECT_GT(QImage(folder.filePath(QStringLiteral("a.png"))).width(), pane.ToImage().width() * 19 / 10);
  pane.SaveTo(folder.filePath(QStringLiteral("a.svg")));
  QFile drawing(folder.filePath(QStringLiteral("a.svg")));
  ASSERT_TRUE(drawing.open(QIODevice::ReadOnly));
  EXPECT_TRUE(drawing.readAll().contains("&lt;Title&gt;"));
  EXPECT_THROW(pane.SaveTo(folder.filePath(QStringLiteral("a.gif"))), EFileError);
  EXPECT_THROW(pane.SaveTo(folder.filePath(QStringLiteral("none/a.png"))), EFileError);
}

TEST(PrintRows, SpreadsRowsAndColumnsOverPages) {
  const QTemporaryDir folder;
  const auto pages = [&folder](const TResultRows& rows, std::size_t count) {
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setPageSize(QPageSize(QPageSize::A5));
    printer.setOutputFileName(folder.filePath(QStringLiteral("a.pdf")));
    return PaintRows(printer, {rows, {}}, count, QStringLiteral("Title"));
  };
  EXPECT_EQ(pages(*CountedResult(0), 100), 1);
  EXPECT_EQ(pages(*CountedResult(3), 100), 1);
  const int some = pages(*CountedResult(1000), 200), all = pages(*CountedResult(1000), 2000);
  EXPECT_GT(some, 2);
  EXPECT_GE(all, 4 * some);
  const QString title = QStringLiteral("50 %1 off");
  EXPECT_EQ(PrintedTitle(title, 3, 3, exWhole), title);
  for (const TExtent extent : {exBeginning, exMost}) {
    EXPECT_EQ(PrintedTitle(title, 3, 3, extent), title + QStringLiteral(" (only the first 3 rows)"));
  }
  EXPECT_EQ(PrintedTitle(title, 5000, 6000, exWhole), title + QStringLiteral(" (only the first 5,000 rows)"));
  const std::string wide(200, 'w');
  EXPECT_EQ(
      pages(*ResultOf({wide, wide, wide, "a"}, {{{svText, wide}, {svNull, ""}, {svText, wide}, {svNumber, "1"}}}), 9),
      2);
}

}  // namespace
}  // namespace tolvi
