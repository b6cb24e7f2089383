#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# tools/run-fuzzers.sh [SECONDS [NAME...]]: builds the fuzzers and runs each for SECONDS, 20 by default, under
# AddressSanitizer and UndefinedBehaviorSanitizer, two at a time. Starts from fuzz/corpus, which is not
# changed; new inputs are written to build/fuzz/corpus. Failing inputs are written to build/fuzz/findings; the
# exit status is then 1. KV_FUZZ_SEED is the seed: 1 by default, so that short runs are repeatable; 0 chooses
# a random seed, for long runs.
set -eu
here=$(CDPATH='' cd -- "$(dirname -- "$0")/.." && pwd)
. "$here/tools/frontdoor.sh"
seconds=${1:-20}
[ $# -eq 0 ] || shift

install_missing_packages "$here"
build "$here" fuzz fuzzers
names=${*:-$(sed -n 's/^kv_fuzzer(//p' "$here/fuzz/Fuzzers.cmake")}
findings="$here/build/fuzz/findings"
rm -rf "$findings"
mkdir -p "$findings"
suppressions="$here/build/fuzz/lsan.supp"
cat "$here/tests/support/lsan.supp" "$here/fuzz/lsan.supp" >"$suppressions"
export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1 LSAN_OPTIONS="suppressions='$suppressions'"
# Finds the names of functions for reports, and for the suppressions.
export ASAN_SYMBOLIZER_PATH=/usr/lib/llvm-14/bin/llvm-symbolizer
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 LANGUAGE=en

# shellcheck disable=SC2086 # the list is words
printf '%s\n' $names | xargs -n 1 -P "$(nproc)" sh -c '
    here=$1 seconds=$2 findings=$3 name=$4
    new="$here/build/fuzz/corpus/$name"
    mkdir -p "$new"
    dictionary=""
    [ ! -f "$here/fuzz/$name.dict" ] || dictionary="-dict=$here/fuzz/$name.dict"
    log="$findings/$name.log"
    if "$here/build/fuzz/fuzz/fuzz_$name" -seed="${KV_FUZZ_SEED:-1}" -max_total_time="$seconds" -timeout=10 \
        -rss_limit_mb=2048 \
        -artifact_prefix="$findings/$name-" ${dictionary:+"$dictionary"} "$new" "$here/fuzz/corpus/$name" \
        >"$log" 2>&1; then
        echo "fuzz_$name: $(grep -a "^Done" "$log" | tail -1)"
    else
        tail -n 40 "$log"
        echo "fuzz_$name: failed; the whole log is $log"
        exit 1
    fi' sh "$here" "$seconds" "$findings"
