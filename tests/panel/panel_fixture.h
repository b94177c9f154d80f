#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "support/models.h"
#include <tolvi/panel/panelcommands.h>
#include <tolvi/panel/paneleditor.h>
#include <tolvi/query/rowphrase.h>

namespace tolvi {

/// The rows of a panel as an outline: "A (B C)" is a condition with the value A and a bracket with two.
inline std::string OutlineOf(const TFilterBracket& bracket) {
  std::string text;
  for (const TFilterRow& row : bracket) {
    if (!text.empty()) text += ' ';
    if (row.GetRowType() == frtBracket) {
      text += "(" + OutlineOf(static_cast<const TFilterBracket&>(row)) + ")";
    } else {
      text += static_cast<const TFilterCond&>(row).GetValue(1);
    }
  }
  return text;
}
inline std::string OutlineOf(const TJQueryPanel& panel) { return OutlineOf(panel.RootBracket()); }

/// The text of an empty query.
inline std::string TJQueryPanelText(TJDBStructure& model) {
  TJQueryPanel panel;
  panel.SetDBStruct(&model);
  return panel.SaveToText();
}

/// An active panel on the orders model with its editor.
class PanelEditorTest : public testing::Test {
 protected:
  PanelEditorTest() {
    FPanel.SetDBStruct(FModel.get());
    FPanel.SetActive(true);
    FEditor.ClearHistory();
  }

  /// Replaces the rows by those of the outline; history begins with them.
  void Build(std::string_view outline) {
    FPanel.ClearRows();
    TFilterBracket* bracket = &FPanel.RootBracket();
    for (const char c : outline) {
      if (c == '(') {
        bracket = &bracket->AddNewBracket();
      } else if (c == ')') {
        bracket = bracket->GetParentBracket();
      } else if (c != ' ') {
        FPanel.AddSimpleCond(*bracket, FieldOf(*FModel, "Customers.Company"), OperatorOf(*FModel, "Equal"),
                             std::string(1, c));
      }
    }
    FEditor.ClearHistory();
  }
  std::string Outline() const { return OutlineOf(FPanel); }
  /// The sentences of all rows below the root, brackets in brackets.
  std::string Rows() const {
    const TFieldNames names(FModel.get());
    std::string text;
    for (const TFilterRow& row : FPanel.RootBracket()) {
      if (row.GetRowType() == frtBracket) {
        const auto& bracket = static_cast<const TFilterBracket&>(row);
        text += "(" + bracket.GetBracketKind() + ") ";
        for (const TFilterRow& inner : bracket) text += PhraseText(RowPhrase(inner, names)) + " / ";
        text += ") ";
      } else {
        text += PhraseText(RowPhrase(row, names));
      }
    }
    return text;
  }
  std::string PasteError(const std::string& text) {
    try {
      FEditor.PasteText(text, DefaultPlace(FPanel, nullptr));
    } catch (const EException& error) {
      return error.Message();
    }
    return {};
  }

  std::unique_ptr<TJDBStructure> FModel = OrdersModel();
  TJQueryPanel FPanel;
  TPanelEditor FEditor{FPanel};
};

}  // namespace tolvi
