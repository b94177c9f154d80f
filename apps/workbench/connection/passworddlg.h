#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>

#include <tolvi/connect/connecturl.h>
class QWidget;

namespace tolvi {

class TSecrets;

struct TGivenPassword {
  std::string Password = {};
  /// The user wants it in the keychain; else it is for the session.
  bool IsForKeychain = false;
};

/// Asks for the password of a connection. Nothing: the user gave up. `fault` is what the server said to the one before,
/// `refused`, if that was given here. It is kept nowhere: whether it is the right one shows later (see `KeepPassword`).
std::optional<TGivenPassword> AskPassword(QWidget* parent, const TConnectionUrl& url, TSecrets& secrets,
                                          const QString& fault = {}, const std::optional<TGivenPassword>& refused = {});

/// Keeps the password, which has proved right, where the user wants it and nowhere else: one that the keychain is known
/// to have is forgotten. `told` gets what there is to say when the keychain does not take it.
void KeepPassword(TSecrets& secrets, const TConnectionUrl& url, const TGivenPassword& given,
                  const std::function<void(const QString& words)>& told);

}  // namespace tolvi
