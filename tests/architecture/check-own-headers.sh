#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# A source includes its own header before everything else, so that the header is compiled alone and names all that
# it needs.
#   check-own-headers.sh SOURCE-DIRECTORY
set -eu
cd -- "$1"
scratch=$(mktemp)
trap 'rm -f "$scratch"' EXIT
checked=0
failures=0
find platform protocol panels host dialog programs -name '*.cpp' >"$scratch"
while IFS= read -r source; do
    header=${source%.cpp}.h
    [ -f "$header" ] || continue
    checked=$((checked + 1))
    first=$(grep -m 1 '^#include' "$source" || true)
    [ "$first" = "#include \"${header##*/}\"" ] || {
        echo "$source includes something before its own header: $first" >&2
        failures=$((failures + 1))
    }
done <"$scratch"
echo "$checked headers, $failures wrong"
[ "$failures" -eq 0 ] && [ "$checked" -gt 100 ]
