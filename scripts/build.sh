#!/usr/bin/env bash
# Installs what is missing, then configures and builds the given preset (default: default).
set -euo pipefail
cd "$(dirname "$0")/.."
preset="${1:-default}"
bash scripts/install-deps.sh
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset"
