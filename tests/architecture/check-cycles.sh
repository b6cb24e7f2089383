#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# A component is a header and the source beside it of the same name, or one of them alone. No component
# includes another one that includes it back, directly or through others: each can be read, tested and used
# with only what it includes. The targets order the rooms; this test also checks the components in them.
#   check-cycles.sh SOURCE-DIRECTORY
set -eu
cd -- "$1"

work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT

find platform protocol panels host dialog programs \( -name '*.h' -o -name '*.cpp' \) | sort > "$work/sources"
grep '\.h$' "$work/sources" > "$work/headers"

# A line "component included-component" for each include of a header of ours. The rooms of platform/ and of the bundle
# have shorter names: <platform/Log.h> is in a folder of platform/, <options/OptionPDE.h> in panels/cutoptions/.
xargs grep -HE '^[[:space:]]*#[[:space:]]*include[[:space:]]*[<"][^>"]*\.h[>"]' < "$work/sources" |
    awk '
        function folder(path) {
            sub(/[^\/]*$/, "", path)
            return path
        }
        function component(path) {
            sub(/\.[a-z]+$/, "", path)
            return path
        }
        NR == FNR {
            name = $0
            sub(/^platform\/[^\/]*\//, "platform/", name)
            sub(/^panels\/cutoptions\//, "", name)
            known[$0] = known[name] = $0
            roots[folder(name)]
            next
        }
        {
            colon = index($0, ":")
            file = substr($0, 1, colon - 1)
            name = substr($0, colon + 1)
            quoted = name ~ /^[^<]*"/
            sub(/^[^<"]*[<"]/, "", name)
            sub(/[>"].*/, "", name)
            if (quoted)
                name = folder(file) name
            if (name in known) {
                if (component(file) != component(known[name]))
                    print component(file), component(known[name])
            } else if (quoted || (folder(name) != "" && folder(name) in roots)) {
                print file ": there is no header " name > "/dev/stderr"
                failed = 1
            }
        }
        END { exit failed }
    ' "$work/headers" - > "$work/includes"
if [ ! -s "$work/includes" ]; then
    echo "no includes found"
    exit 1
fi

# tsort names the components of each cycle on standard error, one a line.
if ! LC_ALL=C tsort "$work/includes" > "$work/order" 2> "$work/cycles"; then
    echo "These components include each other, each the next one and the last one the first:"
    sed -e 's/^tsort: /    /' -e 's/^.*: input contains a loop:$/cycle:/' "$work/cycles"
    exit 1
fi
