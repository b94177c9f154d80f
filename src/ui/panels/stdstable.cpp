#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cmath>

#include <qdrawutil.h>

#include <tolvi/foundation/text.h>
#include <tolvi/model/table.h>
#include <tolvi/panel/stdsplaces.h>
#include <tolvi/ui/controls/contrast.h>
#include <tolvi/ui/panels/stdstable.h>
#include <tolvi/ui/qtext.h>

namespace tolvi {
namespace {

// In pixels at a zoom of 1.
constexpr int FrameWidth = 3, BevelWidth = 2, EdgeReach = 5, TextAir = 4, ScrollBarWidth = 9, MinThumb = 16;
/// Below these zooms nobody can read fields, titles.
constexpr double FieldZoom = 0.35, TitleZoom = 0.2;

constexpr QColor InactiveTitle(0x80, 0x80, 0x80), ActiveTitle(0x00, 0x00, 0x80);
constexpr QColor KeyColor(0xb0, 0x80, 0x00), LinkedColor(0x20, 0x70, 0xd0);

}  // namespace

void TDesignStyle::Take(const QPalette& palette, const QFont& font, Qt::LayoutDirection direction) {
  Palette = palette;
  Font = font;
  // Paper and pictures have other dots to the inch than the screen that the sizes come from.
  Font.setPixelSize(std::max(1, QFontInfo(font).pixelSize()));
  RightToLeft = direction == Qt::RightToLeft;
  const QFontMetrics metrics(Font);
  TitleHeight = std::max(18, metrics.height() + 2);
  ItemHeight = metrics.height() + 1;
  MarkWidth = metrics.ascent() + 2;
}

void TTableRepListBox::SetItems(const TStrings& names) {
  if (FHasFields && std::equal(FItems.begin(), FItems.end(), names.begin(), names.end())) return;
  FItems.assign(names.begin(), names.end());
  FMarks.assign(FItems.size(), mkNone);
  FItemIndex = -1;
  FHasFields = true;
  FBox.FShown.clear();
  FBox.ListChanged();
}

void TTableRepListBox::SetMessage(std::string_view message) {
  if (!FHasFields && FItems.size() == 1 && FItems.front() == message) return;
  FItems.assign(1, std::string(message));
  FMarks.assign(1, mkNone);
  FItemIndex = -1;
  FHasFields = false;
  FBox.FShown.clear();
  FBox.ListChanged();
}

std::ptrdiff_t TTableRepListBox::IndexOf(std::string_view name) const {
  const auto found =
      std::find_if(FItems.begin(), FItems.end(), [&](const std::string& item) { return SameText(item, name); });
  return FHasFields && found != FItems.end() ? found - FItems.begin() : -1;
}

std::size_t TTableRepListBox::VisibleCount() const {
  return static_cast<std::size_t>(std::max(1, FBox.ListRect().height() / FBox.FStyle.ItemHeight));
}

std::size_t TTableRepListBox::MaxTopIndex() const {
  const std::size_t visible = VisibleCount();
  return FItems.size() > visible ? FItems.size() - visible : 0;
}

void TTableRepListBox::SetTopIndex(std::ptrdiff_t index) {
  const auto top = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(index, 0, std::ptrdiff_t(MaxTopIndex())));
  if (top == FTopIndex) return;
  FTopIndex = top;
  FBox.ListChanged();
}

void TTableRepListBox::ClampTopIndex() { FTopIndex = std::min(FTopIndex, MaxTopIndex()); }

void TTableRepListBox::SetItemIndex(std::ptrdiff_t index) {
  if (!FHasFields || index < -1 || index >= std::ptrdiff_t(FItems.size())) index = -1;
  FItemIndex = index;
  if (index >= 0) {
    const auto visible = static_cast<std::ptrdiff_t>(VisibleCount());
    SetTopIndex(std::clamp(static_cast<std::ptrdiff_t>(FTopIndex), index - visible + 1, index));
  }
  FBox.update();
}

