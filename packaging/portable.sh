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

stays_out='^(ld-linux|libc\.|libm\.|libdl\.|libpthread\.|librt\.|libresolv\.|libstdc\+\+|libgcc_s|libGL\.|libEGL\.|libGLX|libOpenGL|libGLdispatch|libdrm|libgbm)'
mkdir -p "$root/lib"
voices=$(find -L /usr/lib -maxdepth 2 -name 'libflite*.so.1')
# shellcheck disable=SC2046,SC2086 # a word a file
ldd "$root"/bin/talvora "$root"/bin/talvora-pack $(find "$root" -name '*.so') $voices 2>/dev/null |
  awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u |
  while read -r library; do
    basename "$library" | grep -Eq "$stays_out" || cp -L "$library" "$root/lib/"
  done
# shellcheck disable=SC2086
cp -L $voices "$root/lib/"

cat >"$root/talvora" <<'END'
#!/bin/sh
# Starts Talvora from this folder. What you collect lies in ~/.local/share/talvora.
here=$(dirname "$(readlink -f "$0")")
LD_LIBRARY_PATH=$here/lib${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}
export LD_LIBRARY_PATH
exec "$here/bin/talvora" --go-on "$@"
END
chmod 755 "$root/talvora"

when=@${SOURCE_DATE_EPOCH:-$(git -C "$(dirname "$0")" log -1 --format=%ct)}
tar --sort=name --owner=0 --group=0 --numeric-owner --mtime="$when" -C "$stage" -cf - talvora |
  xz -T0 -6 >"$archive.part"
mv "$archive.part" "$archive"
echo "$archive: $(du -h "$archive" | cut -f 1)"
