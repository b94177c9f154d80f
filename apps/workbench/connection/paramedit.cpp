#include "apps/workbench/connection/paramedit.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QToolButton>
#include <QWidgetAction>
#include <algorithm>
#include <exception>
#include <optional>
#include <utility>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/valuedates.h>
#include <tolvi/query/values.h>
#include <tolvi/ui/controls/datetext.h>
#include <tolvi/ui/controls/waitcursor.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

struct TItem {
  QString Text, Value;
};

void AddWhole(TParamEdit& edit, QWidget& part) {
  auto* layout = new QHBoxLayout(&edit);
  layout->setContentsMargins({});
  layout->addWidget(&part);
  edit.setFocusProxy(&part);
}

/// Any text; numbers stand in the locale of the panel.
class TLineEdit final : public TParamEdit {
 public:
  TLineEdit(const TDSTextEditor* editor, char decimalSeparator, QWidget* parent)
      : TParamEdit(parent), FLine(new QLineEdit(this)), FSeparator(QChar::fromLatin1(decimalSeparator)) {
    AddWhole(*this, *FLine);
    FUpper = editor != nullptr && editor->GetAutoUpperCase();
    FLower = editor != nullptr && editor->GetAutoLowerCase();
    if (editor != nullptr) FLine->setInputMask(ToQString(editor->GetEditMask()));
    connect(FLine, &QLineEdit::textChanged, this, [this] {
      if (OnChange) OnChange();
    });
  }

  void SetValue(const QString& value) override { FLine->setText(QString(value).replace(u'.', Point())); }
  QString GetValue() const override {
    QString text = FLine->text();
    if (FUpper) text = text.toUpper();
    if (FLower) text = text.toLower();
    return text.replace(Point(), u'.');
  }

 private:
  // '.' leaves the text as it is.
  QChar Point() const { return FSeparator; }

  QLineEdit* FLine;
  const QChar FSeparator;
  bool FUpper = false, FLower = false;
};

/// Long texts.
class TMemoEdit final : public TParamEdit {
 public:
  TMemoEdit(const QString& placeholder, QWidget* parent) : TParamEdit(parent), FLines(new QPlainTextEdit(this)) {
    AddWhole(*this, *FLines);
    FLines->setPlaceholderText(placeholder);
    FLines->setTabChangesFocus(true);
    FLines->setFixedHeight(5 * fontMetrics().lineSpacing());
    connect(FLines, &QPlainTextEdit::textChanged, this, [this] {
      if (OnChange) OnChange();
    });
  }

  void SetValue(const QString& value) override { FLines->setPlainText(value); }
  QString GetValue() const override { return FLines->toPlainText(); }

 private:
  QPlainTextEdit* FLines;
};

/// Several items, one a line, each as a line of its own would show it.
class TItemsEdit final : public TParamEdit {
 public:
  TItemsEdit(std::optional<TDateKind> kind, char decimalSeparator, QWidget* parent)
      : TParamEdit(parent),
        FLines(new TMemoEdit(TParamEdit::tr("One a line"), this)),
        FKind(kind),
        FSeparator(QChar::fromLatin1(decimalSeparator)) {
    if (kind) FFormat = LocaleFormat(*kind, locale());
    AddWhole(*this, *FLines);
    setFocusProxy(FLines->focusProxy());
    FLines->OnChange = [this] {
      if (OnChange) OnChange();
    };
  }

  void SetValue(const QString& value) override {
    QStringList items;
    for (const std::string& item : SplitCommaText(FromQString(value))) items << Shown(ToQString(item));
    FLines->SetValue(items.join(u'\n'));
  }
  QString GetValue() const override {
    TStrings items;
    const QStringList lines = FLines->GetValue().split(u'\n');
    for (const QString& line : lines) {
      if (!line.trimmed().isEmpty()) items.Add(FromQString(Plain(line.trimmed())));
    }
    return ToQString(items.GetCommaText());
  }

 private:
  QString Shown(const QString& item) const {
    if (!FKind) return QString(item).replace(u'.', FSeparator);
    const auto date = ReadDate(item, *FKind, IsoFormat(*FKind));
    return date ? WriteDate(*date, FFormat) : item;
  }
  QString Plain(const QString& item) const {
    if (!FKind) return QString(item).replace(FSeparator, u'.');
    const auto date = ReadDate(item, *FKind, FFormat);
    return date ? WriteDate(*date, IsoFormat(*FKind)) : item;
  }

