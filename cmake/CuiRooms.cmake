# cui_add_room(<name> LIBRARY <Core|Widgets> [FOLDER <folder>] [PUBLIC_HEADERS <file>...]
#     [SOURCES <file>...] [LINUX_SOURCES <file>...] [WINDOWS_SOURCES <file>...]
#     [LIBRARIES <target>...])
#
# Compiles one folder of the library. A room sees its own headers and those of the rooms that were
# added before it, so that an include of a later room does not compile; rooms of Core see no header
# of Qt Widgets. The objects become part of UiCustomizationsCore or UiCustomizations.
function(cui_add_room name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "LIBRARY;FOLDER"
        "PUBLIC_HEADERS;SOURCES;LINUX_SOURCES;WINDOWS_SOURCES;LIBRARIES")
    if(NOT arg_LIBRARY MATCHES "^(Core|Widgets)$" OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "cui_add_room(${name}): LIBRARY is Core or Widgets.")
    endif()
    if(NOT arg_FOLDER)
        set(arg_FOLDER "${name}")
    endif()
    if(WIN32)
        list(APPEND arg_SOURCES ${arg_WINDOWS_SOURCES})
    else()
        list(APPEND arg_SOURCES ${arg_LINUX_SOURCES})
    endif()
    list(TRANSFORM arg_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}/")
    list(TRANSFORM arg_PUBLIC_HEADERS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}/")

    set(target "UiCustomizations${name}Room")
    set_property(GLOBAL APPEND PROPERTY CUI_${arg_LIBRARY}_ROOMS "${target}")
    set_property(GLOBAL APPEND PROPERTY CUI_PUBLIC_HEADERS ${arg_PUBLIC_HEADERS})
    set_property(GLOBAL APPEND PROPERTY CUI_ROOM_FOLDERS "${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}")
    get_property(folders GLOBAL PROPERTY CUI_ROOM_FOLDERS)

    add_library(${target} OBJECT ${arg_SOURCES} ${arg_PUBLIC_HEADERS})
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        AUTORCC ON
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    set(export_Core UICUSTOMIZATIONS_CORE_LIBRARY)
    set(export_Widgets UICUSTOMIZATIONS_LIBRARY)
    target_compile_definitions(${target} PRIVATE ${export_${arg_LIBRARY}})
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}" ${folders})
    target_link_libraries(${target} PRIVATE
        ${CUI_${arg_LIBRARY}_LIBRARIES} ${arg_LIBRARIES} CuiWarnings CuiStrictQt)

    # The rooms of a library are compiled alike, so they share what most of their time goes into.
    get_property(rooms GLOBAL PROPERTY CUI_${arg_LIBRARY}_ROOMS)
    list(GET rooms 0 first)
    if(first STREQUAL target)
        target_precompile_headers(${target} PRIVATE ${CUI_${arg_LIBRARY}_PRECOMPILED})
    else()
        target_precompile_headers(${target} REUSE_FROM ${first})
    endif()
endfunction()
