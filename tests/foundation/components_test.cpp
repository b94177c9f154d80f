#include <functional>

#include <gtest/gtest.h>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/streaming.h>

using namespace tolvi;

namespace {

int alive = 0;
std::vector<std::string> events;

class TNode : public TComponent {
 public:
  explicit TNode(std::string_view name = {}) {
    SetName(name);
    ++alive;
  }
  ~TNode() override {
    events.push_back("destroyed " + GetName());
    --alive;
  }
  std::string_view ClassName() const override { return "TNode"; }

  bool visible = true;
  std::int64_t size = 5, old = 0;
  std::string caption;
  TStrings lines;
  TRef<TNode> peer;

 protected:
  void DefineProperties(TPropertyFiler& filer) override {
    TComponent::DefineProperties(filer);
    filer.Boolean(
        "Visible", [this] { return visible; }, [this](bool value) { visible = value; }, true);
    filer.Integer(
        "Size", [this] { return size; }, [this](std::int64_t value) { SetSize(value); }, 5);
    filer.Text(
        "Caption", [this] { return caption; }, [this](const std::string& value) { caption = value; }, "");
    filer.Lines(
        "Lines", [this] { return lines; }, [this](const TStrings& value) { lines = value; }, !lines.Empty());
    filer.ReadOnlyInteger("Old", [this](std::int64_t value) { old = value; });
    filer.Reference(
        "Peer", [this] { return peer.Get(); }, [this](TComponent* value) { peer.Set(dynamic_cast<TNode*>(value)); });
  }
  void Loaded() override {
    EXPECT_TRUE(IsLoading());
    TComponent::Loaded();
    events.push_back("loaded " + GetName() + (peer ? " with " + peer->GetName() : ""));
    if (caption == "fail") throw EException("no such table");
  }

 private:
  void SetSize(std::int64_t value) {
    if (value < 0) throw EException("a size is not negative");
    size = value;
  }
};

TNode& Add(TComponent& owner, std::string_view name) { return owner.Own(std::make_unique<TNode>(name)); }

template <typename E>
std::string ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const E& error) {
    return error.Message();
  }
  return "none";
}

TComponentRegistry Registry() {
  TComponentRegistry registry;
  registry.Register<TNode>("TNode");
  return registry;
}

class Components : public testing::Test {
 protected:
  void SetUp() override { events.clear(); }
  void TearDown() override { EXPECT_EQ(alive, 0); }
};

TEST_F(Components, OwnAndNameOneAnother) {
  TNode form("Form");
  Add(form, "a");
  TNode& b = Add(form, "b");
  Add(form, "");
  Add(form, "");
  EXPECT_EQ(form.FindComponent("B"), &b);
  EXPECT_EQ(form.FindComponent(""), nullptr);
  EXPECT_EQ(b.GetOwner(), &form);
  b.SetName("B");
  EXPECT_EQ(ErrorOf<EException>([&] { b.SetName("A"); }), "A component named A already exists");
  EXPECT_EQ(ErrorOf<EException>([&] { Add(form, "B"); }), "A component named B already exists");
  EXPECT_EQ(ErrorOf<EListError>([&] { form.GetComponent(4); }), "List index out of bounds (4)");

  const std::unique_ptr<TComponent> taken = form.Disown(b);
  EXPECT_EQ(taken.get(), &b);
  EXPECT_EQ(b.GetOwner(), nullptr);
  EXPECT_EQ(form.Disown(b), nullptr);
  EXPECT_EQ(form.GetComponentCount(), 3u);
}

TEST_F(Components, DestroyWhatTheyOwnLastFirstAfterTellingTheirReferences) {
  TRef<TNode> watch([] { events.push_back("told"); });
  {
    TNode form("form");
    Add(form, "a");
    Add(Add(form, "b"), "c");
    watch.Set(&form);
    events.clear();
  }
  EXPECT_FALSE(watch);
  EXPECT_EQ(events, (std::vector<std::string>{"destroyed form", "told", "destroyed b", "destroyed c", "destroyed a"}));
}

TEST_F(Components, TellOnlyTheReferencesThatStillPointToThem) {
  int calls = 0;
  TRef<TNode> ref([&calls] { ++calls; });
  auto a = std::make_unique<TNode>(), b = std::make_unique<TNode>();
  {
    TRef<TNode> shortLived([&calls] { calls += 100; });
    shortLived.Set(a.get());
    ref.Set(a.get());
    ref.Set(a.get());
  }
  ref.Set(b.get());
  a.reset();
  EXPECT_EQ(ref.Get(), b.get());
  EXPECT_EQ(calls, 0);
  b.reset();
  EXPECT_EQ(ref.Get(), nullptr);
  EXPECT_EQ(calls, 1);
}

