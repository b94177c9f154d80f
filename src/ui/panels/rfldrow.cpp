#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/query/resultfields.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/rfldcolumns.h>
#include <tolvi/ui/panels/rfldpnl.h>
#include <tolvi/ui/panels/rfldrow.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

std::string UpperCase(std::string_view text) { return FromQString(ToQString(text).toUpper()); }

std::optional<int> WidthOf(const QWidget* label) {
  return label != nullptr ? std::optional(label->sizeHint().width()) : std::nullopt;
}

// In the words of the dialog that hides columns.
QString NotShown() { return TRFColumnsPage::tr("not shown"); }

}  // namespace

// The arrow keys are left to the panel, which goes from row to row.
void TRFRowButton::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
      return event->ignore();
    default:
      TJRndBtn::keyPressEvent(event);
  }
}

TResultFieldRow::TResultFieldRow(TResultFieldRows& list) : FList(list) {
  TJResultFieldsPanel& panel = list.GetPanel();
  if (panel.GetDBStruct() == nullptr) throw ERFPanelError(SDBStructureNotSpecified, {});
  const TRFPAppearance& appearance = panel.GetAppearance();
  QWidget* content = panel.widget();

  FButton = std::make_unique<TRFRowButton>(*this, content);
  FButton->SetFlat(appearance.GetOptions().testFlag(TRFPAppearance::aoFlatButtons));
  FButton->SetRounded(appearance.GetOptions().testFlag(TRFPAppearance::aoRoundButtons));
  FButton->OnClick = [this](TJRndBtn&) { GetRFPanel().RowButtonClick(*this); };
  FButton->hide();

  FSortLabel = std::make_unique<TDropDownPopup>(content);
  FSortLabel->SetLinkColor(appearance.GetSortColor());
  FSortLabel->SetUnderlined(true);
  FSortLabel->setAccessibleName(TJResultFieldsPanel::tr("Sorting"));
  Watch(*FSortLabel, rpSorting);
  for (const TRFItem& item : SortingItems(panel.GetTitles())) {
    FSortLabel->AddItem(ToQString(item.Group), ToQString(item.Value), ToQString(item.Text));
  }
  FSortLabel->SetItemIndex(0);
  FSortLabel->hide();
}

TJResultFieldsPanel& TResultFieldRow::GetRFPanel() const { return FList.GetPanel(); }

std::ptrdiff_t TResultFieldRow::GetRowIndex() const { return FList.IndexOf(this); }

// The list of columns is open to the host, who may have taken the column out: then the pointer is good for no more than
// this comparison.
TResultField* TResultFieldRow::GetRField() const {
  const TRFieldList* fields = GetRFPanel().GetResultFields();
  return FRField != nullptr && fields != nullptr && fields->IndexOf(*FRField) >= 0 ? FRField : nullptr;
}

void TResultFieldRow::SetRField(TResultField* field) {
  FRField = field;
  Place();
}

void TResultFieldRow::SetVisible(bool visible) {
  FVisible = visible;
  FButton->setVisible(visible);
  if (FFieldLabel != nullptr) FFieldLabel->setVisible(visible);
  FSortLabel->setVisible(visible);
}

QWidget& TResultFieldRow::GetPart(TRFRowPart part) const {
  if (part == rpSorting) return *FSortLabel;
  if (part == rpField && FFieldLabel != nullptr) return *FFieldLabel;
  return *FButton;
}

QWidget* TResultFieldRow::GetFocusedPart() const {
  for (const QWidget* focused = QApplication::focusWidget(); focused != nullptr; focused = focused->parentWidget()) {
    for (const TRFRowPart part : {rpButton, rpField, rpSorting}) {
      if (focused == &GetPart(part)) return &GetPart(part);
    }
  }
  return nullptr;
}

QString TResultFieldRow::GetPhrase() const {
  const QString phrase = ToQString(ResultRowPhrase(FTexts, FromQString(FSortLabel->GetCaption())));
  return FIsHidden ? phrase + QStringLiteral(", ") + NotShown() : phrase;
}

std::unique_ptr<QLabel> TResultFieldRow::MakeTextLabel(const std::string& text) const {
  if (text.empty()) return nullptr;
  auto label = std::make_unique<QLabel>(GetRFPanel().widget());
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
  // A formula is part of the line: its brackets turn to the field from right to left, too.
  label->setText(label->isRightToLeft() ? QChar(0x200F) + ToQString(text) : ToQString(text));
  label->show();
  return label;
}

std::unique_ptr<TDropDownList> TResultFieldRow::MakeFieldLabel() const {
  if (!FTexts.FieldValue) return nullptr;
  TJResultFieldsPanel& panel = GetRFPanel();
  const TRFPAppearance& appearance = panel.GetAppearance();
  std::unique_ptr<TDropDownList> label;
  if (appearance.GetOptions().testFlag(TRFPAppearance::aoPopupField)) {
    label = std::make_unique<TDropDownPopup>(panel.widget());
  } else {
    label = std::make_unique<TDropDownListBox>(panel.widget());
  }
  label->SetLinkColor(appearance.GetFieldColor());
  label->SetUnderlined(true);
  label->setAccessibleName(TJResultFieldsPanel::tr("Field"));
  label->SetItems(panel.FieldItems());
  if (!label->Items().empty()) label->SetItemIndex(0);
  label->SetValue(ToQString(*FTexts.FieldValue));
  label->SetCaption(ToQString(FTexts.FieldCaption));
  label->setVisible(FVisible);
  return label;
}

void TResultFieldRow::Watch(TDropDownList& label, TRFRowPart part) {
  label.OnAfterDropUp = [this, part](TDropDownLabel&, bool accepted) {
    if (accepted) GetRFPanel().RowEdited(*this, part);
  };
}

