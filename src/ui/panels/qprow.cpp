#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/ddedit.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/panels/qpaccess.h>
#include <tolvi/ui/panels/qpdrag.h>
#include <tolvi/ui/panels/qprow.h>
#include <tolvi/ui/panels/qpsigns.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr double currentPart = 0.16, hoverPart = 0.07;  // of the highlight colour laid over the background
constexpr double offPart = 0.55;                        // of the text colour in a row that is off
constexpr std::size_t collapsedLimit = 400;             // bytes of the rows' sentences in a collapsed bracket

/// Whether the part can be changed. Words of SQL and of what the model lacks stay as they are.
/// The view leads from part to part. In the order of the window, where new widgets come behind all others, the view
/// stands for them.
void LeaveTabToView(QWidget& part) { part.setFocusPolicy(Qt::ClickFocus); }

bool IsLabel(TPhraseKind kind) { return kind != pkText && kind != pkSQL; }

}  // namespace

TQPRow::TQPRow(TJQueryPanelView& view, TFilterRow& row, QWidget* parent)
    : QWidget(parent), FView(view), FRow(&row), FButton(new TJRndBtn(this)) {
  setAttribute(Qt::WA_Hover);
  // A role that editors which take the palette over do not draw with.
  setBackgroundRole(QPalette::ToolTipBase);
  FButton->setObjectName(QStringLiteral("rowButton"));
  LeaveTabToView(*FButton);
  FButton->OnClick = [this](TJRndBtn& button) {
    if (FRow != nullptr) FView.OpenRowMenu(*this, button.mapToGlobal(QPoint(0, button.height())));
  };
  FButton->installEventFilter(&view);
  view.Drag().Watch(*FButton);
  if (row.GetParentBracket() == nullptr) return;
  FCheckBox = new TJFlatCheckBox(this);
  LeaveTabToView(*FCheckBox);
  FCheckBox->OnClick = [this](TJFlatCheckBox& box) {
    if (FRow == nullptr) return;
    const bool on = box.isChecked();
    FView.Edit(*FRow, [this, on] { FRow->SetEnabled(on); });
  };
  FCheckBox->installEventFilter(&view);
  if (row.GetRowType() != frtBracket) return;
  FTriangle = new TQPTriangle(this);
  connect(FTriangle, &QAbstractButton::clicked, this, [this] {
    if (FRow == nullptr) return;
    FView.FocusRow(*FRow, 0);
    if (FRow != nullptr) FView.ToggleCollapsed(*FRow);
  });
}

// Parts

bool TQPRow::CanEdit() const {
  const TPanelEditor* editor = FView.GetEditor();
  return FRow != nullptr && editor != nullptr && editor->CanEdit(*FRow);
}

QColor TQPRow::ColorOf(const TPart& part) const {
  const QColor plain = palette().color(QPalette::Text), background = palette().color(backgroundRole());
  if (FOff) return ReadableColor(MixedColor(plain, background, offPart), background);
  const TQPAppearance& appearance = FView.GetAppearance();
  switch (part.Kind) {
    case pkLinkWord:
      return appearance.GetLinkWordColor();
    case pkField:
      return appearance.GetFieldColor();
    case pkOperator:
      return appearance.GetOperatorColor();
    case pkParameter:
      return appearance.GetParameterColor();
    case pkValue:
    case pkSubQuery:
    case pkSQL:
      return appearance.GetValueColor();
    case pkText:
      break;
  }
  return plain;
}

QFont TQPRow::FontOf(const TPart& part) const { return FView.GetAppearance().FontOf(part.Kind).resolve(font()); }

// What the part is, for screen readers; the caption is its value.
QString TQPRow::NameOf(const TPart& part) const {
  if (part.Kind == pkLinkWord) return tr("Link word");
  if (part.Kind == pkField) return tr("Field");
  if (part.Kind == pkOperator) return tr("Operator");
  const bool isOnly = static_cast<TFilterCond*>(FRow)->GetValueCount() <= 1;
  return isOnly ? tr("Value") : tr("Value %1").arg(part.ValueIndex);
}

