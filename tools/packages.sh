# Installs the Debian packages given that are not installed yet (sourced by the other tools).
ensure_packages() {
  local missing=()
  for p in "$@"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=()
  [ "$(id -u)" -eq 0 ] || sudo=(sudo)
  "${sudo[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

BUILD_PACKAGES=(cmake ninja-build g++ make libcurl4-openssl-dev libcli11-dev nlohmann-json3-dev)
TEST_PACKAGES=(clang libgtest-dev libbenchmark-dev g++-mingw-w64-x86-64 g++-mingw-w64-i686 mingw-w64-tools libwine-dev
  python3-pyftpdlib python3-jsonschema qt6-base-dev xvfb xauth)
