#!/usr/bin/env bash
# Installs what building, testing and trying out Korvane need on Debian 12: scripts/setup.sh [MORE PACKAGES...]
# Quick when nothing is missing. Daily use asks for two more: qt6-wayland where the desktop is a Wayland one, and
# fonts-noto-cjk for Japanese titles and texts.
set -euo pipefail

packages=(
  ca-certificates g++ cmake ninja-build ccache pkg-config
  qt6-base-dev qt6-declarative-dev qt6-tools-dev qt6-l10n-tools libqt6sql6-sqlite
  qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts qml6-module-qtquick-window
  qml6-module-qtquick-templates qml6-module-qtqml-workerscript fonts-dejavu-core
  libsecret-1-dev libcurl4-openssl-dev libvips-dev libcpp-httplib-dev libcli11-dev libfmt-dev nlohmann-json3-dev
  shared-mime-info dbus ffmpeg file desktop-file-utils appstream
  libgtest-dev libgmock-dev libbenchmark-dev curl
  "$@"
)

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=()
[ "$(id -u)" -eq 0 ] || sudo=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" </dev/null
