#!/usr/bin/env bash
# Compares the exported functions and data of a library with a list, one symbol in each line.
# Linux only.
#   symbols.sh check  <library> <list>   fails if a symbol of the list is missing; prints new ones
#   symbols.sh update <library> <list>   writes the list
# Programs that were built earlier need the missing symbol: removing one requires a new SOVERSION.
set -euo pipefail
action=$1 library=$2 list=$3

# Without weak symbols: the compiler decides which inline functions it emits.
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
[ -z "$gone" ] || { printf 'Missing in %s:\n%s\n' "$library" "$gone"; exit 1; }
