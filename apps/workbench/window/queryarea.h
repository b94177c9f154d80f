#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include <tolvi/foundation/strings.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/panels/rfldpnl.h>
class QSplitter;

namespace tolvi {

/// The conditions and the result columns of a query, one above the other, kept alike with the query panel.
class TQueryArea final : public QWidget {
  Q_OBJECT

 public:
  /// `titles`: the panels' texts in the user's language; empty for English.
  explicit TQueryArea(const TStrings& titles, QWidget* parent = nullptr);

  /// Not owned; its `OnChange` is this area's from then on. Null, the default, for none.
  void SetPanel(TJQueryPanel* panel, TJDBStructure* model);
  TJQueryPanelView& Conditions() const { return *FConditions; }
  TJResultFieldsPanel& Columns() const { return *FColumns; }
  QSplitter& Splitter() const { return *FSplitter; }

  /// Goes to the row of that ID; false when there is none.
  bool GoToRow(const std::string& rowID);
  /// The query is another one: what was done to the former one cannot be undone.
  void ForgetSteps();

  /// After every change of the query, whoever made it.
  std::function<void()> OnChange;
  /// What the user tried in one of the panes could not be done.
  std::function<void(const QString& words)> OnError;

 private:
  void PanelChanged();
  void ColumnsChanged();
  // Steps that lead back to here leave a query that is not modified.
  void NoteIfSaved();

  TStrings FTitles;
  TJQueryPanel* FPanel = nullptr;
  QSplitter* FSplitter;
  TJQueryPanelView* FConditions;
  TJResultFieldsPanel* FColumns;
  // What the panel of columns shows.
  std::string FShownColumns;
};

}  // namespace tolvi
