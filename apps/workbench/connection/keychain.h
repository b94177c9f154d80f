#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace tolvi {

struct TKeychainAnswer {
  /// What the keychain says when it does not do what it was asked for; a password that it does not know is no fault.
  QString Fault = {};
  /// Of `Read`: whether it knows the password, and the password.
  bool IsKnown = false;
  QString Password = {};
};

/// A keychain: texts by their keys. Each call returns at once; its answer comes from the event loop, once or, where a
/// keychain waits for its user, never.
class TKeychain {
 public:
  using TAnswered = std::function<void(const TKeychainAnswer& answer)>;

  virtual ~TKeychain() = default;
  virtual void Read(const QString& key, TAnswered answered) = 0;
  virtual void Write(const QString& key, const QString& password, TAnswered answered) = 0;
  virtual void Delete(const QString& key, TAnswered answered) = 0;
};

/// The system's, where there is one; else one that answers with faults. Answers may outlive it.
std::unique_ptr<TKeychain> SystemKeychain();

}  // namespace tolvi
