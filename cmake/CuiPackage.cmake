# Lets another project say find_package(UiCustomizations) against an installation, or find it by
# pkg-config.

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

# The file names its prefix by where it lies, so that an installation may be moved. Qt asks that all
# code is position-independent; its own package files do not say so.
set(CUI_PKGCONFIG_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH CUI_PREFIX_FROM_PKGCONFIG
    "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" CUI_PREFIX_FROM_PKGCONFIG "${CUI_PREFIX_FROM_PKGCONFIG}")
foreach(dir IN ITEMS LIBDIR INCLUDEDIR)
    cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_${dir} BASE_DIRECTORY "\${prefix}"
        OUTPUT_VARIABLE CUI_PC_${dir})
endforeach()
cmake_path(ABSOLUTE_PATH CUI_SCHEMA_INSTALL_DIR BASE_DIRECTORY "\${prefix}"
    OUTPUT_VARIABLE CUI_PC_SCHEMADIR)
configure_file(
    "${CMAKE_CURRENT_LIST_DIR}/UiCustomizations.pc.in"
    "${PROJECT_BINARY_DIR}/cmake/UiCustomizations.pc"
    @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/cmake/UiCustomizations.pc"
    DESTINATION "${CUI_PKGCONFIG_DIR}")
