#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "apps/workbench/controls/keyline.h"
#include <tolvi/query/queryresult.h>
#include <tolvi/query/sqltypes.h>
#include <tolvi/query/values.h>

class QComboBox;
class QLabel;
class QPushButton;
class QScrollArea;
class QToolButton;

namespace tolvi {

class TSqlEdit;

/// Shows the statement of a query, read-only; the syntax in which it is written can be chosen. Controls:
/// "sql.view", "sql.dialect", "sql.copy", "sql.paste", "sql.told".
class TSqlPane final : public QWidget {
  Q_OBJECT

 public:
  explicit TSqlPane(QWidget* parent = nullptr);

  /// Takes fault and warnings away.
  void SetStatement(const std::string& sql);
  const std::string& GetStatement() const { return FStatement; }
  /// Why there is no statement now: the one before is greyed and cannot be copied. `rowID`: of the row at fault, if
  /// the user can be led there. An empty text takes the fault away.
  void ShowFault(const QString& words, const std::string& rowID = {});
  const QString& GetFault() const { return FFault; }
  /// What the statement leaves out or changes, below it; those with a row lead there.
  void SetWarnings(const std::vector<TQueryWarning>& warnings);
  /// Default ssSQL2. Setting fires nothing.
  TSQLSyntax GetSyntax() const;
  void SetSyntax(TSQLSyntax syntax);
  /// Whether a statement can be pasted: default true. `why` is the button's tool tip when it cannot.
  void SetCanPaste(bool canPaste, const QString& why = {});
  /// Those of the statement.
  TKeyLines Keys() const;

  /// The user has chosen another syntax.
  std::function<void(TSQLSyntax)> OnSyntaxChange;
  /// "Paste SQL..." was chosen.
  std::function<void()> OnPaste;
  /// "Show in query" was chosen at a fault or a warning.
  std::function<void(const std::string& rowID)> OnShowRow;
  /// The statement with markers in place of its values, for "Copy with parameters"; without it the menu item is off.
  /// What it throws is shown as a fault's words.
  std::function<std::string(TMarkerStyle)> OnMarkersRequest;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* MakeBar();
  void MakeTold();
  void FillCopyMenu();
  void Copy();
  void CopyWithMarkers(TMarkerStyle style);
  void ShowTold();
  void FollowLink(const QString& link);

  std::string FStatement;
  QString FFault;
  std::string FFaultRow;
  std::vector<TQueryWarning> FWarnings;
  TSqlEdit* FView = nullptr;
  QComboBox* FSyntax = nullptr;
  QToolButton* FCopy = nullptr;
  QPushButton* FPaste = nullptr;
  QLabel* FTold = nullptr;
  QScrollArea* FToldArea = nullptr;
};

}  // namespace tolvi
