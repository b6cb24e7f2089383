#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Tries to include a header of every folder from every folder, with the include directories that the folder is
# built with, and compares what is found with what is allowed.
#   check-includes.sh COMPILER DIRECTORY
# The directory holds FOLDER.dirs for each folder: its include directories, one a line.
set -eu
compiler=$1
directories=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# Folder, and the folders it may use.
allowed='
platform platform
ppd platform ppd
diag platform diag
textentry platform ppd textentry
preview platform preview
plugin platform ppd plugin plugin_protocol
options platform ppd preview plugin plugin_protocol options
host platform plugin_protocol host
cups platform plugin_protocol host
dialog platform plugin_protocol host
tools platform plugin_protocol host tools
'
headers='
platform platform/Log.h
ppd ppd/TapeInfo.h
diag diag/DebugLog.h
textentry textentry/PDEFormatter.h
preview preview/OptionView.h
plugin plugin/BasePDE.h
plugin_protocol plugin/protocol/PDEPanel.h
options options/OptionPDE.h
host host/PanelHost.h
tools tools/PanelDriver.h
'

failures=0
tried=0
while read -r folder uses; do
    [ -n "$folder" ] || continue
    set -- -std=c++20 -fPIC -M -MG
    while IFS= read -r directory; do
        [ -z "$directory" ] || set -- "$@" -I "$directory"
    done <"$directories/$folder.dirs"
    while read -r other header; do
        [ -n "$other" ] || continue
        echo "#include <$header>" >"$scratch/try.cpp"
        if "$compiler" "$@" "$scratch/try.cpp" 2>/dev/null | grep -q "include-roots/[a-z_]*/$header"; then
            seen=yes
        else
            seen=no
        fi
        case " $uses " in
        *" $other "*) wanted=yes ;;
        *) wanted=no ;;
        esac
        tried=$((tried + 1))
        if [ "$seen" != "$wanted" ]; then
            echo "$folder: <$header> can be included: $seen, allowed: $wanted"
            failures=$((failures + 1))
        fi
    done <<EOF
$headers
EOF
done <<EOF
$allowed
EOF
echo "$tried uses tried, $failures wrong"
[ "$failures" -eq 0 ] && [ "$tried" -eq 110 ]
