#pragma once

#include <QString>

#include "apps/workbench/workspace/source.h"

namespace tolvi {

/// Puts the order database of a shop into the folder, with its model and its queries, which are part of the program; a
/// sample that is there stays as it is. Raises `EFileError`.
TSource UnpackSample(const QString& folder);

/// Puts it there anew; the former one is kept beside, under the name that this returns.
QString RestoreSample(const QString& folder);

}  // namespace tolvi
