#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>

#include <gtest/gtest.h>

#include "fuzz/targets.h"
#include <tolvi/foundation/files.h>

namespace tolvi {
namespace {

namespace fs = std::filesystem;

TEST(FuzzTargets, FindNothingInTheirCorpora) {
  const fs::path corpora = fs::path(TOLVI_SOURCE_DIR) / "fuzz" / "corpus";
  const struct {
    const char* corpus;
    void (*run)(std::string_view text);
  } targets[] = {{"parser", FuzzParser},
                 {"model", FuzzModel},
                 {"query", FuzzQuery},
                 {"select", FuzzSelect},
                 {"import", FuzzImport}};
  std::uintmax_t sizeOfAll = 0;
  for (const auto& [corpus, run] : targets) {
    std::size_t count = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(corpora / corpus)) {
      SCOPED_TRACE(entry.path().string());
      EXPECT_LT(entry.file_size(), 4096U) << "seeds are small";
      sizeOfAll += entry.file_size();
      EXPECT_NO_THROW(run(ReadFile(entry.path())));
      ++count;
    }
    EXPECT_GE(count, 10U) << corpus;
  }
  EXPECT_LT(sizeOfAll, 200'000U);
}

}  // namespace
}  // namespace tolvi
