#include "apps/workbench/sql/sqledit.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <algorithm>

#include <tolvi/ui/controls/contrast.h>

namespace tolvi {
namespace {

constexpr int NumbersAt = 0;

/// Colours only the words of SELECT statements: others are mostly names of columns.
class TSelectLexer final : public QsciLexerSQL {
 public:
  using QsciLexerSQL::QsciLexerSQL;

  const char* keywords(int set) const override {
    return set == 1 ? "all and any as asc between by case cast collate cross current_date current_time "
                      "current_timestamp date desc distinct distinctrow else end escape except exists extract false "
                      "fetch first for from full group having ilike in inner intersect interval is join last left like "
                      "limit natural next not null nulls offset on only or order outer over partition percent right "
                      "row rows select some then time timestamp top true union using when where with"
                    : nullptr;
  }
};

/// What stands out, to be made readable on the background.
struct TStyleColor {
  int style;
  QRgb color;
};
constexpr TStyleColor StyleColors[] = {{QsciLexerSQL::Keyword, 0xFF0B57C4},
                                       {QsciLexerSQL::SingleQuotedString, 0xFF1D7A34},
                                       {QsciLexerSQL::DoubleQuotedString, 0xFF8A5A00},
                                       {QsciLexerSQL::QuotedIdentifier, 0xFF8A5A00},
                                       {QsciLexerSQL::Number, 0xFF9C2A8C},
                                       {QsciLexerSQL::Comment, 0xFF6E7781},
                                       {QsciLexerSQL::CommentLine, 0xFF6E7781},
                                       {QsciLexerSQL::CommentLineHash, 0xFF6E7781},
                                       {QsciLexerSQL::CommentDoc, 0xFF6E7781}};

/// Keys that no text needs; the base class would take them all.
bool BelongsToWindow(const QKeyEvent& event) {
  const int key = event.key();
  const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
  return (key >= Qt::Key_F1 && key <= Qt::Key_F35) || key == Qt::Key_Escape ||
         (isEnter && (event.modifiers() & Qt::ControlModifier) != 0);
}

}  // namespace

TSqlEdit::TSqlEdit(QWidget* parent) : QsciScintilla(parent) {
  setUtf8(true);
  setEolMode(EolUnix);
  setLayoutDirection(Qt::LeftToRight);
  // By way of a picture: painting at once would take the direction of the program, and turn brackets round.
  SendScintilla(SCI_SETBUFFEREDDRAW, 1UL);
  auto* lexer = new TSelectLexer(this);
  lexer->setBackslashEscapes(false);
  setLexer(lexer);
  setFolding(NoFoldStyle);
  setWrapMode(WrapNone);
  setScrollWidth(1);
  setScrollWidthTracking(true);
  setMarginType(NumbersAt, NumberMargin);
  setMarginWidth(1, 0);
  setFrameShape(QFrame::StyledPanel);
  setTabWidth(2);
  setIndentationsUseTabs(false);
  connect(this, &QsciScintilla::linesChanged, this, &TSqlEdit::FitNumbers);
  Dress();
}

void TSqlEdit::ShowSql(const QString& sql) {
  QString text = sql;
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  if (this->text() == text) return;
  const int line = firstVisibleLine();
  const long column = SendScintilla(SCI_GETXOFFSET);
  setText(text);
  SendScintilla(SCI_SETSCROLLWIDTH, 1);
  setFirstVisibleLine(line);
  SendScintilla(SCI_SETXOFFSET, static_cast<unsigned long>(column));
  SendScintilla(SCI_EMPTYUNDOBUFFER);
}

void TSqlEdit::SetGreyed(bool greyed) {
  if (FGreyed == greyed) return;
  FGreyed = greyed;
  Dress();
}

TKeyLines TSqlEdit::Keys() const {
  TKeyLines lines;
  for (const auto& [command, caption] : {std::pair{QsciCommand::SelectionCopy, tr("Copy what is selected")},
                                         {QsciCommand::SelectAll, tr("Select all")},
                                         {QsciCommand::ZoomIn, tr("Larger letters")},
                                         {QsciCommand::ZoomOut, tr("Smaller letters")}}) {
    lines.emplace_back(caption, QList<QKeySequence>{QKeySequence(standardCommands()->find(command)->key())});
  }
  return lines;
}

QSize TSqlEdit::sizeHint() const {
  const QFontMetrics metrics(lexer()->font(QsciLexerSQL::Default));
  return {60 * metrics.horizontalAdvance(u'0'), 12 * metrics.lineSpacing()};
}

QSize TSqlEdit::minimumSizeHint() const {
  const QFontMetrics metrics(lexer()->font(QsciLexerSQL::Default));
  return {16 * metrics.horizontalAdvance(u'0'), 4 * metrics.lineSpacing()};
}

void TSqlEdit::Dress() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  // The base class has a font of its own.
  const QFont usual = parentWidget() != nullptr ? parentWidget()->font() : QApplication::font();
  if (usual.pointSizeF() > 0) font.setPointSizeF(usual.pointSizeF());
  DressLexer(font);
  const QColor background = palette().color(QPalette::Base), text = palette().color(QPalette::Text);
  setCaretForegroundColor(text);
  setSelectionBackgroundColor(palette().color(QPalette::Highlight));
  setSelectionForegroundColor(palette().color(QPalette::HighlightedText));
  setMarginsFont(font);
  setMarginsBackgroundColor(background);
  setMarginsForegroundColor(ReadableColor(MixedColor(text, background, 0.6), background));
  FitNumbers();
}

void TSqlEdit::DressLexer(const QFont& font) {
  const QColor background = palette().color(QPalette::Base), text = palette().color(QPalette::Text);
  const QColor grey = ReadableColor(MixedColor(text, background, 0.55), background, 3);
  QsciLexer& words = *lexer();
  words.setDefaultFont(font);
  words.setFont(font);
  words.setDefaultPaper(background);
  words.setPaper(background);
  words.setDefaultColor(FGreyed ? grey : text);
  words.setColor(FGreyed ? grey : text);
  setPaper(background);
  setColor(text);
  if (FGreyed) return;
  for (const TStyleColor& style : StyleColors) {
    words.setColor(ReadableColor(QColor::fromRgba(style.color), background), style.style);
  }
}

void TSqlEdit::FitNumbers() {
  const int digits = std::max(2, static_cast<int>(QString::number(lines()).size()));
  const QFontMetrics metrics(lexer()->font(QsciLexerSQL::Default));
  setMarginWidth(NumbersAt, (digits + 1) * metrics.horizontalAdvance(u'9'));
}

bool TSqlEdit::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && BelongsToWindow(*static_cast<QKeyEvent*>(event))) {
    event->ignore();
    return true;
  }
  return QsciScintilla::event(event);
}

void TSqlEdit::keyPressEvent(QKeyEvent* event) {
  if (BelongsToWindow(*event)) return event->ignore();
  QsciScintilla::keyPressEvent(event);
}

void TSqlEdit::changeEvent(QEvent* event) {
  QsciScintilla::changeEvent(event);
  if (lexer() == nullptr) return;
  if (event->type() == QEvent::PaletteChange) Dress();
}

bool TSqlEdit::focusNextPrevChild(bool next) {
  // The base class keeps Tab to itself. NOLINTNEXTLINE(bugprone-parent-virtual-call)
  return QAbstractScrollArea::focusNextPrevChild(next);
}

}  // namespace tolvi
