#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# check-hardening.sh FORTIFIED PROGRAM...: each program and library is built so that a memory error ends it
# instead of running injected code.
#
# FORTIFIED is "fortified" for builds that also check calls of the C library, and "plain" for sanitizer and
# debug builds.
set -u
status=0
fortified=$1
checked=false
shift

# fails PROGRAM WHAT
fails() {
    echo "$1: $2" >&2
    status=1
}

for program; do
    header=$(readelf --wide --file-header --program-headers --dynamic "$program") || exit 1
    symbols=$(readelf --wide --dyn-syms "$program") || exit 1
    case $header in
    *'Type: '*DYN*) ;;
    *) fails "$program" "not position independent" ;;
    esac
    case $header in
    *GNU_RELRO*) ;;
    *) fails "$program" "the tables of the dynamic linker stay writable (no -z relro)" ;;
    esac
    case $header in
    *BIND_NOW* | *'Flags: NOW'*) ;;
    *) fails "$program" "functions are bound at the first call (no -z now)" ;;
    esac
    printf '%s\n' "$header" | grep -q 'GNU_STACK.* RW ' || fails "$program" "the stack can be executed"
    printf '%s\n' "$symbols" | grep -q '__stack_chk_fail' || fails "$program" "no -fstack-protector-strong"
    printf '%s\n' "$symbols" | grep -v __stack_chk_fail | grep -q '_chk@' && checked=true
done
# Not every program calls a C library function that has a checked variant.
[ "$fortified" = plain ] || $checked || fails "$*" "no _FORTIFY_SOURCE in any of them"
exit $status
