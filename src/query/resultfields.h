#pragma once

#include <any>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/objectlist.h>
#include <tolvi/foundation/strings.h>
#include <tolvi/query/uniquenames.h>

namespace tolvi {

class TDSField;
class TJCustomDBStructure;
class TJQueryPanel;
class TRFieldList;
class TSection;
class TSectionedText;
class TSectionWriter;

/// How a result column sorts. The ordinals are stored in query texts.
enum TSortingType : std::uint8_t { stNoSort, stAscending, stDescending };

/// A column of the statement: a formula over fields of the model, a caption for people, an alias for SQL. Its list
/// owns it; setters tell the list, which fires its `OnChange`.
class TOLVI_CORE_API TResultField final {
 public:
  TResultField() = default;
  TResultField(const TResultField&) = delete;
  TResultField& operator=(const TResultField&) = delete;

  /// The list that owns the column; null until it is added to one.
  TRFieldList* GetRFList() const { return FList; }
  TJQueryPanel* GetQueryPanel() const;

  /// The SQL expression, in which "@1", "@2", ... stand for the model fields below.
  const std::string& GetFormula() const { return FFormula; }
  void SetFormula(std::string_view formula);
  /// The model fields, in the order of their placeholders; the model's `NullField` for one that it lacks (without a
  /// model, a field of no model).
  const std::vector<TDSField*>& DSFields() const { return FDSFields; }
  void AddDSField(TDSField& field);
  /// Puts another field in the place of one. An index outside raises `EListError`, here and below.
  void SetDSField(std::size_t index, TDSField& field);
  /// Takes the field with its placeholders out; higher placeholders move down.
  void DelDSField(std::size_t index);

  /// The formula with each placeholder replaced by the field's full name in braces (where another field has that name,
  /// too, its display name or SQL); "}" in a name is doubled, and so is "{" outside names.
  std::string GetExpression() const;
  /// Makes formula and fields from an expression with field names in braces (full name, else display name, else SQL).
  /// Raises `EJQueryPanelError` "Unrecognized field "%s"", one that says which brace is open or that "@1" to "@9"
  /// stand outside braces, or one for a tenth field; nothing changes then. Names of fields that the model lacks and the
  /// column has already are taken as they are.
  void ProcessExpression(std::string_view expression);
  /// The same from SQL: an expression that is the SQL of one field becomes that field; otherwise qualified names that
  /// are fields of the model become placeholders, the rest stays as it is.
  void ProcessSQLExpr(std::string_view sqlExpr);

  /// Shown to people; kept unique in the list (a second "Total" becomes "Total 2").
  const std::string& GetCaption() const { return FCaption; }
  void SetCaption(std::string_view caption);
  /// The display names of the fields, or the formula of a column without fields, as caption.
  void GenerateCaption();
  /// The name of the column in SQL, unquoted. Every build makes it anew from the caption.
  const std::string& GetAlias() const { return FAlias; }
  void SetAlias(std::string_view alias);
  /// Makes the alias from the caption, unique in the list; empty for an empty caption, a hidden column, and where the
  /// list uses none.
  /// Quoted aliases are the caption as it stands. Others are names that SQL can hold without quotes: blanks become "_",
  /// and what is no letter, digit or "_" is left out; "C" and the number when nothing is left. Fires nothing.
  void GenerateAlias();
  /// The alias as SQL writes it, in quote symbols where the list quotes aliases.
  std::string GetSQLAlias() const;
  /// The opening (1) or closing (2) quote symbol of the model's formats.
  char GetQuoteSymbol(int which) const;

  TSortingType GetSorting() const { return FSorting; }
  void SetSorting(TSortingType sorting);
  /// Position among the sorted columns; equal ones sort in column order.
  int GetSortOrder() const { return FSortOrder; }
  void SetSortOrder(int order);
  /// Whether the column is left out of the select list. It may still sort, and groups as any other. Default false.
  bool GetHidden() const { return FHidden; }
  void SetHidden(bool hidden);
  /// The 1-based place in the select list, 0 for a hidden column; as of the last `GenerateNumbers`.
  int GetNumber() const { return FNumber; }

  /// The formula with the fields' SQL; with their columns always in double quotes.
  std::string GetSQLExpr() const;
  void AppendSQLExpr(std::string& out) const;
  std::string GetNormalSQLExpr() const;
  /// Whether the column is one field and nothing more.
  bool IsPlainField() const { return FDSFields.size() == 1 && FFormula == "@1"; }
  /// The column as SELECT lists it: the expression and, unless it is a single field of that very name, " as " and
  /// the alias.
  void AppendSelectExpr(std::string& out) const;
  std::string GetSelectExpr() const;
  /// What ORDER BY holds when it names expressions.
  std::string GetOrderName() const { return GetSQLExpr(); }
  /// Whether the column is an aggregate: by its first field, or by an aggregate function in the formula, be it the one
  /// by which the model lists values.
  bool GetAgregate() const;

