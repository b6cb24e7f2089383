#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Runs clang-tidy with .clang-tidy over every source of the programs and the bundle.
set -eu
cd -- "$(dirname -- "$0")/.."
. tools/frontdoor.sh
install_missing_packages .
build . release all
git ls-files -z 'platform/*.cpp' 'ppd/*.cpp' 'diag/*.cpp' 'textentry/*.cpp' 'preview/*.cpp' 'plugin/*.cpp' \
    'options/*.cpp' 'bundle/*.cpp' 'host/*.cpp' 'tools/*.cpp' |
    xargs -0 -n 4 -P "$(nproc)" clang-tidy --quiet -p build/release --extra-arg=-Wno-unknown-warning-option
