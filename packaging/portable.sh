#!/bin/bash
# Makes an archive that needs no installation: the program, the libraries that it needs, the course
# and one start script. What every desktop has of its own (the C library, the drivers of the graphics
# card) stays out.
#
#   packaging/portable.sh BUILD_FOLDER ARCHIVE.tar.xz
set -euo pipefail

if [ $# -ne 2 ]; then
  sed -n '2,6s/^# \{0,1\}//p' "$0" >&2
  exit 2
fi
build=$(realpath "$1")
archive=$(realpath -m "$2")
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
root=$stage/talvora

cmake --install "$build" --prefix "$root" --strip >/dev/null
plugins=$(qtpaths6 --plugin-dir 2>/dev/null || /usr/lib/qt6/bin/qtpaths --plugin-dir)
for kind in platforms platforminputcontexts platformthemes xcbglintegrations \
  wayland-shell-integration wayland-decoration-client wayland-graphics-integration-client; do
  [ -d "$plugins/$kind" ] || continue
  mkdir -p "$root/plugins/$kind"
  cp "$plugins/$kind"/*.so "$root/plugins/$kind/"
done
# Themes of desktops bring these desktops' libraries along.
rm -rf "$root/plugins/platformthemes" "$root/plugins/platforms/"lib{qeglfs,qlinuxfb,qminimalegl,qvnc}*.so
printf '[Paths]\nPrefix = ..\nPlugins = plugins\n' >"$root/bin/qt.conf"

stays_out='^(ld-linux|libc\.|libm\.|libdl\.|libpthread\.|librt\.|libresolv\.|libstdc\+\+|libgcc_s|libdrm|libgbm)'
# What leads to the graphics driver comes along for systems without any, and stands behind their own.
leads_to_driver='^(libGL\.|libEGL\.|libGLX|libOpenGL|libGLdispatch)'
mkdir -p "$root/lib" "$root/lib-graphics"
voices=$(find -L /usr/lib -maxdepth 2 -name 'libflite*.so.1')
# shellcheck disable=SC2046,SC2086 # a word a file
ldd "$root"/bin/talvora "$root"/bin/talvora-pack $(find "$root" -name '*.so') $voices 2>/dev/null |
  awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u |
  while read -r library; do
    name=$(basename "$library")
    if grep -Eq "$leads_to_driver" <<<"$name"; then
      cp -L "$library" "$root/lib-graphics/"
    elif ! grep -Eq "$stays_out" <<<"$name"; then
      cp -L "$library" "$root/lib/"
    fi
  done
# shellcheck disable=SC2086
cp -L $voices "$root/lib/"

cat >"$root/talvora" <<'END'
#!/bin/sh
# Starts Talvora from this folder. What you collect lies in ~/.local/share/talvora.
here=$(dirname "$(readlink -f "$0")")
libraries=$here/lib
PATH=$PATH:/sbin:/usr/sbin ldconfig -p 2>/dev/null | grep -q libEGL.so.1 ||
  libraries=$libraries:$here/lib-graphics
LD_LIBRARY_PATH=$libraries${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}
export LD_LIBRARY_PATH
exec "$here/bin/talvora" --go-on "$@"
END
chmod 755 "$root/talvora"

when=@${SOURCE_DATE_EPOCH:-$(git -C "$(dirname "$0")" log -1 --format=%ct)}
tar --sort=name --owner=0 --group=0 --numeric-owner --mtime="$when" -C "$stage" -cf - talvora |
  xz -T0 -3 >"$archive.part"
mv "$archive.part" "$archive"
echo "$archive: $(du -h "$archive" | cut -f 1)"
