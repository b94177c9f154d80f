#pragma once

#include <QString>
#include <QVariant>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "apps/workbench/export/rowfiles.h"

class QWidget;

namespace tolvi {

/// Where a dialog remembers what the user chose. Either may be empty.
struct TMemory {
  std::function<QVariant(const QString& key)> Get;
  std::function<void(const QString& key, const QVariant& value)> Set;
};

/// Asks for a file and a format and writes the rows to it, with a progress dialog when that takes a while. The file;
/// empty when none was written. What fails is told in a message box. Remembers folder and format as "export.folder" and
/// "export.format". Nobody may add to the rows meanwhile.
QString ExportRows(QWidget* parent, std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order,
                   const QString& suggestedName, const TMemory& memory = {});

/// The part behind the choice of the file. Whether it was written.
bool ExportRowsTo(QWidget* parent, std::shared_ptr<const TResultRows> rows, std::vector<std::uint32_t> order,
                  const QString& file, TRowFileFormat format);

/// A text as a name of a file: what file systems refuse becomes "_", without a point at its ends. Empty for nothing.
QString FileNameOf(const QString& text);

}  // namespace tolvi
