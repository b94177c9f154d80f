#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "apps/workbench/export/chartpane.h"
#include "apps/workbench/results/resultgrid.h"
#include "apps/workbench/results/resultpane.h"
#include "apps/workbench/script/widgettext.h"
#include "apps/workbench/sql/sqlpane.h"
#include "apps/workbench/store/storepane.h"
#include "apps/workbench/window/mainwindow.h"
#include "apps/workbench/window/notebar.h"
#include "apps/workbench/window/program.h"
#include "apps/workbench/window/queryarea.h"
#include "apps/workbench/window/themes.h"
#include "tests/ui/userevents.h"
#include <tolvi/foundation/files.h>
#include <tolvi/panel/paneleditor.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// The program with a home of its own, on the sample.
class Workbench : public testing::Test {
 protected:
  Workbench() { Start(); }
  ~Workbench() override {
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    UseTheme(thSystem, 0);
    FProgram.reset();
  }

  void Start() {
    FProgram.reset();
    FProgram = std::make_unique<TProgram>(TProgram::TOptions{FHome.path()});
    FProgram->Start();
    Wait([this] { return Window().ResultPane().GetRows() && !Window().ResultPane().IsRunning(); }, "rows");
  }

  TMainWindow& Window() { return FProgram->Window(); }
  TJQueryPanel& Panel() { return Window().GetWorkspace()->Panel(); }
  void Wait(const std::function<bool()>& condition, const char* what) {
    ASSERT_TRUE(QTest::qWaitFor(condition, 10'000)) << what;
  }
  QString Shown(const char* name) {
    const auto* widget = Window().findChild<QWidget*>(QLatin1String(name));
    return widget == nullptr || !widget->isVisible() ? QString() : TextOf(*widget);
  }
  /// Takes the file that is proposed, in the next dialog that asks for one.
  void TakeFile() {
    QTimer::singleShot(0, &Window(), [this] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return TakeFile();
      QTest::keyClick(dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
    });
  }
  /// Clicks the button in the dialog that opens next.
  void Answer(const char* button) {
    QTimer::singleShot(0, &Window(), [this, button] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (dialog == nullptr) return Answer(button);
      auto* found = dialog->findChild<QAbstractButton*>(QLatin1String(button));
      FAnswered = found != nullptr ? TextOf(*dialog) : QStringLiteral("no such button");
      if (found == nullptr) {
        dialog->close();
      } else {
        QTest::mouseClick(found, Qt::LeftButton);
      }
    });
  }
  void AddCondition() {
    TSimpleCond& added = Panel().AddSimpleCond(
        Panel().RootBracket(), *Window().GetWorkspace()->Model().FieldByName(fnFullName, "Products.ProductName"),
        *Window().GetWorkspace()->Model().OperatorByName("Equal"), "Atlantis");
    Wait([this] { return Window().isWindowModified(); }, "modified");
    EXPECT_NE(Panel().RootBracket().RowByID(added.GetRowID()), nullptr);
  }

  QTemporaryDir FHome;
  std::unique_ptr<TProgram> FProgram;
  QString FAnswered;
};

TEST_F(Workbench, ChangesTheLanguageWithoutLosingWhatIsEdited) {
  AddCondition();
  const std::string text = Window().GetWorkspace()->QueryText();
  for (const auto& [code, direction, word] :
       {std::tuple{"de", Qt::LeftToRight, "alle"}, {"ar", Qt::RightToLeft, "جميع"}, {"en", Qt::LeftToRight, "all"}}) {
    Window().Requests.UseLanguage(QLatin1String(code));
    Wait([this] { return Window().isWindowModified(); }, code);
    EXPECT_EQ(Window().GetWorkspace()->QueryText(), text) << code;
    EXPECT_EQ(Window().layoutDirection(), direction) << code;
    const QString menu = Window().findChild<QMenu*>(QStringLiteral("menu.query"))->title();
    EXPECT_EQ(menu == QStringLiteral("&Query"), QLatin1String(code) == QLatin1String("en")) << menu.toStdString();
    Wait([this] { return Shown("query.conditions").contains(QStringLiteral("Atlantis")); }, code);
    EXPECT_TRUE(Shown("query.conditions").contains(QString::fromUtf8(word))) << code;
  }
}

TEST_F(Workbench, LeadsToTheConditionThatTheDatabaseRefuses) {
  Panel().SetAllowSQLFragments(true);
  Panel().AddSQLFragment(Panel().RootBracket(), "no_such_function(Products.ProductName) = 1");
  const std::string rowID = Panel().RootBracket().LastRow()->GetRowID();
  Panel().SetCurrentRow(&Panel().RootBracket());
  Wait([this] { return Shown("results.fault").contains(QStringLiteral("refuses the condition")); }, "fault");
  EXPECT_TRUE(Shown("results.fault").contains(QStringLiteral("no_such_function")));
  QTest::mouseClick(Window().findChild<QAbstractButton*>(QStringLiteral("results.faultAction")), Qt::LeftButton);
  EXPECT_EQ(Panel().GetCurrentRow()->GetRowID(), rowID);
}

TEST_F(Workbench, LeadsToTheColumnThatTheDatabaseRefuses) {
  Panel().SetAllowSQLFragments(true);
  Panel().RFields().AddBySQLExpr("no_such_function(Products.ProductName)");
  Panel().SetModified(true);
  const std::size_t last = Panel().RFields().Count() - 1;
  Panel().RFields()[last].SetCaption("Broken");
  Window().QueryArea().OnChange();
  Wait([this] { return Shown("results.fault").contains(QStringLiteral("refuses the column “Broken”")); }, "fault");
  QTest::mouseClick(Window().findChild<QAbstractButton*>(QStringLiteral("results.faultAction")), Qt::LeftButton);
  EXPECT_NE(Window().QueryArea().Columns().GetRows()[last].GetFocusedPart(), nullptr);
}

TEST_F(Workbench, ShowsWhereQueriesAreKeptAndLeadsBack) {
  const auto isChecked = [this](const char* name) {
    return Window().findChild<QAction*>(QLatin1String(name))->isChecked();
  };
  const auto choose = [this](const QString& choice) {
    for (QAbstractButton* button : Window().findChild<TNoteBar*>()->findChildren<QAbstractButton*>()) {
      if (button->text() == choice && button->isVisible()) return QTest::mouseClick(button, Qt::LeftButton);
    }
    ADD_FAILURE() << choice.toStdString();
  };
  const TSource sample = Window().GetWorkspace()->GetSource();
  EXPECT_TRUE(isChecked("query.keepfolder"));
  const auto keep = [&] {
    Window().findChild<QAction*>(QStringLiteral("query.keepdatabase"))->trigger();
    Wait([&] { return Window().GetWorkspace()->GetSource().QueriesInDatabase; }, "kept there");
  };
  keep();
  EXPECT_TRUE(isChecked("query.keepdatabase"));
  EXPECT_EQ(
      Shown("note.words"),
      QStringLiteral("The former queries are still in %1.").arg(FHome.filePath(QStringLiteral("sample/queries"))));
  choose(QStringLiteral("Back"));
  EXPECT_EQ(Window().GetWorkspace()->GetSource(), sample);
  EXPECT_TRUE(isChecked("query.keepfolder"));
  keep();
  choose(QStringLiteral("Copy them here"));
  EXPECT_EQ(Window().GetWorkspace()->Store().Count(), 41);
  EXPECT_TRUE(Shown("status").contains(QStringLiteral("40 quer"))) << Shown("status").toStdString();
}

TEST_F(Workbench, TellsInAFewWordsWhatIsNewInTheDatabase) {
  TSqlConnection(ParseConnectionUrl(Window().GetWorkspace()->GetSource().Url))
      .Execute("CREATE TABLE News (NewsID INTEGER PRIMARY KEY, Headline TEXT)");
  Window().findChild<QAction*>(QStringLiteral("model.refresh"))->trigger();
  const QString words = Shown("note.words");
  EXPECT_TRUE(words.startsWith(QStringLiteral("New in the model: 1 new table"))) << words.toStdString();
  EXPECT_FALSE(words.contains(QStringLiteral("ft"))) << words.toStdString();
}

TEST_F(Workbench, ShowsNothingUnderTheNameOfAQueryThatCannotBeRead) {
  const QString file = FHome.filePath(QStringLiteral("sample/queries/Bad.qry"));
  WriteFileAtomically(ToPath(file), "no query at all");
  Window().GetWorkspace()->Store().Refresh();
  for (const bool atStart : {false, true}) {
    if (atStart) FProgram->Window().close();
    if (atStart) {
      FProgram = std::make_unique<TProgram>(TProgram::TOptions{FHome.path()});
      FProgram->Start();
      EXPECT_NE(Shown("note.words"), QString());
    } else {
      TJStoredQueryBase& store = Window().GetWorkspace()->Store();
      EXPECT_THROW(store.SetItemIndex(store.IndexByName("Bad")), EException);
    }
    EXPECT_EQ(Window().GetWorkspace()->Store().GetCurrentQuery()->GetQueryName(), "Bad");
    EXPECT_FALSE(Window().QueryArea().isEnabled());
    EXPECT_EQ(Panel().RootBracket().GetRowCount(), 0) << "nothing of the query before";
    EXPECT_TRUE(Panel().RFields().Empty());
    EXPECT_FALSE(Window().GetWorkspace()->IsQueryModified());
  }
  Window().GetWorkspace()->Store().SetItemIndex(0);
  EXPECT_TRUE(Window().QueryArea().isEnabled());
  EXPECT_EQ(ReadFile(ToPath(file)), "no query at all");
}

TEST_F(Workbench, AsksBeforeChangesAreLost) {
  AddCondition();
  Answer("ask.cancel");
  Window().close();
  EXPECT_TRUE(FAnswered.contains(QStringLiteral("About this price"))) << FAnswered.toStdString();
  EXPECT_TRUE(Window().isVisible());
  Answer("ask.save");
  Window().StorePane().Action(QStringLiteral("store.new"))->trigger();
  EXPECT_TRUE(FAnswered.contains(QStringLiteral("Save query"))) << FAnswered.toStdString();
  Wait([this] { return Panel().GetQueryName() == "New query"; }, "the new query");
  TJStoredQueryBase& store = Window().GetWorkspace()->Store();
  store.SetItemIndex(store.IndexByName("About this price"));
  Wait([this] { return Shown("query.conditions").contains(QStringLiteral("Atlantis")); }, "stored");
}

TEST_F(Workbench, HasNothingToSaveOnceTheLastQueryIsDeleted) {
  TJStoredQueryBase& store = Window().GetWorkspace()->Store();
  while (store.Count() > 1) store.EraseQuery(1 - store.GetItemIndex());
  AddCondition();
  QTimer::singleShot(100, &Window(), [] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
      box->button(QMessageBox::Yes)->click();
  });
  Window().StorePane().Erase();
  EXPECT_EQ(store.Count(), 0);
  Wait([this] { return !Window().isWindowModified(); }, "as stored");
  EXPECT_FALSE(Window().GetWorkspace()->IsQueryModified());
  QTest::mouseClick(Window().findChild<QAbstractButton*>(QStringLiteral("store.noteButton")), Qt::LeftButton);
  EXPECT_TRUE(Window().GetWorkspace()->QueryText().find("Atlantis") != std::string::npos);
}

