#!/usr/bin/env bash
# Builds malto-exchange with both Qts and lets the two programs exchange files with random settings,
# in both directions and over several rounds of merging:
#   ./check exchange [number of stores]
# Every file must have the same bytes, whichever program wrote it.
set -euo pipefail
cd "$(dirname "$0")/../.."
. cmake/prepare.sh

stores=${1:-300}
rounds=4
programs=()
for qt in qt5 qt6; do
    choose_qt "$qt"
    install_missing "${BUILD_PACKAGES[@]}" "${DISPLAY_PACKAGES[@]}"
    configure default
    build default malto-exchange
    programs+=("$PWD/$(build_folder default)/tests/bin/malto-exchange")
done

# Use a file system in memory if available: there are many small files.
memory=/tmp
[ ! -w /dev/shm ] || memory=/dev/shm
TMPDIR=$(mktemp -d "$memory/malto-exchange-XXXXXX")
export TMPDIR XDG_RUNTIME_DIR=$TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
cd "$TMPDIR"

# same <folder> <folder> <what was done>
same() {
    diff -r "$1" "$2" >differences || {
        say "Qt 5 and Qt 6 differ: $3"
        cut -c 1-2000 differences | head -n 20 >&2
        exit 1
    }
    say "same: $3"
}

qt_of() { if [ "$1" = 0 ]; then echo "Qt 5"; else echo "Qt 6"; fi; }

for writer in 0 1; do
    "${programs[$writer]}" write "written$writer" "$stores"
done
same written0 written1 "$stores stores, written by each"

for reader in 0 1; do
    for writer in 0 1; do
        "${programs[$reader]}" rewrite "written$writer" "rewritten$reader$writer" "$stores"
    done
done
for reader in 0 1; do
    for writer in 0 1; do
        same rewritten00 "rewritten$reader$writer" \
            "written by $(qt_of $writer), read and written again by $(qt_of $reader)"
    done
done

# Two hosts merge each other's files in turn. In the last case both change their Qt every round.
for hosts in 00 01 10 11 swap; do
    for ((round = 1; round <= rounds; round++)); do
        case $hosts in
            swap) first=$((round % 2)) second=$((1 - round % 2)) ;;
            *) first=${hosts%?} second=${hosts#?} ;;
        esac
        "${programs[$first]}" merge "$hosts/b" "$hosts/a" "$stores" $((2 * round))
        "${programs[$second]}" merge "$hosts/a" "$hosts/b" "$stores" $((2 * round + 1))
    done
done
same 00 01 "$rounds rounds of merging, hosts with Qt 5 and Qt 6"
same 00 10 "$rounds rounds of merging, hosts with Qt 6 and Qt 5"
same 00 11 "$rounds rounds of merging, both hosts with Qt 6"
same 00 swap "$rounds rounds of merging, both hosts change their Qt every round"
