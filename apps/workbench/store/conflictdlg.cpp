#include "apps/workbench/store/conflictdlg.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTextBlock>
#include <algorithm>
#include <exception>
#include <vector>

#include <tolvi/query/explain.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// Which lines of `lines` are not among those of `other`, in their order.
std::vector<bool> NewLines(const QStringList& lines, const QStringList& other) {
  constexpr qsizetype MostPairs = 4'000'000;
  if (lines.size() * other.size() > MostPairs) return std::vector<bool>(static_cast<size_t>(lines.size()));
  const auto rows = static_cast<size_t>(lines.size()), columns = static_cast<size_t>(other.size());
  const auto isSame = [&](size_t row, size_t column) {
    return lines[static_cast<qsizetype>(row)] == other[static_cast<qsizetype>(column)];
  };
  // The longest common parts of what is left of both.
  std::vector<std::vector<int>> common(rows + 1, std::vector<int>(columns + 1));
  for (size_t row = rows; row-- > 0;) {
    for (size_t column = columns; column-- > 0;) {
      common[row][column] = isSame(row, column) ? common[row + 1][column + 1] + 1
                                                : std::max(common[row + 1][column], common[row][column + 1]);
    }
  }
  std::vector<bool> isNew(rows, true);
  for (size_t row = 0, column = 0; row < rows && column < columns;) {
    if (isSame(row, column)) {
      isNew[row++] = false;
      ++column;
    } else {
      common[row + 1][column] >= common[row][column + 1] ? ++row : ++column;
    }
  }
  return isNew;
}

class TConflictDialog final : public QDialog {
 public:
  TConflictDialog(QWidget* parent, const EQueryConflictError& error, TJCustomDBStructure* model);

  TConflictChoice Choice() const { return FChoice; }

 private:
  QPlainTextEdit* AddSide(QGridLayout& layout, int column, const QString& caption, const QString& text);
  void Mark(QPlainTextEdit& side, const QString& other) const;
  void AddButton(QDialogButtonBox& box, const QString& name, const QString& text, const QString& hint,
                 TConflictChoice choice);

  TConflictChoice FChoice = ccCancel;
};

TConflictDialog::TConflictDialog(QWidget* parent, const EQueryConflictError& error, TJCustomDBStructure* model)
    : QDialog(parent) {
  constexpr int Columns = 100, Lines = 26;
  setWindowTitle(QObject::tr("Changed by somebody else"));
  setObjectName(QStringLiteral("store.conflict"));
  auto* told = new QLabel(ToQString(error.Message()), this);
  told->setTextFormat(Qt::PlainText);
  told->setWordWrap(true);
  const bool isStored = error.GetStored().has_value();
  const QString mine = SentencesOf(error.GetOwnText(), model);
  const QString theirs = isStored ? SentencesOf(error.GetStored()->Text, model) : QString();

  auto* layout = new QGridLayout(this);
  layout->addWidget(told, 0, 0, 1, 2);
  QPlainTextEdit* own = AddSide(*layout, 0, QObject::tr("&Mine"), mine);
  own->setObjectName(QStringLiteral("store.conflict.mine"));
  QPlainTextEdit* stored = AddSide(*layout, 1, QObject::tr("&Theirs"), theirs);
  stored->setObjectName(QStringLiteral("store.conflict.theirs"));
  if (!isStored) stored->setPlaceholderText(QObject::tr("The query is no longer in the store."));
  Mark(*own, theirs);
  Mark(*stored, mine);
  layout->setRowStretch(2, 1);

  auto* buttons = new QDialogButtonBox(this);
  AddButton(*buttons, QStringLiteral("store.conflict.saveMine"), QObject::tr("&Save mine"),
            isStored ? QObject::tr("What is stored now is replaced by your query")
                     : QObject::tr("Your query is stored again"),
            ccSaveMine);
  AddButton(*buttons, QStringLiteral("store.conflict.takeTheirs"),
            isStored ? QObject::tr("Take t&heirs") : QObject::tr("&Delete mine, too"),
            isStored ? QObject::tr("Your changes are lost") : QObject::tr("Your query is lost"), ccTakeTheirs);
  if (isStored) {
    AddButton(*buttons, QStringLiteral("store.conflict.keepBoth"), QObject::tr("&Keep both"),
              QObject::tr("Yours is stored as another query"), ccKeepBoth);
  }
  QPushButton* cancel = buttons->addButton(QDialogButtonBox::Cancel);
  cancel->setObjectName(QStringLiteral("store.conflict.cancel"));
  cancel->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons, 3, 0, 1, 2);
  resize(Columns * fontMetrics().averageCharWidth(), Lines * fontMetrics().lineSpacing());
}

