#include <QButtonGroup>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QShortcut>

#include <tolvi/foundation/consts.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/flatcheckbox.h>
#include <tolvi/ui/dialogs/joinicon.h>
#include <tolvi/ui/dialogs/linkdlg.h>
#include <tolvi/ui/dialogs/linkpairs.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr int toldLines = 3, conditionLines = 3;

/// A text in which "&" marks no letter.
QString Plain(QString text) { return text.replace(u'&', QLatin1String("&&")); }

QString NameOf(const TDSTable& table) {
  const QString name = ToQString(table.GetDisplayName()), alias = ToQString(table.GetTableAlias());
  return name.isEmpty() || name == alias ? alias : name + QStringLiteral(" (") + alias + u')';
}

}  // namespace

T_dlgLinkEdit::T_dlgLinkEdit(TJCustomDBStructure& model, TDSLink& link, QWidget* parent)
    : QDialog(parent),
      FLink(link),
      FEditor(model, link),
      FPairs(new TLinkPairs(FEditor, this)),
      FJoins(new QButtonGroup(this)),
      FTold(new QLabel(this)),
      FCondition(new QPlainTextEdit(this)) {
  setWindowTitle(ToQString(SEditLink));
  auto* layout = new QVBoxLayout(this);
  auto* tables = new QGridLayout;
  BuildTables(*tables);
  layout->addLayout(tables);
  layout->addWidget(FPairs, 1);
  FTold->setTextFormat(Qt::PlainText);
  FTold->setWordWrap(true);
  FTold->setAlignment(Qt::AlignLeading | Qt::AlignTop);
  FTold->setMinimumHeight(toldLines * fontMetrics().lineSpacing());
  layout->addWidget(FTold);
  layout->addWidget(MakeJoinBox());
  auto* quote = new TJFlatCheckBox(tr("&Quote the names of columns"), this);
  quote->setChecked(FEditor.GetQuoteFields());
  connect(quote, &QCheckBox::toggled, this, [this](bool on) {
    FEditor.SetQuoteFields(on);
    Refresh();
  });
  layout->addWidget(quote);
  auto* label = new QLabel(tr("&Condition:"), this);
  label->setBuddy(FCondition);
  layout->addWidget(label);
  FCondition->setReadOnly(true);
  FCondition->setTabChangesFocus(true);
  FCondition->setFixedHeight((conditionLines + 1) * fontMetrics().lineSpacing());
  layout->addWidget(FCondition);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &T_dlgLinkEdit::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);

  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    connect(new QShortcut(Qt::CTRL | enter, this), &QShortcut::activated, this, &T_dlgLinkEdit::accept);
  }
  FPairs->Model().OnChange = [this] { Refresh(); };
  if (FEditor.Pairs().empty()) FPairs->Model().Add();
  ShowTables();
  ShowJoin();
  Refresh();
  FPairs->setFocus();
  const QSize wanted(90 * fontMetrics().averageCharWidth(), 0);
  resize(wanted.expandedTo(sizeHint()).boundedTo(screen()->availableSize() * 0.95));
}

// What edits goes before the editor, and tells of changes while it goes.
T_dlgLinkEdit::~T_dlgLinkEdit() {
  FPairs->Model().OnChange = {};
  delete FPairs;
  for (QWidget* table : FTables) {
    if (auto* box = qobject_cast<QComboBox*>(table)) box->lineEdit()->disconnect(this);
  }
}

// Tables

void T_dlgLinkEdit::BuildTables(QGridLayout& grid) {
  const QString texts[] = {tr("&First table:"), tr("&Second table:")};
  for (const std::size_t side : {0U, 1U}) {
    auto* label = new QLabel(texts[side], this);
    FTables[side] = FEditor.CanChooseTables() ? MakeTableBox(side) : new QLabel(this);
    label->setBuddy(FTables[side]);
    const int column = side == 0 ? 0 : 2;
    grid.addWidget(label, 0, column);
    grid.addWidget(FTables[side], 1, column);
    grid.setColumnStretch(column, 1);
  }
  auto* swap = new QPushButton(tr("S&wap"), this);
  swap->setToolTip(tr("The tables and their columns change places; the rows found stay the same"));
  swap->setAutoDefault(false);
  connect(swap, &QPushButton::clicked, this, [this] {
    FPairs->CommitEdit();
    FEditor.Swap();
    ShowTables();
    ShowJoin();
    FPairs->Model().Recheck();
  });
  grid.addWidget(swap, 1, 1);
}

QWidget* T_dlgLinkEdit::MakeTableBox(std::size_t side) {
  auto* box = new QComboBox(this);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setMinimumContentsLength(16);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  for (const TDSTable& table : FEditor.Model().Tables()) box->addItem(NameOf(table));
  box->completer()->setCompletionMode(QCompleter::PopupCompletion);
  box->completer()->setFilterMode(Qt::MatchContains);
  connect(box, &QComboBox::activated, this, [this, side, box] { ChooseTable(side, *box, false); });
  connect(box->lineEdit(), &QLineEdit::editingFinished, this, [this, side, box] { ChooseTable(side, *box, true); });
  return box;
}

