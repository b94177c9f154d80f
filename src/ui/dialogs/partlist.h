#pragma once

#include <QStringList>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include <tolvi/ui/dialogs/signicon.h>

class QHBoxLayout;
class QKeySequence;
class QLineEdit;
class QTreeView;

namespace tolvi {

class TPartRows;

/// A part of a model in a list: what it is known by when the list is shown anew, its texts, and whether it is wrong.
struct TPartRow {
  QString Key;
  QStringList Texts;
  bool IsWrong = false;
};

/// A list of parts of a model with a search line above it and buttons below it. Several can be selected. Parts go by
/// their index in the whole list.
class TPartList final : public QWidget {
  Q_OBJECT

 public:
  TPartList(const QString& name, const QStringList& headers, QWidget* parent);
  ~TPartList() override;

  /// A button and a key; one that works on the selected parts is off when there are none.
  QAction* AddAction(const QString& text, TSign sign, const QKeySequence& key, bool onSelected,
                     const std::function<void()>& run);

  /// What was selected stays so, found by its key, else by its place; `OnSelect` is not called.
  void ShowRows(std::vector<TPartRow> rows);
  /// Ascending.
  std::vector<std::size_t> Selected() const;
  /// The one of the selected parts that is current; nothing when none is selected.
  std::optional<std::size_t> Current() const;
  /// The first of them becomes the current one. The search is given up if it hides them.
  void Select(const std::vector<std::size_t>& parts);

  std::function<void()> OnSelect;

 private:
  void Find(const QString& text);
  void SelectShown(const std::vector<std::size_t>& parts);
  void ShowEnabled();

  TPartRows* FRows;
  QLineEdit* FSearch;
  QTreeView* FTree;
  QHBoxLayout* FButtons;
  std::vector<QAction*> FOnSelected;
  bool FShowing = false;
};

}  // namespace tolvi
