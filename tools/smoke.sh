#!/bin/sh
# Installs the packages of `./run package` on a clean Debian, in a folder, and tries what they install: the program with
# a database, the libraries with a program compiled here, removal; then the archive. Needs root. What it downloads stays
# in ~/.cache/tolvi.
#
#   smoke.sh [PACKAGE-DIR] [SAMPLES-DIR]     default: build/packages, build/package/samples
set -eu
cd "$(dirname "$0")/.."
packages=${1:-build/packages}
samples=${2:-build/package/samples}
cache=${XDG_CACHE_HOME:-$HOME/.cache}/tolvi
work=$PWD/build/smoke
system=$work/system
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
base=$cache/$release.tar
mkdir -p "$cache/archives" "$work"

# quiet COMMAND...: its output is in $work/log, and shown when it fails.
quiet() {
  "$@" >"$work/log" 2>&1 || { tail -n 60 "$work/log" && echo "failed: $*" && exit 1; }
}
# inside COMMAND...: in the folder, with a /proc that goes with the command; without it, programs do not know where they are.
inside() {
  unshare --mount sh -ec 'mount -t proc proc "$0/proc"
    exec chroot "$0" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"' "$system" "$@"
}
install() {
  quiet inside apt-get install -y --no-install-recommends -o APT::Keep-Downloaded-Packages=true "$@"
}
# prints WORD COMMAND...: the output of the command inside has the word.
prints() {
  word=$1
  shift
  quiet inside "$@"
  grep -q -e "$word" "$work/log" || { cat "$work/log" && echo "\"$word\" is missing in: $*" && exit 1; }
}

# A month old, the folder is made anew.
find "$cache" -maxdepth 1 -name "$release.tar" -mtime +30 -delete
if [ ! -f "$base" ]; then
  quiet mmdebstrap --variant=minbase "$release" "$base.new.tar"
  mv "$base.new.tar" "$base"
fi
rm -rf --one-file-system "$system"
mkdir "$system"
tar -C "$system" -xf "$base"
mkdir "$system/packages" "$system/shop"
cp "$packages"/*.deb "$system/packages"
cp -r samples/shop/shop.model samples/shop/queries "$samples/shop.sqlite" "$system/shop"
find "$cache/archives" -name '*.deb' -mtime +60 -delete
rm -f "$system/etc/apt/apt.conf.d/docker-clean"
cp -p "$cache/archives/"*.deb "$system/var/cache/apt/archives" 2>/dev/null || true
quiet inside apt-get update

echo "the program"
inside sh -c 'cd /packages && ls tolvi_*.deb libtolvi-core*.deb libtolvi-connect*.deb libtolvi-xml*.deb' |
  sed 's|^|/packages/|' >"$work/names"
# shellcheck disable=SC2046 # names
install $(cat "$work/names")
if inside dpkg -s libqt6widgets6 >/dev/null 2>&1; then echo "the program needs no windows" && exit 1; fi
prints '^tolvi [0-9]' tolvi --version
prints '^Brush Set, 5 pcs .* 11.8$' tolvi run --model /shop/shop.model --db /shop/shop.sqlite --limit 3 \
  --query /shop/queries/14-sets-at-a-gift-price.qry
quiet inside bash -n /usr/share/bash-completion/completions/tolvi

echo "everything"
# shellcheck disable=SC2046
install $(inside find /packages -name '*.deb')
cp -p "$system/var/cache/apt/archives/"*.deb "$cache/archives/"
quiet inside ldconfig -p
for library in core connect xml widgets; do
  grep -q "libtolvi_$library.so.0" "$work/log" || { echo "ldconfig does not know libtolvi_$library" && exit 1; }
done
if [ -x "$system/usr/bin/tolvi-workbench" ]; then
  quiet inside env QT_QPA_PLATFORM=offscreen HOME=/root tolvi-workbench --screenshot /packages/workbench.png
  [ -s "$system/packages/workbench.png" ] || { echo "the workbench made no picture" && exit 1; }
fi

echo "a program with the installed libraries"
rm -rf "$work/embed"
quiet cmake -G Ninja -S examples/embed -B "$work/embed" -D Tolvi_DIR="$(dirname "$(find "$system/usr/lib" -name TolviConfig.cmake)")"
quiet cmake --build "$work/embed"
cp "$work/embed/embed" "$system/packages/embed"
prints '^SELECT Customers.Company$' /packages/embed

echo "removal"
# shellcheck disable=SC2046
quiet inside apt-get purge -y $(inside dpkg-query -W -f '${Package}\n' '*tolvi*')
left=$(cd "$system" && find etc usr var/lib -iname '*tolvi*' ! -path 'var/lib/apt/*')
[ -z "$left" ] || { echo "still there: $left" && exit 1; }

echo "the archive"
mkdir "$system/opt/tolvi"
tar -C "$system/opt/tolvi" --strip-components=1 -xf "$packages"/tolvi-*.tar.gz
prints '^tolvi [0-9]' /opt/tolvi/bin/tolvi --version
prints '^Brush Set, 5 pcs .* 11.8$' /opt/tolvi/bin/tolvi run --model /shop/shop.model --db /shop/shop.sqlite --limit 3 \
  --query /shop/queries/14-sets-at-a-gift-price.qry
rm -rf --one-file-system "$system"
