#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# check-security.sh SOURCES BUILD: each test that docs/security.md names exists. SUITE.CASE is a test of GoogleTest,
# a name without a dot one of ctest.
set -u
sources=$1
build=$2
document=$sources/docs/security.md
status=0
names=$(sed -n '/^## What is not trusted/,/^## Known limitations/p' "$document" |
    sed -n 's/.*| *\(`.*`.*\) |$/\1/p; s/.*: \(`[a-z]*`\)\.$/\1/p' | tr ',' '\n' | sed 's/[` ]//g')
[ "$(printf '%s\n' "$names" | wc -l)" -ge 30 ] || { echo "$document: the tables of tests are not found" >&2; exit 1; }
for name in $names; do
    case $name in
    *.*) grep -rqE "^TEST(_F|_P)?\(${name%.*}, ${name#*.}\)" "$sources/tests" ;;
    *) ctest --test-dir "$build" --show-only | grep -qE "Test +#[0-9]+: $name\$" ;;
    esac || { echo "$document: there is no test $name" >&2; status=1; }
done
exit $status
