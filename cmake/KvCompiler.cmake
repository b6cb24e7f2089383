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

# What makes a fault in memory end the program instead of running somebody else's code: the programs read PPDs,
# documents and answers of servers that others have written.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported()
add_compile_options(-fstack-protector-strong)
check_cxx_compiler_flag(-fcf-protection KV_HAS_CF_PROTECTION)
if(KV_HAS_CF_PROTECTION)
    add_compile_options(-fcf-protection)
endif()
add_link_options(-Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)

if(KV_SANITIZE)
    # Without _FORTIFY_SOURCE: the sanitizer checks the same calls, and others, and says where.
    add_compile_options(-fsanitize=${KV_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${KV_SANITIZE})
else()
    # The C library checks sizes only in what is optimised.
    add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()
