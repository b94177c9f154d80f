#include <deque>
#include <optional>
#include <utility>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/streaming.h>
#include <tolvi/foundation/streamtext.h>

namespace tolvi {
namespace {

using TComponentsByName = std::unordered_map<std::string, const TComponent*, TFoldedHash, TFoldedEqual>;

const TComponent* FindByName(const TComponentsByName& components, std::string_view name) {
  const auto found = components.find(name);
  return found == components.end() ? nullptr : found->second;
}

// The name of a property, or identifiers joined by points for one of a part ("SQLFormats.Date").
std::string_view CutPropertyName(std::string_view& text) {
  const std::string_view whole = text;
  CutIdentifier(text);
  while (text.starts_with('.')) {
    text.remove_prefix(1);
    CutIdentifier(text);
  }
  return whole.substr(0, whole.size() - text.size());
}

}  // namespace

void TComponentRegistry::Register(std::string_view className, TFactory factory) {
  FFactories.insert_or_assign(std::string(className), std::move(factory));
}

std::unique_ptr<TComponent> TComponentRegistry::Create(std::string_view className) const {
  const auto found = FFactories.find(className);
  return found == FFactories.end() ? nullptr : found->second();
}

/// Writes one tree. Calls only getters, so that it works on constant components.
class TComponentWriter final : private TPropertyFiler {
 public:
  explicit TComponentWriter(const TComponent& root) : FRoot(root) { CollectNames(root, 1); }

  std::string Write() && {
    WriteObject(FRoot);
    return std::move(FText);
  }

 private:
  void Boolean(std::string_view name, const std::function<bool()>& get, const std::function<void(bool)>&,
               bool byDefault) override {
    const bool value = get();
    if (value != byDefault) Line(name, " = ", value ? "True" : "False");
  }
  void Integer(std::string_view name, const std::function<std::int64_t()>& get,
               const std::function<void(std::int64_t)>&, std::int64_t byDefault) override {
    const std::int64_t value = get();
    if (value != byDefault) Line(name, " = ", std::to_string(value));
  }
  void Text(std::string_view name, const std::function<std::string()>& get,
            const std::function<void(const std::string&)>&, std::string_view byDefault) override {
    const std::string value = get();
    if (value != byDefault) Line(name, " = ", TextLiteral(value));
  }
  void Lines(std::string_view name, const std::function<TStrings()>& get, const std::function<void(const TStrings&)>&,
             bool stored) override {
    if (!stored) return;
    const TStrings lines = get();
    Line(name, " = (", lines.Empty() ? ")" : "");
    for (std::size_t i = 0; i < lines.Count(); ++i)
      Line("  ", TextLiteral(lines[i]), i + 1 == lines.Count() ? ")" : "");
  }
  void ReadOnlyInteger(std::string_view, const std::function<void(std::int64_t)>&) override {}
  void Reference(std::string_view name, const std::function<TComponent*()>& get,
                 const std::function<void(TComponent*)>&) override {
    if (const TComponent* target = get()) Line(name, " = ", ReferenceText(name, *target));
  }

  void CollectNames(const TComponent& component, std::size_t level) {
    if (level > MaxComponentNesting)
      throw EStreamError("Components nest deeper than %d levels below %s", {MaxComponentNesting, FRoot.GetName()});
    FByName.try_emplace(component.GetName(), &component);
    for (std::size_t i = 0; i < component.GetComponentCount(); ++i) CollectNames(component.GetComponent(i), level + 1);
  }

  std::string ReferenceText(std::string_view property, const TComponent& target) const {
    std::string path;
    for (const TComponent* at = &target;; at = at->GetOwner()) {
      if (!at || at->GetName().empty())
        throw EStreamError("%s of %s refers to a component that %s; clear it, or %s",
                           {property, FCurrent->GetName(), at ? "has no name" : "is not in the tree",
                            at ? "name the component and its owners" : "write the tree that holds both"});
      path.insert(0, NameLiteral(at->GetName()));
      if (at == &target && FindByName(FByName, at->GetName()) == at) return path;
      if (at == &FRoot) return path;
      path.insert(0, ".");
    }
  }

  void WriteObject(const TComponent& component) {
    const std::string name = component.GetName().empty() ? std::string() : NameLiteral(component.GetName()) + ": ";
    Line("object ", name, component.ClassName());
    FIndent += 2;
    FCurrent = &component;
    const_cast<TComponent&>(component).DefineProperties(*this);
    for (std::size_t i = 0; i < component.GetComponentCount(); ++i) WriteObject(component.GetComponent(i));
    FIndent -= 2;
    Line("end");
  }

  void Line(std::string_view a, std::string_view b = {}, std::string_view c = {}) {
    FText.append(FIndent, ' ').append(a).append(b).append(c).append(CrLf);
  }

