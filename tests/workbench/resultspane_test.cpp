#include <QAction>
#include <QElapsedTimer>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include "apps/workbench/results/busyline.h"
#include "apps/workbench/results/resultgrid.h"
#include "apps/workbench/results/resultpane.h"
#include "tests/ui/uitest.h"
#include "workbench/results.h"

namespace tolvi {
namespace {

using namespace results;

class ResultPane : public TUiTest {
 protected:
  void SetUp() override {
    TUiTest::SetUp();
    pane = &Place(new TResultPane(nullptr));
    pane->resize(560, 360);
    pane->SetConnection(Shop());
    pane->OnEnd = [this] { ++ends; };
    pane->OnFault = [this](const QString& words, const QString& sql) { faults << words << sql; };
    pane->OnRunRequest = [this] { ++runs; };
  }

  void Run(const TBoundStatement& statement, std::size_t maxRows = 100'000) {
    ends = 0;
    pane->Run(statement, false, maxRows);
    ASSERT_TRUE(Wait([this] { return ends > 0; }));
  }
  void Preview(const TBoundStatement& statement) {
    ends = 0;
    pane->Preview(statement, false);
    ASSERT_TRUE(Wait([this] { return ends > 0; }));
  }

  template <typename T>
  T& Part(const char* name) {
    auto* part = pane->findChild<T*>(QLatin1String(name));
    EXPECT_NE(part, nullptr) << name;
    return *part;
  }
  std::string Status() { return pane->GetStatusText().toStdString(); }
  /// Without the time.
  std::string StatusWords() { return pane->GetStatusText().section(QStringLiteral(" ·"), 0, 0).toStdString(); }
  /// The text of the page that is on show.
  std::string Page() {
    auto& empty = Part<QLabel>("results.empty");
    auto& fault = Part<QPlainTextEdit>("results.fault");
    if (empty.isVisible()) return empty.text().toStdString();
    return fault.isVisible() ? fault.toPlainText().toStdString() : std::string();
  }

