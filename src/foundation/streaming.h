#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/components.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

/// The component classes that a text may name, each with the function that makes an empty component of it.
class TOLVI_CORE_API TComponentRegistry {
 public:
  using TFactory = std::function<std::unique_ptr<TComponent>()>;

  /// A class registered again (ignoring case) gets the new factory.
  void Register(std::string_view className, TFactory factory);
  template <typename T>
  void Register(std::string_view className) {
    Register(className, [] { return std::make_unique<T>(); });
  }

  /// A new component; null when the class is not registered.
  std::unique_ptr<TComponent> Create(std::string_view className) const;

 private:
  std::unordered_map<std::string, TFactory, TFoldedHash, TFoldedEqual> FFactories;
};

/// Levels of components in one another that a text may hold.
inline constexpr std::size_t MaxComponentNesting = 1000;

/// The component with all that it owns as text, lines ended with CR LF:
///
///     object Form1: TForm
///       Caption = 'It''s'#13#10'here'
///       Visible = False
///       Lines = (
///         'line 1'
///         'line 2')
///       Model = Structure1
///       object Structure1: TJDBStructure
///         SQLFormats.TrueValue = '1'
///       end
///     end
///
/// A component without a name is headed "object TForm"; a name that is no identifier stands in single quotes. A
/// reference is written as the name of its target, or as the names of all components from the root down to it, joined
/// by points, where another component has that name.
///
/// Raises `EStreamError` when the text could not be read back: a reference leads out of the tree or to a component
/// without a name, or the components nest too deep.
TOLVI_CORE_API std::string WriteComponentText(const TComponent& root);

/// Makes the component tree of such a text. References are set when all components are there, in the order of the
/// text; then `Loaded` is called for every component in the order of the text, owners before the components that
/// they own.
///
/// Raises `EStreamError` for a text that cannot be read, and in place of any `EException` that a component raises
/// while it is read; the message begins with "Line %d: ", counted from 1. What was made so far is destroyed.
TOLVI_CORE_API std::unique_ptr<TComponent> ReadComponentText(std::string_view text, const TComponentRegistry& registry);

}  // namespace tolvi
