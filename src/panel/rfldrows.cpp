#include <algorithm>
#include <utility>

#include <tolvi/foundation/consts.h>
#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/numbers.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/foundation/text.h>
#include <tolvi/model/dbstruc.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/query/resultfields.h>
#include <tolvi/query/resultformula.h>
#include <tolvi/query/titles.h>

namespace tolvi {
namespace {

constexpr std::string_view FieldPlace = "@1";

std::string CaptionOf(const TDSField& field, const TRFCaptionStyle& style) {
  return style.ShowGroupName ? field.GetCompoundName(style.NameSeparator) : field.GetDisplayName();
}

std::string FormulaWithCaptions(const TResultField& field, const TRFCaptionStyle& style) {
  const std::vector<TDSField*>& fields = field.DSFields();
  std::string text;
  ForEachPlaceholder(
      field.GetFormula(), fields.size(), [&text](std::string_view literal) { text += literal; },
      [&](std::size_t index) { text += CaptionOf(*fields[index], style); });
  return text;
}

}  // namespace

const TStrings& DefaultRFPanelTitles() {
  static const TStrings titles{
      "ttlDelField=Delete current field",
      "ttlMoveUp=Move Up",
      "ttlMoveDown=Move Down",
      "ttlNotSorted=Not Sorted",
      "ttlAscending=Ascending",
      "ttlDescending=Descending",
      "ttlClickToAdd=Click to add new field",
  };
  return titles;
}

void LoadRFPanelTitles(TStrings& titles, const TStrings& given) {
  TStrings own = XReadSLSectionValues(given, RFPanelTitlesHeader.substr(1, RFPanelTitlesHeader.size() - 2));
  const auto header = std::find_if(given.begin(), given.end(), IsSectionHeader);
  own.AddStrings(TStrings(std::vector<std::string>(given.begin(), header)));
  LoadTitlesFromStrings(DefaultRFPanelTitles(), titles, own);
}

// What rows show

std::vector<const TDSFieldGroup*> GroupsInOrder(const TJCustomDBStructure& model) {
  std::vector<const TDSFieldGroup*> groups;
  groups.reserve(model.FieldGroups().Count() + 1);
  if (model.GetRootFieldsFirst()) groups.push_back(&model.RootGroup());
  for (const TDSFieldGroup& group : model.FieldGroups()) groups.push_back(&group);
  if (!model.GetRootFieldsFirst()) groups.push_back(&model.RootGroup());
  return groups;
}

std::vector<TRFItem> ResultFieldItems(const TJCustomDBStructure& model) {
  std::vector<TRFItem> items;
  for (const TDSFieldGroup* group : GroupsInOrder(model)) {
    for (const TDSField* field : *group) {
      if (!field->GetUseInResult()) continue;
      items.push_back({group->GetGroupName(), std::to_string(field->GetID()), field->GetDisplayName()});
    }
  }
  return items;
}

TDSField* GetFirstResultField(const TJCustomDBStructure& model) {
  for (const TDSFieldGroup* group : GroupsInOrder(model)) {
    if (TDSField* field = group->GetFirstResultField()) return field;
  }
  return nullptr;
}

std::vector<TRFItem> SortingItems(const TStrings& titles) {
  std::vector<TRFItem> items;
  for (const auto& [sorting, title] : {std::pair(stNoSort, "ttlNotSorted"), std::pair(stAscending, "ttlAscending"),
                                       std::pair(stDescending, "ttlDescending")}) {
    items.push_back({"", std::to_string(sorting), titles.Value(title)});
  }
  return items;
}

TRFRowTexts ResultRowTexts(const TResultField& field, std::size_t rowIndex, const TRFCaptionStyle& style,
                           const std::function<std::string(std::string_view)>& upperCase) {
  TRFRowTexts texts;
  texts.Number = std::to_string(rowIndex + 1);
  if (field.DSFields().empty()) {
    texts.Before = upperCase(field.GetFormula());
    return texts;
  }
  const auto [before, after] = GetNameAndValueSep(field.GetFormula(), FieldPlace);
  texts.Before = upperCase(before);
  texts.After = upperCase(after);
  const TDSField& first = *field.DSFields().front();
  texts.FieldValue = std::to_string(first.GetID());
  texts.FieldCaption = CaptionOf(first, style);
  if (field.DSFields().size() > 1) texts.Tip = FormulaWithCaptions(field, style);
  return texts;
}

std::string ResultRowPhrase(const TRFRowTexts& texts, std::string_view sorting) {
  std::string phrase = texts.Number + ":";
  if (!texts.Tip.empty()) return phrase.append(" ").append(texts.Tip).append(", ").append(sorting);
  for (const std::string* part : {&texts.Before, &texts.FieldCaption, &texts.After}) {
    if (!part->empty()) phrase.append(" ").append(*part);
  }
  return phrase.append(", ").append(sorting);
}

// Where it stands

TRFRowPlaces PlaceResultRow(std::size_t rowIndex, const TRFRowSizes& sizes, const TRFSpaces& spaces,
                            TRFPoint scrolled) {
  const int height = sizes.TextHeight + 1;
  const int top = static_cast<int>(rowIndex) * (spaces.RowSpace + height) + spaces.TopMargin - scrolled.Y;
  int left = spaces.LeftMargin - scrolled.X;
  const auto place = [&](const std::optional<int>& width) -> std::optional<TRFPoint> {
    if (!width) return std::nullopt;
    const TRFPoint point{left, top};
    left += spaces.ElemSpace + *width;
    return point;
  };
  TRFRowPlaces places;
  places.Button = {left, top, sizes.Button, height};
  left += spaces.ElemSpace + sizes.Button;
  places.Before = place(sizes.Before);
  places.Field = place(sizes.Field);
  places.After = place(sizes.After);
  places.Sorting = {left, top};
  return places;
}

TRFPoint PlaceAddRowLabel(const std::optional<TRFBox>& lastButton, const TRFSpaces& spaces) {
  if (!lastButton) return {spaces.LeftMargin, spaces.TopMargin};
  return {lastButton->Left, lastButton->Top + lastButton->Height + spaces.RowSpace + 2};
}

std::string AddRowText(const TStrings& titles) { return "< " + titles.Value("ttlClickToAdd") + " >"; }

// The menu of a row

std::vector<TRFMenuItem> ResultRowMenu(const TStrings& titles) {
  return {{titles.Value("ttlDelField"), mtDelete},
          {"-", mtSeparator},
          {titles.Value("ttlMoveUp"), mtMoveUp},
          {titles.Value("ttlMoveDown"), mtMoveDown}};
}

bool IsRowMenuItemEnabled(TRFMenuTag tag, std::size_t rowIndex, std::size_t rowCount) {
  if (tag == mtDelete) return rowIndex < rowCount;
  return MovedRowIndex(tag, rowIndex, rowCount).has_value();
}

std::optional<std::size_t> MovedRowIndex(TRFMenuTag tag, std::size_t rowIndex, std::size_t rowCount) {
  if (rowIndex >= rowCount) return std::nullopt;
  if (tag == mtMoveUp && rowIndex > 0) return rowIndex - 1;
  if (tag == mtMoveDown && rowIndex + 1 < rowCount) return rowIndex + 1;
  return std::nullopt;
}

// Changes of the columns

TResultField& AppendResultField(TRFieldList& fields, const TJCustomDBStructure* model) {
  if (model == nullptr) throw ERFPanelError(SDBStructureNotSpecified, {});
  TDSField* first = model->GetEmpty() ? nullptr : GetFirstResultField(*model);
  if (first == nullptr) throw ERFPanelError(SStructureIsEmpty, {});
  return fields.Add(*first);
}

void RefreshResultField(TRFieldList& fields, std::size_t rowIndex, TResultField& field,
                        const std::optional<std::string>& fieldValue, int sorting) {
  const TJCustomDBStructure* model = fields.GetDBStruct();
  fields.BeginUpdate();
  if (fieldValue && model != nullptr && !field.DSFields().empty()) {
    const std::int64_t id = XStrToInt(*fieldValue, 0);
    TDSField* chosen = std::in_range<std::int32_t>(id) ? model->FieldByID(static_cast<std::int32_t>(id)) : nullptr;
    if (chosen != nullptr) {
      field.SetDSField(0, *chosen);
      if (field.GetFormula() == FieldPlace) field.SetCaption(chosen->GetDisplayName());
    }
  }
  if (rowIndex < fields.Count()) fields[rowIndex].SetSorting(static_cast<TSortingType>(sorting));
  fields.EndUpdate();
}

void MoveResultField(TRFieldList& fields, std::size_t from, std::size_t to) {
  for (const std::size_t index : {from, to}) {
    if (index >= fields.Count()) throw EListError::OutOfBounds(static_cast<std::int64_t>(index));
  }
  fields.BeginUpdate();
  fields.Move(from, to);
  RenumberSortOrders(fields);
  fields.EndUpdate();
}

void RenumberSortOrders(const TRFieldList& fields) {
  int order = 0;
  for (TResultField& field : fields) {
    if (field.GetSorting() != stNoSort) field.SetSortOrder(++order);
  }
}

}  // namespace tolvi
