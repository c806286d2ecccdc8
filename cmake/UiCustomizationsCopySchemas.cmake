# uicustomizations_copy_schemas(<target>)
#
# Copies the schemas of the hotkey files beside the executable <target> whenever it is linked.
# The library reads them from the folder of the running program.
function(uicustomizations_copy_schemas target)
    if(NOT TARGET "${target}")
        message(FATAL_ERROR "uicustomizations_copy_schemas: there is no target '${target}'.")
    endif()
    get_property(schemas TARGET UiCustomizations::UiCustomizationsCore
        PROPERTY UICUSTOMIZATIONS_SCHEMAS)
    add_custom_command(TARGET "${target}" POST_BUILD
        COMMAND "${CMAKE_COMMAND}" -E copy_if_different ${schemas} "$<TARGET_FILE_DIR:${target}>"
        VERBATIM)
endfunction()
