#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/query/querpnl.h>

namespace tolvi {
namespace {

/// Records what it is told, one word a call.
class TRecordingView final : public TQueryPanelView {
 public:
  explicit TRecordingView(std::string& log) : FLog(log) {}
  void RowInserted(TFilterRow& row) override { Add("inserted" + row.GetRowID()); }
  void RowRemoved(TFilterRow& row) override { Add(row.GetParentBracket() == nullptr ? "removed" : "still there"); }
  void RowMoved(TFilterRow& row) override { Add("moved" + row.GetRowID()); }
  void RowChanged(TFilterRow& row) override { Add("changed" + row.GetRowID()); }
  void CurrentRowChanged(TFilterRow* row) override { Add("current" + (row ? row->GetRowID() : " none")); }
  void ResultFieldsChanged() override { Add("columns"); }
  void TitlesChanged() override { Add("titles"); }
  void ActiveChanged(bool active) override { Add(active ? "active" : "inactive"); }

 private:
  void Add(const std::string& word) { FLog += word + "|"; }
  std::string& FLog;
};

class Panel : public testing::Test {
 protected:
  Panel() {
    panel->SetDBStruct(model.get());
    panel->SetActive(true);
    panel->SetModified(false);
  }
  void Watch() {
    panel->SetView(&view);
    panel->OnChange = [this](TJQueryPanel&) { log += "change|"; };
    panel->OnActiveChange = [this](TJQueryPanel&) { log += "on active|"; };
    panel->OnCurrentRowChange = [this](TJQueryPanel&) { log += "on current|"; };
  }
  std::string Log() { return std::exchange(log, {}); }
  TSimpleCond& Where(std::string_view field = "Orders.Total", std::string_view op = "GreaterThan") {
    return panel->AddSimpleCond(panel->RootBracket(), FieldOf(*model, field), OperatorOf(*model, op), "1");
  }
  /// A query with a column, a parameter, a predefined condition and a bracket.
  void Fill() {
    panel->RFields().Add(FieldOf(*model, "Orders.Total"));
    Where().SetValueIsParam(1, true);
    panel->RootBracket().AddCustomCond(model->Conditions()[0]);
    Where("Customers.City", "Equal");
    panel->RootBracket().GetRow(2).SetEnabled(false);
    TFilterBracket& bracket = panel->RootBracket().AddNewBracket();
    panel->AddSimpleCond(bracket, FieldOf(*model, "Orders.SaleDate"), OperatorOf(*model, "Between"), "1", "2");
  }

