# The installed tree: the archive, its headers under include/quorvawiz (which is their include root, as src
# is here), the command line, and a package for find_package(quorvawiz).

include(CMakePackageConfigHelpers)

set(quorvawiz_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/quorvawiz")

install(TARGETS quorvawiz-core EXPORT quorvawizTargets)
if(TARGET quorvawiz-cli)
    install(TARGETS quorvawiz-cli)
endif()

install(DIRECTORY "${PROJECT_SOURCE_DIR}/src/" "${PROJECT_BINARY_DIR}/generated/"
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/quorvawiz"
    FILES_MATCHING PATTERN "*.h"
    PATTERN "platform/qt" EXCLUDE)

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
