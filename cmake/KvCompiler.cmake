# SPDX-License-Identifier: Apache-2.0
# Compiler settings that every target of ours shares. Warnings are errors in our code;
# the headers of Qt, CUPS and the other libraries come in as system headers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# What the bundle offers is marked in the sources; everything else stays inside.
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

add_library(kv_compiler INTERFACE)
target_compile_options(kv_compiler INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
    # libcups 2 marks all its PPD calls as deprecated; PPDs are what this program is about. Deprecated
    # calls of Qt do not compile anyway, see QT_DISABLE_DEPRECATED_BEFORE.
    -Wno-deprecated-declarations
    # GCC 12 takes an std::optional without a value for an uninitialised one when it optimises.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
target_compile_definitions(kv_compiler INTERFACE
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(KV_SANITIZE)
    add_compile_options(-fsanitize=${KV_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${KV_SANITIZE})
endif()
