# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=sh
# Shared by ./run, ./test and .ci/run: packages, build, tests. Sourced, not executed.

# install_missing_packages ROOT: installs the missing packages of apt-packages.txt.
install_missing_packages() {
    missing=""
    for package in $(sed 's/#.*//' "$1/apt-packages.txt"); do
        case $(dpkg-query -W -f='${Status}' "$package" 2>/dev/null) in
        *"ok installed") ;;
        *) missing="$missing $package" ;;
        esac
    done
    [ -n "$missing" ] || return 0

    if [ "$(id -u)" -eq 0 ]; then
        as_root=""
    elif command -v sudo >/dev/null 2>&1; then
        as_root="sudo"
    else
        echo "Some packages are missing. Install them as root, then try again:" >&2
        echo "apt-get install --no-install-recommends$missing" >&2
        exit 1
    fi
    echo "Installing:$missing" >&2
    # shellcheck disable=SC2086 # the list is words
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get update -q >&2
    # shellcheck disable=SC2086
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing >&2
}

# build ROOT PRESET TARGET...: configures when needed and builds. Fast when everything is up to date.
build() {
    root=$1
    preset=$2
    shift 2
    log="$root/build/$preset/configure.log"
    if [ ! -f "$root/build/$preset/build.ninja" ]; then
        echo "Configuring ($preset)" >&2
        mkdir -p "$root/build/$preset"
        if ! (cd "$root" && cmake --preset "$preset") >"$log" 2>&1; then
            cat "$log" >&2
            echo "Configuring failed; the log is $log" >&2
            exit 1
        fi
    fi
    echo "Building ($preset)" >&2
    (cd "$root" && cmake --build --preset "$preset" --target "$@") >&2
}

# run_tests ROOT PRESET: runs ctest and counts the cases of every program.
run_tests() {
    results="$1/build/$2/test-results"
    rm -rf "$results"
    mkdir -p "$results"
    status=0
    (cd "$1" && ctest --preset "$2" --output-junit "$results/ctest.junit") || status=$?
    count_results "$results" || status=1
    return "$status"
}

# count_results FOLDER: prints "N passed, N failed". The cases of a GoogleTest program are counted from its
# results; a program without results (a script, or one that crashed) counts as one.
count_results() {
    # From inside the folder, so that blanks in its path do not matter.
    # shellcheck disable=SC2046 # the list is words
    (cd "$1" && awk '
    function attribute(line, name,    value) {
        if (!match(line, name "=\"[^\"]*\"")) return ""
        value = substr(line, RSTART, RLENGTH)
        sub(name "=\"", "", value)
        sub("\"$", "", value)
        return value
    }
    FILENAME !~ /ctest\.junit$/ {
        if ($0 ~ /<testsuites /) {
            name = FILENAME
            sub(/.*\//, "", name)
            sub(/\.xml$/, "", name)
            failures = attribute($0, "failures") + attribute($0, "errors")
            cases[name] = attribute($0, "tests") - attribute($0, "disabled")
            failed[name] = failures
        }
        next
    }
    /<testcase / {
        name = attribute($0, "name")
        ok = attribute($0, "status") == "run"
        if (name in cases) {
            if (!ok && failed[name] == 0) { failed[name] = 1 }
            total_failed += failed[name]
            total_passed += cases[name] - failed[name] < 0 ? 0 : cases[name] - failed[name]
        } else if (ok) { total_passed++ } else { total_failed++ }
    }
    END {
        printf "%d passed, %d failed\n", total_passed, total_failed
        exit total_failed > 0 || total_passed == 0
    }' $(find . -name '*.xml') ctest.junit)
}
