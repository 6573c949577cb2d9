#!/usr/bin/env bash
# Every installed header compiles on its own, and no internal header is installed.
set -euo pipefail
compiler=$1
include=$2

[ -z "$(find "$include" -path '*/internal/*')" ] || { echo "internal headers are installed"; exit 1; }
count=0
while IFS= read -r header; do
  "$compiler" -std=c++20 -Wall -Wextra -Wpedantic -Werror -I"$include" -fsyntax-only -x c++ - <<<"#include \"$header\""
  count=$((count + 1))
done < <(find "$include" -name '*.h' | sort)
[ "$count" -gt 20 ] || { echo "only $count headers are installed"; exit 1; }
