#!/usr/bin/env bash
# What has to be true before a version is given out, checked one after another; then the files of the
# release with their checksums in build/files.
#
# usage: tools/release.sh    (as root, on Debian 12, in a clean clone)
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh

version=$(sed -n 's/^project(Talvora VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)

say "Version $version"
[ -z "$(git status --porcelain)" ] || { echo "the clone is not clean" >&2; exit 1; }
sed -n 's/^## //p' CHANGELOG.md | head -n 1 | grep -qx "$version" || {
  echo "CHANGELOG.md does not begin with the changes of $version" >&2
  exit 1
}
if git rev-parse -q --verify "refs/tags/v$version" >/dev/null; then
  echo "version $version has been given out already: raise it in CMakeLists.txt" >&2
  exit 1
fi

./check --long
./check --install

say "The pictures of the manual and of the teacher's guide"
docs/manual/pictures.sh build/release/src/desktop/talvora build/pack docs/manual/pictures
docs/teacher/pictures.sh build/release/src/desktop/talvora build/release/pack/talvora-pack build/pack \
  docs/teacher/pictures
git diff --stat -- docs/manual/pictures docs/teacher/pictures

say "Files"
rm -rf build/files
mkdir -p build/files
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH
build_preset package -DTALVORA_WERROR=ON
(cd build/package && cpack -G DEB)
mv build/package/*.deb build/files/
packaging/portable.sh build/package "build/files/talvora-$version-portable.tar.xz"
git archive --prefix="talvora-$version/" -o "build/files/talvora-$version.tar.gz" HEAD
(cd build/files && sha256sum -- * >SHA256SUMS && cat SHA256SUMS)
echo "Left to do by hand: look at the pictures, tag v$version, give the files out."
