# Installs the build to a folder of its own, runs the tool from there, then configures, builds and
# runs the project in SOURCE_DIR against it. Expects BUILD_DIR, CONFIG, GENERATOR, COMPILER, COMPILER_FLAGS,
# SOURCE_DIR and WORK_DIR; WORK_DIR is gone afterwards, unless a step fails.

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

file(REMOVE_RECURSE "${WORK_DIR}")