  TMemoEdit* FLines;
  const std::optional<TDateKind> FKind;
  // '.' leaves texts as they are.
  const QChar FSeparator;
  QString FFormat;
};

/// A line, and a calendar below its button.
class TDateLine final : public TParamEdit {
 public:
  TDateLine(TDateKind kind, QWidget* parent) : TParamEdit(parent), FLine(new QLineEdit(this)), FKind(kind) {
    FFormat = LocaleFormat(kind, locale());
    // A date alone would look like a value.
    FLine->setPlaceholderText(TParamEdit::tr("For example %1").arg(WriteDate(Now(), FFormat)));
    connect(FLine, &QLineEdit::textChanged, this, [this] {
      if (OnChange) OnChange();
    });
    AddWhole(*this, *FLine);
    if (kind != TDateKind::dkTime) AddCalendar();
  }

  void SetValue(const QString& value) override {
    const auto date = ReadDate(value, FKind, IsoFormat(FKind));
    FLine->setText(date && !value.isEmpty() ? WriteDate(*date, FFormat) : value);
  }
  QString GetValue() const override {
    const QString text = FLine->text().trimmed();
    const auto date = ReadDate(text, FKind, FFormat);
    return date && !text.isEmpty() ? WriteDate(*date, IsoFormat(FKind)) : text;
  }

 private:
  void AddCalendar() {
    auto* menu = new QMenu(this);
    auto* calendar = new QCalendarWidget(menu);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    auto* action = new QWidgetAction(menu);
    action->setDefaultWidget(calendar);
    menu->addAction(action);
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("calendar"));
    button->setText(QStringLiteral("…"));
    button->setToolTip(TParamEdit::tr("Calendar (Alt+Down)"));
    button->setAccessibleName(TParamEdit::tr("Calendar"));
    button->setShortcut(QKeySequence());
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(menu);
    layout()->addWidget(button);
    auto* open = new QAction(this);
    open->setShortcut(Qt::ALT | Qt::Key_Down);
    open->setShortcutContext(Qt::WidgetShortcut);
    FLine->addAction(open);
    connect(open, &QAction::triggered, button, &QToolButton::showMenu);
    connect(menu, &QMenu::aboutToShow, this, [this, calendar] {
      const auto date = ReadDate(FLine->text(), FKind, FFormat);
      const TDateTimeParts parts = DecodeDateTime(date && !FLine->text().isEmpty() ? *date : Now());
      calendar->setSelectedDate({parts.year, parts.month, parts.day});
      calendar->setFocus();
    });
    const auto choose = [this, menu](const QDate& day) {
      menu->close();
      TakeDay(day);
    };
    connect(calendar, &QCalendarWidget::clicked, this, choose);
    connect(calendar, &QCalendarWidget::activated, this, choose);
  }

  // The time of day stays.
  void TakeDay(const QDate& day) {
    const auto before = ReadDate(FLine->text(), FKind, FFormat);
    TDateTimeParts parts = DecodeDateTime(before && !FLine->text().isEmpty() ? *before : 0);
    parts.year = day.year();
    parts.month = day.month();
    parts.day = day.day();
    if (const auto date = TryEncodeDateTime(parts)) FLine->setText(WriteDate(*date, FFormat));
    FLine->setFocus();
  }

  QLineEdit* FLine;
  const TDateKind FKind;
  QString FFormat;
};

/// One of several items, or a value of the user's own where that is allowed.
class TChoiceEdit final : public TParamEdit {
 public:
  TChoiceEdit(const std::vector<TItem>& items, bool isOpen, QWidget* parent)
      : TParamEdit(parent), FBox(new QComboBox(this)) {
    for (const TItem& item : items) FBox->addItem(item.Text, item.Value);
    FBox->setEditable(isOpen);
    FBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    FBox->setPlaceholderText(TParamEdit::tr("Choose"));
    if (isOpen) {
      FBox->setInsertPolicy(QComboBox::NoInsert);
      FBox->completer()->setCompletionMode(QCompleter::PopupCompletion);
      FBox->completer()->setFilterMode(Qt::MatchContains);
      FBox->lineEdit()->setPlaceholderText(TParamEdit::tr("Choose or type"));
    }
    FBox->setCurrentIndex(-1);
    AddWhole(*this, *FBox);
    const auto change = [this] {
      if (OnChange) OnChange();
    };
    connect(FBox, &QComboBox::currentIndexChanged, this, change);
    connect(FBox, &QComboBox::editTextChanged, this, change);
  }

