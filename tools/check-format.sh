#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Every source file is laid out as .clang-format says.
set -eu
cd -- "$(dirname -- "$0")/.."
. tools/frontdoor.sh
install_missing_packages .
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror
