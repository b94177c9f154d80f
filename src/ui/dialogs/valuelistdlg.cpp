#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>
#include <utility>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/valuelistdlg.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr int shownLines = 12, shownChars = 40;

}  // namespace

T_dlgValueList::T_dlgValueList(const TStrings& values, const QString& caption, const TTitles& titles, TValueCheck check,
                               QWidget* parent)
    : QDialog(parent), FCheck(std::move(check)), FLines(new QPlainTextEdit(this)), FTold(new QLabel(this)) {
  setWindowTitle(caption);
  auto* rows = new QVBoxLayout(this);
  auto* label = new QLabel(tr("&Values, one in a line:"), this);
  label->setBuddy(FLines);
  rows->addWidget(label);
  FLines->setPlainText(ToQString(values.Joined("\n")));
  FLines->setLineWrapMode(QPlainTextEdit::NoWrap);
  FLines->setTabChangesFocus(true);
  FLines->setMinimumSize(shownChars * fontMetrics().averageCharWidth(), shownLines * fontMetrics().lineSpacing());
  rows->addWidget(FLines, 1);
  FTold->setTextFormat(Qt::PlainText);
  FTold->setWordWrap(true);
  rows->addWidget(FTold);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText(ToQString(titles.GetTitle("ttlOkBtnCaption")));
  buttons->button(QDialogButtonBox::Cancel)->setText(ToQString(titles.GetTitle("ttlCancelBtnCaption")));
  rows->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(FLines, &QPlainTextEdit::textChanged, this, &T_dlgValueList::Check);
  FLines->setFocus();
  Check();
}

TStrings T_dlgValueList::GetValues() const {
  TStrings values;
  for (QTextBlock line = FLines->document()->begin(); line.isValid(); line = line.next()) {
    const QString value = line.text().trimmed();
    if (!value.isEmpty()) values.Add(FromQString(value));
  }
  return values;
}

// Underlines what is wrong, and says why the first of it is.
void T_dlgValueList::Check() {
  const QColor color = ReadableColor(FaultColor(), palette().color(QPalette::Base));
  QList<QTextEdit::ExtraSelection> marks;
  QString told;
  int count = 0;
  for (QTextBlock line = FLines->document()->begin(); line.isValid(); line = line.next()) {
    const QString value = line.text().trimmed();
    if (value.isEmpty()) continue;
    ++count;
    const QString fault = FCheck ? FCheck(value) : QString();
    if (fault.isEmpty()) continue;
    if (told.isEmpty()) told = tr("Line %1: %2").arg(line.blockNumber() + 1).arg(fault);
    QTextEdit::ExtraSelection& mark = marks.emplace_back();
    mark.cursor = QTextCursor(line);
    mark.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    mark.format.setUnderlineColor(color);
    mark.format.setForeground(color);
  }
  FLines->setExtraSelections(marks);
  QPalette colors = palette();
  if (!told.isEmpty()) {
    colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), palette().color(QPalette::Window)));
  }
  FTold->setPalette(colors);
  FTold->setText(told.isEmpty() ? tr("Values: %1").arg(count) : told);
  FLines->setAccessibleDescription(FTold->text());
}

void T_dlgValueList::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && event->modifiers().testFlag(Qt::ControlModifier)) return accept();
  QDialog::keyPressEvent(event);
}

bool EditValueList(QWidget* parent, TStrings& values, const QString& caption, const TTitles& titles,
                   const TValueCheck& check) {
  const QPointer<T_dlgValueList> dialog = new T_dlgValueList(values, caption, titles, check, parent);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  // The parent may have gone with the dialog.
  if (!dialog) return false;
  if (accepted) values = dialog->GetValues();
  delete dialog;
  return accepted;
}

}  // namespace tolvi
