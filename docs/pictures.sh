# The window on a display, and its pictures for a page. Sourced by the scripts that take them.

here=$(dirname "$(realpath "$0")")/../../tests/desktop
for part in frame start; do
  # shellcheck source=/dev/null
  . "$here/walk/$part.sh"
done

# Takes a picture for a page: smaller, in few colours.
shot() { # NAME
  sleep 0.8
  import -window root "$work/shot.png"
  convert "$work/shot.png" -resize 1024x -strip -dither None -colors 128 \
    -define png:exclude-chunks=date,time "PNG8:$pictures/$1.png"
  passed "$1"
}
