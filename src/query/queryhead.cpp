#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include <tolvi/foundation/sections.h>
#include <tolvi/foundation/text.h>
#include <tolvi/query/querpnl.h>
#include <tolvi/query/queryhead.h>
#include <tolvi/query/querytext_keys.h>

namespace tolvi {
namespace {

TStrings LinesOf(std::string_view text) {
  TStrings lines;
  lines.SetText(text);
  return lines;
}

TStrings EmptyQuery(const TQueryHead& head) {
  TJQueryPanel panel;
  panel.SetQueryName(head.Name);
  panel.SetDescription(LinesOf(head.Description));
  TStrings lines;
  panel.SaveToStrings(lines);
  return lines;
}

bool IsNameLine(std::string_view line) {
  const std::string_view key = line.substr(0, line.find('='));
  return AsciiSameText(key.substr(0, key.find(':')), QueryNameKey);
}

/// Copies a query text line by line, with another head.
class THeadWriter final {
 public:
  THeadWriter(const TQueryHead& head, bool hasDescription)
      : FHead(head), FWriter(IsQueryHeader), FNeedsDescription(!hasDescription && !head.Description.empty()) {}

  void Copy(std::string_view line) {
    if (IsSectionHeader(line) && (FPlace != inDescription || IsQueryHeader(NameOf(line)))) {
      CopyHeader(line);
    } else if (FPlace != inDescription && !(FPlace == inMain && IsNameLine(line))) {
      FWriter.Line(line);
    }
  }

  TStrings Lines() && {
    EndMain();
    return LinesOf(FWriter.Text());
  }

 private:
  enum TPlace : std::uint8_t { elsewhere, inMain, inDescription };

  static std::string_view NameOf(std::string_view header) { return header.substr(1, header.size() - 2); }

  void CopyHeader(std::string_view header) {
    EndMain();
    FPlace = elsewhere;
    if (!FMainDone && SameText(NameOf(header), MainSection)) {
      FMainDone = true;
      FPlace = inMain;
      FWriter.Line(header);
      FWriter.Key(QueryNameKey, FHead.Name);
    } else if (!FDescriptionDone && SameText(NameOf(header), DescriptionSection)) {
      FPlace = inDescription;
      WriteDescription();
    } else {
      FWriter.Line(header);
    }
  }

  void EndMain() {
    if (FPlace != inMain || !FNeedsDescription) return;
    FWriter.Line({});
    WriteDescription();
  }

  void WriteDescription() {
    FDescriptionDone = true;
    FWriter.Header(DescriptionSection);
    FWriter.FreeLines(LinesOf(FHead.Description));
    FWriter.Line({});
  }

  const TQueryHead& FHead;
  TSectionWriter FWriter;
  bool FNeedsDescription, FMainDone = false, FDescriptionDone = false;
  TPlace FPlace = elsewhere;
};

}  // namespace

TQueryHead ReadQueryHead(std::string_view text) {
  const TSectionedText sections(text, IsQueryHeader);
  const std::optional<TSection> main = sections.First(MainSection);
  if (!main) return {};
  const TStrings description = sections.FirstFree(DescriptionSection).value_or(TStrings());
  return {.Name = main->Value(QueryNameKey), .Description = description.Joined("\n")};
}

TStrings WithQueryHead(const TStrings& lines, const TQueryHead& head) {
  const std::string text = lines.GetText();
  if (Trim(text).empty()) return EmptyQuery(head);
  const TSectionedText sections(text, IsQueryHeader);
  if (!sections.First(MainSection)) return lines;
  THeadWriter writer(head, sections.First(DescriptionSection).has_value());
  for (const std::string& line : LinesOf(text)) writer.Copy(line);
  return std::move(writer).Lines();
}

}  // namespace tolvi