TEST_F(Workbench, UndoesChangesOfColumnsAndKnowsWhatIsSaved) {
  QApplication::setActiveWindow(&Window());
  TResultFieldRows& rows = Window().QueryArea().Columns().GetRows();
  const std::size_t count = rows.Count();
  const std::string saved = Window().GetWorkspace()->QueryText();
  for (int i = 0; i < 2; ++i) {
    Window().QueryArea().Columns().DeleteRow(0);
    // What happens before events come is one step.
    QCoreApplication::processEvents();
  }
  Wait([this] { return Window().isWindowModified(); }, "modified");
  rows[0].GetPart(rpSorting).setFocus();
  for (std::size_t left = count - 2; left < count; ++left) {
    EXPECT_EQ(rows.Count(), left);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::ControlModifier);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(rows.Count(), count);
  EXPECT_EQ(Window().GetWorkspace()->QueryText(), saved);
  Wait([this] { return !Window().isWindowModified(); }, "as it was saved");
}

TEST_F(Workbench, OpensTheSameQueryInTheSameSyntaxTheNextTime) {
  TJStoredQueryBase& store = Window().GetWorkspace()->Store();
  store.SetItemIndex(store.IndexByName("Best customers"));
  Window().SqlPane().SetSyntax(ssOracle);
  Window().SqlPane().OnSyntaxChange(ssOracle);
  Window().close();
  Start();
  EXPECT_EQ(Panel().GetQueryName(), "Best customers");
  EXPECT_EQ(Window().SqlPane().GetSyntax(), ssOracle);
  Wait([this] { return Window().SqlPane().GetStatement().find("JOIN") == std::string::npos; }, "syntax");
  EXPECT_GT(Window().ResultPane().GetRows()->GetRowCount(), 0U) << "its rows come in the syntax of the database";
}

