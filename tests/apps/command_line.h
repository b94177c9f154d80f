#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "apps/tolvi/commands.h"
#include "support/models.h"
#include <tolvi/foundation/files.h>
#include <tolvi/foundation/text.h>

namespace tolvi {

struct TOutcome {
  int status;
  std::string out, err;
};

/// The program in a folder of its own, with the model and queries of the sample shop beside it.
class CommandLine : public testing::Test {
 protected:
  void SetUp() override {
    FFolder = std::filesystem::path(testing::TempDir()) / ("tolvi_cli_" + std::to_string(std::random_device()()));
    std::filesystem::create_directories(FFolder);
    WriteFileAtomically(FFolder / "orders.model", OrdersModel()->GetStructString());
  }
  void TearDown() override { std::filesystem::remove_all(FFolder); }

  /// `arguments` are separated by blanks; in them, MODEL, QUERIES and DB are the sample's, DIR is the test's folder.
  TOutcome Run(std::string_view arguments, std::string_view input = {}, bool canAsk = false) const {
    std::vector<std::string> words;
    for (std::istringstream in{std::string(arguments)}; in >> words.emplace_back();) {
    }
    words.pop_back();
    return RunWords(words, input, canAsk);
  }
  /// The same with words that may hold blanks.
  TOutcome RunWords(std::vector<std::string> words, std::string_view input = {}, bool canAsk = false) const {
    const std::string shop = TOLVI_SOURCE_DIR "/samples/shop/";
    for (std::string& word : words) {
      word = ReplaceStr(word, "MODEL", shop + "shop.model");
      word = ReplaceStr(word, "QUERIES", shop + "queries");
      word = ReplaceStr(word, "DB", TOLVI_SHOP_DATABASE);
      word = ReplaceStr(word, "DIR", FFolder.string());
    }
    std::istringstream in{std::string(input)};
    std::ostringstream out, err;
    TStreams streams{in, out, err, canAsk};
    streams.AskSecret = AskSecret;
    const int status = RunTolvi(words, streams);
    return {status, out.str(), ReplaceStr(ReplaceStr(err.str(), shop, ""), FFolder.string(), "DIR")};
  }
  std::string Write(const std::string& name, std::string_view text) const {
    WriteFileAtomically(FFolder / name, text);
    return "DIR/" + name;
  }
  /// A sample with LF line breaks.
  static std::string Shop(const std::string& name) {
    return ReplaceStr(ReadFile(std::string(TOLVI_SOURCE_DIR "/samples/shop/") + name), "\r\n", "\n");
  }

  std::filesystem::path FFolder;
  std::function<std::optional<std::string>(const std::string&)> AskSecret;
};

}  // namespace tolvi
