#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QProgressBar>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/controls/itemlist.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {

namespace {

constexpr int maxRows = 15, minChars = 20;
constexpr size_t measuredTexts = 64;  // the longest ones by letters; measuring 20,000 would be seen

QFont HeadingFont(QFont font) {
  font.setBold(true);
  return font;
}

int TextMargin(const QFontMetrics& metrics) { return std::max(4, metrics.averageCharWidth() * 2 / 3); }

/// Paints headings and groups; the rest is the style's.
class TRowPainter final : public QStyledItemDelegate {
 public:
  TRowPainter(bool headings, QObject* parent) : QStyledItemDelegate(parent), FHeadings(headings) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    if (index.data(TItemModel::RoleIsHeading).toBool()) return PaintHeading(*painter, option, index);
    const QString group = FHeadings ? QString() : index.data(TItemModel::RoleGroup).toString();
    QStyledItemDelegate::paint(painter, option, index);
    PaintCheckBox(*painter, option, index);
    if (group.isEmpty()) return;
    const bool chosen = option.state & QStyle::State_Selected;
    const QColor base = option.palette.color(chosen ? QPalette::Highlight : QPalette::Base);
    const QColor text = option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text);
    const int margin = TextMargin(option.fontMetrics);
    const int room = option.rect.width() - 4 * margin -
                     std::min(option.rect.width() * 2 / 3,
                              option.fontMetrics.horizontalAdvance(index.data(Qt::DisplayRole).toString()));
    painter->setFont(option.font);
    painter->setPen(chosen ? text : ReadableColor(MixedColor(text, base, 0.65), base));
    const Qt::Alignment side = QStyle::visualAlignment(option.direction, Qt::AlignRight) | Qt::AlignVCenter;
    painter->drawText(option.rect.adjusted(margin, 0, -margin, 0), static_cast<int>(side) | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(group, Qt::ElideRight, room));
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.setHeight(std::max(size.height(), option.fontMetrics.height() + TextMargin(option.fontMetrics)));
    return size;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state &= ~QStyle::State_HasFocus;
    option->text = AsWritten(option->text, option->direction);
    int indent = 0;
    if (option->features.testFlag(QStyleOptionViewItem::HasCheckIndicator)) {
      // Drawn by ourselves: those of styles neither grow with the font, nor can be seen on every palette.
      option->features.setFlag(QStyleOptionViewItem::HasCheckIndicator, false);
      indent += CheckBoxSide(option->fontMetrics) + TextMargin(option->fontMetrics);
    }
    const QString group = index.data(TItemModel::RoleGroup).toString();
    if (!group.isEmpty() && FHeadings) indent += TextMargin(option->fontMetrics);
    if (indent > 0) Indent(*option, indent);
  }

 private:
  /// Only of the text: the highlight has the whole width, as the room is that of an empty picture before the text.
  static void Indent(QStyleOptionViewItem& option, int by) {
    const QStyle& style = *option.widget->style();
    const int margins = 2 * (style.pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget) + 1);
    option.features |= QStyleOptionViewItem::HasDecoration;
    option.decorationSize = QSize(std::max(1, by - margins), 1);
  }

  void PaintCheckBox(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QVariant state = index.data(Qt::CheckStateRole);
    if (!state.isValid()) return;
    const int side = CheckBoxSide(option.fontMetrics), margin = TextMargin(option.fontMetrics);
    const bool indented = FHeadings && !index.data(TItemModel::RoleGroup).toString().isEmpty();
    const int start = margin / 2 + (indented ? margin : 0);
    QRect box(option.rect.left() + start, option.rect.center().y() - side / 2, side, side);
    if (option.direction == Qt::RightToLeft) box.moveRight(option.rect.right() - start);
    const QColor base = option.palette.color(QPalette::Base), text = option.palette.color(QPalette::Text);
    DrawCheckBox(painter, box, state.value<Qt::CheckState>(), {text, MixedColor(text, base, 0.7), base});
  }

  static void PaintHeading(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QColor base = option.palette.color(QPalette::Active, QPalette::Base);
    const QColor text = option.palette.color(QPalette::Active, QPalette::Text);
    const QColor face = MixedColor(text, base, 0.08), line = ReadableColor(MixedColor(text, base, 0.4), base, 2);
    painter.setFont(HeadingFont(option.font));
    painter.setPen(ReadableColor(text, face));
    const int margin = TextMargin(option.fontMetrics);
    const QRect place = option.rect.adjusted(margin, 0, -margin, 0);
    const QString heading = index.data(Qt::DisplayRole).toString();
    if (heading.isEmpty()) return painter.fillRect(QRect(place.left(), place.center().y(), place.width(), 1), line);
    painter.fillRect(option.rect, face);
    const Qt::Alignment side = QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter;
    painter.drawText(
        place, static_cast<int>(side) | Qt::TextSingleLine,
        AsWritten(QFontMetrics(painter.font()).elidedText(heading, Qt::ElideRight, place.width()), option.direction));
  }

  const bool FHeadings;
};

}  // namespace