TDropDownLabel* TQPRow::MakeLabel(const TPart& part) {
  TDropDownLabel* label = nullptr;
  if (part.ValueIndex > 0) {
    label = MakeValueLabel(part.ValueKind, this);
    label->setObjectName(QStringLiteral("value%1").arg(part.ValueIndex));
  } else if (part.Kind == pkField) {
    label = new TDropDownPopup(this);
    label->setObjectName(QStringLiteral("field"));
  } else {
    label = new TDropDownListBox(this);
    label->setObjectName(part.Kind == pkOperator ? QStringLiteral("operator") : QStringLiteral("linkWord"));
  }
  LeaveTabToView(*label);
  if (auto* action = qobject_cast<TQPActionLabel*>(label)) {
    action->OnOpen = [this, action] {
      const TPart* own = PartOf(*action);
      if (own == nullptr || !CanEdit()) return;
      auto& condition = static_cast<TFilterCond&>(*FRow);
      own->ValueKind == TQPValueKind::qvQuery ? FView.EditSubQuery(condition, own->ValueIndex)
                                              : FView.EditCustom(condition, own->ValueIndex);
    };
  } else {
    label->OnBeforeDropDown = [this](TDropDownLabel& sender) { BeforeEdit(sender); };
    label->OnAfterDropUp = [this](TDropDownLabel& sender, bool accepted) { AfterEdit(sender, accepted); };
  }
  if (auto* edit = qobject_cast<TDropDownEdit*>(label)) {
    edit->OnCheck = [this, edit](const QString& text) {
      const TPart* own = PartOf(*edit);
      return own != nullptr ? FaultOfText(static_cast<TFilterCond&>(*FRow), own->ValueIndex, text) : QString();
    };
  }
  label->installEventFilter(&FView);
  label->show();
  return label;
}

// A part of the old ones that can show this one, or a new one without a label.
TQPRow::TPart TQPRow::TakePart(std::vector<TPart>& parts, const TPhrasePart& phrase) const {
  TPart wanted;
  wanted.Kind = phrase.Kind;
  wanted.ValueIndex = phrase.ValueIndex;
  if (phrase.ValueIndex > 0) wanted.ValueKind = ValueKindOf(static_cast<TFilterCond&>(*FRow), phrase.ValueIndex);
  for (TPart& part : parts) {
    if (part.Label == nullptr || part.ValueIndex != wanted.ValueIndex || part.ValueKind != wanted.ValueKind) continue;
    if (part.ValueIndex == 0 && part.Kind != wanted.Kind) continue;
    wanted.Label = std::exchange(part.Label, nullptr);
    break;
  }
  return wanted;
}

void TQPRow::ShowPart(TPart& part, const TPhrasePart& phrase) {
  part.Text = ToQString(phrase.Text);
  part.SpaceBefore = phrase.SpaceBefore;
  part.IsElided = phrase.Kind == pkSQL;
  if (!IsLabel(part.Kind)) return;
  if (part.Label == nullptr) part.Label = MakeLabel(part);
  part.Label->setFont(FView.GetAppearance().FontOf(part.Kind));
  if (const QString name = NameOf(part); part.Label->accessibleName() != name) part.Label->setAccessibleName(name);
  if (part.Label->IsDroppedDown()) return;
  part.Label->SetReadOnly(!CanEdit());
  if (part.ValueIndex > 0) {
    return ShowValue(*part.Label, part.ValueKind, static_cast<TFilterCond&>(*FRow), part.ValueIndex, phrase);
  }
  if (part.Kind == pkField && !phrase.IsUnknown &&
      FView.GetAppearance().GetOptions().testFlag(TQPAppearance::aoCompoundNames)) {
    part.Text = ToQString(static_cast<TSimpleCond*>(FRow)->GetField().GetCompoundName());
  }
  part.Label->SetCaption(part.Text);
  part.Label->SetFault(phrase.IsUnknown ? ToQString(static_cast<TFilterCond*>(FRow)->GetMissing()) : QString());
}

void TQPRow::Refresh() {
  if (FRow == nullptr) return;
  const TPhrase phrase = RowPhrase(*FRow, FView.Names());
  FOff = !FRow->GetEnabled();
  for (const TFilterBracket* at = FRow->GetParentBracket(); at != nullptr; at = at->GetParentBracket()) {
    FOff = FOff || !at->GetEnabled();
  }
  QString sentence = ToQString(PhraseText(phrase));
  std::vector<TPart> old = std::move(FParts);
  FParts.clear();
  for (const TPhrasePart& piece : phrase) {
    FParts.push_back(TakePart(old, piece));
    ShowPart(FParts.back(), piece);
  }
  if (FRow->GetRowType() == frtBracket && FView.GetEditor()->IsCollapsed(*FRow)) {
    TPart rows;
    rows.SpaceBefore = rows.IsElided = true;
    rows.Text = ToQString("(" + RowsText(static_cast<TFilterBracket&>(*FRow), FView.Names(), collapsedLimit) + ")");
    sentence += u' ' + rows.Text;
    FParts.push_back(rows);
  }
  for (TPart& part : old) {
    if (part.Label == nullptr) continue;
    if (part.Label->hasFocus()) FView.setFocus();
    part.Label->hide();
    part.Label->deleteLater();
  }
  if (FCheckBox != nullptr) {
    FCheckBox->setChecked(FRow->GetEnabled());
    FCheckBox->setEnabled(CanEdit());
    FCheckBox->setToolTip(FView.GetAction(pcEnable).whatsThis());
  }
  const TQPAppearance::TQPAppearanceOptions options = FView.GetAppearance().GetOptions();
  FButton->SetFlat(options.testFlag(TQPAppearance::aoFlatButtons));
  FButton->SetRounded(options.testFlag(TQPAppearance::aoRoundButtons));
  if (sentence != FSentence) {
    FSentence = sentence;
    FButton->setAccessibleName(sentence);
    if (FCheckBox != nullptr) FCheckBox->setAccessibleName(sentence);
    QAccessibleEvent told(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&told);
  }
  TellRowState(*this, FToldState);
  ShowSigns();
  UpdateColors();
}

