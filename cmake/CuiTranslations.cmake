# cui_add_translations(<target> NAME <name> PREFIX <prefix> FILES <file>...)
#
# Compiles the translation sources (*.ts) and embeds the results in the target, as resources under
# that prefix. The code says Q_INIT_RESOURCE(<name>), outside of any namespace, since a static
# library leaves out what nothing refers to.
function(cui_add_translations target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME;PREFIX" "FILES")
    if(NOT arg_NAME OR NOT arg_PREFIX OR NOT arg_FILES OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "cui_add_translations: expected NAME, PREFIX and FILES only.")
    endif()

    qt5_add_translation(compiled ${arg_FILES} OPTIONS -silent)
    set(entries)
    foreach(file IN LISTS compiled)
        cmake_path(GET file FILENAME name)
        string(APPEND entries "<file alias=\"${name}\">${file}</file>\n")
    endforeach()
    set(collection "${CMAKE_CURRENT_BINARY_DIR}/${arg_NAME}.qrc")
    file(CONFIGURE OUTPUT "${collection}" CONTENT
        "<RCC>\n<qresource prefix=\"@arg_PREFIX@\">\n@entries@</qresource>\n</RCC>\n" @ONLY)
    qt5_add_resources(source "${collection}")
    set_source_files_properties(${source} PROPERTIES SKIP_AUTOMOC ON)
    target_sources(${target} PRIVATE ${source})
endfunction()
