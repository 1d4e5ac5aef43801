#!/usr/bin/env bash
# Builds the fuzz targets and runs each of them, one after the other, from what is in its corpus:
#   ./check [qt5|qt6] fuzz [seconds for each target] [libFuzzer option...]
# A second argument such as -runs=1000000 ends a target earlier. What breaks a target is kept in
# build-fuzz/findings; put it into the target's corpus, where every test run repeats it.
set -euo pipefail
cd "$(dirname "$0")/../.."
. cmake/prepare.sh

seconds=${1:-60}
[ $# -eq 0 ] || shift
install_missing "${BUILD_PACKAGES[@]}" "${FUZZ_PACKAGES[@]}"
configure fuzz
build fuzz
built=$(build_folder fuzz)

dictionary_of() {
    case $1 in
        windowGeometry) echo ini ;;
        styleSheets) echo sheet ;;
        translationFiles) echo files ;;
        *) echo json ;;
    esac
}

# Leaks are looked for where the corpora are replayed, with the list of those that are not ours.
export ASAN_OPTIONS=detect_leaks=0
# In memory where there is some, and removed here: the fuzzer ends its processes without goodbye.
memory=/tmp
[ ! -w /dev/shm ] || memory=/dev/shm
TMPDIR=$(mktemp -d "$memory/malto-fuzz-XXXXXX")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
findings=$built/findings
mkdir -p "$findings"
failed=0
printf '%-20s %12s %8s %8s  %s\n' target executions seconds inputs result
for folder in tests/fuzz/corpus/*/; do
    name=$(basename "$folder")
    # What is found on the way stays out of the repository, and is where the next run begins.
    grown=$built/corpus/$name
    log=$built/$name.log
    mkdir -p "$grown"
    result=ok
    started=$SECONDS
    "$built/fuzz/bin/fuzz_$name" -max_total_time="$seconds" -max_len=1024 -timeout=10 \
        -rss_limit_mb=4096 -detect_leaks=0 -print_final_stats=1 \
        -dict=tests/fuzz/dictionaries/"$(dictionary_of "$name")".dict \
        -artifact_prefix="$findings/$name-" "$@" "$grown" "$folder" >"$log" 2>&1 \
        || { result="failed, see $log"; failed=1; }
    executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
    printf '%-20s %12s %8s %8s  %s\n' "$name" "${executions:-?}" $((SECONDS - started)) \
        "$(find "$grown" -type f | wc -l)" "$result"
done
exit $failed
