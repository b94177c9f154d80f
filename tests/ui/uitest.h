// A window with real events: keys and clicks go through the window system, as those of a user do.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

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

  static void Click(QWidget& widget, QPoint at) {
    const QPoint inWindow = widget.mapTo(widget.window(), at);
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {}, inWindow);
  }
  static void Click(QWidget& widget) { Click(widget, widget.rect().center()); }

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

  static QWidget* Popup() { return QApplication::activePopupWidget(); }

  QWidget window;
};

}  // namespace tolvi
