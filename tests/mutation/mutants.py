"""Generates mutants of a C++ source: small changes of its text that should make a test fail."""

import hashlib
import re
from collections import namedtuple

# `start` and `end` are offsets in the source; the text between them is replaced by `after`.
Mutant = namedtuple("Mutant", "key file line start end before after kind")

SWAPS = {
    "condition": {" && ": " || ", " || ": " && "},
    "comparison": {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ",
                   " == ": " != ", " != ": " == "},
    "arithmetic": {" + ": " - ", " - ": " + ", " * ": " / ", " / ": " * "},
    "assignment": {" += ": " -= ", " -= ": " += ", " |= ": " = ", " &= ~": " |= "},
}
IF = re.compile(r"\b(?:else )?if \((?!const auto|auto|const \w+ \*|int \w+ =)")
NUMBER = re.compile(r"(?<![\w.\"#])\d+(?:\.\d+)?(?![\w.])")
BOOLEAN = re.compile(r"\b(true|false)\b")
# A one-line statement that calls a function or assigns to an existing variable.
CALL = re.compile(r"^\s+((?!return\b|delete\b|throw\b|case\b|using\b|namespace\b)"
                  r"[\w:]+(?:(?:->|\.|::)\w+|\([^;]*?\)|\[[^;]*?\])*\([^;]*\);)$", re.M)
ASSIGNMENT = re.compile(r"^\s+(\*?[\w.>\[\]()-]+ (?:=|\|=|&=|\+=|-=) [^;]*;)$", re.M)
STEP = re.compile(r"(?<!\+)\+\+(?!\+)|(?<!-)--(?!-)")


def blanked(source):
    """Returns the source with comments, preprocessor lines and the content of literals blanked."""
    def blank(match):
        text = match.group(0)
        if text[0] in "\"'" and len(text) > 2:
            return text[0] + " " * (len(text) - 2) + text[0]
        return re.sub(r"[^\n]", " ", text)
    tokens = r"//[^\n]*|/\*.*?\*/|\"(?:\\.|[^\"\\\n])*\"|'(?:\\.|[^'\\\n])*'|^[ \t]*#(?:[^\n]*\\\n)*[^\n]*"
    return re.sub(tokens, blank, source, flags=re.S | re.M)


def matching(text, opening):
    """Returns the offset of the parenthesis that closes the one at `opening`, or -1."""
    depth = 0
    for offset in range(opening, len(text)):
        depth += {"(": 1, ")": -1}.get(text[offset], 0)
        if depth == 0:
            return offset
    return -1


def increased(number):
    return "%g" % (float(number) + 1) if "." not in number else "%s" % (float(number) + 0.5)


def replacements(source):
    """Yields (start, end, replacement, kind)."""
    code = blanked(source)
    for kind, swaps in SWAPS.items():
        for before, after in swaps.items():
            for match in re.finditer(re.escape(before), code):
                yield match.start(), match.end(), after, kind
    for match in IF.finditer(code):
        closing = matching(code, match.end() - 1)
        inside = source[match.end():closing]
        yield match.end(), closing, "!(%s)" % inside, "negation"
    for match in NUMBER.finditer(code):
        yield match.start(), match.end(), increased(match.group(0)), "number"
    for match in BOOLEAN.finditer(code):
        yield match.start(), match.end(), {"true": "false"}.get(match.group(0), "true"), "boolean"
    for match in re.finditer(r"\"[^\"\n]*\"", code):
        yield match.end() - 1, match.end(), "~\"", "text"
    for pattern, kind in ((CALL, "dropped call"), (ASSIGNMENT, "dropped assignment")):
        for match in pattern.finditer(code):
            if match.group(1).count("(") == match.group(1).count(")"):
                yield match.start(1), match.end(1), ";", kind
    for match in STEP.finditer(code):
        yield match.start(), match.end(), {"++": "--"}.get(match.group(0), "++"), "step"


def mutants_of(name, source):
    """Returns all mutants of a file in text order. Their keys do not depend on other lines."""
    lines = source.split("\n")
    seen = {}
    result = []
    for start, end, after, kind in sorted(set(replacements(source))):
        number = source.count("\n", 0, start)
        column = start - (source.rfind("\n", 0, start) + 1)
        identity = (name, lines[number], column, after)
        seen[identity] = seen.get(identity, 0) + 1
        text = "|".join(map(str, identity + (seen[identity],)))
        key = hashlib.sha1(text.encode()).hexdigest()[:12]
        result.append(Mutant(key, name, number + 1, start, end, source[start:end], after, kind))
    return result
