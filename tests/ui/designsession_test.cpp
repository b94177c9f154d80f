#include "apps/screenshots/designsession.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>
#include <filesystem>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/connect/queryrunner.h>
#include <tolvi/model/modelcheck.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/rndbtn.h>
#include <tolvi/xml/modelxml.h>

// Everything that a developer does on the way from a database to a model for end users, in small and large fonts and
// from right to left: all captions can be read, the model is whole, and nothing of it is lost in files.

namespace tolvi {
namespace {

struct TDesignLook {
  int FontSize;
  Qt::LayoutDirection Direction;
};

/// Captions that are cut off, of labels and buttons.
std::string CutCaptions(const QWidget& window) {
  std::string faults;
  const auto check = [&](const QWidget& widget, const QString& text, QSize wanted) {
    const QWidget& parent = *widget.parentWidget();
    const bool isCut = widget.size().expandedTo(wanted) != widget.size() || !parent.rect().contains(widget.geometry());
    if (widget.isVisible() && isCut) faults += "\"" + text.toStdString() + "\" ";
  };
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    // Rows of the query panels are as high as a line of text, whatever their buttons would like.
    const bool isOfRow = qobject_cast<const TJRndBtn*>(button) != nullptr;
    if (!button->text().isEmpty() && !isOfRow) check(*button, button->text(), button->minimumSizeHint());
  }
  for (const auto* label : window.findChildren<QLabel*>()) {
    const bool wraps = label->wordWrap();
    check(*label, label->text(),
          wraps ? QSize(label->width(), label->heightForWidth(label->width())) : label->minimumSizeHint());
  }
  return faults;
}

class Designer : public testing::TestWithParam<TDesignLook> {
 protected:
  Designer() : FFont(QApplication::font()), FDirection(QApplication::layoutDirection()) {
    QApplication::setFont(QFont(FFont.family(), GetParam().FontSize));
    QApplication::setLayoutDirection(GetParam().Direction);
  }
  ~Designer() override {
    QApplication::setFont(FFont);
    QApplication::setLayoutDirection(FDirection);
  }

  std::filesystem::path File(const char* name) const { return folder.filePath(QLatin1String(name)).toStdString(); }

  const QTemporaryDir folder;

 private:
  QFont FFont;
  Qt::LayoutDirection FDirection;
};

TEST_P(Designer, ComesFromADatabaseToAModelAndLosesNothingInFiles) {
  TDesignHost host(TOLVI_SHOP_DATABASE);
  const TDesignResult result =
      PlayDesign(host, folder.filePath(QStringLiteral("shop.model")),
                 [](const std::string& station, QWidget& window) { EXPECT_EQ(CutCaptions(window), "") << station; });

  const TJDBStructure& model = host.Model();
  const std::string text = WriteModelText(model);
  for (const TCheckFinding& finding : CheckModel(model)) EXPECT_NE(finding.Severity, csError) << finding.Text;
  EXPECT_EQ(model.GetTableCount(), 16U);
  EXPECT_EQ(model.TableByName(tnAlias, "Order_Lines")->GetDisplayName(), "Order items");

  EXPECT_FALSE(FieldOf(model, "Orders.BillingAddressID").GetUseInConditions());
  EXPECT_TRUE(FieldOf(model, "Customers.Company").GetUseInConditions());
  for (const TDSField& field : model.Fields()) {
    const bool isDate = field.GetFieldType() == ftDate || field.GetFieldType() == ftDateTime;
    EXPECT_EQ(field.IndexOfOperator(OperatorOf(model, "InYear")) >= 0, isDate) << field.GetDisplayName();
  }

  SaveModelToXmlFile(model, File("shop.xml"));
  for (const char* name : {"shop.model", "shop.xml"}) {
    TJDBStructure reopened;
    if (std::string_view(name).ends_with("xml")) {
      LoadModelFromXmlFile(reopened, File(name));
    } else {
      reopened.LoadFromFile(File(name));
    }
    EXPECT_EQ(WriteModelText(reopened), text) << name;
    TJQueryPanel panel;
    panel.SetDBStruct(&reopened);
    panel.SetActive(true);
    panel.LoadFromText(result.Query);
    EXPECT_EQ(panel.GetSQL().Joined("\n"), result.Statement) << name;
    TJQueryRunner runner(host.GetConnectionName());
    runner.Run(panel);
    EXPECT_TRUE(runner.Next()) << "wholesalers have bought something";
  }
}

INSTANTIATE_TEST_SUITE_P(Looks, Designer,
                         testing::Values(TDesignLook{8, Qt::LeftToRight}, TDesignLook{12, Qt::LeftToRight},
                                         TDesignLook{12, Qt::RightToLeft}),
                         [](const auto& look) {
                           return std::to_string(look.param.FontSize) +
                                  (look.param.Direction == Qt::RightToLeft ? "FromRight" : "FromLeft");
                         });

}  // namespace
}  // namespace tolvi
