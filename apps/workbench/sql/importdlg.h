#pragma once

#include <QDialog>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <tolvi/query/querpnl.h>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QListWidget;
class QPlainTextEdit;

namespace tolvi {

class TSqlEdit;

/// What the host lets an import do.
struct TImportOptions {
  /// The statement to begin with; empty: what the clipboard holds, if it looks like a SELECT.
  std::string Sql;
  /// Whether queries may hold rows of SQL; default false. Then the user can choose it.
  bool AllowFragments = false;
  /// Makes the scratch panel, which has its model, one like the host's: titles, locale, syntax. May be empty.
  std::function<void(TJQueryPanel&)> Prepare;
};

/// What the user made of a statement.
struct TImported {
  /// The query, for `TJQueryPanel::LoadFromText`.
  std::string QueryText;
  /// The statement it was read from.
  std::string Sql;
  std::vector<TImportWarning> Warnings;
  /// Whether it has rows of SQL: the panel that takes it must allow them (`SetAllowSQLFragments`) to build a statement.
  bool HasFragments = false;
};

/// A dialog in which a SELECT is pasted or typed and read as a query of the model: what an import drops, guesses or
/// cannot read is marked at its lines and listed, and the query is shown as sentences. The model is only read and must
/// outlive the call. Nothing when the user cancels.
std::optional<TImported> ImportSql(QWidget* parent, TJCustomDBStructure& model, const TImportOptions& options = {});

/// Whether a text begins as a SELECT does, behind white space, comments and opening brackets.
bool LooksLikeSelect(const QString& text);

/// The dialog. The statement is read some time after the last key; one of more than `MaxSize` bytes is refused.
/// Controls: "import.sql", "import.exact", "import.fragments", "import.list", "import.preview", "import.told".
///
/// Keys: F8 and Shift+F8 go to the next and the previous warning, Ctrl+Enter is OK.
class T_dlgImportSql final : public QDialog {
  Q_OBJECT

 public:
  T_dlgImportSql(TJCustomDBStructure& model, const TImportOptions& options, QWidget* parent = nullptr);
  ~T_dlgImportSql() override;

  static constexpr int MaxSize = 256 * 1024;

  /// What the statement was read as; nothing if it could not be.
  const std::optional<TImported>& GetImported() const { return FImported; }
  void accept() override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  // A line of the list: a fault has a column, counted in bytes from 1, if its place is known.
  struct TRemark {
    int Line = 0, Column = 0;
    QString Text;
    bool IsFault = false;
  };

  QWidget* MakeEditor();
  QWidget* MakeRemarks();
  void MakeKeys();
  void DrawMarkers();
  void Wait();
  void Read();
  void ReadStatement(const std::string& sql);
  void ShowRemarks();
  void MarkFault(const TRemark& remark);
  void GoTo(int index);
  void GoOn(int step);

  TJCustomDBStructure& FModel;
  std::function<void(TJQueryPanel&)> FPrepare;
  bool FAllowFragments;
  std::optional<TImported> FImported;
  QString FExplained, FNote;
  std::vector<TRemark> FRemarks;
  TSqlEdit* FEditor = nullptr;
  QCheckBox* FExact = nullptr;
  QCheckBox* FFragments = nullptr;
  QListWidget* FList = nullptr;
  QPlainTextEdit* FPreview = nullptr;
  QLabel* FTold = nullptr;
  QDialogButtonBox* FButtons = nullptr;
  QTimer FTimer;
};

}  // namespace tolvi
