#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <array>
#include <exception>

#include <tolvi/panel/fillwizard.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/waitcursor.h>
#include <tolvi/ui/dialogs/filldlg.h>
#include <tolvi/ui/dialogs/fillpages.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

T_dlgFill::T_dlgFill(TFillWizard& wizard, QWidget* parent)
    : QDialog(parent),
      FWizard(wizard),
      FPages(new QStackedWidget(this)),
      FTables(new TFillTablesPage(wizard, this)),
      FHead(new QLabel(this)),
      FFault(new QLabel(this)),
      FFaultRow(new QWidget(this)) {
  setWindowTitle(tr("Fill from Database"));
  FPages->addWidget(FTables);
  FPages->addWidget(new TFillChoicePage(wizard, this));
  FPages->addWidget(new TFillPreviewPage(wizard, this));
  BuildControls();
  for (int step = 0; step < StepCount; ++step) {
    static_cast<TFillPage*>(FPages->widget(step))->OnChoose = [this] { ShowState(); };
  }
  FTables->OnDatabase = [this](const QString& name) {
    const QPointer<T_dlgFill> self(this);
    Run([this, database = FromQString(name)] {
      FWizard.SetDatabase(database);
      FHasTables = true;
      Show(stTables);
    });
    if (self) FTables->Refresh();
  };
  constexpr int letters = 110, lines = 34;
  const QSize wanted(letters * fontMetrics().averageCharWidth(), lines * fontMetrics().height());
  resize(wanted.boundedTo(screen()->availableGeometry().size() * 9 / 10));
  Show(stTables);
  // A slow catalogue is waited for in a window that can be seen.
  QTimer::singleShot(0, this, &T_dlgFill::ReadTables);
}

void T_dlgFill::BuildControls() {
  QFont bold = font();
  bold.setBold(true);
  FHead->setFont(bold);
  FFault->setTextFormat(Qt::PlainText);
  FFault->setWordWrap(true);
  FAgain = new QPushButton(tr("&Try Again"), this);
  FAgain->setAutoDefault(false);
  connect(FAgain, &QPushButton::clicked, this, [this] {
    if (FFailed) Run(std::function<void()>(FFailed));
  });
  auto* fault = new QHBoxLayout(FFaultRow);
  fault->setContentsMargins(0, 0, 0, 0);
  fault->addWidget(FFault, 1);
  fault->addWidget(FAgain);

  FBack = new QPushButton(tr("&Back"), this);
  auto* backKey = new QShortcut(QKeySequence(Qt::ALT | Qt::Key_Left), this);
  connect(backKey, &QShortcut::activated, this, &T_dlgFill::Back);
  FNext = new QPushButton(tr("&Next"), this);
  FFill = new QPushButton(tr("F&inish"), this);
  FBack->setAutoDefault(false);
  FBack->setToolTip(tr("Back (Alt+Left)"));
  auto* cancel = new QPushButton(tr("Cancel"), this);
  cancel->setAutoDefault(false);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(FBack, &QPushButton::clicked, this, &T_dlgFill::Back);
  connect(FNext, &QPushButton::clicked, this, &T_dlgFill::Next);
  connect(FFill, &QPushButton::clicked, this, &T_dlgFill::Fill);
  auto* closing = new QHBoxLayout;
  closing->addStretch();
  closing->addWidget(FBack);
  closing->addWidget(FNext);
  closing->addWidget(FFill);
  closing->addWidget(cancel);

  auto* rows = new QVBoxLayout(this);
  rows->addWidget(FHead);
  rows->addWidget(FPages, 1);
  rows->addWidget(FFaultRow);
  rows->addLayout(closing);
}

TFillPage& T_dlgFill::Page() const { return *static_cast<TFillPage*>(FPages->currentWidget()); }

/// Does what asks the catalogue. When that fails, it can be tried again.
void T_dlgFill::Run(const std::function<void()>& step) {
  if (FBusy) return;
  FBusy = true;
  FFailed = nullptr;
  FFault->clear();
  const QPointer<T_dlgFill> self(this);
  QString fault;
  try {
    const TWaitCursor cursor;
    step();
  } catch (const std::exception& error) {
    fault = QString::fromUtf8(error.what());
    if (fault.isEmpty()) fault = tr("The database gave no answer.");
  }
  if (!self) return;
  FBusy = false;
  FFault->setText(fault);
  if (!fault.isEmpty()) FFailed = step;
  ShowState();
  if (fault.isEmpty()) return;
  QAccessibleEvent alert(FFault, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void T_dlgFill::ReadTables() {
  Run([this] {
    FWizard.ReadTables();
    FHasTables = true;
    Show(stTables);
  });
}

void T_dlgFill::Next() {
  Page().Commit();
  if (!Page().IsComplete()) return ShowState();
  if (FPages->currentIndex() == stTables) {
    Run([this] {
      FTables->Commit();
      FWizard.ReadPlan();
      Show(stChoice);
    });
  } else {
    Show(stPreview);
  }
}

void T_dlgFill::Back() {
  if (FBusy || FPages->currentIndex() == stTables) return;
  Page().Commit();
  FFault->clear();
  Show(static_cast<TStep>(FPages->currentIndex() - 1));
}

void T_dlgFill::Fill() {
  const QPointer<T_dlgFill> self(this);
  Run([this, self] {
    try {
      FWizard.Fill(FromQString(tr("Fill from database")));
      if (self) accept();
    } catch (const EJDBStructError&) {
      // The plan is another one, to be looked at.
      if (self) Show(stChoice);
      throw;
    }
  });
  // Looking again is what is to be done.
  if (self && FPages->currentIndex() == stChoice) FFailed = nullptr;
  if (self) ShowState();
}

void T_dlgFill::Show(TStep step) {
  // The page must not be seen before it shows what there is now.
  static_cast<TFillPage*>(FPages->widget(step))->Refresh();
  FPages->setCurrentIndex(step);
  const std::array<QString, StepCount> titles = {tr("Step 1 of 3: Choose the tables"),
                                                 tr("Step 2 of 3: Choose and name what is added"),
                                                 tr("Step 3 of 3: Look at what changes")};
  FHead->setText(titles[static_cast<std::size_t>(step)]);
  ShowState();
  Page().FirstFocus()->setFocus();
}

void T_dlgFill::ShowState() {
  const int step = FPages->currentIndex();
  const bool complete = Page().IsComplete();
  FPages->setEnabled(FHasTables);
  FBack->setEnabled(step > stTables);
  FNext->setVisible(step != stPreview);
  FNext->setEnabled(FHasTables && complete);
  FFill->setVisible(step == stPreview);
  FFill->setEnabled(complete);
  (step == stPreview ? FFill : FNext)->setDefault(true);
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
  FFault->setPalette(colors);
  FAgain->setVisible(FFailed != nullptr);
  FFaultRow->setVisible(!FFault->text().isEmpty());
}

void T_dlgFill::keyPressEvent(QKeyEvent* event) {
  // Enter goes from a search to what it found.
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && qobject_cast<QLineEdit*>(focusWidget()) != nullptr) return Page().FirstFocus()->setFocus();
  QDialog::keyPressEvent(event);
}

bool FillFromDatabase(QWidget* parent, TModelEditor& editor, const TFillOptions& options) {
  TFillWizard wizard(editor, options);
  const QPointer<T_dlgFill> dialog = new T_dlgFill(wizard, parent);
  const bool filled = dialog->exec() == QDialog::Accepted;
  // The parent may have gone with the dialog.
  delete dialog;
  return filled;
}

}  // namespace tolvi
