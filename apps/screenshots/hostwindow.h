#pragma once

#include <QWidget>
#include <string>

#include <tolvi/foundation/strings.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/panels/rfldpnl.h>
class QPlainTextEdit;

namespace tolvi {

/// The host's own words, and a translation of those of the panels (empty for English).
struct THostTexts {
  QString Conditions = QStringLiteral("C&onditions"), Columns = QStringLiteral("Col&umns"),
          Statement = QStringLiteral("&Statement");
  TStrings Titles;
};

/// A window as a host makes it: conditions above, columns and the statement side by side below.
class THostWindow final : public QWidget {
 public:
  /// The model must outlive the window.
  explicit THostWindow(TJDBStructure& model, const THostTexts& texts = {});

  TJQueryPanel& GetPanel() { return FPanel; }
  TJQueryPanelView& GetConditions() const { return *FConditions; }
  TJResultFieldsPanel& GetColumns() const { return *FColumns; }
  /// The statement; the message of the error where there is none.
  std::string GetStatement();

  /// Shows the window and makes it the active one.
  void Open();

 private:
  void ShowStatement();

  TJQueryPanel FPanel;
  TJQueryPanelView* FConditions;
  TJResultFieldsPanel* FColumns;
  QPlainTextEdit* FStatement;
};

}  // namespace tolvi
