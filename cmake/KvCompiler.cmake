# SPDX-License-Identifier: Apache-2.0
# Compiler settings that all targets of the project share. Warnings are errors in our code; the headers of Qt,
# CUPS and the other libraries are included as system headers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# The sources mark the symbols that the bundle exports; all other symbols are hidden.
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

add_library(kv_compiler INTERFACE)
target_compile_options(kv_compiler INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
    # libcups 2 marks all its PPD functions as deprecated, but this program is built on PPDs. Deprecated
    # functions of Qt do not compile anyway, see QT_DISABLE_DEPRECATED_BEFORE.
    -Wno-deprecated-declarations
    # GCC 12 reports an std::optional without a value as uninitialised when it optimises.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
target_compile_definitions(kv_compiler INTERFACE
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

# Hardening: a memory error ends the program instead of running injected code. The programs read PPDs,
# documents and server answers from untrusted sources.
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
    # Without _FORTIFY_SOURCE: the sanitizer checks the same calls and others, and reports the location.
    add_compile_options(-fsanitize=${KV_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${KV_SANITIZE})
else()
    # The C library checks sizes only in optimised code.
    add_compile_options("$<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
endif()
