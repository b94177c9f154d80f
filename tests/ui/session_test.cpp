#include "apps/screenshots/session.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QScrollBar>
#include <fstream>

#include <gtest/gtest.h>

#include "userevents.h"
#include <tolvi/foundation/files.h>
#include <tolvi/ui/controls/ddlabel.h>
#include <tolvi/ui/controls/flatcheckbox.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/qtext.h>

// Everything that an end user does on the way to a query, in small and large fonts and from right to left: it ends in
// the same statement, and at each station all that is seen is whole and stands where it should.

namespace tolvi {
namespace {

struct TLook {
  int FontSize;
  Qt::LayoutDirection Direction;
};

/// The baseline of the widget's text from the top of its parent; nothing for a widget without one.
std::optional<int> Baseline(const QWidget& widget) {
  int own = 0;
  if (const auto* label = qobject_cast<const TDropDownLabel*>(&widget)) {
    own = label->GetBaseline();
  } else if (const auto* button = qobject_cast<const TJRndBtn*>(&widget)) {
    own = button->GetBaseline();
  } else if (const auto* box = qobject_cast<const TJFlatCheckBox*>(&widget)) {
    own = box->GetBaseline();
  } else if (const auto* text = qobject_cast<const QLabel*>(&widget)) {
    own = text->contentsRect().top() + text->margin() + text->fontMetrics().ascent();
  } else {
    return std::nullopt;
  }
  return widget.y() + own;
}

std::string Named(const QWidget& widget) {
  const QRect at = widget.geometry();
  return std::string(widget.metaObject()->className()) + " \"" + FromQString(widget.objectName()) + "\" at " +
         std::to_string(at.x()) + "," + std::to_string(at.y()) + " " + std::to_string(at.width()) + "x" +
         std::to_string(at.height());
}

/// Collects what is wrong with the places of widgets.
class TLayoutCheck {
 public:
  std::vector<std::string> Faults;

  /// The visible widgets of one parent: none covers another, or is cut off by the parent's edge or a size too small.
  std::vector<QWidget*> Siblings(const QWidget& parent, bool heightMayDiffer = false) {
    std::vector<QWidget*> seen;
    for (QObject* child : parent.children()) {
      auto* widget = qobject_cast<QWidget*>(child);
      if (widget == nullptr || widget->isWindow() || !widget->isVisible()) continue;
      const QSize wanted(widget->sizeHint().width(),
                         heightMayDiffer ? widget->fontMetrics().height() : widget->sizeHint().height());
      if (widget->size().expandedTo(wanted) != widget->size()) Tell(*widget, "is too small");
      if (!parent.rect().contains(widget->geometry())) Tell(*widget, "reaches out of " + Named(parent));
      for (const QWidget* other : seen) {
        if (widget->geometry().intersects(other->geometry())) Tell(*widget, "covers " + Named(*other));
      }
      seen.push_back(widget);
    }
    return seen;
  }

  void Line(const std::vector<QWidget*>& widgets) {
    std::optional<int> line;
    for (const QWidget* widget : widgets) {
      const std::optional<int> own = Baseline(*widget);
      if (own && line && *own != *line) Tell(*widget, "stands off the line by " + std::to_string(*own - *line));
      if (own && !line) line = own;
    }
  }

