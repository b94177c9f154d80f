#include <QFormLayout>
#include <QLineEdit>
#include <QStringList>
#include <QStyle>
#include <algorithm>
#include <utility>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/paramvalues.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/valuedates.h>
#include <tolvi/query/values.h>
#include <tolvi/ui/controls/checkededitor.h>
#include <tolvi/ui/controls/datetext.h>
#include <tolvi/ui/controls/dddate.h>
#include <tolvi/ui/controls/ddedit.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/panels/qpvalues.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

using enum TQPValueKind;

constexpr TFieldTypes LongTextTypes{ftMemo, ftFmtMemo};

TQPValueKind KindOfText(const TDSTextEditor* editor, TFieldType type) {
  if (editor != nullptr && editor->GetKind() == tekDate) return qvDate;
  if (editor != nullptr && editor->GetKind() == tekTime) return qvTime;
  if (editor != nullptr && !editor->GetEditMask().empty()) return qvText;
  switch (type) {
    case ftDate:
      return qvDate;
    case ftTime:
      return qvTime;
    case ftDateTime:
    case ftTimeStamp:
      return qvDateTime;
    case ftBoolean:
      return qvBoolean;
    default:
      return LongTextTypes.Contains(type) ? qvMemo : qvText;
  }
}

TDateKind DateKindOf(TQPValueKind kind) {
  if (kind == qvTime) return TDateKind::dkTime;
  return kind == qvDate ? TDateKind::dkDate : TDateKind::dkDateTime;
}
bool IsDate(TQPValueKind kind) { return kind == qvDate || kind == qvTime || kind == qvDateTime; }
bool IsList(TQPValueKind kind) {
  return kind == qvItem || kind == qvItems || kind == qvFetchedItem || kind == qvFetchedItems || kind == qvBoolean;
}

const TFormatSettings& SettingsOf(const TFilterCond& condition) {
  return condition.GetQueryPanel().GetFormatSettings();
}

/// The panel's pattern, with its separators; that of the widget's locale where the editor cannot write it.
QString PatternOf(TQPValueKind kind, const TFormatSettings& settings) {
  QString date = ToQString(settings.ShortDateFormat), time = ToQString(settings.LongTimeFormat);
  date.replace(u'/', QChar::fromLatin1(settings.DateSeparator));
  time.replace(u':', QChar::fromLatin1(settings.TimeSeparator));
  static const QStringList known{QStringLiteral("yyyy"), QStringLiteral("mm"), QStringLiteral("dd")};
  for (const QString& token : known) {
    if (!date.contains(token) || date.count(token.front()) != token.size()) return {};
  }
  if (!time.startsWith(QStringLiteral("hh"))) return {};
  if (kind == qvTime) return time;
  return kind == qvDate ? date : date + u' ' + time;
}

// Items divided by commas