// What is typed and names no table becomes the former one again.
void T_dlgLinkEdit::ChooseTable(std::size_t side, QComboBox& box, bool typed) {
  const int item = typed ? box.findText(box.currentText().trimmed(), Qt::MatchFixedString) : box.currentIndex();
  if (item >= 0) FEditor.SetTable(side, FEditor.Model().GetTable(static_cast<std::size_t>(item)));
  ShowTables();
  ShowJoin();
  FPairs->Model().Recheck();
}

void T_dlgLinkEdit::ShowTables() {
  for (const std::size_t side : {0U, 1U}) {
    const QString name = NameOf(FEditor.Table(side));
    if (auto* label = qobject_cast<QLabel*>(FTables[side])) {
      label->setText(Plain(name));
      continue;
    }
    auto& box = static_cast<QComboBox&>(*FTables[side]);
    int item = 0;
    while (&FEditor.Model().GetTable(static_cast<std::size_t>(item)) != &FEditor.Table(side)) ++item;
    box.setCurrentIndex(item);
    box.setEditText(name);
  }
}

// Joins

QWidget* T_dlgLinkEdit::MakeJoinBox() {
  auto* group = new QGroupBox(tr("Rows of the result"), this);
  auto* grid = new QGridLayout(group);
  const int side = 2 * fontMetrics().height();
  for (const TDSLinkType type : {ltInner, ltOuterLeft, ltOuterRight, ltOuterFull}) {
    auto* button = new QRadioButton(group);
    button->setIcon(JoinIcon(type, *this));
    button->setIconSize(QSize(side, side));
    FJoins->addButton(button, type);
    // The two that keep the rows of one table stand side by side, as the tables do.
    const bool isOneSided = type == ltOuterLeft || type == ltOuterRight;
    grid->addWidget(button, isOneSided ? 1 : 0, type == ltInner || type == ltOuterLeft ? 0 : 1);
  }
  connect(FJoins, &QButtonGroup::idClicked, this, [this](int type) {
    FEditor.SetLinkType(static_cast<TDSLinkType>(type));
    Refresh();
  });
  return group;
}

void T_dlgLinkEdit::ShowJoin() {
  const QString name1 = ToQString(FEditor.TableName(0)), name2 = ToQString(FEditor.TableName(1));
  const QString texts[] = {tr("Only rows that match"), tr("All rows of %1").arg(name1), tr("All rows of %1").arg(name2),
                           tr("All rows of both tables")};
  for (QAbstractButton* button : FJoins->buttons()) button->setText(Plain(texts[FJoins->id(button)]));
  FJoins->button(FEditor.GetLinkType())->setChecked(true);
}

// Checks

void T_dlgLinkEdit::Refresh() {
  const TLinkFindings& findings = FPairs->Model().Findings();
  QStringList lines;
  for (const TLinkFinding& finding : findings) {
    const QString text = ToQString(finding.Text);
    lines << (finding.Spots.empty() ? text : tr("Pair %1: %2").arg(finding.Spots.front().Pair + 1).arg(text));
  }
  if (lines.size() > toldLines) {
    const auto left = lines.size() - toldLines + 1;
    lines.resize(toldLines - 1);
    lines << tr("and %n more", nullptr, static_cast<int>(left));
  }
  const bool isWrong = !findings.empty() && findings.front().Severity == csError;
  QPalette colors = palette();
  if (isWrong) colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
  FTold->setPalette(colors);
  FTold->setText(lines.join(u'\n'));
  FPairs->focusProxy()->setAccessibleDescription(FTold->text());
  const QString condition = ToQString(FEditor.Condition());
  if (FCondition->toPlainText() != condition) FCondition->setPlainText(condition);
  FPairs->RefreshActions();
}

void T_dlgLinkEdit::accept() {
  FPairs->CommitEdit();
  const TLinkFindings& findings = FPairs->Model().Findings();
  if (findings.empty() || findings.front().Severity != csError) {
    FEditor.Apply(FLink);
    return QDialog::accept();
  }
  if (findings.front().Spots.empty()) return FPairs->AddPair();
  const TLinkSpot spot = findings.front().Spots.front();
  constexpr int columns[] = {TLinkPairsModel::ColSide1, TLinkPairsModel::ColSymbol, TLinkPairsModel::ColSide2};
  FPairs->EditCell(static_cast<int>(spot.Pair), columns[spot.Part]);
}

void T_dlgLinkEdit::keyPressEvent(QKeyEvent* event) {
  // Enter ends or begins the edit of a cell; it chooses no button.
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && qobject_cast<QPushButton*>(focusWidget()) == nullptr) return;
  QDialog::keyPressEvent(event);
}

bool EditLink(QWidget* parent, TJCustomDBStructure& model, TDSLink& link) {
  // Whoever is closed meanwhile takes the dialog with it.
  const QPointer<T_dlgLinkEdit> dialog = new T_dlgLinkEdit(model, link, parent);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (!dialog) return false;
  delete dialog;
  return accepted;
}

}  // namespace tolvi
