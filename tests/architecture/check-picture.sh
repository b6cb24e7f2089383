#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# check-picture.sh SOURCES ROOMS: the picture of the rooms shows the rooms of this build.
set -eu
if ! "$1/tools/draw-rooms.pl" "$2" | diff "$1/docs/rooms.dot" - >&2; then
    echo "docs/rooms.dot is out of date; tools/draw-rooms.pl explains how to make it" >&2
    exit 1
fi
# Graphviz puts the title of each room and of each arrow into the SVG.
arrows=$(grep -c -e '->' "$1/docs/rooms.dot")
drawn=$(grep -c -e '<title>.*&#45;&gt;' "$1/docs/rooms.svg")
if [ "$arrows" -ne "$drawn" ]; then
    echo "docs/rooms.svg has $drawn arrows, docs/rooms.dot $arrows: run dot -Tsvg docs/rooms.dot >docs/rooms.svg" >&2
    exit 1
fi
