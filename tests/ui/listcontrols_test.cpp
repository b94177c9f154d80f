#include <QAbstractItemModelTester>
#include <QScreen>
#include <algorithm>

#include <gtest/gtest.h>

#include "controlstest.h"
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/controls/itemmodel.h>
namespace tolvi {

namespace {

using namespace Qt::Literals::StringLiterals;

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
