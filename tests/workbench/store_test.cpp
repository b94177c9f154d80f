#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOptionViewItem>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>

#include <gtest/gtest.h>

#include "apps/workbench/store/storemodel.h"
#include "apps/workbench/store/storepane.h"
#include "tests/ui/userevents.h"
#include <tolvi/connect/sqlconnection.h>
#include <tolvi/connect/sqlqrybase.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/qpbaselink.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/store/fileqrybase.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

using user::Settle;

/// Answers the dialogs that come, the first one first, and keeps what they said.
class TAnswers final {
 public:
  explicit TAnswers(std::vector<std::function<void(QDialog&)>> answers) : FAnswers(std::move(answers)) {
    FTimer.callOnTimeout([this] { Answer(); });
    FTimer.start(1);
  }

  QStringList Texts;
  bool AllGiven() const { return FNext == FAnswers.size(); }

 private:
  void Answer() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) return;
    if (auto* box = qobject_cast<QMessageBox*>(dialog)) Texts << box->text() + u'|' + box->informativeText();
    if (FNext == FAnswers.size()) {
      ADD_FAILURE() << "a dialog too many";
      return dialog->reject();
    }
    FAnswers[FNext++](*dialog);
  }

  std::vector<std::function<void(QDialog&)>> FAnswers;
  std::size_t FNext = 0;
  QTimer FTimer;
};

std::function<void(QDialog&)> Press(QMessageBox::StandardButton button) {
  return [button](QDialog& dialog) { static_cast<QMessageBox&>(dialog).button(button)->click(); };
}

class StorePane : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* name : {"Élan", "apples", "Bread"}) Make(name);
    Panel.SetDBStruct(&Model);
    Link.SetQueryBase(&Base);
    Pane.SetQueryBase(&Base);
    Base.SetFolder(FromQString(Folder.path()));
    Base.Open();
    Pane.OnMayLeave = [this] {
      ++Asked;
      return MayLeave;
    };
    Pane.resize(300, 400);
    Pane.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Pane));
    Pane.List().setFocus();
    Settle();
  }

  void Make(const char* name, const char* description = "") {
    TJFileQueryBase base;
    base.SetFolder(FromQString(Folder.path()));
    base.Open();
    const int index = base.AddQuery(name, {});
    base.DescribeQuery(index, description);
  }

  QStringList Names() {
    Settle();
    QStringList names;
    for (int row = 0; row < Rows().rowCount(); ++row) names << Rows().index(row, 0).data().toString();
    return names;
  }
  QAbstractItemModel& Rows() { return *Pane.List().model(); }
  QString Current() {
    return Base.GetCurrentQuery() != nullptr ? ToQString(Base.GetCurrentQuery()->GetQueryName()) : QString();
  }
  QString Selected() { return Pane.List().currentIndex().data().toString(); }
  QString Note() {
    auto* note = Pane.findChild<QFrame*>(QStringLiteral("store.note"));
    return note->isVisible() ? note->findChild<QLabel*>(QStringLiteral("store.noteText"))->text() : QString();
  }
  QLineEdit* NameLine() { return Pane.findChild<QLineEdit*>(QStringLiteral("store.name")); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    if (!Pane.isActiveWindow()) QApplication::setActiveWindow(&Pane);
    user::Press(Pane, key, modifiers);
  }
  void Type(const QString& text) {
    for (const QChar c : text) QTest::keyClick(QApplication::focusWidget(), c.toLatin1());
  }
  void Click(int row) { user::Click(*Pane.List().viewport(), Pane.List().visualRect(Rows().index(row, 0)).center()); }

  QTemporaryDir Folder;
  TJFileQueryBase Base;
  TJDBStructure Model;
  TJQueryPanel Panel;
  TJQPBaseLink Link{Panel};
  TStorePane Pane;
  int Asked = 0;
  bool MayLeave = true;
};

