#!/usr/bin/env bash
# Builds the fuzz targets and runs them one after the other, each starting with its corpus:
#   ./check [qt5|qt6] fuzz [seconds for each target] [libFuzzer option...]
# A second argument such as -runs=1000000 ends a target earlier. Inputs that fail are kept in
# build-fuzz/findings. Copy them into the target's corpus, so that every test run repeats them.
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

# Leaks are checked by the replay tests, with a list of known leaks in system libraries.
export ASAN_OPTIONS=detect_leaks=0
# Use a file system in memory if available. The files are removed here, because the fuzzer exits its
# processes without cleaning up.
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
    # New inputs are kept outside of the repository; the next run starts with them.
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
