# Sources are found per folder, on purpose: a new page touches its own file and one table row, and no
# list in a build file. CONFIGURE_DEPENDS looks again at every build, so that a new file is never missed.
# A folder that is empty, or not there yet, yields nothing and is no error.

# quorvawiz_find_sources(<variable> <folder>...): the C++ files in the folders and below them.
function(quorvawiz_find_sources variable)
    set(all "")
    foreach(folder IN LISTS ARGN)
        file(GLOB_RECURSE found CONFIGURE_DEPENDS "${folder}/*.cpp")
        list(APPEND all ${found})
    endforeach()
    set(${variable} "${all}" PARENT_SCOPE)
endfunction()

# quorvawiz_find_programs(<variable> <folder>): the C++ files that stand directly in the folder, for
# folders in which each file is a program of its own.
function(quorvawiz_find_programs variable folder)
    file(GLOB found CONFIGURE_DEPENDS "${folder}/*.cpp")
    set(${variable} "${found}" PARENT_SCOPE)
endfunction()

# quorvawiz_add_floor(<name> <folder>...): the object library quorvawiz-<name>-objects, which takes part
# in quorvawiz-core. Position independent, because shared libraries take the same objects.
function(quorvawiz_add_floor name)
    list(TRANSFORM ARGN PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/" OUTPUT_VARIABLE folders)
    quorvawiz_find_sources(sources ${folders})
    if(NOT sources)
        return()
    endif()
    set(target quorvawiz-${name}-objects)
    add_library(${target} OBJECT ${sources})
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    target_include_directories(${target} PRIVATE
        "${PROJECT_SOURCE_DIR}/src" "${PROJECT_BINARY_DIR}/generated")
    target_link_libraries(${target} PRIVATE quorvawiz-flags ICU::uc Boost::serialization)
    target_sources(quorvawiz-core PRIVATE $<TARGET_OBJECTS:${target}>)
endfunction()