TEST_F(Workbench, RunsForAllRowsAndLeavesNoneUnderAnotherQuery) {
  FProgram->Settings().MaxRows = 0;
  Window().ResultPane().SetPreview(false);
  TJStoredQueryBase& store = Window().GetWorkspace()->Store();
  store.SetItemIndex(store.IndexByName("Best customers"));
  EXPECT_EQ(Window().ResultPane().GetRows(), nullptr);
  Window().ResultPane().OnRunRequest();
  Wait([this] { return Window().ResultPane().GetRows() && !Window().ResultPane().IsRunning(); }, "rows");
  EXPECT_GT(Window().ResultPane().GetRows()->GetRowCount(), 3U);
  EXPECT_FALSE(Shown("results.status").contains(QStringLiteral("First"))) << Shown("results.status").toStdString();
}

TEST_F(Workbench, ExportsTheFirstRowsOnlyIfTheUserWantsThemAndSaysWhere) {
  const auto shown = [this] { return Window().ResultPane().GetRows()->GetRowCount(); };
  const auto refresh = [&](int previewRows, const char* query) {
    FProgram->Settings().PreviewRows = previewRows;
    TJStoredQueryBase& store = Window().GetWorkspace()->Store();
    const auto before = Window().ResultPane().GetRows();
    store.SetItemIndex(store.IndexByName(query));
    Wait([&] { return Window().ResultPane().GetRows() != before && !Window().ResultPane().IsRunning(); }, query);
  };
  auto* exported = Window().findChild<QAction*>(QStringLiteral("database.export"));
  refresh(3, "Best customers");
  ASSERT_EQ(shown(), 3U);
  Answer("rows.cancel");
  exported->trigger();
  EXPECT_EQ(FAnswered.section(u'\n', 0, 0),
            QStringLiteral("Only the first 3 rows are here. Run the query first to have all of them."));

  // These rows.
  FProgram->Settings().ExportFolder = FHome.path();
  Answer("rows.take");
  TakeFile();
  exported->trigger();
  const QString file = FHome.filePath(QStringLiteral("Best customers.csv"));
  EXPECT_EQ(Shown("status"), QStringLiteral("3 rows are in %1.").arg(file));
  EXPECT_TRUE(QFile::exists(file));

  // All rows; nothing is asked then.
  Answer("rows.run");
  exported->trigger();
  Wait([&] { return shown() > 3 && !Window().ResultPane().IsRunning(); }, "all rows");
  const std::size_t all = shown();
  EXPECT_TRUE(QFile::remove(file));
  TakeFile();
  exported->trigger();
  EXPECT_EQ(Shown("status"), QStringLiteral("%1 rows are in %2.").arg(all).arg(file));

  // A run that is limited does not help.
  FProgram->Settings().MaxRows = 2;
  Window().ResultPane().OnRunRequest();
  Wait([&] { return shown() == 2 && !Window().ResultPane().IsRunning(); }, "two rows");
  Answer("rows.run");
  exported->trigger();
  EXPECT_EQ(FAnswered, QStringLiteral("no such button"));
}

