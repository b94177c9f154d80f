#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "apps/workbench/export/chartdata.h"
#include "apps/workbench/export/exportdlg.h"

class QAbstractSeries;
class QChart;
class QChartView;
class QComboBox;
class QLabel;
class QPushButton;

namespace tolvi {

/// A chart of two columns of a result, as bars or a line. Colours are those of the palette. Controls: "chart.kind",
/// "chart.x", "chart.y", "chart.copy", "chart.save", "chart.view", "chart.told", "chart.readall".
class TChartPane final : public QWidget {
  Q_OBJECT

 public:
  explicit TChartPane(QWidget* parent = nullptr);
  ~TChartPane() override;

  /// The rows to draw and their order as in `TSortedRows`; null for none. Nobody may add to them afterwards. The
  /// columns that the user chose stay chosen when the names of all columns are the same as before. Drawn while it can
  /// be seen. Rows that are not all are told, and those of `exBeginning` with a button.
  void SetRows(std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order = {},
               TExtent extent = exWhole);
  /// That button: the user wants all rows.
  std::function<void()> OnReadAll;
  /// Above the chart, and the proposed name of its file.
  void SetTitle(const QString& title);
  /// Where the folder of pictures is remembered, as "chart.folder".
  void SetMemory(TMemory memory) { FMemory = std::move(memory); }

  /// Default chBar.
  TChartKind GetKind() const;
  void SetKind(TChartKind kind);
  /// Numbers of columns; -1 for none. A y without numbers is ignored.
  int GetX() const;
  int GetY() const;
  void SetColumns(int x, int y);
  /// What is drawn.
  const TChartData& GetData();

  QImage ToImage(double scale = 1);
  void CopyPicture();
  /// A file that ends with ".png" or ".svg". Raises `EFileError` naming the file and the reason.
  void SaveTo(const QString& file);
  void SaveByDialog();

 protected:
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* MakeBar();
  QWidget* MakeTold();
  QString ToldOf(const TChartData& data) const;
  void FillColumns();
  void Changed();
  void Draw();
  void DrawBars(QChart& chart);
  void DrawLine(QChart& chart);
  void AddAxes(QChart& chart, QAbstractSeries& series, double first, double last);
  void ShowPoint(bool isOn, int index);
  void Dress(QChart& chart);
  void Tell();
  QString YName() const;

  std::shared_ptr<const TResultRows> FRows;
  std::vector<std::uint32_t> FOrder;
  TExtent FExtent = exWhole;
  QString FTitle;
  TMemory FMemory;
  TChartData FData;
  // Whether the data, the picture are those of rows and choices.
  bool FHasData = false, FIsDrawn = false;
  QTimer FTimer;
  QComboBox* FKind = nullptr;
  QComboBox* FX = nullptr;
  QComboBox* FY = nullptr;
  QPushButton* FCopy = nullptr;
  QPushButton* FSave = nullptr;
  QChartView* FView = nullptr;
  QLabel* FTold = nullptr;
  QPushButton* FReadAll = nullptr;
};

}  // namespace tolvi
