#!/usr/bin/env python3
"""Finds what shell scripts must not use, because macOS has bash 3.2 and the tools of BSD.

    checkScripts.py <folder of the project>
    checkScripts.py <folder of the project> --shellcheck <program>   asks shellcheck instead

Each rule has an example that it must find and one that it must accept; both are tested first. A
script with the comment "Linux only" may use GNU tools, but no newer bash.
"""

import os
import re
import subprocess
import sys
from collections import namedtuple
from pathlib import Path

Rule = namedtuple("Rule", "pattern instead bad good")

BASH = (
    Rule(r"\b(mapfile|readarray)\b", "read in a loop", "mapfile -t lines < file", "read -r line"),
    Rule(r"\bcoproc\b", "a pipe", "coproc cat", "cat &"),
    Rule(r"\b(declare|local|typeset|readonly)\s+-[a-zA-Z]*[Agnlu]",
         "no associative arrays, references or case attributes", "local -A seen", "local -r seen"),
    Rule(r"\$\{!?\w+(\[[^]]*\])?(\^|,)", "tr", "echo ${name^^}", "echo ${name:-a,b}"),
    Rule(r"\$\{!?\w+(\[[^]]*\])?@[a-zA-Z]\}", "printf %q", "echo ${name@Q}", "echo ${names[@]}"),
    Rule(r"\|&", "2>&1 |", "make |& tee log", "make 2>&1 | tee log || true"),
    Rule(r"&>>", ">>file 2>&1", "make &>>log", "make >>log 2>&1"),
    Rule(r";&|;;&", "repeat the commands", "a) run ;&", "a) run ;;"),
    Rule(r"\$\{\w+\[-|\b\w+\[-\d+\]=", "count from the start", "echo ${names[-1]}",
         "echo ${names[$# - 1]}"),
    Rule(r"\$\{\w+:(?![-=+?])[^}:]*:\s*-\d", "count from the start", "echo ${name:0:-1}",
         "echo ${name: -1} ${name:-${other:-1}}"),
    Rule(r"(\[\[?|\btest)\s+(!\s+)?-v\s", "[ -n \"${name+set}\" ]", "[ -v name ]", "[ -d name ]"),
    Rule(r"\bwait\s+-n\b", "wait for each", "wait -n", "wait $!"),
    Rule(r"\bprintf\b[^|;]*%\([^)]*\)T", "date", "printf '%(%s)T'", "printf '(%s)' T"),
    Rule(r"\bread\b[^|;]*\s-\w*([iN]|t\s*\d*\.\d)", "whole seconds, no -i, no -N", "read -t 0.5 x",
         "read -r -t 5 x"),
    Rule(r"\bshopt\b.*\b(globstar|lastpipe|inherit_errexit|autocd)\b", "find", "shopt -s globstar",
         "shopt -s nullglob"),
    Rule(r"\{\w+\.\.\w+\.\.\w+\}|\{0\d+\.\.", "seq", "echo {1..9..2}", "echo {1..9}"),
    Rule(r"\bexec\s+\{\w+\}", "a number", "exec {lock}>file", "exec 9>file"),
    Rule(r"\$\{?(BASHPID|EPOCHSECONDS|EPOCHREALTIME|SRANDOM)\b", "$$ or date", "kill $BASHPID",
         "kill $$"),
    Rule(r"(^|[;&|]\s*)(source|\.)\s+<\(", "a file", ". <(cat file)", ". ./file <(cat file)"),
    Rule(r"\$\((?!\()[^)]*\bcase\b", "a function", "x=$(case $y in a) echo b ;; esac)",
         "x=$(of_case \"$y\")"),
    Rule(r"\$'[^']*\\u", "the character itself", r"echo $'\u00e4'", r"echo $'\t'"),
)

TOOLS = (
    Rule(r"\bsed\b[^|]*\s(-\w*i|--in-place)", "a second file", "sed -i s/a/b/ file",
         "sed -n s/a/b/p in"),
    Rule(r"\bsed\b[^|]*\s-\w*r\b", "sed -E", "sed -r 's/(a)/b/' f", "sed -E 's/(a)/b/' f"),
    Rule(r"\bsed\b[^|]*\{[^}']*[^\s;\\{}'\d]\}", "a semicolon before the brace",
         "sed -n '/a/{/b/!p}' f", r"sed -n '/a/{/b/!p;}; s/a\{1,2\}//' f"),
    Rule(r"\b(readlink\s+-[a-z]*[fem]|realpath\b)", "cd and pwd", "realpath -m a", "readlink a"),
    Rule(r"\bgrep\b[^|]*\s(-\w*P|--perl-regexp)", "grep -E", r"grep -qP '\d' f", "grep -E 'P' f"),
    Rule(r"\bstat\s+(-\w*c|--format)", "wc -c or find -newer", "stat -c %s f", "wc -c <f"),
    Rule(r"\bdate\b[^|;)]*\s(-d|--date)", "SECONDS", "date -d yesterday", "date -u +%s"),
    Rule(r"\b(nproc|tac|timeout|sha\d+sum|md5sum|numfmt|shuf)\s*($|[;&|)\s])", "getconf _NPROCESSORS_ONLN, or what else POSIX has",
         "xargs -P \"$(nproc)\"", "getconf _NPROCESSORS_ONLN"),
    Rule(r"\bhead\s+(-n|-c)\s*-", "sed '$d'", "head -n -1 f", "head -n 1 f"),
    Rule(r"\bfind\b[^|]*\s-(printf|regextype|executable)\b", "-exec or -perm", "find . -printf %f",
         "find . -print"),
    Rule(r"\bxargs\b[^|]*\s-\w*[rd]\b", "-0, or ask before", "ls | xargs -r rm", "ls | xargs -n 1 r"),
    Rule(r"\bcp\b[^|;]*\s(-\w*[at]|--\w)", "cp -R", "cp -a b c", "cp -R a-t b"),
    Rule(r"\b(base64\s+-w|du\s+-\w*b|install\s+-\w*D|echo\s+-e|sort\s+-\w*V|ls\s+--)",
         "what POSIX has", "echo -e 'a\\tb'", "echo a -e"),
    Rule(r"^\s*\((?!\()(?!.*\)\s*\|\|).*\)[^|)]*$", "|| exit after it: set -e of bash 3.2 does not see "
         "that a subshell failed", "(cd a && make) >log", "(cd a && make) || exit 1"),
)