  const std::any& GetOleObject() const { return FOleObject; }
  void SetOleObject(std::any object) { FOleObject = std::move(object); }

  /// Copies everything but the list.
  void Assign(const TResultField& source);
  void AssignTo(TResultField& target) const { target.Assign(*this); }

 private:
  friend class TRFieldList;
  /// What the fields of a column come to: the formula, the fields, and per field its ID or name in the text where the
  /// model lacks it (else empty).
  struct TContent {
    std::string Formula;
    std::vector<TDSField*> Fields;
    std::vector<std::string> Missing;

    std::string PlaceholderOf(TDSField& field, std::string_view missing);
  };
  TContent ParseExpression(const TJCustomDBStructure* model, std::string_view expression) const;
  static TContent ParseSQLExpr(const TJCustomDBStructure* model, std::string_view sqlExpr);
  void Take(TContent content);
  void AppendReference(std::string& out, std::size_t index) const;

  TJCustomDBStructure* GetModel() const;
  void Changed();
  void CheckIndex(std::size_t index) const;
  void CheckNoneMissing() const;
  void BindFields(const TJCustomDBStructure* model);
  bool FindField(const TJCustomDBStructure* model, std::size_t index);
  bool ResolveFields(const TJCustomDBStructure* model);
  bool ForgetFields(const TJCustomDBStructure* model, const TDSField* field);
  std::string MakeCaption() const;
  std::string MakeAlias() const;
  std::string NumberedAlias() const { return "C" + std::to_string(FNumber); }
  std::string FieldsText() const;
  template <typename TTextOf>
  void AppendSQL(std::string& out, TTextOf textOf) const;

  TRFieldList* FList = nullptr;
  std::vector<TDSField*> FDSFields;
  // Per field: its ID or name in the text, for those that the model lacks; empty for all others.
  std::vector<std::string> FMissing;
  std::string FCaption, FAlias, FFormula;
  TSortingType FSorting = stNoSort;
  bool FHidden = false;
  int FNumber = 0, FSortOrder = 0;
  std::any FOleObject;
};

/// The columns of a query.
class TOLVI_CORE_API TRFieldList final {
 public:
  explicit TRFieldList(TJCustomDBStructure* dbStruct = nullptr, TJQueryPanel* panel = nullptr)
      : FDBStruct(dbStruct), FQueryPanel(panel) {}
  TRFieldList(const TRFieldList&) = delete;
  TRFieldList& operator=(const TRFieldList&) = delete;
  ~TRFieldList();

  TJQueryPanel* GetQueryPanel() const { return FQueryPanel; }
  TJCustomDBStructure* GetDBStruct() const { return FDBStruct; }
  /// Not owned. Fields of the old model become unknown ones, and are looked up in the new model by their IDs.
  void SetDBStruct(TJCustomDBStructure* dbStruct);

  std::size_t Count() const { return FItems.Count(); }
  bool Empty() const { return FItems.Empty(); }
  TResultField& operator[](std::size_t index) const { return FItems[index]; }
  TResultField& GetRField(std::size_t index) const { return FItems[index]; }
  auto begin() const { return FItems.begin(); }
  auto end() const { return FItems.end(); }
  std::ptrdiff_t IndexOf(const TResultField& field) const { return FItems.IndexOf(&field); }

  /// A new column, at the end or at `index`: empty; of one model field; from an expression with names in braces; from
  /// SQL. The latter get a caption from their fields. Errors as in `ProcessExpression`; nothing is added then.
  TResultField& New();
  TResultField& Add(TDSField& field) { return Insert(Count(), field); }
  TResultField& Insert(std::size_t index, TDSField& field);
  TResultField& AddByExpression(std::string_view expression) { return InsertByExpression(Count(), expression); }
  TResultField& InsertByExpression(std::size_t index, std::string_view expression);
  TResultField& AddBySQLExpr(std::string_view sqlExpr) { return InsertBySQLExpr(Count(), sqlExpr); }
  TResultField& InsertBySQLExpr(std::size_t index, std::string_view sqlExpr);
  /// A column that is in no list yet; `InsertRField` takes it over.
  std::unique_ptr<TResultField> CreateRField() const { return std::make_unique<TResultField>(); }
  TResultField& InsertRField(std::size_t index, std::unique_ptr<TResultField> field);
  [[nodiscard]] std::unique_ptr<TResultField> Delete(std::size_t index);
  void Move(std::size_t from, std::size_t to);
  void Clear();

