#!/usr/bin/env bash
# Imports every STL, OBJ, PLY, OFF and 3MF file of Debian's assimp-testmodels and
# openscad-testing-data (installed when missing) with `korvan-cli info`, each under a time
# and memory limit, and prints per format how many imported and how many were refused with
# one line; for OFF files, whether the counts match the header. A crash, a hang, runaway
# memory or any other output fails the script.
# Usage: scripts/check-real-meshes.sh [KORVAN-CLI]   (default build/default/src/cli/korvan-cli)
set -euo pipefail
cd "$(dirname "$0")/.."
cli="${1:-build/default/src/cli/korvan-cli}"
seconds=60
memory_kib=$((4 * 1024 * 1024))

if [ ! -x "$cli" ]; then
    echo "$cli not found: build the default preset first" >&2
    exit 1
fi

packages=(assimp-testmodels openscad-testing-data)
missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends \
        "${missing[@]}"
fi

declare -A imported refused
bad=0
off_checked=0
out="$(mktemp)"
err="$(mktemp)"
trap 'rm -f "$out" "$err"' EXIT
while IFS= read -r file; do
    format="${file##*.}"
    format="${format,,}"
    status=0
    (ulimit -v "$memory_kib" && timeout "$seconds" "$cli" info "$file") >"$out" 2>"$err" ||
        status=$?
    if [ "$status" -eq 0 ] && [ ! -s "$err" ] && grep -q '^{"file": ' "$out"; then
        imported[$format]=$((${imported[$format]:-0} + 1))
        if [ "$format" = off ]; then
            # The header's point and face counts, the first two numbers after "OFF".
            said="$(sed 's/#.*//' "$file" | tr -s ' \t\r\n' '\n' | grep -v '^$' |
                sed -n '2,3p' | paste -sd ' ')"
            got="$(sed -E 's/.*"items": \[\{"points": ([0-9]+), "faces": ([0-9]+)\}\]\}$/\1 \2/' "$out")"
            if [ "$said" = "$got" ]; then
                off_checked=$((off_checked + 1))
            else
                echo "counts differ: $file says $said, imported $got"
            fi
        fi
    elif [ "$status" -eq 1 ] && [ ! -s "$out" ] && [ "$(wc -l <"$err")" -eq 1 ] &&
        grep -q '^korvan-cli: ' "$err"; then
        refused[$format]=$((${refused[$format]:-0} + 1))
        echo "refused: $(cat "$err")"
    else
        bad=$((bad + 1))
        case "$status" in
        124) echo "HANG (over ${seconds} s): $file" ;;
        *) echo "FAILED (exit status $status): $file: $(head -c 300 "$err")" ;;
        esac
    fi
done < <(dpkg -L "${packages[@]}" | grep -iE '\.(stl|obj|ply|off|3mf)$' | sort)

printf '\n%-8s %9s %8s\n' format imported refused
for format in stl obj ply off 3mf; do
    printf '%-8s %9d %8d\n' "$format" "${imported[$format]:-0}" "${refused[$format]:-0}"
done
echo "OFF files whose point and face counts match their header: $off_checked of ${imported[off]:-0}"
echo "crashes, hangs and other failures: $bad"
[ "$bad" -eq 0 ]