  void Tell(const QWidget& widget, const std::string& what) { Faults.push_back(Named(widget) + " " + what); }
};

void CheckConditions(const THostWindow& window, TLayoutCheck& check) {
  const TJQueryPanelView& view = window.GetConditions();
  std::vector<const QWidget*> rows{&view.GetAddRowLabel()};
  for (const TJQueryPanelView::TPlacedRow& placed : view.Rows()) {
    const TQPRow* row = view.RowWidget(*placed.Row);
    if (row == nullptr) continue;
    check.Line(check.Siblings(*row));
    for (const QWidget* other : rows) {
      if (row->geometry().intersects(other->geometry())) check.Tell(*row, "covers " + Named(*other));
    }
    rows.push_back(row);
  }
}

void CheckColumns(const THostWindow& window, TLayoutCheck& check) {
  TJResultFieldsPanel& panel = window.GetColumns();
  // The rows are as high as a line of text, whatever buttons would like.
  check.Siblings(*panel.widget(), true);
  for (const TResultFieldRow& row : panel.GetRows()) {
    check.Line({&row.GetButton(), row.GetFieldLabel(), &row.GetSortLabel()});
  }
}

void CheckPopup(TLayoutCheck& check) {
  QWidget* popup = user::Popup();
  // Menus are the toolkit's: those too large for the screen scroll.
  if (popup == nullptr || qobject_cast<QMenu*>(popup) != nullptr) return;
  if (!popup->screen()->geometry().contains(popup->geometry())) check.Tell(*popup, "reaches out of the screen");
  for (const QWidget* part : popup->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (!part->isVisible()) continue;
    if (!popup->rect().contains(part->geometry())) check.Tell(*part, "reaches out of its popup");
    const bool isList = qobject_cast<const QAbstractItemView*>(part) != nullptr;
    if (part->height() < (isList ? part->fontMetrics().height() : part->minimumSizeHint().height()))
      check.Tell(*part, "is too low");
  }
}

class Session : public testing::TestWithParam<TLook> {
 protected:
  Session() : FFont(QApplication::font()), FDirection(QApplication::layoutDirection()) {
    QApplication::setFont(QFont(FFont.family(), GetParam().FontSize));
    QApplication::setLayoutDirection(GetParam().Direction);
    model.LoadFromFile(TOLVI_SOURCE_DIR "/samples/shop/shop.model");
  }
  ~Session() override {
    QApplication::setFont(FFont);
    QApplication::setLayoutDirection(FDirection);
  }

  std::string Play(void (*play)(THostWindow&, const TStationEvent&)) {
    THostWindow window(model);
    window.Open();
    play(window, [&window](const std::string& station) {
      TLayoutCheck check;
      CheckConditions(window, check);
      CheckColumns(window, check);
      CheckPopup(check);
      std::string faults;
      for (const std::string& fault : check.Faults) faults += fault + "\n";
      EXPECT_EQ(faults, "") << station;
    });
    return window.GetStatement();
  }

  TJDBStructure model;

 private:
  QFont FFont;
  Qt::LayoutDirection FDirection;
};

TEST_P(Session, EndsInTheSameStatementByKeysAndByMouse) {
  TJQueryPanel sample;
  sample.SetDBStruct(&model);
  sample.LoadFromFile(TOLVI_SOURCE_DIR "/tests/ui/session.qry");
  const std::string expected = sample.GetQueryText();
  EXPECT_EQ(Play(PlayByKeys), expected);
  EXPECT_EQ(Play(PlayByMouse), expected);
}

INSTANTIATE_TEST_SUITE_P(Looks, Session,
                         testing::Values(TLook{8, Qt::LeftToRight}, TLook{12, Qt::LeftToRight},
                                         TLook{20, Qt::LeftToRight}, TLook{8, Qt::RightToLeft},
                                         TLook{12, Qt::RightToLeft}, TLook{20, Qt::RightToLeft}),
                         [](const auto& look) {
                           return std::to_string(look.param.FontSize) +
                                  (look.param.Direction == Qt::RightToLeft ? "FromRight" : "FromLeft");
                         });

TEST(HelpPage, ListsEveryCommandWithItsKeys) {
  const std::string page = ReadFile(TOLVI_SOURCE_DIR "/docs/ui.md");
  EXPECT_NE(page.find("\n" + CommandTable() + "\n"), std::string::npos)
      << "tolvi_screenshots --commands prints the table that docs/ui.md must have:\n"
      << CommandTable();
}

}  // namespace
}  // namespace tolvi