  /// The captions of the shown columns joined by ", "; "*" when that is empty.
  std::string GetCaption() const;
  /// Whether aliases are made from captions. Default true.
  bool GetUseAliases() const { return FUseAliases; }
  void SetUseAliases(bool on);
  /// Whether aliases are written in quote symbols, as the caption stands. Default false.
  bool GetQuoteAliases() const { return FQuoteAliases; }
  void SetQuoteAliases(bool on);
  /// Whether aliases are reduced to ASCII. Default false.
  bool GetAsciiAliases() const { return FAsciiAliases; }
  void SetAsciiAliases(bool on);
  /// Whether the columns only sort, and the statement shows all columns ("*"). Default false.
  bool GetJustSorting() const { return FJustSorting; }
  void SetJustSorting(bool on);
  /// Whether the statement shows all columns: those of the list only sort, or none of them is shown.
  bool GetShowsAll() const;
  /// How many columns sort.
  std::size_t GetSortCount() const;

  /// Whether no other column than `except` has the caption (alias), ignoring case; the caption (alias) made unique by
  /// " 2", " 3", ... ("_2", "_3", ...).
  bool CheckUniqCaption(std::string_view caption, const TResultField* except = nullptr) const;
  bool CheckUniqAlias(std::string_view alias, const TResultField* except = nullptr) const;
  std::string GetUniqCaption(std::string_view caption, const TResultField* except = nullptr) const;
  std::string GetUniqAlias(std::string_view alias, const TResultField* except = nullptr) const;
  /// Numbers the shown columns 1, 2, ...; makes all aliases from the captions. Fire nothing; cheap when nothing has
  /// changed.
  void GenerateNumbers();
  void RegenerateAliases();
  /// Gives each column whose alias is not ASCII the alias "C" and its number. Fires nothing.
  void ReplaceNonAsciiAliases();

  /// Writes and reads the sections "[RFields]" and "[RFieldN]" of a query text. `panelVersion` is the version of the
  /// query text, for columns that do not tell their own (1.7 without a panel). Fields that the model lacks are kept
  /// as unknown ones, and told to `missing` (section name, text). Reading raises `EConvertError` for a bad number.
  void SaveToStrings(TStrings& lines) const;
  void LoadFromStrings(const TStrings& lines);
  void Write(TSectionWriter& writer) const;
  void Read(TSectionedText& text, double panelVersion,
            const std::function<void(std::string_view section, const std::string& message)>& missing = {});

  /// Between these, `OnChange` is held back; `EndUpdate` fires it once if something has changed. They nest. Changes
  /// made by the handler fire nothing. The handler may destroy the list.
  void BeginUpdate() { ++FUpdating; }
  void EndUpdate();
  /// Called by the columns after each change.
  void RFieldChanged();
  std::function<void()> OnChange;
  /// A number that grows with every change.
  std::uint64_t GetRevision() const { return FRevision; }

  /// Keep the columns, mark the field (all fields) unknown; look unknown fields up again. `ForgetFields` fires nothing.
  void FieldRemoved(const TDSField& field);
  void ForgetFields();
  void ResolveFields();

  const std::any& GetOleObject() const { return FOleObject; }
  void SetOleObject(std::any object) { FOleObject = std::move(object); }

  /// Copies columns and settings; model, panel and handler stay.
  void Assign(const TRFieldList& source);
  void AssignTo(TRFieldList& target) const { target.Assign(*this); }

 private:
  friend class TResultField;
  friend class TJQueryPanel;
  // Exchanges the columns, and whether they just sort; fires nothing.
  void Exchange(TRFieldList& other);
  using TMissingHandler = std::function<void(std::string_view section, const std::string& message)>;
  TResultField& InsertContent(std::size_t index, TResultField::TContent content);
  void Adopt(TResultField& field);
  void Replace(std::vector<std::unique_ptr<TResultField>> fields);
  std::unique_ptr<TResultField> ReadField(const TSection& section, double version,
                                          const TMissingHandler& missing) const;
  void Set(bool& setting, bool on);
  void Fire();

  TJCustomDBStructure* FDBStruct;
  TJQueryPanel* FQueryPanel;
  TJObjectList<TResultField> FItems;
  TUniqueNames FCaptions;
  bool FUseAliases = true, FQuoteAliases = false, FAsciiAliases = false, FJustSorting = false, FChangePending = false;
  int FUpdating = 0;
  // While `OnChange` runs: where to tell that the handler has destroyed the list.
  bool* FFiring = nullptr;
  std::uint64_t FRevision = 1, FAliasesRevision = 0, FNumbersRevision = 0;
  std::any FOleObject;
};

}  // namespace tolvi
