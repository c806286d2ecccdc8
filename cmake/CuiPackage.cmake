# Lets another project say find_package(UiCustomizations) against an installation.

include(CMakePackageConfigHelpers)

set(CUI_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/UiCustomizations")
set(CUI_SCHEMA_INSTALL_DIR "${CMAKE_INSTALL_DATADIR}/UiCustomizations/schemas")

install(EXPORT UiCustomizationsTargets
    NAMESPACE UiCustomizations::
    DESTINATION "${CUI_PACKAGE_DIR}")

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/UiCustomizationsConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/cmake/UiCustomizationsConfig.cmake"
    INSTALL_DESTINATION "${CUI_PACKAGE_DIR}"
    PATH_VARS CUI_SCHEMA_INSTALL_DIR)

# Before 1.0 a minor version may change the interface.
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/cmake/UiCustomizationsConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)

install(FILES
    "${PROJECT_BINARY_DIR}/cmake/UiCustomizationsConfig.cmake"
    "${PROJECT_BINARY_DIR}/cmake/UiCustomizationsConfigVersion.cmake"
    "${CMAKE_CURRENT_LIST_DIR}/UiCustomizationsCopySchemas.cmake"
    DESTINATION "${CUI_PACKAGE_DIR}")