TEST_F(Components, AllowAHandlerToDestroyItsHolderAndOthersOrToPointBack) {
  auto target = std::make_unique<TNode>("target");
  std::unique_ptr<TRef<TNode>> holder, other, stubborn;
  std::string kept(100, 'x'), seen;
  holder = std::make_unique<TRef<TNode>>([&holder, &other, &seen, kept] {
    holder.reset();
    other.reset();
    seen = kept;  // the captured values outlive the holder
  });
  other = std::make_unique<TRef<TNode>>([] { ADD_FAILURE() << "was destroyed before its turn"; });
  TNode* const address = target.get();
  stubborn = std::make_unique<TRef<TNode>>([&stubborn, address] { stubborn->Set(address); });
  for (auto* ref : {&other, &holder, &stubborn}) (*ref)->Set(address);
  target.reset();
  EXPECT_EQ(seen, kept);
  EXPECT_FALSE(holder);
  EXPECT_FALSE(*stubborn) << "a component that is being destroyed cannot be referred to";
}

TEST_F(Components, AreWrittenReadablyAndReadBack) {
  TNode form("Form1");
  form.caption = "It's\r\nhere\t";
  form.visible = false;
  form.size = -0x7fffffffffffffff - 1;
  EXPECT_EQ(ErrorOf<EStreamError>([&] { ReadComponentText(WriteComponentText(form), Registry()); }),
            "Line 3: Size: a size is not negative");
  form.size = 7;
  TNode& model = Add(form, "My 'model'");
  model.lines = {"", "[Main]", "a\nb"};
  model.peer.Set(&form);
  TNode& panel = Add(form, "Panel");
  Add(panel, "");
  TNode& inner = Add(panel, "FORM1");
  Add(inner, "x").peer.Set(&inner);
  form.peer.Set(&model);
  const std::string text =
      "object Form1: TNode\r\n"
      "  Visible = False\r\n"
      "  Size = 7\r\n"
      "  Caption = 'It''s'#13#10'here'#9\r\n"
      "  Peer = 'My ''model'''\r\n"
      "  object 'My ''model''': TNode\r\n"
      "    Lines = (\r\n"
      "      ''\r\n"
      "      '[Main]'\r\n"
      "      'a'#10'b')\r\n"
      "    Peer = Form1\r\n"
      "  end\r\n"
      "  object Panel: TNode\r\n"
      "    object TNode\r\n"
      "    end\r\n"
      "    object FORM1: TNode\r\n"
      "      object x: TNode\r\n"
      "        Peer = Form1.Panel.FORM1\r\n"
      "      end\r\n"
      "    end\r\n"
      "  end\r\n"
      "end\r\n";
  EXPECT_EQ(WriteComponentText(form), text);

  events.clear();
  const std::unique_ptr<TComponent> read = ReadComponentText(text, Registry());
  EXPECT_EQ(events, (std::vector<std::string>{"loaded Form1 with My 'model'", "loaded My 'model' with Form1",
                                              "loaded Panel", "loaded ", "loaded FORM1", "loaded x with FORM1"}));
  EXPECT_EQ(WriteComponentText(*read), text);
  EXPECT_FALSE(read->IsLoading());
}

TEST_F(Components, AreReadFromLooserTextToo) {
  const auto read = ReadComponentText(
      "\xEF\xBB\xBF\nOBJECT a :TNode\n old=12\nVISIBLE = false\n\n Lines = ( 'x' 'y'\n\n  )\nobject TNode\nEND\n"
      "Size=1\nend",
      Registry());
  const TNode& node = dynamic_cast<const TNode&>(*read);
  EXPECT_EQ(node.old, 12);
  EXPECT_EQ(node.size, 1);
  EXPECT_FALSE(node.visible);
  EXPECT_EQ(node.lines, (TStrings{"x", "y"}));
  EXPECT_EQ(node.GetComponentCount(), 1u);
}

