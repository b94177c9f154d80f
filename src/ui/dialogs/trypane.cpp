#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include <tolvi/foundation/errors.h>
#include <tolvi/panel/modeleditor.h>
#include <tolvi/query/rowerror.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/sqltext.h>
#include <tolvi/ui/dialogs/syntaxcaptions.h>
#include <tolvi/ui/dialogs/trypane.h>
#include <tolvi/ui/panels/querpnlview.h>
#include <tolvi/ui/panels/rfldpnl.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

/// A label above a part of the pane.
QWidget* Captioned(const QString& caption, QWidget& part, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* label = new QLabel(caption, box);
  label->setBuddy(&part);
  part.setAccessibleName(QString(caption).remove(u'&').remove(u':'));
  part.setMinimumHeight(3 * part.fontMetrics().lineSpacing());
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins({});
  layout->addWidget(label);
  layout->addWidget(&part, 1);
  return box;
}

}  // namespace

TTryPane::TTryPane(TModelEditor& editor, QWidget* parent)
    : QWidget(parent), FConditions(new TJQueryPanelView(this)), FColumns(new TJResultFieldsPanel(this)) {
  FPanel.SetDBStruct(&editor.Model());
  FPanel.SetActive(true);
  FConditions->SetQueryPanel(&FPanel);
  FColumns->SetDBStruct(&editor.Model());
  FColumns->SetActive(true);
  FTimer.setSingleShot(true);
  FTimer.setInterval(0);
  connect(&FTimer, &QTimer::timeout, this, &TTryPane::ShowStatement);
  FPanel.OnChange = [this](TJQueryPanel&) { Refresh(); };
  FColumns->OnChange = [this](TJResultFieldsPanel&) {
    FPanel.RFields().Assign(*FColumns->GetResultFields());
    Refresh();
  };

  auto* splitter = new QSplitter(Qt::Vertical, this);
  splitter->setObjectName(QStringLiteral("TryPane"));
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(Captioned(tr("Col&umns:"), *FColumns, splitter));
  splitter->addWidget(Captioned(tr("Cond&itions:"), *FConditions, splitter));
  splitter->addWidget(MakeStatement());
  splitter->setSizes({1000, 1500, 1500});
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(splitter);
  setFocusProxy(FColumns);
  ShowStatement();
}

TTryPane::~TTryPane() {
  // The panel goes before its view, and tells of that.
  FPanel.OnChange = nullptr;
  FColumns->OnChange = nullptr;
}

QWidget* TTryPane::MakeStatement() {
  FStatement = new QPlainTextEdit(this);
  FStatement->setReadOnly(true);
  MakeCodeText(*FStatement);
  FSyntax = new QComboBox(this);
  FSyntax->setAccessibleName(tr("SQL syntax"));
  FSyntax->setToolTip(tr("The SQL syntax in which the statement is written"));
  for (const auto& [syntax, caption] : SyntaxCaptions()) FSyntax->addItem(caption, int{syntax});
  connect(FSyntax, &QComboBox::currentIndexChanged, this, [this] {
    FPanel.SetSQLSyntax(static_cast<TSQLSyntax>(FSyntax->currentData().toInt()));
    Refresh();
  });
  FTold = new QLabel(this);
  FTold->setTextFormat(Qt::PlainText);
  FTold->setWordWrap(true);
  FTold->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

  QWidget* box = Captioned(tr("St&atement:"), *FStatement, this);
  auto* layout = static_cast<QVBoxLayout*>(box->layout());
  layout->addWidget(FTold);
  layout->addWidget(FSyntax);
  return box;
}

void TTryPane::Refresh() {
  if (isVisible()) FTimer.start();
}

void TTryPane::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  FTimer.start();
}

void TTryPane::ShowStatement() {
  QString statement, told;
  bool isFault = false;
  if (FPanel.RFields().Empty()) {
    told = tr("Choose columns to see a statement.");
  } else {
    isFault = true;
    try {
      statement = ToQString(FPanel.GetQueryText());
      isFault = false;
    } catch (const EQueryRowError& error) {
      // ".2.1" is the first row in the second one.
      told = tr("Row %1: %2").arg(ToQString(error.RowID()).mid(1), ToQString(error.Message()));
    } catch (const std::exception& error) {
      told = ToQString(error.what());
    }
    if (!isFault) {
      QStringList warnings;
      for (const TQueryWarning& warning : FPanel.QResult().Warnings()) warnings << ToQString(warning.Text);
      told = warnings.join(u'\n');
    }
  }
  statement.remove(u'\r');
  if (FStatement->toPlainText() != statement) {
    const int place = FStatement->verticalScrollBar()->value();
    FStatement->setPlainText(statement);
    FStatement->verticalScrollBar()->setValue(place);
  }
  QPalette colors = palette();
  if (isFault) colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), colors.color(QPalette::Window)));
  FTold->setPalette(colors);
  FTold->setText(told);
  FTold->setVisible(!told.isEmpty());
}

}  // namespace tolvi
