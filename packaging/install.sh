#!/bin/bash
# Installs the Debian packages that are missing for the purposes named: build, play, screen, test, package, root, fuzz.
set -euo pipefail
. "$(dirname "$0")/words.sh"

declare -A packages=(
    [build]="g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-svg-dev libarchive-dev libxcb1-dev
             libxcb-ewmh-dev libxcb-randr0-dev libgraphicsmagick++1-dev libfontconfig-dev dasm zip"
    [play]="stella fonts-liberation qt6-wayland"
    [screen]="xvfb openbox xdotool x11-utils imagemagick"
    [test]="desktop-file-utils appstream file man-db libgtest-dev libgmock-dev zip dbus at-spi2-core python3-gi gir1.2-atspi-2.0 weston qt6-wayland
            nasm dosbox"
    [package]="debhelper dpkg-dev lintian desktop-file-utils appstream patchelf zstd xz-utils"
    [root]="debootstrap"
    [fuzz]="clang-14 libclang-rt-14-dev"
)

missing=()
for purpose in "$@"; do
    for package in ${packages[$purpose]}; do
        state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
        [ "$state" = installed ] || missing+=("$package")
    done
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { say needs-root "${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi
say installing "${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
    >/dev/null
