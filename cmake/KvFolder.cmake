# SPDX-License-Identifier: Apache-2.0
# One folder is one target, and may use exactly the folders it names.
#
#   kv_folder(NAME [SHARED|STATIC|INTERFACE] [PATH path] SOURCES ... USES ... LIBRARIES ...)
#
# A folder's headers are included as <folder/Header.h>. They are reached through an include
# root of their own that holds nothing but a link to that folder, and that only the targets
# that name the folder under USES get to see. An include of any other folder does not compile.

function(kv_folder name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "SHARED;INTERFACE" "PATH" "SOURCES;USES;LIBRARIES")
    if(NOT arg_PATH)
        set(arg_PATH "${name}")
    endif()

    set(root "${PROJECT_BINARY_DIR}/include-roots/${name}")
    cmake_path(GET arg_PATH PARENT_PATH parent)
    file(MAKE_DIRECTORY "${root}/${parent}")
    file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${arg_PATH}" "${root}/${arg_PATH}" SYMBOLIC)

    list(TRANSFORM arg_USES PREPEND kv_ OUTPUT_VARIABLE used_targets)
    if(arg_INTERFACE)
        add_library(kv_${name} INTERFACE)
        target_include_directories(kv_${name} INTERFACE "${root}")
        target_link_libraries(kv_${name} INTERFACE ${used_targets} ${arg_LIBRARIES})
        return()
    endif()

    if(arg_SHARED)
        add_library(kv_${name} SHARED ${arg_SOURCES})
    else()
        add_library(kv_${name} STATIC ${arg_SOURCES})
    endif()
    set_target_properties(kv_${name} PROPERTIES AUTOMOC ON)
    # Most code runs once, while the user waits for the window: what has to be read from the disk and kept in
    # memory counts, not loops. Sources that look at each pixel ask for -O2.
    target_compile_options(kv_${name} PRIVATE $<$<CONFIG:Release>:-Os>)
    target_include_directories(kv_${name} PUBLIC "${root}")
    target_link_libraries(kv_${name} PUBLIC ${used_targets} ${arg_LIBRARIES} PRIVATE kv_compiler)
    if(KV_PRECOMPILE AND arg_USES)
        target_precompile_headers(kv_${name} REUSE_FROM kv_common_headers)
    endif()
endfunction()
