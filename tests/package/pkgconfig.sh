#!/usr/bin/env bash
# The pkg-config file leads a compiler to the installed library, and the program that it makes runs.
set -euo pipefail
compiler=$1
libraries=$2
source=$3
program=$(mktemp)
trap 'rm -f "$program"' EXIT

export PKG_CONFIG_PATH=$libraries/pkgconfig
read -ra flags <<<"$(pkg-config --cflags --libs om) ${4-}"
"$compiler" -std=c++20 "$source" -o "$program" "${flags[@]}" -Wl,-rpath,"$libraries"
"$program"
