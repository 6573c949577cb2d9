#!/usr/bin/env bash
# The shared library exports the classes and functions of a list, all of them, and nothing else.
set -euo pipefail
library=$1
list=$2

# "vtable for A::B" and "A::f() const" both belong to A; "Amputate(...)" is a function.
exported=$(nm -DC --defined-only "$library" | cut -d' ' -f3- |
  sed -E 's/^(vtable|typeinfo|typeinfo name) for //; s/\[abi:[a-z0-9]+\]//; s/\(.*//; s/^(om::render::)?([^:]+).*/\1\2/' | sort -u)
diff <(grep -v '^#' "$list" | sort -u) <(echo "$exported")
