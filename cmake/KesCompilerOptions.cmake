# Compiler settings shared by every target of the project (not exported to consumers).
add_library(kes_build_options INTERFACE)
target_compile_options(kes_build_options INTERFACE -Wall -Wextra)
if(KES_WARNINGS_AS_ERRORS)
    target_compile_options(kes_build_options INTERFACE -Werror)
endif()
if(KES_SANITIZE)
    # No recovery: an undefined-behaviour report must fail the test that triggered it.
    set(_kes_san -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_options(kes_build_options INTERFACE ${_kes_san})
    target_link_options(kes_build_options INTERFACE ${_kes_san})
endif()
if(KES_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "KES_FUZZ needs clang (libFuzzer): configure with CMAKE_CXX_COMPILER=clang++")
    endif()
    # Coverage for libFuzzer in the library and the targets alike; the targets add the fuzzer's
    # main when they link.
    target_compile_options(kes_build_options INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(kes_build_options INTERFACE -fsanitize=address,undefined)
endif()
if(KES_SANITIZE_THREAD)
    # The tests that use threads, under ThreadSanitizer; scripts/test --thread builds it.
    set(_kes_tsan -fsanitize=thread -fno-omit-frame-pointer)
    # GCC 12 warns of freeing a non-heap pointer inside std::vector once the code is instrumented
    # for threads, on code that is fine in every other build.
    target_compile_options(kes_build_options INTERFACE ${_kes_tsan} -Wno-free-nonheap-object)
    target_link_options(kes_build_options INTERFACE ${_kes_tsan})
endif()

# kes_add_library(<target> <export name> SOURCES ... HEADERS ... [LIBS ...])
# One shared library with its generated export header <kes/<dir>/<target>_export.h>.
function(kes_add_library target export_name dir)
    cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC_LIBS;PRIVATE_LIBS" ${ARGN})
    add_library(${target} SHARED ${ARG_SOURCES})
    add_library(Kes::${export_name} ALIAS ${target})
    string(TOUPPER ${target} upper)
    generate_export_header(${target}
        BASE_NAME ${upper}
        EXPORT_FILE_NAME ${KES_GENERATED_INCLUDE_DIR}/kes/${dir}/${target}_export.h)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/src>
        $<BUILD_INTERFACE:${KES_GENERATED_INCLUDE_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
    target_link_libraries(${target} PUBLIC ${ARG_PUBLIC_LIBS} PRIVATE kes_build_options ${ARG_PRIVATE_LIBS})
    # The headers use C++17 (nested namespaces, inline variables): consumers get it with the target.
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${export_name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
    install(TARGETS ${target} EXPORT KesTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
    # Private headers ("_p.h") serve the library's own sources only.
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/kes/${dir}/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kes/${dir}
        FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
    install(DIRECTORY ${KES_GENERATED_INCLUDE_DIR}/kes/${dir}/
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kes/${dir}
        FILES_MATCHING PATTERN "*.h")
endfunction()