  TResultPane* pane = nullptr;
  int ends = 0, runs = 0;
  QStringList faults;
};

TEST_F(ResultPane, ShowsRowsAndSaysHowMany) {
  EXPECT_EQ(Page(), "Rows appear here when you run a query.");
  EXPECT_EQ(pane->GetRows(), nullptr);
  Run(Statement("SELECT CustomerID, City FROM Customers"));
  EXPECT_EQ(StatusWords(), "226 rows");
  EXPECT_TRUE(Status().ends_with(" s"));
  ASSERT_NE(pane->GetRows(), nullptr);
  EXPECT_EQ(pane->GetRows()->GetRowCount(), 226U);
  EXPECT_TRUE(pane->GetOrder()->empty());
  EXPECT_EQ(pane->GetExtent(), exWhole);
  EXPECT_FALSE(pane->IsRunning());
  EXPECT_TRUE(pane->Grid().isVisible());
  Run(Statement("SELECT OrderID FROM Orders"), 1200);
  EXPECT_EQ(StatusWords(), "First 1,200 rows");
  EXPECT_EQ(pane->GetExtent(), exMost);
  Preview(Statement("SELECT OrderID FROM Orders"));
  EXPECT_EQ(StatusWords(), "First 100 rows");
  EXPECT_EQ(pane->GetExtent(), exBeginning);
  Preview(Statement("SELECT OrderID FROM Orders LIMIT 100"));
  EXPECT_EQ(pane->GetExtent(), exWhole) << "as many as are shown, and no more";
  Run(Statement("SELECT OrderID FROM Orders WHERE 1 = 0"));
  EXPECT_EQ(StatusWords(), "No rows");
  EXPECT_TRUE(pane->Grid().isVisible()) << "the columns can be seen";
  Run(Statement("SELECT 1 AS one"));
  EXPECT_EQ(StatusWords(), "1 row");
}

TEST_F(ResultPane, KeepsOldRowsUntilNewOnesComeAndDimsThemAfterAMoment) {
  Run(Statement("SELECT CustomerID FROM Customers"));
  const auto old = pane->GetRows();
  pane->Preview(EndlessWork(), false);
  EXPECT_TRUE(pane->IsRunning());
  auto& busy = *pane->findChild<TBusyLine*>();
  EXPECT_FALSE(busy.isVisible() || pane->Grid().GetDimmed());
  ASSERT_TRUE(Wait([&] { return busy.isVisible(); }));
  EXPECT_TRUE(pane->Grid().GetDimmed());
  EXPECT_EQ(pane->GetRows(), old);
  EXPECT_EQ(Status(), "Running…");
  pane->Cancel();
  EXPECT_FALSE(busy.isVisible() || pane->Grid().GetDimmed() || pane->IsRunning());
  EXPECT_EQ(pane->GetRows(), old);
  EXPECT_TRUE(Status().starts_with("Stopped after ")) << Status();
  Preview(Statement("SELECT City FROM Customers"));
  EXPECT_NE(pane->GetRows(), old);
}

TEST_F(ResultPane, StopsByEscapeAndRunsByF5) {
  pane->Run(EndlessRows(), false, SIZE_MAX);
  ASSERT_TRUE(Wait([this] { return pane->GetRows() != nullptr && pane->GetRows()->GetRowCount() > 5000; }));
  EXPECT_TRUE(Status().ends_with(" rows so far…")) << Status();
  QElapsedTimer timer;
  timer.start();
  Key(Qt::Key_Escape);
  EXPECT_FALSE(pane->IsRunning());
  EXPECT_LT(timer.elapsed(), 500);
  EXPECT_EQ(ends, 1);
  EXPECT_TRUE(Status().starts_with("Stopped after ")) << Status();
  EXPECT_EQ(pane->GetExtent(), exBeginning);
  const std::size_t count = pane->GetRows()->GetRowCount();
  QTest::qWait(100);
  EXPECT_EQ(pane->GetRows()->GetRowCount(), count) << "rows that came too late are dropped";
  Key(Qt::Key_F5);
  EXPECT_EQ(runs, 1);
  Click(Part<QToolButton>("results.run"));
  EXPECT_EQ(runs, 2);
}

TEST_F(ResultPane, ShowsTheWordsOfTheDatabaseAndTheWayToTheirPlace) {
  Run(Statement("SELECT Nonsense FROM Customers"));
  EXPECT_EQ(Page(), "no such column: Nonsense");
  EXPECT_EQ(faults, (QStringList{QStringLiteral("no such column: Nonsense"),
                                 QStringLiteral("SELECT Nonsense FROM Customers")}));
  EXPECT_EQ(pane->GetRows(), nullptr);
  auto& button = Part<QPushButton>("results.faultAction");
  EXPECT_FALSE(button.isVisible());
  int shown = 0;
  pane->SetFaultAction(QStringLiteral("Show in Query"), [&shown] { ++shown; });
  QCoreApplication::processEvents();
  Click(button);
  EXPECT_EQ(shown, 1);
  pane->ShowFault(QStringLiteral("The field has no value"));
  EXPECT_EQ(Page(), "The field has no value");
  EXPECT_FALSE(button.isVisible()) << "it went with the fault";
  Run(Statement("SELECT 1 AS one"));
  EXPECT_TRUE(pane->Grid().isVisible());
  // The host may take the pane away when it hears of a fault.
  pane->OnFault = [this](const QString&, const QString&) { delete std::exchange(pane, nullptr); };
  pane->Run(Statement("SELECT"), false, 1);
  EXPECT_TRUE(Wait([this] { return pane == nullptr; }));
}

TEST_F(ResultPane, RunsTheLastOfPreviewsThatFollowQuickly) {
  std::vector<std::string> seen;
  pane->OnStateChange = [&] {
    if (pane->GetRows() != nullptr) seen.emplace_back(pane->GetRows()->Cell(0, 0).Text);
  };
  for (int i = 0; i < 10; ++i) pane->Preview(Statement("SELECT " + std::to_string(i) + " AS digit"), false);
  ASSERT_TRUE(Wait([this] { return ends > 0; }));
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(seen.back(), "9");
  EXPECT_EQ(seen.front(), "9");
  pane->Preview(EndlessWork(), false);
  pane->Preview(EndlessWork(), false);
  EXPECT_TRUE(pane->IsRunning());
  pane->Cancel();
  EXPECT_FALSE(pane->IsRunning()) << "while it waits, too";
}

TEST_F(ResultPane, SwitchesThePreviewOffAndStopsIt) {
  int changes = 0;
  pane->OnPreviewChange = [&changes] { ++changes; };
  pane->Preview(EndlessWork(), false);
  QCoreApplication::processEvents();
  Click(Part<QToolButton>("results.preview"));
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(pane->GetPreview() || pane->IsRunning());
  pane->Preview(Statement("SELECT 1 AS one"), false);
  EXPECT_FALSE(pane->IsRunning());
  Run(Statement("SELECT 1 AS one"));
  EXPECT_EQ(StatusWords(), "1 row");
  pane->SetPreview(true);
  EXPECT_EQ(changes, 2);
}

TEST_F(ResultPane, SaysWhyThereIsNothing) {
  Run(Statement("SELECT 1 AS one"));
  pane->ShowNothing(QStringLiteral("Choose a column"));
  EXPECT_EQ(Page(), "Choose a column");
  EXPECT_EQ(pane->GetRows(), nullptr);
  pane->SetNoConnection(QStringLiteral("No database"));
  EXPECT_EQ(Page(), "No database");
  EXPECT_FALSE(pane->RunAction()->isEnabled());
  pane->Run(Statement("SELECT 1 AS one"), false, 10);
  EXPECT_FALSE(pane->IsRunning());
  pane->SetConnection(Shop());
  EXPECT_TRUE(pane->RunAction()->isEnabled());
}

}  // namespace
}  // namespace tolvi