QPlainTextEdit* TConflictDialog::AddSide(QGridLayout& layout, int column, const QString& caption, const QString& text) {
  auto* side = new QPlainTextEdit(text, this);
  side->setReadOnly(true);
  side->setTabChangesFocus(true);
  side->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  side->setAccessibleName(QString(caption).remove(u'&'));
  auto* label = new QLabel(caption, this);
  label->setBuddy(side);
  layout.addWidget(label, 1, column);
  layout.addWidget(side, 2, column);
  layout.setColumnStretch(column, 1);
  return side;
}

void TConflictDialog::Mark(QPlainTextEdit& side, const QString& other) const {
  constexpr double Part = 0.3;
  const QColor base = palette().color(QPalette::Base);
  const QColor face = MixedColor(palette().color(QPalette::Highlight), base, Part);
  const std::vector<bool> isNew = NewLines(side.toPlainText().split(u'\n'), other.split(u'\n'));
  QList<QTextEdit::ExtraSelection> marks;
  for (QTextBlock block = side.document()->begin(); block.isValid(); block = block.next()) {
    if (!isNew[static_cast<size_t>(block.blockNumber())]) continue;
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(block);
    mark.format.setBackground(face);
    mark.format.setForeground(ReadableColor(palette().color(QPalette::Text), face));
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    marks << mark;
  }
  side.setExtraSelections(marks);
}

void TConflictDialog::AddButton(QDialogButtonBox& box, const QString& name, const QString& text, const QString& hint,
                                TConflictChoice choice) {
  QPushButton* button = box.addButton(text, QDialogButtonBox::ActionRole);
  button->setObjectName(name);
  button->setToolTip(hint);
  button->setAccessibleDescription(hint);
  button->setAutoDefault(true);
  connect(button, &QPushButton::clicked, this, [this, choice] {
    FChoice = choice;
    accept();
  });
}

std::string OwnName(const std::string& name, int number) {
  return FromQString(number == 1 ? QObject::tr("%1 (mine)").arg(ToQString(name))
                                 : QObject::tr("%1 (mine %2)").arg(ToQString(name), QString::number(number)));
}

}  // namespace

QString SentencesOf(const std::string& text, TJCustomDBStructure* model) {
  QString plain = ToQString(text).remove(u'\r').trimmed();
  if (model == nullptr || plain.isEmpty()) return plain;
  try {
    TJQueryPanel panel;
    panel.SetDBStruct(model);
    panel.LoadFromText(text);
    QStringList lines = ToQStringList(panel.GetDescription());
    if (!lines.isEmpty()) lines << QString();
    return (lines + ToQStringList(Explain(panel))).join(u'\n');
  } catch (const std::exception&) {
    return plain;
  }
}

TConflictChoice AskConflict(QWidget* parent, const EQueryConflictError& error, TJCustomDBStructure* model) {
  const QPointer<TConflictDialog> dialog = new TConflictDialog(parent, error, model);
  dialog->exec();
  // It may have gone with its parent.
  if (!dialog) return ccCancel;
  const TConflictChoice choice = dialog->Choice();
  delete dialog;
  return choice;
}

void SettleConflict(TJStoredQueryBase& base, int index, const EQueryConflictError& error, TConflictChoice choice) {
  if (choice == ccCancel) return;
  TStrings lines;
  lines.SetText(error.GetOwnText());
  TJStoredQuery& query = base.GetStoredQuery(index);
  if (choice == ccSaveMine) {
    query.Accept(error);
    query.SaveContent(lines);
    return;
  }
  if (!error.GetStored()) return base.DeleteQuery(index);
  const std::string id = query.Entry().Id;
  const auto ownName = [name = query.GetQueryName()](int number) { return OwnName(name, number); };
  const int own = choice == ccKeepBoth ? base.AddQuery(FreeQueryName(base, ownName), lines) : -1;
  const std::string ownId = own >= 0 ? base.GetStoredQuery(own).Entry().Id : std::string();
  base.Refresh();
  const auto indexOf = [&base](const std::string& wanted) {
    for (int i = 0; i < base.Count(); ++i) {
      if (base.GetStoredQuery(i).Entry().Id == wanted) return i;
    }
    return -1;
  };
  const int theirs = indexOf(id);
  const bool isShown = theirs >= 0 && theirs == base.GetItemIndex();
  if (theirs >= 0) base.GetStoredQuery(theirs).Accept(error);
  if (const int mine = own >= 0 ? indexOf(ownId) : -1; mine >= 0) {
    if (isShown) base.SetItemIndex(mine);
  } else if (isShown) {
    base.IndexChanged();
  }
}

}  // namespace tolvi