void TQPRow::ShowSigns() {
  const TPanelEditor& editor = *FView.GetEditor();
  FLocked = editor.IsLocked(*FRow);
  QString told;
  if (FLocked) {
    told = tr("The row is locked: it cannot be changed here");
  } else if (editor.HoldsLocked(*FRow)) {
    told = tr("The bracket holds a locked row: it cannot be changed here");
  }
  FButton->setAccessibleDescription(told);
  const bool isElided = std::any_of(FParts.begin(), FParts.end(), [](const TPart& part) { return part.IsElided; });
  setToolTip(PlainToolTip(told.isEmpty() && isElided ? FSentence : told));
  if (FTriangle == nullptr) return;
  const bool isCollapsed = editor.IsCollapsed(*FRow);
  FTriangle->SetCollapsed(isCollapsed);
  FTriangle->setToolTip(FView.GetAction(isCollapsed ? pcExpand : pcCollapse).whatsThis());
  FTriangle->setAccessibleName(FTriangle->toolTip());
  FTriangle->setVisible(static_cast<TFilterBracket&>(*FRow).GetRowCount() > 0);
}

void TQPRow::SetPlace(int level, int number) {
  FLevel = level;
  const bool numbers = FView.GetAppearance().GetOptions().testFlag(TQPAppearance::aoRowNumbers);
  FButton->SetText(numbers && number > 0 ? QString::number(number) : QStringLiteral("•"));
}

void TQPRow::SetCurrent(bool current) {
  if (FCurrent == current) return;
  FCurrent = current;
  UpdateColors();
}

// The labels look for the background in the palette, and stay readable on it.
void TQPRow::UpdateColors() {
  QPalette colors = FView.palette();
  const double part = FCurrent ? currentPart : underMouse() ? hoverPart : 0;
  const QColor base = colors.color(QPalette::Base);
  colors.setColor(QPalette::ToolTipBase, MixedColor(colors.color(QPalette::Highlight), base, part));
  colors.setColor(QPalette::ToolTipText, colors.color(QPalette::Text));
  if (palette() != colors) setPalette(colors);
  for (const TPart& part_ : FParts) {
    if (part_.Label != nullptr) part_.Label->SetLinkColor(ColorOf(part_));
  }
  update();
}

// Focus

// Wherever the row is clicked, it becomes the current one.
void TQPRow::mousePressEvent(QMouseEvent* event) {
  if (FRow != nullptr && event->button() == Qt::LeftButton) FView.FocusRow(*FRow, 0);
}

int TQPRow::GetPartCount() const {
  const auto labels = std::count_if(FParts.begin(), FParts.end(), [](const TPart& part) { return part.Label; });
  return static_cast<int>(labels) + (FCheckBox != nullptr ? 2 : 1);
}

QWidget* TQPRow::GetPart(int part) const {
  if (part <= 0) return FButton;
  if (FCheckBox != nullptr && --part == 0) return FCheckBox;
  QWidget* last = FCheckBox != nullptr ? static_cast<QWidget*>(FCheckBox) : FButton;
  for (const TPart& at : FParts) {
    if (at.Label == nullptr) continue;
    last = at.Label;
    if (--part == 0) break;
  }
  return last;
}

int TQPRow::IndexOfPart(const QObject* widget) const {
  for (int part = 0; part < GetPartCount(); ++part) {
    if (GetPart(part) == widget) return part;
  }
  return -1;
}

int TQPRow::GetFirstLabel() const { return std::min(FCheckBox != nullptr ? 2 : 1, GetPartCount() - 1); }

int TQPRow::GetFaultPart() const {
  const auto wrong = std::find_if(FParts.begin(), FParts.end(), [](const TPart& part) {
    return part.Label != nullptr && !part.Label->GetFault().isEmpty();
  });
  return wrong != FParts.end() ? IndexOfPart(wrong->Label) : GetFirstLabel();
}

int TQPRow::ValueOfPart(int part) const {
  const QWidget* widget = GetPart(part);
  const auto found = std::find_if(FParts.begin(), FParts.end(), [&](const TPart& at) { return at.Label == widget; });
  return found != FParts.end() ? found->ValueIndex : 0;
}

void TQPRow::OpenPart(int part) {
  QWidget* widget = GetPart(part);
  if (auto* label = qobject_cast<TDropDownLabel*>(widget)) {
    label->DropDown();
  } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    button->click();
  }
}

}  // namespace tolvi
