#include <algorithm>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/deferrederrors.h>
#include <tolvi/schema/qrybase.h>

namespace tolvi {

namespace {

constexpr TMessage SNoQueryBase{"SNoQueryBase", "Query base is not specified"};

/// False as soon as the base is destroyed.
class TAlive final {
 public:
  explicit TAlive(TJQueryBase& base) { FRef.Set(&base); }
  explicit operator bool() const { return static_cast<bool>(FRef); }

 private:
  TRef<TJQueryBase> FRef;
};

/// A flag of a base, set while this object lives.
class TFlagSet final {
 public:
  TFlagSet(TJQueryBase& base, bool& flag) : FAlive(base), FFlag(flag), FOld(std::exchange(flag, true)) {}
  TFlagSet(const TFlagSet&) = delete;
  TFlagSet& operator=(const TFlagSet&) = delete;
  ~TFlagSet() {
    if (FAlive) FFlag = FOld;
  }

 private:
  TAlive FAlive;
  bool& FFlag;
  bool FOld;
};

}  // namespace

// Queries

/// Is told that the query is destroyed, and tells an outer one.
struct TJQueryItem::TWatch {
  explicit TWatch(TJQueryItem& item) : item(item), outer(std::exchange(item.FDestroyed, &destroyed)) {}
  TWatch(const TWatch&) = delete;
  TWatch& operator=(const TWatch&) = delete;
  ~TWatch() {
    if (!destroyed) {
      item.FDestroyed = outer;
    } else if (outer != nullptr) {
      *outer = true;
    }
  }

  TJQueryItem& item;
  bool* outer;
  bool destroyed = false;
};

TJQueryItem::~TJQueryItem() {
  if (FDestroyed != nullptr) *FDestroyed = true;
}

void TJQueryItem::LoadContent(TStrings&) {}
void TJQueryItem::SaveContent(const TStrings&) {}

void TJQueryItem::SetQueryName(std::string_view name) {
  if (name == FQueryName) return;
  if (FQueryBase != nullptr) FQueryBase->FNames.clear();
  FQueryName = name;
  Changed();
}

void TJQueryItem::SetDescription(std::string_view description) {
  if (description == FDescription) return;
  FDescription = description;
  Changed();
}

void TJQueryItem::Changed() {
  if (FQueryBase == nullptr) return;
  const int index = FQueryBase->IndexByName(FQueryName);
  if (index >= 0) FQueryBase->QueryChanged(index);
}

TJQueryBase& TJQueryItem::NeedQueryBase() const {
  if (FQueryBase == nullptr) throw EJQueryBaseError(qbeNoQueryBase, std::string(SNoQueryBase));
  return *FQueryBase;
}

bool TJQueryItem::TakeContent(TStrings& strings) { return NeedQueryBase().NeedContent(strings); }
bool TJQueryItem::GiveContent(TStrings& strings) { return NeedQueryBase().GiveContent(strings); }

void TJQueryItem::Load() {
  const TWatch watch(*this);
  TStrings strings;
  LoadContent(strings);
  if (!watch.destroyed) GiveContent(strings);
}

void TJQueryItem::Save() {
  const TWatch watch(*this);
  TStrings strings;
  TakeContent(strings);
  if (!watch.destroyed) SaveContent(strings);
}

// Links

TJQueryBaseLink::~TJQueryBaseLink() { SetQueryBase(nullptr); }

void TJQueryBaseLink::QueryChanged(int) {}
void TJQueryBaseLink::QueryIndexChanged() {}
void TJQueryBaseLink::QueryListChanged(TQBOperation, int) {}
bool TJQueryBaseLink::GetQueryContent(TStrings&) { return false; }
bool TJQueryBaseLink::PutQueryContent(const TStrings&) { return false; }

void TJQueryBaseLink::SetQueryBase(TJQueryBase* queryBase) {
  if (queryBase == FQueryBase) return;
  if (FQueryBase != nullptr) FQueryBase->DelLink(*this);
  if (queryBase != nullptr) queryBase->AddLink(*this);
}

void TJQueryBase::AddLink(TJQueryBaseLink& link) {
  if (link.FQueryBase == this) return;
  if (link.FQueryBase != nullptr) link.FQueryBase->DelLink(link);
  FLinks.push_back(&link);
  link.FQueryBase = this;
}

void TJQueryBase::DelLink(TJQueryBaseLink& link) {
  if (link.FQueryBase != this) return;
  link.FQueryBase = nullptr;
  if (FCalls == nullptr) {
    std::erase(FLinks, &link);
  } else {
    std::replace(FLinks.begin(), FLinks.end(), &link, static_cast<TJQueryBaseLink*>(nullptr));
  }
}

// Calling handlers and links

enum TJQueryBase::TCallKind : std::uint8_t { ckRound, ckEvent, ckQuery, ckIndex, ckList, ckContent };

/// A handler or an operation of a link that runs, or a round of calls.
struct TJQueryBase::TCall {
  TCall(TJQueryBase& base, const void* receiver, TCallKind kind)
      : alive(base), base(base), receiver(receiver), kind(kind), outer(std::exchange(base.FCalls, this)) {}
  TCall(const TCall&) = delete;
  TCall& operator=(const TCall&) = delete;
  ~TCall() {
    if (!alive) return;
    base.FCalls = outer;
    if (outer == nullptr) std::erase(base.FLinks, nullptr);
  }

