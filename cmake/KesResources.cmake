# kes_add_resource_objects(<target> NAME <rcc name> PREFIX <prefix> COMMENT <text> FILES <file>...)
# An OBJECT library holding the Qt resource <rcc name>, which lists the generated <file>s under
# <prefix> by their file names. Its objects are linked into a library with $<TARGET_OBJECTS:...>;
# rcc runs again whenever one of the files is rebuilt.
function(kes_add_resource_objects target)
    cmake_parse_arguments(ARG "" "NAME;PREFIX;COMMENT" "FILES" ${ARGN})
    set(entries "")
    foreach(file ${ARG_FILES})
        get_filename_component(alias ${file} NAME)
        string(APPEND entries "    <file alias=\"${alias}\">${file}</file>\n")
    endforeach()
    # Written through configure_file so that an unchanged list does not touch the file and repack.
    set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${ARG_NAME}.qrc)
    file(WRITE ${qrc}.in
        "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n  <qresource prefix=\"${ARG_PREFIX}\">\n${entries}  </qresource>\n</RCC>\n")
    configure_file(${qrc}.in ${qrc} COPYONLY)

    set(qrc_cpp ${CMAKE_CURRENT_BINARY_DIR}/qrc_${ARG_NAME}.cpp)
    add_custom_command(OUTPUT ${qrc_cpp}
        COMMAND Qt5::rcc --name ${ARG_NAME} --output ${qrc_cpp} ${qrc}
        DEPENDS ${qrc} ${ARG_FILES} Qt5::rcc
        COMMENT "${ARG_COMMENT}"
        VERBATIM)

    add_library(${target} OBJECT ${qrc_cpp})
    set_target_properties(${target} PROPERTIES
        AUTOMOC OFF
        AUTORCC OFF
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    target_link_libraries(${target} PRIVATE kes_build_options Qt5::Core)
endfunction()

# kes_compile_translations(<qm list variable> OUTPUT_DIR <dir> TS <file.ts>...)
# Compiles each Qt Linguist source with lrelease into <dir>/<name>.qm at build time and sets the
# variable to the list of .qm files, for kes_add_resource_objects() or a test to use.
function(kes_compile_translations out_var)
    cmake_parse_arguments(ARG "" "OUTPUT_DIR" "TS" ${ARGN})
    set(qm_files "")
    # Ninja makes the folders of a command's outputs, Make does not, and lrelease will not either.
    file(MAKE_DIRECTORY ${ARG_OUTPUT_DIR})
    foreach(ts ${ARG_TS})
        get_filename_component(name ${ts} NAME_WE)
        set(qm ${ARG_OUTPUT_DIR}/${name}.qm)
        add_custom_command(OUTPUT ${qm}
            COMMAND Qt5::lrelease -silent ${ts} -qm ${qm}
            DEPENDS ${ts} Qt5::lrelease
            COMMENT "Compiling the translation ${name}"
            VERBATIM)
        list(APPEND qm_files ${qm})
    endforeach()
    set(${out_var} ${qm_files} PARENT_SCOPE)
endfunction()

# kes_add_lupdate_target(<target> SOURCES <dir>... TS <file.ts>...)
# A target that refreshes the .ts files from the tr() texts below the source folders. Run it after
# adding or changing a text, translate the new entries and commit the .ts files. The include path
# lets lupdate resolve classes declared in "namespace kes::x {", so that its contexts match the
# run-time class names.
function(kes_add_lupdate_target target)
    cmake_parse_arguments(ARG "" "" "SOURCES;TS" ${ARGN})
    set(includes -I ${PROJECT_SOURCE_DIR}/src)
    foreach(dir ${ARG_SOURCES})
        list(APPEND includes -I ${dir})
    endforeach()
    add_custom_target(${target}
        COMMAND Qt5::lupdate -silent -recursive -no-obsolete -locations none ${includes}
            ${ARG_SOURCES} -ts ${ARG_TS}
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        COMMENT "Refreshing the translation sources (${target})"
        VERBATIM)
endfunction()