  void SetValue(const QString& value) override {
    const int index = value.isEmpty() ? -1 : FBox->findData(value);
    FBox->setCurrentIndex(index);
    if (index < 0 && FBox->isEditable()) FBox->setEditText(value);
  }
  QString GetValue() const override {
    if (!FBox->isEditable()) return FBox->currentData().toString();
    const int index = FBox->findText(FBox->currentText(), Qt::MatchFixedString | Qt::MatchCaseSensitive);
    return index >= 0 ? FBox->itemData(index).toString() : FBox->currentText();
  }

 private:
  QComboBox* FBox;
};

/// Any of several items.
class TCheckEdit final : public TParamEdit {
 public:
  TCheckEdit(const std::vector<TItem>& items, QWidget* parent) : TParamEdit(parent), FList(new QListWidget(this)) {
    constexpr int Rows = 6;
    for (const TItem& item : items) AddItem(item);
    FList->setFixedHeight(std::min(Rows, FList->count()) * FList->sizeHintForRow(0) + 4 * FList->frameWidth());
    AddWhole(*this, *FList);
    connect(FList, &QListWidget::itemChanged, this, [this] {
      if (OnChange) OnChange();
    });
  }

  void SetValue(const QString& value) override {
    QStringList values;
    for (const std::string& item : SplitCommaText(FromQString(value))) values << ToQString(item);
    for (int row = 0; row < FList->count(); ++row) {
      QListWidgetItem& item = *FList->item(row);
      item.setCheckState(values.removeAll(item.data(Qt::UserRole).toString()) > 0 ? Qt::Checked : Qt::Unchecked);
    }
    for (const QString& other : std::as_const(values)) AddItem({other, other})->setCheckState(Qt::Checked);
  }
  QString GetValue() const override {
    TStrings values;
    for (int row = 0; row < FList->count(); ++row) {
      const QListWidgetItem& item = *FList->item(row);
      if (item.checkState() == Qt::Checked) values.Add(FromQString(item.data(Qt::UserRole).toString()));
    }
    return ToQString(values.GetCommaText());
  }

 private:
  QListWidgetItem* AddItem(const TItem& item) {
    auto* added = new QListWidgetItem(item.Text, FList);
    added->setData(Qt::UserRole, item.Value);
    added->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    added->setCheckState(Qt::Unchecked);
    return added;
  }

  QListWidget* FList;
};

/// Those of the field's list, fetched where they come from the database; none when that does not work.
std::vector<TItem> ItemsOf(TDSValueEditor* editor) {
  std::vector<TItem> items;
  auto* list = dynamic_cast<TDSListEditor*>(editor);
  if (list == nullptr) return items;
  if (auto* fetched = dynamic_cast<TDSSQLEditor*>(editor); fetched != nullptr && !fetched->GetOpened()) {
    try {
      const TWaitCursor wait;
      fetched->SetOpened(true);
    } catch (const EException&) {
      // The value can be typed.
      return items;
    }
  }
  for (std::size_t i = 0; i < list->Items().Count(); ++i) {
    const std::string& text = list->Items()[i];
    items.push_back({ToQString(text), ToQString(i < list->Values().Count() ? list->Values()[i] : text)});
  }
  return items;
}

std::optional<TDateKind> DateKindOf(const TParamInfo& param) {
  const auto* text = dynamic_cast<const TDSTextEditor*>(param.Editor);
  if (text != nullptr && text->GetKind() == tekDate) return TDateKind::dkDate;
  if (text != nullptr && text->GetKind() == tekTime) return TDateKind::dkTime;
  if (!DateFieldTypes.Contains(param.Type)) return std::nullopt;
  if (param.Type == ftDate) return TDateKind::dkDate;
  return param.Type == ftTime ? TDateKind::dkTime : TDateKind::dkDateTime;
}

