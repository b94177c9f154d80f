#pragma once

#include <exception>

namespace tolvi {

/// Puts errors off until an operation is done.
class TDeferredErrors final {
 public:
  template <typename TStep>
  void Try(TStep step) {
    try {
      step();
    } catch (...) {
      if (!FFirst) FFirst = std::current_exception();
    }
  }
  /// Raises the first error of the steps, if there was one.
  void Raise() const {
    if (FFirst) std::rethrow_exception(FFirst);
  }

 private:
  std::exception_ptr FFirst;
};

}  // namespace tolvi
