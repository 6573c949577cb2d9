#!/usr/bin/env bash
# A program prints exactly what a golden file holds. With OM_REBASELINE set in the environment, the
# golden file becomes what the program prints; look at the difference before committing it.
set -euo pipefail
program=$1
golden=$2

if [ -n "${OM_REBASELINE-}" ]; then
  "$program" >"$golden"
else
  diff -u "$golden" <("$program")
fi
