#include "apps/workbench/sql/importdlg.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

#include "apps/workbench/sql/sqledit.h"
#include <tolvi/foundation/errors.h>
#include <tolvi/query/explain.h>
#include <tolvi/sqlimport/sqlwords.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// Milliseconds from the last key to reading; longer for statements that take long.
constexpr int LeastDelay = 200, MostDelay = 2000;
/// More lines help nobody and would take time to show.
constexpr std::size_t MostRemarks = 500;
/// In the text: the margin of the signs, the signs, and the wave below what is wrong.
constexpr int SignMargin = 1, WarningSign = 1, FaultSign = 2, FaultWave = 8;

/// Whether there is a row of SQL, also in a sub-query.
bool HasFragments(const TFilterBracket& bracket, TJCustomDBStructure& model) {
  for (std::size_t i = 0; i < bracket.GetRowCount(); ++i) {
    const TFilterRow& row = bracket.GetRow(i);
    if (row.GetRowType() == frtSQLFragment) return true;
    if (row.GetRowType() == frtBracket) {
      if (HasFragments(static_cast<const TFilterBracket&>(row), model)) return true;
    } else if (const TStrings& inner = static_cast<const TFilterCond&>(row).GetSubQuery(); inner.Count() > 0) {
      TJQueryPanel panel;
      panel.SetDBStruct(&model);
      panel.LoadFromStrings(inner);
      if (HasFragments(panel.RootBracket(), model)) return true;
    }
  }
  return false;
}

QLabel* Caption(const QString& text, QWidget& buddy, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setBuddy(&buddy);
  buddy.setAccessibleName(QString(text).remove(u'&').remove(u':'));
  return label;
}

QWidget* Column(std::initializer_list<QWidget*> parts, QWidget* stretched, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins({});
  for (QWidget* part : parts) layout->addWidget(part, part == stretched ? 1 : 0);
  return box;
}

}  // namespace

bool LooksLikeSelect(const QString& text) {
  constexpr int Looked = 4000;
  TJScanner scanner;
  scanner.SetSource(FromQString(text.left(Looked)));
  scanner.FirstToken();
  while (SQLWordOf(scanner.GetTokType(), scanner.GetRealStr()) == wdOpen) scanner.NextToken();
  return SQLWordOf(scanner.GetTokType(), scanner.GetRealStr()) == wdSelect;
}

std::optional<TImported> ImportSql(QWidget* parent, TJCustomDBStructure& model, const TImportOptions& options) {
  T_dlgImportSql dialog(model, options, parent);
  if (dialog.exec() != QDialog::Accepted) return {};
  return dialog.GetImported();
}

