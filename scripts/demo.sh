#!/usr/bin/env bash
# Shares photos to a local stand-in of Flickr, the whole way: scripts/demo.sh [FILE...]
# Sets up and builds first. Without files it makes some. Keeps everything in build/demo.
set -euo pipefail
files=()
for file in "$@"; do files+=("$(realpath -- "$file")"); done
cd "$(dirname "$0")/.."

scripts/setup.sh
scripts/build.sh dev

bin=$PWD/build/dev/bin
demo=$PWD/build/demo
rm -rf "$demo"
mkdir -p "$demo"/{config,state,library/Pictures,made}
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
export KORVANE_FLICKR_URL=${url%/}

dbus-daemon --session --nofork --nopidfile --address="unix:path=$run/demo-bus" --print-address=3 3>"$demo/address" 2>"$demo/service.log" &
started=($! "${started[@]}") # ended first: the upload service ends with its bus
read -r DBUS_SESSION_BUS_ADDRESS <"$demo/address"
export DBUS_SESSION_BUS_ADDRESS

if [ ${#files[@]} -eq 0 ]; then
  echo "Making three photos..."
  make() { ffmpeg -v error -f lavfi -i "$1" -frames:v 1 -q:v 2 "$demo/made/$2" </dev/null; }
  make 'mandelbrot=s=2400x1600:start_x=-0.7436:start_y=-0.1318:start_scale=0.004:maxiter=2000' fractal.jpg
  make 'gradients=s=1800x1200:type=radial:c0=0xffe29a:c1=0xff6f61:c2=0x4b2e83:c3=0x0b1033:n=4:x0=900:y0=980:x1=1800:y1=0' dawn.png
  make 'gradients=s=1800x1200:type=spiral:c0=0x0b6e4f:c1=0xf2c14e:c2=0xe4572e:c3=0x17bebb:n=4:seed=7' leaf.jpg
  files=("$demo"/made/*)
fi

"$bin/korvane-standin" --print-credential flickr | "$bin/korvane" accounts add flickr --credential-file -
album=$(curl -fsS "$KORVANE_FLICKR_URL/api/state" | grep -o '"albums":\[{"id":"[0-9]*"' | grep -o '[0-9]*') || album=
"$bin/korvane" share flickr "${files[@]}" --title "Shared with Korvane" --audience friends ${album:+--album "$album"} --wait

shared=$(curl -fsS "$KORVANE_FLICKR_URL/api/state" | grep -o '"sha256"' | wc -l)
if [ "$shared" -ne ${#files[@]} ]; then
  echo "Only $shared of ${#files[@]} photos arrived; see $demo/service.log" >&2
  exit 1
fi
echo
echo "$shared photos arrived."
if [ -t 0 ] && [ -t 1 ]; then
  read -r -p "Look at them: $url   (Enter ends the demo) "
else
  echo "Look at them: build/dev/bin/korvane standin --port 8743 --state build/demo/standin, then http://127.0.0.1:8743/"
fi
