# SPDX-License-Identifier: Apache-2.0
# A room is a folder, a target and an include root. It uses exactly the rooms that it lists.
#
#   kv_room(PATH [INTERFACE] [PART_OF TARGET] [AS PREFIX] SOURCES ... USES ROOM... LIBRARIES ...)
#
# The target of host/cups/jobs is kv_host_cups_jobs; its headers are included as <host/cups/jobs/Header.h>,
# or as <PREFIX/Header.h>. They are found through an include root that contains only a link to the folder and
# is visible only to rooms that list this room under USES. A room does not export the include roots of the
# rooms that it uses: an include of a room that is not listed does not compile. Only rooms that are already
# defined can be listed, so no cycle is possible.
#
# PART_OF: the room is a part of that shared library, which is linked where the room is used.
#
# For every room there are four global properties: KV_ROOM_<path>_ROOT, its include root, KV_ROOM_<path>_USES,
# the rooms it lists, KV_ROOM_<path>_AS, what its headers are included as, and KV_ROOM_<path>_PART_OF, its shared
# library. KV_ROOMS lists all paths.

function(kv_room path)
    cmake_parse_arguments(PARSE_ARGV 1 arg "INTERFACE" "AS;PART_OF" "SOURCES;USES;LIBRARIES")
    string(REPLACE "/" "_" name "${path}")
    if(NOT arg_AS)
        set(arg_AS "${path}")
    endif()

    set(root "${PROJECT_BINARY_DIR}/include-roots/${name}")
    cmake_path(GET arg_AS PARENT_PATH parent)
    file(MAKE_DIRECTORY "${root}/${parent}")
    file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${path}" "${root}/${arg_AS}" SYMBOLIC)

    if(arg_INTERFACE)
        set(kind INTERFACE)
    elseif(arg_PART_OF)
        set(kind OBJECT)
    else()
        set(kind STATIC)
    endif()
    add_library(kv_${name} ${kind} ${arg_SOURCES})
    set_property(GLOBAL APPEND PROPERTY KV_ROOMS "${path}")
    set_property(GLOBAL PROPERTY KV_ROOM_${path}_ROOT "${root}")
    set_property(GLOBAL PROPERTY KV_ROOM_${path}_AS "${arg_AS}")
    set_property(GLOBAL PROPERTY KV_ROOM_${path}_USES "${arg_USES}")
    set_property(GLOBAL PROPERTY KV_ROOM_${path}_PART_OF "${arg_PART_OF}")
    if(arg_INTERFACE)
        kv_use(kv_${name} INTERFACE ${arg_USES})
        target_link_libraries(kv_${name} INTERFACE ${arg_LIBRARIES})
        return()
    endif()

    # Most code runs once, while the user waits for the window: the size of the code matters more than the
    # speed of loops. Sources that process each pixel set -O2.
    target_compile_options(kv_${name} PRIVATE $<$<CONFIG:Release>:-Os>)
    set_target_properties(kv_${name} PROPERTIES AUTOMOC ON)
    target_include_directories(kv_${name} PRIVATE "${root}")
    kv_use(kv_${name} PUBLIC ${arg_USES})
    target_link_libraries(kv_${name} PUBLIC ${arg_LIBRARIES} PRIVATE kv_compiler)
endfunction()

# kv_use(TARGET PUBLIC|PRIVATE|INTERFACE ROOM...): links the rooms, and lets the target itself include their
# headers.
function(kv_use target scope)
    get_target_property(kind ${target} TYPE)
    foreach(room IN LISTS ARGN)
        get_property(root GLOBAL PROPERTY KV_ROOM_${room}_ROOT)
        if(NOT root)
            message(FATAL_ERROR "${target} uses ${room}, which is no room below it")
        endif()
        get_property(library GLOBAL PROPERTY KV_ROOM_${room}_PART_OF)
        string(REPLACE "/" "_" name "${room}")
        if(NOT library OR kind STREQUAL OBJECT_LIBRARY)
            set(library kv_${name})
        endif()
        target_link_libraries(${target} ${scope} ${library})
        if(NOT scope STREQUAL INTERFACE)
            target_include_directories(${target} PRIVATE "${root}")
        endif()
    endforeach()
endfunction()

# kv_rooms_below(RESULT ROOM...): the rooms and all that they use, directly or indirectly.
function(kv_rooms_below result)
    set(found "")
    set(pending ${ARGN})
    while(pending)
        list(POP_FRONT pending room)
        if(NOT room IN_LIST found)
            list(APPEND found "${room}")
            get_property(uses GLOBAL PROPERTY KV_ROOM_${room}_USES)
            list(APPEND pending ${uses})
        endif()
    endwhile()
    set(${result} "${found}" PARENT_SCOPE)
endfunction()
