// ORDER BY: what the parser finds there are names or numbers of result fields.
#include <charconv>
#include <cstdint>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/text.h>
#include <tolvi/sqlimport/sqlpars.h>

namespace tolvi {

namespace {

// Up to so many fields, looking through them is quicker than making an index.
constexpr std::size_t FewFields = 16;

}  // namespace

// Finds the fields that ORDER BY names. The list must not change meanwhile.
class TJSQLParser::TSortNames final {
 public:
  explicit TSortNames(const TSQLResultFieldList& fields) : FFields(fields) {}

  /// The first field with that alias.
  [[nodiscard]] TSQLResultField* FindAlias(std::string_view name) {
    if (FFields.Count() <= FewFields) return FieldAt(FFields.IndexByAlias(name));
    if (FByAlias.empty()) MakeIndexes();
    return FieldAt(IndexIn(FByAlias, name));
  }
  /// The first field with that alias, else the first with that expression.
  [[nodiscard]] TSQLResultField* Find(std::string_view name) {
    if (TSQLResultField* field = FindAlias(name)) return field;
    return FieldAt(FByExpr.empty() ? FFields.IndexByExpr(name) : IndexIn(FByExpr, name));
  }

 private:
  using TIndex = std::unordered_map<std::string_view, std::size_t, TFoldedHash, TFoldedEqual>;

  void MakeIndexes() {
    for (std::size_t i = 0; i < FFields.Count(); ++i) {
      FByAlias.try_emplace(FFields[i].GetAlias(), i);
      FByExpr.try_emplace(FFields[i].GetSQLExpr(), i);
    }
  }
  static std::ptrdiff_t IndexIn(const TIndex& index, std::string_view name) {
    const auto found = index.find(name);
    return found == index.end() ? -1 : static_cast<std::ptrdiff_t>(found->second);
  }
  [[nodiscard]] TSQLResultField* FieldAt(std::ptrdiff_t index) const {
    return index < 0 ? nullptr : &FFields[static_cast<std::size_t>(index)];
  }

  const TSQLResultFieldList& FFields;
  TIndex FByAlias, FByExpr;
};

void TJSQLParser::ProcessOrderBy() {
  Expect(wdOrder);
  Expect(wdBy);
  TSQLResultFieldList& fields = FResult.ResultFields();
  const bool byNumber = FScanner.GetTokType() == ttInteger;
  TSortNames names(fields);
  for (int position = 1;; ++position) {
    const std::size_t pos = FScanner.GetTokPos();
    TSQLResultField* field = nullptr;
    if (byNumber) {
      field = &FieldByNumber();
    } else if (TSQLText name = ProcessQualifiedName(2); fields.GetJustSorting()) {
      field = &fields.Add(std::make_unique<TSQLResultField>());
      field->SetPos(pos);
      field->SetSQLExpr(std::move(name));
    } else {
      field = names.Find(name.Get());
      if (!field && FWholeQuotedNames) field = names.FindAlias(UnquotedString(name.Get(), '"'));
    }
    if (!field) Error(SWrongSQLStatement);
    field->SetSorting(1);
    field->SetSortOrder(position);
    if (FWord != wdEnd && FWord != wdComma) {
      if (FWord == wdDesc) {
        field->SetSorting(2);
      } else if (FWord != wdAsc) {
        FResult.AddDropped({sdSortWord, FScanner.GetTokPos(), FScanner.GetTokEnd()});
      }
      NextToken();
    }
    if (FWord != wdComma) return;
    NextToken();
    if (byNumber && FScanner.GetTokType() != ttInteger) Error(SWrongSQLStatement);
  }
}

TSQLResultField& TJSQLParser::FieldByNumber() {
  const std::string_view digits = FScanner.GetRealStr();
  std::int64_t number = 0;
  if (std::from_chars(digits.data(), digits.data() + digits.size(), number).ec != std::errc()) {
    number = std::numeric_limits<std::int64_t>::max();
  }
  const TSQLResultFieldList& fields = FResult.ResultFields();
  if (number < 1 || number > static_cast<std::int64_t>(fields.Count())) throw EListError::OutOfBounds(number - 1);
  NextToken();
  return fields[static_cast<std::size_t>(number - 1)];
}

}  // namespace tolvi