QString QuotedItem(const std::string& item) {
  QString text = ToQString(item);
  if (!text.contains(u',') && !text.contains(u'"') && text.trimmed() == text && !text.isEmpty()) return text;
  return u'"' + QString(text).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

/// "Berlin, New York" as a comma text; an item with a comma of its own stands in double quotes.
std::string CommaTextOf(const QString& typed) {
  TStrings items;
  QString item;
  bool isQuoted = false, wasQuoted = false;
  const auto add = [&] {
    const QString text = wasQuoted ? item : item.trimmed();
    if (wasQuoted || !text.isEmpty()) items.Add(FromQString(text));
    item.clear();
    wasQuoted = false;
  };
  for (qsizetype i = 0; i < typed.size(); ++i) {
    const QChar c = typed[i];
    if (c == u'"' && isQuoted && i + 1 < typed.size() && typed[i + 1] == u'"') {
      item += typed[++i];
    } else if (c == u'"' && (isQuoted || item.trimmed().isEmpty())) {
      if (!isQuoted) item.clear();
      isQuoted = !isQuoted;
      wasQuoted = true;
    } else if (!isQuoted && (c == u',' || c == u'\n')) {
      add();
    } else if (!wasQuoted || isQuoted || !c.isSpace()) {
      item += c;
    }
  }
  add();
  return items.GetCommaText();
}

QString TypedItems(const std::string& commaText) {
  QStringList items;
  for (const std::string& item : SplitCommaText(commaText)) items << QuotedItem(item);
  return items.join(QStringLiteral(", "));
}

std::vector<TDropDownItem> ItemsOf(const TDSListEditor& editor) {
  std::vector<TDropDownItem> items;
  for (std::size_t i = 0; i < editor.Items().Count(); ++i) {
    const std::string& text = editor.Items()[i];
    const std::string& value = i < editor.Values().Count() ? editor.Values()[i] : text;
    items.push_back({QString(), ToQString(value), ToQString(text)});
  }
  return items;
}

std::vector<TDropDownItem> TruthItems(const TJQueryPanel& panel) {
  return {{QString(), QStringLiteral("1"), ToQString(panel.GetTitle("ttlTrue"))},
          {QString(), QStringLiteral("0"), ToQString(panel.GetTitle("ttlFalse"))}};
}

/// One value as the label keeps it.
QString LabelText(TQPValueKind kind, const std::string& value, const TFormatSettings& settings) {
  if (value.empty()) return {};
  if (kind == qvBoolean) {
    const auto truth = TryXStrToBool(value);
    return truth ? QString::number(*truth ? 1 : 0) : ToQString(value);
  }
  if (!IsDate(kind)) return ToQString(value);
  const auto date = TryReadDate(value, settings);
  static constexpr TFieldType types[] = {ftDate, ftTime, ftDateTime};
  return date ? ToQString(PlainDate(*date, types[static_cast<int>(DateKindOf(kind))])) : ToQString(value);
}

TTextCase CaseOf(const TDSTextEditor* editor) {
  if (editor != nullptr && editor->GetAutoUpperCase()) return TTextCase::tcUpper;
  return editor != nullptr && editor->GetAutoLowerCase() ? TTextCase::tcLower : TTextCase::tcNone;
}

QString FaultOfName(const QString& name) {
  try {
    CheckParamName(FromQString(name));
  } catch (const EException& error) {
    return ToQString(error.Message());
  }
  return {};
}

QString FaultOfValue(const TFilterCond& condition, int index) {
  if (condition.GetValue(index).empty() || condition.GetValueIsParam(index)) return {};
  if (condition.GetValueKind(index) == vkSubQuery) return {};
  try {
    static_cast<void>(condition.GetQueryPanel().ExtractValue(condition, index));
  } catch (const EException& error) {
    return ToQString(error.Message());
  }
  return {};
}

/// Why the literal cannot be written; empty when it can.
template <typename TAppend>
QString FaultOfLiteral(const TFilterCond& condition, int index, TAppend append) {
  const TJQueryPanel& panel = condition.GetQueryPanel();
  const TJCustomDBStructure* model = panel.GetDBStruct();
  if (model == nullptr) return {};
  const std::string name = condition.GetValueName(index);
  const TValueContext context{model->SQLFormats(), panel.GetFormatSettings(), panel.GetSQLSyntax(), name};
  std::string literal;
  try {
    append(literal, context);
  } catch (const EException& error) {
    return ToQString(error.Message());
  }
  return {};
}

}  // namespace

QString LabelValue(TQPValueKind kind, const TFilterCond& condition, int index) {
  if (kind == qvTextList) return TypedItems(condition.GetValue(index));
  return LabelText(kind, condition.GetValue(index), SettingsOf(condition));
}

bool IsSameValue(TQPValueKind kind, const QString& value, const QString& other) {
  if (kind != qvItems && kind != qvFetchedItems) return value == other;
  const auto sorted = [](const QString& commaText) {
    std::vector<std::string> items = SplitCommaText(FromQString(commaText));
    std::sort(items.begin(), items.end());
    return items;
  };
  return sorted(value) == sorted(other);
}

TQPValueKind ValueKindOf(const TFilterCond& condition, int index) {
  if (condition.GetValueIsParam(index)) return qvParam;
  if (condition.GetValueKind(index) == vkSubQuery) return qvQuery;
  const TDSValueEditor* editor = condition.GetValueEditor(index);
  const bool isList = condition.GetValueKind(index) == vkList;
  if (dynamic_cast<const TDSCustomEditor*>(editor) != nullptr) return qvHost;
  if (dynamic_cast<const TDSSQLEditor*>(editor) != nullptr) return isList ? qvFetchedItems : qvFetchedItem;
  if (dynamic_cast<const TDSListEditor*>(editor) != nullptr) return isList ? qvItems : qvItem;
  const TQPValueKind kind = KindOfText(dynamic_cast<const TDSTextEditor*>(editor), condition.GetValueType(index));
  return isList ? qvTextList : kind;
}

