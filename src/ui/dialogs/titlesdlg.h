#pragma once

#include <QDialog>
#include <functional>

#include <tolvi/foundation/strings.h>
#include <tolvi/ui/api.h>

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeView;

namespace tolvi {

class TTitlesFilter;
class TTitlesModel;

/// Shows the texts of a titles table beside the default ones and lets the user change them: each or all back to the
/// default text, from a file, into a file. A text that has lost the place of a word is marked and can be kept.
///
/// Keys: F2, Enter or typing changes a text, an empty one becomes the default text.
class TOLVI_WIDGETS_API T_dlgTitlesEdit final : public QDialog {
  Q_OBJECT

 public:
  /// `defaults`: lines "key=text", in sections or without; `titles`: such lines with the texts in use.
  T_dlgTitlesEdit(const TStrings& defaults, const TStrings& titles, QWidget* parent = nullptr);
  ~T_dlgTitlesEdit() override;

  /// The lines of the defaults with the texts as they stand in the dialog.
  TStrings GetTitles() const;

  /// Takes the texts of a file; those that it lacks become the default ones. Says in the dialog why a file cannot be
  /// taken, and is false then.
  bool LoadFromFile(const QString& file);
  /// Writes UTF-8. Sections of an existing file that are none of the dialog's are kept.
  bool SaveToFile(const QString& file);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildControls();
  void BuildTree();
  QPushButton* MakeButton(const QString& caption, void (T_dlgTitlesEdit::*click)());
  void Find(const QString& text);
  void ResetOne();
  void ResetAll();
  void Load();
  void Save();
  void EditCurrent();
  void CommitEdit();
  QModelIndex CurrentIndex() const;
  void ShowState();
  bool Try(const std::function<void()>& operation);

  TTitlesModel* FModel;
  TTitlesFilter* FFilter;
  QLineEdit* FSearch = nullptr;
  QTreeView* FTree = nullptr;
  QLabel* FMessage = nullptr;
  QPushButton *FResetOne = nullptr, *FResetAll = nullptr;
  /// Why the last file could not be read or written.
  QString FFileFault;
};

/// Lets the user edit the titles. Whether OK was chosen; `titles` then holds the lines of the defaults with the edited
/// texts, else it stays.
TOLVI_WIDGETS_API bool EditTitles(QWidget* parent, const TStrings& defaults, TStrings& titles);

}  // namespace tolvi
