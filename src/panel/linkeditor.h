// The link editor without its dialog: a copy of a link that is being edited.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/model/linkcheck.h>

namespace tolvi {

/// A comparison of a link. The sides are as the link holds them: a column, perhaps behind "fld:", or a constant behind
/// "val:".
struct TLinkPair {
  std::string Side1, Symbol = "=", Side2;
  bool operator==(const TLinkPair&) const = default;
};

/// Edits a copy of a link between tables of a model. `side` is 0 for the first table, 1 for the second one. An index
/// outside the pairs does nothing.
class TOLVI_CORE_API TLinkEditor final {
 public:
  /// The model must outlive the editor; the link is needed for `Apply` only, and to tell it from others. Where its
  /// lists differ in length, empty sides are added, and "=".
  TLinkEditor(TJCustomDBStructure& model, const TDSLink& link);

  TJCustomDBStructure& Model() const { return FModel; }

  /// Tables can be chosen for a link that is not in the model.
  bool CanChooseTables() const { return FInModel == nullptr; }
  TDSTable& Table(std::size_t side) const { return *FTables[side]; }
  void SetTable(std::size_t side, TDSTable& table);
  /// The tables change places; the link stays the same.
  void Swap();
  /// Its display name; its alias too, where both tables are called alike.
  std::string TableName(std::size_t side) const;
  /// What the table's columns are called, by the catalogue if it is connected and knows the table, else by the model's
  /// fields.
  const TStrings& Columns(std::size_t side) const { return FSides[side].Columns; }

  const std::vector<TLinkPair>& Pairs() const { return FPairs; }
  /// Adds a pair at the end, to be filled in.
  void AddPair();
  void DeletePair(std::size_t index);
  void MovePair(std::size_t from, std::size_t to);
  /// A first column chosen takes that of the same name in the other table with it, where there is one.
  void SetSide(std::size_t index, std::size_t side, std::string_view entry);
  void SetSymbol(std::size_t index, std::string_view symbol);

  TDSLinkType GetLinkType() const { return FLinkType; }
  void SetLinkType(TDSLinkType linkType) { FLinkType = linkType; }
  bool GetQuoteFields() const { return FQuoteFields; }
  void SetQuoteFields(bool quote) { FQuoteFields = quote; }

  /// What is wrong or suspicious, errors first.
  TLinkFindings Findings() const;
  /// The join condition as statements will have it.
  std::string Condition() const;

  /// Makes the link one like the copy, in one change of the model.
  void Apply(TDSLink& link) const;

 private:
  void ReadColumns(std::size_t side);
  TStrings Texts(std::string TLinkPair::*part) const;
  void ApplyTo(TDSLink& link) const;

  TJCustomDBStructure& FModel;
  // The link, if it is one of the model's.
  const TDSLink* FInModel = nullptr;
  TDSTable* FTables[2];
  TLinkSideInfo FSides[2];
  // Why the catalogue did not tell the columns.
  std::string FFaults[2];
  std::vector<TLinkPair> FPairs;
  TDSLinkType FLinkType;
  bool FQuoteFields;
};

}  // namespace tolvi
