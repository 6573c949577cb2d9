#!/usr/bin/env bash
# The pkg-config file leads a compiler to the installed library, and the program that it makes runs.
set -euo pipefail
compiler=$1
libraries=$2
package=$3
source=$4
program=$(mktemp)
trap 'rm -f "$program"' EXIT

export PKG_CONFIG_PATH=$libraries/pkgconfig
read -ra flags <<<"$(pkg-config --cflags --libs "$package") ${5-}"
"$compiler" -std=c++20 "$source" -o "$program" "${flags[@]}" -Wl,-rpath,"$libraries"
"$program"