std::string TTableRepListBox::GetItemText() const {
  return FItemIndex < 0 ? std::string() : FItems[static_cast<std::size_t>(FItemIndex)];
}

void TTableRepListBox::SetKeys(const TStrings& names) { Mark(mkKey, {names.begin(), names.end()}); }

void TTableRepListBox::SetLinked(const std::vector<std::string>& names) { Mark(mkLinked, names); }

void TTableRepListBox::Mark(std::uint8_t mark, const std::vector<std::string>& names) {
  for (std::uint8_t& marks : FMarks) marks = static_cast<std::uint8_t>(marks & ~mark);
  for (const std::string& name : names) {
    const std::ptrdiff_t index = IndexOf(name);
    if (index >= 0) FMarks[static_cast<std::size_t>(index)] |= mark;
  }
  FBox.update();
}

TTableRep::TTableRep(TDSTable& table, const TDesignStyle& style) : FTable(&table), FStyle(style), FFieldsLB(*this) {
  FPlace.Width = NewBoxSize.Width;
  FPlace.Height = NewBoxSize.Height;
  setAcceptedMouseButtons(Qt::NoButton);
  setFlag(ItemUsesExtendedStyleOption);
  RefreshTitle();
}

void TTableRep::RefreshTitle() {
  const TDSTable& table = *FTable;
  FTitle = ToQString(table.GetDisplayName().empty() ? table.GetTableAlias() : table.GetDisplayName());
  update();
}

void TTableRep::StyleChanged() {
  FShown.clear();
  SetPlace(FPlace);
  ListChanged();
}

void TTableRep::SetPlace(TDesignRect place) {
  const TDesignSize least = MinSize();
  place.Width = std::max(place.Width, least.Width);
  place.Height = std::max(place.Height, least.Height);
  place.Left = std::max(place.Left, 0);
  place.Top = std::max(place.Top, 0);
  if (place == FPlace && pos() == QPointF(place.Left, place.Top)) return;
  prepareGeometryChange();
  // The height, too: with it the scroll bar comes and goes.
  if (place.Width != FPlace.Width || place.Height != FPlace.Height) FShown.clear();
  FPlace = place;
  setPos(place.Left, place.Top);
  FFieldsLB.ClampTopIndex();
  if (OnMove) OnMove(*this);
}

TTableBox TTableRep::GetBox() const {
  return {FPlace, FFieldsLB.Items(), FFieldsLB.GetTopIndex(), ListRect().top(), FStyle.ItemHeight};
}

TDesignSize TTableRep::MinSize() const {
  return {4 * FStyle.ItemHeight, 2 * FrameWidth + FStyle.TitleHeight + FStyle.ItemHeight};
}

int TTableRep::FittingHeight() const {
  return 2 * FrameWidth + FStyle.TitleHeight + static_cast<int>(FFieldsLB.Items().size()) * FStyle.ItemHeight;
}

void TTableRep::SetActive(bool active) {
  FActive = active;
  update();
}

void TTableRep::SetChosen(bool chosen) {
  if (chosen == FChosen) return;
  FChosen = chosen;
  update();
}

TTableRep::THit TTableRep::HitAt(TDesignPoint point) const {
  const TDesignPoint at{point.X - FPlace.Left, point.Y - FPlace.Top};
  const QRect list = ListRect();
  Qt::Edges edges;
  if (at.X < FrameWidth) edges |= Qt::LeftEdge;
  if (at.X > FPlace.Width - EdgeReach) edges |= Qt::RightEdge;
  if (at.Y < FrameWidth) edges |= Qt::TopEdge;
  if (at.Y > FPlace.Height - EdgeReach) edges |= Qt::BottomEdge;
  if (edges) return {bpEdge, 0, edges};
  if (at.Y < list.top()) return {bpTitle, 0, {}};
  const QRect thumb = ThumbRect();
  if (!thumb.isNull() && at.X >= thumb.left() && at.X <= thumb.right() + 1) return {bpScrollBar, 0, {}};
  const auto row = static_cast<std::size_t>(std::max(0, at.Y - list.top()) / FStyle.ItemHeight);
  const std::size_t index = FFieldsLB.GetTopIndex() + row;
  if (!FFieldsLB.HasFields() || index >= FFieldsLB.Items().size()) return {bpList, 0, {}};
  return {bpField, index, {}};
}

