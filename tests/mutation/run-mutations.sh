#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Breaks rules of the panel and of the host one at a time and checks that a test fails for each.
#   run-mutations.sh [PATTERN]             all rules, or those whose description matches
#   run-mutations.sh --sample N [SEED]     N rules, half of them of the host, chosen by the seed, which is printed
#
# mutations.txt has a line for each break: file, original, replacement, rule and, for the host, the tests that
# have to fail (PROGRAM:FILTER), separated by " @@ ". The original must occur exactly once in the file.
#
# The sources are never changed: a broken copy is compiled to an object that is linked in place of the one in
# the room's library, with the commands of build/release. Only the objects that contain the file are compiled, and
# only the test programs are linked again. Everything is written to build/mutations.
set -euo pipefail
here=$(CDPATH='' cd -- "$(dirname -- "$0")/../.." && pwd)
export here build="$here/build/release" work="$here/build/mutations"
list="$here/tests/mutation/mutations.txt"
panel_tests="test_ppd:* test_plugin:* test_preview:* test_options:*"

# field NUMBER LINE
field() {
    printf '%s' "$2" | awk -F ' @@ ' -v number="$1" '{print $number}'
}

# The tests of a line of the list, one "PROGRAM:FILTER" a word.
tests_of() {
    local tests
    tests=$(field 5 "$1")
    printf '%s' "${tests:-$panel_tests}"
}

# choose N SEED: a sample of standard input, half of it of the host.
choose() {
    perl -e '
        my ($count, $seed) = @ARGV;
        srand $seed;
        my (@host, @panel);
        push @{/^host/ ? \@host : \@panel}, $_ while <STDIN>;
        for my $lines (\@host, \@panel) {
            for (my $i = @$lines; --$i > 0;) {
                my $j = int rand($i + 1);
                @$lines[$i, $j] = @$lines[$j, $i];
            }
        }
        my $half = int(($count + 1) / 2);
        $half = @host if $half > @host;
        print @host[0 .. $half - 1];
        my $rest = $count - $half;
        $rest = @panel if $rest > @panel;
        print @panel[0 .. $rest - 1];' "$1" "$2"
}

# objects_of FILE: the objects of a source, or of all sources that include a header, without those of other programs.
objects_of() {
    case $1 in
    *.cpp)
        local batch
        batch=$(cd "$build" && grep -rlF --include='unity_*.cxx' "\"$here/$1\"" panels host | head -n 1)
        if [ -n "$batch" ]; then
            printf '%s.o\n' "$batch"
        else
            (cd "$build" && find "$(dirname "$1")" -name "$(basename "$1").o" | head -n 1)
        fi
        ;;
    *)
        ninja -C "$build" -t deps | awk -v file="/${1#panels/cutoptions/}" '
            /: #deps/ { object = $1; sub(/:$/, "", object); found = 0 }
            !found && substr($0, length($0) - length(file) + 1) == file { found = 1; print object }' |
            grep -E 'kv_panels_|test_(ppd|plugin|preview|options)\.dir'
        ;;
    esac
}

# compile OBJECT FILE FOLDER: the object with the broken copy of the file, which lies in the folder.
compile() {
    local words=() kept=() flags=(-w) source out word next="" root=$3/panels/cutoptions
    out=$3/${1//\//_}
    # A shell command without operators.
    eval "words=($(ninja -C "$build" -t commands -s "$1"))"
    source=${words[-1]}
    if [ "${2%.cpp}" != "$2" ]; then
        sed "s|$here/$2|$3/$2|" "$source" | sed "s|^#include \"\([^/]\)|#include \"$(dirname "$source")/\1|" >"$out.cxx"
        [ "$source" != "$here/$2" ] || cp "$3/$2" "$out.cxx"
        words[-1]=$out.cxx
    fi
    # The flags of the preset apply, but nothing is optimised and warnings about the broken code are expected. The
    # precompiled header of the tests needs their own optimisation.
    case $1 in tests/*) ;; *) flags+=(-O0) ;; esac
    for word in "${words[@]}"; do
        case $next$word in
        dropped*) next="" ;;
        output*) kept+=("$out") next="" ;;
        -MD) ;;
        -MT | -MF) next=dropped ;;
        -o) kept+=("$word") next=output ;;
        -c) kept+=(-iquote "$here/$(dirname "$2")" "${flags[@]}" "$word") ;;
        # Before the include roots of the rooms.
        -I*) kept+=(${root:+"-I$root"} "$word") root="" ;;
        *) kept+=("$word") ;;
        esac
    done
    (cd "$build" && "${kept[@]}")
    printf '%s\n' "$out"
}

# link PROGRAM FOLDER OBJECT=BROKEN...: the broken objects stand before the libraries, whose own are not linked then. Links
# nothing if the program has none of them.
link() {
    local program=$1 folder=$2 words=() kept=() broken=() replaced=" " pair word room next=""
    shift 2
    eval "words=($(ninja -C "$build" -t commands -s "tests/$program" | sed 's/^: && //; s/ && :$//'))"
    for pair in "$@"; do
        room=${pair%%.dir/*}
        for word in "${words[@]}"; do
            case $word in
            "${pair%%=*}") replaced="$replaced$word " ;;
            */"lib${room##*/}.a") ;;
            *) continue ;;
            esac
            broken+=("${pair#*=}")
            break
        done
    done
    [ ${#broken[@]} -gt 0 ] || return 0
    for word in "${words[@]}"; do
        case $next$word in
        output*) kept+=("$folder/$program") next="" ;;
        -o) kept+=("${broken[@]}" "$word") next=output ;;
        -Wl,-rpath,*) kept+=("-Wl,-rpath,$build/lib") ;;
        *) case $replaced in *" $word "*) ;; *) kept+=("$word") ;; esac ;;
        esac
    done
    (cd "$build" && "${kept[@]}")
}

