#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# The catalogues have every text of the sources, translated, and no other: lupdate finds nothing to change.
#   check-catalogues.sh LUPDATE CATALOGUES SOURCE...
set -eu
lupdate=$1
catalogues=$2
shift 2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cp "$catalogues"/*.ts "$scratch"
"$lupdate" -silent -no-obsolete -locations none "$@" -ts "$scratch"/*.ts
status=0
for catalogue in "$catalogues"/*.ts; do
    updated="$scratch/${catalogue##*/}"
    # lupdate may change the order of classes.
    sort "$catalogue" >"$scratch/before"
    sort "$updated" >"$scratch/after"
    diff "$scratch/before" "$scratch/after" >&2 || status=1
    ! grep -n 'type="unfinished"' "$catalogue" >&2 || status=1
    [ "$status" -eq 0 ] || echo "${catalogue##*/} is not up to date: build the target update_kvprint_translations" >&2
done
exit $status
