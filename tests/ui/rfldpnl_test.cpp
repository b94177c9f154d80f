#include <QApplication>
#include <QContextMenuEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <memory>

#include <gtest/gtest.h>

#include "support/models.h"
#include "uitest.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/panels/rfldpnl.h>

namespace tolvi {
namespace {

std::string MessageOf(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const ERFPanelError& error) {
    return error.Message();
  }
  return "no error";
}

/// A panel in a window, over the model of orders. The columns: Company; sum(Total), descending; count(*); Price * 1.2.
class ResultFieldsPanel : public TUiTest {
 protected:
  void SetUp() override {
    TUiTest::SetUp();
    MakePanel();
  }

  void MakePanel() {
    TRFieldList fields(Model.get());
    fields.Add(FieldOf(*Model, "Customers.Company"));
    TResultField& sum = fields.Add(FieldOf(*Model, "Orders.Total"));
    sum.SetFormula("sum(@1)");
    sum.SetSorting(stDescending);
    TResultField& count = fields.New();
    count.SetFormula("count(*)");
    count.SetCaption("Rows");
    fields.Add(FieldOf(*Model, "Products.Price")).SetFormula("@1 * 1.2");
    Panel = new TJResultFieldsPanel(&window);
    Panel->resize(600, 400);
    Panel->SetDBStruct(Model.get());
    Panel->SetResultFields(fields);
    Panel->Activate();
    Panel->OnChange = [this](TJResultFieldsPanel&) { ++Changes; };
    Panel->show();
  }

  TResultFieldRow& Row(std::size_t index) const { return Panel->GetRows()[index]; }
  TResultField& Field(std::size_t index) const { return (*Panel->GetResultFields())[index]; }

  /// Where the widget stands in the window that shows the rows, from the left or, mirrored, from the right.
  QRect PlaceOf(const QWidget& widget) const {
    const QWidget* view = Panel->viewport();
    QRect place(widget.mapTo(view, QPoint()), widget.size());
    if (Panel->isRightToLeft()) place.moveLeft(view->width() - place.x() - place.width());
    return place;
  }

  TRFPoint Scrolled() const { return {Panel->horizontalScrollBar()->value(), Panel->verticalScrollBar()->value()}; }

  /// Compares what is on the screen with the formulas.
  void CheckPlaces() const {
    const auto widthOf = [](const QWidget* label) { return label ? std::optional(label->width()) : std::nullopt; };
    const auto check = [this](const QWidget* label, const std::optional<TRFPoint>& place) {
      ASSERT_EQ(label != nullptr, place.has_value());
      if (label == nullptr) return;
      EXPECT_EQ(PlaceOf(*label).topLeft(), QPoint(place->X, place->Y));
    };
    const TRFSpaces& spaces = Panel->GetAppearance().Spaces();
    std::optional<TRFBox> last;
    for (std::size_t i = 0; i < Panel->GetRows().Count(); ++i) {
      SCOPED_TRACE(i);
      const TResultFieldRow& row = Row(i);
      const TRFRowSizes sizes{QFontMetrics(Panel->font()).height(), row.GetButton().width(),
                              widthOf(row.GetTextLabel1()), widthOf(row.GetFieldLabel()), widthOf(row.GetTextLabel2())};
      const TRFRowPlaces places = PlaceResultRow(i, sizes, spaces, Scrolled());
      EXPECT_EQ(row.GetButton().text(), QString::number(i + 1));
      EXPECT_EQ(PlaceOf(row.GetButton()),
                QRect(places.Button.Left, places.Button.Top, places.Button.Width, places.Button.Height));
      check(row.GetTextLabel1(), places.Before);
      check(row.GetFieldLabel(), places.Field);
      check(row.GetTextLabel2(), places.After);
      check(&row.GetSortLabel(), places.Sorting);
      last = places.Button;
    }
    const TRFPoint add = PlaceAddRowLabel(last, spaces);
    EXPECT_EQ(PlaceOf(Panel->GetAddRowLabel()).topLeft(), QPoint(add.X, add.Y));
  }