  const TComponent& FRoot;
  const TComponent* FCurrent = nullptr;
  TComponentsByName FByName;
  std::string FText;
  std::size_t FIndent = 0;
};

/// Reads one tree: the components with their values line by line, each component's properties at its "end"; then the
/// references; then the calls of `Loaded`.
class TComponentReader final : private TPropertyFiler {
 public:
  TComponentReader(std::string_view text, const TComponentRegistry& registry) : FRegistry(registry) {
    if (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());
    FLines = SplitLines(text);
  }

  std::unique_ptr<TComponent> Read() && {
    while (FLine < FLines.size()) ReadLine(Trim(FLines[FLine++]));
    if (!FOpen.empty()) Fail(FOpen.back().line, "the object that begins here has no \"end\"; add it", {});
    if (!FRoot) Fail(1, "there is no component; begin with \"object Name: Class\"", {});
    SetReferences();
    for (const TRead& read : FRead)
      if (TComponent* component = read.component.Get())
        Guarded(read.line, "it could not be loaded", [component] { component->Loaded(); });
    return std::move(FRoot);
  }

 private:
  struct TProperty {
    std::string_view name, value;
    std::size_t line = 0;
    bool isList = false, used = false;
    std::vector<std::string> lines;
  };
  struct TOpen {
    TComponent* component;
    std::size_t line;
    std::vector<TProperty> properties;
  };
  // Components may destroy one another while they are loaded.
  struct TRead {
    TRef<TComponent> component;
    std::size_t line = 0;
  };
  struct TPendingReference {
    TRef<TComponent> component;
    std::function<void(TComponent*)> set;
    TProperty property;
  };

  [[noreturn]] static void Fail(std::size_t line, std::string_view message, std::initializer_list<TFormatArg> args) {
    throw EStreamError(Format("Line %d: ", {line}) + Format(message, args));
  }
  template <typename F>
  static void Guarded(std::size_t line, std::string_view what, F action) {
    try {
      action();
    } catch (const EException& error) {
      Fail(line, "%s: %s", {what, error.what()});
    }
  }

  void ReadLine(std::string_view line) {
    if (line.empty()) return;
    if (FOpen.empty() && FRoot) Fail(FLine, "nothing may follow the end of the first object; remove it", {});
    std::string_view rest = line;
    const std::string_view word = CutPropertyName(rest);
    SkipBlanks(rest);
    if (!FOpen.empty() && !word.empty() && rest.starts_with('='))
      ReadProperty(word, Trim(rest.substr(1)));
    else if (AsciiSameText(word, "object"))
      ReadHeader(line, rest);
    else if (!FOpen.empty() && AsciiSameText(word, "end") && rest.empty())
      CloseObject();
    else if (FOpen.empty())
      Fail(FLine, "expected \"object Name: Class\", not \"%s\"", {line});
    else
      Fail(FLine, "expected \"Property = value\", \"object Name: Class\" or \"end\", not \"%s\"", {line});
  }

  void ReadHeader(std::string_view line, std::string_view rest) {
    std::string name = CutName(rest).value_or(""), className;
    SkipBlanks(rest);
    if (rest.starts_with(':')) {
      rest.remove_prefix(1);
      SkipBlanks(rest);
      className = CutIdentifier(rest);
    } else {
      className.swap(name);
    }
    if (className.empty() || !rest.empty()) Fail(FLine, "expected \"object Name: Class\", not \"%s\"", {line});
    if (FOpen.size() >= MaxComponentNesting)
      Fail(FLine, "objects nest deeper than %d levels; move this one further out", {MaxComponentNesting});

    std::unique_ptr<TComponent> created;
    Guarded(FLine, "it could not be made", [&] { created = FRegistry.Create(className); });
    if (!created) Fail(FLine, "unknown class \"%s\"; register it or correct its name", {className});
    TComponent& component = *created;
    component.FLoading = true;
    Guarded(FLine, "give it another name", [&] {
      component.SetName(name);
      if (FOpen.empty())
        FRoot = std::move(created);
      else
        FOpen.back().component->Own(std::move(created));
    });
    TRead& read = FRead.emplace_back();
    read.component.Set(&component);
    read.line = FLine;
    FOpen.push_back({&component, FLine, {}});
  }

  void ReadProperty(std::string_view name, std::string_view value) {
    TProperty& property = FOpen.back().properties.emplace_back();
    property.name = name;
    property.value = value;
    property.line = FLine;
    if (!value.starts_with('(')) return;
    property.isList = true;
    for (std::string_view rest = value.substr(1);;) {
      SkipBlanks(rest);
      if (rest == ")") return;
      if (rest.empty()) {
        if (FLine == FLines.size()) Fail(property.line, "the list that begins here has no \")\"; add it", {});
        rest = Trim(FLines[FLine++]);
      } else if (std::optional<std::string> text = CutTextLiteral(rest)) {
        property.lines.push_back(std::move(*text));
      } else {
        Fail(FLine, "expected a text in single quotes or \")\", not \"%s\"", {rest});
      }
    }
  }