TEST_F(Workbench, DrawsAllRowsOnDemandAndStaysAtTheChart) {
  FProgram->Settings().PreviewRows = 3;
  TJStoredQueryBase& store = Window().GetWorkspace()->Store();
  store.SetItemIndex(store.IndexByName("Best customers"));
  Wait([this] { return Window().ResultPane().GetExtent() == exBeginning; }, "first rows");
  Window().findChild<QAction*>(QStringLiteral("view.chart"))->trigger();
  EXPECT_EQ(Shown("chart.y"), QStringLiteral("Turnover")) << "the customers' numbers are keys";
  Wait([this] { return Shown("chart.told") == QStringLiteral("Only the first 3 rows have been read."); }, "told");
  QTest::mouseClick(Window().findChild<QAbstractButton*>(QStringLiteral("chart.readall")), Qt::LeftButton);
  Wait([this] { return Window().ChartPane().isVisible() && Window().ChartPane().GetData().Values.size() > 3; }, "all");
  Wait([this] { return Shown("chart.readall").isEmpty(); }, "no more");
  EXPECT_TRUE(Shown("chart.told").isEmpty()) << Shown("chart.told").toStdString();
}

TEST_F(Workbench, StaysAtTheChartWhenNoValuesAreGiven) {
  const TJDBStructure& model = Window().GetWorkspace()->Model();
  Panel()
      .AddSimpleCond(Panel().RootBracket(), *model.FieldByName(fnFullName, "Products.ProductName"),
                     *model.OperatorByName("Equal"), "")
      .SetValueIsParam(1, true);
  Window().findChild<QAction*>(QStringLiteral("view.chart"))->trigger();
  FAnswered.clear();
  QTimer::singleShot(0, &Window(), [this] {
    FAnswered = QApplication::activeModalWidget()->objectName();
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
  });
  Window().ResultPane().OnRunRequest();
  EXPECT_EQ(FAnswered, QStringLiteral("params"));
  EXPECT_TRUE(Window().ChartPane().isVisible());
}

