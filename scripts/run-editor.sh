#!/usr/bin/env bash
# Builds the editor and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh default
exec ./build/default/src/qt/korvan "$@"
