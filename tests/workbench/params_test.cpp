#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QCompleter>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "apps/workbench/connection/paramedit.h"
#include "apps/workbench/connection/paramsdlg.h"
#include "tests/support/models.h"
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

class Params : public testing::Test {
 protected:
  void SetUp() override {
    // The formats of a German.
    TFormatSettings settings;
    settings.DecimalSeparator = ',';
    settings.DateSeparator = '.';
    settings.ShortDateFormat = "dd/mm/yyyy";
    Panel.SetDBStruct(Model.get());
    Panel.SetFormatSettings(settings);
    Panel.SetActive(true);
    Panel.SetQueryName("Late");
  }

  TSQLParam& Add(const char* field, const char* op, const char* name, TJQueryPanel* panel = nullptr) {
    TJQueryPanel& into = panel != nullptr ? *panel : Panel;
    TSimpleCond& row = into.AddSimpleCond(into.RootBracket(), FieldOf(*Model, field), OperatorOf(*Model, op), "");
    row.SetValueIsParam(1, true);
    row.GetParam(1)->SetParamName(name);
    return *row.GetParam(1);
  }

  bool Ask(const std::function<void()>& act) {
    QTimer timer;
    timer.callOnTimeout([&] {
      FDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (FDialog == nullptr || !FDialog->isVisible()) return;
      timer.stop();
      QApplication::setActiveWindow(FDialog);
      act();
      if (FDialog != nullptr && FDialog->isVisible()) FDialog->reject();
    });
    timer.start(2);
    return AskParams(nullptr, Panel, Last, Source);
  }

  template <typename T>
  T& Editor(const char* param) {
    T* editor = FDialog->findChild<TParamEdit*>(QStringLiteral("params.") + QLatin1String(param))->findChild<T*>();
    EXPECT_NE(editor, nullptr) << param;
    return *editor;
  }
  void Type(const char* param, const QString& text) {
    auto& line = Editor<QLineEdit>(param);
    line.selectAll();
    for (const QChar c : text) QTest::keyClick(&line, c.toLatin1());
  }
  std::string Fault(const char* param) {
    return FromQString(
        FDialog->findChild<QLabel*>(QStringLiteral("params.") + QLatin1String(param) + QStringLiteral(".fault"))
            ->text());
  }
  QPushButton& Ok() { return *FDialog->findChild<QPushButton*>(QStringLiteral("params.ok")); }
  QString Remembered(const char* param) {
    const QString* value = Last.Get(TParamMemory::KeyOf(Source, "LATE", param));
    return value != nullptr ? *value : QStringLiteral("(none)");
  }
  std::vector<std::string> Values() {
    std::vector<std::string> values;
    for (const TBoundValue& value : Panel.GetBoundStatement().Values) values.push_back(value.Text);
    return values;
  }

  std::unique_ptr<TJDBStructure> Model = OrdersModel();
  TJQueryPanel Panel;
  const QString Source = QStringLiteral("shop");
  TParamMemory Last;
  QPointer<QDialog> FDialog;
};

TEST_F(Params, OfAQueryWithoutAnyAreNotAskedFor) { EXPECT_TRUE(AskParams(nullptr, Panel, Last, Source)); }