TEST_F(Workbench, AsksForAColumnInThePlaceOfRowsAlone) {
  while (Panel().RootBracket().GetRowCount() > 0) Panel().RootBracket().DeleteRow(0);
  Panel().RFields().Clear();
  QString box;
  QTimer::singleShot(0, &Window(), [&box] {
    QWidget* open = QApplication::activeModalWidget();
    if (open == nullptr) return;
    box = TextOf(*open);
    open->close();
  });
  Window().ResultPane().OnRunRequest();
  EXPECT_EQ(Shown("results.empty"), QStringLiteral("Add a column to the result to see rows."));
  QTest::qWait(0);
  EXPECT_EQ(box, QString());
}

TEST_F(Workbench, TellsFaultsAsTheyAreWritten) {
  const QString words = QStringLiteral("no such table: <b>Products</b>");
  Qt::TextFormat format = Qt::AutoText;
  QTimer::singleShot(0, &Window(), [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    EXPECT_EQ(box->text(), words);
    format = box->textFormat();
    box->accept();
  });
  Window().TellFault(words);
  EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(Workbench, KeepsTheSourceOpenWhenAnotherCannotBeOpened) {
  const TSource sample = Window().GetWorkspace()->GetSource();
  for (const char* url : {"sqlite:/nowhere/at/all.sqlite", "nonsense://"}) {
    QTimer::singleShot(50, &Window(), [] {
      if (QWidget* box = QApplication::activeModalWidget()) box->close();
    });
    EXPECT_FALSE(FProgram->Open({url}));
    EXPECT_EQ(Window().GetWorkspace()->GetSource(), sample);
  }
  TSource database = sample;
  database.QueriesInDatabase = true;
  EXPECT_TRUE(FProgram->Open(database));
  EXPECT_EQ(Window().GetWorkspace()->Store().Count(), 1) << "a first query is made in the database";
  EXPECT_EQ(FProgram->Settings().Recent.size(), 1U);
}

TEST_F(Workbench, PutsWorkBackOnlyIfTheUserWants) {
  AddCondition();
  const TUnsavedWork work = *Window().Unsaved();
  Start();
  EXPECT_FALSE(Window().isWindowModified());
  Window().Restore(work);
  Wait([this] { return Window().isWindowModified(); }, "modified");
  EXPECT_TRUE(Shown("query.conditions").contains(QStringLiteral("Atlantis")));
  auto* note = Window().findChild<TNoteBar*>();
  ASSERT_TRUE(note->GetWords().contains(QStringLiteral("About this price")));
  for (QAbstractButton* button : note->findChildren<QAbstractButton*>()) {
    if (button->text() == QStringLiteral("Discard")) QTest::mouseClick(button, Qt::LeftButton);
  }
  Wait([this] { return !Window().isWindowModified(); }, "as stored");
  EXPECT_FALSE(Shown("query.conditions").contains(QStringLiteral("Atlantis")));
  Window().Restore(work);
  Window().SetWorkspace(nullptr);
  EXPECT_EQ(note->GetWords(), QString()) << "there is nothing to save any more";
}

TEST_F(Workbench, FitsSmallScreensAndGrowsItsSignsWithTheLetters) {
  for (const auto& [letters, screen] : {std::pair{0, QSize(800, 600)}, {20, QSize(1024, 768)}}) {
    // As large as on a screen of 96 dots an inch.
    FProgram->Settings().FontSize = letters * 96 / Window().logicalDpiX();
    Window().Requests.UseTheme();
    Window().resize(screen);
    QTest::qWait(50);
    EXPECT_EQ(Window().size(), screen);
    EXPECT_LE(Window().minimumSizeHint().width(), screen.width()) << letters;
    EXPECT_LE(Window().minimumSizeHint().height(), screen.height()) << letters;
    const int line = Window().fontMetrics().height();
    for (const char* name : {"results.run", "results.preview", "store.newButton", "store.moreButton", "note.close"}) {
      EXPECT_EQ(Window().findChild<QToolButton*>(QLatin1String(name))->iconSize(), QSize(line, line)) << name;
    }
    // Bars have as many lines as they need.
    for (const char* tab : {"view.results", "view.chart"}) {
      Window().findChild<QAction*>(QLatin1String(tab))->trigger();
      QTest::qWait(50);
      for (const char* name : {"chart.kind", "chart.x", "chart.y", "chart.copy", "chart.save", "sql.dialect",
                               "sql.copy", "sql.paste", "results.run", "results.status"}) {
        const auto* widget = Window().findChild<QWidget*>(QLatin1String(name));
        if (!widget->isVisible()) continue;
        EXPECT_EQ(widget->visibleRegion().boundingRect(), widget->rect()) << name;
      }
    }
  }
}

TEST_F(Workbench, LeadsByKeyToWhatIsSeen) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  const auto press = [this](Qt::Key key) {
    user::Press(Window(), key, Qt::AltModifier);
    return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
  };
  EXPECT_EQ(press(Qt::Key_5), QStringLiteral("chart.kind"));
  EXPECT_TRUE(Window().ChartPane().isVisible());
  EXPECT_EQ(press(Qt::Key_4), QStringLiteral("results.grid"));
  EXPECT_TRUE(Window().ResultPane().Grid().currentIndex().isValid());
  user::Press(Window(), Qt::Key_F2);
  EXPECT_NE(Window().findChild<QDialog*>(QStringLiteral("results.value")), nullptr);
  QApplication::activeWindow()->close();
  Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  EXPECT_EQ(press(Qt::Key_6), QStringLiteral("sql.view"));
  Window().ResultPane().ShowFault(QStringLiteral("No"));
  EXPECT_EQ(press(Qt::Key_4), QStringLiteral("results.fault"));
  Window().ResultPane().ShowNothing(QStringLiteral("Nothing"));
  EXPECT_EQ(press(Qt::Key_4), QStringLiteral("results.run"));
}

