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

# quorvawiz_add_display_tests(<target> <suite>...): for suites of a window test program the ctest entries
# display.<suite>, which run them once more, on a virtual X display, with Qt's platform of real ones.
# Without Xvfb, or without the suite, they fail.
function(quorvawiz_add_display_tests target)
    set(leaks "print_suppressions=0:suppressions=${PROJECT_SOURCE_DIR}/cmake/SystemLeaks.txt")
    # Each build begins its search for a free server at a number of its own: two that look at once may find the same.
    string(MD5 digest "${PROJECT_BINARY_DIR}")
    string(SUBSTRING "${digest}" 0 3 digest)
    math(EXPR server "100 + 0x${digest}")
    foreach(suite IN LISTS ARGN)
        add_test(NAME display.${suite}
            COMMAND xvfb-run --server-num=${server} --auto-servernum "--server-args=-screen 0 1280x1024x24"
                "$<TARGET_FILE:${target}>" "--gtest_filter=${suite}.*")
        # One display after the other, for the same reason.
        set_tests_properties(display.${suite} PROPERTIES
            LABELS display
            RESOURCE_LOCK display
            # libxkbcommon-x11 copies names of stated length out of packets without a closing zero.
            ENVIRONMENT_MODIFICATION "ASAN_OPTIONS=string_append::strict_string_checks=0"
            ENVIRONMENT "QT_QPA_PLATFORM=xcb;LSAN_OPTIONS=${leaks}"
            FAIL_REGULAR_EXPRESSION "Running 0 tests|\\[  SKIPPED \\]|YOU HAVE [0-9]+ DISABLED")
    endforeach()
endfunction()
