#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""unpack_ppds.py ARCHIVE FOLDER: writes each PPD of a self-extracting archive, as /usr/lib/cups/driver has them, into
the folder. The archive's own "cat URI" unpacks all of it for each PPD, which takes hours for some thousand."""
import base64
import lzma
import os
import runpy
import sys

archive, folder = sys.argv[1:]
ppds = runpy.run_path(archive, run_name="ppds")["load"]()
texts = lzma.decompress(base64.b64decode(ppds.pop("ARCHIVE")))
os.makedirs(folder, exist_ok=True)
for number, (start, length, _) in enumerate(ppds.values()):
    with open(os.path.join(folder, f"{number}.ppd"), "wb") as ppd:
        ppd.write(texts[start:start + length])
