#!/usr/bin/env bash
# Updates the demo's .ts files with the texts in its sources.
set -euo pipefail
demo=$(cd "$(dirname "$0")/.." && pwd)
exec "$demo/../translations/update.sh" --host "$demo" "$demo/translations"
