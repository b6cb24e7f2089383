#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Checks that every source file is formatted as .clang-format specifies.
set -eu
cd -- "$(dirname -- "$0")/.."
. tools/frontdoor.sh
install_missing_packages .
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror
