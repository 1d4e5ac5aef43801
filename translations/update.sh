#!/usr/bin/env bash
# Brings .ts files up to date with the texts in the sources: new texts come in unfinished, texts
# that are gone leave. Without arguments all files of the library, or else the given ones.
# LUPDATE names another lupdate.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
files=("$@")
[ $# -gt 0 ] || files=("$root"/translations/malto_*.ts)

# lupdate learns the name spaces of the classes, and with them the right contexts, from the headers,
# and so must find these by the project's include lines.
include=$(mktemp -d)
trap 'rm -rf "$include"' EXIT
ln -s "$root" "$include/MaltoConfiguration"
ln -s "$root/companion/orvutils" "$include/OrvUtils"
ln -s "$root/companion/iconfont" "$include/QIconfont"

"${LUPDATE:-lupdate}" -silent -no-obsolete -locations none -source-language en_US \
    -I "$include" -I "$root/companion/globalshortcut" \
    "$root"/{store,manage,widgets,window,companion} -ts "${files[@]}"
