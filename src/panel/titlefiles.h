// Titles as files, and what a translated text must keep of the default text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tolvi/foundation/api.h>
#include <tolvi/foundation/strings.h>

namespace tolvi {

/// The letters of a caption that "&" marks as accelerators, folded; "&&" stands for the sign itself.
TOLVI_CORE_API std::vector<std::string> Accelerators(std::string_view caption);

/// What is wrong with a text that stands for `byDefault`, as a sentence: a place ("@" or "%s") that is missing or
/// there too often, more than one accelerator. Empty when nothing is.
TOLVI_CORE_API std::string TitleFault(std::string_view byDefault, std::string_view text);

/// The default texts, replaced by those of a file (`LoadTitlesFromStrings`). A file without sections is of the older
/// form: keys count for whatever section has them.
TOLVI_CORE_API TStrings TitlesFromFile(const TStrings& defaults, const TStrings& file);

/// The lines of `titles` that are not those of the defaults: all that must be stored, without sections.
TOLVI_CORE_API TStrings ChangedTitles(const TStrings& defaults, const TStrings& titles);

/// The lines with which the titles are written over a file: theirs, and behind them the sections of the file that they
/// do not have, so that one file can hold the texts of several panels.
TOLVI_CORE_API TStrings TitlesForFile(const TStrings& titles, const TStrings& file);

}  // namespace tolvi