TEST_F(Params, AreAskedForByTheirTypesAndGivenToTheQuery) {
  Panel.RFields().Add(FieldOf(*Model, "Orders.OrderNo"));
  Add("Orders.Total", "GreaterThan", "Least");
  Add("Orders.SaleDate", "GreaterOrEqual", "Day").SetDisplayName("Since when?");
  Add("Orders.ShipDate", "LessThan", "Moment");
  Add("Customers.Active", "Equal", "Active");
  Add("Customers.City", "InList", "Cities");
  Add("Customers.Company", "Equal", "Company");
  EXPECT_TRUE(Ask([this] {
    EXPECT_EQ(Fault("Least"), "") << "nothing is complained of beforehand";
    for (const char* words : {"Least", "Total is greater than …", "Since when?"}) {
      const QList<QLabel*> labels = FDialog->findChildren<QLabel*>();
      EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [words](const QLabel* label) {
        return label->text() == QString::fromUtf8(words);
      })) << words;
    }
    Type("Least", QStringLiteral("12,5x"));
    EXPECT_NE(Fault("Least"), "");
    Type("Least", QStringLiteral("12,5"));
    EXPECT_EQ(Fault("Least"), "");
    Type("Day", QStringLiteral("2025-02-31"));
    EXPECT_NE(Fault("Day"), "");
    Type("Day", QStringLiteral("2025-02-28"));
    Type("Moment", QStringLiteral("2025-03-01 12:30"));
    Editor<QComboBox>("Active").setFocus();
    QTest::keyClick(&Editor<QComboBox>("Active"), Qt::Key_Down);
    Editor<QPlainTextEdit>("Cities").setPlainText(QStringLiteral("Köln\n\nKing's Lynn, Norfolk"));
    // An empty text is a value.
    QTest::mouseClick(&Ok(), Qt::LeftButton);
  }));
  const std::vector<std::string> values{
      "12.5", "2025-02-28", "2025-03-01 12:30:00", "true", "Köln", "King's Lynn, Norfolk", ""};
  EXPECT_EQ(Values(), values);
  EXPECT_EQ(Remembered("least"), QStringLiteral("12.5"));
  EXPECT_EQ(Remembered("Day"), QStringLiteral("2025-02-28"));
  EXPECT_EQ(Remembered("Active"), QStringLiteral("1"));
}

TEST_F(Params, BeginWithTheirOwnValueOrElseTheLastOne) {
  Add("Orders.Total", "GreaterThan", "Least");
  Add("Orders.SaleDate", "Equal", "Day").SetValue("45000");
  Add("Orders.SaleDate", "Equal", "Other");
  Last.Set(TParamMemory::KeyOf(Source, "late", "LEAST"), QStringLiteral("7.25"));
  Last.Set(TParamMemory::KeyOf(Source, "Late", "Day"), QStringLiteral("2000-01-01"));
  Last.Set(TParamMemory::KeyOf(Source, "Late", "Other"), QStringLiteral("no day"));
  EXPECT_FALSE(Ask([this] {
    EXPECT_EQ(Editor<QLineEdit>("Least").text(), QStringLiteral("7,25"));
    EXPECT_EQ(ToEditForm("45000", ListParams(Panel)[1], Panel), QStringLiteral("2023-03-15"));
    EXPECT_NE(Fault("Other"), "") << "what is wrong from the start is told";
    EXPECT_EQ(FDialog->focusWidget(), &Editor<QLineEdit>("Other"));
    QTest::mouseClick(&Ok(), Qt::LeftButton);
    EXPECT_TRUE(FDialog->isVisible());
    Type("Least", QStringLiteral("8"));
    QTest::keyClick(FDialog, Qt::Key_Escape);
  }));
  EXPECT_EQ(ListParams(Panel)[0].Value, "");
  EXPECT_EQ(Remembered("Least"), QStringLiteral("7.25"));
}

