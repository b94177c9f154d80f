#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QCalendarWidget>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <algorithm>

#include <gtest/gtest.h>

#include "uitest.h"
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/dddate.h>
#include <tolvi/ui/controls/ddedit.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/controls/flatcheckbox.h>
#include <tolvi/ui/controls/itemmodel.h>
#include <tolvi/ui/controls/rndbtn.h>

namespace tolvi {

namespace {

using namespace Qt::Literals::StringLiterals;

class Controls : public TUiTest {
 protected:
  /// Notes how often the label closed, and how.
  template <typename T>
  T& Watch(T& label) {
    label.OnAfterDropUp = [this](TDropDownLabel&, bool accepted) { closed += accepted ? u'+' : u'-'; };
    return label;
  }

  template <typename T>
  T& MakeList() {
    T& label = Watch(Place(new T));
    label.AddItem(u"Cities"_s, u"b"_s, u"Berlin"_s);
    label.AddItem(u"Cities"_s, u"m"_s, u"M\u00fcnchen"_s);
    label.AddItem(u"Rivers"_s, u"r"_s, u"Rhine"_s);
    label.AddItem(u"Cities"_s, u"z"_s, u"Z\u00fcrich"_s);
    label.AddItem(QString(), u"n"_s, u"nowhere"_s);
    return label;
  }

  /// What the open list shows, headings in brackets.
  static QString Rows() {
    QStringList rows;
    const QAbstractItemModel& model = *View().model();
    for (int row = 0; row < model.rowCount(); ++row) {
      const QModelIndex index = model.index(row, 0);
      const QString text = index.data().toString();
      rows << (index.data(TItemModel::RoleIsHeading).toBool() ? u'[' + text + u']' : text);
    }
    return rows.join(u' ');
  }
  static QString Highlighted() { return View().currentIndex().data().toString(); }
  static QListView& View() { return *Popup()->findChild<QListView*>(); }
  static QLineEdit& Line() { return *Popup()->findChild<QLineEdit*>(); }
  static bool Tells(const QString& text) {
    const auto labels = Popup()->findChildren<QLabel*>();
    return std::ranges::any_of(labels,
                               [&](const QLabel* label) { return label->isVisible() && label->text() == text; });
  }
  static void ClickRow(int row) {
    Click(*View().viewport(), View().visualRect(View().model()->index(row, 0)).center());
  }

