// What a developer does to make a data model that end users can work with, from nothing but a database.
#pragma once

#include <QString>
#include <functional>
#include <string>

#include "apps/screenshots/designhost.h"

class QWidget;

namespace tolvi {

/// Called at the stations of the session, with the window that is worked in. The name says what is seen.
using TDesignStation = std::function<void(const std::string& name, QWidget& window)>;

/// What the developer has at the end.
struct TDesignResult {
  /// The query that was tried, as query text, and its statement.
  std::string Query, Statement;
};

/// Plays the session on the shop's database, with keys and clicks in the model editor alone: connects, fills the model,
/// edits it on all pages, tries a query, saves the model in `file` and ends with OK. Raises `EException` where what it
/// looks for is not there. Stations are
///   start, fill-tables, fill-fields, fill-links, fill-preview, add-tables, tables, link, found, fields,
///   value-editor, expression, field-operators, operators, conditions, settings, diagram, check, try
TDesignResult PlayDesign(TDesignHost& host, const QString& file, const TDesignStation& station);

}  // namespace tolvi