std::ptrdiff_t TTableRep::TopIndexAt(double y) const {
  const QRect list = ListRect(), thumb = ThumbRect();
  const double way = std::max(1, list.height() - thumb.height());
  return std::llround((y - list.top() - thumb.height() / 2.0) / way * double(FFieldsLB.MaxTopIndex()));
}

QRectF TTableRep::boundingRect() const { return QRectF(-2, -2, FPlace.Width + 4, FPlace.Height + 4); }

QRect TTableRep::ListRect() const {
  const int top = FrameWidth + FStyle.TitleHeight;
  return {FrameWidth, top, FPlace.Width - 2 * FrameWidth, std::max(0, FPlace.Height - FrameWidth - top)};
}

QRect TTableRep::ThumbRect() const {
  const std::size_t most = FFieldsLB.MaxTopIndex();
  if (most == 0) return {};
  const QRect list = ListRect();
  const double part = double(FFieldsLB.VisibleCount()) / double(FFieldsLB.Items().size());
  const int height = std::min(list.height(), std::max(MinThumb, int(list.height() * part)));
  const int above = int((list.height() - height) * double(FFieldsLB.GetTopIndex()) / double(most));
  return Mirrored({list.right() + 1 - ScrollBarWidth, list.top() + above, ScrollBarWidth, height});
}

/// A part of the box as it lies when one reads from left to right.
QRect TTableRep::Mirrored(const QRect& part) const {
  if (!FStyle.RightToLeft) return part;
  return {FPlace.Width - part.left() - part.width(), part.top(), part.width(), part.height()};
}

void TTableRep::ListChanged() {
  FFieldsLB.ClampTopIndex();
  update();
  if (OnMove) OnMove(*this);
}

void TTableRep::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*) {
  const double zoom = FStyle.ForExport ? 1 : option->levelOfDetailFromTransform(painter->worldTransform());
  const QRect box(0, 0, FPlace.Width, FPlace.Height);
  painter->setFont(FStyle.Font);
  if (zoom < FieldZoom) {
    painter->fillRect(box, FStyle.Palette.color(QPalette::Dark));
  } else {
    painter->fillRect(box, FStyle.Palette.color(QPalette::Window));
    qDrawShadePanel(painter, box, FStyle.Palette, false, BevelWidth);
    painter->setPen(FStyle.Palette.color(QPalette::Shadow));
    painter->drawRect(box.adjusted(0, 0, -1, -1));
  }
  if (FChosen && !FStyle.ForExport) {
    QPen pen(FStyle.Palette.color(QPalette::Highlight), 2);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->drawRect(box);
  }
  const QRect title(FrameWidth, FrameWidth, FPlace.Width - 2 * FrameWidth, FStyle.TitleHeight);
  painter->fillRect(title, FActive && !FStyle.ForExport ? ActiveTitle : InactiveTitle);
  if (zoom >= TitleZoom) PaintTitle(*painter);
  PaintFields(*painter, zoom >= FieldZoom);
}

void TTableRep::PaintTitle(QPainter& painter) const {
  const QRect title(FrameWidth + TextAir, FrameWidth, FPlace.Width - 2 * (FrameWidth + TextAir), FStyle.TitleHeight);
  painter.setPen(FActive && !FStyle.ForExport ? Qt::white : Qt::black);
  const QString shown = QFontMetrics(FStyle.Font).elidedText(FTitle, Qt::ElideRight, title.width());
  const Qt::Alignment side = FStyle.RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
  painter.drawText(title, int(Qt::AlignVCenter | Qt::AlignAbsolute | side) | Qt::TextSingleLine, shown);
}