T_dlgImportSql::T_dlgImportSql(TJCustomDBStructure& model, const TImportOptions& options, QWidget* parent)
    : QDialog(parent), FModel(model), FPrepare(options.Prepare), FAllowFragments(options.AllowFragments) {
  setWindowTitle(tr("Paste SQL"));
  setSizeGripEnabled(true);
  auto* parts = new QSplitter(Qt::Horizontal, this);
  parts->setChildrenCollapsible(false);
  parts->addWidget(MakeEditor());
  parts->addWidget(MakeRemarks());
  parts->setStretchFactor(0, 3);
  parts->setStretchFactor(1, 2);
  parts->setSizes({3000, 2000});
  FTold = new QLabel(this);
  FTold->setObjectName(QStringLiteral("import.told"));
  FTold->setTextFormat(Qt::PlainText);
  FTold->setWordWrap(true);
  FButtons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  FButtons->button(QDialogButtonBox::Ok)->setText(tr("&Make query"));
  connect(FButtons, &QDialogButtonBox::accepted, this, &T_dlgImportSql::accept);
  connect(FButtons, &QDialogButtonBox::rejected, this, &T_dlgImportSql::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(parts, 1);
  layout->addWidget(FTold);
  layout->addWidget(FButtons);
  MakeKeys();
  DrawMarkers();

  FTimer.setSingleShot(true);
  FTimer.setInterval(LeastDelay);
  connect(&FTimer, &QTimer::timeout, this, &T_dlgImportSql::Read);
  connect(FEditor, &QsciScintilla::textChanged, this, &T_dlgImportSql::Wait);
  QString sql = ToQString(options.Sql);
  if (sql.isEmpty()) {
    sql = QGuiApplication::clipboard()->text();
    if (sql.size() > MaxSize || !LooksLikeSelect(sql)) sql.clear();
  }
  FEditor->ShowSql(sql);
  Read();
  const QFontMetrics metrics(font());
  resize(
      QSize(130 * metrics.averageCharWidth(), 38 * metrics.lineSpacing()).boundedTo(screen()->availableSize() * 0.95));
  FEditor->setFocus();
}

T_dlgImportSql::~T_dlgImportSql() = default;

QWidget* T_dlgImportSql::MakeEditor() {
  FEditor = new TSqlEdit(this);
  FEditor->setObjectName(QStringLiteral("import.sql"));
  FEditor->setMarginType(SignMargin, QsciScintilla::SymbolMargin);
  FEditor->setMarginMarkerMask(SignMargin, (1 << WarningSign) | (1 << FaultSign));
  QLabel* caption = Caption(tr("&Statement:"), *FEditor, this);
  FExact = new QCheckBox(tr("&Only if it can be read exactly"), this);
  FExact->setObjectName(QStringLiteral("import.exact"));
  FExact->setToolTip(tr("Otherwise what a query cannot say is left out or replaced, with a warning"));
  FFragments = new QCheckBox(tr("&Keep as rows of SQL what no operator says"), this);
  FFragments->setObjectName(QStringLiteral("import.fragments"));
  FFragments->setVisible(FAllowFragments);
  FFragments->setChecked(FAllowFragments);
  for (const QCheckBox* box : {FExact, FFragments}) connect(box, &QCheckBox::toggled, this, &T_dlgImportSql::Read);
  return Column({caption, FEditor, FExact, FFragments}, FEditor, this);
}

QWidget* T_dlgImportSql::MakeRemarks() {
  FList = new QListWidget(this);
  FList->setObjectName(QStringLiteral("import.list"));
  FList->setWordWrap(true);
  FList->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  FList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  FList->setTextElideMode(Qt::ElideNone);
  FList->setResizeMode(QListView::Adjust);
  connect(FList, &QListWidget::currentRowChanged, this, &T_dlgImportSql::GoTo);
  connect(FList, &QListWidget::itemClicked, this, [this] { GoTo(FList->currentRow()); });
  connect(FList, &QListWidget::itemActivated, this, [this] { FEditor->setFocus(); });
  FPreview = new QPlainTextEdit(this);
  FPreview->setObjectName(QStringLiteral("import.preview"));
  FPreview->setReadOnly(true);
  FPreview->setTabChangesFocus(true);
  auto* parts = new QSplitter(Qt::Vertical, this);
  parts->setChildrenCollapsible(false);
  parts->addWidget(Column({Caption(tr("&Warnings (F8 for the next one):"), *FList, this), FList}, FList, parts));
  parts->addWidget(Column({Caption(tr("&Query:"), *FPreview, this), FPreview}, FPreview, parts));
  parts->setSizes({1000, 1000});
  return parts;
}

void T_dlgImportSql::MakeKeys() {
  const auto on = [this](const QKeySequence& keys, auto call) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, call);
  };
  on(Qt::Key_F8, [this] { GoOn(1); });
  on(Qt::SHIFT | Qt::Key_F8, [this] { GoOn(-1); });
  on(Qt::CTRL | Qt::Key_Return, [this] { accept(); });
  on(Qt::CTRL | Qt::Key_Enter, [this] { accept(); });
}

void T_dlgImportSql::DrawMarkers() {
  const QColor background = palette().color(QPalette::Base);
  const struct {
    int sign;
    QsciScintilla::MarkerSymbol symbol;
    QColor color;
  } signs[] = {{WarningSign, QsciScintilla::RightTriangle, ReadableColor(QColor(0xC77700), background)},
               {FaultSign, QsciScintilla::Circle, ReadableColor(FaultColor(), background)}};
  for (const auto& entry : signs) {
    FEditor->markerDefine(entry.symbol, entry.sign);
    FEditor->setMarkerForegroundColor(entry.color, entry.sign);
    FEditor->setMarkerBackgroundColor(entry.color, entry.sign);
  }
  FEditor->setMarginWidth(SignMargin, fontMetrics().height());
  FEditor->indicatorDefine(QsciScintilla::SquiggleIndicator, FaultWave);
  FEditor->setIndicatorForegroundColor(ReadableColor(FaultColor(), background), FaultWave);
}

void T_dlgImportSql::Wait() {
  FTimer.start();
  FButtons->button(QDialogButtonBox::Ok)->setEnabled(FEditor->length() > 0);
}

void T_dlgImportSql::Read() {
  FTimer.stop();
  FImported.reset();
  FExplained.clear();
  FRemarks.clear();
  FNote.clear();
  QElapsedTimer clock;
  clock.start();
  if (FEditor->length() > MaxSize) {
    FNote = tr("The statement is too long: statements of up to %1 KB can be read.").arg(MaxSize / 1024);
  } else if (const std::string sql = FromQString(FEditor->text());
             sql.find_first_not_of(" \t\r\n") == std::string::npos) {
    FNote = tr("Paste or type a SELECT statement.");
  } else {
    ReadStatement(sql);
  }
  ShowRemarks();
  FTimer.setInterval(static_cast<int>(std::clamp<qint64>(2 * clock.elapsed(), LeastDelay, MostDelay)));
}