  QString closed;
};

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
}

TEST_F(Controls, ListsFindAnywhereInTheTextIgnoringCaseAndAccents) {
  auto& label = MakeList<TDropDownListBox>();
  label.setFocus();
  Key(Qt::Key_Space);
  EXPECT_EQ(Rows(), u"Berlin M\u00fcnchen Rhine Z\u00fcrich nowhere"_s);
  EXPECT_EQ(Highlighted(), QString());
  Type(u"R"_s);
  EXPECT_EQ(Rows(), u"Berlin Rhine Z\u00fcrich nowhere"_s);
  EXPECT_EQ(Highlighted(), u"Rhine"_s);  // begins with it
  Key(Qt::Key_Backspace);
  Type(u"UR"_s);
  EXPECT_EQ(Rows(), u"Z\u00fcrich"_s);
  Key(Qt::Key_Return);
  EXPECT_EQ(label.GetItemIndex(), 3);
  EXPECT_EQ(label.GetValue(), u"z"_s);
  EXPECT_EQ(label.GetCaption(), u"Z\u00fcrich"_s);

  Key(Qt::Key_Space);
  EXPECT_EQ(Highlighted(), u"Z\u00fcrich"_s);
  Type(u"xyz"_s);
  EXPECT_TRUE(Tells(u"No match"_s));
  Key(Qt::Key_Return);  // nothing to take
  EXPECT_EQ(label.GetValue(), u"z"_s);
  EXPECT_EQ(closed, u"+-"_s);
}

TEST_F(Controls, PopupsHaveHeadingsThatCannotBeChosen) {
  auto& label = MakeList<TDropDownPopup>();
  Open(label);
  EXPECT_EQ(Rows(), u"[Cities] Berlin M\u00fcnchen Z\u00fcrich [Rivers] Rhine [] nowhere"_s);
  const struct {
    Qt::Key key;
    QString highlighted;
  } moves[] = {{Qt::Key_Down, u"Berlin"_s},   {Qt::Key_Down, u"M\u00fcnchen"_s}, {Qt::Key_End, u"nowhere"_s},
               {Qt::Key_Down, u"nowhere"_s},  {Qt::Key_Up, u"Rhine"_s},          {Qt::Key_Up, u"Z\u00fcrich"_s},
               {Qt::Key_PageUp, u"Berlin"_s}, {Qt::Key_PageDown, u"nowhere"_s},  {Qt::Key_Home, u"Berlin"_s},
               {Qt::Key_Up, u"Berlin"_s}};
  for (const auto& [key, highlighted] : moves) {
    Key(key);
    EXPECT_EQ(Highlighted(), highlighted) << key;
  }
  const QImage row = View().viewport()->grab(View().visualRect(View().currentIndex())).toImage();
  EXPECT_EQ(row.pixelColor(1, row.height() / 2), row.pixelColor(row.width() - 2, row.height() / 2))
      << "the highlight is as wide as the list";
  ClickRow(0);
  ClickRow(6);
  EXPECT_TRUE(label.IsDroppedDown());
  ClickRow(2);
  EXPECT_EQ(label.GetItemIndex(), 1);
  Open(label);
  Type(u"rh"_s);
  EXPECT_EQ(Rows(), u"[Rivers] Rhine"_s);
  Click(window, {500, 390});
  EXPECT_EQ(label.GetValue(), u"r"_s);
  EXPECT_EQ(closed, u"++"_s);
}

TEST_F(Controls, ListsCanBeFilledWhileTheyAreOpen) {
  auto& label = Watch(Place(new TDropDownPopup));
  label.SetValue(u"2"_s);
  label.SetBusy(true);
  Open(label);
  EXPECT_TRUE(Tells(u"Loading..."_s));
  Type(u"t"_s);
  label.SetBusy(false);
  label.SetListFault(u"The server is away."_s);
  EXPECT_TRUE(Tells(u"The server is away."_s));
  label.SetListFault({});
  EXPECT_TRUE(Tells(u"Nothing to choose from"_s));
  label.SetItems({{{}, u"1"_s, u"one"_s}, {{}, u"2"_s, u"two"_s}, {{}, u"3"_s, u"three"_s}});
  EXPECT_EQ(Rows(), u"two three"_s);
  EXPECT_EQ(Highlighted(), u"two"_s);
  EXPECT_EQ(label.GetItemIndex(), 1);
  label.SetItemIndex(7);
  EXPECT_EQ(label.GetItemIndex(), -1);
  EXPECT_EQ(label.GetValue() + label.GetCaption(), QString());
}

TEST_F(Controls, ListsHoldTwentyThousandItems) {
  auto& label = Place(new TDropDownPopup);
  std::vector<TDropDownItem> items;
  for (int i = 0; i < 20000; ++i) {
    const QString number = QString::number(i);
    items.push_back({u"Group "_s + number.left(1), number, u"Item with a n\u00e4me "_s + number});
  }
  QStringList all;
  for (const TDropDownItem& item : items) all << item.Value;
  auto& checkList = Place(new TDropDownCheckList);
  checkList.SetItems(items);
  checkList.SetValue(all.join(u','));
  label.SetItems(std::move(items));
  label.SetItemIndex(12345);
  Open(label);
  EXPECT_EQ(Highlighted(), u"Item with a n\u00e4me 12345"_s);
  EXPECT_TRUE(View().viewport()->rect().contains(View().visualRect(View().currentIndex()).center()));
  Key(Qt::Key_Escape);
  Open(checkList);
  Key(Qt::Key_Return);
  EXPECT_EQ(checkList.GetValue().count(u','), 19999);
}

TEST_F(Controls, EditorsStayOnTheScreen) {
  const QRect screen = window.screen()->availableGeometry();
  auto& label = MakeList<TDropDownPopup>();
  for (int i = 0; i < 100; ++i) label.AddItem({}, QString::number(i), QString(i * 5, u'w'));
  const auto open = [&](QPoint at) {
    window.move(at);
    Open(label);
    const QRect place = Popup()->geometry();
    EXPECT_TRUE(screen.contains(place));
    label.DropUp(false);
    return place;
  };
  const auto place = [&] { return QRect(label.mapToGlobal(QPoint()), label.size()); };
  QRect popup = open(screen.topLeft() + QPoint(100, 0));
  EXPECT_EQ(popup.top(), place().bottom() + 1);
  EXPECT_LE(popup.width(), screen.width() / 2);
  popup = open(screen.bottomLeft() + QPoint(100, -60));
  EXPECT_EQ(popup.bottom(), place().top() - 1);
  open(screen.topRight() + QPoint(-60, 0));
  label.ClearItems();
  label.AddItem({}, u"1"_s, u"one"_s);
  popup = open(screen.center());
  if (window.layoutDirection() == Qt::RightToLeft)
    EXPECT_EQ(popup.right(), place().right());
  else
    EXPECT_EQ(popup.left(), place().left());
}

TEST_F(Controls, CheckListsChooseAnyNumber) {
  auto& label = MakeList<TDropDownCheckList>();
  label.AddItem({}, u"with, comma"_s, u"last"_s);
  label.SetValue(u"unknown,z,b"_s);
  Open(label);
  EXPECT_EQ(Highlighted(), u"Berlin"_s);
  Key(Qt::Key_Space);  // off
  Type(u"last"_s);
  Key(Qt::Key_Down);  // chooses among those found, so that Space is no letter
  Key(Qt::Key_Space);
  Key(Qt::Key_Return);
  EXPECT_EQ(label.GetValue(), u"z,\"with, comma\",unknown"_s);
  EXPECT_EQ(label.GetCaption(), u"Z\u00fcrich, last, unknown"_s);
  label.SetValue({});
  Open(label);
  ClickRow(1);
  ClickRow(2);
  ClickRow(1);
  EXPECT_TRUE(label.IsDroppedDown());
  Key(Qt::Key_Tab);
  EXPECT_EQ(label.GetValue(), u"m"_s);
  Open(label);
  Type(u"a b"_s);
  EXPECT_EQ(Line().text(), u"a b"_s);
  EXPECT_EQ(closed, u"++"_s);
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

TEST_F(Controls, DatesAreReadAsTheyAreTyped) {
  const struct {
    TDateKind kind;
    QString format, typed, value, caption, fault;
  } cases[] = {
      {TDateKind::dkDate, u"dd.mm.yyyy"_s, u"1.2.2026"_s, u"2026-02-01"_s, u"01.02.2026"_s, {}},
      {TDateKind::dkDate, u"dd.mm.yyyy"_s, u"1.2.26"_s, u"2026-02-01"_s, u"01.02.2026"_s, {}},
      {TDateKind::dkDate, u"mm/dd/yyyy"_s, u"2026-02-01"_s, u"2026-02-01"_s, u"02/01/2026"_s, {}},
      {TDateKind::dkDate, u"dd.mm.yyyy"_s, u" "_s, {}, {}, {}},
      {TDateKind::dkDate, u"dd.mm.yyyy"_s, u"30.2.2026"_s, u"30.2.2026"_s, u"30.2.2026"_s,
       u"This is no date. Write it like 31.12.2026."_s},
      {TDateKind::dkTime, u"hh:nn"_s, u"7:5"_s, u"07:05:00"_s, u"07:05"_s, {}},
      {TDateKind::dkTime, u"hh:nn"_s, u"24:00"_s, u"24:00"_s, u"24:00"_s, u"This is no time. Write it like 18:30."_s},
      {TDateKind::dkDateTime,
       u"dd.mm.yyyy hh:nn"_s,
       u"1.2.2026 7:05"_s,
       u"2026-02-01 07:05:00"_s,
       u"01.02.2026 07:05"_s,
       {}},
      {TDateKind::dkDateTime,
       u"dd.mm.yyyy hh:nn"_s,
       u"1.2.2026"_s,
       u"2026-02-01 00:00:00"_s,
       u"01.02.2026 00:00"_s,
       {}},
  };
  for (const auto& each : cases) {
    auto& label = Watch(Place(new TDropDownDate(each.kind)));
    label.SetDisplayFormat(each.format);
    Open(label);
    Type(each.typed);
    EXPECT_TRUE(each.fault.isEmpty() || Tells(each.fault));
    Key(Qt::Key_Return);
    EXPECT_EQ(label.GetValue(), each.value) << each.typed.toStdString();
    EXPECT_EQ(label.GetCaption(), each.caption) << each.typed.toStdString();
    EXPECT_EQ(label.GetFault(), each.fault) << each.typed.toStdString();
    delete &label;
  }
}

TEST_F(Controls, DatesFollowTheLocaleUnlessTheyHaveAFormat) {
  auto& label = Place(new TDropDownDate);
  label.SetValue(u"2026-02-01"_s);
  const struct {
    QLocale locale;
    QString caption;
  } cases[] = {{QLocale(QLocale::German), u"01.02.2026"_s},
               {QLocale(QLocale::English, QLocale::UnitedStates), u"02/01/2026"_s},
               {QLocale(QLocale::Japanese), u"2026/02/01"_s},
               {QLocale::c(), u"2026-02-01"_s}};
  for (const auto& [locale, caption] : cases) {
    label.setLocale(locale);
    EXPECT_EQ(label.GetCaption(), caption) << locale.name().toStdString();
  }
}

TEST_F(Controls, CalendarsWorkByKeysAndClicks) {
  auto& label = Watch(Place(new TDropDownDate(TDateKind::dkDateTime)));
  label.SetValue(u"2026-02-11 07:05:00"_s);
  label.setFocus();
  Key(Qt::Key_F2);
  auto* calendar = Popup()->findChild<QCalendarWidget*>();
  ASSERT_TRUE(calendar);
  EXPECT_EQ(calendar->selectedDate(), QDate(2026, 2, 11));
  Key(Qt::Key_Down);  // into the calendar
  Key(Qt::Key_Down);
  EXPECT_EQ(calendar->selectedDate(), QDate(2026, 2, 18));
  Key(Qt::Key_Return);
  EXPECT_EQ(label.GetValue(), u"2026-02-18 07:05:00"_s);
  EXPECT_TRUE(label.hasFocus());

  Key(Qt::Key_F2);
  Key(Qt::Key_Down);
  Key(Qt::Key_Down);
  Key(Qt::Key_Escape);
  EXPECT_FALSE(label.IsDroppedDown());
  EXPECT_EQ(label.GetValue(), u"2026-02-18 07:05:00"_s);

  Key(Qt::Key_F2);
  Key(Qt::Key_Tab);  // to the button
  Key(Qt::Key_Return);
  EXPECT_TRUE(label.IsDroppedDown());
  EXPECT_TRUE(Line().hasFocus());
  Key(Qt::Key_Return);
  EXPECT_EQ(label.GetValue().left(2), u"20"_s);
  EXPECT_NE(label.GetValue(), u"2026-02-18 07:05:00"_s);
  EXPECT_EQ(closed, u"+-+"_s);

  auto& day = Place(new TDropDownDate, 20, 100);
  day.SetValue(u"2026-02-11"_s);
  Open(day);
  auto* view = Popup()->findChild<QCalendarWidget*>()->findChild<QAbstractItemView*>();
  Click(*view->viewport(),
        view->visualRect(view->currentIndex().siblingAtRow(view->currentIndex().row() + 1)).center());
  EXPECT_EQ(day.GetValue(), u"2026-02-18"_s);
  EXPECT_FALSE(day.IsDroppedDown());
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

TEST_F(Controls, TheModelOfListsKeepsTheRulesOfModels) {
  TItemModel model(true, true, &window);
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.SetItems({{u"g"_s, u"1"_s, u"one"_s}, {{}, u"2"_s, u"two"_s}, {u"g"_s, u"3"_s, u"three"_s}});
  for (const QString& text : {u"o"_s, u"th"_s, u"none"_s, QString()}) model.Find(text);
  model.SetChecked(2, true);
  EXPECT_EQ(model.index(model.RowOfItem(2)).data(Qt::CheckStateRole), QVariant(Qt::Checked));
  EXPECT_EQ(FoldedForSearch(u"\u00c5NGSTR\u00d6M Stra\u00dfe"_s), FoldedForSearch(u"angstrom strasse"_s));
}

}  // namespace

}  // namespace tolvi
