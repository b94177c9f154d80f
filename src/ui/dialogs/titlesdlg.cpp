#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <filesystem>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>
#include <tolvi/panel/titlefiles.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/titlesdlg.h>
#include <tolvi/ui/dialogs/titlesmodel.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// Changed texts in bold letters, notes in the colour of faults.
class TTitlesDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
    auto* editor = new QLineEdit(parent);
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    editor->setAccessibleName(Sibling(index, TTitlesModel::ColKey));
    editor->setAccessibleDescription(Sibling(index, TTitlesModel::ColDefault));
    return editor;
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    // Room for the editor's cursor and margins.
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, option.fontMetrics.height() / 3);
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QPalette palette = option->palette;
    // Each text in its own direction, so that signs at its ends stay there; all at the same edge.
    option->displayAlignment = QStyle::visualAlignment(option->direction, Qt::AlignLeft | Qt::AlignVCenter);
    option->direction = option->text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    if (!index.parent().isValid() && index.model()->hasChildren(index)) option->font.setBold(true);
    if (index.column() == TTitlesModel::ColText && index.data() != Sibling(index, TTitlesModel::ColDefault)) {
      option->font.setBold(true);
    }
    if (index.column() != TTitlesModel::ColNote) return;
    option->palette.setColor(QPalette::Text, ReadableColor(FaultColor(), palette.color(QPalette::Base)));
  }

 private:
  static QString Sibling(const QModelIndex& index, int column) {
    return index.siblingAtColumn(column).data().toString();
  }
};

}  // namespace

T_dlgTitlesEdit::T_dlgTitlesEdit(const TStrings& defaults, const TStrings& titles, QWidget* parent)
    : QDialog(parent), FModel(new TTitlesModel(defaults, this)), FFilter(new TTitlesFilter(*FModel, this)) {
  setWindowTitle(tr("Edit Texts"));
  FModel->SetTitles(titles);
  BuildTree();
  BuildControls();
  connect(FModel, &QAbstractItemModel::dataChanged, this, &T_dlgTitlesEdit::ShowState);
  Find({});
}

T_dlgTitlesEdit::~T_dlgTitlesEdit() {
  // While the children go, they tell of changes.
  FModel->disconnect(this);
  FTree->selectionModel()->disconnect(this);
}

// Controls

void T_dlgTitlesEdit::BuildTree() {
  FTree = new QTreeView(this);
  FTree->setModel(FFilter);
  FTree->setItemDelegate(new TTitlesDelegate(FTree));
  FTree->setAccessibleName(tr("Texts"));
  FTree->setAlternatingRowColors(true);
  FTree->setUniformRowHeights(true);
  FTree->setItemsExpandable(false);
  FTree->setRootIsDecorated(false);
  FTree->setIndentation(fontMetrics().averageCharWidth());
  FTree->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed |
                         QAbstractItemView::SelectedClicked);
  QHeaderView& header = *FTree->header();
  header.setSectionsMovable(false);
  header.setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
  const int letter = fontMetrics().averageCharWidth();
  FTree->expandAll();
  FTree->resizeColumnToContents(TTitlesModel::ColKey);
  // As wide as the texts need, on a small screen as there is room; the notes get what is left.
  constexpr int defaultLetters = 38, textLetters = 44, letters = defaultLetters + textLetters + 30;
  const QSize wanted(FTree->columnWidth(TTitlesModel::ColKey) + letters * letter, 32 * fontMetrics().height());
  resize(wanted.boundedTo(screen()->availableGeometry().size() * 9 / 10));
  const int keyWidth = std::min(FTree->columnWidth(TTitlesModel::ColKey), width() / 3), room = width() - keyWidth;
  FTree->setColumnWidth(TTitlesModel::ColKey, keyWidth);
  FTree->setColumnWidth(TTitlesModel::ColDefault, room * defaultLetters / letters);
  FTree->setColumnWidth(TTitlesModel::ColText, room * textLetters / letters);

  // The row is one thing to the user: its text is what can be edited.
  connect(FTree->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
    if (current.isValid() && current.column() != TTitlesModel::ColText && current.flags() & Qt::ItemIsSelectable) {
      FTree->selectionModel()->setCurrentIndex(current.siblingAtColumn(TTitlesModel::ColText),
                                               QItemSelectionModel::NoUpdate);
    }
    ShowState();
  });
  connect(FTree, &QAbstractItemView::activated, this, &T_dlgTitlesEdit::EditCurrent);
}

