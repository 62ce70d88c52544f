#!/usr/bin/env bash
# Pictures of the window's screens, light and dark, on a phone and a desktop: scripts/screenshots.sh [FOLDER]
# Into docs/images unless another folder is given; LANG=de_DE.UTF-8 gives another language, KORVANE_SCREENSHOTS=large
# texts of twice the size, KORVANE_SCREENSHOTS=mirrored pages from right to left. Sets up and builds first.
set -euo pipefail
folder=$(realpath -m -- "${1:-$(dirname "$0")/../docs/images}")
cd "$(dirname "$0")/.."

scripts/setup.sh
scripts/build.sh dev korvane-screenshots korvane-picture

made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
make() { ffmpeg -v error -f lavfi -i "$1" "${@:3}" "$made/$2" </dev/null; }
make 'gradients=s=1200x800:type=radial:c0=0xffe29a:c1=0xff6f61:c2=0x4b2e83:c3=0x0b1033:n=4:x0=600:y0=650:x1=1200:y1=0' dawn.jpg -frames:v 1 -q:v 3
make 'mandelbrot=s=1200x800:start_x=-0.7436:start_y=-0.1318:start_scale=0.004:maxiter=2000' fractal.jpg -frames:v 1 -q:v 3
make 'gradients=s=1200x800:type=spiral:c0=0x0b6e4f:c1=0xf2c14e:c2=0xe4572e:c3=0x17bebb:n=4:seed=7' leaf.jpg -frames:v 1 -q:v 3
make 'gradients=s=1200x800:type=linear:c0=0x0b3954:c1=0xff6663:n=2:x0=0:y0=0:x1=0:y1=800' dusk.jpg -frames:v 1 -q:v 3
make 'gradients=s=1280x720:r=25:type=linear:c0=0x0b3954:c1=0xff6663:c2=0xe0ff4f:n=3:speed=0.03' waves.mp4 -t 2 -pix_fmt yuv420p

mkdir -p "$folder"
style=${KORVANE_SCREENSHOTS:-}
for theme in light dark; do
  KORVANE_SCREENSHOTS="$style $theme" XDG_RUNTIME_DIR=$made build/dev/bin/korvane-screenshots "$folder" "$made/waves.mp4" "$made"/{dawn,fractal,leaf,dusk}.jpg
done
echo "The pictures are in $folder"
