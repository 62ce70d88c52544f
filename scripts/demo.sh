#!/usr/bin/env bash
# Shares photos and a video to a local stand-in of Flickr and Vimeo, the whole way: scripts/demo.sh [--window] [FILE...]
# With --window through the share sheet's window: post what you like there, or cancel.
# Sets up and builds first. Without photos or without a video it makes some. Keeps everything in build/demo.
set -euo pipefail
window=
if [ "${1:-}" = --window ]; then
  window=yes
  shift
  if [ -z "${WAYLAND_DISPLAY:-}${DISPLAY:-}${QT_QPA_PLATFORM:-}" ]; then
    echo "There is no screen to show a window on; try scripts/demo.sh without --window." >&2
    exit 1
  fi
  # The window still finds its screen where home and runtime folder are the demo's.
  case ${WAYLAND_DISPLAY:-/} in /*) ;; *) export WAYLAND_DISPLAY=${XDG_RUNTIME_DIR:-}/$WAYLAND_DISPLAY ;; esac
  export XAUTHORITY=${XAUTHORITY:-$HOME/.Xauthority}
fi
files=()
for file in "$@"; do files+=("$(realpath -- "$file")"); done
cd "$(dirname "$0")/.."

scripts/setup.sh
scripts/build.sh dev

bin=$PWD/build/dev/bin
demo=$PWD/build/demo
rm -rf "$demo"
mkdir -p "$demo"/{config,state,library/Pictures,library/Videos,made}
run=$(mktemp -d) # sockets need a short path
export HOME=$demo XDG_CONFIG_HOME=$demo/config XDG_STATE_HOME=$demo/state XDG_RUNTIME_DIR=$run
export XDG_DATA_DIRS=$PWD/build/dev/share:/usr/local/share:/usr/share KORVANE_PHOTO_LIBRARY=$demo/library KORVANE_SECRETS=file

started=()
trap 'for process in "${started[@]}"; do kill "$process" 2>/dev/null || true; done; wait; rm -rf "$run"' EXIT

mkfifo "$demo/ready" "$demo/address"
"$bin/korvane-standin" --port 0 --state "$demo/standin" >"$demo/ready" &
started+=($!)
read -r line <"$demo/ready"
url=${line##* }
export KORVANE_FLICKR_URL=${url%/} KORVANE_VIMEO_URL=${url%/}

dbus-daemon --session --nofork --nopidfile --address="unix:path=$run/demo-bus" --print-address=3 3>"$demo/address" 2>"$demo/service.log" &
started=($! "${started[@]}") # ended first: the upload service ends with its bus
read -r DBUS_SESSION_BUS_ADDRESS <"$demo/address"
export DBUS_SESSION_BUS_ADDRESS

photos=()
videos=()
for file in "${files[@]}"; do
  case $(file --brief --mime-type -- "$file") in
    video/*) videos+=("$file") ;;
    *) photos+=("$file") ;;
  esac
done
make() { ffmpeg -v error -f lavfi -i "$1" "${@:3}" "$demo/made/$2" </dev/null; }
if [ ${#photos[@]} -eq 0 ]; then
  echo "Making three photos..."
  make 'mandelbrot=s=2400x1600:start_x=-0.7436:start_y=-0.1318:start_scale=0.004:maxiter=2000' fractal.jpg -frames:v 1 -q:v 2
  make 'gradients=s=1800x1200:type=radial:c0=0xffe29a:c1=0xff6f61:c2=0x4b2e83:c3=0x0b1033:n=4:x0=900:y0=980:x1=1800:y1=0' dawn.png -frames:v 1
  make 'gradients=s=1800x1200:type=spiral:c0=0x0b6e4f:c1=0xf2c14e:c2=0xe4572e:c3=0x17bebb:n=4:seed=7' leaf.jpg -frames:v 1 -q:v 2
  photos=("$demo"/made/*.*)
fi
if [ ${#videos[@]} -eq 0 ]; then
  echo "Making a video..."
  make 'gradients=s=1280x720:r=25:type=linear:c0=0x0b3954:c1=0xff6663:c2=0xe0ff4f:n=3:speed=0.03' waves.mp4 \
    -f lavfi -i 'sine=f=220:b=4' -t 8 -c:v libx264 -b:v 4M -pix_fmt yuv420p -c:a aac -shortest -movflags +faststart
  videos=("$demo/made/waves.mp4")
fi

for service in flickr vimeo; do
  "$bin/korvane-standin" --print-credential "$service" | "$bin/korvane" accounts add "$service" --credential-file -
done
look() {
  if [ -t 0 ] && [ -t 1 ]; then
    read -r -p "Look at them: $url   (Enter ends the demo) "
  else
    echo "Look at them: build/dev/bin/korvane standin --port 8743 --state build/demo/standin, then http://127.0.0.1:8743/"
  fi
}
if [ -n "$window" ]; then
  posted=
  "$bin/korvane" compose flickr "${photos[@]}" && posted=yes
  for video in "${videos[@]}"; do
    "$bin/korvane" compose vimeo "$video" && posted=yes
  done
  if [ -z "$posted" ]; then
    echo "Nothing was shared."
    exit
  fi
  "$bin/korvane" uploads watch
  look
  exit
fi
state() { curl -fsS "$KORVANE_FLICKR_URL/api/state"; }
album=$(state | grep -o '"albums":\[{"id":"[0-9]*"' | grep -o '[0-9]*') || album=
"$bin/korvane" share flickr "${photos[@]}" --title "Shared with Korvane" --audience friends ${album:+--album "$album"} --wait
for video in "${videos[@]}"; do
  "$bin/korvane" share vimeo "$video" --title "Shared with Korvane" --description "From $(basename "$video")" --tag demo --wait
done

arrived=$(state)
for file in "${videos[@]}"; do # a video outside the photo library arrives byte for byte
  case $arrived in
    *"$(sha256sum "$file" | cut -d' ' -f1)"*) ;;
    *) echo "The video $file did not arrive whole; see $demo/service.log" >&2; exit 1 ;;
  esac
done
shared=$(grep -o '"sha256":"[0-9a-f]' <<<"$arrived" | wc -l)
if [ "$shared" -ne $((${#photos[@]} + ${#videos[@]})) ]; then
  echo "Only $shared of $((${#photos[@]} + ${#videos[@]})) photos and videos arrived; see $demo/service.log" >&2
  exit 1
fi
echo
echo "${#photos[@]} photo(s) and ${#videos[@]} video(s) arrived."
look
