#include "apps/workbench/connection/passworddlg.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>

#include "apps/workbench/connection/secrets.h"
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/checkstyle.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// How long a keychain is waited for: one that is locked may ask the user.
constexpr int KeychainMilliseconds = 2000;

class TPasswordDialog final : public QDialog {
 public:
  TPasswordDialog(QWidget* parent, const TConnectionUrl& url, bool hasKeychain, bool isRemembered, const QString& fault)
      : QDialog(parent), FPassword(new QLineEdit(this)), FRemember(new QCheckBox(this)) {
    setObjectName(QStringLiteral("password"));
    setWindowTitle(QObject::tr("Password"));
    auto* form = new QFormLayout(this);
    form->addRow(Told(QObject::tr("The password for %1").arg(ToQString(url.Shown()))));
    if (!fault.isEmpty()) {
      QLabel* words = Told(fault);
      QPalette colors = palette();
      colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
      words->setPalette(colors);
      words->setObjectName(QStringLiteral("password.fault"));
      form->addRow(words);
    }
    FPassword->setObjectName(QStringLiteral("password.password"));
    FPassword->setEchoMode(QLineEdit::Password);
    form->addRow(QObject::tr("&Password:"), FPassword);
    FRemember->setObjectName(QStringLiteral("password.remember"));
    FRemember->setText(QObject::tr("&Remember it in the keychain"));
    FRemember->setEnabled(hasKeychain);
    FRemember->setChecked(isRemembered);
    form->addRow(FRemember);
    if (!hasKeychain) {
      form->addRow(Told(QObject::tr("This system has no keychain: it is forgotten when the program ends.")));
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    UseCheckStyle(*this);
    FPassword->setFocus();
  }

  std::string Password() const { return FromQString(FPassword->text()); }
  bool IsRemembered() const { return FRemember->isEnabled() && FRemember->isChecked(); }

 private:
  QLabel* Told(const QString& words) {
    constexpr int Columns = 50;
    auto* label = new QLabel(words, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(Columns * fontMetrics().averageCharWidth());
    return label;
  }

  QLineEdit* FPassword;
  QCheckBox* FRemember;
};

}  // namespace

std::optional<TGivenPassword> AskPassword(QWidget* parent, const TConnectionUrl& url, TSecrets& secrets,
                                          const QString& fault, const std::optional<TGivenPassword>& refused) {
  const bool hasKeychain = secrets.WaitForKeychain(KeychainMilliseconds) == TSecrets::kcReady;
  const bool isRemembered = refused ? refused->IsForKeychain : secrets.IsInKeychain(url);
  const QPointer<TPasswordDialog> dialog = new TPasswordDialog(parent, url, hasKeychain, isRemembered, fault);
  const bool isTaken = dialog->exec() == QDialog::Accepted;
  if (!dialog) return std::nullopt;
  TGivenPassword given{dialog->Password(), dialog->IsRemembered()};
  delete dialog;
  return isTaken ? std::optional(std::move(given)) : std::nullopt;
}

void KeepPassword(TSecrets& secrets, const TConnectionUrl& url, const TGivenPassword& given,
                  const std::function<void(const QString& words)>& told) {
  if (!given.IsForKeychain) {
    // It was shown as remembered, and is not to be any more.
    if (secrets.IsInKeychain(url)) secrets.Forget(url);
    return secrets.KeepInSession(url, given.Password);
  }
  secrets.KeepInKeychain(url, given.Password, [told](const QString& fault) {
    if (fault.isEmpty()) return;
    told(QCoreApplication::translate("tolvi::T_dlgConnection",
                                     "The keychain did not take the password: %1. It is known until the program ends.")
             .arg(fault));
  });
}

}  // namespace tolvi