TItemList::TItemList(int options, QWidget* parent)
    : TEditorFrame(parent),
      FModel(new TItemModel(options & WithHeadings, options & Checkable, this)),
      FSearch(new QLineEdit(this)),
      FView(new QListView(this)),
      FTold(new QLabel(this)),
      FProgress(new QProgressBar(this)),
      FHeadings(options & WithHeadings),
      FCheckable(options & Checkable) {
  setFocusProxy(FSearch);
  FSearch->setPlaceholderText(tr("Type to search"));
  FSearch->installEventFilter(this);
  FView->setModel(FModel);
  FView->setItemDelegate(new TRowPainter(options & WithHeadings, FView));
  FView->setUniformItemSizes(true);
  FView->setFrameShape(QFrame::NoFrame);
  FView->setFocusPolicy(Qt::NoFocus);
  FView->setMouseTracking(true);
  FView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  FView->setMinimumHeight(fontMetrics().height());  // lists of one item are as low as they can be
  FView->setEditTriggers(QAbstractItemView::NoEditTriggers);
  FView->setAccessibleName(tr("Items"));
  FTold->setTextFormat(Qt::PlainText);
  FTold->setWordWrap(true);
  FProgress->setRange(0, 0);
  FProgress->setTextVisible(false);
  FProgress->setMaximumHeight(std::max(4, fontMetrics().height() / 2));
  FProgress->setAccessibleName(tr("Loading"));

  auto* layout = new QVBoxLayout(this);
  layout->setSpacing(TextMargin(fontMetrics()) / 2);
  layout->setContentsMargins(layout->spacing(), layout->spacing(), layout->spacing(), layout->spacing());
  layout->addWidget(FSearch);
  layout->addWidget(FTold);
  layout->addWidget(FProgress);
  layout->addWidget(FView, 1);
  layout->addStretch(0);
  ShowState();

  connect(FSearch, &QLineEdit::textChanged, this, &TItemList::Find);
  connect(FView, &QListView::clicked, this, &TItemList::Choose);
}

void TItemList::SetItems(const std::vector<TDropDownItem>& items) {
  FModel->SetItems(items);
  FWidestRow = -1;
  ShowState();
}

int TItemList::GetItemIndex() const {
  const QModelIndex current = FView->currentIndex();
  return current.isValid() ? FModel->ItemOfRow(current.row()) : -1;
}

void TItemList::SetItemIndex(int item) {
  const int row = FModel->RowOfItem(item);
  Highlight(row < 0 && !FSearch->text().isEmpty() ? FModel->BestRow() : row);
}

void TItemList::SetState(bool busy, const QString& fault) {
  FBusy = busy;
  FFault = fault;
  ShowState();
}

