#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# The settings that libcups keeps for a thread are set by host/cups/server/CupsThreadScope.cpp only, which sets them back.
#   check-libcups.sh SOURCE-DIRECTORY
set -eu
cd -- "$1"

setters='\bcupsSet(Server|Encryption|User|UserAgent|PasswordCB2?|OAuthCB|ClientCertCB|ServerCertCB|Credentials)\b'
owner=host/cups/server/CupsThreadScope.cpp
failures=$(grep -rnE "$setters" --include='*.h' --include='*.cpp' host dialog programs | grep -v "^$owner:" || true)
if [ -n "$failures" ]; then
    echo "libcups's settings of a thread are set through host/cups/server/CupsThreadScope:"
    echo "$failures"
    exit 1
fi
# The words that are looked for are those that are there.
[ "$(grep -cE "$setters" "$owner")" -ge 4 ]
