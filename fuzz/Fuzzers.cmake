# SPDX-License-Identifier: Apache-2.0
# The fuzzers: one for each kind of input from outside. kv_fuzzer(NAME SOURCES ... USES ... NEEDS ...) is
# defined by the file that includes this one, as a libFuzzer program or as a test that replays the corpus.
kv_fuzzer(answer
    SOURCES FuzzAnswer.cpp FuzzServer.cpp
    USES host/cups/jobs)
kv_fuzzer(command_line
    SOURCES FuzzCommandLine.cpp
    USES programs/kvprint)
kv_fuzzer(image
    SOURCES FuzzImage.cpp
    USES host/images)
kv_fuzzer(job_journal
    SOURCES FuzzJobJournal.cpp
    USES host/cups/jobs)
kv_fuzzer(keystroke
    SOURCES FuzzKeystroke.cpp ../tests/panels/cutoptions/textentry/KeystrokeReference.cpp
    USES panels/cutoptions/textentry)
kv_fuzzer(lpoptions
    SOURCES FuzzLpOptions.cpp
    USES host/cups/jobs)
kv_fuzzer(message
    SOURCES FuzzMessage.cpp
    USES platform/text)
kv_fuzzer(page_ranges
    SOURCES FuzzPageRanges.cpp
    USES host/documents)
kv_fuzzer(ppd
    SOURCES FuzzPpd.cpp PpdExamination.cpp
    USES host/cups/jobs)
kv_fuzzer(ppd_number
    SOURCES FuzzPpdNumber.cpp
    USES host/printer)
kv_fuzzer(ppd_paper_sizes
    SOURCES FuzzPpdPaperSizes.cpp
    USES host/printer)
kv_fuzzer(ppd_structure
    SOURCES FuzzPpdStructure.cpp PpdExamination.cpp
    USES host/cups/jobs)
kv_fuzzer(ppd_text
    SOURCES FuzzPpdText.cpp
    USES host/printer)
kv_fuzzer(ppd_translations
    SOURCES FuzzPpdTranslations.cpp
    USES host/printer)
kv_fuzzer(property_list
    SOURCES FuzzPropertyList.cpp
    USES platform/text)
kv_fuzzer(queue_cache
    SOURCES FuzzQueueCache.cpp
    USES host/cups/jobs)
kv_fuzzer(request
    SOURCES FuzzRequest.cpp
    USES programs/kvpanel
    NEEDS KVLXDZOptions)
kv_fuzzer(svg
    SOURCES FuzzSvg.cpp
    USES host/documents)
kv_fuzzer(svg_size
    SOURCES FuzzSvgSize.cpp
    USES host/documents)
