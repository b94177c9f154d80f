#pragma once

#include <string>
#include <string_view>

namespace tolvi {

/// The files that are installed beside the program, made of the tables of commands and options: completion of words
/// for shells, and the page of the manual. They are made while Tolvi is built, by the program `tolvi_share_files`.
std::string BashCompletion();
std::string ZshCompletion();
std::string FishCompletion();

/// In the language of man(7).
std::string ManualPage(std::string_view version);

}  // namespace tolvi
