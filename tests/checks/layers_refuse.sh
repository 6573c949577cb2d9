#!/usr/bin/env bash
# The layer check passes a sound tree and refuses each kind of broken one.
set -euo pipefail
check=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
mkdir -p "$root"/{external,output/internal,pivot,render}

# verdict FILE INCLUDE: what the check says of one file with one include.
verdict() {
  printf '#include %s\n' "$2" >"$root/$1"
  if "$check" "$root" >"$root/said"; then echo sound; else sed 's/.*: //' "$root/said"; fi
  rm "$root/$1"
}
expect() {
  local got
  got=$(verdict "$1" "$2")
  [ "$got" = "$3" ] || { echo "$1 including $2: got '$got', expected '$3'"; exit 1; }
}

echo '#include <vector>' >"$root/external/Base.h"
expect pivot/A.cpp '"output/OmHeading.h"' sound
expect pivot/A.cpp '<output/OmHeading.h>' sound
expect output/A.cpp '"pivot/OmPivotTable.h"' 'runs against the layers'
expect output/A.cpp '<pivot/OmPivotTable.h>' 'runs against the layers'
expect external/A.cpp '"backend/Export.h"' 'runs against the layers'
expect output/A.cpp '"OmHeading.h"' 'not a path from the root of the project'
expect output/A.cpp '"output/internal/B.h"' sound
expect pivot/A.cpp '"output/internal/B.h"' sound
expect render/A.cpp '"output/internal/B.h"' 'internal to output/'
expect output/A.cpp '"external/cells/internal/B.h"' 'internal to external/cells/'
