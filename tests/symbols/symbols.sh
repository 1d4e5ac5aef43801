#!/usr/bin/env bash
# The exported functions and data of a library, one per line, compared with the list of its version.
#   symbols.sh check  <library> <list>   fails when one of the list has gone; tells what is new
#   symbols.sh update <library> <list>   writes the list
# A symbol that goes breaks programs built against an earlier build: it takes a new SOVERSION.
set -euo pipefail
action=$1 library=$2 list=$3

# Weak symbols are left out: which inline functions there are is the compiler's choice.
exported() {
    nm --dynamic --defined-only "$library" | awk '$2 ~ /^[TDBR]$/ { print $3 }' \
        | c++filt | LC_ALL=C sort -u
}

if [ "$action" = update ]; then
    exported > "$list"
    exit
fi
gone=$(LC_ALL=C comm -23 "$list" <(exported))
new=$(LC_ALL=C comm -13 "$list" <(exported))
[ -z "$new" ] || printf 'New, not in %s:\n%s\n' "$list" "$new"
[ -z "$gone" ] || { printf 'Gone from %s:\n%s\n' "$library" "$gone"; exit 1; }
