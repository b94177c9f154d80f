#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/model/modeltext.h>
#include <tolvi/panel/modeleditor.h>

namespace tolvi {
namespace {

class ModelEditor : public testing::Test {
 protected:
  ModelEditor() {
    model.AddTable("orders", "Orders");
    model.AddTable("customers", "Customers");
    model.AddField(jfkData, "city", "City", &model.GetTable(1));
  }

  std::string Text() const { return WriteModelText(model); }

  TJDBStructure model;
};

TEST_F(ModelEditor, UndoesAndRedoesEditsOfEveryKind) {
  TModelEditor editor(model);
  const std::vector<std::pair<std::string, std::function<void()>>> edits = {
      {"Delete table", [&] { model.DelTable(1); }},
      {"Add table",
       [&] {
         model.AddTable("goods", "Goods");
         model.GetTable(1).SetDisplayName("Things");
       }},
      {"Edit value editor", [&] { model.GetField(0).SetEditType(etList); }},
      {"Formats", [&] { model.SQLFormats().SetWildcardChar('*'); }},
      {"Operators", [&] { model.SetExOperators({xoBetween}); }},
      {"Captions",
       [&] {
         model.LoadDefsOpertors();
         TStrings lines = model.GetDefOperators();
         lines.SetValue("Equal", "is just");
         model.SetDefOperators(lines);
       }},
  };
  model.AddField(jfkVirtual, "1", "One", nullptr);
  std::vector<std::string> texts;
  for (const auto& [name, edit] : edits) {
    texts.push_back(Text());
    EXPECT_TRUE(editor.Edit(name, edit)) << name;
    EXPECT_EQ(editor.UndoName(), name);
  }
  const std::string last = Text();
  for (std::size_t at = edits.size(); at-- > 0;) {
    editor.Undo();
    EXPECT_EQ(Text(), texts[at]) << edits[at].first;
    EXPECT_EQ(editor.RedoName(), edits[at].first);
  }
  EXPECT_EQ(model.GetExOperators(), AllExOperators);
  for (std::size_t at = 0; at < edits.size(); ++at) editor.Redo();
  EXPECT_EQ(Text(), last);
  EXPECT_EQ(model.GetExOperators(), TExOperators{xoBetween});
  EXPECT_FALSE(editor.CanRedo());
  EXPECT_FALSE(editor.Edit("Nothing", [] {}));
}

TEST_F(ModelEditor, TakesValueEditorsThatTellNobody) {
  model.GetField(0).SetEditType(etList);
  TModelEditor editor(model);
  int told = 0;
  model.OnChange = [&](TJCustomDBStructure&) { ++told; };
  EXPECT_TRUE(editor.Edit(
      "Add item", [&] { static_cast<TDSListEditor*>(model.GetField(0).GetValueEditor())->Items().Add("Berlin"); }));
  EXPECT_EQ(told, 1);
  editor.Undo();
  EXPECT_TRUE(static_cast<TDSListEditor*>(model.GetField(0).GetValueEditor())->Items().Empty());
}

TEST_F(ModelEditor, KeepsWhatOthersChangeAsAStep) {
  TModelEditor editor(model);
  editor.Edit("Rename", [&] { model.GetTable(0).SetDisplayName("Sales"); });
  model.GetTable(1).SetDisplayName("Clients");
  EXPECT_EQ(editor.UndoName(), "");
  EXPECT_TRUE(editor.CanUndo());
  editor.Undo();
  EXPECT_EQ(model.GetTable(1).GetDisplayName(), "Customers");
  EXPECT_EQ(model.GetTable(0).GetDisplayName(), "Sales");
  editor.Undo();
  EXPECT_EQ(model.GetTable(0).GetDisplayName(), "Orders");
  EXPECT_FALSE(editor.CanUndo());
}

TEST_F(ModelEditor, PutsTheModelBackWhenAnEditFails) {
  TModelEditor editor(model);
  const std::string before = Text();
  EXPECT_THROW(editor.Edit("Fail",
                           [&] {
                             model.DelTable(0);
                             model.DelTable(7);
                           }),
               EJDBStructError);
  EXPECT_EQ(Text(), before);
  EXPECT_FALSE(editor.CanUndo());
  EXPECT_FALSE(editor.GetModified());

  editor.Begin("Drag");
  model.GetTable(0).SetDesignPositions({5, 6, 110, 160});
  editor.Cancel();
  EXPECT_EQ(Text(), before);

  // Only the inner edit is put back; an end without a beginning does nothing.
  editor.Begin("Add tables");
  model.GetTable(0).SetDisplayName("Sales");
  const std::string between = Text();
  EXPECT_THROW(editor.Edit("Fail",
                           [&] {
                             model.DelTable(0);
                             model.DelTable(7);
                           }),
               EJDBStructError);
  EXPECT_EQ(Text(), between);
  editor.End();
  editor.End();
  EXPECT_EQ(editor.UndoName(), "Add tables");
  editor.Undo();
  EXPECT_EQ(Text(), before);
}

TEST_F(ModelEditor, MakesOneStepOfALongEdit) {
  TModelEditor editor(model);
  int told = 0;
  editor.OnChange = [&] { ++told; };
  editor.Begin("Drag");
  for (int at = 1; at < 5; ++at) model.GetTable(0).SetDesignPositions({at, at, 110, 160});
  editor.Edit("Inside", [&] { model.GetTable(1).SetDisplayName("Clients"); });
  editor.End();
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(editor.GetModified());
  editor.Undo();
  EXPECT_EQ(model.GetTable(0).GetDesignPositions(), TDesignPositions());
  EXPECT_EQ(model.GetTable(1).GetDisplayName(), "Customers");
  EXPECT_FALSE(editor.GetModified());
  editor.Redo();
  editor.SetUnmodified();
  editor.Undo();
  EXPECT_TRUE(editor.GetModified());
}

TEST_F(ModelEditor, ForgetsTheOldestStepsFirst) {
  TModelEditor editor(model);
  for (int at = 0; at < 10; ++at) {
    editor.Edit(std::to_string(at),
                [&] { model.GetTable(0).SetDisplayName(std::string(10 << 20, static_cast<char>('a' + at))); });
  }
  int steps = 0;
  for (; editor.CanUndo(); editor.Undo()) ++steps;
  EXPECT_EQ(steps, 3);
  EXPECT_EQ(model.GetTable(0).GetDisplayName().front(), 'g');
}

}  // namespace
}  // namespace tolvi
