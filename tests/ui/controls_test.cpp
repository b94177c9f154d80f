#include <QAccessible>
#include <QHelpEvent>
#include <QPointer>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <algorithm>

#include <gtest/gtest.h>

#include "controlstest.h"
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/dddate.h>
#include <tolvi/ui/controls/ddedit.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/controls/flatcheckbox.h>
#include <tolvi/ui/controls/rndbtn.h>
namespace tolvi {

namespace {

using namespace Qt::Literals::StringLiterals;

TEST_F(Controls, LabelsOpenByKeysAndClicksUnlessTheyMayNot) {
  auto& label = Watch(Place(new TDropDownEdit));
  label.setFocus();
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    bool opens;
  } cases[] = {{Qt::Key_Space, {}, true},
               {Qt::Key_Enter, Qt::KeypadModifier, true},
               {Qt::Key_Return, {}, true},
               {Qt::Key_F2, {}, true},
               {Qt::Key_Down, Qt::AltModifier, true},
               {Qt::Key_Down, {}, false},
               {Qt::Key_F2, Qt::ShiftModifier, false},
               {Qt::Key_A, {}, false}};
  for (const auto& [key, modifiers, opens] : cases) {
    closed.clear();
    Key(key, modifiers);
    EXPECT_EQ(label.IsDroppedDown(), opens) << key;
    Key(Qt::Key_Escape);
    EXPECT_FALSE(label.IsDroppedDown());
    EXPECT_EQ(closed, opens ? u"-"_s : QString()) << key;
    EXPECT_TRUE(label.hasFocus());
  }
  auto& list = Place(new TDropDownList, 20, 100);
  Click(list);
  EXPECT_TRUE(list.IsDroppedDown());
  Click(list);  // closes, and does not open again
  EXPECT_FALSE(list.IsDroppedDown());

  label.SetReadOnly(true);
  Click(label);
  Key(Qt::Key_Space);
  EXPECT_FALSE(label.IsDroppedDown());
  label.SetReadOnly(false);
  label.setEnabled(false);
  Open(label);
  EXPECT_FALSE(label.IsDroppedDown());
}

TEST_F(Controls, EditsTakeWhatWasTypedByEnterTabAndLosingTheFocus) {
  auto& label = Watch(Place(new TDropDownEdit));
  auto& next = Place(new TJRndBtn(u"next"_s), 300);
  const auto type = [&](const QString& text) {
    label.setFocus();
    Open(label);
    Type(text);
  };
  type(u"one"_s);
  Key(Qt::Key_Return);
  EXPECT_EQ(label.GetValue(), u"one"_s);
  EXPECT_EQ(label.GetCaption(), u"one"_s);
  EXPECT_TRUE(label.hasFocus());
  type(u"two"_s);  // replaces: all was selected
  Key(Qt::Key_Escape);
  EXPECT_EQ(label.GetValue(), u"one"_s);
  type(u"three"_s);
  Key(Qt::Key_Tab);
  EXPECT_EQ(label.GetValue(), u"three"_s);
  EXPECT_TRUE(next.hasFocus());
  type(u"four"_s);
  Click(next);
  EXPECT_EQ(label.GetValue(), u"four"_s);
  EXPECT_EQ(closed, u"+-++"_s);

  type(u"five"_s);
  label.hide();  // without a word
  EXPECT_FALSE(label.IsDroppedDown());
  EXPECT_EQ(label.GetValue(), u"four"_s);
  EXPECT_EQ(closed, u"+-++"_s);
}

TEST_F(Controls, HandlersMayDestroyTheirSender) {
  const auto makeList = [this] {
    TDropDownList& label = MakeList<TDropDownList>();
    label.OnAfterDropUp = [](TDropDownLabel& sender, bool) { delete &sender; };
    Open(label);
    return QPointer<TDropDownLabel>(&label);
  };
  QPointer<TDropDownLabel> label = makeList();
  Key(Qt::Key_Return);
  EXPECT_FALSE(label);
  label = makeList();
  Key(Qt::Key_Tab);
  EXPECT_FALSE(label);
  label = makeList();
  ClickRow(1);
  EXPECT_FALSE(label);
  label = makeList();
  Click(window, {500, 390});
  EXPECT_FALSE(label);

  label = &Place(new TDropDownDate);
  label->OnBeforeDropDown = [](TDropDownLabel& sender) { delete &sender; };
  Click(*label);
  EXPECT_FALSE(label);
  label = &Place(new TDropDownDate);
  Open(*label);
  delete label;
  EXPECT_FALSE(Popup());

  QPointer<TJRndBtn> button = &Place(new TJRndBtn(u"1"_s));
  button->OnClick = [](TJRndBtn& sender) { delete &sender; };
  Click(*button);
  EXPECT_FALSE(button);
  QPointer<TJFlatCheckBox> box = &Place(new TJFlatCheckBox);
  box->OnClick = [](TJFlatCheckBox& sender) { delete &sender; };
  Click(*box);
  EXPECT_FALSE(box);
}

TEST_F(Controls, LabelsTellScreenReadersWhatTheyAre) {
  auto& label = Place(new TDropDownDate);
  label.SetDisplayFormat(u"dd.mm.yyyy"_s);
  label.SetValue(u"2026-02-01"_s);
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&label);
  ASSERT_TRUE(access);
  EXPECT_EQ(access->role(), QAccessible::ComboBox);
  EXPECT_EQ(access->text(QAccessible::Name), u"01.02.2026"_s);
  EXPECT_EQ(access->text(QAccessible::Value), u"01.02.2026"_s);
  EXPECT_TRUE(access->state().collapsed && access->state().focusable && !access->state().readOnly);
  label.setAccessibleName(u"Due"_s);
  label.SetCaption({});
  EXPECT_EQ(access->text(QAccessible::Value), label.GetPlaceholder());
  label.SetFault(u"Too late"_s);
  EXPECT_EQ(access->text(QAccessible::Name), u"Due"_s);
  EXPECT_EQ(access->text(QAccessible::Description), u"Too late"_s);
  access->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_TRUE(label.IsDroppedDown());
  EXPECT_TRUE(access->state().expanded);
  EXPECT_EQ(Line().accessibleName(), u"Due"_s);
}

