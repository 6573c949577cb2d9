#!/usr/bin/env bash
# The document check passes a sound tree and refuses each kind of broken one.
set -euo pipefail
check=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
mkdir -p "$root"/{examples,output}
printf 'int main() {\n  run();\n}\n' >"$root/examples/run.cpp"

# expect PAGE-CONTENT HEADER-CONTENT COMPLAINT: "" where there should be none.
expect() {
  printf '%b' "$1" >"$root/page.md"
  printf '%b' "$2" >"$root/output/A.h"
  local said code=0
  said=$("$check" "$root") || code=$?
  if [ "$said" != "$3" ] || { [ -z "$3" ] && [ "$code" -ne 0 ]; } || { [ -n "$3" ] && [ "$code" -eq 0 ]; }; then
    echo "got '$said' with exit code $code, expected '$3'"
    exit 1
  fi
}

expect '[a](examples/run.cpp) [b](#here) [c](https://example.org/)\n' '// A.\n' ''
expect '```cpp\nrun();\n```\n' '// A.\n' ''
expect '[a](examples/gone.cpp)\n' '// A.\n' './page.md: the link examples/gone.cpp leads nowhere'
expect '```cpp\nwalk();\n```\n' '// A.\n' './page.md: a sample stands in no example: walk();'
expect 'text\n' '#pragma once\n' 'output/A.h: opens without saying what it is'
