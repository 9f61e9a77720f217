#!/usr/bin/env bash
# Checks the desktop entry, builds the Debian package of the default build and tries it as a
# user's machine would: it installs, korvan-cli runs from where it landed, the desktop knows
# a .tvm file as Korvan's and opens it with Korvan, and the package removes cleanly.
# Installing needs root (CI runs as root on a throwaway machine); otherwise the package is
# only built.
set -euo pipefail
cd "$(dirname "$0")/.."

fail() {
    echo "check-package: $*" >&2
    exit 1
}

bash scripts/build.sh default
desktop-file-validate packaging/korvan.desktop
rm -f build/default/korvan_*.deb
(cd build/default && cpack -G DEB >/dev/null)
package=$(ls build/default/korvan_*.deb)
echo "check-package: built $package"

if [ "$(id -u)" -ne 0 ]; then
    echo "check-package: not root, so $package is not installed and tried"
    exit 0
fi

work=$(mktemp -d)
dpkg -i "$package" >/dev/null
trap 'dpkg -r korvan >/dev/null 2>&1 || true; rm -rf "$work"' EXIT

version=$(/usr/bin/korvan-cli --version)
[[ "$version" == "korvan-cli "* ]] || fail "korvan-cli --version said '$version'"
# The installed program finds Qt's plug-ins and draws.
cp tests/cli/data/editor-session.tvm "$work/scene.tvm"
/usr/bin/korvan-cli render "$work/scene.tvm" -o "$work/scene.png"
[ -s "$work/scene.png" ] || fail "the installed korvan-cli drew no picture"
type=$(xdg-mime query filetype "$work/scene.tvm")
[ "$type" = application/x-korvan-mesh ] || fail "a .tvm file is of type '$type'"
default=$(xdg-mime query default application/x-korvan-mesh)
[ "$default" = korvan.desktop ] || fail "Korvan's files open with '$default'"
man -w korvan korvan-cli >/dev/null || fail "the manual pages are not found"

dpkg -r korvan >/dev/null
[ ! -e /usr/bin/korvan ] && [ ! -e /usr/bin/korvan-cli ] || fail "dpkg -r left the programs"
[ "$(xdg-mime query default application/x-korvan-mesh)" = "" ] ||
    fail "dpkg -r left Korvan as the default for its files"
echo "check-package: $version installed, $type opened by $default, removed"
