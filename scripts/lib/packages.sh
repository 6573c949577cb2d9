# Installs Debian packages that are missing, and only those. To be sourced.

need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ "${#missing[@]}" -eq 0 ] && return 0
  echo "== installing ${missing[*]}"
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# What it takes to build om and its companions.
BUILD_PACKAGES=(g++ cmake ninja-build)

# What the writers take besides.
RENDER_PACKAGES=(libutf8proc-dev pkg-config)

# What the program takes on top of that.
TOOL_PACKAGES=(libcsv-dev libcli11-dev nlohmann-json3-dev)

# What the tests take.
TEST_PACKAGES=("${BUILD_PACKAGES[@]}" "${RENDER_PACKAGES[@]}" "${TOOL_PACKAGES[@]}" libxlsxwriter-dev libgtest-dev)
