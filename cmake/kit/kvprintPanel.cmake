# SPDX-License-Identifier: Apache-2.0
# kvprint_add_panel_bundle(NAME SOURCES FILE... METADATA FILE [RESOURCES FILE...])
#
# Adds the target NAME, which builds the panel bundle NAME.bundle in the current build folder: the library NAME.so and
# the resources in Resources/. METADATA is the JSON file that Q_PLUGIN_METADATA names; it is found in whatever folder it
# is. The bundle is installed in share/kvprint/panels, where a print dialog searches.

# Stops with an error that a writer of panels can act on: metadata that a print dialog would not accept.
function(_kvprint_check_metadata name metadata)
    file(READ "${metadata}" content)
    string(JSON keyword ERROR_VARIABLE error GET "${content}" Keywords 0)
    if(error)
        message(FATAL_ERROR "${name}: \"${metadata}\" must list PPD keywords under \"Keywords\": ${error}")
    endif()
    string(JSON count ERROR_VARIABLE error LENGTH "${content}" Resources)
    if(error OR count EQUAL 0)
        return()
    endif()
    math(EXPR last "${count} - 1")
    foreach(index RANGE ${last})
        string(JSON resource GET "${content}" Resources ${index})
        if(NOT resource IN_LIST ARGN)
            message(FATAL_ERROR "${name}: \"${metadata}\" needs the resource \"${resource}\"; add it to RESOURCES")
        endif()
    endforeach()
endfunction()

function(kvprint_add_panel_bundle name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "METADATA" "SOURCES;RESOURCES")
    if(arg_UNPARSED_ARGUMENTS OR NOT arg_METADATA OR NOT arg_SOURCES)
        message(FATAL_ERROR "kvprint_add_panel_bundle(NAME SOURCES FILE... METADATA FILE [RESOURCES FILE...])")
    endif()
    cmake_path(ABSOLUTE_PATH arg_METADATA BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)
    cmake_path(GET arg_METADATA PARENT_PATH metadata_folder)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${arg_METADATA}")

    set(bundle "${CMAKE_CURRENT_BINARY_DIR}/${name}.bundle")
    set(installed "${CMAKE_INSTALL_DATADIR}/kvprint/panels/${name}.bundle")
    file(MAKE_DIRECTORY "${bundle}/Resources")
    set(names "")
    set(copies "")
    foreach(resource IN LISTS arg_RESOURCES)
        cmake_path(ABSOLUTE_PATH resource BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" NORMALIZE)
        cmake_path(GET resource FILENAME file)
        add_custom_command(OUTPUT "${bundle}/Resources/${file}"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${bundle}/Resources"
            COMMAND "${CMAKE_COMMAND}" -E copy "${resource}" "${bundle}/Resources/${file}"
            DEPENDS "${resource}"
            VERBATIM)
        list(APPEND names "${file}")
        list(APPEND copies "${bundle}/Resources/${file}")
    endforeach()
    _kvprint_check_metadata(${name} "${arg_METADATA}" ${names})

    add_library(${name} MODULE ${arg_SOURCES} ${copies})
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON
        PREFIX ""
        SUFFIX ".so"
        # Without a folder for each configuration.
        LIBRARY_OUTPUT_DIRECTORY "$<1:${bundle}>"
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        # The program that loads the bundle has loaded the platform library already.
        BUILD_WITH_INSTALL_RPATH ON)
    target_include_directories(${name} PRIVATE "${metadata_folder}")
    # libcups 2 marks all its PPD functions as deprecated, but panels are built on PPDs.
    target_compile_options(${name} PRIVATE -Wno-deprecated-declarations)
    target_link_libraries(${name} PRIVATE kvprint::panel)
    install(TARGETS ${name} LIBRARY DESTINATION "${installed}")
    install(FILES ${copies} DESTINATION "${installed}/Resources")
endfunction()
