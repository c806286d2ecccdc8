# Installs the build to a folder of its own, runs the tool from there, then configures, builds and
# runs the project in SOURCE_DIR against it; and once more without CMake, by pkg-config, after the
# installation has been moved. Expects BUILD_DIR, CONFIG, GENERATOR, COMPILER, COMPILER_FLAGS,
# LIBDIR, PKG_CONFIG (may be false), SOURCE_DIR and WORK_DIR; WORK_DIR is gone afterwards, unless a
# step fails.

function(step what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE out)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${what} failed (${result}), see ${WORK_DIR}:\n${out}")
    endif()
    message(STATUS "${what}: done")
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(prefix "${WORK_DIR}/installed")
set(build "${WORK_DIR}/build")

step("Installing"
    "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --config "${CONFIG}" --prefix "${prefix}")
step("Running the installed tool"
    "${prefix}/bin/hotkeyctl" --user "${WORK_DIR}/user" list)
step("Configuring the consumer"
    "${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${build}" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_BUILD_TYPE=${CONFIG}"
    "-DCMAKE_CXX_COMPILER=${COMPILER}"
    "-DCMAKE_CXX_FLAGS=${COMPILER_FLAGS}")
step("Building the consumer" "${CMAKE_COMMAND}" --build "${build}" --config "${CONFIG}")
step("Running the consumer" "${build}/consumer")

# ask(VARIABLE ARGUMENT...): what pkg-config answers, as a list.
function(ask variable)
    execute_process(COMMAND "${CMAKE_COMMAND}" -E env
        "PKG_CONFIG_PATH=${moved}/${LIBDIR}/pkgconfig:$ENV{PKG_CONFIG_PATH}" "${PKG_CONFIG}" ${ARGN}
        RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE error
        OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT result EQUAL 0 OR out STREQUAL "")
        message(FATAL_ERROR "pkg-config ${ARGN} failed (${result}), see ${WORK_DIR}:\n${error}")
    endif()
    separate_arguments(list UNIX_COMMAND "${out}") # blanks in paths come escaped
    set(${variable} "${list}" PARENT_SCOPE)
endfunction()

if(PKG_CONFIG)
    set(moved "${WORK_DIR}/moved here")
    set(plain "${WORK_DIR}/plain")
    file(RENAME "${prefix}" "${moved}")
    file(MAKE_DIRECTORY "${plain}")
    ask(flags --cflags --libs UiCustomizations)
    ask(schemas --variable=schemadir UiCustomizations)
    ask(qt_programs --variable=host_bins Qt5Core)
    separate_arguments(compiler_flags UNIX_COMMAND "${COMPILER_FLAGS}")
    step("Making main.moc"
        "${qt_programs}/moc" "${SOURCE_DIR}/main.cpp" -o "${plain}/main.moc")
    step("Compiling by pkg-config"
        "${COMPILER}" -std=c++17 ${compiler_flags} "-I${plain}" "${SOURCE_DIR}/main.cpp" ${flags}
        -o "${plain}/consumer")
    file(GLOB files "${schemas}/*.xsd")
    if(NOT files)
        message(FATAL_ERROR "There are no schemas in ${schemas}, see ${WORK_DIR}")
    endif()
    file(COPY ${files} DESTINATION "${plain}")
    step("Running what was compiled" "${CMAKE_COMMAND}" -E env
        "LD_LIBRARY_PATH=${moved}/${LIBDIR}:$ENV{LD_LIBRARY_PATH}" "${plain}/consumer")
else()
    message(STATUS "There is no pkg-config: compiling without CMake is left out")
endif()

file(REMOVE_RECURSE "${WORK_DIR}")
