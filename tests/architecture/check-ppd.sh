#!/bin/sh
# SPDX-License-Identifier: Apache-2.0
# libcups's types and functions for PPDs are used by host/printer only: a later libcups does not have them.
# The panel's side of the protocol (plugin, ppd, options and what they stand on) consists of them and is not
# checked.
#   check-ppd.sh SOURCE-DIRECTORY
set -eu
cd -- "$1"

functions='Close|Collect|Conflicts|Emit|ErrorString|Find|First|InstallableConflict|IsMarked|LastError|Localize'
functions="$functions|Mark|Next|Open|Page(Length|Size|Width)|SetConformance"
names="\\bppd_[a-z]+_[te]\\b|\\bPPD_[A-Z]|\\bppd($functions)[A-Za-z0-9]*\\(|cups/ppd\\.h"
names="$names|\\bcups(MarkOptions|GetConflicts|ResolveConflicts|GetPPD|GetServerPPD)"

# Comments after "//" are not compiled.
uses() {
    find "$@" -name '*.h' -o -name '*.cpp' | sort | while IFS= read -r file; do
        sed 's|//.*||' "$file" | grep -nE "$names" | sed "s|^|$file:|" || true
    done
}

failures=$(uses host dialog programs | grep -vE '^host/printer/Ppd[A-Za-z]*\.(h|cpp):' |
    # The protocol's own function that returns the PPD.
    grep -vF 'ppd_file_t *ppdFile() const override' || true)
if [ -n "$failures" ]; then
    echo "PPDs are read through host/printer/PpdFile and host/printer/PpdOptions:"
    echo "$failures"
    exit 1
fi
# The searched names must exist, or the check would find nothing.
[ "$(uses host | grep -c '^host/printer/Ppd')" -gt 20 ]
