#include "apps/designer/designwidgets.h"

#include <QMetaProperty>
#include <QStringList>
#include <QWidget>
#include <algorithm>
#include <cstring>

#include "apps/designer/panelexamples.h"
#include <tolvi/panel/panelcommands.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/panel/stdshints.h>
#include <tolvi/ui/controls/dddate.h>
#include <tolvi/ui/controls/ddedit.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/controls/flatcheckbox.h>
#include <tolvi/ui/controls/rndbtn.h>
#include <tolvi/ui/panels/linklabel.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/panels/rfldpnl.h>
#include <tolvi/ui/panels/stdspnl.h>

namespace tolvi {
namespace {

using enum TIconShape::TKind;
using enum TIconShape::TTone;

constexpr TIconShape QueryIcon[] = {{isBox, itFaint, 1, 1, 20, 20},    {isDisc, itInk, 4, 4, 3, 3},
                                    {isBar, itInk, 9, 5, 9, 1.5},      {isDisc, itInk, 7, 9.5, 3, 3},
                                    {isBar, itLink, 12, 10.5, 6, 1.5}, {isDisc, itInk, 7, 15, 3, 3},
                                    {isBar, itLink, 12, 16, 6, 1.5}};
constexpr TIconShape ColumnsIcon[] = {{isBox, itFaint, 1, 1, 20, 20}, {isDisc, itInk, 4, 4, 3, 3},
                                      {isBar, itLink, 9, 5, 5, 1.5},  {isArrow, itInk, 15.5, 4.5, 3.5, 2.5},
                                      {isDisc, itInk, 4, 9.5, 3, 3},  {isBar, itLink, 9, 10.5, 9, 1.5},
                                      {isDisc, itInk, 4, 15, 3, 3},   {isBar, itLink, 9, 16, 7, 1.5}};
constexpr TIconShape DiagramIcon[] = {{isBox, itFaint, 1, 1, 9, 10},    {isBar, itInk, 1, 1, 9, 3},
                                      {isBar, itInk, 3, 6.5, 5, 1.2},   {isBox, itFaint, 12, 10, 9, 10},
                                      {isBar, itInk, 12, 10, 9, 3},     {isBar, itInk, 14, 15.5, 5, 1.2},
                                      {isBar, itLink, 10, 6.3, 7, 1.4}, {isBar, itLink, 15.8, 6.3, 1.4, 4}};
constexpr TIconShape EditIcon[] = {{isBar, itLink, 2, 14, 12, 1.5},
                                   {isBar, itLink, 3, 9, 9, 2},
                                   {isBar, itInk, 16.5, 5, 1.5, 12},
                                   {isBar, itInk, 14.75, 4, 5, 1.5},
                                   {isBar, itInk, 14.75, 16.5, 5, 1.5}};
constexpr TIconShape MemoIcon[] = {{isBox, itFaint, 2, 3, 18, 16},
                                   {isBar, itLink, 5, 6, 12, 1.5},
                                   {isBar, itLink, 5, 10, 12, 1.5},
                                   {isBar, itLink, 5, 14, 7, 1.5}};
constexpr TIconShape ListIcon[] = {{isBar, itLink, 2, 4, 12, 1.5},
                                   {isArrow, itInk, 15.5, 3.5, 5, 3},
                                   {isBox, itFaint, 2, 8, 18, 12},
                                   {isBar, itInk, 5, 11, 9, 1.5},
                                   {isBar, itInk, 5, 15, 11, 1.5}};
constexpr TIconShape PopupIcon[] = {{isBar, itLink, 2, 4, 12, 1.5},
                                    {isArrow, itInk, 15.5, 3.5, 5, 3},
                                    {isBox, itFaint, 2, 8, 18, 12},
                                    {isBar, itFaint, 4, 10, 14, 3},
                                    {isBar, itInk, 7, 15.5, 9, 1.5}};
constexpr TIconShape CheckListIcon[] = {{isBar, itLink, 2, 4, 12, 1.5},  {isArrow, itInk, 15.5, 3.5, 5, 3},
                                        {isBox, itFaint, 2, 8, 18, 12},  {isCheck, itInk, 4.5, 10.5, 3, 2.5},
                                        {isBar, itInk, 10, 11, 7, 1.5},  {isCheck, itInk, 4.5, 15, 3, 2.5},
                                        {isBar, itInk, 10, 15.5, 5, 1.5}};
constexpr TIconShape DateIcon[] = {
    {isBox, itFaint, 2, 4, 18, 16},     {isBar, itLink, 2, 4, 18, 4},      {isBar, itInk, 6, 1.5, 1.5, 4},
    {isBar, itInk, 14.5, 1.5, 1.5, 4},  {isBar, itInk, 5, 11, 2.5, 2.5},   {isBar, itInk, 9.75, 11, 2.5, 2.5},
    {isBar, itInk, 14.5, 11, 2.5, 2.5}, {isBar, itInk, 5, 15.5, 2.5, 2.5}, {isDisc, itLink, 9.25, 15, 3.5, 3.5}};
constexpr TIconShape ButtonIcon[] = {{isBox, itInk, 1.5, 6, 19, 10}, {isBar, itLink, 6, 10, 10, 2}};
constexpr TIconShape CheckBoxIcon[] = {{isBox, itInk, 4, 4, 14, 14}, {isCheck, itLink, 7, 8, 8, 6}};
constexpr TIconShape LinkIcon[] = {
    {isBar, itLink, 2, 15, 18, 1.5}, {isBar, itLink, 3, 8, 7, 3.5}, {isBar, itLink, 12, 8, 7, 3.5}};

template <typename T>
QWidget* New(QWidget* parent) {
  return new T(parent);
}

constexpr char PanelSize[] =
    "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>420</width><height>180</height>"
    "</rect></property>";
constexpr char Caption[] = "<property name=\"caption\"><string>value</string></property>";
constexpr char Text[] = "<property name=\"text\"><string>text</string></property>";
constexpr char ButtonText[] =
    "<property name=\"text\"><string>1</string></property>"
    "<property name=\"rounded\" stdset=\"0\"><bool>true</bool></property>";

constexpr TDesignWidget Widgets[] = {
    {"tolvi::TJQueryPanelView", "QFrame", "tolvi/ui/panels/querpnlview.h", "queryPanelView", PanelSize,
     "Conditions of a query",
     "The conditions of a query as sentences that users edit where they stand. Give it a query panel with "
     "SetQueryPanel().",
     QueryIcon, New<TJQueryPanelView>, ShowQueryExample, "commandTitles", TCommandTitles::DefaultLines},
    {"tolvi::TJResultFieldsPanel", "QFrame", "tolvi/ui/panels/rfldpnl.h", "resultFieldsPanel", PanelSize,
     "Columns of a query",
     "The columns of a query: users add, delete, move and sort them. Give it a data model with SetDBStruct().",
     ColumnsIcon, New<TJResultFieldsPanel>, ShowColumnsExample, "titles", DefaultRFPanelTitles},
    {"tolvi::TJStructDesignPanel", "QFrame", "tolvi/ui/panels/stdspnl.h", "structDesignPanel", PanelSize,
     "Diagram of a data model",
     "The tables of a data model as boxes and its links as lines, for developers. Give it a data model with "
     "SetDBStruct() and activate it.",
     DiagramIcon, New<TJStructDesignPanel>, ShowDiagramExample, "actionHints", DefaultActionHints},
    {"tolvi::TDropDownEdit", "QWidget", "tolvi/ui/controls/ddedit.h", "dropDownEdit", Caption, "Words edited as a line",
     "A label like a link; a click makes it a line to type in.", EditIcon, New<TDropDownEdit>, nullptr, nullptr,
     nullptr},
    {"tolvi::TDropDownMemo", "QWidget", "tolvi/ui/controls/ddedit.h", "dropDownMemo", Caption,
     "Words edited as several lines", "A label like a link; a click makes it a field for several lines.", MemoIcon,
     New<TDropDownMemo>, nullptr, nullptr, nullptr},
    {"tolvi::TDropDownListBox", "QWidget", "tolvi/ui/controls/ddlist.h", "dropDownListBox", Caption,
     "Words chosen from a list", "A label like a link; a click opens a list in which typing finds items.", ListIcon,
     New<TDropDownListBox>, nullptr, nullptr, nullptr},
    {"tolvi::TDropDownPopup", "QWidget", "tolvi/ui/controls/ddlist.h", "dropDownPopup", Caption,
     "Words chosen from a list with sections", "A label like a link; a click opens a list whose groups have headings.",
     PopupIcon, New<TDropDownPopup>, nullptr, nullptr, nullptr},
    {"tolvi::TDropDownCheckList", "QWidget", "tolvi/ui/controls/ddlist.h", "dropDownCheckList", Caption,
     "Any number of words from a list", "A label like a link; a click opens a list of check boxes.", CheckListIcon,
     New<TDropDownCheckList>, nullptr, nullptr, nullptr},
    {"tolvi::TDropDownDate", "QWidget", "tolvi/ui/controls/dddate.h", "dropDownDate", "", "A date or a time",
     "A label like a link; a click opens a line to type in and a calendar.", DateIcon, New<TDropDownDate>, nullptr,
     nullptr, nullptr},
    {"tolvi::TJRndBtn", "QPushButton", "tolvi/ui/controls/rndbtn.h", "roundButton", ButtonText,
     "Small button, flat or round", "A push button that fits a short text, as in the rows of the panels.", ButtonIcon,
     New<TJRndBtn>, nullptr, nullptr, nullptr},
    {"tolvi::TJFlatCheckBox", "QCheckBox", "tolvi/ui/controls/flatcheckbox.h", "flatCheckBox", Text, "Flat check box",
     "A check box as high as a line of text.", CheckBoxIcon, New<TJFlatCheckBox>, nullptr, nullptr, nullptr},
    {"tolvi::TLinkLabel", "QWidget", "tolvi/ui/panels/linklabel.h", "linkLabel", Text, "Link that is a button",
     "A text like a link that works as a button.", LinkIcon, New<TLinkLabel>, nullptr, nullptr, nullptr},
};

constexpr struct {
  const char *Property, *Help;
} Helps[] = {
    {"leftMargin", "Space beside the rows, in pixels. -1 in the panel of conditions: by the font."},
    {"topMargin", "Space above the rows, in pixels. -1 in the panel of conditions: by the font."},
    {"rowSpace", "Space between rows, in pixels. -1 in the panel of conditions: by the font."},
    {"elemSpace", "Space between the words of a row, in pixels. -1 in the panel of conditions: by the font."},
    {"indent", "For each level of brackets, in pixels. -1: by the font."},
    {"commandTitles", "Texts of the commands that are not the default ones, lines \"key=text\"."},
    {"titles", "Texts that are not the default ones, lines \"key=text\"."},
    {"allowLocking", "Whether users may lock rows."},
    {"showActionHints", "Whether a line below the diagram says what a click does."},
    {"showFullScreenButton", "Whether a button lets the diagram cover the screen."},
    {"showMinimap", "Whether a small picture of the whole diagram is shown while not all of it is seen."},
    {"actionHints", "Hints that are not the default ones, lines \"key=text\"."},
    {"nameSeparator", "Between the name of a group and that of a field."},
    {"linkColor", "Not set: the palette's colour of links. Made readable where it is not."},
    {"caption", "What is shown."},
    {"value", "What the caption stands for."},
    {"placeholder", "Shown where there is no caption."},
    {"items", "Lines \"value=text\" or \"text\", below lines \"[group]\"."},
    {"itemIndex", "The item chosen; -1 for none."},
    {"inputMask", "As that of a QLineEdit."},
    {"maxLength", "In characters; 0: no limit."},
    {"displayFormat", "Made of yyyy yy mm dd hh nn ss. Empty: by the locale."},
    {"autoSize", "Whether the size always fits the text."},
};

}  // namespace

std::span<const TDesignWidget> DesignWidgets() { return Widgets; }

const TDesignWidget* DesignWidgetOf(const QWidget& widget) {
  const auto found = std::ranges::find_if(Widgets, [&widget](const TDesignWidget& kind) {
    return !std::strcmp(kind.Class, widget.metaObject()->className());
  });
  return found == std::end(Widgets) ? nullptr : &*found;
}

const char* PropertyHelp(const char* name) {
  const auto found =
      std::ranges::find_if(Helps, [name](const auto& entry) { return !std::strcmp(entry.Property, name); });
  return found == std::end(Helps) ? nullptr : found->Help;
}

QString DomXml(const TDesignWidget& kind) {
  const QString className = QLatin1String(kind.Class);
  QString helps;
  const std::unique_ptr<QWidget> widget(kind.Create(nullptr));
  for (const auto& [property, help] : Helps) {
    if (widget->metaObject()->indexOfProperty(property) < 0) continue;
    helps += QStringLiteral("<tooltip name=\"%1\">%2</tooltip>")
                 .arg(QLatin1String(property), QString::fromUtf8(help).toHtmlEscaped());
  }
  return QStringLiteral(
             "<ui language=\"c++\" displayname=\"%1\"><widget class=\"%2\" name=\"%3\">%4</widget>"
             "<customwidgets><customwidget><class>%2</class><extends>%5</extends>"
             "<propertyspecifications>%6</propertyspecifications></customwidget></customwidgets></ui>")
      .arg(className.section(QStringLiteral("::"), -1), className, QLatin1String(kind.Name),
           QLatin1String(kind.Properties), QLatin1String(kind.Extends), helps);
}

}  // namespace tolvi
