#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Only host/cups/server/CupsThreadScope.cpp sets the settings that libcups keeps for a thread, and restores
# them.
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
# The searched names must exist, or the check would find nothing.
[ "$(grep -cE "$setters" "$owner")" -ge 4 ]
