#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Breaks the rules of the panel one at a time and checks that a test fails for each.
#   run-mutations.sh [FOLDER [PATTERN]]
# Works on a copy of the tree in the folder, so that the sources are never touched; with a pattern, only on the
# rules that it matches. mutations.txt has a line for each
# break: file, the original, the replacement and the rule, separated by " @@ ". The original must occur
# exactly once in the file.
set -eu
here=$(CDPATH='' cd -- "$(dirname -- "$0")/../.." && pwd)
copy=${1:-$(mktemp -d)}
mkdir -p "$copy"
git -C "$here" archive HEAD | tar -x -C "$copy"
# The table and the tests as they are now, committed or not.
cp "$here/tests/mutation/mutations.txt" "$copy/tests/mutation/mutations.txt"
build="$copy/build/dev"
targets="test_ppd test_plugin test_preview test_options"
# shellcheck disable=SC2086 # a list of words
{
    (cd "$copy" && cmake --preset dev -DKV_BUILD_BENCH=OFF >/dev/null)
    ninja -C "$build" kv_resources $targets >/dev/null
}

passes() {
    for target in $targets; do
        QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 timeout 120 "$build/tests/$target" --gtest_brief=1 --gtest_fail_fast >"$copy/last.log" 2>&1 || return 1
    done
}

passes || { echo "the tests fail before anything is broken"; cat "$copy/last.log"; exit 1; }
caught=0
survived=0
while IFS= read -r line; do
    case $line in '' | '#'*) continue ;; esac
    file=$(printf '%s' "$line" | awk -F ' @@ ' '{print $1}')
    rule=$(printf '%s' "$line" | awk -F ' @@ ' '{print $4}')
    printf '%s' "$rule" | grep -q -e "${2:-}" || continue
    cp "$copy/$file" "$copy/original"
    if ! LINE="$line" perl -0pi -e '
        my (undef, $from, $to) = split / @@ /, $ENV{LINE};
        my $count = () = /\Q$from\E/g;
        die "occurs $count times: $from\n" if $count != 1;
        s/\Q$from\E/$to/;' "$copy/$file" 2>"$copy/last.log"; then
        cat "$copy/last.log"
        exit 1
    fi
    # shellcheck disable=SC2086
    if ! ninja -C "$build" $targets >"$copy/last.log" 2>&1; then
        verdict="does not compile"
        survived=$((survived + 1))
    elif passes; then
        verdict="SURVIVED"
        survived=$((survived + 1))
    else
        verdict="caught by $(grep -o '\[  FAILED  \] [A-Za-z]*\.[A-Za-z]*' "$copy/last.log" | head -n 1 | cut -c 14-)"
        caught=$((caught + 1))
    fi
    printf '%s: %s\n' "$rule" "$verdict"
    cp "$copy/original" "$copy/$file"
done <"$copy/tests/mutation/mutations.txt"
echo "$caught caught, $survived survived"
[ "$survived" -eq 0 ]
