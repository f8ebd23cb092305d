#!/usr/bin/env bash
# Prints what the guest noted for one case and passes when its verdict is PASS.
# Usage: check_case.sh CONSOLE_LOG CASE
set -euo pipefail
console="$1" name="$2"
lines="$(tr -d '\r' <"$console" | grep -E "^velmora-system: ($name: |result $name )" || true)"
echo "$lines"
verdict="$(echo "$lines" | awk -v name="$name" '$2 == "result" && $3 == name { print $4 }')"
case "$verdict" in
PASS) ;;
FAIL) exit 1 ;;
*)
    echo "check_case: the guest gave no verdict for $name" >&2
    exit 1
    ;;
esac
