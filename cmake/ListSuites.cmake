# Run as a script after a test program is linked: writes the ctest entries of its suites.
# PROGRAM: the test program; PREFIX: of the entries' names; OUTPUT: the file to write.

execute_process(COMMAND "${PROGRAM}" --gtest_list_tests
    OUTPUT_VARIABLE listing RESULT_VARIABLE result ERROR_VARIABLE errors)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} cannot list its tests (${result})\n${errors}")
endif()

# Suites stand at the line's start and end in a dot, their tests are indented. Rows print their values
# after a "#", which may hold anything, so the listing is matched rather than split into a CMake list.
string(REGEX MATCHALL "(^|\n)[A-Za-z0-9_/]+\\." suites "${listing}")
if(NOT suites)
    message(FATAL_ERROR "${PROGRAM} holds no tests")
endif()

set(script "")
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "[\n.]" "" suite "${suite}")
    string(APPEND script
        "add_test([==[${PREFIX}.${suite}]==] [==[${PROGRAM}]==] [==[--gtest_filter=${suite}.*]==])\n"
        # A test that is switched off proves nothing, so it counts as failed.
        "set_tests_properties([==[${PREFIX}.${suite}]==] PROPERTIES FAIL_REGULAR_EXPRESSION "
        "[==[\\[  SKIPPED \\]|YOU HAVE [0-9]+ DISABLED]==])\n")
endforeach()
file(WRITE "${OUTPUT}" "${script}")
