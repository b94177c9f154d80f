#!/bin/sh
# Builds programs that are not part of Tolvi against it: one with find_package from an install tree (and those that
# use databases, panels and XML, if the build has these parts), the same with pkg-config alone, one with
# add_subdirectory. Compares what shared libraries export with their headers. Says nothing when all is well.
#
#   check_package.sh [BUILD-DIR]     the build to install; default: build/release, which `./run build` makes
set -eu
cd "$(dirname "$0")/.."
root=$PWD
build=${1:-build/release}
work=$root/build/check-package
rm -rf "$work/installed" "$work/embed" "$work/connect" "$work/widgets" "$work/wrong" "$work/xml" # the host's build stays: it compiles the core once more
mkdir -p "$work/host" "$work/wrong"

# expect_success / expect_failure COMMAND...: the output is in $work/log, and shown when the outcome is the other one.
expect_success() {
  "$@" >"$work/log" 2>&1 || { cat "$work/log" && echo "failed: $*" && exit 1; }
}
expect_failure() {
  if "$@" >"$work/log" 2>&1; then cat "$work/log" && echo "should have failed: $*" && exit 1; fi
}

expect_success cmake --install "$build" --prefix "$work/installed"

expect_success cmake -G Ninja -S examples/embed -B "$work/embed" -D CMAKE_PREFIX_PATH="$work/installed"
expect_success cmake --build "$work/embed"
expect_success "$work/embed/embed"

if [ -n "$(find "$work/installed" -name TolviConnectTargets.cmake)" ]; then
  expect_success cmake -G Ninja -S examples/connect -B "$work/connect" -D CMAKE_PREFIX_PATH="$work/installed"
  expect_success cmake --build "$work/connect"
  expect_success "$work/connect/connect" "sqlite:$build/samples/shop.sqlite" examples/connect/queries "Customers per city"
  printf 'Leipzig\t14\nDublin\t9\nHamburg\t9\nLinz\t8\nOrléans\t8\n' | cmp - "$work/log" || exit 1
fi

if [ -n "$(find "$work/installed" -name TolviWidgetsTargets.cmake)" ]; then
  expect_success cmake -G Ninja -S examples/widgets -B "$work/widgets" -D CMAKE_PREFIX_PATH="$work/installed"
  expect_success cmake --build "$work/widgets"
  expect_success env QT_QPA_PLATFORM=offscreen "$work/widgets/widgets" samples/shop/shop.model \
    samples/shop/queries/03-customers-who-never-ordered.qry --sql
  grep -q '^not exists (select 1 from Orders x where x.CustomerID = Customers.CustomerID)$' "$work/log" ||
    { cat "$work/log" && echo "the window shows another statement" && exit 1; }
fi

if [ -n "$(find "$work/installed" -name TolviXmlTargets.cmake)" ]; then
  mkdir -p "$work/xml"
  cat >"$work/xml/CMakeLists.txt" <<'TEXT'
cmake_minimum_required(VERSION 3.25)
project(xml LANGUAGES CXX)
find_package(Tolvi REQUIRED COMPONENTS Xml)
add_executable(xml main.cpp)
target_link_libraries(xml PRIVATE Tolvi::Xml)
TEXT
  cat >"$work/xml/main.cpp" <<'TEXT'
#include <tolvi/xml/modelxml.h>
int main() {
  tolvi::TJDBStructure model;
  tolvi::LoadModelFromXml(model, tolvi::ModelToXml(model));
  return model.GetOperatCount() == 15 ? 0 : 1;
}
TEXT
  expect_success cmake -G Ninja -S "$work/xml" -B "$work/xml/build" -D CMAKE_PREFIX_PATH="$work/installed"
  expect_success cmake --build "$work/xml/build"
  expect_success "$work/xml/build/xml"
fi

# with_pkg_config PACKAGE SOURCE PROGRAM: compiles and links a program of one file.
with_pkg_config() {
  folder=$(dirname "$(find "$work/installed" -name tolvi-core.pc)")
  flags=$(PKG_CONFIG_PATH=$folder pkg-config --cflags --libs "$1")
  # shellcheck disable=SC2086 # words
  expect_success c++ -std=c++20 -fPIC -o "$3" "$2" $flags "-Wl,-rpath,$folder/.."
}
with_pkg_config tolvi-core examples/embed/main.cpp "$work/embed/with-pkg-config"
expect_success "$work/embed/with-pkg-config"
if [ -n "$(find "$work/installed" -name tolvi-connect.pc)" ]; then
  with_pkg_config tolvi-connect examples/connect/main.cpp "$work/connect/with-pkg-config"
  with_pkg_config tolvi-xml "$work/xml/main.cpp" "$work/xml/with-pkg-config"
  with_pkg_config tolvi-widgets examples/widgets/main.cpp "$work/widgets/with-pkg-config"
fi

if [ -x "$work/installed/bin/tolvi" ] && [ -n "$(find "$work/installed" -name TolviWidgetsTargets.cmake)" ]; then
  expect_success tools/tutorial.py docs/tutorial.md "$work/tutorial" "$work/installed"
fi

if [ -n "$(find "$work/installed" -name libtolvi_core.so)" ]; then
  expect_success tools/check_symbols.py --self-test
  expect_success tools/check_symbols.py "$work/installed"
fi

cat >"$work/host/CMakeLists.txt" <<TEXT
cmake_minimum_required(VERSION 3.25)
project(host LANGUAGES CXX)
add_subdirectory($root tolvi)
add_executable(host $root/examples/embed/main.cpp)
target_link_libraries(host PRIVATE Tolvi::Core)
TEXT
expect_success cmake -G Ninja -S "$work/host" -B "$work/host/build"
expect_success cmake --build "$work/host/build" --target host
expect_success "$work/host/build/host"

cat >"$work/wrong/CMakeLists.txt" <<TEXT
cmake_minimum_required(VERSION 3.25)
project(wrong LANGUAGES CXX)
find_package(Tolvi REQUIRED COMPONENTS Core Nonesuch)
TEXT
expect_failure cmake -G Ninja -S "$work/wrong" -B "$work/wrong/build" -D CMAKE_PREFIX_PATH="$work/installed"
grep -q 'Tolvi has no component "Nonesuch"' "$work/log" || { cat "$work/log" && echo "the message names no component" && exit 1; }
