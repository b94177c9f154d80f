#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include <tolvi/connect/connecturl.h>
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace tolvi {

/// The fields of a connection: those that its kind of database has.
class TConnectionForm final : public QWidget {
  Q_OBJECT

 public:
  explicit TConnectionForm(QWidget* parent);

  /// With the password typed, or else the one that is known.
  TConnectionUrl GetUrl() const;
  /// `OnChange` is not called.
  void SetUrl(const TConnectionUrl& url);
  /// What was typed for another connection.
  void ForgetPassword();
  /// The user has changed something.
  std::function<void()> OnChange;
  /// What is missing or wrong, for people; empty when nothing is.
  QString Fault() const;
  /// Puts the focus where that is mended.
  void GoToFault();

  /// What the user has typed; nothing when it was not touched.
  std::optional<std::string> TypedPassword() const;
  /// A password that is used unless another one is typed, and whether the keychain has it; not shown.
  void SetKnownPassword(const std::optional<std::string>& password, bool isInKeychain = false);

  /// Room for each kind, so that a dialog keeps its height when another one is chosen.
  QSize sizeHint() const override;

  bool GetRemember() const;
  /// Whether passwords can be remembered beyond the end of the program, and what is told about that.
  void ShowKeychain(bool isThere, const QString& told);

 private:
  QLineEdit* AddLine(const char* name, const QString& caption);
  void MakeFileRow();
  void MakePasswordRows();
  void Browse();
  TDatabaseKind Kind() const;
  void ShowKind();
  void KeepRoom();
  void Changed();

  QFormLayout* FLayout;
  QComboBox* FKind;
  QWidget* FFileRow;
  QLineEdit *FFile, *FSource, *FHost, *FPort, *FDatabase, *FSchema, *FUser, *FPassword;
  QCheckBox* FRemember;
  QLabel* FRememberTold;
  std::string FKnownPassword;
  // The user has said whether to remember the password.
  bool FRememberChosen = false;
  QSize FRoom;
  bool FShowing = false;
};

}  // namespace tolvi
