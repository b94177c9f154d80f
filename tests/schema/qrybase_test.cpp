#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/stored_item.h"
#include <tolvi/schema/qrybase.h>

namespace tolvi {
namespace {

constexpr std::string_view OperationNames[] = {"loaded", "cleared", "added", "deleted"};

/// Records what it is told, one word a call, then does what a test wants.
class TRecordingLink final : public TJQueryBaseLink {
 public:
  TRecordingLink(std::string& log, std::string_view name) : FLog(log), FName(name) {}

  std::function<void()> Then;
  bool Answers = false;

  void QueryChanged(int index) override { Add("query" + std::to_string(index)); }
  void QueryIndexChanged() override { Add("index" + std::to_string(GetQueryBase()->GetItemIndex())); }
  void QueryListChanged(TQBOperation operation, int index) override {
    Add(std::string(OperationNames[operation]) + std::to_string(index));
  }
  bool GetQueryContent(TStrings& strings) override {
    const bool answers = Answers;
    if (answers) strings = {"query of " + FName};
    Add("get");
    return answers;
  }

 private:
  void Add(const std::string& word) {
    FLog += FName + "." + word + "|";
    const std::function<void()> then = Then;
    if (then) then();
  }
  std::string& FLog;
  std::string FName;
};

class TLoadingBase final : public TJQueryBase {
 public:
  std::vector<std::string> Names;
  bool Fails = false;
  std::map<std::string, TStrings> Store;

 private:
  void LoadQueries() override {
    for (const std::string& name : Names) {
      AddItem(std::make_unique<TStoredItem>(Store, name));
      EXPECT_GE(IndexByName(name), 0);
    }
    if (Fails) throw std::runtime_error("no disk");
  }
};

class QueryBase : public testing::Test {
 protected:
  QueryBase() {
    for (const auto& [event, name] : Events) {
      base.get()->*event = [this, word = std::string(name) + "|"](TJQueryBase&) { log += word; };
    }
    for (TRecordingLink* link : {&a, &b}) link->SetQueryBase(base.get());
  }
  void Open(std::vector<std::string> names) {
    base->Names = std::move(names);
    base->Open();
    Log();
  }
  std::string Log() { return std::exchange(log, {}); }
  std::string Names() const {
    std::string names;
    for (const TJQueryItem& query : base->Queries()) names += query.GetQueryName();
    return names;
  }
  /// The message, in front of it the code, of what a call raises.
  template <typename TCall>
  static std::string Error(TCall call) {
    try {
      call();
    } catch (const EJQueryBaseError& error) {
      return std::to_string(error.ErrorCode()) + ": " + error.Message();
    } catch (const std::exception& error) {
      return error.what();
    }
    return {};
  }

  static constexpr std::pair<TQueryBaseEvent TJQueryBase::*, std::string_view> Events[] = {
      {&TJQueryBase::BeforeScroll, "<scroll"}, {&TJQueryBase::AfterScroll, "scroll>"},
      {&TJQueryBase::BeforeOpen, "<open"},     {&TJQueryBase::AfterOpen, "open>"},
      {&TJQueryBase::BeforeClose, "<close"},   {&TJQueryBase::AfterClose, "close>"}};

