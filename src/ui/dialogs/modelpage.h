#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <string_view>
class QAction;
class QLineEdit;

namespace tolvi {

class TModelEditor;
struct TMessage;

/// A page of the model editor. It shows the model and makes changes as steps of the editor's history.
class TModelPage : public QWidget {
  Q_OBJECT

 public:
  TModelPage(TModelEditor& editor, QWidget* parent) : QWidget(parent), FEditor(editor) {}

  /// Shows the model as it is now; what is selected stays selected, found by alias, field ID, or name. Called when the
  /// page is shown and, while it is, after each change of the model, be it by this page. Parts of the model that the
  /// page has shown may be gone.
  virtual void Refresh() = 0;
  /// Takes over what is being typed, as leaving the line does. Called before anything that leaves the page or saves.
  virtual void CommitEdits() {}
  /// Shows the part that stands in this section of the model text ("Table:3"); false when the page shows none such.
  virtual bool GoTo(std::string_view) { return false; }

 protected:
  /// Fills the page with a list and, beside it, what it shows of the part selected; their widths are as these shares.
  /// By the name the place of what divides them is kept.
  void ShowParts(const char* name, QWidget& list, QWidget& form, int listShare, int formShare);
  TModelEditor& Editor() const { return FEditor; }
  /// An edit of the editor's; what it raises is told in a message box. Whether anything changed.
  bool Edit(const QString& name, const std::function<void()>& edit);
  /// A question with "Yes" and "No"; whether the answer was yes.
  bool Confirmed(const TMessage& question);

 private:
  TModelEditor& FEditor;
};

}  // namespace tolvi
