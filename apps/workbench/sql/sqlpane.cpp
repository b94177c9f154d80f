#include "apps/workbench/sql/sqlpane.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "apps/workbench/controls/wraplayout.h"
#include "apps/workbench/sql/sqledit.h"
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/dialogs/syntaxcaptions.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

constexpr int ToldLines = 5;
constexpr std::size_t ToldWarnings = 100;

/// As high as the text in it, up to some lines; more is scrolled.
class TToldArea final : public QScrollArea {
 public:
  explicit TToldArea(QLabel& label, QWidget* parent) : QScrollArea(parent), FLabel(label) {
    setWidget(&label);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
  }

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override {
    return std::min(FLabel.heightForWidth(width), ToldLines * fontMetrics().lineSpacing() + fontMetrics().leading());
  }
  QSize sizeHint() const override { return {FLabel.sizeHint().width(), heightForWidth(width())}; }
  QSize minimumSizeHint() const override { return {0, fontMetrics().lineSpacing()}; }

 private:
  QLabel& FLabel;
};

}  // namespace

TSqlPane::TSqlPane(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(MakeBar());
  FView = new TSqlEdit(this);
  FView->setObjectName(QStringLiteral("sql.view"));
  FView->setAccessibleName(tr("Statement"));
  FView->setReadOnly(true);
  FView->setCaretLineVisible(false);
  layout->addWidget(FView, 1);
  MakeTold();
  layout->addWidget(FToldArea);
  SetStatement({});
}

QWidget* TSqlPane::MakeBar() {
  auto* bar = new QWidget(this);
  auto* layout = new TWrapLayout(bar);
  layout->setContentsMargins({});
  auto* syntax = new QWidget(bar);
  auto* inSyntax = new QHBoxLayout(syntax);
  inSyntax->setContentsMargins({});
  auto* caption = new QLabel(tr("S&yntax:"), syntax);
  FSyntax = new QComboBox(syntax);
  FSyntax->setObjectName(QStringLiteral("sql.dialect"));
  FSyntax->setToolTip(tr("The SQL syntax in which the statement is written"));
  for (const auto& [syntax, words] : SyntaxCaptions()) FSyntax->addItem(words, int{syntax});
  FSyntax->setMinimumContentsLength(8);
  FSyntax->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  FSyntax->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  caption->setBuddy(FSyntax);
  connect(FSyntax, &QComboBox::currentIndexChanged, this, [this] {
    if (OnSyntaxChange) OnSyntaxChange(GetSyntax());
  });
  FCopy = new QToolButton(bar);
  FCopy->setObjectName(QStringLiteral("sql.copy"));
  FillCopyMenu();
  FPaste = new QPushButton(tr("&Paste SQL..."), bar);
  FPaste->setObjectName(QStringLiteral("sql.paste"));
  FPaste->setAutoDefault(false);
  connect(FPaste, &QPushButton::clicked, this, [this] {
    if (OnPaste) OnPaste();
  });
  SetCanPaste(true);
  inSyntax->addWidget(caption);
  inSyntax->addWidget(FSyntax, 1);
  layout->addWidget(syntax);
  layout->addWidget(FCopy);
  layout->addWidget(FPaste);
  return bar;
}

void TSqlPane::FillCopyMenu() {
  auto* copy = new QAction(tr("&Copy"), this);
  copy->setToolTip(tr("Copy the whole statement"));
  connect(copy, &QAction::triggered, this, &TSqlPane::Copy);
  FCopy->setDefaultAction(copy);
  FCopy->setPopupMode(QToolButton::MenuButtonPopup);
  FCopy->setFocusPolicy(Qt::StrongFocus);
  auto* menu = new QMenu(FCopy);
  QAction* values = menu->addAction(tr("Copy with &values"));
  values->setObjectName(QStringLiteral("sql.copy.values"));
  connect(values, &QAction::triggered, this, &TSqlPane::Copy);
  menu->addSeparator();
  struct TMarkers {
    TMarkerStyle style;
    QString caption;
    const char* name;
  };
  const TMarkers markers[] = {{msQuestion, tr("Copy with &parameters as ?"), "sql.copy.question"},
                              {msColonName, tr("Copy with parameters as :&Name"), "sql.copy.colon"},
                              {msDollarNumber, tr("Copy with parameters as $&1"), "sql.copy.dollar"}};
  for (const TMarkers& entry : markers) {
    QAction* action = menu->addAction(entry.caption);
    action->setObjectName(QLatin1String(entry.name));
    connect(action, &QAction::triggered, this, [this, style = entry.style] { CopyWithMarkers(style); });
  }
  connect(menu, &QMenu::aboutToShow, this, [this, menu] {
    for (QAction* action : menu->actions().mid(2)) action->setEnabled(OnMarkersRequest != nullptr);
  });
  FCopy->setMenu(menu);
}

