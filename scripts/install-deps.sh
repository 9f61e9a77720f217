#!/usr/bin/env bash
# Installs the Debian 12 packages that the build, the tests and the checks need.
# Safe to run again: it only calls apt-get when a package is missing.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev libgl-dev libassimp-dev
    lib3mf-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    clang clang-format libclang-rt-14-dev
    xvfb xauth
    desktop-file-utils shared-mime-info xdg-utils libfile-mimeinfo-perl dpkg-dev
)

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