QString FaultOfItem(const TFilterCond& condition, int index, const QString& item) {
  return FaultOfLiteral(condition, index, [&](std::string& literal, const TValueContext& context) {
    AppendLiteral(literal, FromQString(item), condition.GetValueType(index), context);
  });
}

QString FaultOfText(const TFilterCond& condition, int index, const QString& text) {
  if (text.isEmpty() || condition.GetValueIsParam(index)) return {};
  if (condition.GetValueKind(index) != vkList) return FaultOfItem(condition, index, text);
  return FaultOfLiteral(condition, index, [&](std::string& literal, const TValueContext& context) {
    AppendLiteralList(literal, CommaTextOf(text), condition.GetValueType(index), context);
  });
}

// Labels

TQPActionLabel::TQPActionLabel(QWidget* parent) : TDropDownLabel(parent) {
  // Read-only for the moment, the label opens no editor.
  OnBeforeDropDown = [this](TDropDownLabel&) {
    SetReadOnly(true);
    QMetaObject::invokeMethod(
        this,
        [this] {
          SetReadOnly(false);
          if (const auto handler = OnOpen) handler();
        },
        Qt::QueuedConnection);
  };
}

// Its editor: the name, checked as it is typed, and the prompt below.
class TQPParamLabel::TEditor final : public TCheckedEditor {
 public:
  TEditor(QLineEdit& name, const QString& prompt, QWidget* parent)
      : TCheckedEditor(name, parent), FName(name), FPrompt(*new QLineEdit(prompt, this)) {
    auto* form = new QFormLayout;
    FName.setObjectName(QStringLiteral("name"));
    FPrompt.setObjectName(QStringLiteral("prompt"));
    FPrompt.setMinimumWidth(20 * fontMetrics().averageCharWidth());
    form->addRow(TQPParamLabel::tr("&Name:"), &FName);
    form->addRow(TQPParamLabel::tr("&Prompt:"), &FPrompt);
    const int space = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    form->setSpacing(std::max(3, fontMetrics().averageCharWidth() / 2));
    Rows().setContentsMargins(space, space, space, space);
    Rows().insertLayout(0, form);
  }

  QString Name() const { return FName.text().trimmed(); }
  QString Prompt() const { return FPrompt.text(); }

 private:
  QLineEdit &FName, &FPrompt;
};

QWidget* TQPParamLabel::CreateEditor(QWidget* parent) {
  auto* name = new QLineEdit(Name);
  name->selectAll();
  auto* editor = new TEditor(*name, Prompt, parent);
  connect(name, &QLineEdit::textChanged, this, [this, editor] {
    editor->ShowFault(FaultOfName(editor->Name()));
    PlaceEditor();
  });
  return editor;
}

bool TQPParamLabel::TakeFromEditor(QWidget& editor) {
  Name = static_cast<TEditor&>(editor).Name();
  Prompt = static_cast<TEditor&>(editor).Prompt();
  return true;
}

bool TQPParamLabel::AcceptsByKey(const QKeyEvent& key) const {
  return TDropDownLabel::AcceptsByKey(key) && FaultOfName(static_cast<TEditor*>(Editor())->Name()).isEmpty();
}

TDropDownLabel* MakeValueLabel(TQPValueKind kind, QWidget* parent) {
  switch (kind) {
    case qvText:
    case qvTextList:
      return new TDropDownEdit(parent);
    case qvMemo:
      return new TDropDownMemo(parent);
    case qvDate:
    case qvTime:
    case qvDateTime:
      return new TDropDownDate(DateKindOf(kind), parent);
    case qvBoolean:
    case qvItem:
    case qvFetchedItem:
      return new TDropDownListBox(parent);
    case qvItems:
    case qvFetchedItems:
      return new TDropDownCheckList(parent);
    case qvHost:
    case qvQuery:
      return new TQPActionLabel(parent);
    case qvParam:
      break;
  }
  return new TQPParamLabel(parent);
}