  /// Opens a label, looks for the text and takes what is found.
  void Choose(QWidget& label, const QString& text) {
    label.setFocus();
    Key(Qt::Key_Space);
    ASSERT_NE(Popup(), nullptr);
    Type(text);
    Key(Qt::Key_Return);
  }

  /// Clicks on the row's button, then on the item of its menu.
  void ChooseFromMenu(std::size_t row, int tag) const {
    Click(Row(row).GetButton());
    const QPointer<QMenu> menu = Panel->GetRowMenu();
    for (QAction* action : menu->actions()) {
      if (action->data().toInt() == tag) return Click(*menu, menu->actionGeometry(action).center());
    }
  }

  /// The items of the open menu, which is closed then.
  QStringList EnabledItems() const {
    QStringList items;
    for (const QAction* action : Panel->GetRowMenu()->actions()) {
      if (!action->isSeparator() && action->isEnabled()) items << action->text();
    }
    Panel->GetRowMenu()->close();
    return items;
  }

  std::string Captions() const { return Panel->GetResultFields()->GetCaption(); }

  std::unique_ptr<TJDBStructure> Model = OrdersModel();
  QPointer<TJResultFieldsPanel> Panel;
  int Changes = 0;
};

TEST_F(ResultFieldsPanel, ShowsEachColumnAsARow) {
  EXPECT_EQ(Row(1).GetTextLabel1()->text().remove(QChar(0x200F)), QStringLiteral("SUM("));
  EXPECT_EQ(Row(1).GetFieldLabel()->GetCaption(), QStringLiteral("Total"));
  EXPECT_EQ(Row(1).GetFieldLabel()->GetValue(), QStringLiteral("11"));
  EXPECT_EQ(Row(1).GetFieldLabel()->Items().size(), 20U);
  EXPECT_EQ(Row(1).GetSorting(), stDescending);
  EXPECT_EQ(Row(1).GetSortLabel().GetCaption(), QStringLiteral("Descending"));
  EXPECT_EQ(Row(1).GetButton().accessibleName(), QStringLiteral("2: SUM( Total ), Descending"));
  EXPECT_EQ(Row(1).GetFieldLabel()->accessibleName() + Row(1).GetSortLabel().accessibleName(),
            QStringLiteral("FieldSorting"));
  EXPECT_EQ(Row(2).GetFieldLabel(), nullptr);
  EXPECT_EQ(Panel->GetAddRowLabel().text(), QStringLiteral("< Click to add new field >"));
  EXPECT_EQ(Panel->GetFirstRow(), &Row(0));
  EXPECT_EQ(Panel->GetLastRow(), &Row(3));
  EXPECT_FALSE(Panel->GetRefreshing());
  EXPECT_EQ(Changes, 0);
}

TEST_F(ResultFieldsPanel, PlacesRowsByTheFormulasAtAnyFontAndScrollPosition) {
  CheckPlaces();
  for (const int points : {8, 13, 20}) {
    SCOPED_TRACE(points);
    QFont font = Panel->font();
    font.setPointSize(points);
    Panel->setFont(font);
    CheckPlaces();
    Panel->resize(120, 70);
    Panel->verticalScrollBar()->setValue(25);
    Panel->horizontalScrollBar()->setValue(40);
    EXPECT_EQ(Scrolled(), (TRFPoint{40, 25}));
    CheckPlaces();
    Panel->resize(600, 400);
    EXPECT_EQ(Scrolled(), TRFPoint());
    CheckPlaces();
  }
  TRFPAppearance& appearance = Panel->GetAppearance();
  TRFPAppearance other;
  other.SetLeftMargin(20);
  other.SetTopMargin(11);
  other.SetRowSpace(9);
  other.SetElemSpace(13);
  other.SetNameSeparator(QStringLiteral("->"));
  other.SetOptions(TRFPAppearance::aoShowGroupName);
  FieldOf(*Model, "Orders.Total").SetGroup(Model->FieldGroups().AddGroup("Money"));
  Panel->SetAppearance(other);
  EXPECT_EQ(appearance.GetElemSpace(), 13);
  EXPECT_EQ(PlaceOf(Row(0).GetButton()).topLeft(), QPoint(5, 5));
  Panel->Refresh();
  CheckPlaces();
  EXPECT_EQ(Row(1).GetFieldLabel()->GetCaption(), QStringLiteral("Money->Total"));
  EXPECT_NE(qobject_cast<TDropDownListBox*>(Row(1).GetFieldLabel()), nullptr);
  EXPECT_FALSE(Row(1).GetButton().GetFlat() || Row(1).GetButton().GetRounded());
  Panel->ClearAll();
  CheckPlaces();
}

TEST_F(ResultFieldsPanel, TellsHiddenColumnsFromShownOnes) {
  TRFieldList fields(Model.get());
  fields.Assign(*Panel->GetResultFields());
  fields[1].SetHidden(true);
  Panel->SetResultFields(fields);
  const auto contrast = [this](const QLabel& label) {
    return ContrastRatio(label.palette().color(label.foregroundRole()), Panel->palette().color(QPalette::Base));
  };
  for (const bool isDark : {false, true}) {
    QPalette colors = Panel->palette();
    colors.setColor(QPalette::Base, isDark ? Qt::black : Qt::white);
    colors.setColor(QPalette::Text, isDark ? Qt::white : Qt::black);
    Panel->setPalette(colors);
    EXPECT_LT(contrast(*Row(1).GetTextLabel1()), contrast(*Row(2).GetTextLabel1())) << isDark;
    EXPECT_GE(contrast(*Row(1).GetTextLabel2()), 4.5) << isDark;
  }
  EXPECT_TRUE(Row(1).GetFieldLabel()->font().italic());
  EXPECT_FALSE(Row(0).GetFieldLabel()->font().italic());
  QFont large = Panel->font();
  large.setPointSize(20);
  Panel->setFont(large);
  EXPECT_EQ(Row(1).GetFieldLabel()->font().pointSize(), 20);
  CheckPlaces();
  EXPECT_EQ(Row(1).GetPhrase(), QStringLiteral("2: SUM( Total ), Descending, not shown"));
  EXPECT_EQ(Row(1).GetButton().accessibleName(), Row(1).GetPhrase());
  EXPECT_TRUE(Row(1).GetFieldLabel()->toolTip().contains(QStringLiteral("not shown")));
  EXPECT_EQ(Row(2).GetPhrase(), QStringLiteral("3: COUNT(*), Not Sorted"));
}

TEST_F(ResultFieldsPanel, TakesFieldAndSortingFromTheLabels) {
  Choose(*Row(0).GetFieldLabel(), QStringLiteral("sale date"));
  EXPECT_EQ(Field(0).GetExpression(), "{Orders.SaleDate}");
  EXPECT_EQ(Field(0).GetCaption(), "Sale date");
  EXPECT_EQ(Row(0).GetFieldLabel()->GetCaption(), QStringLiteral("Sale date"));
  EXPECT_TRUE(Row(0).GetFieldLabel()->hasFocus());
  Choose(Row(0).GetSortLabel(), QStringLiteral("desc"));
  EXPECT_EQ(Field(0).GetSorting(), stDescending);
  EXPECT_EQ(Field(0).GetSortOrder(), 0);
  EXPECT_EQ(Row(0).GetButton().accessibleName(), QStringLiteral("1: Sale date, Descending"));
  EXPECT_EQ(Changes, 2);
  CheckPlaces();
  Row(1).GetFieldLabel()->setFocus();
  Key(Qt::Key_Space);
  Key(Qt::Key_Escape);
  EXPECT_EQ(Changes, 2);
}

TEST_F(ResultFieldsPanel, AppendsARowByItsLastLabel) {
  Panel->resize(200, 60);
  Panel->ensureWidgetVisible(&Panel->GetAddRowLabel());
  Click(Panel->GetAddRowLabel());
  Panel->GetAddRowLabel().setFocus();
  Key(Qt::Key_Return);
  EXPECT_EQ(Captions(), "Company, Total, Rows, Price, Customer no, Customer no 2");
  EXPECT_EQ(Row(5).GetSorting(), stNoSort);
  EXPECT_EQ(Panel->verticalScrollBar()->value(), Panel->verticalScrollBar()->maximum());
  EXPECT_EQ(Changes, 2);
  CheckPlaces();

  QString error;
  Panel->OnError = [&error](TJResultFieldsPanel&, const QString& message) { error = message; };
  TJDBStructure empty;
  Panel->SetDBStruct(&empty);
  Panel->Refresh();
  Click(Panel->GetAddRowLabel());
  EXPECT_EQ(error, QStringLiteral("Structure is empty"));
  EXPECT_TRUE(Panel->GetRows().Empty());
  EXPECT_EQ(Changes, 2);
}

TEST_F(ResultFieldsPanel, DeletesAndMovesRowsByTheirMenu) {
  const auto enabled = [this](std::size_t row) {
    const QWidget& button = Row(row).GetButton();
    Click(Row(row).GetButton());
    EXPECT_EQ(Panel->GetCurrentRow(), &Row(row));
    const QPoint below = Panel->GetRowMenu()->pos() - button.mapToGlobal(QPoint(0, button.height()));
    EXPECT_EQ(below.y(), 0);
    if (!Panel->isRightToLeft()) {
      EXPECT_EQ(below.x(), 0);
    }
    return EnabledItems().join(u'|');
  };
  EXPECT_EQ(enabled(0), QStringLiteral("Delete current field|Move Down"));
  EXPECT_EQ(enabled(1), QStringLiteral("Delete current field|Move Up|Move Down"));
  EXPECT_EQ(enabled(3), QStringLiteral("Delete current field|Move Up"));
  EXPECT_EQ(Panel->GetRowMenu()->actions().at(1)->isSeparator(), true);

  Field(0).SetSorting(stAscending);
  Field(0).SetSortOrder(7);
  ChooseFromMenu(0, 3);
  EXPECT_EQ(Changes, 0);
  ChooseFromMenu(0, 4);
  EXPECT_EQ(Captions(), "Total, Company, Rows, Price");
  EXPECT_EQ(Row(1).GetRField(), &Field(1));
  EXPECT_EQ(std::pair(Field(0).GetSortOrder(), Field(1).GetSortOrder()), std::pair(1, 2));
  EXPECT_TRUE(Row(1).GetButton().hasFocus());
  ChooseFromMenu(0, 2);
  EXPECT_EQ(Captions(), "Company, Rows, Price");
  EXPECT_EQ(Field(0).GetSortOrder(), 2);
  EXPECT_EQ(Panel->GetCurrentRow(), nullptr);
  ChooseFromMenu(2, 3);
  EXPECT_EQ(Captions(), "Company, Price, Rows");
  EXPECT_EQ(Field(0).GetSortOrder(), 1);
  EXPECT_EQ(Changes, 3);
  CheckPlaces();
}

TEST_F(ResultFieldsPanel, IsWorkedWithTheKeyboardAlone) {
  const auto focused = [](QWidget& widget) { return QApplication::focusWidget() == &widget; };
  const bool mirrored = Panel->isRightToLeft();
  Row(0).GetButton().setFocus();
  for (std::size_t i = 0; i < 4; ++i) {
    for (const TRFRowPart part : {rpButton, rpField, rpSorting}) {
      if (part == rpField && i == 2) continue;
      EXPECT_TRUE(focused(Row(i).GetPart(part))) << i << part;
      Key(Qt::Key_Tab);
    }
  }
  EXPECT_TRUE(focused(Panel->GetAddRowLabel()));
  Key(Qt::Key_Up);
  EXPECT_TRUE(focused(Row(3).GetButton()));
  Key(mirrored ? Qt::Key_Left : Qt::Key_Right);
  Key(mirrored ? Qt::Key_Left : Qt::Key_Right);
  Key(Qt::Key_Home);
  EXPECT_TRUE(focused(Row(0).GetSortLabel()));
  Key(mirrored ? Qt::Key_Right : Qt::Key_Left);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Captions(), "Total, Rows, Price");
  EXPECT_TRUE(focused(Row(0).GetButton()));
  Key(Qt::Key_Down, Qt::AltModifier);
  Key(Qt::Key_Down, Qt::AltModifier);
  Key(Qt::Key_Down, Qt::AltModifier);
  Key(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(Captions(), "Rows, Total, Price");
  EXPECT_TRUE(focused(Row(1).GetButton()));
  EXPECT_EQ(Changes, 4);
  Key(Qt::Key_Space);
  EXPECT_TRUE(Panel->GetRowMenu()->isVisible());
  Panel->GetRowMenu()->close();
  QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
  Row(1).GetSortLabel().setFocus();
  QApplication::sendEvent(&Row(1).GetSortLabel(), &menuKey);
  EXPECT_TRUE(Panel->GetRowMenu()->isVisible());
  Panel->GetRowMenu()->close();
  // Below the rows, and with a key: the dialog.
  for (const bool byKey : {false, true}) {
    bool wasOpen = false;
    QTimer::singleShot(50, Panel, [&wasOpen] {
      auto* dialog = qobject_cast<T_dlgRFieldEdit*>(QApplication::activeModalWidget());
      wasOpen = dialog != nullptr;
      if (wasOpen) dialog->reject();
    });
    if (byKey) {
      Row(1).GetSortLabel().setFocus();
      Key(Qt::Key_E, Qt::ControlModifier);
    } else {
      user::RightClick(Panel->GetAddRowLabel());
      EXPECT_TRUE(user::ChooseFromMenu(QStringLiteral("editFields")));
      QTest::qWait(100);
    }
    EXPECT_TRUE(wasOpen) << byKey;
    QApplication::setActiveWindow(&window);
  }
  Row(2).GetSortLabel().setFocus();
  Panel->Refresh();
  EXPECT_TRUE(focused(Row(2).GetSortLabel())) << "rows that the host makes anew keep the focus";
  for (int i = 0; i < 3; ++i) {
    Row(0).GetButton().setFocus();
    Key(Qt::Key_Delete, i == 1 ? Qt::KeypadModifier : Qt::NoModifier);
  }
  EXPECT_TRUE(focused(Panel->GetAddRowLabel()));
  CheckPlaces();
}

TEST_F(ResultFieldsPanel, KeepsThePlainTextsWhenRowsAreHidden) {
  const auto shown = [this](std::size_t index) {
    std::string text;
    const TResultFieldRow& row = Row(index);
    for (const QWidget* widget :
         {static_cast<QWidget*>(&row.GetButton()), static_cast<QWidget*>(row.GetTextLabel1()),
          static_cast<QWidget*>(row.GetFieldLabel()), static_cast<QWidget*>(row.GetTextLabel2()),
          static_cast<QWidget*>(&row.GetSortLabel())}) {
      text += widget == nullptr ? '-' : widget->isVisible() ? 'x' : '.';
    }
    return text;
  };
  EXPECT_EQ(shown(1), "xxxxx");
  Panel->SetActive(false);
  EXPECT_EQ(shown(1), ".x.x.");
  EXPECT_EQ(shown(2), ".x--.");
  EXPECT_TRUE(Panel->GetAddRowLabel().isHidden());
  Panel->SetActive(true);
  EXPECT_EQ(shown(1), "xxxxx");
  Row(1).SetVisible(false);
  EXPECT_EQ(shown(1), ".x.x.");
  EXPECT_EQ(shown(3), "x-xxx");

  Panel->SetActive(false);
  TRFieldList fields(Model.get());
  fields.Add(FieldOf(*Model, "Customers.City"));
  Panel->SetResultFields(fields);
  EXPECT_EQ(shown(0), "x-x-x");
  Click(Row(0).GetButton());
  EXPECT_FALSE(Panel->GetRowMenu()->isVisible());
  EXPECT_TRUE(Panel->GetAddRowLabel().isHidden());
  Panel->GetRows().SetVisible(false);
  EXPECT_EQ(shown(0), "x-x-x");
}

TEST_F(ResultFieldsPanel, FiresOncePerChangeAndNotForThoseOfItsHandler) {
  Panel->OnChange = [this](TJResultFieldsPanel& sender) {
    ++Changes;
    EXPECT_EQ(&sender, Panel);
    Panel->AddEmptyRow();
  };
  ChooseFromMenu(0, 2);
  EXPECT_EQ(Changes, 1);
  EXPECT_EQ(Panel->GetRows().Count(), 4U);
  Panel->OnChange = [](TJResultFieldsPanel&) { throw EConvertError("no"); };
  EXPECT_THROW(Panel->ClearAll(), EConvertError);
  Panel->OnChange = [this](TJResultFieldsPanel& sender) {
    ++Changes;
    sender.Refresh();
  };
  Panel->AddEmptyRow();
  Choose(Row(0).GetSortLabel(), QStringLiteral("asc"));
  EXPECT_EQ(Changes, 3);
  EXPECT_EQ(Row(0).GetSorting(), stAscending);
  EXPECT_TRUE(Panel->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(ResultFieldsPanel, MayBeDestroyedByItsHandler) {
  const std::function<void()> ways[] = {
      [this] { Click(Panel->GetAddRowLabel()); },
      [this] { Choose(*Row(0).GetFieldLabel(), QStringLiteral("city")); },
      [this] { Choose(Row(0).GetSortLabel(), QStringLiteral("asc")); },
      [this] { Row(0).GetButton().setFocus(), Key(Qt::Key_Delete); },
      [this] { Row(0).GetButton().setFocus(), Key(Qt::Key_Down, Qt::AltModifier); },
      [this] { ChooseFromMenu(0, mtDelete); },
      [this] { Row(0).GetButton().setFocus(), Key(Qt::Key_Space), Key(Qt::Key_Down), Key(Qt::Key_Return); },
      [this] { Panel->ClearAll(); },
  };
  for (const auto& way : ways) {
    delete Panel;
    MakePanel();
    Panel->OnChange = [this](TJResultFieldsPanel&) { delete Panel; };
    way();
    EXPECT_EQ(Panel, nullptr) << (&way - ways);
  }
}

TEST_F(ResultFieldsPanel, NeedsAModelAndLetsGoOfIt) {
  TJResultFieldsPanel fresh;
  EXPECT_FALSE(fresh.GetActive());
  EXPECT_EQ(MessageOf([&] { fresh.SetActive(true); }), "DBStructure is not specified");
  EXPECT_FALSE(fresh.GetActive());
  EXPECT_EQ(MessageOf([&] { fresh.SetResultFields(TRFieldList()); }), "DBStructure is not specified");
  EXPECT_EQ(MessageOf([&] { fresh.AddEmptyRow(); }), "DBStructure is not specified");
  EXPECT_EQ(MessageOf([&] { TResultFieldRow row(fresh.GetRows()); }), "DBStructure is not specified");
  EXPECT_EQ(fresh.GetFirstRow(), nullptr);
  EXPECT_EQ(fresh.GetLastRow(), nullptr);

  // The rows stay until they are refreshed, and do no harm.
  const auto other = OrdersModel();
  for (TJDBStructure* model : {other.get(), static_cast<TJDBStructure*>(nullptr)}) {
    Panel->SetDBStruct(model);
    ASSERT_EQ(Panel->GetRows().Count(), 4U);
    EXPECT_EQ(Row(0).GetRField(), nullptr);
    Choose(Row(0).GetSortLabel(), QStringLiteral("asc"));
    ASSERT_EQ(Panel->GetResultFields() == nullptr, model == nullptr);
  }
  Panel->SetDBStruct(other.get());
  Panel->Refresh();
  EXPECT_TRUE(Panel->GetRows().Empty());
  Panel->SetDBStruct(Model.get());
  Panel->AddEmptyRow();
  Model->DelField(0);
  EXPECT_EQ(Field(0).GetExpression(), "{1}");
  Panel->Refresh();
  Model.reset();
  EXPECT_EQ(Panel->GetDBStruct(), nullptr);
  EXPECT_EQ(Panel->GetResultFields(), nullptr);
  ChooseFromMenu(0, 2);
  EXPECT_TRUE(Panel->GetRows().Empty());
}

TEST_F(ResultFieldsPanel, TakesTitlesOverTheDefaultOnes) {
  const QStringList stored{QStringLiteral("ttlMoveUp=Nach oben"), QStringLiteral("ttlAscending="),
                           QStringLiteral("unknown=x"), QStringLiteral("ttlClickToAdd=Neu")};
  ASSERT_TRUE(Panel->setProperty("titles", stored));
  EXPECT_EQ(Panel->GetTitles().Joined("|"),
            "ttlDelField=Delete current field|ttlMoveUp=Nach oben|ttlMoveDown=Move Down|ttlNotSorted=Not Sorted|"
            "ttlAscending=Ascending|ttlDescending=Descending|ttlClickToAdd=Neu");
  EXPECT_EQ(Panel->property("titles").toStringList(),
            (QStringList{QStringLiteral("ttlMoveUp=Nach oben"), QStringLiteral("ttlClickToAdd=Neu")}));
  Panel->SetTitles(Panel->GetTitles());
  Panel->SetTitle("ttlNotSorted", QStringLiteral("Unsortiert"));
  EXPECT_EQ(Panel->GetTitle("ttlNotSorted"), QStringLiteral("Unsortiert"));
  EXPECT_EQ(Row(0).GetSortLabel().GetCaption(), QStringLiteral("Not Sorted"));
  Panel->Activate();
  EXPECT_EQ(Panel->GetRowMenu()->actions().at(2)->text(), QStringLiteral("Nach oben"));
  EXPECT_EQ(Row(0).GetSortLabel().GetCaption(), QStringLiteral("Unsortiert"));
  EXPECT_EQ(Panel->GetAddRowLabel().text(), QStringLiteral("< Neu >"));
}

TEST_F(ResultFieldsPanel, StoresItsAppearanceAsProperties) {
  const std::pair<const char*, QVariant> values[] = {
      {"leftMargin", 1},
      {"topMargin", 2},
      {"rowSpace", 3},
      {"elemSpace", 4},
      {"sortColor", QColor(1, 2, 3)},
      {"fieldColor", QColor(4, 5, 6)},
      {"nameSeparator", QStringLiteral("/")},
      {"options", QVariant::fromValue(TRFPAppearance::TRFPAppearanceOptions(TRFPAppearance::aoPopupField))},
  };
  EXPECT_EQ(Panel->property("options").toInt(), 7);
  for (const auto& [name, value] : values) {
    ASSERT_TRUE(Panel->setProperty(name, value)) << name;
    EXPECT_EQ(Panel->property(name), value) << name;
    EXPECT_EQ(Panel->GetAppearance().property(name), value) << name;
  }
  EXPECT_EQ(Panel->GetAppearance().GetOptions(), TRFPAppearance::aoPopupField);
}

}  // namespace
}  // namespace tolvi