TEST_F(Workbench, LeadsByTabToAllThatCanBeUsed) {
  Window().Tell(QStringLiteral("Words"), {{QStringLiteral("One"), {}}, {QStringLiteral("Two"), {}}});
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  user::Press(Window(), Qt::Key_0, Qt::AltModifier);
  QWidget* const begin = QApplication::focusWidget();
  ASSERT_EQ(begin->objectName(), QStringLiteral("note.choice1"));
  for (const bool back : {false, true}) {
    QStringList way;
    begin->setFocus();
    constexpr int Most = 100;
    for (int i = 0; i < Most && (i == 0 || QApplication::focusWidget() != begin); ++i) {
      const QString name = QApplication::focusWidget()->objectName();
      const bool isColumn = Window().QueryArea().Columns().isAncestorOf(QApplication::focusWidget());
      way << (isColumn ? QStringLiteral("column") : name);
      user::Press(Window(), back ? Qt::Key_Backtab : Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), begin) << "not all round";
    // Each row of the columns has three parts; the label that adds one comes behind them.
    EXPECT_EQ(way.count(QStringLiteral("column")), 3 * Panel().RFields().Count() + 1);
    for (const char* name :
         {"note.choice2", "note.close", "store.search", "store.list", "store.moreButton", "value2", "addRowLabel",
          "results.run", "results.grid", "sql.dialect", "sql.copy", "sql.paste", "sql.view"}) {
      EXPECT_EQ(way.count(QLatin1String(name)), 1) << name << (back ? " back" : "");
    }
  }
}

