#pragma once

#include <QAccessible>
#include <QPointer>
#include <QWidget>
#include <optional>
#include <vector>

#include <tolvi/query/rowphrase.h>
#include <tolvi/ui/api.h>
#include <tolvi/ui/controls/ddlabel.h>
#include <tolvi/ui/controls/flatcheckbox.h>
#include <tolvi/ui/controls/rndbtn.h>
#include <tolvi/ui/panels/qpvalues.h>

namespace tolvi {

class TFilterRow;
class TJQueryPanelView;
class TPanelEditor;
class TQPTriangle;

/// One row of the query panel: its button, its check box (not for the root), and the parts of its sentence, those that
/// can be changed as labels.
///
/// The parts that can have the focus are numbered from 0, the button.
class TOLVI_WIDGETS_API TQPRow final : public QWidget {
  Q_OBJECT

 public:
  TQPRow(TJQueryPanelView& view, TFilterRow& row, QWidget* parent);

  /// Null once the row is about to be destroyed.
  TFilterRow* GetRow() const { return FRow; }
  void Forget() { FRow = nullptr; }
  TJQueryPanelView& GetView() const { return FView; }

  /// Makes the parts anew where the sentence is another one.
  void Refresh();
  /// The row as it stands among the others.
  void SetPlace(int level, int number);
  void SetCurrent(bool current);
  /// Places the parts; the width that they need.
  int Arrange();

  const QString& GetSentence() const { return FSentence; }
  int GetPartCount() const;
  QWidget* GetPart(int part) const;
  /// -1 for what is none.
  int IndexOfPart(const QObject* widget) const;
  /// The first part behind button and check box; the last part if there is none.
  int GetFirstLabel() const;
  /// The first value with a fault; else as `GetFirstLabel`.
  int GetFaultPart() const;
  /// The number of the value of which the part is the label; 0 for none.
  int ValueOfPart(int part) const;
  void OpenPart(int part);
  TJRndBtn& GetButton() const { return *FButton; }
  /// Null for the root.
  TJFlatCheckBox* GetCheckBox() const { return FCheckBox; }

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct TPart {
    TPhraseKind Kind = pkText;
    int ValueIndex = 0;
    TQPValueKind ValueKind = TQPValueKind::qvText;
    bool SpaceBefore = false;
    QString Text;
    // As much of the text as there is room for is shown.
    bool IsElided = false;
    TDropDownLabel* Label = nullptr;
    QRect Place;
  };

  TDropDownLabel* MakeLabel(const TPart& part);
  TPart TakePart(std::vector<TPart>& parts, const TPhrasePart& phrase) const;
  void ShowPart(TPart& part, const TPhrasePart& phrase);
  QColor ColorOf(const TPart& part) const;
  QFont FontOf(const TPart& part) const;
  QString NameOf(const TPart& part) const;
  void Fetch(const QPointer<TDropDownLabel>& label);
  void BeforeEdit(TDropDownLabel& label);
  void AfterEdit(TDropDownLabel& label, bool accepted);
  void TakePartValue(TDropDownLabel& label, const TPart& part);
  TPart* PartOf(const TDropDownLabel& label);
  bool CanEdit() const;
  void UpdateColors();
  void ShowSigns();
  void PaintTreeLines(QPainter& painter) const;
  void PaintPart(QPainter& painter, const TPart& part) const;
  int ArrangeText(TPart& part, int x) const;
  int StartOf(int level) const;
  QRect Mirrored(const QRect& rect) const;

  TJQueryPanelView& FView;
  TFilterRow* FRow;
  TJRndBtn* FButton;
  TJFlatCheckBox* FCheckBox = nullptr;
  // Null for conditions and the root.
  TQPTriangle* FTriangle = nullptr;
  std::vector<TPart> FParts;
  QString FSentence, FValueBefore;
  int FLevel = 0;
  bool FCurrent = false, FOff = false, FLocked = false;
  QRect FLockPlace;
  // What screen readers know; nothing before the row is complete.
  std::optional<QAccessible::State> FToldState;
};

}  // namespace tolvi
