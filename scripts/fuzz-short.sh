#!/usr/bin/env bash
# A short run of the mesh file fuzzer, one of CI's steps: builds the "fuzz" preset (clang)
# in build/fuzz and fuzzes for 20 seconds from the seed files in fuzz/corpus. Needs clang
# and its fuzzer runtime, which scripts/install-deps.sh installs.
# Findings are written to build/fuzz/ as crash-*, leak-*, timeout-* files.
set -euo pipefail
cd "$(dirname "$0")/.."

if ! command -v clang++ >/dev/null ||
    ! clang++ -print-file-name="libclang_rt.fuzzer-$(uname -m).a" | grep -q /; then
    echo "clang++ with libFuzzer not found: run scripts/install-deps.sh" >&2
    exit 1
fi

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz -j 2

# The fuzzer adds what it finds to its first folder: keep the committed seeds as they are.
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
cp fuzz/corpus/* "$work/"
./build/fuzz/fuzz/TavrinMeshIOFuzz -max_total_time=20 -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix=build/fuzz/ -print_final_stats=1 "$work"
