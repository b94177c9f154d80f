#include <gtest/gtest.h>

#include "apps/workbench/window/languages.h"

namespace tolvi {
namespace {

/// Tests see the words that users see, in every order of tests: plural forms come from a catalogue in English, too.
class TEnglish final : public testing::Environment {
 public:
  void SetUp() override { UseLanguage(QStringLiteral("en")); }
};

const testing::Environment* const English = testing::AddGlobalTestEnvironment(new TEnglish);

}  // namespace
}  // namespace tolvi
