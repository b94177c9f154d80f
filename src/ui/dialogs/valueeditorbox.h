#pragma once

#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include <tolvi/panel/valueentry.h>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;
class QTableWidget;

namespace tolvi {

class TDSCondition;
class TDSField;
class TEntryTable;
class TModelEditor;

/// Shows and edits how the values of fields, or one value of a predefined condition, are entered. Each change is a step
/// of the editor's history. The box finds its fields again by place and ID: whoever shows them calls it anew after each
/// change of the model.
///
/// Which way is chosen can be switched back and forth: what the other ways had been set to is kept until something else
/// is shown.
class TValueEditorBox final : public QWidget {
  Q_OBJECT

 public:
  TValueEditorBox(TModelEditor& editor, QWidget* parent);

  /// Null shows nothing, and nothing can be edited.
  void ShowField(TDSField* field);
  /// What is changed is changed for all of them; the first one's settings are shown.
  void ShowFields(const std::vector<TDSField*>& fields);
  void ShowValue(TDSCondition* condition, std::size_t value);
  /// Takes over what is being typed.
  void CommitEdits();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // A field or condition by its place in the model, and its ID to be sure.
  struct TPart {
    std::size_t Place;
    std::int32_t ID;
    bool operator==(const TPart&) const = default;
  };

  QWidget* MakeTextPage();
  QWidget* MakeListPage();
  QWidget* MakeSQLPage();
  QWidget* MakeLinesPage(QPlainTextEdit*& lines, const QString& caption, const QString& hint);
  QPlainTextEdit* MakeLines(const QString& name);
  void ShowParts(std::vector<TPart> parts, bool isValue, std::size_t value);
  TDSField* FindField(const TPart& part) const;
  TDSCondition* FindCondition(const TPart& part) const;
  bool ReadModel(TValueEntry& entry) const;
  void WriteModel(const TValueEntry& entry) const;
  void ShowEntry();
  void ShowState();
  /// What the controls hold.
  TValueEntry TypedEntry() const;
  void Commit();
  void Run();
  void Tell(const QString& text, bool isFault);

  TModelEditor& FEditor;
  std::vector<TPart> FParts;
  bool FIsValue = false, FShowing = false;
  std::size_t FValue = 0;
  TValueEntry FEntry;

  QComboBox* FType;
  QStackedWidget* FPages;
  QLineEdit *FDefault, *FMask;
  QComboBox *FKind, *FCase, *FValueType;
  QCheckBox* FFormatted;
  TEntryTable* FList;
  QPlainTextEdit *FSQL, *FParams, *FData, *FQuery;
  QPushButton* FRun;
  QTableWidget* FRows;
  QLabel *FTold, *FMany;
};

}  // namespace tolvi
