#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include <gtest/gtest.h>

#include "apps/workbench/store/conflictdlg.h"
#include "apps/workbench/store/storepane.h"
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/qpbaselink.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/store/fileqrybase.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// Does something in the next modal dialog.
void InDialog(const std::function<void(QDialog&)>& act) {
  auto* timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) return;
    timer->deleteLater();
    timer->stop();
    act(*dialog);
  });
  timer->start(1);
}

void Choose(const char* button) {
  InDialog([button](QDialog& dialog) {
    dialog.findChild<QAbstractButton*>(QStringLiteral("store.conflict.") + QLatin1String(button))->click();
  });
}

/// Two people have the same query; both have changed its description.
class StoreConflict : public testing::Test {
 protected:
  void SetUp() override {
    Panel.SetDBStruct(&Model);
    Link.SetQueryBase(&Base);
    Pane.SetQueryBase(&Base);
    Open(Base);
    Base.SetItemIndex(Base.AddQuery("Late", {}));
    Open(Theirs);
    Theirs.DescribeQuery(0, "Theirs");
    TStrings mine;
    mine.Add("Mine");
    Panel.SetDescription(mine);
    Pane.OnShownText = [this] {
      TStrings text;
      Panel.SaveToStrings(text);
      return text;
    };
    Pane.OnSettled = [this] { ++Settled; };
    Pane.show();
  }

  void Open(TJFileQueryBase& base) const {
    base.SetFolder(FromQString(Folder.path()));
    base.Open();
  }

  /// "Name: description" of what is stored.
  QStringList Stored() {
    TJFileQueryBase base;
    Open(base);
    QStringList list;
    for (int i = 0; i < base.Count(); ++i) {
      const TJStoredQuery& query = base.GetStoredQuery(i);
      list << ToQString(query.GetQueryName() + ": " + query.GetDescription()).trimmed();
    }
    return list;
  }

  /// As a window does when the user saves.
  void Save() {
    try {
      Base.GetCurrentQuery()->Save();
    } catch (const EQueryConflictError& conflict) {
      SettleConflict(Base, Base.GetItemIndex(), conflict, AskConflict(&Pane, conflict, &Model));
    }
  }

  std::string Shown() const { return Panel.GetQueryName() + ": " + Panel.GetDescription().Joined(" "); }

  QTemporaryDir Folder;
  TJDBStructure Model;
  TJFileQueryBase Base, Theirs;
  TJQueryPanel Panel;
  TJQPBaseLink Link{Panel};
  TStorePane Pane;
  int Settled = 0;
};

struct TSettling {
  const char* Button;
  QStringList Stored;
  const char* Shown;
};

class StoreConflictDialog : public StoreConflict, public testing::WithParamInterface<TSettling> {};

TEST_P(StoreConflictDialog, SettlesAsTheUserWants) {
  Choose(GetParam().Button);
  Save();
  EXPECT_EQ(Stored(), GetParam().Stored);
  EXPECT_EQ(Shown(), GetParam().Shown);
  if (GetParam().Button == std::string_view("cancel")) return;
  EXPECT_NO_THROW(Base.GetCurrentQuery()->Save()) << "once settled, it is";
}

INSTANTIATE_TEST_SUITE_P(All, StoreConflictDialog,
                         testing::Values(TSettling{"cancel", {QStringLiteral("Late: Theirs")}, "Late: Mine"},
                                         TSettling{"saveMine", {QStringLiteral("Late: Mine")}, "Late: Mine"},
                                         TSettling{"takeTheirs", {QStringLiteral("Late: Theirs")}, "Late: Theirs"},
                                         TSettling{
                                             "keepBoth",
                                             {QStringLiteral("Late: Theirs"), QStringLiteral("Late (mine): Mine")},
                                             "Late (mine): Mine"}),
                         [](const auto& info) { return std::string(info.param.Button); });

TEST_F(StoreConflict, ShowsBothQueriesWithWhatDiffersMarked) {
  QString mine, theirs;
  qsizetype marks = 0;
  InDialog([&](QDialog& dialog) {
    auto* own = dialog.findChild<QPlainTextEdit*>(QStringLiteral("store.conflict.mine"));
    mine = own->toPlainText();
    theirs = dialog.findChild<QPlainTextEdit*>(QStringLiteral("store.conflict.theirs"))->toPlainText();
    marks = own->extraSelections().size();
    dialog.reject();
  });
  Save();
  EXPECT_EQ(mine.section(u'\n', 0, 0), QStringLiteral("Mine"));
  EXPECT_EQ(theirs.section(u'\n', 0, 0), QStringLiteral("Theirs"));
  EXPECT_TRUE(mine.contains(QStringLiteral("Choose records where"))) << FromQString(mine);
  EXPECT_EQ(marks, 1);
  EXPECT_EQ(SentencesOf("no query at all", &Model), QStringLiteral("no query at all"));
}

TEST_F(StoreConflict, OfAnErasedQueryStoresItAgainOrDropsIt) {
  Theirs.EraseQuery(0);
  InDialog([](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QAbstractButton*>(QStringLiteral("store.conflict.keepBoth")), nullptr);
    dialog.findChild<QAbstractButton*>(QStringLiteral("store.conflict.saveMine"))->click();
  });
  Save();
  EXPECT_EQ(Stored(), (QStringList{QStringLiteral("Late: Mine")}));
  Theirs.Refresh();
  Theirs.EraseQuery(0);
  Choose("takeTheirs");
  Save();
  EXPECT_EQ(Base.Count(), 0);
  EXPECT_TRUE(Stored().isEmpty());
}

TEST_F(StoreConflict, IsSettledBeforeThePaneRenamesTheShownQuery) {
  Choose("saveMine");
  Pane.Rename();
  auto* line = Pane.findChild<QLineEdit*>(QStringLiteral("store.name"));
  line->setText(QStringLiteral("Later"));
  QTest::keyClick(line, Qt::Key_Return);
  EXPECT_EQ(Stored(), (QStringList{QStringLiteral("Later: Mine")}));
  EXPECT_EQ(Settled, 1);
}

TEST_F(StoreConflict, IsToldBeforeThePaneDeletesWhatOthersHaveChanged) {
  QString asked;
  const auto erase = [&](QMessageBox::StandardButton button) {
    InDialog([&, button](QDialog& dialog) {
      InDialog([&, button](QDialog& second) {
        auto& box = static_cast<QMessageBox&>(second);
        asked = box.text() + u'|' + box.informativeText();
        box.button(button)->click();
      });
      static_cast<QMessageBox&>(dialog).button(QMessageBox::Yes)->click();
    });
    Pane.Erase();
  };
  erase(QMessageBox::No);
  EXPECT_TRUE(asked.startsWith(QStringLiteral("The query \"Late\" was changed by "))) << FromQString(asked);
  EXPECT_TRUE(asked.endsWith(QStringLiteral(" UTC).|Delete it all the same?"))) << FromQString(asked);
  EXPECT_EQ(Stored(), (QStringList{QStringLiteral("Late: Theirs")}));
  erase(QMessageBox::Yes);
  EXPECT_TRUE(Stored().isEmpty());
}

}  // namespace
}  // namespace tolvi
