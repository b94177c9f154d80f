#pragma once

#include <QImage>

namespace tolvi {

/// Few colours make up nearly all of a picture; the shades of letters that are left over get the nearest of them.
QImage Reduced(const QImage& picture);

}  // namespace tolvi
