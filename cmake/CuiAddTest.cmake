# cui_add_test(<name> SOURCES <files>... [LIBRARIES <targets>...] [TIMEOUT <seconds>])
#
# Makes the QTest executable tst_<name> and registers it with ctest. The libraries decide what is
# under test: UiCustomizationsInternal for the inside of the library, UiCustomizations or what
# stands on it (UiCustomizationsHost, hotkeyctlCommands) for the view from outside. Every test sees
# testSupport.
function(cui_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "SOURCES;LIBRARIES")
    if(NOT arg_SOURCES OR arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "cui_add_test(${name}): expected SOURCES, LIBRARIES and TIMEOUT only.")
    endif()
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()

    set(target "tst_${name}")
    add_executable(${target} ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_precompile_headers(${target} REUSE_FROM testPrecompiled)
    target_compile_definitions(${target} PRIVATE
        CUI_TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data"
        CUI_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    # testSupport is made for either library and names neither, so it goes before them.
    list(REMOVE_ITEM arg_LIBRARIES testSupport)
    target_link_libraries(${target} PRIVATE
        testSupport ${arg_LIBRARIES} Qt5::Test CuiWarnings CuiStrictQt)

    add_test(NAME ${target} COMMAND ${target})
    # In the language of the sources, whatever the developer's own is.
    set_tests_properties(${target} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;LANGUAGE=")
endfunction()
