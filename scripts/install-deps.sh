#!/usr/bin/env bash
# Installs every Debian package seisplot needs to build, test and run.
# Idempotent: packages already present are not fetched again. Runs as root or through sudo.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config
    libgtest-dev libgmock-dev libbenchmark-dev
    clang libclang-rt-14-dev clang-format
    libcli11-dev nlohmann-json3-dev
    libhwy-dev libmuparser-dev
    qt6-base-dev qt6-svg-dev qt6-qpa-plugins qt6-tools-dev qt6-l10n-tools libqt6opengl6-dev
    libavformat-dev libavcodec-dev libswscale-dev libavutil-dev ffmpeg
    libgl-dev libegl1-mesa-dev libglu1-mesa-dev libgl1-mesa-dri
    xvfb xauth imagemagick
    fonts-dejavu-core fonts-liberation2
)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

if [ "$(id -u)" -eq 0 ]; then
    sudo=()
elif command -v sudo >/dev/null 2>&1; then
    sudo=(sudo)
else
    echo "install-deps: need root or sudo to install: ${missing[*]}" >&2
    exit 1
fi

echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -q
"${sudo[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