TEST_F(Params, ThatAreMissingAreLedToAndExplained) {
  Add("Orders.SaleDate", "Equal", "First").SetValue("45000");
  for (int i = 0; i < 40; ++i) Add("Orders.SaleDate", "Equal", ("Day" + std::to_string(i)).c_str());
  EXPECT_FALSE(Ask([this] {
    EXPECT_TRUE(Editor<QLineEdit>("Day0").placeholderText().contains(QStringLiteral("example"))) << "not a value";
    Editor<QLineEdit>("First").setFocus();
    const auto isSeen = [this](const char* param) {
      const auto* label =
          FDialog->findChild<QLabel*>(QStringLiteral("params.") + QLatin1String(param) + QStringLiteral(".fault"));
      return label->visibleRegion().boundingRect() == label->rect();
    };
    const auto isLedTo = [&](const char* param) {
      return QTest::qWaitFor([&] { return isSeen(param); }) && FDialog->focusWidget() == &Editor<QLineEdit>(param);
    };
    QTest::mouseClick(&Ok(), Qt::LeftButton);
    EXPECT_EQ(Fault("Day0"), "A value is needed.");
    EXPECT_TRUE(isLedTo("Day0"));
    for (int i = 0; i < 39; ++i) {
      Editor<QLineEdit>(("Day" + std::to_string(i)).c_str()).setText(QStringLiteral("2025-02-28"));
    }
    EXPECT_FALSE(isSeen("Day39"));
    QTest::keyClick(&Editor<QLineEdit>("Day0"), Qt::Key_Return);
    EXPECT_TRUE(FDialog->isVisible());
    EXPECT_TRUE(isLedTo("Day39"));
  }));
}

TEST_F(Params, GiveTheirFaultsRoomInTheDialog) {
  for (const char* name : {"A", "B", "C", "D", "E", "F"}) Add("Orders.SaleDate", "Equal", name);
  EXPECT_FALSE(Ask([this] {
    QTest::mouseClick(&Ok(), Qt::LeftButton);
    EXPECT_NE(Fault("F"), "");
    const auto* area = FDialog->findChild<QScrollArea*>();
    QTest::qWait(50);
    EXPECT_LE(area->widget()->height(), area->viewport()->height());
  }));
}

