#include "apps/screenshots/session.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "tests/ui/userevents.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>
#include <tolvi/panel/panelcommands.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

struct TCondition {
  const char *Field, *Operator, *Value;
};

constexpr TCondition overFiveHundred{"Turnover", "is greater than", "500"};
constexpr TCondition thisYear{"Order date", "falls in the year", "2025"};
constexpr TCondition cities[] = {{"City", "is equal to", "Berlin"}, {"City", "is equal to", "Paris"}};

struct TColumn {
  const char* Field;
  bool NewestFirst = false;
};

constexpr TColumn columns[] = {{"Order no"}, {"Order date", true}, {"Company"}, {"City"}, {"Turnover"}};

/// Somebody at the window, and what both ways to play have in common.
class TPlayer {
 public:
  TPlayer(THostWindow& window, const TStationEvent& station) : FWindow(window), FStation(station) {}

 protected:
  void Tell(const char* name) {
    user::Settle();
    if (FStation) FStation(name);
  }
  static void NeedPopup(const char* what) {
    user::Settle();
    if (user::Popup() == nullptr) throw EException(std::string("nothing has opened for ") + what);
  }

  THostWindow& FWindow;
  const TStationEvent& FStation;
};

// With keys only

class TKeyPlayer final : public TPlayer {
 public:
  using TPlayer::TPlayer;

  void Play() {
    Tell("start");
    AddCondition(overFiveHundred);
    AddCondition(thisYear);
    Press(Qt::Key_Insert, Qt::ShiftModifier);
    // The second of the four words.
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    Tell("linkword");
    Press(Qt::Key_Return);
    for (const TCondition& city : cities) AddCondition(city);
    Tell("conditions");
    GoToColumns();
    for (const TColumn& column : columns) AddColumn(column);
    Press(Qt::Key_Home);
    Tell("finished");
  }

 private:
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) { user::Press(FWindow, key, modifiers); }
  void GoOn() { Press(FWindow.isRightToLeft() ? Qt::Key_Left : Qt::Key_Right); }

  void Fill(const char* text, const char* station = nullptr) {
    Press(Qt::Key_Return);
    NeedPopup(text);
    user::TypeOver(QLatin1String(text));
    if (station != nullptr) Tell(station);
    Press(Qt::Key_Return);
  }

  void AddCondition(const TCondition& condition) {
    const bool isFirst = &condition == &overFiveHundred;
    Press(Qt::Key_Insert);
    Fill(condition.Field, isFirst ? "field" : nullptr);
    GoOn();
    Fill(condition.Operator);
    GoOn();
    if (isFirst) Fill("5oo", "mistake");
    Fill(condition.Value);
  }

  void GoToColumns() {
    for (int i = 0; !FWindow.GetColumns().isAncestorOf(QApplication::focusWidget()); ++i) {
      if (i == 10) throw EException("Tab does not lead to the columns");
      Press(Qt::Key_Tab);
    }
  }

  void AddColumn(const TColumn& column) {
    // The new row gets the focus, on its field.
    Press(Qt::Key_End);
    Press(Qt::Key_Return);
    Fill(column.Field);
    if (!column.NewestFirst) return;
    GoOn();
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Tell("sorting");
    Press(Qt::Key_Return);
  }
};

// With the mouse

class TMousePlayer final : public TPlayer {
 public:
  using TPlayer::TPlayer;

  void Play() {
    AddCondition(0, 1, overFiveHundred);
    AddCondition(0, 2, thisYear);
    RightClick(Conditions().GetAddRowLabel());
    Tell("menu");
    Choose(pcAddBracket);
    Click(Part(3, "linkWord"));
    ChooseItem(1);
    AddCondition(3, 4, cities[0]);
    AddCondition(3, 5, cities[1]);
    Click(Row(1).GetButton());
    Tell("rowmenu");
    user::Press(FWindow, Qt::Key_Escape);
    MoveBehindAndBack();
    for (const TColumn& column : columns) AddColumn(column);
    Tell("finished");
  }

 private:
  TJQueryPanelView& Conditions() const { return FWindow.GetConditions(); }

  static void Click(QWidget& widget) {
    user::Settle();
    user::Click(widget);
    user::Settle();
  }

  static void RightClick(QWidget& widget) {
    user::Settle();
    user::RightClick(widget);
    user::Settle();
  }

  TQPRow& Row(int number) {
    TFilterRow* row = FWindow.GetPanel().RowByNum(number);
    TQPRow* widget = row != nullptr ? Conditions().RowWidget(*row) : nullptr;
    if (widget == nullptr) throw EException("row " + std::to_string(number) + " is not in sight");
    return *widget;
  }
  QWidget& Part(int row, const char* name) {
    auto* part = Row(row).findChild<QWidget*>(QLatin1String(name));
    if (part == nullptr) throw EException("row " + std::to_string(row) + " has no " + name);
    return *part;
  }

