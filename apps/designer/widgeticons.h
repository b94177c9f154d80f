#pragma once

#include <QIcon>
#include <span>

namespace tolvi {

/// A part of an icon, on a field of 22 by 22.
struct TIconShape {
  enum TKind { isBox, isBar, isDisc, isCheck, isArrow };
  enum TTone { itInk, itLink, itFaint };
  TKind Kind;
  TTone Tone;
  double X, Y, Width, Height;
};

/// An icon of these shapes, crisp at every size, in the colours of the program's palette at the time of painting. The
/// shapes must outlive it.
QIcon ShapeIcon(std::span<const TIconShape> shapes);

}  // namespace tolvi
