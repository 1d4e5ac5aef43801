#!/usr/bin/env bash
# Takes the README's pictures of the settings window again: docs/pictures/window*.png and
# window.gif.
set -euo pipefail
cd "$(dirname "$0")/../.."
. cmake/prepare.sh

install_missing "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}" imagemagick
configure default
build default malto-demo
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for language in en-us de-de zh-cn ar-eg; do
    xvfb-run -a -s '-screen 0 1920x1200x24 -dpi 96' \
        "$(build_folder default)"/bin/malto-demo --pictures "$work/$language" --language "$language" >/dev/null 2>&1
done

xvfb-run -a -s '-screen 0 1920x1200x24 -dpi 96' "$(build_folder default)"/bin/malto-demo --classic \
    --pictures "$work/classic" --language en-us >/dev/null 2>&1

small=(-resize 760x +dither -colors 256 -strip)
convert "$work/en-us/appearance-light.png" "${small[@]}" docs/pictures/window-light.png
convert "$work/en-us/appearance-dark.png" "${small[@]}" docs/pictures/window-dark.png
convert "$work/ar-eg/appearance-light.png" "${small[@]}" docs/pictures/window-rtl.png
convert "$work/classic/appearance-light.png" "${small[@]}" docs/pictures/window-classic.png

frames=()
for frame in en-us/mouse-light en-us/mouse-dark de-de/mouse-dark zh-cn/mouse-dark ar-eg/mouse-dark \
             ar-eg/mouse-light; do
    frames+=("$work/$frame.png")
done
convert -delay 140 -loop 0 ${frames[@]+"${frames[@]}"} -resize 760x -gravity north -extent 760x535 \
    +dither -colors 128 -layers OptimizePlus docs/pictures/window.gif
ls -l docs/pictures/window*
