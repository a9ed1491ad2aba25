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