  void CloseObject() {
    TOpen& open = FOpen.back();
    open.component->DefineProperties(*this);
    for (const TProperty& property : open.properties)
      if (!property.used)
        Fail(property.line, "%s has no property \"%s\"; remove the line or correct the name",
             {open.component->ClassName(), property.name});
    FOpen.pop_back();
  }

  /// The property of the object being closed, null when the text does not give it.
  TProperty* Take(std::string_view name) {
    TProperty* taken = nullptr;
    for (TProperty& property : FOpen.back().properties) {
      if (!AsciiSameText(property.name, name)) continue;
      if (taken) Fail(property.line, "%s is given a second time; remove one of the two", {property.name});
      taken = &property;
      property.used = true;
    }
    return taken;
  }

  [[noreturn]] static void FailType(const TProperty& property, std::string_view wanted) {
    Fail(property.line, "%s must be %s, not %s",
         {property.name, wanted,
          property.isList          ? "a list"
          : property.value.empty() ? "nothing"
                                   : property.value});
  }
  template <typename V>
  static void Set(const TProperty& property, const std::function<void(V)>& set, const V& value) {
    Guarded(property.line, property.name, [&] { set(value); });
  }

  void Boolean(std::string_view name, const std::function<bool()>&, const std::function<void(bool)>& set,
               bool) override {
    const TProperty* property = Take(name);
    if (!property) return;
    const bool value = AsciiSameText(property->value, "True");
    if (!value && !AsciiSameText(property->value, "False")) FailType(*property, "True or False");
    Set(*property, set, value);
  }
  void Integer(std::string_view name, const std::function<std::int64_t()>&,
               const std::function<void(std::int64_t)>& set, std::int64_t) override {
    ReadOnlyInteger(name, set);
  }
  void ReadOnlyInteger(std::string_view name, const std::function<void(std::int64_t)>& set) override {
    const TProperty* property = Take(name);
    if (!property) return;
    const std::optional<std::int64_t> value = TryStrToInt(property->value);
    if (!value) FailType(*property, "a whole number");
    Set(*property, set, *value);
  }
  void Text(std::string_view name, const std::function<std::string()>&,
            const std::function<void(const std::string&)>& set, std::string_view) override {
    const TProperty* property = Take(name);
    if (!property) return;
    std::string_view rest = property->value;
    const std::optional<std::string> value = CutTextLiteral(rest);
    if (!value || !rest.empty()) FailType(*property, "a text in single quotes");
    Guarded(property->line, property->name, [&] { set(*value); });
  }
  void Lines(std::string_view name, const std::function<TStrings()>&, const std::function<void(const TStrings&)>& set,
             bool) override {
    TProperty* property = Take(name);
    if (!property) return;
    if (!property->isList) FailType(*property, "a list of texts in parentheses");
    Guarded(property->line, property->name, [&] { set(TStrings(std::move(property->lines))); });
  }
  void Reference(std::string_view name, const std::function<TComponent*()>&,
                 const std::function<void(TComponent*)>& set) override {
    const TProperty* property = Take(name);
    if (!property) return;
    TPendingReference& reference = FReferences.emplace_back();
    reference.component.Set(FOpen.back().component);
    reference.set = set;
    reference.property = *property;
  }

  void SetReferences() {
    TComponentsByName byName;
    for (const TRead& read : FRead)
      if (const TComponent* component = read.component.Get()) byName.try_emplace(component->GetName(), component);
    for (const TPendingReference& reference : FReferences)
      if (reference.component) {
        TComponent* target = FindTarget(reference.property, byName);
        Guarded(reference.property.line, reference.property.name, [&] { reference.set(target); });
      }
  }

  TComponent* FindTarget(const TProperty& property, const TComponentsByName& byName) const {
    std::string_view rest = property.value;
    std::optional<std::string> name = CutName(rest);
    if (!name || name->empty()) FailType(property, "the name of a component");
    const TComponent* target = FindByName(byName, *name);
    if (rest.starts_with('.')) target = SameText(*name, FRoot->GetName()) ? FRoot.get() : nullptr;
    while (rest.starts_with('.')) {
      rest.remove_prefix(1);
      name = CutName(rest);
      if (!name) FailType(property, "the name of a component");
      if (target) target = target->FindComponent(*name);
    }
    if (!rest.empty()) FailType(property, "the name of a component");
    if (!target)
      Fail(property.line, "%s: there is no component %s; add it or remove the line", {property.name, property.value});
    return const_cast<TComponent*>(target);
  }

  const TComponentRegistry& FRegistry;
  std::vector<std::string_view> FLines;
  std::size_t FLine = 0;
  std::unique_ptr<TComponent> FRoot;
  std::vector<TOpen> FOpen;
  std::deque<TRead> FRead;
  std::deque<TPendingReference> FReferences;
};

std::string WriteComponentText(const TComponent& root) { return TComponentWriter(root).Write(); }

std::unique_ptr<TComponent> ReadComponentText(std::string_view text, const TComponentRegistry& registry) {
  return TComponentReader(text, registry).Read();
}

}  // namespace tolvi
