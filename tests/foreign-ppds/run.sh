#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# tests/foreign-ppds/run.sh: opens the PPDs of office printers in Debian, some thousand, as the dialog does,
# and prints those that only libcups opens. In that case the exit status is 1. The packages are fetched into a
# temporary folder and not installed; python3 unpacks them.
set -eu
here=$(CDPATH='' cd -- "$(dirname -- "$0")/../.." && pwd)
. "$here/tools/frontdoor.sh"
packages="foomatic-db-compressed-ppds openprinting-ppds hpijs-ppds"

build "$here" release examine_ppds
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# shellcheck disable=SC2086 # the list is words
(cd "$scratch" && apt-get download -q $packages >&2)
for package in "$scratch"/*.deb; do
    dpkg -x "$package" "$scratch/packages"
done
for archive in "$scratch"/packages/usr/lib/cups/driver/*; do
    python3 "$here/tests/foreign-ppds/unpack_ppds.py" "$archive" "$scratch/ppds/$(basename "$archive")"
done

find "$scratch/ppds" "$scratch/packages/usr/share/ppd" -type f -print0 2>/dev/null >"$scratch/files"
# A program that crashes prints only the names before the crash; its counts are missing.
xargs -0 -n 200 -P "$(nproc)" sh -c '
    log=$(mktemp "$0/log-XXXXXX")
    "$@" 2>"$log" || [ $? -eq 1 ] || { echo "crashed: $(tail -n 3 "$log")"; }
' "$scratch" "$here/build/release/tests/examine_ppds" <"$scratch/files" >"$scratch/report"
grep -v '^counts' "$scratch/report" | sort || true
awk '/^counts/ { office += $2; opened += $3; refused += $4; only += $5; others += $6 }
    /^crashed/ { crashed++ }
    END {
        printf "%d PPDs of office printers: %d opened, %d refused by libcups, too, %d opened by libcups only\n",
            office, opened, refused, only
        printf "%d others left out\n", others
        exit only > 0 || crashed > 0 || office == 0
    }' "$scratch/report"
