#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

class TComponent;

/// What a component declares in `DefineProperties`: each published property with how to get and set it. Reading calls
/// the setters of the properties that the stream holds, writing calls the getters and leaves out defaults.
class TOLVI_CORE_API TPropertyFiler {
 public:
  virtual ~TPropertyFiler() = default;
  virtual void Boolean(std::string_view name, const std::function<bool()>& get, const std::function<void(bool)>& set,
                       bool byDefault) = 0;
  virtual void Integer(std::string_view name, const std::function<std::int64_t()>& get,
                       const std::function<void(std::int64_t)>& set, std::int64_t byDefault) = 0;
  virtual void Text(std::string_view name, const std::function<std::string()>& get,
                    const std::function<void(const std::string&)>& set, std::string_view byDefault) = 0;
  /// Written unless `stored` is false.
  virtual void Lines(std::string_view name, const std::function<TStrings()>& get,
                     const std::function<void(const TStrings&)>& set, bool stored) = 0;
  /// A property that is only read (kept for old streams).
  virtual void ReadOnlyInteger(std::string_view name, const std::function<void(std::int64_t)>& set) = 0;
  /// A component of the same form, written by its name. Set after all components are read; an unknown name raises
  /// `EStreamError`.
  virtual void Reference(std::string_view name, const std::function<TComponent*()>& get,
                         const std::function<void(TComponent*)>& set) = 0;
};

/// Base of everything that a host places on a form: has a name, may own other components, tells those that refer to
/// it when it goes, and streams its published properties.
///
/// Components stay at their address: neither copied nor moved.
class TOLVI_CORE_API TComponent {
 public:
  TComponent() = default;
  TComponent(const TComponent&) = delete;
  TComponent& operator=(const TComponent&) = delete;
  /// Tells every `TRef` that points here, then destroys the owned components, last first.
  virtual ~TComponent();

  /// The name of the class in streams ("TJDBStructure").
  virtual std::string_view ClassName() const = 0;

  const std::string& GetName() const { return FName; }
  /// Raises `EException` when another component of the same owner has the name (ignoring case):
  /// "A component named %s already exists".
  void SetName(std::string_view name);

  TComponent* GetOwner() const { return FOwner; }
  /// Takes a component over and returns it. Raises `EException` as `SetName` does when its name is taken; it is
  /// destroyed then.
  template <typename T>
  T& Own(std::unique_ptr<T> component) {
    T& result = *component;
    OwnComponent(std::move(component));
    return result;
  }
  /// Hands an owned component back; null when this component does not own it.
  std::unique_ptr<TComponent> Disown(TComponent& component);
  std::size_t GetComponentCount() const { return FComponents.size(); }
  TComponent& GetComponent(std::size_t index) const;
  /// The owned component of that name, ignoring case; null when there is none, and for an empty name.
  TComponent* FindComponent(std::string_view name) const;

  /// Between the first property read from a stream and the end of reading the whole form.
  bool IsLoading() const { return FLoading; }

 protected:
  /// Declares the published and the custom properties. Overrides call the base first.
  virtual void DefineProperties(TPropertyFiler& filer);
  /// Called once after the component and its whole form have been read.
  virtual void Loaded() { FLoading = false; }

 private:
  friend class TRefBase;
  friend class TComponentReader;
  friend class TComponentWriter;
  void OwnComponent(std::unique_ptr<TComponent> component);

  std::string FName;
  TComponent* FOwner = nullptr;
  bool FLoading = false, FDestroying = false;
  std::vector<std::unique_ptr<TComponent>> FComponents;
  std::vector<class TRefBase*> FRefs;
};

/// The part of `TRef` that knows no type.
class TOLVI_CORE_API TRefBase {
 public:
  TRefBase(const TRefBase&) = delete;
  TRefBase& operator=(const TRefBase&) = delete;

 protected:
  explicit TRefBase(std::function<void()> onRemoved) : FOnRemoved(std::move(onRemoved)) {}
  ~TRefBase() { Point(nullptr); }
  void Point(TComponent* target);
  TComponent* Target() const { return FTarget; }

 private:
  friend class TComponent;
  void Removed();

  TComponent* FTarget = nullptr;
  std::function<void()> FOnRemoved;
};

/// A reference to a component that this object does not own: it empties itself when the component is destroyed, then
/// calls its handler. The handler may destroy the reference; it must not throw.
template <typename T>
class TRef final : public TRefBase {
 public:
  explicit TRef(std::function<void()> onRemoved = {}) : TRefBase(std::move(onRemoved)) {}

  T* Get() const { return Target() ? FObject : nullptr; }
  void Set(T* object) {
    FObject = object;
    Point(object);
  }
  T* operator->() const { return Get(); }
  explicit operator bool() const { return Get() != nullptr; }

 private:
  T* FObject = nullptr;
};

}  // namespace tolvi
