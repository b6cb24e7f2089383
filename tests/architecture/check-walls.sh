#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# Includes a header of every room from every room, with the include directories that the room is built with, and
# compares what the compiler finds with what the room's CMakeLists.txt lists.
#   check-walls.sh COMPILER FOLDER
# The build writes the folder: "rooms" has a line for each room, "PATH INCLUDED-AS ROOM-USED,...", and PATH.dirs
# lists its include directories. The build tree's include-roots lead to the headers.
set -eu
compiler=$1
folder=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# One header of each room: any, as the include root of a room holds all of them.
while read -r room included _; do
    header=$(find -L "$folder/../../include-roots/$(echo "$room" | tr / _)/$included" -maxdepth 1 -name '*.h' | sort |
        head -n 1)
    [ -n "$header" ] || {
        echo "$room has no header" >&2
        exit 1
    }
    echo "$room $included/${header##*/}"
done <"$folder/rooms" >"$scratch/headers"
sed 's/.* \(.*\)/#include <\1>/' "$scratch/headers" >"$scratch/all.cpp"

failures=0
while read -r room _ uses; do
    set -- -std=c++20 -fPIC -M -MG
    while IFS= read -r directory; do
        [ -z "$directory" ] || set -- "$@" -I "$directory"
    done <"$folder/$(echo "$room" | tr / _).dirs"
    # A header that is not found is in the list without a folder.
    "$compiler" "$@" "$scratch/all.cpp" | tr ' \\' '\n\n' >"$scratch/found"
    while read -r other header; do
        seen=no
        ! grep -q "include-roots/[a-z_]*/$header\$" "$scratch/found" || seen=yes
        case ",$room,$uses," in
        *",$other,"*) listed=yes ;;
        *) listed=no ;;
        esac
        [ "$seen" = "$listed" ] || {
            echo "$room: <$header> can be included: $seen, listed under USES: $listed" >&2
            failures=$((failures + 1))
        }
    done <"$scratch/headers"
done <"$folder/rooms"
rooms=$(wc -l <"$folder/rooms")
echo "$rooms rooms, $((rooms * rooms)) uses tried, $failures wrong"
[ "$failures" -eq 0 ] && [ "$rooms" -gt 1 ]
