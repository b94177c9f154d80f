#include <QCalendarWidget>
#include <QLocale>

#include <gtest/gtest.h>

#include "controlstest.h"
#include <tolvi/ui/controls/dddate.h>
namespace tolvi {

namespace {

using namespace Qt::Literals::StringLiterals;

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

}  // namespace

}  // namespace tolvi
