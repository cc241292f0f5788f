# What a host on a screen links.
#   quorvaplatform  the platform with its Qt desktop, and the texts that the exports speak
#   quorvawiz       the wizard and what else there is; its dynamic symbols are the exported functions alone

quorvawiz_find_sources(qtSources "${CMAKE_CURRENT_SOURCE_DIR}/platform/qt")
add_library(quorvawiz-qt-objects OBJECT ${qtSources})
# Without Qt's meta compiler: the slots are lambdas.
set_target_properties(quorvawiz-qt-objects PROPERTIES POSITION_INDEPENDENT_CODE ON)
target_include_directories(quorvawiz-qt-objects PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
target_link_libraries(quorvawiz-qt-objects PUBLIC Qt6::Widgets PRIVATE quorvawiz-flags)

# quorvawiz_add_shared(<name> <floor>...): a shared library of the objects of the floors that there are.
function(quorvawiz_add_shared name)
    add_library(${name} SHARED "${PROJECT_BINARY_DIR}/generated/quorvawiz/version.h")
    add_library(quorvawiz::${name} ALIAS ${name})
    foreach(floor IN LISTS ARGN)
        if(TARGET quorvawiz-${floor}-objects)
            target_sources(${name} PRIVATE $<TARGET_OBJECTS:quorvawiz-${floor}-objects>)
        endif()
    endforeach()
    set_target_properties(${name} PROPERTIES
        LINKER_LANGUAGE CXX
        LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib"
        VERSION "${PROJECT_VERSION}"
        SOVERSION "${PROJECT_VERSION_MAJOR}")
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_include_directories(${name} PUBLIC
        "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>"
        "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/generated>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/quorvawiz>")
    target_link_libraries(${name} PRIVATE quorvawiz-flags)
    # The sanitizers' runtime comes with the program.
    if(NOT quorvawiz_sanitizers)
        target_link_options(${name} PRIVATE LINKER:-z,defs)
    endif()
endfunction()

quorvawiz_add_shared(quorvaplatform platform foundation qt)
target_link_libraries(quorvaplatform PUBLIC Qt6::Widgets Boost::headers PRIVATE ICU::uc)

quorvawiz_add_shared(quorvawiz params wizard browser exports)
target_link_libraries(quorvawiz PUBLIC quorvaplatform PRIVATE ICU::uc Boost::serialization)
set(exportedSymbols "${CMAKE_CURRENT_SOURCE_DIR}/exports/ExportedSymbols.map")
target_link_options(quorvawiz PRIVATE "LINKER:--version-script=${exportedSymbols}")
set_target_properties(quorvawiz PROPERTIES LINK_DEPENDS "${exportedSymbols}")
