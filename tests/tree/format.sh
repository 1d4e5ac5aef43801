#!/usr/bin/env bash
#   format.sh [--fix]
# Compares the layout of all C++ with .clang-format; --fix changes the files. The versions of
# clang-format differ and 14 decides: without it this exits with 77 and a sentence.
set -euo pipefail
cd "$(dirname "$0")/../.."

for program in clang-format-14 clang-format /opt/homebrew/opt/llvm@14/bin/clang-format; do
    version=$("$program" --version 2>/dev/null | sed -n 's/.*version \([0-9]*\).*/\1/p') || version=
    [ "$version" != 14 ] || break
done
if [ "$version" != 14 ]; then
    echo "clang-format 14, the version of Debian 12, decides, and it is not installed."
    exit 77
fi
mode=(--dry-run --Werror)
[ "${1:-}" != --fix ] || mode=(-i)
find . \( -path './build*' -o -path './.*' \) -prune -o \
    \( -name '*.cpp' -o -name '*.h' -o -name '*.mm' \) -print0 \
    | xargs -0 "$program" --style=file "${mode[@]}"