void TItemList::ShowState() {
  QString told = FFault;
  if (told.isEmpty() && FBusy) told = tr("Loading...");
  if (told.isEmpty() && FModel->rowCount() == 0)
    told = FModel->Items().empty() ? tr("Nothing to choose from") : tr("No match");
  FTold->setText(told);
  FTold->setVisible(!told.isEmpty());
  FProgress->setVisible(FBusy && FFault.isEmpty());
  FView->setVisible(FModel->rowCount() > 0);
  FSearch->setAccessibleDescription(told);
  if (told.isEmpty() || !QAccessible::isActive()) return;
  QAccessibleEvent alert(FTold, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void TItemList::Find(const QString& text) {
  const int chosen = GetItemIndex();
  FMoved = false;
  FModel->Find(text);
  Highlight(text.isEmpty() ? FModel->RowOfItem(chosen) : FModel->BestRow());
  ShowState();
}

void TItemList::Highlight(int row) {
  const QModelIndex index = FModel->index(row);
  FView->setCurrentIndex(index);
  if (!index.isValid()) return;
  if (row > 0 && FModel->ItemOfRow(row - 1) < 0) FView->scrollTo(FModel->index(row - 1));
  FView->scrollTo(index);
  if (!QAccessible::isActive()) return;
  QAccessibleEvent told(FView, QAccessible::Focus);
  told.setChild(row);
  QAccessible::updateAccessibility(&told);
}

void TItemList::Choose(const QModelIndex& index) {
  const int item = index.isValid() ? FModel->ItemOfRow(index.row()) : -1;
  if (item < 0) return;
  if (FCheckable)
    FModel->SetChecked(item, !FModel->IsChecked(item));
  else
    Q_EMIT Accepted();
}

bool TItemList::MoveByKey(int key) {
  const int count = FModel->rowCount();
  const int row = FView->currentIndex().row();
  const int height = std::max(1, FView->sizeHintForRow(0));
  const int page = std::max(1, FView->viewport()->height() / height - 1);
  const struct {
    int key, row, step;
  } moves[] = {{Qt::Key_Up, row < 0 ? count - 1 : row - 1, -1},
               {Qt::Key_Down, row + 1, 1},
               {Qt::Key_PageUp, row - page, -1},
               {Qt::Key_PageDown, row + page, 1},
               {Qt::Key_Home, 0, 1},
               {Qt::Key_End, count - 1, -1}};
  const auto* move = std::ranges::find(moves, key, [](const auto& entry) { return entry.key; });
  if (move == std::end(moves)) return false;
  FMoved = true;
  Highlight(FModel->NearestItemRow(move->row, move->step));
  return true;
}

bool TItemList::eventFilter(QObject* watched, QEvent* event) {
  if (watched != FSearch || event->type() != QEvent::KeyPress) return TEditorFrame::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool plain = !(key.modifiers() & ~Qt::KeypadModifier);
  if (plain && MoveByKey(key.key())) return true;
  if (!FCheckable || key.key() != Qt::Key_Space || !(FMoved || FSearch->text().isEmpty())) return false;
  Choose(FView->currentIndex());
  return true;
}

void TItemList::showEvent(QShowEvent* event) {
  TEditorFrame::showEvent(event);
  if (FView->currentIndex().isValid()) FView->scrollTo(FView->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void TItemList::changeEvent(QEvent* event) {
  TEditorFrame::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  FWidestRow = -1;
  updateGeometry();
}

int TItemList::WidestRow() const {
  if (FWidestRow >= 0) return FWidestRow;
  const std::vector<TDropDownItem>& items = FModel->Items();
  const auto letters = [&](const TDropDownItem& item) {
    return FHeadings ? std::max(item.Text.size(), item.Group.size()) : item.Text.size() + item.Group.size();
  };
  std::vector<const TDropDownItem*> longest(items.size());
  std::ranges::transform(items, longest.begin(), [](const TDropDownItem& item) { return &item; });
  const auto end = longest.begin() + static_cast<std::ptrdiff_t>(std::min(measuredTexts, longest.size()));
  std::ranges::partial_sort(longest, end, std::ranges::greater{}, [&](const auto* item) { return letters(*item); });

  const QFontMetrics metrics = fontMetrics(), bold(HeadingFont(font()));
  int widest = 0;
  for (auto at = longest.begin(); at != end; ++at) {
    const int text = metrics.horizontalAdvance((*at)->Text), group = bold.horizontalAdvance((*at)->Group);
    widest = std::max(widest, FHeadings ? std::max(text + TextMargin(metrics), group) : text + group);
  }
  FWidestRow = widest;
  return widest;
}

QSize TItemList::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  const int bar = FView->verticalScrollBar()->sizeHint().width();
  const int check = FCheckable ? CheckBoxSide(metrics) + TextMargin(metrics) : 0;
  const int wanted = WidestRow() + check + bar + 6 * TextMargin(metrics);
  const int most = screen()->availableGeometry().width() / 2;
  QSize size = layout()->minimumSize();
  size.setWidth(std::clamp(wanted, std::min(most, minChars * metrics.averageCharWidth()), most));
  if (layout()->hasHeightForWidth()) size.setHeight(layout()->heightForWidth(size.width()));
  if (const int rows = std::min(maxRows, FModel->rowCount()); rows > 0)
    size.rheight() += rows * FView->sizeHintForRow(0) - FView->minimumHeight();
  size.rheight() += contentsMargins().top() + contentsMargins().bottom();
  return size;
}

QSize TItemList::minimumSizeHint() const {
  return {minChars * fontMetrics().averageCharWidth(), FSearch->sizeHint().height() * 4};
}

}  // namespace tolvi
