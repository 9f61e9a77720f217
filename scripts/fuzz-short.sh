#!/usr/bin/env bash
# A short run of every fuzzer, one of CI's steps: builds the "fuzz" preset (clang) in
# build/fuzz and fuzzes each reader of outside input for 20 seconds from its seed files in
# fuzz/corpus/<reader>: the mesh file, macros, the profile files of korvan-cli extrude, and
# PLY and OBJ meshes and the import of other programs' mesh files.
# Needs clang and its fuzzer runtime, which scripts/install-deps.sh installs.
# Findings are written to build/fuzz/ as crash-*, leak-*, timeout-* files.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-20}"

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
for run in "TavrinMeshIOFuzz mesh" "MacroFuzz macro -dict=fuzz/macro.dict" \
    "ProfileFileFuzz profile" "PlyReaderFuzz ply" "ObjReaderFuzz obj" "StlReaderFuzz stl" \
    "AssimpMeshImporterFuzz assimp"; do
    read -r harness corpus options <<<"$run"
    mkdir "$work/$corpus"
    cp "fuzz/corpus/$corpus"/* "$work/$corpus/"
    echo "== $harness, $seconds seconds"
    # shellcheck disable=SC2086 # options is a list of words
    "./build/fuzz/fuzz/$harness" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -artifact_prefix=build/fuzz/ -print_final_stats=1 ${options:-} "$work/$corpus"
done
