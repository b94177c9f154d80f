#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include <tolvi/model/modelcheck.h>

class QLabel;
class QListView;
class QStringListModel;

namespace tolvi {

/// What is wrong with a model, as a list.
class TModelCheckPane final : public QWidget {
  Q_OBJECT

 public:
  explicit TModelCheckPane(QWidget* parent);

  void ShowFindings(std::vector<TCheckFinding> findings);
  /// By double click or Enter, when the click or key has been handled.
  std::function<void(const TCheckFinding& finding)> OnActivate;

 private:
  QLabel* FSummary;
  QListView* FList;
  QStringListModel* FItems;
  std::vector<TCheckFinding> FFindings;
};

}  // namespace tolvi