TEST_F(Workbench, ListsTheKeysOfMenusAndPanes) {
  QStringList lines;
  QTimer::singleShot(0, &Window(), [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    const auto& tree = *dialog->findChild<QTreeWidget*>();
    for (QTreeWidgetItemIterator item(const_cast<QTreeWidget*>(&tree)); *item != nullptr; ++item) {
      const QTreeWidgetItem* group = (*item)->parent();
      if (group != nullptr) lines << group->text(0) + u'|' + (*item)->text(0) + u'|' + (*item)->text(1);
    }
    dialog->close();
  });
  Window().findChild<QAction*>(QStringLiteral("help.shortcuts"))->trigger();
  for (const char* wanted : {"Query|Save|Ctrl+S", "Among the conditions|Undo|Ctrl+Z",
                             "In the list of queries|Move up|Alt+Up", "Among the rows|Copy with headers|Ctrl+Shift+C",
                             "Among the rows|Show value|F2  ·  Return  ·  Enter", "In the SQL|Select all|Ctrl+A"}) {
    EXPECT_TRUE(lines.contains(QString::fromUtf8(wanted))) << wanted << '\n' << lines.join(u'\n').toStdString();
  }
}

TEST_F(Workbench, MarksTheColoursThatTheSettingsHave) {
  QTimer::singleShot(0, &Window(), [] {
    auto* dialog = static_cast<QDialog*>(QApplication::activeModalWidget());
    dialog->findChild<QComboBox*>(QStringLiteral("settings.theme"))->setCurrentIndex(thDark);
    dialog->accept();
  });
  Window().findChild<QAction*>(QStringLiteral("view.settings"))->trigger();
  auto& menu = *Window().findChild<QMenu*>(QStringLiteral("menu.theme"));
  menu.popup({});
  for (const TTheme theme : {thSystem, thLight, thDark}) {
    EXPECT_EQ(menu.actions()[theme]->isChecked(), theme == thDark);
  }
  menu.close();
}

}  // namespace
}  // namespace tolvi