TEST_F(StorePane, ListsByNameAndBringsTheChosenQueryIntoTheViews) {
  QAbstractItemModelTester tester(&Rows(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("apples"), QStringLiteral("Bread"), QStringLiteral("Élan")}));
  EXPECT_EQ(Selected(), QStringLiteral("apples"));
  Click(2);
  Settle();
  EXPECT_EQ(Current(), QStringLiteral("Élan"));
  EXPECT_EQ(Panel.GetQueryName(), "Élan");
  Key(Qt::Key_Up);
  EXPECT_EQ(Panel.GetQueryName(), "Bread");
  EXPECT_EQ(Asked, 2);
  // The program chooses another one.
  Base.SetItemIndex(Base.IndexByName("apples"));
  Settle();
  EXPECT_EQ(Selected(), QStringLiteral("apples"));
  EXPECT_EQ(Asked, 2);
}

TEST_F(StorePane, StaysAtTheQueryThatTheUserWillNotLeave) {
  MayLeave = false;
  Key(Qt::Key_Down);
  EXPECT_EQ(Asked, 1);
  EXPECT_EQ(Selected(), QStringLiteral("apples"));
  Key(Qt::Key_N, Qt::ControlModifier);
  Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Asked, 3);
  EXPECT_EQ(Base.Count(), 3);
}

TEST_F(StorePane, FindsInNamesAndDescriptionsWithoutCaseAndAccents) {
  Base.DescribeQuery(Base.IndexByName("Bread"), "How much was ÉLANed\nand more");
  Settle();
  Pane.SearchLine().setFocus();
  Type(QStringLiteral("elan"));
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("Bread"), QStringLiteral("Élan")}));
  Key(Qt::Key_Down);
  EXPECT_EQ(Current(), QStringLiteral("Bread"));
  // Order is not changed among what was found.
  EXPECT_FALSE(Pane.Action(QStringLiteral("store.down"))->isEnabled());
  Pane.SearchLine().setFocus();
  Type(QStringLiteral("x"));
  EXPECT_TRUE(Names().isEmpty());
  EXPECT_EQ(Pane.findChild<QLabel*>(QStringLiteral("store.empty"))->text(),
            QStringLiteral("No query holds this text."));
  Key(Qt::Key_Escape);
  EXPECT_EQ(Names().size(), 3);
  EXPECT_EQ(Selected(), QStringLiteral("Bread"));
}

TEST_F(StorePane, MakesAndNamesAQuery) {
  Key(Qt::Key_N, Qt::ControlModifier);
  ASSERT_NE(NameLine(), nullptr);
  EXPECT_EQ(NameLine()->text(), QStringLiteral("New query"));
  Type(QStringLiteral("BREAD"));
  auto& editor = *NameLine()->parentWidget();
  EXPECT_TRUE(editor.findChild<QLabel*>()->text().contains(QStringLiteral("There is a query \"BREAD\"")));
  Key(Qt::Key_Return);
  ASSERT_NE(NameLine(), nullptr) << "the name that is taken can be mended";
  Type(QStringLiteral("s"));
  EXPECT_TRUE(editor.findChild<QLabel*>()->text().isEmpty());
  Key(Qt::Key_Return);
  EXPECT_EQ(Names()[2], QStringLiteral("BREADs"));
  EXPECT_EQ(Panel.GetQueryName(), "BREADs");
  EXPECT_TRUE(Pane.List().hasFocus());

  Key(Qt::Key_F2);
  Type(QStringLiteral("x"));
  Key(Qt::Key_Escape);
  EXPECT_EQ(Selected(), QStringLiteral("BREADs"));
  // Leaving the line takes the name over, if it can be one.
  Key(Qt::Key_F2);
  Type(QStringLiteral("apples"));
  Pane.SearchLine().setFocus();
  Settle();
  EXPECT_EQ(Selected(), QStringLiteral("BREADs"));
  EXPECT_TRUE(Note().startsWith(QStringLiteral("There is a query \"apples\" in the store"))) << FromQString(Note());
}

