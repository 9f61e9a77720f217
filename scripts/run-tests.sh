#!/usr/bin/env bash
# Builds everything and runs every test. Pass "asan" to run them under the sanitizers.
set -euo pipefail
cd "$(dirname "$0")/.."
preset="${1:-default}"
bash scripts/build.sh "$preset"
ctest --preset "$preset" -j "$(nproc)"
