#pragma once

#include <QDialog>
#include <cstddef>

#include <tolvi/foundation/strings.h>
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;

namespace tolvi {

class TJCustomDBStructure;

/// Lets the user choose columns of a table of the model that no field shows yet, or type one.
class T_dlgColumns final : public QDialog {
  Q_OBJECT

 public:
  /// Begins with the table of that index.
  T_dlgColumns(const TJCustomDBStructure& model, std::size_t table, QWidget* parent);

  std::size_t GetTable() const;
  TStrings GetColumns() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowColumns();

  const TJCustomDBStructure& FModel;
  QComboBox* FTable;
  QListWidget* FColumns;
  QLineEdit* FTyped;
  QLabel* FTold;
};

}  // namespace tolvi
