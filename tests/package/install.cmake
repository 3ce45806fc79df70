# Installs the build folder BUILD below an empty PREFIX: what an earlier run installed must not
# stand in for what is missing now.
file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND ${CMAKE_COMMAND} --install "${BUILD}" --prefix "${PREFIX}"
    COMMAND_ERROR_IS_FATAL ANY)
