#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <memory>

#include <gtest/gtest.h>

#include "uitest.h"
#include <tolvi/foundation/files.h>
#include <tolvi/query/titles.h>
#include <tolvi/ui/dialogs/titlesdlg.h>
#include <tolvi/ui/dialogs/titlesmodel.h>
#include <tolvi/ui/panels/rfldpnl.h>

namespace tolvi {

namespace {

using namespace Qt::Literals::StringLiterals;

class TitlesDialog : public TUiTest {
 protected:
  void Open(const TStrings& defaults, const TStrings& titles = {}) {
    dialog = std::make_unique<T_dlgTitlesEdit>(defaults, titles, &window);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(dialog->windowHandle(), key, modifiers);
  }
  QTreeView& Tree() { return *dialog->findChild<QTreeView*>(); }
  QString Current(int column) { return Tree().currentIndex().siblingAtColumn(column).data().toString(); }
  QString Note() { return Current(TTitlesModel::ColNote); }
  QString Message() {
    for (const QLabel* label : dialog->findChildren<QLabel*>())
      if (label->buddy() == nullptr) return label->text();
    return {};
  }
  QPushButton& Button(const QString& caption) {
    for (auto* button : dialog->findChildren<QPushButton*>())
      if (button->text() == caption) return *button;
    throw std::runtime_error("no button " + caption.toStdString());
  }
  /// The keys that are shown, sections in brackets.
  QString Keys(const QModelIndex& parent = {}) {
    QString keys;
    const QAbstractItemModel& model = *Tree().model();
    for (int row = 0; row < model.rowCount(parent); ++row) {
      const QModelIndex index = model.index(row, 0, parent);
      keys += index.data().toString() + (model.hasChildren(index) ? u"("_s + Keys(index) + u")"_s : u" "_s);
    }
    return keys;
  }
  void Find(const QString& text) {
    Key(Qt::Key_F, Qt::AltModifier);
    QTest::keyClick(dialog->windowHandle(), Qt::Key_A, Qt::ControlModifier);
    Type(text);
    Key(Qt::Key_Return);
  }
  /// Changes the current text.
  void Edit(const QString& text) {
    Key(Qt::Key_F2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete);
    Type(text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCoreApplication::processEvents();  // views take what was typed then
  }

  std::unique_ptr<T_dlgTitlesEdit> dialog;
};

TEST_F(TitlesDialog, FindsAndChangesTextsByKeys) {
  QFont large = window.font();
  large.setPointSize(30);
  window.setFont(large);
  Open(TTitles::DefaultLines());
  const QSize room = window.screen()->availableGeometry().size();
  EXPECT_EQ(dialog->size().boundedTo(room), dialog->size());
  EXPECT_EQ(Current(TTitlesModel::ColKey), u"ttlFilter"_s);
  Find(u"DiViDe"_s);
  EXPECT_EQ(Keys(), u"Result Fields Editor(ttlDivRFldHint )"_s);
  EXPECT_TRUE(Tree().hasFocus());
  Find(u"apply"_s);
  EXPECT_EQ(Keys(), u"Query Panel(ttlFilter ttlBracket )"_s);
  Key(Qt::Key_Home);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  Edit(u"what holds"_s);
  EXPECT_EQ(Current(TTitlesModel::ColText), u"what holds"_s);
  EXPECT_EQ(Note(), u"\"@\" is missing."_s);
  EXPECT_EQ(Message(), u"Texts to be looked at: 1 (see the notes)"_s);
  EXPECT_EQ(Keys(), u"Query Panel(ttlFilter ttlBracket )"_s) << "what is changed stays in view";
  const QModelIndex text = Tree().currentIndex();
  EXPECT_EQ(text.data(Qt::AccessibleTextRole), u"ttlBracket: what holds"_s);
  EXPECT_EQ(text.data(Qt::AccessibleDescriptionRole), Note());
  Edit(u"@ of these"_s);
  EXPECT_EQ(Note() + Message(), QString());
  Key(Qt::Key_Return);
  EXPECT_TRUE(dialog->isVisible()) << "Enter edits, and does not close";
  Key(Qt::Key_Escape);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(dialog->GetTitles().Value("ttlBracket"), "@ of these");
  EXPECT_EQ(dialog->GetTitles().Count(), TTitles::DefaultLines().Count());
  Find(u"nowhere"_s);
  EXPECT_EQ(Keys() + Message(), u"No match"_s);
  EXPECT_FALSE(Button(u"&Reset"_s).isEnabled());
}

TEST_F(TitlesDialog, TextsGoBackToTheDefaultOnes) {
  Open({"ttlUp=Up", "ttlDown=Down", "ttlOff=Off"}, {"ttlUp=Hinauf", "ttlDown=Hinab", "ttlNew=x"});
  EXPECT_EQ(Keys(), u"ttlUp ttlDown ttlOff "_s);
  EXPECT_EQ(Current(TTitlesModel::ColDefault) + u'|' + Current(TTitlesModel::ColText), u"Up|Hinauf"_s);
  Key(Qt::Key_R, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Button(u"&Reset"_s).isEnabled(); }));
  EXPECT_EQ(dialog->GetTitles(), TStrings({"ttlUp=Up", "ttlDown=Hinab", "ttlOff=Off"}));
  Edit(u"x=y"_s);
  EXPECT_EQ(dialog->GetTitles()[0], "ttlUp=x=y");
  Edit({});
  EXPECT_EQ(dialog->GetTitles()[0], "ttlUp=Up");
  Click(Button(u"Reset &All"_s));
  EXPECT_EQ(dialog->GetTitles(), TStrings({"ttlUp=Up", "ttlDown=Down", "ttlOff=Off"}));
  EXPECT_FALSE(Button(u"Reset &All"_s).isEnabled());
  const QModelIndex off = Tree().model()->index(2, TTitlesModel::ColKey);
  Click(*Tree().viewport(), Tree().visualRect(off).center());
  EXPECT_EQ(Tree().currentIndex(), off.siblingAtColumn(TTitlesModel::ColText)) << "a click anywhere in the row";
  EXPECT_FALSE(Tree().model()->setData(off, u"ttlOn"_s));
}

TEST_F(TitlesDialog, FilesAreReadAndWritten) {
  const QTemporaryDir folder;
  const QString file = folder.filePath(u"t\u00e4xte.titles"_s);
  const std::filesystem::path path(file.toStdU16String());
  Open(TTitles::DefaultLines());
  EXPECT_TRUE(dialog->LoadFromFile(QStringLiteral(TOLVI_SOURCE_DIR "/translations/ar.titles")));
  EXPECT_EQ(Message(), QString());
  EXPECT_EQ(dialog->GetTitles().Value("ttlFalse"), "لا");
  WriteFileAtomically(path, "[Query Panel]\nttlAll=x\n[Other]\nkept=1\n");
  EXPECT_TRUE(dialog->SaveToFile(file));
  const std::string saved = ReadFile(path);
  EXPECT_EQ(saved, dialog->GetTitles().Joined("\n") + "\n\n[Other]\nkept=1\n");
  Button(u"Reset &All"_s).click();
  EXPECT_TRUE(dialog->LoadFromFile(file));
  EXPECT_EQ(dialog->GetTitles().Value("ttlFalse"), "لا");

  const struct {
    std::string content;
    QString message;
  } cases[] = {{"[Other]\n\nkept=1\n", file + u" has none of these texts."_s},
               {"[Query Panel]\nttlAll=\xE4\n", file + u" is not a UTF-8 text."_s}};
  for (const auto& [content, message] : cases) {
    WriteFileAtomically(path, content);
    EXPECT_FALSE(dialog->LoadFromFile(file));
    EXPECT_EQ(Message(), message);
    EXPECT_EQ(dialog->GetTitles().Value("ttlFalse"), "لا") << "stays as it was";
  }
  EXPECT_FALSE(dialog->SaveToFile(folder.filePath(u"none/x.titles"_s)));
  EXPECT_TRUE(Message().contains(u"x.titles"_s)) << Message().toStdString();
}

TEST_F(TitlesDialog, OnlyOKChangesTheTitles) {
  const TStrings defaults{"ttlUp=Up"};
  TStrings titles{"ttlUp=Hinauf"};
  const auto edit = [&](QWidget* parent, auto close) {
    QTimer::singleShot(0, &window, [&] {
      auto& shown = *qobject_cast<T_dlgTitlesEdit*>(QApplication::activeModalWidget());
      ASSERT_TRUE(QTest::qWaitFor([&shown] { return shown.isActiveWindow(); }));
      auto& tree = *shown.findChild<QTreeView*>();
      tree.edit(tree.currentIndex());
      auto* editor = tree.viewport()->findChild<QLineEdit*>();
      ASSERT_TRUE(editor);
      editor->setText(u"Rauf"_s);
      close(*shown.findChild<QDialogButtonBox*>());
    });
    return EditTitles(parent, defaults, titles);
  };
  EXPECT_FALSE(edit(&window, [](QDialogButtonBox& box) { box.button(QDialogButtonBox::Cancel)->click(); }));
  auto* parent = new QWidget(&window);
  EXPECT_FALSE(edit(parent, [&](QDialogButtonBox&) { delete parent; }));
  EXPECT_EQ(titles, TStrings{"ttlUp=Hinauf"});
  EXPECT_TRUE(edit(&window, [](QDialogButtonBox& box) { box.button(QDialogButtonBox::Ok)->click(); }));
  EXPECT_EQ(titles, TStrings{"ttlUp=Rauf"}) << "what is being typed counts";
}

TEST_F(TitlesDialog, ThePanelOfResultFieldsFindsItsTextsInAFileOfSeveral) {
  TJResultFieldsPanel panel(&window);
  QTimer::singleShot(0, &window, [] {
    auto& shown = *qobject_cast<T_dlgTitlesEdit*>(QApplication::activeModalWidget());
    EXPECT_TRUE(shown.LoadFromFile(QStringLiteral(TOLVI_SOURCE_DIR "/translations/es.titles")));
    shown.accept();
  });
  EXPECT_TRUE(panel.EditTitles());
  EXPECT_EQ(panel.GetTitle("ttlClickToAdd"), u"Haga clic para a\u00f1adir un campo"_s);
  EXPECT_EQ(panel.GetTitles().Count(), 7u);
}

TEST_F(TitlesDialog, TheModelKeepsTheRulesOfModels) {
  TTitlesModel model(TTitles::DefaultLines(), &window);
  TTitlesFilter filter(model, &window);
  const auto fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
  QAbstractItemModelTester modelTester(&model, fatal), filterTester(&filter, fatal);
  model.SetTitles({"[Query Panel]", "ttlAll=alle", "ttlFilter=ohne"});
  EXPECT_EQ(model.GetFaultCount(), 1);
  for (const QString& text : {u"all"_s, u"ttl"_s, u"no such"_s, QString()}) filter.Find(text);
  const QModelIndex panel = model.index(0, 0);
  EXPECT_FALSE(model.IsChanged(panel));
  model.Reset(panel);
  model.Reset(model.index(0, TTitlesModel::ColKey, panel));
  EXPECT_EQ(model.GetFaultCount(), 0);
  EXPECT_TRUE(model.IsAnyChanged());
  EXPECT_TRUE(model.setData(model.index(2, TTitlesModel::ColText, panel), u"a\r\nb"_s, Qt::EditRole));
  EXPECT_EQ(model.GetTitles().Value("ttlAll"), "a b");
}

}  // namespace

}  // namespace tolvi