TEST_F(StorePane, CopiesQueriesWithinTheStoreAndThroughTheClipboard) {
  Pane.OnShownText = [] {
    TStrings text;
    text.SetText("[Main]\nQueryName=apples\nVersion=3.6\n\n[Description]\nNot saved yet");
    return text;
  };
  Key(Qt::Key_D, Qt::ControlModifier);
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Selected(), QStringLiteral("apples (copy)"));
  EXPECT_TRUE(Base.GetCurrentQuery()->GetDescription().starts_with("Not saved yet"));
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral("[Main]\nQueryName=apples")));
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Selected(), QStringLiteral("apples 2"));
  QApplication::clipboard()->setText(QStringLiteral("select 1"));
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Base.Count(), 5);
  EXPECT_EQ(Note(), QStringLiteral("What was copied is no query text. Statements in SQL are pasted into the SQL."));
}

TEST_F(StorePane, DeletesOnRequestAndBringsBack) {
  Base.DescribeQuery(0, "Kept");
  const QStringList order{QStringLiteral("Bread.qry"), QStringLiteral("apples.qry")};
  Pane.SetOrder(order);
  TAnswers answers({Press(QMessageBox::No), Press(QMessageBox::Yes)});
  Key(Qt::Key_Delete);
  EXPECT_EQ(Base.Count(), 3);
  Key(Qt::Key_Delete);
  EXPECT_TRUE(answers.AllGiven());
  EXPECT_TRUE(answers.Texts[0].startsWith(QStringLiteral("Delete the query “apples”?|It is deleted for everybody")));
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("Bread"), QStringLiteral("Élan")}));
  EXPECT_EQ(Selected(), QStringLiteral("Élan"));
  EXPECT_EQ(Note(), QStringLiteral("“apples” was deleted."));
  // The order that the user makes meanwhile stays.
  Key(Qt::Key_Up, Qt::AltModifier);
  user::Click(*Pane.findChild<QPushButton*>(QStringLiteral("store.noteButton")));
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("Élan"), QStringLiteral("Bread"), QStringLiteral("apples")}));
  EXPECT_EQ(Base.GetQuery(Base.IndexByName("apples")).GetDescription(), "Kept");
  EXPECT_EQ(Note(), QString());
}

TEST_F(StorePane, ShowsTheNeighbourOfWhatIsDeletedAndBringsBackOneAfterTheOther) {
  for (int i = 0; i < 12; ++i) Base.AddQuery("Query " + std::to_string(10 + i), {});
  Pane.resize(300, 12 * Pane.fontMetrics().height());
  Key(Qt::Key_End);
  for (int i = 0; i < 3; ++i) Key(Qt::Key_Up);
  const auto deletes = [this](const char* next) {
    TAnswers answers({Press(QMessageBox::Yes)});
    Key(Qt::Key_Delete);
    EXPECT_TRUE(answers.AllGiven());
    EXPECT_EQ(Selected(), QLatin1String(next));
    EXPECT_EQ(Panel.GetQueryName(), next);
    const QRect line = Pane.List().visualRect(Pane.List().currentIndex());
    EXPECT_TRUE(Pane.List().viewport()->rect().contains(line)) << next;
  };
  const auto undo = [this] { user::Click(*Pane.findChild<QPushButton*>(QStringLiteral("store.noteButton"))); };
  const QStringList all = Names();
  ASSERT_EQ(Selected(), QStringLiteral("Query 18"));
  deletes("Query 19");
  deletes("Query 20");
  EXPECT_EQ(Note(), QStringLiteral("“Query 19” was deleted, and one before it."));
  Key(Qt::Key_End);
  deletes("Query 20");
  // A fault does not take the offer away.
  Pane.ShowNote(QStringLiteral("No"));
  user::Click(*Pane.findChild<QWidget*>(QStringLiteral("store.noteClose")));
  EXPECT_EQ(Note(), QStringLiteral("“Query 21” was deleted, and 2 before it."));
  undo();
  EXPECT_EQ(Selected(), QStringLiteral("Query 21"));
  EXPECT_EQ(Note(), QStringLiteral("“Query 19” was deleted, and one before it."));
  MayLeave = false;
  undo();
  MayLeave = true;
  undo();
  EXPECT_EQ(Selected(), QStringLiteral("Query 19"));
  undo();
  EXPECT_EQ(Note(), QString());
  EXPECT_EQ(Names(), all);
  {
    TAnswers answers({Press(QMessageBox::Yes), Press(QMessageBox::Yes)});
    Key(Qt::Key_Delete);
    user::Click(*Pane.findChild<QWidget*>(QStringLiteral("store.noteClose")));
    Key(Qt::Key_Delete);
  }
  EXPECT_FALSE(Note().contains(QStringLiteral("before it"))) << "a closed note takes back nothing any more";
}