void T_dlgTitlesEdit::BuildControls() {
  FSearch = new QLineEdit(this);
  FSearch->setClearButtonEnabled(true);
  auto* searchLabel = new QLabel(tr("&Find:"), this);
  searchLabel->setBuddy(FSearch);
  connect(FSearch, &QLineEdit::textChanged, this, &T_dlgTitlesEdit::Find);
  FMessage = new QLabel(this);
  FMessage->setWordWrap(true);
  FMessage->setTextFormat(Qt::PlainText);
  FResetOne = MakeButton(tr("&Reset"), &T_dlgTitlesEdit::ResetOne);
  FResetAll = MakeButton(tr("Reset &All"), &T_dlgTitlesEdit::ResetAll);
  QPushButton* load = MakeButton(tr("&Load..."), &T_dlgTitlesEdit::Load);
  QPushButton* save = MakeButton(tr("&Save..."), &T_dlgTitlesEdit::Save);
  auto* closing = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(closing, &QDialogButtonBox::accepted, this, [this] {
    CommitEdit();
    accept();
  });
  connect(closing, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* search = new QHBoxLayout;
  search->addWidget(searchLabel);
  search->addWidget(FSearch);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(FResetOne);
  buttons->addWidget(FResetAll);
  buttons->addStretch();
  buttons->addWidget(load);
  buttons->addWidget(save);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(search);
  layout->addWidget(FTree);
  layout->addWidget(FMessage);
  layout->addLayout(buttons);
  layout->addWidget(closing);
  setTabOrder(FSearch, FTree);
  FTree->setFocus();
}

QPushButton* T_dlgTitlesEdit::MakeButton(const QString& caption, void (T_dlgTitlesEdit::*click)()) {
  auto* button = new QPushButton(caption, this);
  connect(button, &QPushButton::clicked, this, click);
  return button;
}

void T_dlgTitlesEdit::keyPressEvent(QKeyEvent* event) {
  // Enter edits a text, or goes from the search to what it found; it chooses no button.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (FSearch->hasFocus()) FTree->setFocus();
    if (qobject_cast<QPushButton*>(focusWidget()) == nullptr) return;
  }
  QDialog::keyPressEvent(event);
}

void T_dlgTitlesEdit::Find(const QString& text) {
  FFilter->Find(text);
  FTree->expandAll();
  QModelIndex first;
  for (int row = 0; row < FFilter->rowCount(); ++row) {
    const QModelIndex index = FFilter->index(row, 0);
    const bool isSection = FFilter->hasChildren(index);
    FTree->setFirstColumnSpanned(row, {}, isSection);
    if (!first.isValid()) first = isSection ? FFilter->index(0, 0, index) : index;
  }
  if (!(FTree->currentIndex().flags() & Qt::ItemIsSelectable)) FTree->setCurrentIndex(first);
  ShowState();
}

// Commands

TStrings T_dlgTitlesEdit::GetTitles() const { return FModel->GetTitles(); }

QModelIndex T_dlgTitlesEdit::CurrentIndex() const { return FFilter->mapToSource(FTree->currentIndex()); }

void T_dlgTitlesEdit::EditCurrent() {
  if (FTree->currentIndex().isValid()) FTree->edit(FTree->currentIndex());
}

void T_dlgTitlesEdit::CommitEdit() {
  const QWidget* focus = focusWidget();
  if (focus != nullptr && FTree->viewport()->isAncestorOf(focus)) FTree->setFocus();
}

void T_dlgTitlesEdit::ResetOne() { FModel->Reset(CurrentIndex()); }

void T_dlgTitlesEdit::ResetAll() {
  CommitEdit();
  FModel->SetTitles({});
}

void T_dlgTitlesEdit::Load() {
  const QString file = QFileDialog::getOpenFileName(this, tr("Load Texts"), {}, tr("Texts (*.titles);;All files (*)"));
  if (!file.isEmpty()) LoadFromFile(file);
}

void T_dlgTitlesEdit::Save() {
  const QString file = QFileDialog::getSaveFileName(this, tr("Save Texts"), {}, tr("Texts (*.titles);;All files (*)"));
  if (!file.isEmpty()) SaveToFile(file);
}

bool T_dlgTitlesEdit::LoadFromFile(const QString& file) {
  CommitEdit();
  return Try([&] {
    const std::string text = ReadFile(ToPath(file));
    TStrings lines;
    lines.SetText(text);
    const TStrings known = FModel->GetTitles();
    bool isKnown = false;
    for (std::size_t i = 0; i < lines.Count() && !isKnown; ++i) isKnown = known.IndexOfName(lines.NameAt(i)) >= 0;
    if (!isKnown || !IsValidUtf8(text)) {
      FFileFault = isKnown ? tr("%1 is not a UTF-8 text.") : tr("%1 has none of these texts.");
      FFileFault = FFileFault.arg(file);
      return;
    }
    FModel->SetTitles(lines);
  });
}

bool T_dlgTitlesEdit::SaveToFile(const QString& file) {
  CommitEdit();
  return Try([&] {
    TStrings existing;
    if (std::filesystem::exists(ToPath(file))) existing.LoadFromFile(ToPath(file));
    WriteFileAtomically(ToPath(file), TitlesForFile(GetTitles(), existing).Joined("\n") + "\n");
  });
}

bool T_dlgTitlesEdit::Try(const std::function<void()>& operation) {
  FFileFault.clear();
  try {
    operation();
  } catch (const EException& error) {
    FFileFault = ToQString(error.Message());
  }
  const bool worked = FFileFault.isEmpty();
  ShowState();
  return worked;
}

void T_dlgTitlesEdit::ShowState() {
  const QModelIndex current = CurrentIndex();
  FResetOne->setEnabled(current.isValid() && FModel->IsChanged(current));
  FResetAll->setEnabled(FModel->IsAnyChanged());
  QString message = FFileFault;
  const int faults = FModel->GetFaultCount();
  if (message.isEmpty() && FFilter->rowCount() == 0) message = tr("No match");
  if (message.isEmpty() && faults > 0) message = tr("Texts to be looked at: %1 (see the notes)").arg(faults);
  FMessage->setText(message);
}

bool EditTitles(QWidget* parent, const TStrings& defaults, TStrings& titles) {
  // Whoever is closed meanwhile takes the dialog with it, and perhaps the titles.
  const QPointer<T_dlgTitlesEdit> dialog = new T_dlgTitlesEdit(defaults, titles, parent);
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (!dialog) return false;
  if (accepted) titles = dialog->GetTitles();
  delete dialog;
  return accepted;
}

}  // namespace tolvi
