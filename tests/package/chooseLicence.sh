#!/usr/bin/env bash
# Tests choosing a licence: it needs the file LICENSE and one line of CMakeLists.txt. If one of them
# is missing, the configuration must fail.
#   chooseLicence.sh <source of the project> <work folder> <Qt: 5|6> <compiler>
set -euo pipefail
project=$1 work=$2 qt_major=$3
export CXX=$4

rm -rf "$work"
mkdir -p "$work/source"
ln -s "$project"/* "$work/source"
rm -rf "$work"/source/{build*,CMakeLists.txt,LICENSE}
line='set(MALTO_LICENSE '
sed "s/^$line.*/$line\"MIT\")/" "$project/CMakeLists.txt" > "$work/chosen"
sed "s/^$line.*/$line\"\")/" "$project/CMakeLists.txt" > "$work/open"

configure() { # <CMakeLists.txt>
    cp "$1" "$work/source/CMakeLists.txt"
    cmake --preset package -S "$work/source" -B "$work/build" -DMALTO_QT_MAJOR="$qt_major" \
        > "$work/log" 2>&1
}

if configure "$work/chosen" || ! grep -q 'LICENSE with its text is missing' "$work/log"; then exit 1; fi
printf 'First; "line"\n\n\nLast line\n\n' > "$work/source/LICENSE"
if configure "$work/open" || ! grep -q 'set MALTO_LICENSE' "$work/log"; then exit 1; fi

configure "$work/chosen" || { cat "$work/log"; exit 1; }
printf 'License: MIT\n First; "line"\n .\n .\n Last line\n\n' > "$work/expected"
sed -n '/^License: MIT/,/^$/p' "$work/build/packaging/copyright" > "$work/paragraph"
diff "$work/expected" "$work/paragraph"
for module in "$work"/build/pkgconfig/*.pc; do
    grep -qx 'License: MIT' "$module"
    pkg-config --validate "$module"
done
grep -q "CPACK_RESOURCE_FILE_LICENSE \"$work/source/LICENSE\"" "$work/build/CPackConfig.cmake"
grep -q 'licences" TYPE FILE RENAME "MaltoConfiguration"' "$work/build/cmake_install.cmake"
