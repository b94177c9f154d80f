#pragma once

#include <QTimer>
#include <QWidget>

#include <tolvi/query/querpnl.h>

class QComboBox;
class QLabel;
class QPlainTextEdit;

namespace tolvi {

class TJQueryPanelView;
class TJResultFieldsPanel;
class TModelEditor;

/// A query on the model that is being edited, with the statement that it stands for. The query stays through all
/// changes of the model, undo and redo included: what the model loses, the query keeps as unknown until it comes back.
/// The statement is made when events have been handled, and only while it is to be seen.
class TTryPane final : public QWidget {
  Q_OBJECT

 public:
  TTryPane(TModelEditor& editor, QWidget* parent);
  ~TTryPane() override;

  /// The model has changed: the statement is made anew.
  void Refresh();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* MakeStatement();
  void ShowStatement();

  TJQueryPanel FPanel;
  TJQueryPanelView* FConditions;
  TJResultFieldsPanel* FColumns;
  QComboBox* FSyntax;
  QPlainTextEdit* FStatement;
  QLabel* FTold;
  QTimer FTimer;
};

}  // namespace tolvi
