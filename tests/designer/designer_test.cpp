#include <QBuffer>
#include <QCheckBox>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QPlainTextEdit>
#include <QPluginLoader>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <memory>
#include <set>

#include <gtest/gtest.h>

#include "apps/designer/designwidgets.h"
#include "apps/designer/propertypage.h"
#include "ui_form.h"

namespace tolvi {
namespace {

using namespace Qt::StringLiterals;

/// Sets and enumerations compare as numbers.
void ExpectSame(const QVariant& found, const QVariant& value) {
  const bool number = found.canConvert<int>() && value.canConvert<int>() && value.typeId() != QMetaType::QString;
  EXPECT_TRUE(number ? found.toInt() == value.toInt() : found == value)
      << "found " << QDebug::toString(found).toStdString() << ", not " << QDebug::toString(value).toStdString();
}

/// What the form of the tests must make of the widgets, whoever makes them.
void CheckForm(QWidget& form) {
  const struct {
    const char *Widget, *Class, *Property;
    QVariant Value;
  } expected[] = {
      {"conditions", "tolvi::TJQueryPanelView", "fieldColor", QColor(160, 0, 80)},
      {"conditions", "tolvi::TJQueryPanelView", "indent", 40},
      {"conditions", "tolvi::TJQueryPanelView", "options",
       int(TQPAppearance::aoFlatButtons | TQPAppearance::aoTreeLines)},
      {"conditions", "tolvi::TJQueryPanelView", "commandTitles", QStringList{u"cmdUndo=Take back"_s}},
      {"conditions", "tolvi::TJQueryPanelView", "allowLocking", true},
      {"conditions", "tolvi::TJQueryPanelView", "valueColor", QColor()},
      {"columns", "tolvi::TJResultFieldsPanel", "titles", QStringList{u"ttlClickToAdd=One more column"_s}},
      {"columns", "tolvi::TJResultFieldsPanel", "rowSpace", 8},
      {"columns", "tolvi::TJResultFieldsPanel", "options", int(TRFPAppearance::aoShowGroupName)},
      {"columns", "tolvi::TJResultFieldsPanel", "nameSeparator", u": "_s},
      {"edit", "tolvi::TDropDownEdit", "caption", u"Ab"_s},
      {"edit", "tolvi::TDropDownEdit", "linkColor", QColor(200, 0, 0)},
      {"edit", "tolvi::TDropDownEdit", "maxLength", 20},
      {"edit", "tolvi::TDropDownEdit", "textCase", int(TDropDownEdit::tcUpper)},
      {"memo", "tolvi::TDropDownMemo", "caption", u"Notes"_s},
      {"list", "tolvi::TDropDownListBox", "value", u"CH"_s},
      {"list", "tolvi::TDropDownListBox", "caption", u"Switzerland"_s},
      {"popup", "tolvi::TDropDownPopup", "items", QStringList{u"[Europe]"_s, u"Vienna"_s, u"[Asia]"_s, u"Tokyo"_s}},
      {"checkList", "tolvi::TDropDownCheckList", "value", u"A"_s},
      {"date", "tolvi::TDropDownDate", "caption", u"01.02.2026"_s},
      {"button", "tolvi::TJRndBtn", "rounded", true},
      {"checkBox", "tolvi::TJFlatCheckBox", "checked", true},
      {"link", "tolvi::TLinkLabel", "text", u"More"_s},
  };
  for (const auto& [name, className, property, value] : expected) {
    SCOPED_TRACE(std::string(name) + "." + property);
    const auto* widget = form.findChild<QWidget*>(QLatin1String(name));
    ASSERT_NE(widget, nullptr);
    EXPECT_STREQ(widget->metaObject()->className(), className);
    ExpectSame(widget->property(property), value);
  }
}

/// Loads forms with the plugin and nothing else that knows the widgets.
std::unique_ptr<QUiLoader> Loader() {
  auto loader = std::make_unique<QUiLoader>();
  loader->clearPluginPaths();
  loader->addPluginPath(QFileInfo(QStringLiteral(TOLVI_DESIGNER_PLUGIN)).path());
  return loader;
}

std::unique_ptr<QWidget> Load(QIODevice& form) {
  const auto loader = Loader();
  std::unique_ptr<QWidget> widget(loader->load(&form));
  EXPECT_TRUE(widget) << loader->errorString().toStdString();
  return widget;
}

/// A value that is another one than the property has.
QVariant Other(const QMetaProperty& property, const QVariant& value) {
  if (property.isFlagType()) return value.toInt() ^ property.enumerator().value(1);
  if (property.isEnumType()) return property.enumerator().value(1);
  switch (property.typeId()) {
    case QMetaType::Bool:
      return !value.toBool();
    case QMetaType::Int:
      return value.toInt() + 3;
    case QMetaType::QColor:
      return QColor(12, 34, 56);
    case QMetaType::QFont: {
      QFont font;
      font.setBold(true);
      return font;
    }
    case QMetaType::QString:
      return u"a <b>"_s;
    default:
      return {};
  }
}

/// The same as a form has it.
QString InForm(const QMetaProperty& property, const QVariant& value) {
  const auto element = [](const char* tag, const QString& text) {
    return u"<%1>%2</%1>"_s.arg(QLatin1String(tag), text);
  };
  QString text = value.toString().toHtmlEscaped();
  const QMetaEnum values = property.enumerator();
  if (property.isFlagType())
    text = element("set", QLatin1String(values.valueToKeys(value.toInt())));
  else if (property.isEnumType())
    text = element("enum", QLatin1String(values.valueToKey(value.toInt())));
  else if (value.typeId() == QMetaType::QColor)
    text = u"<color><red>12</red><green>34</green><blue>56</blue></color>"_s;
  else if (value.typeId() == QMetaType::QFont)
    text = u"<font><bold>true</bold></font>"_s;
  else
    text = element(value.typeId() == QMetaType::Bool  ? "bool"
                   : value.typeId() == QMetaType::Int ? "number"
                                                      : "string",
                   text);
  return u"<property name=\"%1\">%2</property>"_s.arg(QLatin1String(property.name()), text);
}

TEST(Designer, OffersEveryWidgetWithAllThatItsBoxShows) {
  QPluginLoader plugin(QStringLiteral(TOLVI_DESIGNER_PLUGIN));
  auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
  ASSERT_NE(collection, nullptr) << plugin.errorString().toStdString();
  const auto widgets = collection->customWidgets();
  EXPECT_EQ(widgets.size(), 12);
  std::set<QString> toolTips;
  std::set<QByteArray> icons;
  for (QDesignerCustomWidgetInterface* offered : widgets) {
    SCOPED_TRACE(offered->name().toStdString());
    EXPECT_EQ(offered->group(), u"Tolvi"_s);
    EXPECT_FALSE(offered->whatsThis().isEmpty());
    EXPECT_TRUE(toolTips.insert(offered->toolTip()).second);
    const QImage icon = offered->icon().pixmap(QSize(44, 44), 2.0).toImage();
    EXPECT_TRUE(icons.insert(QByteArray(reinterpret_cast<const char*>(icon.constBits()), icon.sizeInBytes())).second);
    const std::unique_ptr<QWidget> widget(offered->createWidget(nullptr));
    EXPECT_EQ(QLatin1String(widget->metaObject()->className()), offered->name());
    EXPECT_TRUE(widget->inherits(DesignWidgets()[toolTips.size() - 1].Extends));
    // Only Designer shows examples.
    EXPECT_EQ(widget->findChild<QObject*>(u"example"_s), nullptr);
    QXmlStreamReader xml(offered->domXml());
    while (!xml.atEnd()) xml.readNext();
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  }
}

TEST(Designer, LoadsAForm) {
  QFile file(QStringLiteral(TOLVI_DESIGNER_FORM));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const auto form = Load(file);
  ASSERT_TRUE(form);
  CheckForm(*form);
}

TEST(Designer, FormsAreCompiledToo) {
  QWidget window;
  Ui::QueryForm form;
  form.setupUi(&window);
  CheckForm(window);
  EXPECT_EQ(form.conditions->GetCommandTitles().GetCaption(pcUndo, TTitles()), "Take back");
  EXPECT_EQ(form.columns->GetTitle("ttlClickToAdd"), u"One more column"_s);
}

TEST(Designer, KeepsEveryPropertyInAForm) {
  for (const TDesignWidget& kind : DesignWidgets()) {
    const std::unique_ptr<QWidget> widget(kind.Create(nullptr));
    for (const QMetaProperty& property : OwnProperties(*widget->metaObject())) {
      SCOPED_TRACE(std::string(kind.Class) + "." + property.name());
      const QVariant before = property.read(widget.get());
      const QVariant value = Other(property, before);
      // A list of titles takes known keys, an index items: they are in the form of the test.
      if (!value.isValid() || property.name() == "itemIndex"_ba) continue;
      QByteArray form = u"<ui version=\"4.0\"><widget class=\"%1\" name=\"w\">%2</widget></ui>"_s
                            .arg(QLatin1String(kind.Class), InForm(property, value))
                            .toUtf8();
      QBuffer buffer(&form);
      ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
      const auto loaded = Load(buffer);
      ASSERT_TRUE(loaded);
      ExpectSame(loaded->property(property.name()), value);
      if (!property.isResettable()) continue;
      EXPECT_TRUE(property.write(widget.get(), value));
      EXPECT_TRUE(property.reset(widget.get()));
      EXPECT_EQ(property.read(widget.get()), before);
    }
  }
}

TEST(Designer, HasAPropertyPageForEveryWidget) {
  for (const TDesignWidget& kind : DesignWidgets()) {
    SCOPED_TRACE(kind.Class);
    const std::unique_ptr<QWidget> widget(kind.Create(nullptr));
    const TPropertyPage page(kind, *widget);
    EXPECT_TRUE(page.GetChanges().isEmpty());
    EXPECT_EQ(page.GetPreview().findChild<QObject*>(u"example"_s) != nullptr, kind.ShowExample != nullptr);
    for (const QMetaProperty& property : OwnProperties(*widget->metaObject()))
      EXPECT_NE(page.findChild<QWidget*>(QLatin1String(property.name())), nullptr) << property.name();
  }
}

TEST(Designer, EditsPropertiesOnAPageWithAPreview) {
  TJQueryPanelView view;
  view.GetAppearance().SetLeftMargin(7);
  view.GetAppearance().SetValueColor(Qt::red);
  QFont usualSize;
  usualSize.setPointSize(QFont().pointSize());
  view.GetAppearance().SetValueFont(usualSize);
  TPropertyPage page(*DesignWidgetOf(view), view);
  page.show();
  auto& preview = static_cast<TJQueryPanelView&>(page.GetPreview());
  EXPECT_EQ(preview.GetAppearance().GetLeftMargin(), 7);
  preview.ShowChanges();
  EXPECT_EQ(preview.Rows().size(), 5u);
  EXPECT_TRUE(page.GetChanges().isEmpty());

  auto* indent = page.findChild<QSpinBox*>(u"indent"_s);
  indent->selectAll();
  QTest::keyClicks(indent, u"50"_s);
  for (QCheckBox* box : page.findChild<QWidget*>(u"options"_s)->findChildren<QCheckBox*>())
    if (box->text() == u"aoTreeLines") QTest::mouseClick(box, Qt::LeftButton, {}, {4, box->height() / 2});
  for (const QString& name : {u"valueColor"_s, u"valueFont"_s})
    QTest::mouseClick(page.findChild<QWidget*>(name)->findChildren<QPushButton*>().last(), Qt::LeftButton);
  QTest::keyClicks(page.findChild<QPlainTextEdit*>(u"commandTitles"_s), u"cmdUndo=Take back"_s);
  EXPECT_EQ(preview.GetAppearance().GetIndent(), 50);
  EXPECT_FALSE(preview.GetAppearance().GetOptions() & TQPAppearance::aoTreeLines);
  EXPECT_FALSE(preview.GetAppearance().GetValueColor().isValid());
  EXPECT_EQ(page.GetChanges().keys(),
            (QStringList{u"commandTitles"_s, u"indent"_s, u"options"_s, u"valueColor"_s, u"valueFont"_s}));
  EXPECT_EQ(view.GetAppearance().GetIndent(), -1);
}

TEST(Designer, WritesItemsAsItReadsThem) {
  TDropDownPopup list;
  list.SetItems({{{}, u"none"_s, u"none"_s}, {u"Europe"_s, u"A"_s, u"a=b"_s}, {{}, u"x"_s, u"[x]"_s}, {{}, {}, {}}});
  EXPECT_EQ(list.GetItemLines(), (QStringList{u"none"_s, u"[Europe]"_s, u"A=a=b"_s, u"[]"_s, u"x=[x]"_s, u"="_s}));
  list.SetItemLines({u"none"_s, {}, u"[Europe]"_s, u"A=a=b"_s, u"[]"_s, u"c"_s});
  EXPECT_EQ(list.Items(), (std::vector<TDropDownItem>{
                              {{}, u"none"_s, u"none"_s}, {u"Europe"_s, u"A"_s, u"a=b"_s}, {{}, u"c"_s, u"c"_s}}));
}

TEST(Designer, KeepsWhatIsChosenAsTheItemsComeInAnotherLanguage) {
  TDropDownListBox list;
  list.SetItemIndex(1);
  list.SetItemLines({u"A=Austria"_s, u"CH=Switzerland"_s});
  EXPECT_EQ(list.GetCaption(), u"Switzerland"_s);
  list.SetItemLines({u"A=\u00D6sterreich"_s, u"CH=Schweiz"_s});
  EXPECT_EQ(list.GetCaption(), u"Schweiz"_s);
  TDropDownListBox chosen;
  chosen.SetValue(u"A"_s);
  chosen.SetItemLines(list.GetItemLines());
  EXPECT_EQ(chosen.GetCaption(), u"\u00D6sterreich"_s);
}

}  // namespace
}  // namespace tolvi
