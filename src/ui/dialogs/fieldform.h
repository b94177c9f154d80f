#pragma once

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include <tolvi/panel/modelentities.h>
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QSpinBox;

namespace tolvi {

class TCheckedLine;
class TModelEditor;

/// Makes a change as a step of that name; whether anything changed.
using TEditCall = std::function<bool(const QString& name, const std::function<void()>& edit)>;

/// What fields are: column or expression, names, type, what they are used for. With several fields, what is set applies
/// to all of them; names, columns and expressions are of one field only.
class TFieldForm final : public QWidget {
  Q_OBJECT

 public:
  TFieldForm(TModelEditor& editor, TEditCall edit, QWidget* parent);

  /// These fields of the model; a named group of that number, when it alone is chosen, 0 for none.
  void ShowFields(const TFieldIDs& ids, std::size_t group);
  void CommitEdits();
  TCheckedLine& Name() const { return *FName; }
  TCheckedLine& GroupName() const { return *FGroupName; }

 private:
  struct TFlag;
  static const TFlag Flags[];

  void Build();
  QComboBox* AddChoice(QComboBox* box, const QString& label, const std::function<void(int index)>& chosen);
  TDSField* Only() const;
  std::vector<TDSField*> Fields() const;
  void EditAll(const QString& step, const std::function<void(TDSField& field)>& change);
  void ShowTables();
  void ShowGroups();
  void ShowSource(const TDSField* only);
  void ShowFlags(const std::vector<TDSField*>& fields);

  TModelEditor& FEditor;
  const TEditCall FEdit;
  TFieldIDs FIDs;
  std::size_t FGroupNumber = 0;
  QFormLayout* FRows;
  TCheckedLine *FGroupName, *FName, *FExpr;
  QComboBox *FKind, *FTable, *FGroup, *FType;
  QSpinBox* FSize;
  QLabel *FMentioned, *FID;
  std::vector<QCheckBox*> FFlags;
};

}  // namespace tolvi
