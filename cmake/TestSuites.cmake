# quorvawiz_add_suites(<folder>): the program tests-<folder> of the sources in tests/<folder>, and one
# ctest entry <folder>.<suite> per GoogleTest suite in it. A suite is the grain because an entry is a
# process: thousands of table rows would spend their time in starting, most of all under the sanitizers.

function(quorvawiz_add_suites folder)
    quorvawiz_find_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
    if(NOT sources)
        return()
    endif()
    set(target tests-${folder})
    add_executable(${target} ${sources})
    target_link_libraries(${target} PRIVATE quorvawiz-tests)
    target_precompile_headers(${target} REUSE_FROM tests-pch)
    if(TARGET quorvawiz-cli)
        add_dependencies(${target} quorvawiz-cli)
    endif()
    quorvawiz_list_suites(${target} ${folder})
endfunction()

# quorvawiz_list_suites(<target> <prefix>): the ctest entries <prefix>.<suite> of a test program.
function(quorvawiz_list_suites target prefix)
    set(list "${CMAKE_CURRENT_BINARY_DIR}/${target}.suites.cmake")
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND "${CMAKE_COMMAND}"
            "-DPROGRAM=$<TARGET_FILE:${target}>" "-DPREFIX=${prefix}" "-DOUTPUT=${list}"
            -P "${PROJECT_SOURCE_DIR}/cmake/ListSuites.cmake"
        BYPRODUCTS "${list}"
        VERBATIM)
    set(entry "${CMAKE_CURRENT_BINARY_DIR}/${target}.ctest.cmake")
    # A program that isn't built yet is one failing entry rather than none.
    file(WRITE "${entry}"
        "if(EXISTS \"${list}\")\n"
        "  include(\"${list}\")\n"
        "else()\n"
        "  add_test(${target}-not-built ${target}-not-built)\n"
        "endif()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${entry}")
endfunction()