bool IsNumber(TFieldType type) { return FloatFieldTypes.Contains(type) || IntegerFieldTypes.Contains(type); }

/// The value, or each of its items.
template <typename TConvert>
std::string Converted(const std::string& value, const TParamInfo& param, const TConvert& convert) {
  if (!param.IsList) return convert(value);
  TStrings items;
  for (const std::string& item : SplitCommaText(value)) items.Add(convert(item));
  return items.GetCommaText();
}

std::string PlainForm(const std::string& stored, const TParamInfo& param, const TJQueryPanel& panel) {
  const TFormatSettings& settings = panel.GetFormatSettings();
  if (stored.empty()) return stored;
  if (const auto kind = DateKindOf(param)) {
    constexpr TFieldType Types[] = {ftDate, ftTime, ftDateTime};
    const auto date = TryReadDate(stored, settings);
    return date ? PlainDate(*date, Types[static_cast<int>(*kind)]) : stored;
  }
  if (param.Type == ftBoolean) {
    const auto truth = TryXStrToBool(stored);
    return truth ? std::string(XBoolToStr(*truth)) : stored;
  }
  return IsNumber(param.Type) ? ReplaceStr(stored, std::string(1, settings.DecimalSeparator), ".") : stored;
}

}  // namespace

TParamEdit* MakeParamEdit(const TParamInfo& param, const TJQueryPanel& panel, QWidget* parent) {
  constexpr TFieldTypes LongTextTypes{ftMemo, ftFmtMemo};
  const std::vector<TItem> items = ItemsOf(param.Editor);
  if (param.IsList && !items.empty()) return new TCheckEdit(items, parent);
  const char separator = IsNumber(param.Type) ? panel.GetFormatSettings().DecimalSeparator : '.';
  if (param.IsList) return new TItemsEdit(DateKindOf(param), separator, parent);
  if (!items.empty()) return new TChoiceEdit(items, true, parent);
  if (param.Type == ftBoolean) {
    return new TChoiceEdit({{ToQString(panel.GetTitle("ttlTrue")), QStringLiteral("1")},
                            {ToQString(panel.GetTitle("ttlFalse")), QStringLiteral("0")}},
                           false, parent);
  }
  if (const auto kind = DateKindOf(param)) return new TDateLine(*kind, parent);
  if (LongTextTypes.Contains(param.Type)) return new TMemoEdit({}, parent);
  return new TLineEdit(dynamic_cast<const TDSTextEditor*>(param.Editor), separator, parent);
}

QString ToEditForm(const std::string& stored, const TParamInfo& param, const TJQueryPanel& panel) {
  return ToQString(Converted(stored, param, [&](const std::string& item) { return PlainForm(item, param, panel); }));
}

std::string ToStoredForm(const QString& value, const TParamInfo& param, const TJQueryPanel& panel) {
  const auto kind = DateKindOf(param);
  return Converted(FromQString(value), param, [&](const std::string& item) {
    const auto date = kind && !item.empty() ? ReadDate(ToQString(item), *kind, IsoFormat(*kind)) : std::nullopt;
    return date ? FloatToStr(*date, panel.GetFormatSettings()) : item;
  });
}

QString FaultOfParam(const QString& value, const TParamInfo& param, const TJQueryPanel& panel) {
  if (value.isEmpty()) {
    return TextFieldTypes.Contains(param.Type) && !param.IsList ? QString() : TParamEdit::tr("A value is needed.");
  }
  if (panel.GetDBStruct() == nullptr) return {};
  const TValueContext context{panel.GetDBStruct()->SQLFormats(), panel.GetFormatSettings(), panel.GetSQLSyntax(),
                              param.ValueName};
  std::string literal;
  try {
    const std::string stored = ToStoredForm(value, param, panel);
    if (param.IsList) {
      AppendLiteralList(literal, stored, param.Type, context);
    } else {
      AppendLiteral(literal, stored, param.Type, context);
    }
  } catch (const EException& error) {
    return ToQString(error.Message());
  }
  return {};
}

}  // namespace tolvi
