#include "apps/workbench/script/widgettext.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTableView>
#include <QTextEdit>
#include <algorithm>

#include "apps/workbench/sql/scintilla.h"

namespace tolvi {
namespace {

constexpr int MostRows = 200, MostColumns = 50;

QString TextOf(const QAbstractItemModel& model, const QModelIndex& parent = {}) {
  QStringList lines;
  const int columns = std::min(model.columnCount(parent), MostColumns);
  for (int row = 0; row < std::min(model.rowCount(parent), MostRows); ++row) {
    QStringList cells;
    for (int column = 0; column < columns; ++column) cells << model.index(row, column, parent).data().toString();
    lines << cells.join(u'\t');
    const QModelIndex first = model.index(row, 0, parent);
    if (model.hasChildren(first)) lines << TextOf(model, first);
  }
  return lines.join(u'\n');
}

/// With the names of the columns, if it is a table.
QString TextOf(const QAbstractItemView& view) {
  const QAbstractItemModel* model = view.model();
  if (model == nullptr) return {};
  QStringList names;
  const bool isTable = qobject_cast<const QTableView*>(&view) != nullptr;
  for (int column = 0; isTable && column < std::min(model->columnCount(), MostColumns); ++column) {
    names << model->headerData(column, Qt::Horizontal).toString();
  }
  return names.join(u'\t') + u'\n' + TextOf(*model);
}

QString OwnText(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return line->text();
  if (const auto* box = qobject_cast<const QComboBox*>(&widget)) return box->currentText();
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) return box->title();
  if (const auto* text = qobject_cast<const QPlainTextEdit*>(&widget)) return text->toPlainText();
  if (const auto* text = qobject_cast<const QTextEdit*>(&widget)) return text->toPlainText();
  if (const auto* sql = qobject_cast<const QsciScintilla*>(&widget)) return sql->text();
  if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) return TextOf(*view);
  if (const auto* bar = qobject_cast<const QStatusBar*>(&widget)) return bar->currentMessage();
  // The labels of the library's panels.
  return widget.property("caption").toString();
}

}  // namespace

QString TextOf(const QWidget& widget) {
  QString text = OwnText(widget);
  if (!text.isEmpty()) return text;
  QStringList texts;
  for (const QObject* child : widget.children()) {
    const auto* inner = qobject_cast<const QWidget*>(child);
    if (inner == nullptr || inner->isWindow() || inner->isHidden()) continue;
    text = TextOf(*inner);
    if (!text.isEmpty()) texts << text;
  }
  // Parts of a sentence are widgets of their own.
  return texts.join(widget.height() < widget.fontMetrics().height() * 3 ? u' ' : u'\n');
}

}  // namespace tolvi