TEST_F(StorePane, BringsBackWhatHasAnotherIdOrNameNow) {
  TSqlConnection connection({.Kind = dkSQLite, .Database = FromQString(Folder.filePath(QStringLiteral("a.sqlite")))},
                            {.MustExist = false});
  TJSqlQueryBase base(connection.GetName());
  base.Open();
  for (const char* name : {"A", "B", "C", "D"}) base.AddQuery(name, {});
  Pane.SetQueryBase(&base);
  Settle();
  QStringList ids;
  for (int i = 0; i < base.Count(); ++i) ids << ToQString(base.GetStoredQuery(i).Entry().Id);
  Pane.SetOrder(ids);
  const auto undo = [this] { user::Click(*Pane.findChild<QPushButton*>(QStringLiteral("store.noteButton"))); };
  const auto deletes = [&](int row) {
    TAnswers answers({Press(QMessageBox::Yes)});
    Pane.List().setFocus();
    Pane.List().setCurrentIndex(Rows().index(row, 0));
    Key(Qt::Key_Delete);
    EXPECT_TRUE(answers.AllGiven());
  };
  const QStringList all = Names();
  deletes(2);
  deletes(1);
  undo();
  undo();
  EXPECT_EQ(Names(), all);
  deletes(0);
  base.AddQuery("a", {});
  Settle();
  undo();
  EXPECT_EQ(Names()[0], QStringLiteral("A 2"));
  EXPECT_EQ(Note(), QString());

  // A fault that the host tells does not take the offer away; another base does, even while the user is asked.
  QStringList told;
  Pane.OnError = [&told](const QString& words) { told << words; };
  deletes(0);
  connection.Execute(
      "CREATE TRIGGER full BEFORE INSERT ON tolvi_queries BEGIN SELECT RAISE(ABORT, 'there is no room'); END");
  undo();
  EXPECT_EQ(told.size(), 1);
  EXPECT_EQ(Note(), QStringLiteral("“A 2” was deleted."));
  Pane.OnMayLeave = [this] {
    Pane.SetQueryBase(&Base);
    return true;
  };
  undo();
  EXPECT_EQ(Note(), QString());
  EXPECT_EQ(Base.Count(), 3);
}

TEST_F(StorePane, PromisesToBringBackOnlyWhatCanBeRead) {
  const QString file = Folder.filePath(QStringLiteral("apples.qry"));
  ASSERT_TRUE(QFile::remove(file) && QDir().mkdir(file));
  TAnswers answers({Press(QMessageBox::No)});
  Key(Qt::Key_Delete);
  ASSERT_TRUE(answers.AllGiven());
  EXPECT_TRUE(answers.Texts[0].endsWith(QStringLiteral("It cannot be read: you cannot take that back.")));
}

TEST_F(StorePane, WritesNamesInTheirOwnDirection) {
  Base.RenameQuery(Base.IndexByName("Bread"), "Bread (dark, and as fresh as can be)");
  Settle();
  for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    QStyleOptionViewItem option;
    option.initFrom(&Pane.List());
    option.state = QStyle::State_Enabled;
    option.direction = direction;
    option.rect = QRect({}, QSize(150, Pane.List().sizeHintForRow(1)));
    QImage image(option.rect.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setLayoutDirection(direction);
    Pane.List().itemDelegate()->paint(&painter, option, Rows().index(1, 0));
    QRegion ink;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (qGray(image.pixel(x, y)) < 160) ink += QRect(x, y, 1, 1);
      }
    }
    const QRect text = ink.boundingRect();
    const auto heightAt = [&](int x) { return (ink & QRect(x, 0, 3, image.height())).boundingRect().height(); };
    EXPECT_GT(text.width(), 100);
    EXPECT_GT(heightAt(text.left()), 2 * heightAt(text.right() - 2)) << "the dots stay behind the text: " << direction;
  }
}

