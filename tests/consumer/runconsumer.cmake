# Runs inside CTest: install, configure, build and run the consumer. Any failing step fails the test.
function(run_step description)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${description} failed (${result}):\n${out}\n${err}")
    endif()
    message(STATUS "${description}: ok")
    set(step_output "${out}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${KES_PREFIX} ${CONSUMER_BINARY_DIR})
run_step("install" ${CMAKE_COMMAND} --install ${KES_BUILD_DIR} --prefix ${KES_PREFIX})
run_step("configure consumer" ${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${CONSUMER_BINARY_DIR}
    -G ${CMAKE_GENERATOR} -DCMAKE_PREFIX_PATH=${KES_PREFIX} -DCMAKE_CXX_FLAGS=${CONSUMER_CXX_FLAGS})
run_step("build consumer" ${CMAKE_COMMAND} --build ${CONSUMER_BINARY_DIR})
run_step("run consumer" ${CONSUMER_BINARY_DIR}/kes_consumer)
message(STATUS "${step_output}")
