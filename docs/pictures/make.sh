#!/usr/bin/env bash
# Draws the pictures of the editors again: docs/pictures/editors/*.png.
set -euo pipefail
cd "$(dirname "$0")/../.."
. cmake/prepare.sh

install_missing "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}" optipng
configure default
build default malto-editor-pictures
mkdir -p docs/pictures/editors
QT_QPA_PLATFORM=xcb xvfb-run -a -s '-screen 0 1920x1200x24 -dpi 96' \
    "$(build_folder default)"/bin/malto-editor-pictures docs/pictures/editors
optipng -quiet -strip all docs/pictures/editors/*.png