  TAlive alive;
  TJQueryBase& base;
  const void* receiver;
  TCallKind kind;
  const TCall* outer;
};

bool TJQueryBase::IsRunning(const void* receiver, TCallKind kind) const {
  for (const TCall* call = FCalls; call != nullptr; call = call->outer) {
    if (call->receiver == receiver && call->kind == kind) return true;
  }
  return false;
}

void TJQueryBase::Fire(const TQueryBaseEvent& event) {
  if (!event || IsRunning(&event, ckEvent)) return;
  const TCall call(*this, &event, ckEvent);
  const TQueryBaseEvent handler = event;
  handler(*this);
}

// Links that are attached meanwhile are not called.
void TJQueryBase::CallLinks(TCallKind kind, const std::function<void(TJQueryBaseLink&)>& call) {
  const TCall round(*this, nullptr, ckRound);
  TDeferredErrors errors;
  for (std::size_t i = 0, count = FLinks.size(); i < count && round.alive; ++i) {
    TJQueryBaseLink* link = FLinks[i];
    if (link == nullptr || IsRunning(link, kind)) continue;
    const TCall running(*this, link, kind);
    errors.Try([&] { call(*link); });
  }
  errors.Raise();
}

void TJQueryBase::TellLinks(TCallKind kind, const std::function<void(TJQueryBaseLink&)>& tell) {
  CallLinks(kind, [this, &tell](TJQueryBaseLink& link) {
    if (!FUpdating) tell(link);
  });
}

void TJQueryBase::QueryChanged(int index) {
  TellLinks(ckQuery, [index](TJQueryBaseLink& link) { link.QueryChanged(index); });
}

void TJQueryBase::IndexChanged() {
  TellLinks(ckIndex, [](TJQueryBaseLink& link) { link.QueryIndexChanged(); });
}

void TJQueryBase::ListChanged(TQBOperation operation, int index) {
  TellLinks(ckList, [operation, index](TJQueryBaseLink& link) { link.QueryListChanged(operation, index); });
}

bool TJQueryBase::NeedContent(TStrings& strings) {
  bool answered = false, asking = true;
  CallLinks(ckContent, [&](TJQueryBaseLink& link) {
    // An error ends the asking, too.
    if (!std::exchange(asking, false)) return;
    answered = link.GetQueryContent(strings);
    asking = !answered;
  });
  return answered;
}

bool TJQueryBase::GiveContent(TStrings& strings) { return NeedContent(strings); }

// The base

TJQueryBase::~TJQueryBase() {
  for (TJQueryBaseLink* link : FLinks) {
    if (link != nullptr) link->FQueryBase = nullptr;
  }
}

void TJQueryBase::SetActive(bool active) {
  if (active == FActive) return;
  if (active) {
    Open();
  } else {
    Close();
  }
}

void TJQueryBase::Open() {
  if (FActive || FOpening) return;
  const TAlive alive(*this);
  const TFlagSet opening(*this, FOpening);
  const auto goesOn = [&] { return alive && FOpening; };
  TDeferredErrors errors;
  Fire(BeforeOpen);
  if (goesOn()) LoadList();
  if (goesOn()) errors.Try([&] { ListChanged(qboListLoaded, -1); });
  if (goesOn()) {
    FActive = true;
    errors.Try([&] {
      if (Count() > 0) SetItemIndex(0);
    });
  }
  if (goesOn()) errors.Try([&] { Fire(AfterOpen); });
  errors.Raise();
}

void TJQueryBase::LoadList() {
  const TAlive alive(*this);
  const TFlagSet updating(*this, FUpdating);
  const std::size_t count = FQueries.Count();
  try {
    LoadQueries();
  } catch (...) {
    if (alive) FNames.clear();
    while (alive && FQueries.Count() > count) FQueries.Delete(FQueries.Count() - 1).reset();
    throw;
  }
}

void TJQueryBase::LoadQueries() {}

void TJQueryBase::Close() {
  if (FClosing) return;
  const TAlive alive(*this);
  TDeferredErrors errors;
  {
    const TFlagSet closing(*this, FClosing);
    Fire(BeforeClose);
  }
  if (!alive) return;
  FOpening = FActive = false;
  ClearQueries();
  errors.Try([&] { ListChanged(qboListCleared, -1); });
  if (alive) errors.Try([&] { Fire(AfterClose); });
  errors.Raise();
}

void TJQueryBase::CheckIndex(int index) const {
  if (!HasIndex(index)) throw EJQueryBaseError(qbeWrongIndex, EListError::OutOfBounds(index).Message());
}

TJQueryItem& TJQueryBase::GetQuery(int index) const {
  if (!HasIndex(index)) throw EListError::OutOfBounds(index);
  return FQueries[static_cast<std::size_t>(index)];
}

int TJQueryBase::IndexByName(std::string_view queryName) const {
  if (FNames.empty()) {
    FNames.reserve(FQueries.Count());
    int index = 0;
    for (const TJQueryItem& query : FQueries) FNames.try_emplace(query.FQueryName, index++);
  }
  const auto found = FNames.find(queryName);
  return found == FNames.end() ? -1 : found->second;
}

TJQueryItem* TJQueryBase::GetCurrentQuery() const { return HasIndex(FItemIndex) ? &GetQuery(FItemIndex) : nullptr; }

void TJQueryBase::SetItemIndex(int index) {
  if (index == FItemIndex) return;
  CheckIndex(index);
  const TAlive alive(*this);
  TDeferredErrors errors;
  Fire(BeforeScroll);
  if (!alive || !HasIndex(index)) return;
  FItemIndex = index;
  errors.Try([&] { IndexChanged(); });
  if (alive) errors.Try([&] { Fire(AfterScroll); });
  errors.Raise();
}

int TJQueryBase::AddItem(std::unique_ptr<TJQueryItem> queryItem) {
  const int index = Count();
  TJQueryItem& added = FQueries.Add(std::move(queryItem));
  added.FQueryBase = this;
  if (!FNames.empty()) FNames.try_emplace(added.FQueryName, index);
  const TJQueryItem::TWatch watch(added);
  TDeferredErrors errors;
  errors.Try([&] { ListChanged(qboItemAdded, index); });
  // A link may have deleted queries, or destroyed the base and with it this query.
  if (!watch.destroyed) errors.Try([&] { QueryChanged(static_cast<int>(FQueries.IndexOf(&added))); });
  errors.Raise();
  return index;
}

TJQueryItem* TJQueryBase::NewQuery() { return nullptr; }

void TJQueryBase::DeleteQuery(int index) {
  CheckIndex(index);
  const TAlive alive(*this);
  TDeferredErrors errors;
  FNames.clear();
  FQueries.Delete(static_cast<std::size_t>(index)).reset();
  const bool wasCurrent = index == FItemIndex;
  errors.Try([&] { ListChanged(qboItemDeleted, index); });
  // A link may have moved on.
  if (alive && wasCurrent && FItemIndex == index && index >= Count() - 1) {
    const int before = std::min(index, Count()) - 1;
    if (before < 0) {
      FItemIndex = -1;
    } else {
      errors.Try([&] { SetItemIndex(before); });
    }
  }
  errors.Raise();
}

void TJQueryBase::EraseQuery(int index) { DeleteQuery(index); }

void TJQueryBase::ClearQueries() {
  FItemIndex = -1;
  FNames.clear();
  FQueries.Clear();
}

}  // namespace tolvi
