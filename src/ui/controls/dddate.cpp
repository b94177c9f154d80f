#include <QCalendarWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>

#include <tolvi/ui/controls/checkededitor.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/datetext.h>
#include <tolvi/ui/controls/dddate.h>
#include <tolvi/ui/controls/rndbtn.h>

namespace tolvi {

namespace {

const TDateTime sampleDate = *TryEncodeDateTime({.year = 2026, .month = 12, .day = 31, .hour = 18, .minute = 30});

QDate ToQDate(TDateTime value) {
  const TDateTimeParts parts = DecodeDateTime(value);
  return {parts.year, parts.month, parts.day};
}

QString DateFault(const QString& text, TDateKind kind, const QString& format) {
  if (text.trimmed().isEmpty() || ReadDate(text, kind, format)) return {};
  const QString sample = WriteDate(sampleDate, format);
  return kind == TDateKind::dkTime ? TDropDownDate::tr("This is no time. Write it like %1.").arg(sample)
                                   : TDropDownDate::tr("This is no date. Write it like %1.").arg(sample);
}

/// A line to type in, a button for now, and a calendar unless it is about times.
class TDateEditor final : public TCheckedEditor {
 public:
  TDateEditor(QLineEdit& line, TDateKind kind, const QString& format, QWidget* parent);

  /// A day was clicked, or chosen with Enter.
  std::function<void()> OnChosen;
  std::function<void()> OnSizeHint;

  QString Text() const { return FLine.text(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void AddCalendar();
  void ColorWeekend();
  void TextTyped();
  void TakeDay(const QDate& day);
  void TakeNow();

  QLineEdit& FLine;
  QCalendarWidget* FCalendar = nullptr;
  const TDateKind FKind;
  const QString FFormat;
};

TDateEditor::TDateEditor(QLineEdit& line, TDateKind kind, const QString& format, QWidget* parent)
    : TCheckedEditor(line, parent), FLine(line), FKind(kind), FFormat(format) {
  const int space = std::max(3, fontMetrics().averageCharWidth() / 2);
  Rows().setContentsMargins(space, space, space, space);
  Rows().setSpacing(space);
  FLine.setPlaceholderText(WriteDate(sampleDate, format));
  FLine.installEventFilter(this);

  auto* now = new TJRndBtn(kind == TDateKind::dkDate ? TDropDownDate::tr("&Today") : TDropDownDate::tr("&Now"), this);
  now->OnClick = [this](TJRndBtn&) { TakeNow(); };
  auto* top = new QHBoxLayout;
  top->addWidget(&FLine, 1);
  top->addWidget(now);
  Rows().insertLayout(0, top);
  if (kind != TDateKind::dkTime) AddCalendar();
  TextTyped();
  connect(&FLine, &QLineEdit::textChanged, this, &TDateEditor::TextTyped);
}

void TDateEditor::AddCalendar() {
  FCalendar = new QCalendarWidget(this);
  FCalendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  FCalendar->setAccessibleName(TDropDownDate::tr("Calendar"));
  Rows().addWidget(FCalendar);
  ColorWeekend();
  connect(FCalendar, &QCalendarWidget::selectionChanged, this, [this] { TakeDay(FCalendar->selectedDate()); });
  const auto chosen = [this](const QDate& day) {
    TakeDay(day);
    if (OnChosen) OnChosen();
  };
  connect(FCalendar, &QCalendarWidget::activated, this, chosen);
  // For a time to be added, a click must not close.
  if (FKind == TDateKind::dkDate) connect(FCalendar, &QCalendarWidget::clicked, this, chosen);
}

void TDateEditor::ColorWeekend() {
  QTextCharFormat weekend;
  weekend.setForeground(ReadableColor(FaultColor(), palette().color(QPalette::Base)));
  for (const Qt::DayOfWeek day : locale().weekdays().contains(Qt::Saturday)
                                     ? QList<Qt::DayOfWeek>{}
                                     : QList<Qt::DayOfWeek>{Qt::Saturday, Qt::Sunday})
    FCalendar->setWeekdayTextFormat(day, weekend);
}

void TDateEditor::changeEvent(QEvent* event) {
  TCheckedEditor::changeEvent(event);
  if (FCalendar && event->type() == QEvent::PaletteChange) ColorWeekend();
}

void TDateEditor::TextTyped() {
  ShowFault(DateFault(FLine.text(), FKind, FFormat));
  if (const auto value = ReadDate(FLine.text(), FKind, FFormat); value && FCalendar) {
    const QSignalBlocker quiet(FCalendar);
    FCalendar->setSelectedDate(ToQDate(*value));
  }
  if (OnSizeHint) OnSizeHint();
}

void TDateEditor::TakeDay(const QDate& day) {
  const double time = std::abs(std::fmod(ReadDate(FLine.text(), FKind, FFormat).value_or(0), 1));
  const auto date = TryEncodeDateTime({.year = day.year(), .month = day.month(), .day = day.day()});
  if (date) FLine.setText(WriteDate(*date + (*date < 0 ? -time : time), FFormat));
}

void TDateEditor::TakeNow() {
  FLine.setText(WriteDate(Now(), FFormat));
  FLine.setFocus();
}

bool TDateEditor::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &FLine && FCalendar && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Up) {
      FCalendar->setFocus(Qt::TabFocusReason);
      return true;
    }
  }
  return TCheckedEditor::eventFilter(watched, event);
}

}  // namespace

TDropDownDate::TDropDownDate(TDateKind kind, QWidget* parent) : TDropDownLabel(parent), FKind(kind) {}

void TDropDownDate::SetKind(TDateKind kind) {
  FKind = kind;
  SetValue(GetValue());
}

void TDropDownDate::SetDisplayFormat(const QString& format) {
  FDisplayFormat = format;
  SetValue(GetValue());
}

QString TDropDownDate::ShownFormat() const {
  return FDisplayFormat.isEmpty() ? LocaleFormat(FKind, locale()) : FDisplayFormat;
}

void TDropDownDate::SetValue(const QString& value) {
  TDropDownLabel::SetValue(value);
  const auto date = ReadDate(value, FKind, IsoFormat(FKind));
  SetCaption(date ? WriteDate(*date, ShownFormat()) : value);
  SetFault(date ? QString() : DateFault(value, FKind, ShownFormat()));
}

void TDropDownDate::changeEvent(QEvent* event) {
  TDropDownLabel::changeEvent(event);
  if (event->type() == QEvent::LocaleChange && !GetValue().isEmpty()) SetValue(GetValue());
}

QWidget* TDropDownDate::CreateEditor(QWidget* parent) {
  auto* line = new QLineEdit(GetCaption());
  line->selectAll();
  auto* editor = new TDateEditor(*line, FKind, ShownFormat(), parent);
  editor->OnSizeHint = [this] { PlaceEditor(); };
  editor->OnChosen = [this] { DropUp(true); };
  return editor;
}

bool TDropDownDate::TakeFromEditor(QWidget& editor) {
  const QString text = static_cast<TDateEditor&>(editor).Text().trimmed();
  const auto date = ReadDate(text, FKind, ShownFormat());
  SetValue(date ? WriteDate(*date, IsoFormat(FKind)) : text);
  return true;
}

}  // namespace tolvi
