#!/usr/bin/env python3
"""Writes src/foundation/casefold.cpp from the Unicode character database of this Python.

Usage: tools/make_casefold.py > src/foundation/casefold.cpp
"""

import sys
import unicodedata

ASCII_END = 0x80

# Lower case of the upper case is the simple case folding but for two exceptions: the dotless i has the upper case "I"
# and yet stands for itself, and the Cherokee letters fold to their upper case.
DOTLESS_I = 0x131
CHEROKEE = (range(0x13A0, 0x13FE), range(0xAB70, 0xABC0))


def simple_fold(code):
    char = chr(code)
    if code == DOTLESS_I or 0xD800 <= code <= 0xDFFF:
        return code
    upper = char.upper() if len(char.upper()) == 1 else char
    if any(code in letters for letters in CHEROKEE):
        return ord(upper)
    lower = upper.lower()
    return ord(lower) if len(lower) == 1 else code


def fold_ranges():
    """Ranges [first, last, step, delta]: every step-th letter of the range folds to itself plus delta."""
    ranges = []
    for code in range(ASCII_END, sys.maxunicode + 1):
        delta = simple_fold(code) - code
        if delta == 0:
            continue
        if ranges and ranges[-1][3] == delta:
            first, last, step, _ = ranges[-1]
            gap = code - last
            if gap == step or (first == last and gap <= 2):
                ranges[-1][1:3] = [code, gap]
                continue
        ranges.append([code, code, 1, delta])
    return ranges


def plain_letter(code):
    decomposed = unicodedata.normalize("NFD", chr(code))
    base, marks = decomposed[0], decomposed[1:]
    plain = base.isascii() and base.isalpha() and all(unicodedata.combining(mark) for mark in marks)
    return base if plain else "."


def plain_blocks():
    """Pairs (first, letters) with "." for a character that has no plain letter; blocks end at 32 such in a row."""
    blocks, first, letters = [], None, ""
    for code in range(ASCII_END, 0x10000):
        if 0xD800 <= code <= 0xDFFF:
            continue
        letter = plain_letter(code)
        if letter != "." and first is None:
            first = code
        if first is not None:
            letters += letter
            if letters.endswith("." * 32):
                blocks.append((first, letters.rstrip(".")))
                first, letters = None, ""
    return blocks


def quoted_lines(text, width=100):
    return "\n".join('     "%s"' % text[at:at + width] for at in range(0, len(text), width))


HEAD = """\
// Written by tools/make_casefold.py from the Unicode character database, version %s. Do not edit.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

#include <tolvi/foundation/casefold.h>

namespace tolvi {
namespace {

// Every Step-th letter from First to Last folds to itself plus Delta.
struct TFoldRange {
  std::uint32_t First;
  std::uint32_t Last;
  std::uint32_t Step;
  std::int32_t Delta;
};

// The plain letters of the characters from First on, "." for those that have none.
struct TPlainBlock {
  std::uint32_t First;
  std::string_view Letters;
};

// clang-format off
constexpr TFoldRange FoldRanges[] = {
"""

MIDDLE = """\
};

constexpr TPlainBlock PlainBlocks[] = {
"""

TAIL = """\
};
// clang-format on

}  // namespace

char32_t FoldCodePoint(char32_t code) {
  const auto value = static_cast<std::uint32_t>(code);
  if (value < 0x80) return value - 'A' < 26 ? code + ('a' - 'A') : code;
  const auto* range = std::lower_bound(std::begin(FoldRanges), std::end(FoldRanges), value,
                                       [](const TFoldRange& item, std::uint32_t key) { return item.Last < key; });
  if (range == std::end(FoldRanges) || value < range->First || (value - range->First) % range->Step != 0) return code;
  return static_cast<char32_t>(static_cast<std::int32_t>(value) + range->Delta);
}

char PlainLetter(char32_t code) {
  const auto value = static_cast<std::uint32_t>(code);
  for (const TPlainBlock& block : PlainBlocks) {
    if (value < block.First) return '\\0';
    if (value - block.First >= block.Letters.size()) continue;
    const char letter = block.Letters[value - block.First];
    return letter == '.' ? '\\0' : letter;
  }
  return '\\0';
}

}  // namespace tolvi
"""


def main():
    out = [HEAD % unicodedata.unidata_version]
    cells = ["{0x%04X, 0x%04X, %d, %d}," % tuple(r) for r in fold_ranges()]
    out += ["    %s\n" % " ".join(cells[at:at + 4]) for at in range(0, len(cells), 4)]
    out.append(MIDDLE)
    out += ["    {0x%04X,\n%s},\n" % (first, quoted_lines(letters)) for first, letters in plain_blocks()]
    out.append(TAIL)
    sys.stdout.write("".join(out))


if __name__ == "__main__":
    main()
