#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Runs shellcheck over every shell script.
set -eu
cd -- "$(dirname -- "$0")/.."
. tools/frontdoor.sh
install_missing_packages .
git grep -lzE '^(#!/bin/sh|#!/usr/bin/env bash|# shellcheck shell=)' | xargs -0 shellcheck --severity=warning -x -P .
