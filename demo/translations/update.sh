#!/usr/bin/env bash
# Brings the demo's .ts files up to date with the texts in its sources.
set -euo pipefail
demo=$(cd "$(dirname "$0")/.." && pwd)
exec "$demo/../translations/update.sh" --host "$demo" "$demo/translations"
