#pragma once

#include <QString>
#include <memory>
#include <string>

#include "apps/workbench/workspace/workspace.h"
#include <tolvi/connect/connecturl.h>
class QWidget;

namespace tolvi {

/// How long an opening may take, in milliseconds: until a dialog says that it goes on, and until the server answers,
/// which is less than drivers wait: their words say little.
struct TOpeningPatience {
  int Dialog = 300;
  int Server = 15'000;
};

/// Opens the workspace in the background. Where that takes longer, a dialog shows it and can cancel it; the parent
/// takes no input meanwhile. Null: the user gave up. Raises as `TWorkspace`.
std::unique_ptr<TWorkspace> OpenWorkspace(QWidget* parent, const TSource& source, const std::string& password,
                                          const QString& folder, const TFormatSettings& formats,
                                          const TOpeningPatience& patience = {});

}  // namespace tolvi
