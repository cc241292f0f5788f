# Installs the build tree into a prefix of its own, then configures, builds and runs the consumer project
# against nothing but that prefix.

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ECHO STDOUT COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(prefix "${WORK_DIR}/prefix")
set(build "${WORK_DIR}/build")
# Left-overs of an earlier run would hide a file that is no longer installed.
file(REMOVE_RECURSE "${WORK_DIR}")

run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}" --config "${CONFIG}")
run("${CMAKE_COMMAND}" -S "${CONSUMER_DIR}" -B "${build}" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${prefix}"
    "-DCMAKE_BUILD_TYPE=${CONFIG}"
    "-DCMAKE_CXX_COMPILER=${COMPILER}"
    "-DCMAKE_CXX_FLAGS=${FLAGS}")
run("${CMAKE_COMMAND}" --build "${build}")
run("${build}/consumer")
