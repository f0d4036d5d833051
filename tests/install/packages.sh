#!/bin/bash
# Makes the packages of the last commit twice, in two folders, which must give the same bytes; reads
# them with lintian; then tries them, and the archive that needs no installation, in bare Debian
# trees. Run from the repository's top folder, as root.
set -eu

cd "$(dirname "$0")/../.."
. tools/setup.sh
[ "$(id -u)" -eq 0 ] || { echo "bare systems can be made by root only" >&2; exit 1; }

top=$PWD
work=$(mktemp -d)
mounted=
clean_up() {
  for place in $mounted; do umount "$place" || echo "still mounted: $place" >&2; done
  rm -rf --one-file-system "$work"
}
trap clean_up EXIT

# Both are made of this commit, whatever is committed meanwhile.
commit=$(git rev-parse HEAD)
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct "$commit")
export SOURCE_DATE_EPOCH

# make_packages NAME: builds the last commit in a folder of that name.
make_packages() {
  mkdir -p "$work/$1"
  git archive "$commit" | tar -x -C "$work/$1"
  (
    cd "$work/$1"
    CCACHE_BASEDIR=$PWD
    build_preset package -DTALVORA_WERROR=ON
    cd build/package
    cpack -G DEB >cpack.log || { cat cpack.log; exit 1; }
  )
  mkdir -p "$work/packages-$1"
  cp "$work/$1"/build/package/*.deb "$work/packages-$1/"
}

# A bare system with the name; Debian's own mirror is the one that this machine uses.
make_tree() {
  local mirror
  mirror=$(sed -n 's/^URIs: *//p; s/^deb \([^ ]*\) .*/\1/p' \
    /etc/apt/sources.list.d/debian.sources /etc/apt/sources.list 2>/dev/null | head -n 1)
  debootstrap --variant=minbase bookworm "$work/$1" "$mirror" >"$work/$1.log" 2>&1 ||
    { tail -n 5 "$work/$1.log" >&2; return 1; }
  mount -t proc proc "$work/$1/proc"
  mounted="$mounted $work/$1/proc"
}

say "Packages, twice"
make_packages one
# The second is compiled from the first line to the last, whatever a cache may hold.
CCACHE_DISABLE=1 make_packages two
for package in "$work"/packages-one/*.deb; do
  cmp "$package" "$work/packages-two/$(basename "$package")"
done
echo "ok: two builds give the same bytes"

say "lintian"
lintian --fail-on error,warning "$work"/packages-one/*.deb

say "In a bare system"
# The course that comes next: the same lessons in a package with a higher number.
mkdir "$work/next"
dpkg-deb -R "$work"/packages-one/talvora-course_*.deb "$work/next/course"
sed -i 's/^Version: .*/&+next/' "$work/next/course/DEBIAN/control"
dpkg-deb --root-owner-group -b "$work/next/course" "$work/next/talvora-course.deb" >/dev/null
make_tree tree
tests/install/installed.sh "$work/tree" "$work/packages-one" "$top/build/pictures-installed" \
  "$work/next/talvora-course.deb"

say "The archive, in a system without Qt"
packaging/portable.sh "$work/one/build/package" "$work/talvora.tar.xz"
make_tree bare
tests/install/portable.sh "$work/bare" "$work/talvora.tar.xz" "$top/build/pictures-portable"