TEST_F(StorePane, DescribesInSeveralLines) {
  TAnswers answers({[](QDialog& dialog) {
    dialog.findChild<QPlainTextEdit*>()->setPlainText(QStringLiteral("One\nTwo"));
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Return, Qt::ControlModifier);
  }});
  Key(Qt::Key_Return, Qt::AltModifier);
  EXPECT_TRUE(answers.AllGiven());
  EXPECT_EQ(Base.GetQuery(0).GetDescription(), "One\nTwo");
  EXPECT_EQ(Rows().index(0, 0).data(TStoreModel::RoleDescription).toString(), QStringLiteral("One Two"));
}

TEST_F(StorePane, KeepsTheOrderOfTheUser) {
  int changes = 0;
  Pane.OnOrderChange = [&] { ++changes; };
  Pane.SetOrder({QStringLiteral("elsewhere.qry"), QStringLiteral("Élan.qry")});
  Base.SetItemIndex(Base.IndexByName("Bread"));
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("Élan"), QStringLiteral("apples"), QStringLiteral("Bread")}));
  Key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Pane.GetOrder(), (QStringList{QStringLiteral("Élan.qry"), QStringLiteral("Bread.qry"),
                                          QStringLiteral("apples.qry"), QStringLiteral("elsewhere.qry")}));
  EXPECT_EQ(changes, 1);
  // In a folder, a renamed query has another ID, and keeps its place.
  Base.RenameQuery(Base.IndexByName("Bread"), "Toast");
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("Élan"), QStringLiteral("Toast"), QStringLiteral("apples")}));
  EXPECT_EQ(Pane.GetOrder()[1], QStringLiteral("Toast.qry"));
  EXPECT_EQ(changes, 2);
}

TEST_F(StorePane, DragsAQueryWithoutShowingIt) {
  QWidget& viewport = *Pane.List().viewport();
  const auto at = [this](int row, int part) {
    const QRect rect = Pane.List().visualRect(Rows().index(row, 0));
    return QPoint(rect.center().x(), rect.top() + rect.height() * part / 4);
  };
  QTest::mousePress(&viewport, Qt::LeftButton, {}, at(2, 2));
  Settle();
  QTest::mouseMove(&viewport, at(1, 2));
  QTest::mouseMove(&viewport, at(0, 1));
  QTest::mouseRelease(&viewport, Qt::LeftButton, {}, at(0, 1));
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("Élan"), QStringLiteral("apples"), QStringLiteral("Bread")}));
  EXPECT_EQ(Current(), QStringLiteral("apples"));
  EXPECT_EQ(Selected(), QStringLiteral("apples"));
  EXPECT_EQ(Asked, 0);
}

