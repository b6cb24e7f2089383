#!/bin/sh
# check-runpath.sh PROGRAM...: each RUNPATH begins with the program's own folder.
#
# The dynamic loader reads an empty part of a RUNPATH, and a relative one, from the current folder: a library
# placed there would run with the program's rights.
set -u
status=0
for program; do
    dynamic=$(readelf -d "$program") || exit 1
    runpath=$(printf '%s\n' "$dynamic" | sed -n 's/.*(RUNPATH).*\[\(.*\)\]/\1/p; s/.*(RPATH).*\[\(.*\)\]/\1/p')
    case ":$runpath:" in
    ::) continue ;;
    *::*) echo "$program: empty part in RUNPATH $runpath" >&2; status=1; continue ;;
    esac
    old_ifs=$IFS
    IFS=:
    for part in $runpath; do
        case "$part" in
        '$ORIGIN' | '$ORIGIN'/*) ;;
        *) echo "$program: \"$part\" in RUNPATH is not relative to \$ORIGIN" >&2; status=1 ;;
        esac
    done
    IFS=$old_ifs
done
exit $status
