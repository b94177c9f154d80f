// A window with real events: keys and clicks go through the window system, as those of a user do.
#pragma once

#include <gtest/gtest.h>

#include "userevents.h"

namespace tolvi {

class TUiTest : public testing::Test {
 protected:
  void SetUp() override {
    window.resize(600, 400);
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void TearDown() override {
    if (Popup()) Popup()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(window.windowHandle(), key, modifiers);
  }

  void Type(const QString& text) {
    for (const QChar letter : text) QTest::keyClick(QApplication::focusWidget(), letter.toLatin1());
  }

  static void Click(QWidget& widget, QPoint at) { user::Click(widget, at); }
  static void Click(QWidget& widget) { user::Click(widget); }

  template <typename T>
  T& Place(T* widget, int x = 20, int y = 20) {
    widget->setParent(&window);
    widget->move(x, y);
    widget->resize(widget->sizeHint());
    widget->show();
    return *widget;
  }

  /// Without a key or click. The window system must hear of the new window before anything else happens.
  template <typename T>
  static void Open(T& label) {
    label.DropDown();
    QCoreApplication::processEvents();
  }

  static QWidget* Popup() { return user::Popup(); }

  QWidget window;
};

}  // namespace tolvi