TEST_F(Controls, LabelsAreAsLargeAsTheirText) {
  auto& label = Place(new TDropDownEdit);
  const QSize placeholder = label.sizeHint();
  EXPECT_GT(placeholder.width(), label.fontMetrics().horizontalAdvance(u"..."_s));
  label.SetCaption(u"a caption"_s);
  const QSize small = label.sizeHint();
  EXPECT_GT(small.width(), placeholder.width());
  QFont large = label.font();
  large.setPointSize(2 * large.pointSize());
  label.setFont(large);
  EXPECT_GT(label.sizeHint().height(), small.height() * 3 / 2);
  label.resize(label.sizeHint());
  EXPECT_GE(label.GetBaseline(), label.fontMetrics().ascent());
  EXPECT_LE(label.GetBaseline() + label.fontMetrics().descent(), label.height());
  label.SetCaption(QString(5000, u'w'));
  EXPECT_LT(label.sizeHint().width(), label.fontMetrics().horizontalAdvance(QString(200, u'w')));
}

TEST_F(Controls, LabelsShowTheirStateAndTellTheRestInTheirToolTip) {
  auto& label = Place(new TDropDownEdit);
  Place(new TJRndBtn, 300).setFocus();
  label.SetCaption(u"<b>5 & more"_s);
  label.resize(label.sizeHint());
  std::vector<QImage> looks{label.grab().toImage()};
  const auto look = [&](const char* state) {
    looks.push_back(label.grab().toImage());
    EXPECT_EQ(std::ranges::count(looks, looks.back()), 1) << state;
  };
  label.setFocus();
  look("focused");
  Place(new TJRndBtn, 300).setFocus();
  label.SetFault(u"Too <many>"_s);
  look("wrong");
  label.SetFault({});
  label.SetReadOnly(true);
  look("read-only");
  label.setEnabled(false);
  look("disabled");
  label.setEnabled(true);
  label.SetReadOnly(false);
  EXPECT_EQ(label.grab().toImage(), looks.front());

  const auto tip = [&] {
    QHelpEvent asked(QEvent::ToolTip, label.rect().center(), label.mapToGlobal(label.rect().center()));
    QApplication::sendEvent(&label, &asked);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
  };
  EXPECT_EQ(tip(), QString());
  label.SetFault(u"Too <many>"_s);
  EXPECT_EQ(tip(), u"Too <many>"_s);
  label.resize(label.width() / 2, label.height());
  EXPECT_EQ(tip(), u"Too <many>\n<b>5 & more"_s);
}

