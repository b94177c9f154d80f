#pragma once

#include <string>
#include <vector>

#include <tolvi/model/modelcheck.h>
#include <tolvi/model/table.h>
#include <tolvi/ui/dialogs/modelpage.h>

class QAction;
class QCheckBox;
class QLabel;
class QTreeView;
class QTreeWidget;

namespace tolvi {

class TCheckedLine;
class TDSLink;
class TTablesModel;

/// The tables of the model: their names, and the links of the one that is current.
///
/// Keys: Insert adds tables of the catalogue, Ctrl+N one by hand, Delete deletes, Alt+Up and Alt+Down move, Ctrl+F
/// finds.
class TTablesPage final : public TModelPage {
  Q_OBJECT

 public:
  TTablesPage(TModelEditor& editor, QWidget* parent);
  ~TTablesPage() override;

  void Refresh() override;
  void CommitEdits() override;
  bool GoTo(std::string_view section) override;

 private:
  struct TText {
    const char *Label, *Step;
    const std::string& (TDSTable::*Get)() const;
    /// Null for the alias, which takes more.
    void (TDSTable::*Set)(std::string_view);
    /// Null for texts that cannot be wrong.
    TTextFindings (*Check)(const TJCustomDBStructure& model, const TDSTable* table, std::string_view text);
    /// Whether several tables get the text at once.
    bool ForAll = false;
  };
  static const TText Texts[];

  QWidget* MakeList();
  QWidget* MakeForm();
  QWidget* MakeLinks();
  std::vector<std::size_t> Selected() const;
  TDSTable* Current() const;
  void Select(const std::vector<std::size_t>& tables);
  void ShowCurrent();
  void ShowLinks(const TDSTable* table);
  void ShowEnabled();
  void Find(const QString& text);

  void AddFromCatalogue();
  void AddByHand();
  void DeleteSelected();
  void Step(int step);
  void CommitText(const TText& text, const QString& typed);
  void CommitAlias(TDSTable& table, const QString& typed);
  void SetQuoted(bool on);
  void SetMain(bool on);
  TDSLink* CurrentLink() const;
  void AddLink();
  void EditCurrentLink();
  void DeleteLinks();

  TTablesModel* FModel;
  QLineEdit* FSearch;
  QTreeView* FTree;
  QWidget* FForm;
  std::vector<TCheckedLine*> FLines;
  TCheckedLine* FTableName = nullptr;
  QCheckBox *FQuoted, *FMain;
  QTreeWidget* FLinks;
  QLabel* FHint;
  QAction *FDelete, *FUp, *FDown, *FAddLink, *FEditLink, *FDeleteLink;
  std::vector<std::size_t> FLinkIndexes;
};

}  // namespace tolvi
