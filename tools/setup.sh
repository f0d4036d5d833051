# Shared by ./run and ./check: installs the packages that are missing and builds a preset.
# To be sourced from the repository's top folder.

# Clones of the repository share what was compiled once.
export CCACHE_BASEDIR=$PWD

say() { printf '\n== %s\n' "$*"; }

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  elif command -v sudo >/dev/null; then
    sudo "$@"
  else
    echo "This needs root to install packages, and sudo is not there: $*" >&2
    return 1
  fi
}

# Prints the packages of the list that are not installed.
missing_packages() {
  grep -v '^#' tools/debian-packages.txt | while read -r package; do
    [ -n "$package" ] || continue
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' ||
      printf '%s\n' "$package"
  done
}

install_packages() {
  local missing
  missing=$(missing_packages)
  [ -n "$missing" ] || return 0
  say "Installing packages:" $missing
  as_root apt-get update -q
  # shellcheck disable=SC2086 # a word a package
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends $missing
}

# Configures and builds a preset; more arguments go to the configuration.
build_preset() {
  local preset=$1
  shift
  say "Building ($preset)"
  cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "$@" >"build-$preset.log" 2>&1 || {
    cat "build-$preset.log"
    rm -f "build-$preset.log"
    return 1
  }
  rm -f "build-$preset.log"
  cmake --build --preset "$preset"
}

# Compiles content/ into the pack folder of the release build.
make_pack() {
  say "Making the content pack"
  build/release/pack/talvora-pack build content "$1"
}
