#pragma once

#include <QWidget>
#include <functional>
#include <string_view>
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
  /// By double click or Enter: the section of the model text in which the finding stands.
  std::function<void(std::string_view section)> OnActivate;

 private:
  QLabel* FSummary;
  QListView* FList;
  QStringListModel* FItems;
  std::vector<TCheckFinding> FFindings;
};

}  // namespace tolvi
