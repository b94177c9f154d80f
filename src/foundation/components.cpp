#include <algorithm>

#include <tolvi/foundation/components.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/text.h>

namespace tolvi {
namespace {

constexpr std::string_view NameExists = "A component named %s already exists";

}  // namespace

TComponent::~TComponent() {
  FDestroying = true;
  while (!FRefs.empty()) {
    TRefBase* ref = FRefs.back();
    FRefs.pop_back();
    ref->Removed();
  }
  while (!FComponents.empty()) {
    const std::unique_ptr<TComponent> last = std::move(FComponents.back());
    FComponents.pop_back();
    last->FOwner = nullptr;
  }
}

void TComponent::SetName(std::string_view name) {
  if (FOwner && !name.empty()) {
    const TComponent* other = FOwner->FindComponent(name);
    if (other && other != this) throw EException(NameExists, {name});
  }
  FName = name;
}

void TComponent::OwnComponent(std::unique_ptr<TComponent> component) {
  if (FindComponent(component->FName)) throw EException(NameExists, {component->FName});
  FComponents.push_back(std::move(component));
  FComponents.back()->FOwner = this;
}

std::unique_ptr<TComponent> TComponent::Disown(TComponent& component) {
  const auto found = std::find_if(FComponents.begin(), FComponents.end(),
                                  [&component](const auto& entry) { return entry.get() == &component; });
  if (found == FComponents.end()) return nullptr;
  std::unique_ptr<TComponent> result = std::move(*found);
  FComponents.erase(found);
  result->FOwner = nullptr;
  return result;
}

TComponent& TComponent::GetComponent(std::size_t index) const {
  if (index >= FComponents.size()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  return *FComponents[index];
}

TComponent* TComponent::FindComponent(std::string_view name) const {
  if (name.empty()) return nullptr;
  for (const std::unique_ptr<TComponent>& component : FComponents)
    if (SameText(component->FName, name)) return component.get();
  return nullptr;
}

void TComponent::DefineProperties(TPropertyFiler&) {}

void TRefBase::Point(TComponent* target) {
  if (target && target->FDestroying) target = nullptr;
  if (target == FTarget) return;
  if (target) target->FRefs.push_back(this);
  if (FTarget) std::erase(FTarget->FRefs, this);
  FTarget = target;
}

void TRefBase::Removed() {
  FTarget = nullptr;
  // The handler may destroy this object, and with it FOnRemoved.
  const std::function<void()> handler = FOnRemoved;
  if (handler) handler();
}

}  // namespace tolvi
