# The installed tree: the archive, its headers under include/quorvawiz (which is their include root, as src
# is here), the command line, and a package for find_package(quorvawiz). With Qt also the two shared
# libraries, as the package's component "desktop", and the host.

include(CMakePackageConfigHelpers)

set(quorvawiz_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/quorvawiz")

install(TARGETS quorvawiz-core EXPORT quorvawizTargets)
if(TARGET quorvawiz-cli)
    install(TARGETS quorvawiz-cli)
    install(FILES "${PROJECT_SOURCE_DIR}/docs/cli.md" "${PROJECT_SOURCE_DIR}/docs/session.md"
        "${PROJECT_SOURCE_DIR}/docs/call.md" "${PROJECT_SOURCE_DIR}/docs/params.md"
        "${PROJECT_SOURCE_DIR}/docs/options.md" "${PROJECT_SOURCE_DIR}/docs/import.md"
        DESTINATION "${CMAKE_INSTALL_DOCDIR}")
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/pages" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/images/pages"
        DESTINATION "${CMAKE_INSTALL_DOCDIR}/images")
endif()


set(quorvawiz_hidden_headers "")
if(QUORVAWIZ_QT)
    set_target_properties(quorvawiz PROPERTIES INSTALL_RPATH "$ORIGIN")
    file(RELATIVE_PATH fromProgramToLibraries
        "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
    set_target_properties(quorvahost PROPERTIES
        INSTALL_RPATH "$ORIGIN/${fromProgramToLibraries}")
    install(TARGETS quorvaplatform quorvawiz EXPORT quorvawizDesktopTargets)
    install(TARGETS quorvahost)
    install(EXPORT quorvawizDesktopTargets
        NAMESPACE quorvawiz:: DESTINATION "${quorvawiz_package_dir}")
else()
    set(quorvawiz_hidden_headers PATTERN "platform/qt" EXCLUDE)
endif()

install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/" "${PROJECT_BINARY_DIR}/generated/"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/quorvawiz"
    FILES_MATCHING PATTERN "*.h"
    # What belongs to the programs of this tree.
    PATTERN "simulators" EXCLUDE
    ${quorvawiz_hidden_headers})

install(EXPORT quorvawizTargets NAMESPACE quorvawiz:: DESTINATION "${quorvawiz_package_dir}")
configure_package_config_file(cmake/quorvawizConfig.cmake.in
    "${PROJECT_BINARY_DIR}/quorvawizConfig.cmake"
    INSTALL_DESTINATION "${quorvawiz_package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/quorvawizConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/quorvawizConfig.cmake"
    "${PROJECT_BINARY_DIR}/quorvawizConfigVersion.cmake"
    DESTINATION "${quorvawiz_package_dir}")
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
