#!/usr/bin/env bash
# Updates .ts files with the texts in the sources: adds new texts as unfinished and removes those
# that are not used any more.
#
#   update.sh                            all files of the library
#   update.sh FILE.ts...                 these, with the texts of the library
#   update.sh --host SOURCES TS_FOLDER   a host's, with the texts of the folder SOURCES: the files
#                                        <code>.ts in TS_FOLDER or, if there are none, new ones for
#                                        all languages of the library
#
# The environment variable LUPDATE names another lupdate.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)

# lupdate takes the contexts of the texts from the namespaces in the headers, so it must find these
# by the project's include lines.
include=$(mktemp -d)
trap 'rm -rf "$include"' EXIT
ln -s "$root" "$include/MaltoConfiguration"
ln -s "$root/companion/orvutils" "$include/OrvUtils"
ln -s "$root/companion/iconfont" "$include/QIconfont"

update() # OPTION... SOURCE... -ts FILE...
{
    "${LUPDATE:-lupdate}" -silent -no-obsolete -locations none -source-language en_US \
        -I "$include" -I "$root/companion/globalshortcut" "$@"
}

if [ "${1-}" = --host ]; then
    sources=${2:?the folder of the sources is missing}
    folder=${3:?the folder of the .ts files is missing}
    mkdir -p "$folder"
    files=("$folder"/*.ts)
    if [ ! -e "${files[0]}" ]; then
        files=()
        for own in "$root"/translations/malto_*.ts; do
            file=$folder/${own##*/malto_}
            # With a header, because lupdate guesses the language from the file name, sometimes
            # wrongly.
            { sed '/^<context>/,$d' "$own"; echo '</TS>'; } >"$file"
            files+=("$file")
        done
    fi
    update "$sources" -ts ${files[@]+"${files[@]}"}
else
    files=("$@")
    [ $# -gt 0 ] || files=("$root"/translations/malto_*.ts)
    update "$root"/{store,manage,widgets,inputs,window,companion} -ts ${files[@]+"${files[@]}"}
fi