  std::string log;
  TRecordingView view{log};
  std::unique_ptr<TJDBStructure> model = OrdersModel();
  std::unique_ptr<TJQueryPanel> panel = std::make_unique<TJQueryPanel>();
};

TEST_F(Panel, TellsTheViewOfEachChangeBeforeTheEvents) {
  Watch();
  TFilterBracket& root = panel->RootBracket();
  TFilterBracket& bracket = panel->AddBracket(root);
  EXPECT_EQ(Log(), "inserted.1|current.1|on current|change|");
  TSimpleCond& first = panel->AddCondition(bracket, FieldOf(*model, "Orders.Total"));
  EXPECT_EQ(Log(), "inserted.1.1|current.1.1|on current|change|");
  TSimpleCond& second = bracket.AddCond();
  EXPECT_EQ(Log(), "inserted.1.2|change|");
  first.SetValue(1, "5");
  first.SetValue(1, "5");
  EXPECT_EQ(Log(), "changed.1.1|change|") << "the second is no change";
  first.SetEnabled(false);
  EXPECT_EQ(Log(), "changed.1.1|change|");
  second.SetEnabled(false);
  EXPECT_EQ(Log(), "changed.1.2|changed.1|changed|change|") << "both brackets go off; one event";
  root.SetEnabled(true);
  EXPECT_EQ(Log(), "changed.1.1|changed.1.2|changed.1|changed|change|");
  second.MoveLeft();
  EXPECT_EQ(Log(), "moved.2|change|");
  first.SetOperator(OperatorOf(*model, "Between"));
  first.SetValue(2, "6");
  first.SetValueIsParam(2, true);
  Log();
  first.GetParam(2)->SetParamName("Until");
  EXPECT_EQ(Log(), "changed.1.1|change|");
  first.SetOperator(OperatorOf(*model, "Equal"));
  EXPECT_EQ(Log(), "changed.1.1|changed.1.1|changed.1.1|change|") << "parameter, value, operator";
  panel->DeleteCurrentRow();
  EXPECT_EQ(Log(), "current.2|removed|on current|change|");
  panel->RFields().Add(FieldOf(*model, "Orders.Total"));
  EXPECT_EQ(Log(), "columns|change|");
  panel->SetTitle("ttlAll", "alle");
  EXPECT_EQ(Log(), "titles|");
  panel->SetActive(false);
  EXPECT_EQ(Log(), "inactive|on active|");
  panel->LoadFromText(panel->SaveToText());
  EXPECT_EQ(Log(), "current none|titles|columns|active|on active|on current|change|");
  panel->ClearAll();
  EXPECT_EQ(Log(), "removed|removed|columns|change|");
  panel->SetQueryName("x");
  panel->SetDescription(TStrings{"y"});
  panel->SetSQLOptions({soQuoteAliases, soSelectDistinct});
  EXPECT_EQ(Log(), "change|change|columns|change|");
}

TEST_F(Panel, HandlersMayDeleteWhatChanges) {
  const auto clear = [](TJQueryPanel& sender) { sender.ClearAll(); };
  const std::vector<std::function<void()>> changes = {
      [&] { panel->AddCondition(panel->RootBracket(), FieldOf(*model, "Orders.Total")); },
      [&] { Where(); },
      [&] { panel->RootBracket().GetRow(0).SetEnabled(false); },
      [&] { panel->RootBracket().GetRow(3).MoveUp(); },
      [&] { static_cast<TSimpleCond&>(panel->RootBracket().GetRow(0)).SetField(FieldOf(*model, "Customers.City")); },
      [&] { static_cast<TSimpleCond&>(panel->RootBracket().GetRow(0)).SetValue(1, "9"); },
      [&] { panel->QResult().DeleteParameter(panel->QResult().GetParam(0)); },
      [&] { panel->QResult().ClearParams(); },
      [&] { panel->RootBracket().DeleteRow(0); },
      [&] { panel->RootBracket().ClearRows(); },
      [&] { panel->ClearRows(); },
      [&] { panel->RFields()[0].SetSorting(stAscending); },
      [&] { panel->SetSQLOptions({soQuoteAliases}); },
      [&] { panel->LoadFromText(panel->SaveToText()); },
      [&] { panel->SetActive(false); },
      [&] { panel->SetDBStruct(nullptr); },
      [&] {
        model->LoadFromStrings([this] {
          TStrings text;
          model->SaveToStrings(text);
          return text;
        }());
      },
      [&] { model->DelTable(1); },
      [&] { model->DelOperator(static_cast<std::size_t>(model->OperatorIndexByName("Between"))); },
      [&] { model->Conditions().Clear(); },
      [&] { model.reset(); },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    for (const bool destroy : {false, true}) {
      for (TJQueryPanel::TPanelEvent TJQueryPanel::*event :
           {&TJQueryPanel::OnChange, &TJQueryPanel::OnCurrentRowChange, &TJQueryPanel::OnActiveChange}) {
        SCOPED_TRACE(i);
        panel.reset();
        model = OrdersModel();
        panel = std::make_unique<TJQueryPanel>();
        panel->SetDBStruct(model.get());
        panel->SetActive(true);
        Fill();
        panel->SetCurrentRow(&panel->RootBracket().GetRow(0));
        (*panel).*event = clear;
        if (destroy) (*panel).*event = [this](TJQueryPanel&) { panel.reset(); };
        changes[i]();
        if (!panel) continue;
        const TFilterRow* current = panel->GetCurrentRow();
        EXPECT_TRUE(current == nullptr || panel->RootBracket().RowByID(current->GetRowID()) == current);
      }
    }
  }
}

TEST_F(Panel, FiresNothingWithinItsOwnEvent) {
  int changes = 0;
  panel->OnChange = [&](TJQueryPanel& sender) {
    ++changes;
    sender.SetQueryName(std::string(static_cast<std::size_t>(changes), 'x'));
    throw EException("a handler's error");
  };
  EXPECT_THROW(Where(), EException);
  EXPECT_THROW(Where(), EException);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(panel->GetQueryName(), "xx");
}

TEST_F(Panel, KeepsRowsWhosePartsTheModelLoses) {
  Fill();
  const std::string sql = panel->GetQueryText();
  const std::string text = panel->SaveToText();
  Watch();
  // A handler that uses the query finds nothing that is about to go.
  panel->OnChange = [this, &text](TJQueryPanel& sender) {
    log += "change|";
    EXPECT_EQ(sender.SaveToText(), text);
    EXPECT_THROW(sender.GetQueryText(), EException);
    sender.LoadFromText(text);
  };
  model->DelLink(0);
  model->DelTable(1);
  EXPECT_EQ(model->FieldByID(11), nullptr);
  EXPECT_FALSE(panel->GetModified());
  EXPECT_EQ(panel->LoadWarnings().size(), 3u);
  EXPECT_EQ(Log().substr(0, 54), "titles|changed.1|changed.4.1|columns|titles|change|ina");
  model->DelOperator(static_cast<std::size_t>(model->OperatorIndexByName("Between")));
  model->Conditions().Clear();
  model->ClearFields();
  model->ClearTables();
  model->ClearOperators();
  EXPECT_EQ(panel->SaveToText(), text);
  panel->OnChange = {};
  const std::unique_ptr<TJDBStructure> other = OrdersModel();
  TStrings lines;
  other->SaveToStrings(lines);
  model->LoadFromStrings(lines);
  EXPECT_EQ(panel->GetQueryText(), sql) << "all is found again";
  panel->SetModified(false);
  panel->SetDBStruct(other.get());
  model.reset();
  EXPECT_EQ(panel->GetQueryText(), sql) << "in another model, too";
  EXPECT_FALSE(panel->GetModified());
  EXPECT_EQ(panel->SaveToText(), text);
}

TEST_F(Panel, IsEmptiedWhenTheModelGoes) {
  Fill();
  panel->SetCurrentRow(&panel->RootBracket().GetRow(0));
  Watch();
  panel->OnChange = [this](TJQueryPanel& sender) {
    log += "change|";
    EXPECT_EQ(sender.GetDBStruct(), nullptr);
    EXPECT_NE(sender.SaveToText().find("RowCount=0"), std::string::npos);
  };
  model.reset();
  EXPECT_EQ(Log(),
            "inactive|current none|removed|removed|removed|removed|columns|columns|on active|on current|change|");
  EXPECT_EQ(panel->QResult().GetParamCount(), 0u);
  for (const std::function<void()>& use : {std::function<void()>([&] { panel->SetActive(true); }),
                                           {[&] { panel->BuildQuery(); }},
                                           {[&] { panel->LoadFromText(""); }}}) {
    try {
      use();
      ADD_FAILURE();
    } catch (const EJQueryPanelError& error) {
      EXPECT_EQ(error.Message(), "DBStruct is not specified");
    }
  }
}

TEST_F(Panel, KeepsTheOldQueryWhenATextCannotBeRead) {
  Fill();
  panel->SetActive(false);
  panel->SetSQLOptions({soASCIIRFields, soQuoteAliases});
  TFilterRow* current = &panel->RootBracket().GetRow(0);
  panel->SetCurrentRow(current);
  panel->QResult().GetParam(0).SetDisplayName("From");
  const std::string text = panel->SaveToText();
  Watch();
  for (std::string_view bad : {"no query", "[Main]\nOptions=2\n[Row]\nRowType=1\nRowCount=2\n[Row.1]\nRowType=1\n",
                               "[Main]\nVersion=3.6\n[Query Panel]\nttlAll=x\n[RFields]\nCount=x\n"}) {
    EXPECT_THROW(panel->LoadFromText(bad), EException) << bad;
    EXPECT_EQ(Log(), "");
    EXPECT_EQ(panel->SaveToText(), text);
    EXPECT_EQ(panel->GetCurrentRow(), current) << "the very rows";
    EXPECT_EQ(panel->QResult().GetParam(0).GetDisplayName(), "From");
    EXPECT_EQ(panel->GetSQLOptions(), TSQLOptions({soASCIIRFields, soQuoteAliases}));
    EXPECT_EQ(panel->GetTitle("ttlAll"), "all");
    EXPECT_FALSE(panel->GetActive());
  }
  panel->SetQueryName("Turnover");
  EXPECT_TRUE(panel->GetModified());
  panel->LoadFromText(text);
  EXPECT_FALSE(panel->GetModified());
  EXPECT_EQ(panel->GetQueryName(), "");
  EXPECT_EQ(panel->QResult().GetParamCount(), 1u);
  panel->ClearAll();
  EXPECT_TRUE(panel->GetModified());
  EXPECT_EQ(panel->RootBracket().GetRowCount() + panel->RFields().Count() + panel->QResult().GetParamCount(), 0u);
  panel->SetSQLOptions({});
  EXPECT_EQ(panel->SaveToText(), TJQueryPanel().SaveToText());
}

TEST_F(Panel, ShowsItsTitlesInBracketKinds) {
  TFilterBracket& root = panel->RootBracket();
  std::string kinds;
  for (const TFilterLinkType linkType : {fltAll, fltAny, fltNone, fltNotAll}) {
    root.SetLinkType(linkType);
    kinds += root.GetBracketKind() + "|";
  }
  EXPECT_EQ(kinds, "all|any|none|not all|");
  panel->SetTitle("TTLNOTALL", "nicht alle");
  panel->SetTitle("ttlNew", "ignored");
  EXPECT_EQ(root.GetBracketKind() + panel->GetTitle("ttlNew"), "nicht alle");
  panel->SetTitles(TStrings{"[PanelTitles]", "ttlAny=irgendein", "ttlAll="});
  EXPECT_EQ(panel->GetTitle("ttlAny") + panel->GetTitle("ttlAll") + root.GetBracketKind(), "irgendeinallnot all");
  panel->LoadDefTitles();
  EXPECT_TRUE(panel->Titles().IsDefault());
}

TEST_F(Panel, StoresOptionsAsANumber) {
  const TSQLOptions all{soASCIIRFields,      soSelectDistinct, soQuoteAliases, soBracketJoins,
                        soBracketConditions, soSortByNames,    soFilter};
  EXPECT_EQ(SQLOptionsToInt(all), 122);
  EXPECT_EQ(IntToSQLOptions(4), TSQLOptions());
  EXPECT_EQ(SQLOptionsToInt(IntToSQLOptions(-1)), 122);
}

TEST_F(Panel, ReadsTheQueriesOfAFolder) {
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "tolvi-panel-test";
  std::filesystem::remove_all(folder);
  EXPECT_THROW(ReadQueries(folder), EFileError);
  std::filesystem::create_directories(folder / "folder.qry");
  std::filesystem::create_symlink(folder / "missing", folder / "link.qry");
  panel->SetQueryName("B");
  panel->SaveToFile(folder / "b.QRY");
  WriteFileAtomically(folder / "a.qry", "[Main]\n");
  WriteFileAtomically(folder / "c.txt", "");
  const std::vector<TStoredQuery> queries = ReadQueries(folder);
  ASSERT_EQ(queries.size(), 2u);
  EXPECT_EQ(queries[0].FileName, (folder / "a.qry").string());
  panel->ClearAll();
  panel->LoadFromStrings(queries[1].Lines);
  EXPECT_EQ(panel->GetQueryName(), "B");
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tolvi
