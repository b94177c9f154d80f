#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <memory>

#include <benchmark/benchmark.h>

#include "bench/ratios.h"
#include "support/models.h"
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/panels/rfldpnl.h>

// What the panels do with much data, beside widgets of the toolkit that show as many plain texts. Everything is really
// painted, into the memory of the offscreen platform.

namespace tolvi::bench {
namespace {

constexpr int rowCount = 1000, itemCount = 20000, columnCount = 200;

/// A window that is shown; what is in it fills it.
struct TWindow {
  TWindow() {
    window.resize(800, 600);
    layout.setContentsMargins({});
    window.show();
    QCoreApplication::processEvents();
  }
  /// Shows it until it is painted.
  void Show(QWidget& widget) {
    layout.addWidget(&widget);
    widget.show();
    QCoreApplication::processEvents();
    window.repaint();
  }

  QWidget window;
  QVBoxLayout layout{&window};
};

struct TManyRows {
  TManyRows() {
    panel.SetDBStruct(model.get());
    panel.SetActive(true);
    for (int i = 0; i < rowCount; ++i) {
      panel.AddSimpleCond(panel.RootBracket(), FieldOf(*model, "Customers.City"), OperatorOf(*model, "Equal"),
                          "Osterholz");
    }
  }

  std::unique_ptr<TJDBStructure> model = OrdersModel();
  TJQueryPanel panel;
};

QStringList Sentences(int count) {
  QStringList texts;
  for (int i = 0; i < count; ++i) texts << QStringLiteral("%1  City is equal to Osterholz").arg(i);
  return texts;
}

// 1,000 rows: opened, scrolled from top to bottom, painted

std::unique_ptr<TJQueryPanelView> ViewOf(TManyRows& rows) {
  auto view = std::make_unique<TJQueryPanelView>();
  view->SetQueryPanel(&rows.panel);
  return view;
}

std::unique_ptr<QTreeWidget> TreeOf(const QStringList& texts) {
  auto tree = std::make_unique<QTreeWidget>();
  QList<QTreeWidgetItem*> items;
  for (const QString& text : texts) items << new QTreeWidgetItem(QStringList{text});
  tree->addTopLevelItems(items);
  return tree;
}

void Scroll(QAbstractScrollArea& area, QWidget& window) {
  QScrollBar& bar = *area.verticalScrollBar();
  for (int step = 0; step <= 50; ++step) {
    bar.setValue(static_cast<int>(static_cast<std::int64_t>(bar.maximum()) * step / 50));
    QCoreApplication::processEvents();
    window.repaint();
  }
}

void RowsOpened(benchmark::State& state) {
  TManyRows rows;
  TWindow window;
  for (auto _ : state) {
    const auto view = ViewOf(rows);
    window.Show(*view);
  }
}
BENCHMARK(RowsOpened)->Unit(benchmark::kMillisecond);

void TreeOpened(benchmark::State& state) {
  const QStringList texts = Sentences(rowCount);
  TWindow window;
  for (auto _ : state) {
    const auto tree = TreeOf(texts);
    window.Show(*tree);
  }
}
BENCHMARK(TreeOpened)->Unit(benchmark::kMillisecond);

void RowsScrolled(benchmark::State& state) {
  TManyRows rows;
  TWindow window;
  const auto view = ViewOf(rows);
  window.Show(*view);
  for (auto _ : state) Scroll(*view, window.window);
}
BENCHMARK(RowsScrolled)->Unit(benchmark::kMillisecond);

void TreeScrolled(benchmark::State& state) {
  TWindow window;
  const auto tree = TreeOf(Sentences(rowCount));
  tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  window.Show(*tree);
  for (auto _ : state) Scroll(*tree, window.window);
}
BENCHMARK(TreeScrolled)->Unit(benchmark::kMillisecond);

void RowsPainted(benchmark::State& state) {
  TManyRows rows;
  TWindow window;
  const auto view = ViewOf(rows);
  window.Show(*view);
  for (auto _ : state) view->viewport()->repaint();
}
BENCHMARK(RowsPainted)->Unit(benchmark::kMillisecond);

/// As many widgets as the rows in sight have: what any panel of widgets has to paint.
void WidgetsPainted(benchmark::State& state) {
  TManyRows rows;
  TWindow window;
  const auto view = ViewOf(rows);
  window.Show(*view);
  QWidget plain;
  for (const QWidget* widget : view->viewport()->findChildren<QWidget*>()) {
    if (!widget->findChildren<QWidget*>().isEmpty()) continue;
    auto* label = new QLabel(QStringLiteral("Osterholz"), &plain);
    label->setGeometry(QRect(widget->mapTo(view->viewport(), QPoint()), widget->size()));
  }
  view->hide();
  window.Show(plain);
  for (auto _ : state) plain.repaint();
}
BENCHMARK(WidgetsPainted)->Unit(benchmark::kMillisecond);

void RowChanged(benchmark::State& state) {
  TManyRows rows;
  TWindow window;
  const auto view = ViewOf(rows);
  window.Show(*view);
  auto& condition = static_cast<TSimpleCond&>(rows.panel.RootBracket().GetRow(0));
  bool other = false;
  for (auto _ : state) {
    condition.SetValue(1, (other = !other) ? "Berlin" : "Paris");
    QCoreApplication::processEvents();
    window.window.repaint();
  }
}
BENCHMARK(RowChanged)->Unit(benchmark::kMillisecond);

// A list of 20,000 items: opened, and searched

std::vector<TDropDownItem> Items() {
  std::vector<TDropDownItem> items;
  for (int i = 0; i < itemCount; ++i) {
    const QString text = QStringLiteral("Städtische Werke %1").arg(i);
    items.push_back({QString(), text, text});
  }
  return items;
}

QStringList ItemTexts() {
  QStringList texts;
  for (const TDropDownItem& item : Items()) texts << item.Text;
  return texts;
}

void ListOpened(benchmark::State& state) {
  TWindow window;
  TDropDownListBox label;
  label.SetItems(Items());
  window.Show(label);
  for (auto _ : state) {
    label.DropDown();
    QCoreApplication::processEvents();
    QApplication::activePopupWidget()->repaint();
    label.DropUp(false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}
BENCHMARK(ListOpened)->Unit(benchmark::kMillisecond);

void PlainListOpened(benchmark::State& state) {
  const QStringList texts = ItemTexts();
  TWindow window;
  for (auto _ : state) {
    QStringListModel model(texts);
    QListView list(&window.window);
    list.setWindowFlags(Qt::Popup);
    list.setUniformItemSizes(true);
    list.setModel(&model);
    list.resize(300, 300);
    list.show();
    QCoreApplication::processEvents();
    list.repaint();
  }
}
BENCHMARK(PlainListOpened)->Unit(benchmark::kMillisecond);

const QString sought = QStringLiteral("werke 1234");

void ItemFound(benchmark::State& state) {
  TWindow window;
  TDropDownListBox label;
  label.SetItems(Items());
  window.Show(label);
  label.DropDown();
  QCoreApplication::processEvents();
  QWidget* popup = QApplication::activePopupWidget();
  auto* line = popup->findChild<QLineEdit*>();
  for (auto _ : state) {
    line->clear();
    for (const QChar letter : sought) {
      QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(letter));
      QApplication::sendEvent(line, &key);
      QCoreApplication::processEvents();
      popup->repaint();
    }
  }
  label.DropUp(false);
}
BENCHMARK(ItemFound)->Unit(benchmark::kMillisecond);

void PlainListFiltered(benchmark::State& state) {
  QStringListModel model(ItemTexts());
  QSortFilterProxyModel filter;
  filter.setFilterCaseSensitivity(Qt::CaseInsensitive);
  filter.setSourceModel(&model);
  TWindow window;
  QListView list;
  list.setUniformItemSizes(true);
  list.setModel(&filter);
  window.Show(list);
  for (auto _ : state) {
    for (qsizetype letters = 0; letters <= sought.size(); ++letters) {
      filter.setFilterFixedString(sought.left(letters));
      QCoreApplication::processEvents();
      window.window.repaint();
    }
  }
}
BENCHMARK(PlainListFiltered)->Unit(benchmark::kMillisecond);

// 200 result columns

void ColumnsOpened(benchmark::State& state) {
  const auto model = OrdersModel();
  TRFieldList columns(model.get());
  for (int i = 0; i < columnCount; ++i) columns.Add(FieldOf(*model, "Customers.City"));
  TWindow window;
  for (auto _ : state) {
    TJResultFieldsPanel panel;
    panel.SetDBStruct(model.get());
    panel.SetResultFields(columns);
    panel.SetActive(true);
    window.Show(panel);
  }
}
BENCHMARK(ColumnsOpened)->Unit(benchmark::kMillisecond);

void WidgetsOpened(benchmark::State& state) {
  TWindow window;
  for (auto _ : state) {
    QScrollArea area;
    auto* content = new QWidget;
    for (int i = 0; i < columnCount; ++i) {
      auto* button = new QPushButton(QString::number(i + 1), content);
      auto* field = new QLabel(QStringLiteral("City"), content);
      auto* sorting = new QLabel(QStringLiteral("Not Sorted"), content);
      int x = 5;
      for (QWidget* widget : std::initializer_list<QWidget*>{button, field, sorting}) {
        const QSize size = widget->sizeHint();
        widget->setGeometry(x, 5 + i * 25, size.width(), 22);
        x += size.width() + 5;
      }
    }
    content->resize(800, 25 * columnCount);
    area.setWidget(content);
    window.Show(area);
  }
}
BENCHMARK(WidgetsOpened)->Unit(benchmark::kMillisecond);

constexpr TRatio Ratios[] = {
    {"open 1,000 rows : a tree of 1,000 texts", "RowsOpened", "TreeOpened", 4},
    {"scroll through 1,000 rows in 50 steps : a tree of 1,000 texts", "RowsScrolled", "TreeScrolled", 8},
    {"paint the rows in sight : as many labels", "RowsPainted", "WidgetsPainted", 4},
    {"show one changed value among 1,000 rows : paint as many labels", "RowChanged", "WidgetsPainted", 8},
    {"open a list of 20,000 items : a plain list", "ListOpened", "PlainListOpened", 5},
    {"find an item by 10 letters : filter a plain list", "ItemFound", "PlainListFiltered", 1},
    {"open 200 result columns : 200 buttons and 400 labels", "ColumnsOpened", "WidgetsOpened", 5},
    {"open a diagram of 500 tables : a scene of plain items", "DiagramOpened/500", "PlainSceneOpened/500", 1},
    {"open a diagram of 2,500 tables : a scene of plain items", "DiagramOpened/2500", "PlainSceneOpened/2500", 1},
    {"drag a box among 500 : a plain item, all painted", "BoxDragged/500", "PlainItemDragged/500", 2},
    {"drag a box among 2,500 : a plain item, all painted", "BoxDragged/2500", "PlainItemDragged/2500", 2},
    {"zoom a diagram of 500 tables : a scene of plain items", "DiagramZoomed/500", "PlainSceneZoomed/500", 2},
    {"zoom a diagram of 2,500 tables : a scene of plain items", "DiagramZoomed/2500", "PlainSceneZoomed/2500", 2},
    {"append a million rows in blocks, each painted : a model of 10,000 rows of items", "ResultRowsAppended",
     "ItemRowsAppended", 50},
    {"scroll through a million rows in 50 steps : 10,000 rows of items", "ResultRowsScrolled/0", "ItemRowsScrolled", 4},
    {"the same, all selected : 10,000 rows of items", "ResultRowsScrolled/1", "ItemRowsScrolled", 4},
    {"select a million rows and none : scroll through 10,000", "AllSelected", "ItemRowsScrolled", 0.3},
    {"sort a million rows by numbers : plain texts", "ResultRowsSorted/0", "PlainTextsSorted", 2},
    {"by texts that repeat, in the order of a language : plain texts", "ResultRowsSorted/1", "PlainTextsSorted", 3},
    {"by texts that are all different : plain texts", "ResultRowsSorted/7", "PlainTextsSorted", 20},
};

}  // namespace
}  // namespace tolvi::bench

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QApplication application(argc, argv);
  application.setStyle(QStringLiteral("Fusion"));
  return tolvi::bench::RunAndCompare(argc, argv, tolvi::bench::Ratios);
}
