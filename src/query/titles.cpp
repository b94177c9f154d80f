#include <algorithm>

#include <tolvi/foundation/sections.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/titles.h>

namespace tolvi {
namespace {

constexpr std::string_view DefaultTitles[] = {
    "[Query Panel]",
    "ttlFilter=Choose records where @ of the following apply",
    "ttlBracket=@ of the following apply",
    "ttlAll=all",
    "ttlAny=any",
    "ttlNone=none",
    "ttlNotAll=not all",
    "ttlAddCond=Add new &condition",
    "ttlAddBracket=Open new &bracket",
    "ttlAfterCurrent=after current",
    "ttlInsideCurrent=inside current",
    "ttlDelRow=&Delete row",
    "ttlEnableDisable=&Enable/Disable row",
    "ttlClickToAdd=Click here to add new condition",
    "ttlSubQueryCaption=Sub-query",
    "ttlResultField=Result field",
    "ttlAnd=and",
    "ttlOr=or",
    "ttlConstant=Constant value",
    "ttlParameter=Parameter",
    "ttlCustomCond=Add custom condition",
    "ttlTrue=True",
    "ttlFalse=False",
    " ",
    "[Result Fields Editor]",
    "ttlRFETitle=Result Fields Editor",
    "ttlFields=&Available fields",
    "ttlResFields=Result fields",
    "ttlMakeFldHint=Create result field",
    "ttlDelFldHint=Delete result field",
    "ttlNewFldHint=New result field",
    "ttlAddRFldHint=Add to result field",
    "ttlSubRFldHint=Subtract from result field",
    "ttlMulRFldHint=Multiply by result field",
    "ttlDivRFldHint=Divide by result field",
    "ttlSortRFldHint=Sort result field",
    "ttlNotSorted=Not Sorted",
    "ttlAscending=Ascending",
    "ttlDescending=Descending",
    "ttlSortCaption=Sorted fields",
    "ttlSortingColName=Sorting type",
    "ttlFieldNmColName=Field Name",
    "ttlFieldExprColName=Expression",
    "ttlMgsDeleteField=Delete Field \"%s\"?",
    "ttlOkBtnCaption=OK",
    "ttlCancelBtnCaption=Cancel",
    "ttlAsIs=as is",
    "ttlJustSorting=just sorting",
    "ttlAddBtnCaption=&Add",
    "ttlAddBtnHint=Add result field",
    "ttlHelpBtnCaption=&Help",
    "ttlSUMCaption=Sum",
    "ttlCOUNTCaption=Count",
    "ttlMINCaption=Minimum",
    "ttlMAXCaption=Maximum",
    "ttlAVERAGECaption=Average",
    "ttlLISTCaption=List",
    "ttlCOUNTDISTINCTCaption=Distinct count",
};

constexpr std::string_view PanelSection = "Query Panel", OldPanelSection = "PanelTitles";

// A title is one line of a text: line breaks become blanks.
std::string OneLine(std::string_view text) {
  std::string line(text);
  std::replace(line.begin(), line.end(), '\r', ' ');
  std::replace(line.begin(), line.end(), '\n', ' ');
  return line;
}

}  // namespace

void LoadTitlesFromStrings(const TStrings& defaults, TStrings& titles, const TStrings& given) {
  TStrings merged = defaults;
  TStrings texts = given;
  for (std::size_t i = 0; i < merged.Count(); ++i) {
    if (IsSectionHeader(merged[i])) {
      const std::string_view section = std::string_view(merged[i]).substr(1, merged[i].size() - 2);
      texts = XReadSLSectionValues(given, section);
      if (section == PanelSection) texts.AddStrings(XReadSLSectionValues(given, OldPanelSection));
      continue;
    }
    const std::string key(merged.NameAt(i));
    if (const std::string text = texts.Value(key); !text.empty()) merged.SetLine(i, key + "=" + OneLine(text));
  }
  titles = std::move(merged);
}

const TStrings& TTitles::DefaultLines() {
  static const TStrings lines(std::vector<std::string>(std::begin(DefaultTitles), std::end(DefaultTitles)));
  return lines;
}

void TTitles::LoadDefTitles() { FLines = DefaultLines(); }

std::string TTitles::GetTitle(std::string_view name) const { return FLines.Value(name); }

void TTitles::SetTitle(std::string_view name, std::string_view text) {
  if (FLines.IndexOfName(name) >= 0) FLines.SetValue(name, OneLine(text));
}

void TTitles::Assign(const TStrings& lines) { LoadTitlesFromStrings(DefaultLines(), FLines, lines); }

void TTitles::AssignOld(const TStrings& lines) {
  for (std::size_t i = 0; i < lines.Count(); ++i) {
    if (!lines.ValueAt(i).empty()) SetTitle(lines.NameAt(i), lines.ValueAt(i));
  }
}

}  // namespace tolvi
