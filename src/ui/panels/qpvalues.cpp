#include <QFormLayout>
#include <QLineEdit>
#include <QStringList>
#include <utility>
#include <vector>

#include <tolvi/foundation/errors.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/valuedates.h>
#include <tolvi/query/values.h>
#include <tolvi/ui/controls/datetext.h>
#include <tolvi/ui/controls/dddate.h>
#include <tolvi/ui/controls/ddedit.h>
#include <tolvi/ui/controls/ddlist.h>
#include <tolvi/ui/controls/drawing.h>
#include <tolvi/ui/panels/qpvalues.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

using enum TQPValueKind;

constexpr TFieldTypes LongTextTypes{ftMemo, ftFmtMemo};

TQPValueKind KindOfText(const TDSTextEditor* editor, TFieldType type) {
  if (editor != nullptr && editor->GetKind() == tekDate) return vkDate;
  if (editor != nullptr && editor->GetKind() == tekTime) return vkTime;
  if (editor != nullptr && !editor->GetEditMask().empty()) return vkText;
  switch (type) {
    case ftDate:
      return vkDate;
    case ftTime:
      return vkTime;
    case ftDateTime:
    case ftTimeStamp:
      return vkDateTime;
    case ftBoolean:
      return vkBoolean;
    default:
      return LongTextTypes.Contains(type) ? vkMemo : vkText;
  }
}

TDateKind DateKindOf(TQPValueKind kind) {
  if (kind == vkTime) return TDateKind::dkTime;
  return kind == vkDate ? TDateKind::dkDate : TDateKind::dkDateTime;
}
bool IsDate(TQPValueKind kind) { return kind == vkDate || kind == vkTime || kind == vkDateTime; }
bool IsList(TQPValueKind kind) {
  return kind == vkItem || kind == vkItems || kind == vkFetchedItem || kind == vkFetchedItems || kind == vkBoolean;
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
  if (kind == vkTime) return time;
  return kind == vkDate ? date : date + u' ' + time;
}

// Items divided by commas

