#!/usr/bin/env bash
# Brings .ts files up to date with the texts in the sources: new texts come in unfinished, texts
# that are gone leave.
#
#   update.sh                            all files of the library
#   update.sh FILE.ts...                 these, with the texts of the library
#   update.sh --host SOURCES TS_FOLDER   a host's, with the texts of the folder SOURCES: the files
#                                        <code>.ts that are in TS_FOLDER, or when there are none,
#                                        new ones for all languages of the library
#
# LUPDATE names another lupdate.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)

# lupdate learns the name spaces of the classes, and with them the right contexts, from the headers,
# and so must find these by the project's include lines.
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
            # lupdate would guess the language from the file's name, and not always rightly.
            { sed '/^<context>/,$d' "$own"; echo '</TS>'; } >"$file"
            files+=("$file")
        done
    fi
    update "$sources" -ts ${files[@]+"${files[@]}"}
else
    files=("$@")
    [ $# -gt 0 ] || files=("$root"/translations/malto_*.ts)
    update "$root"/{store,manage,widgets,window,companion} -ts ${files[@]+"${files[@]}"}
fi
