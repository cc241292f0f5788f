# quorvawiz-flags: what every target of this tree compiles and links with. It is linked privately and
# never exported, so that a consumer's flags stay the consumer's own.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

add_library(quorvawiz-flags INTERFACE)
target_compile_options(quorvawiz-flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow
    $<$<BOOL:${QUORVAWIZ_WERROR}>:-Werror>)

# Checks of the standard library's own preconditions cost little and find what a test only brushes.
target_compile_definitions(quorvawiz-flags INTERFACE
    $<$<NOT:$<CONFIG:Release,MinSizeRel>>:_GLIBCXX_ASSERTIONS>)

set(quorvawiz_sanitizers "")
if(QUORVAWIZ_SANITIZE OR QUORVAWIZ_FUZZ)
    set(quorvawiz_sanitizers
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(quorvawiz-flags INTERFACE
        ${quorvawiz_sanitizers}
        # GCC's flow analysis sees paths in instrumented code that the source doesn't have.
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(quorvawiz-flags INTERFACE ${quorvawiz_sanitizers})
endif()

if(QUORVAWIZ_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "QUORVAWIZ_FUZZ needs clang: use the preset 'fuzz'")
    endif()
    target_compile_options(quorvawiz-flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
