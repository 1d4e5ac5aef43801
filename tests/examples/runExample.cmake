# Runs PROGRAM in the new folder FOLDER. It must succeed, and its output must match PATTERN.
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})
execute_process(COMMAND ${PROGRAM} ${ARGUMENTS} WORKING_DIRECTORY ${FOLDER}
    RESULT_VARIABLE result OUTPUT_VARIABLE output)
message("${output}")
if(NOT result EQUAL 0 OR NOT output MATCHES "${PATTERN}")
    message(FATAL_ERROR "${PROGRAM}: exit code ${result}; expected 0 and output matching: ${PATTERN}")
endif()