void ShowValue(TDropDownLabel& label, TQPValueKind kind, const TFilterCond& condition, int index,
               const TPhrasePart& part) {
  const QString text = ToQString(part.Text);
  label.SetPlaceholder(part.IsPlaceholder ? text : QStringLiteral("..."));
  if (IsDate(kind)) static_cast<TDropDownDate&>(label).SetDisplayFormat(PatternOf(kind, SettingsOf(condition)));
  label.SetValue(LabelValue(kind, condition, index));
  if (kind != qvText || !condition.GetCaption(index).empty()) {
    label.SetCaption(part.IsPlaceholder ? QString() : text);
  } else {
    label.SetCaption(label.GetValue());
  }
  label.SetFault(FaultOfValue(condition, index));
  label.setToolTip(PlainToolTip(ToQString(condition.GetHint(index))));
}

void PrepareLabel(TDropDownLabel& label, TQPValueKind kind, const TFilterCond& condition, int index) {
  const TDSValueEditor* editor = condition.GetValueEditor(index);
  const auto* textEditor = dynamic_cast<const TDSTextEditor*>(editor);
  if (kind == qvText || kind == qvTextList) {
    auto& edit = static_cast<TDropDownEdit&>(label);
    // A mask is that of one value.
    const bool hasMask = textEditor != nullptr && kind == qvText;
    edit.SetInputMask(hasMask ? ToQString(textEditor->GetEditMask()) : QString());
    edit.SetKeepsMask(!hasMask || textEditor->GetUseFormattedValue());
    edit.SetTextCase(CaseOf(textEditor));
  } else if (kind == qvParam) {
    const TSQLParam* param = condition.GetParam(index);
    auto& paramLabel = static_cast<TQPParamLabel&>(label);
    paramLabel.Name = ToQString(param->GetParamName());
    paramLabel.Prompt = ToQString(param->GetOwnDisplayName());
    return;
  } else if (IsList(kind)) {
    auto& list = static_cast<TDropDownList&>(label);
    const bool isFetched = kind == qvFetchedItem || kind == qvFetchedItems;
    const auto* sqlEditor = isFetched ? static_cast<const TDSSQLEditor*>(editor) : nullptr;
    list.SetListFault({});
    list.SetBusy(isFetched && !sqlEditor->GetOpened());
    list.SetItems(kind == qvBoolean ? TruthItems(condition.GetQueryPanel())
                                    : ItemsOf(static_cast<const TDSListEditor&>(*editor)));
    list.SetValue(list.GetValue());
  }
  if (textEditor == nullptr || textEditor->GetDefaultValue().empty() || !label.GetValue().isEmpty()) return;
  const std::string& value = textEditor->GetDefaultValue();
  label.SetValue(kind == qvTextList ? QuotedItem(value) : LabelText(kind, value, SettingsOf(condition)));
}

void ShowFetched(TDropDownLabel& label, const TFilterCond& condition, int index, const QString& fault) {
  auto* editor = dynamic_cast<TDSSQLEditor*>(condition.GetValueEditor(index));
  auto* list = dynamic_cast<TDropDownList*>(&label);
  if (editor == nullptr || list == nullptr) return;
  if (fault.isEmpty()) {
    list->SetItems(ItemsOf(*editor));
    list->SetValue(list->GetValue());
  }
  list->SetListFault(fault);
  list->SetBusy(false);
}

void TakeValue(const TDropDownLabel& label, TQPValueKind kind, TFilterCond& condition, int index) {
  const QString& value = label.GetValue();
  if (kind == qvParam) {
    const auto& paramLabel = static_cast<const TQPParamLabel&>(label);
    TSQLParam& param = *condition.GetParam(index);
    param.SetParamName(FromQString(paramLabel.Name));
    param.SetDisplayName(FromQString(paramLabel.Prompt));
    return;
  }
  std::string text = FromQString(value), caption;
  if (kind == qvTextList) {
    text = CommaTextOf(value);
  } else if (kind == qvMemo) {
    const TTextCase textCase = CaseOf(dynamic_cast<const TDSTextEditor*>(condition.GetValueEditor(index)));
    if (textCase != TTextCase::tcNone) {
      text = FromQString(textCase == TTextCase::tcUpper ? value.toUpper() : value.toLower());
    }
  } else if (IsDate(kind)) {
    const auto date = ReadDate(value, DateKindOf(kind), IsoFormat(DateKindOf(kind)));
    if (date && !value.isEmpty()) text = FloatToStr(*date, SettingsOf(condition));
  } else if (IsList(kind) && kind != qvBoolean && label.GetCaption() != value) {
    caption = FromQString(label.GetCaption());
  }
  condition.SetValue(index, text);
  condition.SetCaption(index, caption);
}

}  // namespace tolvi
