#include <QCoreApplication>
#include <QGraphicsSimpleTextItem>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <tolvi/ui/panels/stdspnl.h>

// The structure designer with many tables, beside a scene of the toolkit with as many plain rectangles, texts and
// lines. Each frame is really painted, into the memory of the offscreen platform.

namespace tolvi::bench {
namespace {

constexpr int fieldCount = 12;

/// Tables of 12 columns, each linked with two others, arranged in a square.
struct TManyTables {
  explicit TManyTables(int tableCount) {
    for (int i = 0; i < tableCount; ++i) {
      model.AddTable("table_" + std::to_string(i), "Table " + std::to_string(i));
      model.GetTable(static_cast<std::size_t>(i)).SetDesignPositions(PlaceOf(i));
    }
    for (int i = 0; i < 2 * tableCount; ++i) {
      TDSTable& one = model.GetTable(static_cast<std::size_t>(i % tableCount));
      TDSTable& other = model.GetTable(static_cast<std::size_t>((i * 7 + 3) % tableCount));
      auto link = std::make_unique<TDSLink>(one, other);
      link->AddPair("column_3", "=", "column_0");
      model.AddLinkByRef(std::move(link));
    }
    info.OnFieldsRequest = [](TJDBInfo&, std::string_view, TDBFieldList& fields) {
      for (int i = 0; i < fieldCount; ++i) fields.Add("column_" + std::to_string(i), ftInteger);
    };
    info.OnKeysRequest = [](TJDBInfo&, std::string_view, TStrings& keys) { keys.Add("column_0"); };
    model.SetDatabaseInfo(&info);
  }

  static TDesignPositions PlaceOf(int table) { return {12 + table % 25 * 150, 10 + table / 25 * 180, 110, 160}; }

  TJDBInfo info;
  TJDBStructure model;
};

void Prepare(QWidget& widget) {
  widget.resize(1200, 800);
  widget.show();
  QCoreApplication::processEvents();
  widget.repaint();
}

/// The scene of the toolkit.
struct TPlainScene {
  explicit TPlainScene(int tableCount) {
    for (int i = 0; i < tableCount; ++i) {
      const TDesignPositions place = TManyTables::PlaceOf(i);
      QGraphicsRectItem* box = scene.addRect(0, 0, place.Width, place.Height, QPen(Qt::black), QBrush(Qt::white));
      box->setPos(place.Left, place.Top);
      boxes.push_back(box);
      for (int row = 0; row <= fieldCount; ++row) {
        auto* text = new QGraphicsSimpleTextItem(QStringLiteral("column_%1").arg(row), box);
        text->setPos(4, row * 12);
      }
    }
    for (int i = 0; i < 2 * tableCount; ++i) {
      const QPointF one = boxes[static_cast<std::size_t>(i % tableCount)]->pos();
      lines.push_back(scene.addLine({one, boxes[static_cast<std::size_t>((i * 7 + 3) % tableCount)]->pos()}));
    }
    view.setScene(&scene);
  }

  QGraphicsScene scene;
  std::vector<QGraphicsRectItem*> boxes;
  std::vector<QGraphicsLineItem*> lines;
  QGraphicsView view;
};

void DiagramOpened(benchmark::State& state) {
  TManyTables tables(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    TJStructDesignPanel panel;
    panel.SetDBStruct(&tables.model);
    panel.Activate();
    Prepare(panel);
  }
}
BENCHMARK(DiagramOpened)->Arg(500)->Arg(2500)->Unit(benchmark::kMillisecond);

void PlainSceneOpened(benchmark::State& state) {
  for (auto _ : state) {
    TPlainScene plain(static_cast<int>(state.range(0)));
    Prepare(plain.view);
  }
}
BENCHMARK(PlainSceneOpened)->Arg(500)->Arg(2500)->Unit(benchmark::kMillisecond);

/// One frame of dragging the first box.
void BoxDragged(benchmark::State& state) {
  TManyTables tables(static_cast<int>(state.range(0)));
  TJStructDesignPanel panel;
  panel.SetDBStruct(&tables.model);
  panel.Activate();
  Prepare(panel);
  QWidget& viewport = *panel.DesignArea().viewport();
  const auto mouse = [&](QEvent::Type type, QPoint at, Qt::MouseButtons buttons) {
    QMouseEvent event(type, QPointF(at), viewport.mapToGlobal(QPointF(at)), Qt::LeftButton, buttons, {});
    QCoreApplication::sendEvent(&viewport, &event);
  };
  mouse(QEvent::MouseButtonPress, {50, 20}, Qt::LeftButton);
  int frame = 0;
  for (auto _ : state) {
    ++frame;
    mouse(QEvent::MouseMove, {50 + frame % 40 * 10, 20 + frame % 20 * 10}, Qt::LeftButton);
    QCoreApplication::processEvents();
  }
  mouse(QEvent::MouseButtonRelease, {50, 20}, {});
}
BENCHMARK(BoxDragged)->Arg(500)->Arg(2500)->Unit(benchmark::kMillisecond);

/// With all that is in sight painted anew.
void PlainItemDragged(benchmark::State& state) {
  TPlainScene plain(static_cast<int>(state.range(0)));
  Prepare(plain.view);
  int frame = 0;
  for (auto _ : state) {
    ++frame;
    const QPointF at(12 + frame % 40 * 10, 10 + frame % 20 * 10);
    plain.boxes[0]->setPos(at);
    for (const std::size_t line : {std::size_t{0}, plain.boxes.size()}) {
      plain.lines[line]->setLine({at, plain.lines[line]->line().p2()});
    }
    plain.view.viewport()->repaint();
  }
}
BENCHMARK(PlainItemDragged)->Arg(500)->Arg(2500)->Unit(benchmark::kMillisecond);

/// One frame of zooming, through all sizes.
void DiagramZoomed(benchmark::State& state) {
  TManyTables tables(static_cast<int>(state.range(0)));
  TJStructDesignPanel panel;
  panel.SetDBStruct(&tables.model);
  panel.Activate();
  Prepare(panel);
  int frame = 0;
  for (auto _ : state) {
    panel.SetZoom(0.1 + frame++ % 20 * 0.1);
    QCoreApplication::processEvents();
  }
}
BENCHMARK(DiagramZoomed)->Arg(500)->Arg(2500)->Unit(benchmark::kMillisecond);

void PlainSceneZoomed(benchmark::State& state) {
  TPlainScene plain(static_cast<int>(state.range(0)));
  Prepare(plain.view);
  int frame = 0;
  for (auto _ : state) {
    plain.view.setTransform(QTransform::fromScale(0.1 + frame % 20 * 0.1, 0.1 + frame % 20 * 0.1));
    ++frame;
    QCoreApplication::processEvents();
  }
}
BENCHMARK(PlainSceneZoomed)->Arg(500)->Arg(2500)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tolvi::bench