void TResultFieldRow::Place() {
  const TResultField* field = GetRField();
  const std::ptrdiff_t index = GetRowIndex();
  if (field == nullptr || index < 0) return;
  const TRFPAppearance& appearance = GetRFPanel().GetAppearance();
  const TRFCaptionStyle style{appearance.GetOptions().testFlag(TRFPAppearance::aoShowGroupName),
                              FromQString(appearance.GetNameSeparator())};
  FTexts = ResultRowTexts(*field, static_cast<std::size_t>(index), style, UpperCase);
  FTextLabel1 = MakeTextLabel(FTexts.Before);
  FFieldLabel = MakeFieldLabel();
  if (FFieldLabel != nullptr) Watch(*FFieldLabel, rpField);
  FTextLabel2 = MakeTextLabel(FTexts.After);
  for (const auto& label : {FTextLabel1.get(), FTextLabel2.get()}) {
    if (label != nullptr) label->setToolTip(PlainToolTip(ToQString(FTexts.Tip)));
  }
  FButton->setToolTip({});
  FIsHidden = field->GetHidden();
  if (FIsHidden) TellIsHidden();
  Colour();
  Arrange();
}

void TResultFieldRow::TellIsHidden() {
  const QString tip = ToQString(FTexts.Tip);
  // Of the panel's font all but that, also when it changes.
  QFont slanted;
  slanted.setItalic(true);
  for (QWidget* label : {static_cast<QWidget*>(FTextLabel1.get()), static_cast<QWidget*>(FFieldLabel.get()),
                         static_cast<QWidget*>(FTextLabel2.get())}) {
    if (label == nullptr) continue;
    label->setFont(slanted);
    label->setToolTip(PlainToolTip(tip.isEmpty() ? NotShown() : tip + QStringLiteral(" (") + NotShown() + u')'));
  }
  if (FFieldLabel != nullptr) FFieldLabel->setAccessibleDescription(NotShown());
  FButton->setToolTip(NotShown());
}

void TResultFieldRow::Colour() {
  if (!FIsHidden) return;
  constexpr double part = 0.7;
  const TJResultFieldsPanel& panel = GetRFPanel();
  const QColor base = panel.palette().color(QPalette::Base), text = panel.palette().color(QPalette::Text);
  for (QLabel* label : {FTextLabel1.get(), FTextLabel2.get()}) {
    if (label == nullptr) continue;
    QPalette weak;
    weak.setColor(label->foregroundRole(), ReadableColor(MixedColor(text, base, part), base));
    label->setPalette(weak);
  }
  if (FFieldLabel == nullptr) return;
  const QColor link = ReadableLinkColor(panel.GetAppearance().GetFieldColor(), panel.palette(), base);
  FFieldLabel->SetLinkColor(MixedColor(link, base, part));
}

void TResultFieldRow::Arrange() {
  const std::ptrdiff_t index = GetRowIndex();
  if (index < 0) return;
  TJResultFieldsPanel& panel = GetRFPanel();
  FTexts.Number = FromQString(GetRowNumStr());
  FButton->SetText(GetRowNumStr());
  FButton->setAccessibleName(GetPhrase());

  const QFontMetrics metrics(panel.font());
  const TRFRowSizes sizes{metrics.height(), FButton->sizeHint().width(), WidthOf(FTextLabel1.get()),
                          WidthOf(FFieldLabel.get()), WidthOf(FTextLabel2.get())};
  FPlaces = PlaceResultRow(static_cast<std::size_t>(index), sizes, panel.GetAppearance().Spaces());
  // All are as high as the button: so their texts stand on one line, and no row reaches into the next.
  const int height = FPlaces.Button.Height;
  panel.PutAt(*FButton, {FPlaces.Button.Left, FPlaces.Button.Top}, FPlaces.Button.Width, height);
  if (FPlaces.Before) panel.PutAt(*FTextLabel1, *FPlaces.Before, *sizes.Before, height);
  if (FPlaces.Field) panel.PutAt(*FFieldLabel, *FPlaces.Field, *sizes.Field, height);
  if (FPlaces.After) panel.PutAt(*FTextLabel2, *FPlaces.After, *sizes.After, height);
  panel.PutAt(*FSortLabel, FPlaces.Sorting, FSortLabel->sizeHint().width(), height);
}

int TResultFieldRow::GetRight() const { return FPlaces.Sorting.X + FSortLabel->width(); }

void TResultFieldRow::RefreshResultField() {
  TJResultFieldsPanel& panel = GetRFPanel();
  TResultField* field = GetRField();
  const std::ptrdiff_t index = GetRowIndex();
  if (field == nullptr || index < 0) return;
  std::optional<std::string> value;
  if (FFieldLabel != nullptr) value = FromQString(FFieldLabel->GetValue());
  const QPointer<TJResultFieldsPanel> alive(&panel);
  tolvi::RefreshResultField(*panel.GetResultFields(), static_cast<std::size_t>(index), *field, value, GetSorting());
  if (alive) alive->Changed();
}

TResultFieldRow& TResultFieldRows::AddRow(TResultField& field) {
  TResultFieldRow& row = Add(std::make_unique<TResultFieldRow>(*this));
  row.SetSorting(field.GetSorting());
  row.SetRField(&field);
  row.SetVisible(true);
  return row;
}

void TResultFieldRows::SetVisible(bool visible) {
  if (visible == FVisible) return;
  FVisible = visible;
  for (TResultFieldRow& row : FItems) row.SetVisible(visible);
}

}  // namespace tolvi
