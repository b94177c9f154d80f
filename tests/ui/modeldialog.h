// The model editor on a model of orders, as users work in it.
#pragma once

#include <QMessageBox>
#include <QSettings>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <memory>
#include <stdexcept>

#include <gtest/gtest.h>

#include "support/models.h"
#include "uitest.h"
#include <tolvi/ui/dialogs/checkedline.h>
#include <tolvi/ui/dialogs/modeldlg.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

using namespace Qt::Literals::StringLiterals;

class ModelDialog : public TUiTest {
 protected:
  void SetUp() override {
    TUiTest::SetUp();
    // The user's own places stay as they are.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
  }

  void Open(std::vector<TModelFormat> formats = {}) {
    dialog = std::make_unique<T_dlgModelEdit>(*model, std::move(formats), &window);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    user::Settle();
  }
  void GoTo(const QString& page) {
    auto& pages = *dialog->findChild<QTabWidget*>(QString(), Qt::FindChildrenRecursively);
    while (pages.currentWidget()->objectName() != page) Press(Qt::Key_Tab, Qt::ControlModifier);
  }
  /// To whatever has the focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    // As a window system does when a message box is closed.
    if (QApplication::activeWindow() == nullptr) QApplication::setActiveWindow(dialog.get());
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : dialog.get(), key, modifiers);
    user::Settle();
  }
  void TypeAndEnter(const QString& text) {
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(text);
    Press(Qt::Key_Return);
  }
  /// Answers the next message box, whose text this returns.
  std::shared_ptr<QString> Answer(QMessageBox::StandardButton button) {
    auto told = std::make_shared<QString>();
    QTimer::singleShot(0, &window, [this, told, button] { AnswerNow(told, button, 200); });
    return told;
  }
  template <typename T>
  T& Named(const QString& accessibleName) {
    for (T* widget : dialog->findChildren<T*>()) {
      if (widget->accessibleName() == accessibleName && widget->isVisible()) return *widget;
    }
    throw std::runtime_error("nothing is called " + accessibleName.toStdString());
  }
  template <typename T>
  T& WithText(const QString& text) {
    for (T* widget : dialog->findChildren<T*>()) {
      if (widget->text() == text && widget->isVisible()) return *widget;
    }
    throw std::runtime_error("nothing has the text " + text.toStdString());
  }
  QTreeView& Tables() { return Named<QTreeView>(u"Tables"_s); }
  QTreeView& Fields() { return Named<QTreeView>(u"Fields in groups"_s); }
  TCheckedLine& Line(const QString& name) { return Named<TCheckedLine>(name); }
  TJCustomDBStructure& Copy() { return dialog->Model(); }
  std::string Aliases() {
    TStrings aliases;
    Copy().GetTableNames(tnAlias, aliases);
    return aliases.Joined(" ");
  }
  /// Chooses the rows, of which the first columns hold these texts.
  void Choose(QTreeView& tree, const QStringList& texts) {
    tree.setFocus();
    tree.clearSelection();
    for (const QString& text : texts) {
      const QModelIndexList found = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, text, 1,
                                                        Qt::MatchExactly | Qt::MatchRecursive);
      ASSERT_FALSE(found.isEmpty()) << text.toStdString();
      tree.scrollTo(found[0]);
      tree.selectionModel()->setCurrentIndex(found[0], QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    user::Settle();
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  std::unique_ptr<T_dlgModelEdit> dialog;
  QTemporaryDir folder;

 private:
  void AnswerNow(const std::shared_ptr<QString>& told, QMessageBox::StandardButton button, int tries) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) {
      if (tries > 0) QTimer::singleShot(5, &window, [=, this] { AnswerNow(told, button, tries - 1); });
      return;
    }
    *told = box->text() + u'|' + box->informativeText();
    box->button(button)->click();
  }
};

}  // namespace tolvi