TEST_F(Params, AreChosenFromTheListOfTheField) {
  TDSField& city = FieldOf(*Model, "Customers.City");
  city.SetEditType(etList);
  auto& list = dynamic_cast<TDSListEditor&>(*city.GetValueEditor());
  list.Items().SetText("Köln\nParis\nOslo");
  list.Values().SetText("K\nP\nO");
  Add("Customers.City", "Equal", "One");
  Add("Customers.City", "InList", "Some").SetValue("O,X");
  EXPECT_TRUE(Ask([this] {
    auto& box = Editor<QComboBox>("One");
    box.setFocus();
    for (const char c : {'p', 'a', 'r'}) QTest::keyClick(box.lineEdit(), c);
    QTest::keyClick(box.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(box.completer()->popup(), Qt::Key_Return);
    EXPECT_EQ(box.currentText(), QStringLiteral("Paris"));
    auto& checks = Editor<QListWidget>("Some");
    EXPECT_EQ(checks.count(), 4) << "a value that the list has not is kept";
    checks.setFocus();
    checks.setCurrentRow(0);
    QTest::keyClick(&checks, Qt::Key_Space);
    QTest::mouseClick(&Ok(), Qt::LeftButton);
  }));
  const std::vector<TParamInfo> params = ListParams(Panel);
  EXPECT_EQ(params[0].Value, "P");
  EXPECT_EQ(params[1].Value, "K,O,X");
}

TEST_F(Params, AreAskedForByTheirConditionWhereNobodyHasNamedThem) {
  Add("Orders.Total", "GreaterThan", "Param1").SetValue("7,5");
  EXPECT_FALSE(Ask([this] {
    const auto* caption = FDialog->findChild<QLabel*>();
    EXPECT_EQ(caption->text(), QStringLiteral("Total is greater than …"));
    EXPECT_EQ(Editor<QLineEdit>("Param1").accessibleName(), caption->text());
  }));
}

TEST_F(Params, ThatAreListsAreRememberedTheSameInEveryLanguage) {
  Add("Orders.Total", "InList", "Totals");
  Add("Orders.SaleDate", "InList", "Days");
  EXPECT_TRUE(Ask([this] {
    Editor<QPlainTextEdit>("Totals").setPlainText(QStringLiteral("12,5\n7"));
    Editor<QPlainTextEdit>("Days").setPlainText(QStringLiteral("2025-02-28\n2025-03-01"));
    QTest::mouseClick(&Ok(), Qt::LeftButton);
  }));
  EXPECT_EQ(Remembered("Totals"), QStringLiteral("12.5,7"));
  EXPECT_EQ(Remembered("Days"), QStringLiteral("2025-02-28,2025-03-01"));
  const std::vector<std::string> values{"12.5", "7", "2025-02-28", "2025-03-01"};
  EXPECT_EQ(Values(), values);

  for (const char* name : {"Totals", "Days"}) SetParamValue(Panel, name, "");
  EXPECT_FALSE(Ask([this] {
    EXPECT_EQ(Editor<QPlainTextEdit>("Totals").toPlainText(), QStringLiteral("12,5\n7"));
    EXPECT_EQ(Fault("Totals") + Fault("Days"), "");
  }));
}

TEST(ParamMemory, KnowsDatabasesApartAndForgetsTheOldest) {
  TParamMemory memory;
  const QString first = TParamMemory::KeyOf(QStringLiteral("shop"), "Late", "Day");
  EXPECT_NE(first, TParamMemory::KeyOf(QStringLiteral("other"), "Late", "Day"));
  memory.Set(first, QStringLiteral("1"));
  for (std::size_t i = 1; i < TParamMemory::Most; ++i) memory.Set(QString::number(i), QStringLiteral("2"));
  memory.Set(first, QStringLiteral("3"));
  memory.Set(QStringLiteral("new"), QStringLiteral("4"));
  EXPECT_EQ(*memory.Get(first), QStringLiteral("3"));
  EXPECT_EQ(memory.Get(QStringLiteral("1")), nullptr);
  EXPECT_EQ(memory.Values().size(), TParamMemory::Most);
}

TEST_F(Params, TakeADayFromTheCalendarAndKeepTheTime) {
  Add("Orders.ShipDate", "Equal", "When").SetValue("45000,5");
  EXPECT_TRUE(Ask([this] {
    auto& line = Editor<QLineEdit>("When");
    line.setFocus();
    QTimer::singleShot(0, [] {
      auto* calendar = QApplication::activePopupWidget()->findChild<QCalendarWidget*>();
      EXPECT_EQ(calendar->selectedDate(), QDate(2023, 3, 15));
      calendar->setSelectedDate(QDate(2024, 2, 29));
      QMetaObject::invokeMethod(calendar, "activated", Q_ARG(QDate, QDate(2024, 2, 29)));
    });
    QTest::keyClick(&line, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(FDialog->findChild<TParamEdit*>()->GetValue(), QStringLiteral("2024-02-29 12:00:00"));
    QTest::mouseClick(&Ok(), Qt::LeftButton);
  }));
  EXPECT_EQ(ListParams(Panel)[0].Value, "45351,5");
}

TEST_F(Params, OfSubQueriesAreAskedForOnceEachByName) {
  TJQueryPanel inner;
  inner.SetDBStruct(Model.get());
  inner.SetActive(true);
  inner.RFields().Add(FieldOf(*Model, "Orders.CustNo"));
  Add("Orders.SaleDate", "GreaterThan", "Day", &inner);
  TStrings lines;
  inner.SaveToStrings(lines);
  TSimpleCond& row =
      Panel.AddSimpleCond(Panel.RootBracket(), FieldOf(*Model, "Customers.CustNo"), OperatorOf(*Model, "InQuery"), "");
  row.SetSubQuery(lines);
  Add("Orders.SaleDate", "LessThan", "day");
  EXPECT_TRUE(Ask([this] {
    EXPECT_EQ(FDialog->findChildren<TParamEdit*>().size(), 1);
    Editor<QLineEdit>("day").setText(QStringLiteral("2025-01-31"));
    QTest::mouseClick(&Ok(), Qt::LeftButton);
  }));
  for (const TParamInfo& param : ListParams(Panel))
    EXPECT_EQ(ToEditForm(param.Value, param, Panel), QStringLiteral("2025-01-31"));
}

}  // namespace
}  // namespace tolvi
