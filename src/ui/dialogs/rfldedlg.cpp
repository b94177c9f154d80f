#include <QAction>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <tolvi/panel/rfldeditor.h>
#include <tolvi/ui/dialogs/rfldcolumns.h>
#include <tolvi/ui/dialogs/rfldedlg.h>
#include <tolvi/ui/dialogs/rfldsorting.h>
#include <tolvi/ui/dialogs/signicon.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

T_dlgRFieldEdit::T_dlgRFieldEdit(const TRFieldList& fields, const TTitles& titles, TRFHelpEvent onHelp, QWidget* parent)
    : QDialog(parent),
      FEditor(std::make_unique<TRFieldEditor>(fields, titles)),
      FHasModel(FEditor->GetModel() != nullptr),
      FPages(new QTabWidget(this)),
      FColumns(new TRFColumnsPage(*FEditor, FPages)),
      FSorting(new TRFSortingPage(*FEditor, FPages)) {
  setWindowTitle(ToQString(titles.GetTitle("ttlRFETitle")));
  FPages->addTab(FColumns, ToQString(titles.GetTitle("ttlResFields")));
  FPages->addTab(FSorting, ToQString(titles.GetTitle("ttlSortCaption")));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(FPages);
  BuildButtons(std::move(onHelp));
  BuildHistory();
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) AddShortcut(Qt::CTRL | enter, [this] { accept(); });
  // The lines for caption and expression; the one that finds fields has a history of its own.
  for (QLineEdit* line : FColumns->findChildren<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly)) {
    line->installEventFilter(this);
  }
  if (FHasModel) FRevision = FEditor->GetModel()->GetRevision();
  FEditor->OnChange = [this] { Refresh(); };
  const QSize wanted(120 * fontMetrics().averageCharWidth(), 32 * fontMetrics().height());
  resize(wanted.expandedTo(sizeHint()).boundedTo(screen()->availableSize() * 0.95));
}

// The pages go before the editor, and tell of changes while they go.
T_dlgRFieldEdit::~T_dlgRFieldEdit() {
  FEditor->OnChange = {};
  delete FPages;
}

// In the corner beside the pages, as a step may be of either.
void T_dlgRFieldEdit::BuildHistory() {
  auto* corner = new QWidget(FPages);
  auto* row = new QHBoxLayout(corner);
  row->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const QString& text, TSign sign, const QList<QKeySequence>& keys, auto operation) {
    auto* action = new QAction(SignIcon(sign, *this), text, this);
    action->setShortcuts(keys);
    action->setToolTip(text + QStringLiteral(" (") + keys.front().toString(QKeySequence::NativeText) + u')');
    connect(action, &QAction::triggered, this, operation);
    row->addWidget(MakeSignButton(*action, *corner));
    return action;
  };
  FUndo = add(tr("Undo"), sgUndo, {Qt::CTRL | Qt::Key_Z}, [this] { FEditor->Undo(); });
  FRedo =
      add(tr("Redo"), sgRedo, {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z}, [this] { FEditor->Redo(); });
  FPages->setCornerWidget(corner);
  RefreshHistory();
}

void T_dlgRFieldEdit::RefreshHistory() {
  FUndo->setEnabled(FEditor->CanUndo());
  FRedo->setEnabled(FEditor->CanRedo());
}

