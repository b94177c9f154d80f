#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/targets.h"

// What libFuzzer calls; TOLVI_FUZZ_TARGET is the target's function. An exception that leaves it ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tolvi::TOLVI_FUZZ_TARGET(std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}
