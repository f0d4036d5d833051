# Shared by ./run and ./check: installs the packages that are missing, builds a preset, makes a pack.
# To be sourced from the repository's top folder.

# Clones of the repository share what was compiled once.
export CCACHE_BASEDIR=$PWD

say() { printf '\n== %s\n' "$*"; }

# Prints the names that packages have on a system; the arguments are its column in the table and the
# purposes asked for.
packages_for() {
  local column=$1
  shift
  awk -F'\t' -v column="$column" -v purposes=" $* " '
    /^#/ || $1 == "for" { next }
    index(purposes, " " $1 " ") && $column != "-" { print $column }' tools/packages.tsv
}

# Prints the Debian packages for the purposes that are not installed; one that another package provides
# counts as there.
missing_packages() {
  local there
  there=$(dpkg-query -W -f='${db:Status-Status}, ${Package}, ${Provides}\n' |
    sed -n 's/^installed, //p' | tr ',' '\n' | awk '{ print $1 }')
  packages_for 2 "$@" | while read -r package; do
    grep -qxF "$package" <<<"$there" || printf '%s\n' "$package"
  done
}

# On another system than Debian: says what to install there, for somebody who knows that system.
say_what_others_install() {
  if [ "${TALVORA_PACKAGES:-}" = there ]; then return 0; fi
  say "This is not Debian: the packages are yours to install"
  if command -v dnf >/dev/null; then
    printf 'sudo dnf install %s\n' "$(packages_for 3 "$@" | sort -u | tr '\n' ' ')"
  elif command -v pacman >/dev/null; then
    printf 'sudo pacman -S --needed %s\n' "$(packages_for 4 "$@" | sort -u | tr '\n' ' ')"
  else
    echo "Their names on Debian, Fedora and Arch stand in tools/packages.tsv."
  fi
  echo "When they are there, run this again with TALVORA_PACKAGES=there in the environment."
  return 1
}

# Installs the packages for the purposes given; says first what that will fetch and take.
install_packages() {
  if ! command -v dpkg-query >/dev/null; then
    say_what_others_install "$@"
    return
  fi
  local missing command
  missing=$(missing_packages "$@" | tr '\n' ' ')
  [ -n "$missing" ] || return 0
  command="apt-get install -y --no-install-recommends $missing"
  local as_root=
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null || ! sudo -v; then
      echo "Some packages are missing and need an administrator. Ask for this line, then start again:" >&2
      echo "    apt-get update && $command" >&2
      return 1
    fi
    as_root=sudo
  fi
  say "Installing packages: $missing"
  # shellcheck disable=SC2086 # a word a package
  {
    $as_root apt-get update -q
    # Answering no is a failure to apt, which has said the sizes all the same.
    grep -E '^(Need to get|After this operation)' \
      < <(LC_ALL=C $as_root apt-get install --assume-no --no-install-recommends $missing) ||
      echo "(apt did not say how much that is)"
    $as_root env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -q --no-install-recommends $missing
  }
}

# Configures and builds a preset, all of it or, with `--target NAME`, one target; more arguments go to
# the configuration.
build_preset() {
  local preset=$1
  shift
  local targets=()
  if [ "${1:-}" = --target ]; then
    targets=("$1" "$2")
    shift 2
  fi
  say "Building ($preset)"
  local launcher=
  if command -v ccache >/dev/null; then launcher=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache; fi
  # shellcheck disable=SC2086 # nothing or one word
  cmake --preset "$preset" $launcher "$@" >"build-$preset.log" 2>&1 || {
    cat "build-$preset.log"
    rm -f "build-$preset.log"
    return 1
  }
  rm -f "build-$preset.log"
  cmake --build --preset "$preset" "${targets[@]}"
}

# Compiles content/ into a pack folder with the compiler of a preset.
make_pack() {
  say "Making the content pack"
  "build/$1/pack/talvora-pack" build content "$2"
}
