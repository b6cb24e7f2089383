#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Runs clang-tidy with .clang-tidy over every source of the programs and the bundle, in batches of sources:
# most of its time is spent on the headers of Qt, which it reads once for each batch. A batch includes source
# files on purpose.
set -eu
cd -- "$(dirname -- "$0")/.."
. tools/frontdoor.sh
install_missing_packages .
cmake --preset tidy >/dev/null
# The sources that are compiled, except generated ones.
sed -n 's/^  "file": "\(.*\)",\{0,1\}$/\1/p' build/tidy/compile_commands.json |
    grep -v -e _autogen/ -e /\.rcc/ |
    tr '\n' '\0' |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy --quiet -p build/tidy --extra-arg=-Wno-unknown-warning-option \
        --checks=-bugprone-suspicious-include