EXPANSION = re.compile(r"\$\{(\w+)\[[@*]\]\}")
GUARDED = re.compile(r"\$\{(\w+)\[([@*])\]\+\"\$\{\1\[\2\]\}\"\}")
ASSIGNMENT = re.compile(r"(?:^|[\s;&|(])(\w+)=\(([^()]*(?:\([^()]*\)[^()]*)*)\)", re.M)


def scripts(root):
    """Yields the shell scripts of the tree, recognised by their first line or their name."""
    for folder, folders, files in os.walk(root):
        folders[:] = [name for name in folders
                      if name == ".ci" or not name.startswith((".", "build"))]
        for name in files:
            path = Path(folder, name)
            if path.is_symlink():
                continue
            with open(path, "rb") as source:
                first = source.readline(80)
            if name.endswith(".sh") or re.match(rb"#!.*\b(ba)?sh\b", first):
                yield path


def code_of(text):
    """Returns the text with blanked comments and unchanged line numbers."""
    return re.sub(r"^(\s*)#.*|(\s)#\s.*$", "", text, flags=re.M)


def never_empty(codes):
    """Returns the arrays that are only assigned lists whose first element always exists."""
    safe, other = set(), set()
    for code in codes:
        for name, elements in ASSIGNMENT.findall(code):
            words = elements.split()
            certain = bool(words) and not re.match(r"\"?\$[@*{(]|\$\w", words[0])
            (safe if certain else other).add(name)
    return safe - other


def found_in(code, rules, full):
    """Yields (line number, problem). `full` are the arrays that are never empty."""
    for number, line in enumerate(code.split("\n"), 1):
        for rule in rules:
            match = re.search(rule.pattern, line)
            if match:
                yield number, "macOS lacks %r, instead: %s" % (match.group(0).strip(), rule.instead)
        for name in EXPANSION.findall(GUARDED.sub("", line)):
            if name not in full:
                yield number, ("set -u ends bash 3.2 when %s is empty, instead: "
                               "${%s[@]+\"${%s[@]}\"}" % (name, name, name))


def try_rules():
    for rule in BASH + TOOLS:
        assert re.search(rule.pattern, rule.bad), "accepted: " + rule.bad
        assert not re.search(rule.pattern, rule.good), "refused: " + rule.good
    for bad in ('a=()\nrun "${a[@]}"', 'a=("$@")\nrun "${a[@]}"', 'a=($b)\nrun ${a[*]}',
                'a=(1)\na=()\nrun "${a[@]}"', 'run "${a[@]}"'):
        assert list(found_in(bad, BASH, never_empty([bad]))), "accepted: " + bad
    for good in ('a=()\nrun ${a[@]+"${a[@]}"}', 'a=(-x "$b")\nrun "${a[@]}"', 'a=()\n: ${#a[@]}',
                 'a=(1\n 2)\nrun "${a[@]}"'):
        assert not list(found_in(good, BASH, never_empty([good]))), "refused: " + good


def main():
    try_rules()
    root = Path(sys.argv[1])
    if "--shellcheck" in sys.argv:
        sys.exit(subprocess.run([sys.argv[3], "-x", "-s", "bash", *sorted(scripts(root))],
                                cwd=root).returncode)
    texts = {path: path.read_text() for path in sorted(scripts(root))}
    codes = {path: code_of(text) for path, text in texts.items()}
    full = never_empty(codes.values())
    wrong = 0
    for path, code in codes.items():
        rules = BASH if re.search(r"^#.*\bLinux only\b", texts[path], re.M) else BASH + TOOLS
        for number, message in found_in(code, rules, full):
            print("%s:%d: %s" % (path.relative_to(root), number, message))
            wrong += 1
    print("%d scripts, %d places to change" % (len(codes), wrong))
    sys.exit(1 if wrong or not codes else 0)


if __name__ == "__main__":
    main()
