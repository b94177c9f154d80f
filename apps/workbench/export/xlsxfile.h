#pragma once

#include "apps/workbench/export/rowfiles.h"

class QIODevice;

namespace tolvi {

/// The format rfXlsx, by way of a file in the system's folder for temporary files. False when `progress` stopped it.
/// Raises `EFileError` with the reason alone.
bool WriteXlsx(QIODevice& target, const TSortedRows& rows, const TRowFileProgress& progress);

}  // namespace tolvi
