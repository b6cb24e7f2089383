# SPDX-License-Identifier: Apache-2.0
# What is fuzzed: everything that is read from outside. kv_fuzzer(NAME SOURCES ... USES ... NEEDS ...) is
# defined by who includes this file, as a libFuzzer program or as a test that replays the corpus.
kv_fuzzer(answer
    SOURCES FuzzAnswer.cpp FuzzServer.cpp
    USES cups)
kv_fuzzer(command_line
    SOURCES FuzzCommandLine.cpp
    USES dialog)
kv_fuzzer(image
    SOURCES FuzzImage.cpp
    USES host)
kv_fuzzer(job_journal
    SOURCES FuzzJobJournal.cpp
    USES cups)
kv_fuzzer(keystroke
    SOURCES FuzzKeystroke.cpp ../tests/textentry/KeystrokeReference.cpp
    USES textentry)
kv_fuzzer(lpoptions
    SOURCES FuzzLpOptions.cpp
    USES cups)
kv_fuzzer(message
    SOURCES FuzzMessage.cpp
    USES platform)
kv_fuzzer(ppd
    SOURCES FuzzPpd.cpp PpdExamination.cpp
    USES cups host)
kv_fuzzer(ppd_structure
    SOURCES FuzzPpdStructure.cpp PpdExamination.cpp
    USES cups host)
kv_fuzzer(property_list
    SOURCES FuzzPropertyList.cpp
    USES platform)
kv_fuzzer(queue_cache
    SOURCES FuzzQueueCache.cpp
    USES cups)
kv_fuzzer(request
    SOURCES FuzzRequest.cpp
    USES tools
    NEEDS KVLXDZOptions)
kv_fuzzer(svg
    SOURCES FuzzSvg.cpp
    USES host)
