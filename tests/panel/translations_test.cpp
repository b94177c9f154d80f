#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "panel_fixture.h"
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/sections.h>
#include <tolvi/panel/panelmenus.h>
#include <tolvi/panel/rfldrows.h>
#include <tolvi/panel/titlefiles.h>

namespace tolvi {
namespace {

const std::filesystem::path Folder = std::filesystem::path(TOLVI_SOURCE_DIR) / "translations";

/// All tables as one.
TStrings DefaultTitles() {
  TStrings lines = TTitles::DefaultLines();
  lines.Add("");
  lines.Add(RFPanelTitlesHeader);
  lines.AddStrings(DefaultRFPanelTitles());
  lines.Add("");
  lines.AddStrings(TCommandTitles::DefaultLines());
  return lines;
}

/// "section/key" and the text; what stands twice is reported.
std::map<std::string, std::string> TextsOf(const TStrings& lines) {
  std::map<std::string, std::string> texts;
  std::string section;
  for (const std::string& line : lines) {
    const std::size_t equals = line.find('=');
    if (IsSectionHeader(line)) {
      section = line;
    } else if (equals != std::string::npos) {
      EXPECT_TRUE(texts.emplace(section + line.substr(0, equals), line.substr(equals + 1)).second) << line;
    } else {
      EXPECT_TRUE(Trim(line).empty()) << line;
    }
  }
  return texts;
}

/// A menu's letters, each once for a title although several commands show it.
void ExpectOwnLetters(const TPanelMenu& menu, const std::string& which) {
  std::map<std::string, std::set<std::string>> captions;
  for (const TPanelMenuItem& item : menu) {
    const std::string_view title = InfoOf(item.Command).Title;
    for (const std::string& letter : Accelerators(item.Caption)) {
      captions[letter].insert(title.empty() ? item.Caption : std::string(title));
    }
  }
  for (const auto& [letter, texts] : captions) {
    EXPECT_EQ(texts.size(), 1u) << which << ": " << letter << " for " << *texts.begin() << " and " << *texts.rbegin();
  }
}

class Translations : public PanelEditorTest {
 protected:
  void ExpectOwnLettersInMenus(const TStrings& lines, const std::string& language) {
    TCommandTitles commandTitles;
    commandTitles.Assign(lines);
    FPanel.SetTitles(lines);
    FEditor.SetAllowLocking(true);
    Build("A");
    auto& row = static_cast<TFilterCond&>(*FPanel.RowByNum(1));
    ExpectOwnLetters(RowMenu(FEditor, commandTitles, row), language + " row menu");
    ExpectOwnLetters(AddMenu(FEditor, commandTitles), language + " add menu");
    ExpectOwnLetters(ValueMenu(FEditor, commandTitles, row, 1), language + " value menu");
  }
};

TEST_F(Translations, HoldEveryTextAndKeepItsPlacesAndLetters) {
  const std::map<std::string, std::string> defaults = TextsOf(DefaultTitles());
  ExpectOwnLettersInMenus({}, "English");
  for (const std::string language : {"ar", "de", "es", "fr", "ja", "ru", "zh"}) {
    const std::string file = ReadFile(Folder / (language + ".titles"));
    EXPECT_TRUE(IsValidUtf8(file) && file.find('\r') == std::string::npos && file.ends_with('\n')) << language;
    TStrings lines;
    lines.SetText(file);
    std::map<std::string, std::string> texts = TextsOf(lines);
    for (const auto& [key, byDefault] : defaults) {
      const std::string& text = texts[key];
      EXPECT_FALSE(text.empty()) << language << key;
      EXPECT_EQ(Trim(text), text) << language << key;
      EXPECT_EQ(TitleFault(byDefault, text), "") << language << key;
      EXPECT_EQ(Accelerators(text).size(), Accelerators(byDefault).size()) << language << key;
      EXPECT_EQ(text.find("&&"), std::string::npos) << language << key;
    }
    for (const auto& [key, text] : texts) EXPECT_TRUE(defaults.contains(key)) << language << key;
    ExpectOwnLettersInMenus(lines, language);
    std::set<std::vector<std::string>> letters;
    for (const char* key : {"ttlFields", "ttlAddBtnCaption", "ttlHelpBtnCaption"}) {
      EXPECT_TRUE(letters.insert(Accelerators(FPanel.GetTitle(key))).second) << language << key;
    }
  }
}

TEST_F(Translations, ReachEveryPanelFromOneFile) {
  TStrings lines, rows;
  lines.LoadFromFile(Folder / "de.titles");
  TCommandTitles commandTitles;
  commandTitles.Assign(lines);
  FPanel.SetTitles(lines);
  LoadRFPanelTitles(rows, lines);
  EXPECT_EQ(commandTitles.GetCaption(pcUndo, FPanel.Titles()), "Rückgängig &machen");
  EXPECT_EQ(commandTitles.GetCaption(pcAddCondInside, FPanel.Titles()),
            "Neue &Bedingung hinzufügen (in der aktuellen Klammer)");
  EXPECT_EQ(PhraseText(RowPhrase(FPanel.RootBracket(), TFieldNames(FModel.get()))),
            "Datensätze auswählen, die alle der folgenden Bedingungen erfüllen");
  EXPECT_EQ(rows.Value("ttlClickToAdd"), "Klicken, um ein Feld hinzuzufügen") << "not the query panel's";
  LoadRFPanelTitles(rows, rows);
  EXPECT_EQ(rows.Value("ttlMoveUp"), "Nach oben");
  LoadRFPanelTitles(rows, {"ttlMoveUp=Rauf", "[Query Panel]", "ttlClickToAdd=falsch"});
  EXPECT_EQ(rows.Value("ttlMoveUp") + rows.Value("ttlClickToAdd"), "RaufClick to add new field");
}

TEST(TitleFiles, FaultsAreNamed) {
  const struct {
    const char *byDefault, *text, *fault;
  } cases[] = {
      {"@ of these", "von diesen @", ""},
      {"@ of these", "von diesen", "\"@\" is missing."},
      {"@ of these", "@ von @", "\"@\" is there too often."},
      {"Delete %s?", "%d?", "\"%s\" is missing."},
      {"by mail", "an a@b.de", ""},
      {"&Add", "R && D & Co. &Ärger", ""},
      {"&Add", "&A&b", "More than one \"&\"."},
  };
  for (const auto& each : cases) EXPECT_EQ(TitleFault(each.byDefault, each.text), each.fault) << each.text;
  EXPECT_EQ(Accelerators("&Ärger"), std::vector<std::string>{"ä"});
  EXPECT_EQ(Accelerators("条件(&C)"), std::vector<std::string>{"c"});
  EXPECT_TRUE(Accelerators("&").empty());
}

TEST(TitleFiles, KeepTheSectionsOfOthers) {
  const TStrings defaults{"[A]", "k=1", " ", "[B]", "l=2"};
  EXPECT_EQ(TitlesFromFile(defaults, {"l=zwei", "k=eins"}), TStrings({"[A]", "k=eins", " ", "[B]", "l=zwei"}));
  EXPECT_EQ(TitlesFromFile(defaults, {"[B]", "l=zwei", "k=eins"}), TStrings({"[A]", "k=1", " ", "[B]", "l=zwei"}));
  EXPECT_EQ(TitlesFromFile({"k=1"}, {"k=eins"}), TStrings{"k=eins"});
  EXPECT_EQ(TitlesForFile({"[A]", "k=1"}, {"x", "[C]", "m=3", "[a]", "k=0", "[D]", "n=4", ""}),
            TStrings({"[A]", "k=1", "", "[C]", "m=3", "", "[D]", "n=4"}));
  EXPECT_EQ(TitlesForFile({"[Query Panel]", " "}, {"[PanelTitles]", "ttlAll=alt"}), TStrings{"[Query Panel]"});
}

}  // namespace
}  // namespace tolvi
