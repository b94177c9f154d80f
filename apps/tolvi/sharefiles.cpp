#include "apps/tolvi/sharefiles.h"

#include <filesystem>
#include <iostream>

#include <tolvi/foundation/errors.h>
#include <tolvi/foundation/files.h>

/// Writes the files to a folder, in which they have the names that shells and `man` look for.
int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: tolvi_share_files FOLDER\n";
    return 2;
  }
  try {
    const std::filesystem::path folder = argv[1];
    tolvi::WriteFileAtomically(folder / "tolvi", tolvi::BashCompletion());
    tolvi::WriteFileAtomically(folder / "_tolvi", tolvi::ZshCompletion());
    tolvi::WriteFileAtomically(folder / "tolvi.fish", tolvi::FishCompletion());
    tolvi::WriteFileAtomically(folder / "tolvi.1", tolvi::ManualPage(TOLVI_VERSION));
    return 0;
  } catch (const tolvi::EException& error) {
    std::cerr << "tolvi_share_files: " << error.what() << '\n';
    return 1;
  }
}