void TSqlPane::MakeTold() {
  FTold = new QLabel(this);
  FTold->setObjectName(QStringLiteral("sql.told"));
  FTold->setTextFormat(Qt::RichText);
  FTold->setWordWrap(true);
  FTold->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  FTold->setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  connect(FTold, &QLabel::linkActivated, this, &TSqlPane::FollowLink);
  FToldArea = new TToldArea(*FTold, this);
}

void TSqlPane::SetStatement(const std::string& sql) {
  FStatement = sql;
  FFault.clear();
  FFaultRow.clear();
  FWarnings.clear();
  FView->ShowSql(ToQString(sql));
  ShowTold();
}

void TSqlPane::ShowFault(const QString& words, const std::string& rowID) {
  FFault = words;
  FFaultRow = rowID;
  ShowTold();
}

void TSqlPane::SetWarnings(const std::vector<TQueryWarning>& warnings) {
  FWarnings = warnings;
  ShowTold();
}

TSQLSyntax TSqlPane::GetSyntax() const { return static_cast<TSQLSyntax>(FSyntax->currentData().toInt()); }

void TSqlPane::SetSyntax(TSQLSyntax syntax) {
  const QSignalBlocker quiet(FSyntax);
  FSyntax->setCurrentIndex(FSyntax->findData(int{syntax}));
}

void TSqlPane::SetCanPaste(bool canPaste, const QString& why) {
  FPaste->setEnabled(canPaste);
  FPaste->setToolTip(canPaste ? tr("Make a query of a SELECT statement") : why);
}

TKeyLines TSqlPane::Keys() const { return FView->Keys(); }

void TSqlPane::Copy() {
  QString sql = ToQString(FStatement);
  QGuiApplication::clipboard()->setText(sql.remove(u'\r'));
}

void TSqlPane::CopyWithMarkers(TMarkerStyle style) {
  if (!OnMarkersRequest) return;
  try {
    QString sql = ToQString(OnMarkersRequest(style));
    QGuiApplication::clipboard()->setText(sql.remove(u'\r'));
  } catch (const std::exception& error) {
    ShowFault(ToQString(error.what()));
  }
}

void TSqlPane::ShowTold() {
  const bool isFault = !FFault.isEmpty();
  FView->SetGreyed(isFault);
  FCopy->setEnabled(!isFault && !FStatement.empty());
  const auto line = [](const QString& text, const std::string& row, int link) {
    QString html = text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
    if (!row.empty()) {
      html += QStringLiteral(" <a href=\"%1\">%2</a>").arg(QString::number(link), tr("Show in query").toHtmlEscaped());
    }
    return QStringLiteral("<div>%1</div>").arg(html);
  };
  QString html;
  if (isFault) {
    html = line(FFault, FFaultRow, -1);
  } else {
    const std::size_t shown = std::min(FWarnings.size(), ToldWarnings);
    for (std::size_t i = 0; i < shown; ++i) {
      html += line(ToQString(FWarnings[i].Text), FWarnings[i].RowID, static_cast<int>(i));
    }
    if (const auto more = static_cast<int>(FWarnings.size() - shown); more > 0) {
      html += line(tr("%n more warnings", nullptr, more), {}, 0);
    }
  }
  QPalette colors = palette();
  const QColor background = colors.color(QPalette::Window);
  if (isFault) colors.setColor(QPalette::WindowText, ReadableColor(FaultColor(), background));
  colors.setColor(QPalette::Link, ReadableColor(colors.color(QPalette::Link), background));
  FTold->setPalette(colors);
  FTold->setText(html);
  FToldArea->setVisible(!html.isEmpty());
  FToldArea->updateGeometry();
}

void TSqlPane::FollowLink(const QString& link) {
  const int index = link.toInt();
  if (!OnShowRow) return;
  if (index < 0) {
    OnShowRow(std::string(FFaultRow));
  } else if (static_cast<std::size_t>(index) < FWarnings.size()) {
    OnShowRow(std::string(FWarnings[static_cast<std::size_t>(index)].RowID));
  }
}

void TSqlPane::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (FToldArea == nullptr) return;
  if (event->type() == QEvent::PaletteChange) ShowTold();
  if (event->type() == QEvent::FontChange) FView->Dress();
}

}  // namespace tolvi
