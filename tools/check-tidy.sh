#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Runs clang-tidy with .clang-tidy over every source of the programs, the bundle and the tests, in batches of
# sources: most of its time is spent on the headers of Qt, which it reads once for each batch. A batch includes
# source files on purpose.
set -eu
cd -- "$(dirname -- "$0")/.."
. tools/frontdoor.sh
install_missing_packages .
cmake --preset tidy >/dev/null
# The sources that are compiled, except generated ones, public headers alone, and tests that use libqpdf 11:
# clang 14 does not compile its headers as C++20.
sources() {
    sed -n 's/^  "file": "\(.*\)",\{0,1\}$/\1/p' build/tidy/compile_commands.json |
        grep -v -e _autogen/ -e /\.rcc/ -e /kv_alone_ -e /TestDocumentKinds.cpp -e /SamplePdf.cpp
}
# check CHECKS: the sources that are read from standard input.
check() {
    tr '\n' '\0' |
        xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p build/tidy \
            --extra-arg=-Wno-unknown-warning-option --checks="-bugprone-suspicious-include$1"
}
status=0
sources | grep -v -e '/build/tidy/tests/' -e "^$PWD/tests/" | check "" || status=1
# A test may copy and pad: it runs once.
sources | grep -e '/build/tidy/tests/' -e "^$PWD/tests/" |
    check ",-performance-inefficient-vector-operation,-performance-no-automatic-move,-clang-analyzer-optin.performance.Padding" ||
    status=1
exit $status