void T_dlgRFieldEdit::BuildButtons(TRFHelpEvent onHelp) {
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  const auto title = [this](std::string_view key) { return ToQString(FEditor->Titles().GetTitle(key)); };
  buttons->button(QDialogButtonBox::Ok)->setText(title("ttlOkBtnCaption"));
  buttons->button(QDialogButtonBox::Cancel)->setText(title("ttlCancelBtnCaption"));
  connect(buttons, &QDialogButtonBox::accepted, this, &T_dlgRFieldEdit::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  if (onHelp) {
    // The handler may destroy the dialog, and itself with it.
    const auto help = [this, onHelp = std::move(onHelp)] {
      const auto handler = onHelp;
      handler(*this);
    };
    QPushButton* button = buttons->addButton(QDialogButtonBox::Help);
    button->setText(title("ttlHelpBtnCaption"));
    connect(button, &QPushButton::clicked, this, help);
    AddShortcut(QKeySequence::HelpContents, help);
  }
  layout()->addWidget(buttons);
}

void T_dlgRFieldEdit::AddShortcut(const QKeySequence& key, const std::function<void()>& operation) {
  connect(new QShortcut(key, this), &QShortcut::activated, this, operation);
}

const TRFieldList& T_dlgRFieldEdit::GetFields() const { return FEditor->Fields(); }

void T_dlgRFieldEdit::Refresh() {
  FColumns->Refresh();
  FSorting->Refresh();
  RefreshHistory();
  FChanged = FChanged || FEditor->CanUndo();
  if (FHasModel && FEditor->GetModel() == nullptr) reject();
}

// By the user, or with the model.
bool T_dlgRFieldEdit::HasChanged() const {
  return FChanged || (FHasModel && FEditor->GetModel() != nullptr && FEditor->GetModel()->GetRevision() != FRevision);
}

void T_dlgRFieldEdit::accept() {
  const std::optional<std::size_t> wrong = FEditor->FirstFault();
  if (!wrong) return QDialog::accept();
  FPages->setCurrentWidget(FColumns);
  FEditor->SetCurrent(*wrong);
  FColumns->EditExpression();
}

void T_dlgRFieldEdit::keyPressEvent(QKeyEvent* event) {
  // Enter ends a text; it chooses no button.
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && qobject_cast<QPushButton*>(focusWidget()) == nullptr) return;
  if (event->matches(QKeySequence::Cancel) && FEditor->CanUndo()) return AskToReject();
  QDialog::keyPressEvent(event);
}

void T_dlgRFieldEdit::AskToReject() {
  auto* box = new QMessageBox(QMessageBox::Question, windowTitle(), tr("Discard the changes?"),
                              QMessageBox::Yes | QMessageBox::No, this);
  box->setDefaultButton(QMessageBox::No);
  box->setAttribute(Qt::WA_DeleteOnClose);
  connect(box, &QDialog::finished, this, [this](int answer) {
    if (answer == QMessageBox::Yes && isVisible()) reject();
  });
  box->open();
}

void T_dlgRFieldEdit::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) FColumns->StartSearch();
}

// What is typed is part of the dialog's history: the lines leave undoing to it.
bool T_dlgRFieldEdit::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& pressed = static_cast<QKeyEvent&>(*event);
    if (pressed.matches(QKeySequence::Undo) || pressed.matches(QKeySequence::Redo)) {
      event->ignore();
      return true;
    }
  }
  if (event->type() == QEvent::ContextMenu) {
    ShowTextMenu(static_cast<QLineEdit&>(*watched), static_cast<QContextMenuEvent&>(*event).globalPos());
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

// The line's own menu, but for its first actions, which undo and redo.
void T_dlgRFieldEdit::ShowTextMenu(QLineEdit& line, const QPoint& at) {
  QMenu* menu = line.createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  while (!menu->actions().isEmpty() && !menu->actions().front()->isSeparator()) delete menu->actions().front();
  menu->insertActions(menu->actions().value(0), {FUndo, FRedo});
  menu->popup(at);
}

bool EditResultFields(QWidget* parent, TRFieldList& fields, const TTitles& titles, TRFHelpEvent onHelp) {
  // Whoever is closed meanwhile takes the dialog with it, and perhaps the columns.
  const QPointer<T_dlgRFieldEdit> dialog = new T_dlgRFieldEdit(fields, titles, std::move(onHelp), parent);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (!dialog) return false;
  if (accepted && dialog->HasChanged()) fields.Assign(dialog->GetFields());
  delete dialog;
  return accepted;
}

}  // namespace tolvi
