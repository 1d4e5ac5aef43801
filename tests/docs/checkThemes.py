#!/usr/bin/env python3
"""Fails unless docs/guide/themes.md lists the colours of both themes correctly, and every hook that the
window's style sheets use.

    checkThemes.py <folder of the project>
"""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
page = (root / "docs/guide/themes.md").read_text(encoding="utf-8")
source = (root / "companion/orvutils/ThemeValues.cpp").read_text(encoding="utf-8")
light, dark = (dict(re.findall(r'\{QStringLiteral\("(\w+)"\), QStringLiteral\("(#\w+)"\)\}', part))
               for part in source.split("darkThemeValues()"))
colours = {(name, light[name], dark.get(name)) for name in light}
listed = set(re.findall(r"^\| `(\w+)` \| `(#\w+)` \| `(#\w+)` \|", page, flags=re.M))
problems = [f"theme value: {value}" for value in sorted(colours ^ listed)]

for sheet in sorted(root.glob("res/*.qss")):
    text = re.sub(r"/\*.*?\*/|\{.*?\}", "", sheet.read_text(encoding="utf-8"), flags=re.S)
    for hook in sorted(set(re.findall(r'[#.][A-Za-z]\w*|\[\w+="\w+"\]|\w+--\w+', text))):
        if hook not in page and hook != '[class="KeySequenceEdit"]':
            problems.append(f"{sheet.name}: the selector {hook} is not on the page")
print("\n".join(problems))
sys.exit(bool(problems) or not colours)