  static void Choose(TPanelCommand command) {
    if (!user::ChooseFromMenu(ToQString(InfoOf(command).Name))) throw EException("the menu lacks a command");
  }

  /// Clicks an item of the list that is open, turning the wheel until it can be seen.
  static void ClickItem(QAbstractItemView& list, const QModelIndex& item) {
    QWidget& area = *list.viewport();
    for (int i = 0; i < 1000 && !area.rect().contains(list.visualRect(item)); ++i) {
      const QPointF at = area.rect().center();
      const int turn = list.visualRect(item).top() < 0 ? 120 : -120;
      QWheelEvent wheel(at, area.mapToGlobal(at), {}, {0, turn}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                        false);
      QApplication::sendEvent(&area, &wheel);
    }
    user::Click(area, list.visualRect(item).center());
    user::Settle();
  }
  static QAbstractItemView& List() {
    NeedPopup("a list");
    auto* list = user::Popup()->findChild<QAbstractItemView*>();
    if (list == nullptr) throw EException("no list has opened");
    return *list;
  }
  static void ChooseItem(int row) {
    QAbstractItemView& list = List();
    ClickItem(list, list.model()->index(row, 0));
  }
  static void ChooseItem(const char* text) {
    QAbstractItemView& list = List();
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      const QModelIndex item = list.model()->index(row, 0);
      const bool isItem = list.model()->flags(item).testFlag(Qt::ItemIsSelectable);
      if (isItem && item.data().toString().startsWith(QLatin1String(text))) return ClickItem(list, item);
    }
    throw EException(std::string("the list lacks ") + text);
  }

  void AddCondition(int inside, int row, const TCondition& condition) {
    const bool isFirst = &condition == &overFiveHundred;
    if (inside == 0) {
      Click(Conditions().GetAddRowLabel());
    } else {
      Click(Row(inside).GetButton());
      Choose(pcAddCondInside);
    }
    Click(Part(row, "field"));
    ChooseItem(condition.Field);
    Click(Part(row, "operator"));
    if (isFirst) Tell("operator");
    ChooseItem(condition.Operator);
    Click(Part(row, "value1"));
    NeedPopup(condition.Value);
    user::TypeOver(QLatin1String(condition.Value));
    // A click beside the editor accepts.
    user::Click(*user::Popup(), QPoint(-3, -3));
    user::Settle();
  }

  void Drag(int row, int below, const char* station = nullptr) {
    TJRndBtn& button = Row(row).GetButton();
    TJRndBtn& target = Row(below).GetButton();
    QWindow* handle = FWindow.windowHandle();
    const QPoint from = button.mapTo(&FWindow, button.rect().center());
    const QPoint to = target.mapTo(&FWindow, QPoint(target.width() / 2, target.height()));
    QTest::mousePress(handle, Qt::LeftButton, {}, from);
    QTest::mouseMove(handle, from + QPoint(0, QApplication::startDragDistance() + 1));
    QTest::mouseMove(handle, to);
    if (station != nullptr) Tell(station);
    user::Settle();
    QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
    user::Settle();
  }

  /// The second condition goes to the end of the bracket, and back to where it was.
  void MoveBehindAndBack() {
    const std::string before = FWindow.GetPanel().SaveToText();
    Drag(2, 5, "drag");
    if (FWindow.GetPanel().SaveToText() == before) throw EException("dragging has moved nothing");
    Drag(5, 1);
    if (FWindow.GetPanel().SaveToText() != before) throw EException("dragging has not moved the row back");
  }

  void AddColumn(const TColumn& column) {
    TJResultFieldsPanel& panel = FWindow.GetColumns();
    Click(panel.GetAddRowLabel());
    Click(*panel.GetLastRow()->GetFieldLabel());
    ChooseItem(column.Field);
    if (!column.NewestFirst) return;
    Click(panel.GetLastRow()->GetSortLabel());
    ChooseItem(2);
  }
};

}  // namespace

void PlayByKeys(THostWindow& window, const TStationEvent& station) { TKeyPlayer(window, station).Play(); }
void PlayByMouse(THostWindow& window, const TStationEvent& station) { TMousePlayer(window, station).Play(); }

std::string CommandTable() {
  std::string table = "| command | keys | what it does |\n|---|---|---|\n";
  for (const std::string& line : CommandHelp({}, {})) {
    table += "| " + ReplaceStr(ReplaceStr(line, "\t", " | "), "; ", " or ") + " |\n";
  }
  return table;
}

}  // namespace tolvi