QString QuotedItem(const std::string& item) {
  const QString text = ToQString(item);
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

/// The value as the label keeps it.
QString LabelValue(TQPValueKind kind, const TFilterCond& condition, int index) {
  const std::string& value = condition.GetValue(index);
  if (value.empty()) return {};
  if (kind == vkTextList) return TypedItems(value);
  if (kind == vkBoolean) {
    const auto truth = TryXStrToBool(value);
    return truth ? QString::number(*truth ? 1 : 0) : ToQString(value);
  }
  if (!IsDate(kind)) return ToQString(value);
  const auto date = TryReadDate(value, SettingsOf(condition));
  static constexpr TFieldType types[] = {ftDate, ftTime, ftDateTime};
  return date ? ToQString(PlainDate(*date, types[static_cast<int>(DateKindOf(kind))])) : ToQString(value);
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

}  // namespace

TQPValueKind ValueKindOf(const TFilterCond& condition, int index) {
  if (condition.GetValueIsParam(index)) return vkParam;
  if (condition.GetValueKind(index) == vkSubQuery) return vkQuery;
  const TDSValueEditor* editor = condition.GetValueEditor(index);
  const bool isList = condition.GetValueKind(index) == vkList;
  if (dynamic_cast<const TDSCustomEditor*>(editor) != nullptr) return vkHost;
  if (dynamic_cast<const TDSSQLEditor*>(editor) != nullptr) return isList ? vkFetchedItems : vkFetchedItem;
  if (dynamic_cast<const TDSListEditor*>(editor) != nullptr) return isList ? vkItems : vkItem;
  const TQPValueKind kind = KindOfText(dynamic_cast<const TDSTextEditor*>(editor), condition.GetValueType(index));
  return isList ? vkTextList : kind;
}

QString FaultOfText(const TFilterCond& condition, int index, const QString& text) {
  const TJQueryPanel& panel = condition.GetQueryPanel();
  const TJCustomDBStructure* model = panel.GetDBStruct();
  if (text.isEmpty() || model == nullptr || condition.GetValueIsParam(index)) return {};
  const std::string name = condition.GetValueName(index);
  const TValueContext context{model->SQLFormats(), panel.GetFormatSettings(), panel.GetSQLSyntax(), name};
  std::string literal;
  try {
    if (condition.GetValueKind(index) == vkList) {
      AppendLiteralList(literal, CommaTextOf(text), condition.GetValueType(index), context);
    } else {
      AppendLiteral(literal, FromQString(text), condition.GetValueType(index), context);
    }
  } catch (const EException& error) {
    return ToQString(error.Message());
  }
  return {};
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

QWidget* TQPParamLabel::CreateEditor(QWidget* parent) {
  auto* frame = new TEditorFrame(parent);
  auto* form = new QFormLayout(frame);
  const auto addLine = [&](const QString& caption, const QString& text, const QString& objectName) {
    auto* line = new QLineEdit(text, frame);
    line->setObjectName(objectName);
    line->setMinimumWidth(20 * fontMetrics().averageCharWidth());
    form->addRow(caption, line);
    return line;
  };
  QLineEdit* name = addLine(tr("&Name:"), Name, QStringLiteral("name"));
  addLine(tr("&Prompt:"), Prompt, QStringLiteral("prompt"));
  name->selectAll();
  frame->setFocusProxy(name);
  return frame;
}

bool TQPParamLabel::TakeFromEditor(QWidget& editor) {
  Name = editor.findChild<QLineEdit*>(QStringLiteral("name"))->text().trimmed();
  Prompt = editor.findChild<QLineEdit*>(QStringLiteral("prompt"))->text();
  return true;
}

TDropDownLabel* MakeValueLabel(TQPValueKind kind, QWidget* parent) {
  switch (kind) {
    case vkText:
    case vkTextList:
      return new TDropDownEdit(parent);
    case vkMemo:
      return new TDropDownMemo(parent);
    case vkDate:
    case vkTime:
    case vkDateTime:
      return new TDropDownDate(DateKindOf(kind), parent);
    case vkBoolean:
    case vkItem:
    case vkFetchedItem:
      return new TDropDownListBox(parent);
    case vkItems:
    case vkFetchedItems:
      return new TDropDownCheckList(parent);
    case vkHost:
    case vkQuery:
      return new TQPActionLabel(parent);
    case vkParam:
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
  if (kind != vkText || !condition.GetCaption(index).empty()) {
    label.SetCaption(part.IsPlaceholder ? QString() : text);
  } else {
    label.SetCaption(label.GetValue());
  }
  label.SetFault(FaultOfValue(condition, index));
  label.setToolTip(ToQString(condition.GetHint(index)));
}

void PrepareLabel(TDropDownLabel& label, TQPValueKind kind, const TFilterCond& condition, int index) {
  const TDSValueEditor* editor = condition.GetValueEditor(index);
  if (kind == vkText || kind == vkTextList) {
    auto& edit = static_cast<TDropDownEdit&>(label);
    const auto* textEditor = dynamic_cast<const TDSTextEditor*>(editor);
    if (textEditor == nullptr || kind == vkTextList) return;
    edit.SetInputMask(ToQString(textEditor->GetEditMask()));
    edit.SetKeepsMask(textEditor->GetUseFormattedValue());
    edit.SetTextCase(textEditor->GetAutoUpperCase()   ? TTextCase::tcUpper
                     : textEditor->GetAutoLowerCase() ? TTextCase::tcLower
                                                      : TTextCase::tcNone);
    if (label.GetValue().isEmpty()) label.SetValue(ToQString(textEditor->GetDefaultValue()));
  } else if (kind == vkParam) {
    const TSQLParam* param = condition.GetParam(index);
    auto& paramLabel = static_cast<TQPParamLabel&>(label);
    paramLabel.Name = ToQString(param->GetParamName());
    paramLabel.Prompt = ToQString(param->GetOwnDisplayName());
  } else if (IsList(kind)) {
    auto& list = static_cast<TDropDownList&>(label);
    const bool isFetched = kind == vkFetchedItem || kind == vkFetchedItems;
    const auto* sqlEditor = isFetched ? static_cast<const TDSSQLEditor*>(editor) : nullptr;
    list.SetListFault({});
    list.SetBusy(isFetched && !sqlEditor->GetOpened());
    list.SetItems(kind == vkBoolean ? TruthItems(condition.GetQueryPanel())
                                    : ItemsOf(static_cast<const TDSListEditor&>(*editor)));
    list.SetValue(list.GetValue());
  }
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
  if (kind == vkParam) {
    const auto& paramLabel = static_cast<const TQPParamLabel&>(label);
    TSQLParam& param = *condition.GetParam(index);
    param.SetDisplayName(FromQString(paramLabel.Prompt));
    param.SetParamName(FromQString(paramLabel.Name));
    return;
  }
  std::string text = FromQString(value), caption;
  if (kind == vkTextList) {
    text = CommaTextOf(value);
  } else if (IsDate(kind)) {
    const auto date = ReadDate(value, DateKindOf(kind), IsoFormat(DateKindOf(kind)));
    if (date && !value.isEmpty()) text = FloatToStr(*date, SettingsOf(condition));
  } else if (IsList(kind) && kind != vkBoolean && label.GetCaption() != value) {
    caption = FromQString(label.GetCaption());
  }
  condition.SetValue(index, text);
  condition.SetCaption(index, caption);
}

}  // namespace tolvi
