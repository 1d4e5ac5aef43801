#!/usr/bin/env python3
"""Builds the icon font QuorviIconfont.ttf from the outlines beside this script.

    build_font.py          writes the font
    build_font.py --check  exits with 1 if the font file differs from the one it would write

Needs fontTools. The result depends only on the outlines, this script and the version of fontTools.
"""
import io
import pathlib
import sys
import xml.etree.ElementTree as ElementTree

import fontTools
from fontTools.fontBuilder import FontBuilder
from fontTools.misc.transform import Identity
from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.transformPen import TransformPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.svgLib.path import parse_path

HERE = pathlib.Path(__file__).resolve().parent
FONT = HERE / "QuorviIconfont.ttf"
FAMILY = "QuorviIconfont"
EM = 1024
DESCENT = 128          # centres a glyph vertically on capital letters
OUTLINE_SIZE = 16      # the side of the outlines' square
MAX_ERROR = 0.5        # of the quadratic curves, in font units
EPOCH = 3786825600     # 2024-01-01 in seconds of the font format, for reproducible builds

GLYPHS = {
    0xE63A: "slash-circle-fill",          # disabled, nothing set
    0xE70D: "x-circle-fill",              # error, clear
    0xE71B: "exclamation-triangle-fill",  # failed, conflict
    0xE725: "check-circle-fill",          # registered, correct
    0xE800: "gear-fill",                  # General
    0xE801: "palette-fill",               # Appearance
    0xE802: "camera-fill",                # Capture
    0xE803: "keyboard-fill",              # Hotkeys
    0xE804: "mouse-fill",                 # Mouse
    0xE805: "folder-fill",                # Output
    0xE806: "person-badge-fill",          # Profiles
    0xE807: "wrench-adjustable",          # Advanced
}


def draw(name, pen, transformation):
    """Draws the outline `name` with `pen`."""
    transformed = TransformPen(pen, transformation)
    for element in ElementTree.parse(HERE / "outlines" / f"{name}.svg").iter():
        if element.tag.endswith("path"):
            parse_path(element.get("d"), transformed)


def glyph(name):
    """Returns the outline `name`, upright, at the common scale, centred in the em square."""
    bounds = BoundsPen(None)
    draw(name, bounds, Identity)
    left, top, right, bottom = bounds.bounds
    # An outline that exceeds its square is scaled down, or the em square would cut it off.
    scale = EM / max(OUTLINE_SIZE, right - left, bottom - top)
    x = EM / 2 - scale * (left + right) / 2
    y = EM / 2 - DESCENT + scale * (top + bottom) / 2
    pen = TTGlyphPen(None)
    draw(name, Cu2QuPen(pen, MAX_ERROR), (scale, 0, 0, -scale, x, y))
    return pen.glyph()


def build():
    glyphs = {".notdef": TTGlyphPen(None).glyph()}
    glyphs.update((f"uni{code:04X}", glyph(name)) for code, name in GLYPHS.items())
    builder = FontBuilder(EM, isTTF=True)
    builder.setupGlyphOrder(list(glyphs))
    builder.setupCharacterMap({code: f"uni{code:04X}" for code in GLYPHS})
    builder.setupGlyf(glyphs)
    builder.setupHorizontalMetrics(
        {name: (EM, getattr(shape, "xMin", 0)) for name, shape in glyphs.items()})
    builder.setupHorizontalHeader(ascent=EM - DESCENT, descent=-DESCENT)
    builder.setupNameTable({"familyName": FAMILY, "styleName": "Regular", "fullName": FAMILY,
                            "psName": FAMILY, "uniqueFontIdentifier": FAMILY, "version": "1.0"})
    builder.setupOS2(fsType=0, sTypoAscender=EM - DESCENT, sTypoDescender=-DESCENT,
                     usWinAscent=EM - DESCENT, usWinDescent=DESCENT)
    builder.setupPost()
    builder.font["head"].created = builder.font["head"].modified = EPOCH
    builder.font.recalcTimestamp = False
    data = io.BytesIO()
    builder.save(data)
    return data.getvalue()


def main():
    font = build()
    if sys.argv[1:] == ["--check"]:
        if FONT.read_bytes() == font:
            return 0
        return f"{FONT.name} differs from what fontTools {fontTools.version} makes of its outlines"
    if len(sys.argv) > 1:
        return __doc__
    FONT.write_bytes(font)
    return 0


if __name__ == "__main__":
    sys.exit(main())