  std::string log;
  TRecordingLink a{log, "a"}, b{log, "b"};
  std::unique_ptr<TLoadingBase> base = std::make_unique<TLoadingBase>();
};

TEST_F(QueryBase, TellsOfOpeningAndClosingInOrder) {
  base->SetActive(true);
  EXPECT_EQ(Log(), "<open|a.loaded-1|b.loaded-1|open>|");
  EXPECT_EQ(base->GetItemIndex(), -1);
  base->Open();
  EXPECT_EQ(Log(), "");
  base->SetActive(false);
  EXPECT_EQ(Log(), "<close|a.cleared-1|b.cleared-1|close>|");
  EXPECT_EQ(base->AddItem(std::make_unique<TJQueryItem>("x")), 0);
  EXPECT_EQ(Log(), "a.added0|b.added0|a.query0|b.query0|");
  EXPECT_EQ(base->GetItemIndex(), -1);
  base->Names = {"y", "z"};
  base->Open();
  EXPECT_EQ(Log(), "<open|a.loaded-1|b.loaded-1|<scroll|a.index0|b.index0|scroll>|open>|") << "not of each query";
  EXPECT_EQ(Names(), "xyz");
  base->BeforeClose = [](TJQueryBase& sender) { sender.Close(); };
  base->Close();
  EXPECT_EQ(Log(), "a.cleared-1|b.cleared-1|close>|") << "no scrolling";
  EXPECT_TRUE(!base->GetActive() && base->GetItemIndex() == -1 && base->Count() == 0);
}

TEST_F(QueryBase, ScrollsToOtherQueriesOfTheListOnly) {
  Open({"x", "y"});
  base->SetItemIndex(0);
  EXPECT_EQ(Log(), "");
  base->SetItemIndex(1);
  EXPECT_EQ(Log(), "<scroll|a.index1|b.index1|scroll>|");
  EXPECT_EQ(base->GetCurrentQuery()->GetQueryName(), "y");
  for (const int index : {-1, 2}) {
    const std::string message = "List index out of bounds (" + std::to_string(index) + ")";
    EXPECT_EQ(Error([&] { base->SetItemIndex(index); }), "2: " + message);
    EXPECT_EQ(Error([&] { base->DeleteQuery(index); }), "2: " + message);
    EXPECT_EQ(Error([&] { base->GetQuery(index); }), message);
  }
  EXPECT_EQ(Log(), "");
}

TEST_F(QueryBase, MovesTheCurrentPlaceOnlyWhenTheEndIsDeleted) {
  const struct {
    int count, current, deleted, left;
    const char* scroll;
  } cases[] = {{1, 0, 0, -1, ""},                                   // the only one: no events
               {2, 0, 0, -1, ""},                                   // none before it, although one is left
               {3, 0, 0, 0, ""},                                    // the next one takes its place in silence
               {4, 1, 1, 1, ""},                                    //
               {3, 1, 1, 0, "<scroll|a.index0|b.index0|scroll>|"},  // only one is left behind it
               {3, 2, 2, 1, "<scroll|a.index1|b.index1|scroll>|"},  //
               {3, 1, 0, 1, ""},
               {3, 1, 2, 1, ""},
               {3, 2, 0, 2, ""}};  // others: the place stays
  for (const auto& [count, current, deleted, left, scroll] : cases) {
    SCOPED_TRACE(std::to_string(count) + " " + std::to_string(current) + " " + std::to_string(deleted));
    base->Close();
    Open(std::vector<std::string>(static_cast<std::size_t>(count), "q"));
    base->SetItemIndex(current);
    Log();
    base->EraseQuery(deleted);
    const std::string number = std::to_string(deleted);
    EXPECT_EQ(Log(), "a.deleted" + number + "|b.deleted" + number + "|" + scroll);
    EXPECT_EQ(base->GetItemIndex(), left);
    EXPECT_EQ(base->GetCurrentQuery() == nullptr, left < 0 || left >= base->Count());
  }
}

TEST_F(QueryBase, FindsNamesIgnoringCaseAndTellsOfRenamedQueries) {
  Open({"Größe", "x", "X"});
  EXPECT_EQ(base->IndexByName("gRÖßE"), 0);
  EXPECT_EQ(base->IndexByName("X"), 1);
  base->GetQuery(1).SetQueryName("y");
  EXPECT_EQ(base->IndexByName("x"), 2);
  base->GetQuery(2).SetQueryName("Y");
  for (int i = 0; i < 2; ++i) base->GetQuery(2).SetDescription("as the other");
  EXPECT_EQ(Log(), "a.query1|b.query1|a.query1|b.query1|a.query1|b.query1|") << "the first query of the name";
  base->DeleteQuery(0);
  EXPECT_EQ(base->IndexByName("y"), 0);
  base->AddItem(std::make_unique<TJQueryItem>("z"));
  EXPECT_EQ(base->IndexByName("Z"), 2);
  base->ClearQueries();
  EXPECT_EQ(base->IndexByName("y"), -1);
}

TEST_F(QueryBase, AsksLinksForTheQueryUntilOneAnswers) {
  Open({"x"});
  TJQueryItem& query = base->GetQuery(0);
  TStrings strings;
  EXPECT_FALSE(base->NeedContent(strings));
  EXPECT_EQ(Log(), "a.get|b.get|");
  b.Answers = true;
  base->BeginUpdate();
  EXPECT_TRUE(query.TakeContent(strings));
  base->EndUpdate();
  EXPECT_EQ(strings, TStrings{"query of b"});
  query.Save();
  EXPECT_EQ(base->Store["x"], TStrings{"query of b"});
  a.Answers = true;
  Log();
  query.Load();
  EXPECT_TRUE(query.GiveContent(strings));
  EXPECT_EQ(Log(), "a.get|a.get|") << "giving asks, too";
  EXPECT_EQ(strings, TStrings{"query of a"});
  a.Answers = false;
  a.Then = [] { throw std::runtime_error("unreadable"); };
  Log();
  EXPECT_EQ(Error([&] { query.Save(); }), "unreadable");
  EXPECT_EQ(Log(), "a.get|") << "the next one is not asked";
  EXPECT_EQ(base->Store["x"], TStrings{"query of b"});
  TStoredItem alone(base->Store, "x");
  for (const auto operation : {&TJQueryItem::Load, &TJQueryItem::Save})
    EXPECT_EQ(Error([&] { (alone.*operation)(); }), "1: Query base is not specified");
}

TEST_F(QueryBase, TellsLinksNothingWhileUpdating) {
  base->BeginUpdate();
  Open({"x", "y"});
  base->SetItemIndex(1);
  base->GetQuery(0).SetQueryName("v");
  base->DeleteQuery(0);
  base->EndUpdate();
  EXPECT_EQ(Log(), "<scroll|scroll>|");
  a.Then = [this] { base->BeginUpdate(); };
  base->Close();
  EXPECT_EQ(Log(), "<close|a.cleared-1|close>|");
}

TEST_F(QueryBase, AttachesALinkToOneBaseAtATime) {
  TLoadingBase other;
  {
    TRecordingLink gone(log, "gone");
    gone.SetQueryBase(&other);
    b.SetQueryBase(&other);
    other.AddLink(a);
    base->DelLink(a);
  }
  base->Open();
  other.Open();
  EXPECT_EQ(Log(), "<open|open>|b.loaded-1|a.loaded-1|") << "in the order of attaching";
  b.SetQueryBase(base.get());
  base.reset();
  EXPECT_EQ(b.GetQueryBase(), nullptr);
}

TEST_F(QueryBase, StaysAsItWasWhenLoadingOrABeforeEventFails) {
  base->AddItem(std::make_unique<TJQueryItem>("kept"));
  base->Names = {"x", "y"};
  base->Fails = true;
  Log();
  EXPECT_EQ(Error([&] { base->Open(); }), "no disk");
  EXPECT_EQ(Log(), "<open|");
  EXPECT_EQ(Names(), "kept");
  EXPECT_EQ(base->IndexByName("x"), -1);
  EXPECT_FALSE(base->GetActive() || base->IsUpdating());
  base->Fails = false;
  const auto fail = [](TJQueryBase&) { throw std::runtime_error("not now"); };
  const auto opened = std::exchange(base->BeforeOpen, fail);
  EXPECT_EQ(Error([&] { base->Open(); }), "not now");
  base->BeforeOpen = opened;
  base->Open();
  EXPECT_EQ(Log(), "<open|a.loaded-1|b.loaded-1|<scroll|a.index0|b.index0|scroll>|open>|");
  base->BeforeScroll = base->BeforeClose = fail;
  EXPECT_EQ(Error([&] { base->SetItemIndex(1); }) + Error([&] { base->Close(); }), "not nownot now");
  EXPECT_EQ(Log(), "");
  EXPECT_TRUE(base->GetActive() && base->GetItemIndex() == 0 && Names() == "keptxy");
}

TEST_F(QueryBase, FinishesWhatALinkFailsInAndRaisesTheFirstError) {
  a.Then = [] { throw std::runtime_error("a fails"); };
  b.Then = [] { throw std::runtime_error("b fails"); };
  base->Names = {"x", "y"};
  EXPECT_EQ(Error([&] { base->Open(); }), "a fails");
  EXPECT_EQ(Log(), "<open|a.loaded-1|b.loaded-1|<scroll|a.index0|b.index0|scroll>|open>|");
  EXPECT_EQ(Error([&] { base->SetItemIndex(1); }), "a fails");
  EXPECT_EQ(Log(), "<scroll|a.index1|b.index1|scroll>|");
  EXPECT_EQ(Error([&] { base->AddItem(std::make_unique<TJQueryItem>("z")); }), "a fails");
  EXPECT_EQ(Log(), "a.added2|b.added2|a.query2|b.query2|");
  EXPECT_EQ(Error([&] { base->DeleteQuery(1); }), "a fails");
  EXPECT_EQ(Log(), "a.deleted1|b.deleted1|<scroll|a.index0|b.index0|scroll>|");
  EXPECT_EQ(Error([&] { base->Close(); }), "a fails");
  EXPECT_EQ(Log(), "<close|a.cleared-1|b.cleared-1|close>|");
}

/// What hosts may do while an operation runs, at each place where they are told of it.
TEST_F(QueryBase, SurvivesWhateverHandlersAndLinksDo) {
  std::map<std::string, std::function<void()>> operations, deeds;
  operations["open"] = [this] { base->Open(); };
  operations["close"] = [this] { base->Close(); };
  operations["scroll"] = [this] { base->SetItemIndex(1); };
  operations["add"] = [this] { base->AddItem(std::make_unique<TJQueryItem>("n")); };
  operations["delete"] = [this] { base->DeleteQuery(base->GetItemIndex()); };
  operations["rename"] = [this] { base->GetQuery(0).SetQueryName("n"); };
  operations["save"] = [this] { base->GetQuery(0).Save(); };

  std::unique_ptr<TRecordingLink> extra;
  const auto attachExtra = [&] {
    extra = std::make_unique<TRecordingLink>(log, "extra");
    extra->SetQueryBase(base.get());
  };
  const auto reattach = [this] {
    for (TRecordingLink* link : {&a, &b}) link->SetQueryBase(nullptr), link->SetQueryBase(base.get());
  };
  const auto setEvents = [this](const TQueryBaseEvent& handler) {
    for (const auto& event : Events) base.get()->*event.first = handler;
  };
  deeds["destroy"] = [this] { base.reset(); };
  deeds["close"] = [this] { base->Close(); };
  deeds["reopen"] = [this] { base->Close(), base->Open(); };
  deeds["clear"] = [this] { base->ClearQueries(); };
  deeds["delete first"] = [this] { base->Count() > 0 ? base->DeleteQuery(0) : void(); };
  deeds["delete last"] = [this] { base->Count() > 0 ? base->DeleteQuery(base->Count() - 1) : void(); };
  deeds["add"] = [this] { base->AddItem(std::make_unique<TJQueryItem>("m")); };
  deeds["scroll"] = [this] { base->Count() > 1 ? base->SetItemIndex(base->GetItemIndex() == 0 ? 1 : 0) : void(); };
  deeds["rename"] = [this] { base->Count() > 0 ? base->GetQuery(0).SetQueryName(Names()) : void(); };
  deeds["detach"] = [&] { extra.reset(), b.SetQueryBase(nullptr); };
  deeds["attach"] = attachExtra;
  deeds["reattach"] = reattach;
  deeds["drop handlers"] = [&] { setEvents(nullptr); };

  const auto run = [&](const std::string& operation, const std::function<void()>& deed, std::size_t place) {
    base = std::make_unique<TLoadingBase>();
    base->Names = {"x", "y", "z"};
    reattach(), attachExtra();
    if (operation != "open") base->Open(), base->SetItemIndex(2);
    int calls = 0;
    const auto step = [&] {
      ASSERT_LT(++calls, 100) << "does not end";
      if (base) deed();
    };
    if (place < std::size(Events)) {
      base.get()->*Events[place].first = [&step](TJQueryBase&) { step(); };
    } else {
      (place == std::size(Events) ? a : b).Then = step;
    }
    operations[operation]();
    a.Then = b.Then = nullptr;
    if (!base) return;
    // The base works as before.
    setEvents(nullptr), extra.reset(), reattach();
    base->Close();
    Log();
    base->Open();
    EXPECT_EQ(Log() + Names(), "a.loaded-1|b.loaded-1|a.index0|b.index0|xyz");
  };
  for (const auto& operation : operations) {
    for (const auto& deed : deeds) {
      SCOPED_TRACE(deed.first + " during " + operation.first);
      for (std::size_t place = 0; place < std::size(Events) + 2; ++place)
        EXPECT_EQ(Error([&] { run(operation.first, deed.second, place); }), "") << place;
    }
  }
}

TEST_F(QueryBase, DoesNotCallAgainWhatIsRunning) {
  Open({"x", "y", "z"});
  base->BeforeScroll = [](TJQueryBase& sender) { sender.SetItemIndex(2); };
  base->SetItemIndex(1);
  EXPECT_EQ(Log(), "a.index2|b.index2|scroll>|a.index1|b.index1|scroll>|");
  base->BeforeScroll = nullptr;
  b.Then = [this] { base->SetItemIndex(0); };
  base->SetItemIndex(2);
  EXPECT_EQ(Log(), "a.index2|b.index2|a.index0|scroll>|scroll>|") << "the link that did it is not told";
}

TEST_F(QueryBase, GivesUpWhatAHandlerOrLinkHasMadePointless) {
  Open({"x", "y", "z"});
  base->SetItemIndex(2);
  b.Then = [this] { base->SetItemIndex(0); };
  Log();
  base->DeleteQuery(2);
  EXPECT_EQ(Log(), "a.deleted2|b.deleted2|<scroll|a.index0|b.index0|scroll>|") << "the link has moved on";
  b.Then = [this] {
    b.Then = nullptr;
    base->DeleteQuery(2);
    base->AddItem(std::make_unique<TJQueryItem>("other"));
  };
  base->AddItem(std::make_unique<TJQueryItem>("new"));
  EXPECT_EQ(Log(), "a.added2|b.added2|a.deleted2|a.added2|a.query2|b.query2|") << "of the other one only";
  b.Then = [this] {
    b.Then = nullptr;
    base->DeleteQuery(1);
  };
  base->AddItem(std::make_unique<TJQueryItem>("moved"));
  EXPECT_EQ(Log(), "a.added3|b.added3|a.deleted1|a.query2|b.query2|");
  b.Then = [this] {
    b.Then = [this] { base->DeleteQuery(3); };
    base->GetQuery(3).Save();
  };
  base->AddItem(std::make_unique<TJQueryItem>("gone while saved"));
  EXPECT_EQ(Log(), "a.added3|b.added3|a.get|b.get|a.deleted3|");
  b.Then = nullptr;
  base->BeforeScroll = base->BeforeOpen = [](TJQueryBase& sender) { sender.Close(); };
  for (const auto operation :
       {+[](TJQueryBase& base) { base.SetItemIndex(1); }, +[](TJQueryBase& base) { base.Open(); }}) {
    operation(*base);
    EXPECT_EQ(Log(), "<close|a.cleared-1|b.cleared-1|close>|");
  }
  EXPECT_FALSE(base->GetActive());
}

}  // namespace
}  // namespace tolvi
