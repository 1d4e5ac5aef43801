#!/usr/bin/env bash
# Draws the icons that the style sheets use. Needs ImageMagick; run after changing a shape.
set -euo pipefail
cd "$(dirname "$0")"

# draw <file> <colour> <shape>: a shape in a square of 64 units, with round strokes.
draw() {
    convert -size 256x256 xc:none -fill none -stroke "$2" -strokewidth 8 \
        -draw "scale 4,4 stroke-linecap round stroke-linejoin round $3" \
        -resize 64x64 -strip -define png:exclude-chunks=date,time "PNG32:$1.png"
}

white='#ffffff'
grey='#8a919c' # visible on light and dark backgrounds

marks() { # <colour> <suffix>
    draw "check$2" "$1" 'polyline 14,34 27,47 50,19'
    draw "partly$2" "$1" 'line 16,32 48,32'
    draw "dot$2" "$1" "fill $1 stroke-width 0 circle 32,32 32,20"
}

marks "$white" ''
marks '#0f1114' -dark # on a light accent
arrows() { # <colour> <suffix>
    draw "arrow-down$2" "$1" 'polyline 14,24 32,42 50,24'
    draw "arrow-up$2" "$1" 'polyline 14,40 32,22 50,40'
}

arrows "$grey" ''
arrows '#d5d9e0' -light # of the modern look
arrows '#3a404a' -dark
