#!/usr/bin/env bash
# The table that README.md shows is the one that the command above it prints.
# Usage: readme.sh ROOT TABULATE
set -euo pipefail
cd "$1"
printed=$("$2" examples/data/titanic.csv --rows Class,Sex --columns Survived --names-in-corner \
  --statistics count,row% --order sorted --totals rows,columns --width 80)
table=$(sed -n '/^Class, Sex by Survived$/,$p' <<<"$printed")
[ "$(wc -l <<<"$table")" -gt 10 ] || { echo "tabulate prints no table"; exit 1; }
[[ $(<README.md) == *"$table"* ]] || { echo "README.md shows another table than: $table"; exit 1; }
