#pragma once

#include <functional>
#include <utility>

namespace tolvi {

/// Calls the handler of an event, if there is one. It may destroy the object that holds it.
template <typename... TParameters, typename... TArguments>
void Fire(const std::function<void(TParameters...)>& handler, TArguments&&... arguments) {
  if (const std::function<void(TParameters...)> copy = handler) copy(std::forward<TArguments>(arguments)...);
}

}  // namespace tolvi
