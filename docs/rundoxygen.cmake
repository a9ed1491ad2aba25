# Runs inside the docs target: Doxygen with CONFIG. Anything it (or the Qt help generator it
# calls) writes to the error stream fails the target, and the outputs are removed so that the next
# build tries again rather than taking a half-written documentation for done.
execute_process(COMMAND ${DOXYGEN} ${CONFIG}
    RESULT_VARIABLE result
    OUTPUT_VARIABLE output
    ERROR_VARIABLE errors)
# qhelpgenerator, a Qt program, remarks on a session without XDG_RUNTIME_DIR (a build machine's
# usual state); that says nothing about the documentation.
string(REGEX REPLACE "QStandardPaths: XDG_RUNTIME_DIR not set[^\n]*\n?" "" errors "${errors}")
if(NOT result EQUAL 0 OR NOT errors STREQUAL "")
    file(REMOVE ${OUTPUTS})
    message(FATAL_ERROR "Doxygen failed (${result}):\n${errors}")
endif()
foreach(file ${OUTPUTS})
    if(NOT EXISTS ${file})
        message(FATAL_ERROR "Doxygen did not write ${file}:\n${output}")
    endif()
endforeach()