void T_dlgImportSql::ReadStatement(const std::string& sql) {
  TJQueryPanel panel;
  panel.SetDBStruct(&FModel);
  if (FPrepare) FPrepare(panel);
  panel.SetActive(true);
  panel.SetAllowSQLFragments(FAllowFragments && FFragments->isChecked());
  TSQLImportOptions how;
  how.Faithful = true;
  how.Approximate = !FExact->isChecked();
  try {
    panel.ParseSQL(sql, how);
    FImported = TImported{panel.SaveToText(), sql, panel.ImportWarnings(), HasFragments(panel.RootBracket(), FModel)};
    FExplained = ToQStringList(Explain(panel)).join(u'\n');
    for (const TImportWarning& warning : FImported->Warnings) {
      FRemarks.push_back({warning.Line, 0, ToQString(warning.Message()), false});
    }
  } catch (const ESQLImportError& error) {
    FRemarks.push_back({error.Line(), error.Column(), ToQString(error.Reason()), true});
  } catch (const ESQLParserError& error) {
    FRemarks.push_back({error.Line(), 0, ToQString(error.Message()), true});
  } catch (const std::exception& error) {
    FRemarks.push_back({0, 0, ToQString(error.what()), true});
  }
}

void T_dlgImportSql::ShowRemarks() {
  const bool isFault = !FRemarks.empty() && FRemarks.front().IsFault;
  FEditor->markerDeleteAll();
  FEditor->SendScintilla(QsciScintilla::SCI_SETINDICATORCURRENT, FaultWave);
  FEditor->SendScintilla(QsciScintilla::SCI_INDICATORCLEARRANGE, 0, FEditor->length());
  const QSignalBlocker quiet(FList);
  FList->clear();
  const std::size_t shown = std::min(FRemarks.size(), MostRemarks);
  for (std::size_t i = 0; i < shown; ++i) {
    const TRemark& remark = FRemarks[i];
    auto* item = new QListWidgetItem(
        remark.Line > 0 ? tr("Line %1: %2").arg(QString::number(remark.Line), remark.Text) : remark.Text, FList);
    item->setIcon(style()->standardIcon(remark.IsFault ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxWarning));
    if (remark.Line > 0) FEditor->markerAdd(remark.Line - 1, remark.IsFault ? FaultSign : WarningSign);
    if (remark.Column > 0) MarkFault(remark);
  }
  if (const auto more = static_cast<int>(FRemarks.size() - shown); more > 0) {
    auto* item = new QListWidgetItem(tr("%n more warnings", nullptr, more), FList);
    item->setFlags(Qt::NoItemFlags);
  }
  FList->setCurrentRow(-1);
  FPreview->setPlainText(FExplained);
  if (FNote.isEmpty() && FImported) {
    FNote = FRemarks.empty()
                ? tr("The query says what the statement says.")
                : tr("The statement can be read with %n warnings.", nullptr, static_cast<int>(FRemarks.size()));
  } else if (isFault) {
    FNote = FExact->isChecked() ? tr("The statement cannot be read exactly.") : tr("The statement cannot be read.");
  }
  FTold->setText(FNote);
  FButtons->button(QDialogButtonBox::Ok)->setEnabled(FImported.has_value());
}

void T_dlgImportSql::MarkFault(const TRemark& remark) {
  const long start =
      FEditor->SendScintilla(QsciScintilla::SCI_POSITIONFROMLINE, static_cast<unsigned long>(remark.Line - 1));
  if (start < 0) return;
  const long from = std::min(start + remark.Column - 1, static_cast<long>(FEditor->length()));
  const long end = FEditor->SendScintilla(QsciScintilla::SCI_WORDENDPOSITION, static_cast<unsigned long>(from), 1L);
  FEditor->SendScintilla(QsciScintilla::SCI_SETINDICATORCURRENT, FaultWave);
  FEditor->SendScintilla(QsciScintilla::SCI_INDICATORFILLRANGE, static_cast<unsigned long>(from),
                         std::max(end - from, 1L));
}

void T_dlgImportSql::GoTo(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= FRemarks.size()) return;
  const TRemark& remark = FRemarks[static_cast<std::size_t>(index)];
  if (remark.Line < 1) return;
  const int line = std::min(remark.Line, FEditor->lines()) - 1;
  const long start = FEditor->SendScintilla(QsciScintilla::SCI_POSITIONFROMLINE, static_cast<unsigned long>(line));
  FEditor->SendScintilla(QsciScintilla::SCI_GOTOPOS,
                         static_cast<unsigned long>(start + std::max(remark.Column - 1, 0)));
  FEditor->ensureLineVisible(line);
}

void T_dlgImportSql::GoOn(int step) {
  if (FTimer.isActive()) Read();
  const int count = static_cast<int>(std::min(FRemarks.size(), MostRemarks));
  if (count == 0) return;
  const int current = FList->currentRow();
  // Without a current one, the first or the last.
  const int next = current < 0 ? (step > 0 ? 0 : count - 1) : (current + step + count) % count;
  FList->setCurrentRow(next);
  GoTo(next);
}

void T_dlgImportSql::accept() {
  if (FTimer.isActive()) Read();
  if (FImported) return QDialog::accept();
  GoOn(1);
  FEditor->setFocus();
}

void T_dlgImportSql::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (FEditor == nullptr) return;
  if (event->type() == QEvent::FontChange) FEditor->Dress();
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) DrawMarkers();
}

}  // namespace tolvi
