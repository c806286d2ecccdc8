# What every target of this project shares: the language, where results go, the warnings.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The schemas are read from the folder of the executable and the sample host's data from
# ../share, so a build folder has the same shape as an installation.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

# Installed programs and libraries find their libraries wherever the installation is moved.
file(RELATIVE_PATH CUI_LIBRARIES_FROM_PROGRAMS
    "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}")
if(NOT CMAKE_INSTALL_RPATH AND NOT WIN32 AND NOT APPLE)
    set(CMAKE_INSTALL_RPATH "$ORIGIN" "$ORIGIN/${CUI_LIBRARIES_FROM_PROGRAMS}")
endif()

add_library(CuiWarnings INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(CuiWarnings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        $<$<BOOL:${UICUSTOMIZATIONS_WERROR}>:-Werror>)
elseif(MSVC)
    target_compile_options(CuiWarnings INTERFACE
        /W4 $<$<BOOL:${UICUSTOMIZATIONS_WERROR}>:/WX>)
endif()

# Text is converted on purpose or not at all, and names such as `signals` stay free for others.
add_library(CuiStrictQt INTERFACE)
target_compile_definitions(CuiStrictQt INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
