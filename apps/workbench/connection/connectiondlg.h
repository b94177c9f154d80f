#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <vector>

#include "apps/workbench/connection/passworddlg.h"
#include <tolvi/connect/connecturl.h>
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QTimer;

namespace tolvi {

class TConnectionForm;
class TConnectionTest;
class TSecrets;

/// Chooses a database: by fields or by its URL, which follow each other. "Test" connects in the background and shows
/// what the database says.
///
///   T_dlgConnection dialog(secrets, this);
///   dialog.SetRecent(recent);
///   dialog.SetUrl(current);
///   if (dialog.exec() == QDialog::Accepted) Open(dialog.GetUrl(), dialog.GetGiven());
class T_dlgConnection final : public QDialog {
  Q_OBJECT

 public:
  /// `secrets` must outlive the dialog, which takes their `OnKeychain`.
  explicit T_dlgConnection(TSecrets& secrets, QWidget* parent = nullptr);
  ~T_dlgConnection() override;

  /// Shown at the left, in this order; no list for an empty one. Default empty.
  void SetRecent(std::vector<TConnectionUrl> urls);
  /// With the password that was typed, or is known.
  TConnectionUrl GetUrl() const;
  /// The password that was typed, if one was, or the one that is known, if it is to be remembered or no more. It is
  /// kept nowhere: see `KeepPassword`.
  std::optional<TGivenPassword> GetGiven() const;
  void SetUrl(const TConnectionUrl& url);
  /// How long a test may take. Default 10 seconds.
  void SetTestSeconds(int seconds);

  void accept() override;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Resize();
  QWidget* MakeUrlRow();
  QWidget* MakeTestRow();
  void ShowUrl();
  void FormChanged();
  // The same before anything was filled in: what is missing is not told as a fault.
  void FormBegun();
  // Shows what is wrong; whether nothing is.
  bool IsFilled();
  void UrlTyped(const QString& text);
  void ShowFault(const QString& fault);
  void FindPassword();
  void ShowKeychain();
  void Test();
  void ShowTold(const QString& words, bool isFault);

  TSecrets& FSecrets;
  std::vector<TConnectionUrl> FRecent;
  QListWidget* FRecentList;
  TConnectionForm* FForm;
  QLineEdit* FUrlLine;
  QLabel *FFault, *FTold;
  QPushButton *FTest, *FOk;
  QProgressBar* FBusy;
  QTimer* FFindTimer;
  // Without a password: that for which the known one was looked for.
  std::optional<TConnectionUrl> FFindUrl;
  std::unique_ptr<TConnectionTest> FConnectionTest;
  TDatabaseKind FShownKind = dkSQLite;
  int FTestSeconds = 10;
};

}  // namespace tolvi
