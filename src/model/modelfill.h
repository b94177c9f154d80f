// Filling a model from a catalogue: tables, fields, links and lists of values as a person would have made them.
//
//   TJDBInfo info;  // with its handlers
//   TJDBStructure model;
//   const TFillReport report = FillModel(model, info, {});
//   std::puts(report.ToStrings().GetText().c_str());
#pragma once

#include <cstdint>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/model/link.h>

namespace tolvi {

class TJCustomDBStructure;
class TJDBInfo;

/// What to take from a catalogue. What the model has stays in any case, but for `TakeChangedTypes`.
struct TFillOptions {
  /// Names of tables and views as the catalogue gives them, ignoring case: only these are read. Empty: all.
  TStrings Tables;
  /// Whether views become tables of the model.
  bool Views = true;
  /// Whether foreign keys become links.
  bool LinksFromKeys = true;
  /// Whether a column that is called like the primary key of another table ("CustNo"; "customer_id" for the "id" of
  /// "Customers") is linked with it, if the types fit, no other table's key is called so, and no key links the two.
  bool LinksFromNames = false;
  /// How links join; a catalogue does not tell whether a foreign key may be empty. Where it may be empty, `ltOuterLeft`
  /// keeps the rows without one. A table that refers to itself is always joined so: the topmost rows refer to none.
  TDSLinkType LinkType = ltInner;
  /// Whether a table gets another alias for a second link between the same tables and for a link with itself. Without
  /// it, such links are left out.
  bool RoleTables = true;
  /// Whether the values of a foreign key are chosen from a list, where the table that it refers to has from 1 to
  /// `MaxListRows` rows and a text column. The catalogue source must run queries.
  bool ValueLists = true;
  std::int64_t MaxListRows = 200;
  /// Whether names of capitals and small letters are quoted: for databases that fold the case of unquoted names.
  bool QuoteMixedCase = false;
  /// Whether columns that the model lacks are added to tables that it has. Columns that somebody deleted from the model
  /// are such, too; deleted from a further alias of a table, they stay deleted while the table itself has them.
  bool NewFieldsInKnownTables = true;
  /// Whether fields take a type or size over that has changed in the catalogue, and with it the operators of the new
  /// type if they had just those of the old one.
  bool TakeChangedTypes = false;
  /// Whether the ID of a new field is made of the names of table and column, and not counted up. Queries know fields by
  /// their IDs: among models that are filled so, a query means the same, or names fields that a model does not know.
  bool FieldIDsFromNames = false;
};

/// What filling adds, and what it finds. Tables are given by alias, fields by alias and column, links by their join
/// condition.
struct TOLVI_CORE_API TFillReport {
  TStrings AddedTables, AddedFields, AddedLinks, AddedGroups;
  /// Fields that get a list of values.
  TStrings AddedLists;
  /// What the model has and the catalogue lacks. A link counts when one of its columns is gone; fields and links of a
  /// vanished table are not listed.
  TStrings VanishedTables, VanishedFields, VanishedLinks;
  /// "Orders.Total: ftInteger is ftFloat in the catalogue", whether taken over or not.
  TStrings ChangedTypes;
  /// What was left out or done besides, in sentences.
  TStrings Notes;

  bool Empty() const;
  /// All of it, each line with a word before it that tells which list it is from.
  TStrings ToStrings() const;

  bool operator==(const TFillReport&) const = default;
};

/// Adds to the model what the catalogue has and the model lacks.
///
/// 1. Tables get an alias that is a plain identifier and a readable name; their fields stand in a group of that name.
/// 2. Number keys are out of result columns; what no operator suits is out of conditions.
/// 3. A table that refers twice to another one, or to itself, gets further aliases of it, called after the column
///    ("ship_to", "manager"), with fields of their own.
/// 4. What is in the model stays as it is, its order, names, groups, flags and IDs; what has vanished is reported and
///    stays. Filling again changes nothing.
///
/// The catalogue is asked before anything changes: when a handler raises, the model is as before. Answers that make no
/// sense are noted and left out. A model without operators gets the default ones. `OnChange` fires once at the end, if
/// anything changed. Raises `EJDBStructError` when a handler has changed the model, and when the IDs of fields run out.
TOLVI_CORE_API TFillReport FillModel(TJCustomDBStructure& model, TJDBInfo& info, const TFillOptions& options);

/// What `FillModel` would report. Asks the catalogue the same questions, changes nothing.
TOLVI_CORE_API TFillReport PreviewFill(const TJCustomDBStructure& model, TJDBInfo& info, const TFillOptions& options);

}  // namespace tolvi