TEST_F(Controls, ColoursCanBeReadOnAnyBackground) {
  for (const QColor& background : {QColor(Qt::white), QColor(Qt::black), QColor(128, 128, 128), QColor(45, 45, 48)})
    for (const QColor& color : {QColor(Qt::blue), QColor(Qt::yellow), QColor(0, 128, 0), background})
      EXPECT_GE(ContrastRatio(ReadableColor(color, background), background), 4.5)
          << color.name().toStdString() << " on " << background.name().toStdString();
  EXPECT_EQ(ReadableColor(Qt::blue, Qt::white), QColor(Qt::blue));
  // Links of all panels look alike in the dark; a colour of the host's own keeps its hue.
  QPalette palette;
  palette.setColor(QPalette::Link, QColor(110, 170, 255));
  const QColor dark(30, 31, 34), unset, green(0, 128, 0);
  EXPECT_EQ(ReadableLinkColor(Qt::blue, palette, Qt::white), QColor(Qt::blue));
  EXPECT_EQ(ReadableLinkColor(Qt::blue, palette, dark), palette.color(QPalette::Link));
  EXPECT_EQ(ReadableLinkColor(unset, palette, dark), palette.color(QPalette::Link));
  EXPECT_EQ(ReadableLinkColor(green, palette, dark), ReadableColor(green, dark));
}

TEST_F(Controls, EditsShapeAndCheckWhatIsTyped) {
  auto& label = Watch(Place(new TDropDownEdit));
  label.SetTextCase(TTextCase::tcUpper);
  label.SetMaxLength(4);
  label.OnCheck = [](const QString& text) { return text.contains(u'X') ? u"No X, please"_s : QString(); };
  Open(label);
  const int narrow = Popup()->width();
  Type(u"abcde"_s);
  EXPECT_EQ(Line().text(), u"ABCD"_s);
  EXPECT_FALSE(Tells(u"No X, please"_s));
  Line().setText({});
  Type(u"ax"_s);
  EXPECT_TRUE(Tells(u"No X, please"_s));
  EXPECT_EQ(Line().accessibleDescription(), u"No X, please"_s);
  Key(Qt::Key_Return);
  EXPECT_EQ(label.GetValue(), u"AX"_s);
  EXPECT_EQ(label.GetFault(), u"No X, please"_s);

  label.SetMaxLength(0);
  Open(label);
  Type(u"many more letters than at first"_s);
  EXPECT_GT(Popup()->width(), narrow);
  Key(Qt::Key_Return);
  EXPECT_EQ(label.GetFault(), QString());

  label.SetInputMask(u"99.99"_s);
  label.SetValue({});
  Open(label);
  Key(Qt::Key_Return);
  EXPECT_EQ(label.GetValue(), QString());
  Open(label);
  Key(Qt::Key_Home);
  Type(u"3112"_s);
  Key(Qt::Key_Return);
  EXPECT_EQ(label.GetValue(), u"31.12"_s);
  EXPECT_EQ(closed, u"++++"_s);
}

TEST_F(Controls, MemosTakeSeveralLines) {
  auto& label = Watch(Place(new TDropDownMemo));
  label.setFocus();
  Key(Qt::Key_F2);
  Type(u"one"_s);
  Key(Qt::Key_Return);
  Type(u"two"_s);
  EXPECT_TRUE(label.IsDroppedDown());
  Key(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(label.GetValue(), u"one\ntwo"_s);
  EXPECT_LE(label.sizeHint().height(), 2 * label.fontMetrics().height());
  EXPECT_EQ(closed, u"+"_s);
}

TEST_F(Controls, ButtonsAndCheckBoxesWorkByMouseAndKeys) {
  auto& button = Place(new TJRndBtn(u"1"_s));
  button.SetRounded(true);
  EXPECT_EQ(button.sizeHint().width(), button.sizeHint().height());
  button.SetAutoSize(true);
  button.SetText(u"a long text"_s);
  EXPECT_EQ(button.size(), button.sizeHint());
  EXPECT_GT(button.width(), button.fontMetrics().horizontalAdvance(button.text()));
  int clicks = 0;
  button.OnClick = [&](TJRndBtn&) { ++clicks; };
  Click(button);
  button.setFocus();
  Key(Qt::Key_Space);
  Key(Qt::Key_Return);
  EXPECT_EQ(clicks, 3);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&button)->role(), QAccessible::Button);

  auto& box = Place(new TJFlatCheckBox(u"on"_s), 20, 80);
  int switched = 0;
  box.OnClick = [&](TJFlatCheckBox&) { ++switched; };
  Click(box, {box.width() - 2, 2});
  EXPECT_TRUE(box.isChecked());
  box.setFocus();
  Key(Qt::Key_Space);
  EXPECT_FALSE(box.isChecked());
  box.setChecked(true);
  EXPECT_EQ(switched, 2);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&box)->role(), QAccessible::CheckBox);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Name), u"on"_s);
}

}  // namespace

}  // namespace tolvi