# run PROGRAM FILTER: a program that a broken rule keeps from ending is ended after ten minutes.
run() {
    QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 LANGUAGE=en timeout 600 "$1" --gtest_brief=1 --gtest_fail_fast \
        --gtest_filter="$2"
}

# break_file FILE ORIGINAL REPLACEMENT FOLDER: a header is found before its room's include root; its neighbours include
# it by its name alone and are copied as well.
break_file() {
    local folder
    folder=$(dirname "$1")
    mkdir -p "$4/$folder"
    cp "$here/$folder"/*.h "$4/$folder/" 2>/dev/null || true
    case $1 in *.cpp) rm -f "$4/$folder"/*.h ;; esac
    FROM=$2 TO=$3 perl -0pe '
        my $count = () = /\Q$ENV{FROM}\E/g;
        die "occurs $count times: $ENV{FROM}\n" if $count != 1;
        s/\Q$ENV{FROM}\E/$ENV{TO}/;' "$here/$1" >"$4/$1"
}

# Tries one line of the list and prints its verdict; fails unless a test fails.
try() {
    local line=$1 file folder object broken pairs=() test
    file=$(field 1 "$line")
    folder=$(mktemp -d "$work/XXXXXX")
    # shellcheck disable=SC2064 # the folder of this line
    trap "rm -rf '$folder'" EXIT
    verdict() { printf '%s: %s\n' "$(field 4 "$line")" "$1"; }
    break_file "$file" "$(field 2 "$line")" "$(field 3 "$line")" "$folder" || { verdict "DOES NOT APPLY"; return 1; }
    for object in $(objects_of "$file"); do
        broken=$(compile "$object" "$file" "$folder" 2>"$folder/log") ||
            { head -n 5 "$folder/log"; verdict "DOES NOT COMPILE"; return 1; }
        pairs+=("$object=$broken")
    done
    for test in $(set -f; tests_of "$line"); do
        link "${test%%:*}" "$folder" "${pairs[@]}" >"$folder/log" 2>&1 ||
            { head -n 5 "$folder/log"; verdict "DOES NOT LINK"; return 1; }
        [ -x "$folder/${test%%:*}" ] || continue
        if ! run "$folder/${test%%:*}" "${test#*:}" >"$folder/log" 2>&1; then
            verdict "caught by $(grep -om 1 '\[  FAILED  \] [A-Za-z/]*\.[A-Za-z]*' "$folder/log" | cut -c 14- || echo "the end of ${test%%:*}")"
            return 0
        fi
    done
    verdict SURVIVED
    return 1
}

if [ "${1:-}" = --try ]; then
    try "$2"
    exit
fi

lines=$(grep -v -e '^#' -e '^$' "$list")
if [ "${1:-}" = --sample ]; then
    seed=${3:-$RANDOM}
    echo "a sample of $2 rules, seed $seed"
    lines=$(printf '%s\n' "$lines" | choose "$2" "$seed")
else
    lines=$(printf '%s\n' "$lines" | PATTERN=${1:-} awk -F ' @@ ' '$4 ~ ENVIRON["PATTERN"]')
fi
[ -n "$lines" ] || { echo "no rule matches"; exit 1; }
tests=$(set -f; printf '%s\n' "$lines" | while IFS= read -r line; do for test in $(tests_of "$line"); do echo "$test"; done; done | sort -u)

(cd "$here" && { [ -f "$build/build.ninja" ] || cmake --preset release >/dev/null; })
# shellcheck disable=SC2046 # a list of programs
ninja -C "$build" kv_resources $(printf '%s\n' "$tests" | cut -d : -f 1 | sort -u) >/dev/null
rm -rf "$work"
mkdir -p "$work"
# The programs find the converters and the renderer in the folder beside their own.
ln -s "$build/lib" "$work/lib"
for test in $(set -f; echo $tests); do
    run "$build/tests/${test%%:*}" "${test#*:}" >"$work/log" 2>&1 ||
        { cat "$work/log"; echo "$test fails before a rule is broken"; exit 1; }
    ! grep -q 'Running 0 tests' "$work/log" || { echo "$test matches no test"; exit 1; }
done
printf '%s\n' "$lines" | tr '\n' '\0' | xargs -0 -n 1 -P "$(nproc)" "$0" --try | tee "$work/verdicts" || true
caught=$(grep -c ': caught by ' "$work/verdicts" || true)
count=$(printf '%s\n' "$lines" | wc -l)
echo "$caught of $count caught"
[ "$caught" -eq "$count" ]