TEST_F(Components, AreNotWrittenWithAReferenceThatCannotBeReadBack) {
  TNode form("Form"), other("Other");
  form.peer.Set(&other);
  EXPECT_EQ(ErrorOf<EStreamError>([&] { WriteComponentText(form); }),
            "Peer of Form refers to a component that is not in the tree; clear it, or write the tree that holds both");
  form.peer.Set(&Add(form, ""));
  EXPECT_EQ(ErrorOf<EStreamError>([&] { WriteComponentText(form); }),
            "Peer of Form refers to a component that has no name; clear it, or name the component and its owners");
}

TEST_F(Components, OfDamagedTextAreRefusedWithTheLineAndLeaveNothingBehind) {
  const std::string head = "object a: TNode\n", child = "object b: TNode\n";
  const std::pair<std::string, std::string> cases[] = {
      {"", "Line 1: there is no component; begin with \"object Name: Class\""},
      {"Size = 1", "Line 1: expected \"object Name: Class\", not \"Size = 1\""},
      {"object a: ", "Line 1: expected \"object Name: Class\", not \"object a:\""},
      {"\nobject a: TOther\nend", "Line 2: unknown class \"TOther\"; register it or correct its name"},
      {head + child + "end\n", "Line 1: the object that begins here has no \"end\"; add it"},
      {head + "end\nend", "Line 3: nothing may follow the end of the first object; remove it"},
      {head + "what\nend", "Line 2: expected \"Property = value\", \"object Name: Class\" or \"end\", not \"what\""},
      {head + "Colour = 1\nend", "Line 2: TNode has no property \"Colour\"; remove the line or correct the name"},
      {head + "Size = 1\nsize = 1\nend", "Line 3: size is given a second time; remove one of the two"},
      {head + "Size = 'x'\nend", "Line 2: Size must be a whole number, not 'x'"},
      {head + "Size = -1\nend", "Line 2: Size: a size is not negative"},
      {head + "Visible = 1\nend", "Line 2: Visible must be True or False, not 1"},
      {head + "Caption = 'x\nend", "Line 2: Caption must be a text in single quotes, not 'x"},
      {head + "Caption = #300\nend", "Line 2: Caption must be a text in single quotes, not #300"},
      {head + "Caption =\nend", "Line 2: Caption must be a text in single quotes, not nothing"},
      {head + "Caption = ('x')\nend", "Line 2: Caption must be a text in single quotes, not a list"},
      {head + "Lines = 'x'\nend", "Line 2: Lines must be a list of texts in parentheses, not 'x'"},
      {head + "Lines = (\n'x'\ny)\nend", "Line 4: expected a text in single quotes or \")\", not \"y)\""},
      {head + "Lines = (\n'x'\n", "Line 2: the list that begins here has no \")\"; add it"},
      {head + child + "Peer = c\nend\nend", "Line 3: Peer: there is no component c; add it or remove the line"},
      {head + "Peer = a.c\nend", "Line 2: Peer: there is no component a.c; add it or remove the line"},
      {head + "Peer = a b\nend", "Line 2: Peer must be the name of a component, not a b"},
      {head + child + "end\nobject B: TNode\nend\nend",
       "Line 4: give it another name: A component named B already exists"},
      {head + child + "Caption = 'fail'\nend\nend", "Line 2: it could not be loaded: no such table"},
  };
  for (const auto& [text, message] : cases) {
    EXPECT_EQ(ErrorOf<EStreamError>([&text = text] { ReadComponentText(text, Registry()); }), message);
    EXPECT_EQ(alive, 0) << text;
  }
}

TEST_F(Components, NestToALimit) {
  const auto nested = [](std::size_t levels) {
    std::string text;
    for (std::size_t i = 0; i < levels; ++i) text += "object TNode\n";
    for (std::size_t i = 0; i < levels; ++i) text += "end\n";
    return text;
  };
  const std::unique_ptr<TComponent> deepest = ReadComponentText(nested(MaxComponentNesting), Registry());
  EXPECT_NE(WriteComponentText(*deepest), "");
  EXPECT_EQ(ErrorOf<EStreamError>([&] { ReadComponentText(nested(100000), Registry()); }),
            "Line 1001: objects nest deeper than 1000 levels; move this one further out");
  TNode above("above");
  above.Own(ReadComponentText(nested(MaxComponentNesting), Registry()));
  EXPECT_EQ(ErrorOf<EStreamError>([&] { WriteComponentText(above); }),
            "Components nest deeper than 1000 levels below above");
}

}  // namespace