void TTableRep::PaintFields(QPainter& painter, bool withTexts) const {
  const QRect list = ListRect();
  painter.fillRect(list, FStyle.Palette.color(QPalette::Base));
  if (!withTexts) return;
  const QRect thumb = ThumbRect();
  const QColor plain = FStyle.Palette.color(QPalette::Text), back = FStyle.Palette.color(QPalette::Base);
  const QFontMetrics metrics(FStyle.Font);
  const int right = list.right() + 1 - (thumb.isNull() ? 0 : ScrollBarWidth);
  const int left = list.left() + (FFieldsLB.HasFields() ? FStyle.MarkWidth : TextAir);
  FShown.resize(FFieldsLB.Items().size());
  painter.save();
  painter.setClipRect(list, Qt::IntersectClip);
  int y = list.top();
  for (std::size_t i = FFieldsLB.GetTopIndex(); i < FFieldsLB.Items().size() && y <= list.bottom(); ++i) {
    const QRect row = Mirrored({list.left(), y, right - list.left(), FStyle.ItemHeight});
    const bool current = std::ptrdiff_t(i) == FFieldsLB.GetItemIndex() && !FStyle.ForExport;
    if (current) painter.fillRect(row, FStyle.Palette.color(QPalette::Highlight));
    QString& shown = FShown[i];
    if (shown.isNull()) {
      shown = metrics.elidedText(ToQString(FFieldsLB.Items()[i]), Qt::ElideRight, std::max(0, right - left - 1));
    }
    const QColor color = current ? FStyle.Palette.color(QPalette::HighlightedText) : plain;
    const QRect mark = Mirrored({list.left(), y, FStyle.MarkWidth, FStyle.ItemHeight});
    PaintMark(painter, mark, FFieldsLB.GetMarks(i), current ? FStyle.Palette.color(QPalette::Highlight) : back);
    painter.setPen(color);
    const int at = FStyle.RightToLeft ? FPlace.Width - left - metrics.horizontalAdvance(shown) : left;
    painter.drawText(QPoint(at, y + metrics.ascent()), shown);
    y += FStyle.ItemHeight;
  }
  if (!thumb.isNull()) {
    painter.fillRect(thumb.left(), list.top(), ScrollBarWidth, list.height(), MixedColor(plain, back, 0.08));
    painter.fillRect(thumb.adjusted(1, 1, -1, -1), MixedColor(plain, back, 0.4));
  }
  painter.restore();
}

/// A key, and below or else in its place a dot for a linked field.
void TTableRep::PaintMark(QPainter& painter, const QRect& place, std::uint8_t marks, const QColor& back) const {
  if (marks == TTableRepListBox::mkNone) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double unit = place.width() / 14.0;
  painter.translate(QRectF(place).center());
  painter.scale(unit, unit);
  if (marks & TTableRepListBox::mkKey) {
    painter.setPen(QPen(ReadableColor(KeyColor, back, 3), 1.4));
    painter.drawEllipse(QPointF(-2.5, 0), 2.2, 2.2);
    painter.drawLine(QPointF(-0.3, 0), QPointF(5, 0));
    painter.drawLine(QPointF(4.6, 0), QPointF(4.6, 2.4));
    painter.drawLine(QPointF(2.4, 0), QPointF(2.4, 2));
  }
  if (marks & TTableRepListBox::mkLinked) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ReadableColor(LinkedColor, back, 3));
    const QPointF at = marks & TTableRepListBox::mkKey ? QPointF(-2.5, 0) : QPointF(0, 0);
    const double radius = marks & TTableRepListBox::mkKey ? 1.3 : 2.2;
    painter.drawEllipse(at, radius, radius);
  }
  painter.restore();
}

TTableRep* IsOverSomeTable(const TTableRepList& boxes, TDesignPoint point) {
  for (TTableRep& box : boxes) {
    if (box.GetPlace().Contains(point)) return &box;
  }
  return nullptr;
}

}  // namespace tolvi