TEST_F(StorePane, TellsOfUnsavedChangesAndOfThoseOfOthers) {
  Pane.SetModified(true);
  const auto spoken = [this](int row) { return Rows().index(row, 0).data(Qt::AccessibleTextRole).toString(); };
  EXPECT_EQ(spoken(0), QStringLiteral("apples, shown, changes not saved"));
  {
    TJFileQueryBase other;
    other.SetFolder(FromQString(Folder.path()));
    other.Open();
    other.DescribeQuery(other.IndexByName("Bread"), "Baked");
    other.AddQuery("Cake", {});
    other.EraseQuery(other.IndexByName("Élan"));
  }
  Key(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(Names(), (QStringList{QStringLiteral("apples"), QStringLiteral("Bread"), QStringLiteral("Cake")}));
  EXPECT_TRUE(spoken(1).startsWith(QStringLiteral("Bread, Changed by "))) << FromQString(spoken(1));
  EXPECT_TRUE(spoken(1).endsWith(QStringLiteral(", Baked")));
  Key(Qt::Key_Down);
  EXPECT_EQ(spoken(1), QStringLiteral("Bread, shown, changes not saved, Baked"));
}

TEST_F(StorePane, ShowsErrorsUntilTheyAreClosed) {
  QTemporaryDir gone;
  QFile(Folder.filePath(QStringLiteral("apples.qry"))).remove();
  Key(Qt::Key_Down);
  Key(Qt::Key_Up);
  EXPECT_EQ(Note(), QStringLiteral("The query \"apples\" is no longer stored: somebody has erased it"));
  user::Click(*Pane.findChild<QWidget*>(QStringLiteral("store.noteClose")));
  EXPECT_EQ(Note(), QString());
  QString told;
  Pane.OnError = [&](const QString& words) { told = words; };
  Key(Qt::Key_Down);
  Key(Qt::Key_Up);
  EXPECT_TRUE(told.contains(QStringLiteral("no longer stored")));
  EXPECT_EQ(Note(), QString());
}

TEST_F(StorePane, OutlivesItsBaseAndGoesInItsOwnHandler) {
  auto base = std::make_unique<TJFileQueryBase>();
  base->SetFolder(FromQString(Folder.path()));
  base->Open();
  auto* pane = new TStorePane;
  pane->SetQueryBase(base.get());
  EXPECT_EQ(pane->List().model()->rowCount(), 3);
  base->Close();
  Settle();
  EXPECT_EQ(pane->List().model()->rowCount(), 0);
  EXPECT_EQ(pane->findChild<QLabel*>(QStringLiteral("store.empty"))->text(), QStringLiteral("No store is open."));
  base->Open();
  pane->OnMayLeave = [pane] {
    delete pane;
    return true;
  };
  pane->NewQuery();
  EXPECT_EQ(base->Count(), 3);
  auto other = std::make_unique<TStorePane>();
  other->SetQueryBase(base.get());
  base.reset();
  Settle();
  other->NewQuery();
  EXPECT_EQ(other->GetQueryBase(), nullptr);
}

/// Queries that are kept nowhere.
class TManyQueries final : public TJStoredQueryBase {
 public:
  int Size = 0;

 protected:
  std::vector<TQueryEntry> ReadEntries() override {
    std::vector<TQueryEntry> entries;
    for (int i = 0; i < Size; ++i) {
      const std::string number = std::to_string(i);
      entries.push_back({.Id = number,
                         .Name = "Query " + number,
                         .Description = "What " + number + " says",
                         .Owner = {},
                         .ChangedAt = {},
                         .Revision = "1"});
    }
    return entries;
  }
  std::optional<TQueryCopy> ReadCopy(std::string_view) override { return std::nullopt; }
  TQueryEntry InsertCopy(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<TQueryEntry> ReplaceCopy(const TQueryEntry&, std::string_view, std::string_view,
                                         std::string_view) override {
    return std::nullopt;
  }
  bool EraseCopy(const TQueryEntry&) override { return true; }
};

TEST(StoreOfThousands, IsListedSearchedAndRefreshedAtOnce) {
  constexpr int Count = 5000;
  TManyQueries base;
  TStorePane pane;
  pane.SetQueryBase(&base);
  base.Open();
  pane.show();
  base.Size = Count;
  int resets = 0;
  QObject::connect(pane.List().model(), &QAbstractItemModel::modelReset, [&] { ++resets; });
  base.Refresh();
  Settle();
  EXPECT_EQ(pane.List().model()->rowCount(), Count);
  EXPECT_EQ(resets, 1) << "changes are shown together";
  QElapsedTimer time;
  time.start();
  pane.SearchLine().setText(QStringLiteral("query 4999"));
  pane.SearchLine().clear();
  for (int i = 0; i < 20; ++i) {
    base.SetItemIndex(i * 200);
    Settle();
  }
  EXPECT_LT(time.elapsed(), 4000);
  EXPECT_EQ(pane.List().currentIndex().data().toString(), ToQString(base.GetCurrentQuery()->GetQueryName()));
}

}  // namespace
}  // namespace tolvi
