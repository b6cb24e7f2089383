#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# The namespace of a class follows the folder of its room: host/cups/jobs is host::cups::jobs. Panels have the
# names of their protocol.
#   check-namespaces.sh SOURCE-DIRECTORY
set -eu
cd -- "$1"

failures=0
count=0
for file in $(find host dialog platform programs -name '*.h' -o -name '*.cpp' | sort); do
    case $file in
    # Global names: main(), replaced functions of the C library, macros, and functions that panels call.
    programs/kvprint/kvprint.cpp | programs/kvprint/Allocation.cpp | programs/kvpanel/* | programs/*pdf/*.cpp | programs/renderer/renderer.cpp | */Export.h | \
        platform/system/PrintingServices.cpp) continue ;;
    esac
    expected=$(dirname -- "$file" | awk -F/ '{ printf "namespace %s", $1; for (i = 2; i <= NF; ++i) printf " inline namespace %s", $i }')
    # The last named namespaces that are opened; forward declarations of other rooms come before.
    found=$(grep -E '^(inline )?namespace [a-z_]+ \{$' "$file" | sed 's/ {$//' | tr '\n' ' ')
    case $found in
    *"$expected ") count=$((count + 1)) ;;
    *) echo "$file: the namespaces are \"$found\", not \"$expected\""; failures=1 ;;
    esac
done
# Finding no file is an error of this script.
[ "$count" -gt 300 ]
exit "$failures"
