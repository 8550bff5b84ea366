# aerolith_translations(TARGET): the files of translations/ as resources of TARGET, :/aerolith/translations/LANGUAGE.qm.
#
# A build with tests has one more, the pseudo-language ar_XB, made from the English texts: longer than they are, with
# every text marked and the layout from right to left. It shows what is not translated, what is cut off and what is
# not mirrored.
set(QT_TOOLS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})
find_program(LRELEASE lrelease HINTS ${QT_TOOLS} REQUIRED)
if(BUILD_TESTING)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
endif()

function(aerolith_translations TARGET)
    set(FOLDER ${CMAKE_SOURCE_DIR}/translations)
    set(OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/translations)
    file(MAKE_DIRECTORY ${OUTPUT})
    set(SOURCES)
    foreach(LANGUAGE de es fr ja zh_CN)
        list(APPEND SOURCES ${FOLDER}/${LANGUAGE}.ts)
    endforeach()
    if(BUILD_TESTING)
        add_custom_command(OUTPUT ${OUTPUT}/ar_XB.ts DEPENDS ${FOLDER}/pseudo.py ${FOLDER}/de.ts VERBATIM
            COMMAND Python3::Interpreter ${FOLDER}/pseudo.py ${FOLDER}/de.ts ${OUTPUT}/ar_XB.ts)
        list(APPEND SOURCES ${OUTPUT}/ar_XB.ts)
    endif()
    set(COMPILED)
    foreach(SOURCE IN LISTS SOURCES)
        cmake_path(GET SOURCE STEM LANGUAGE)
        add_custom_command(OUTPUT ${OUTPUT}/${LANGUAGE}.qm DEPENDS ${SOURCE} VERBATIM
            COMMAND ${LRELEASE} -silent ${SOURCE} -qm ${OUTPUT}/${LANGUAGE}.qm)
        list(APPEND COMPILED ${OUTPUT}/${LANGUAGE}.qm)
    endforeach()
    # As they are, a translation is read where it lies.
    qt_add_resources(${TARGET} translations
        PREFIX /aerolith/translations
        OPTIONS ${AEROLITH_RESOURCE_OPTIONS} --no-compress
        BASE ${OUTPUT}
        FILES ${COMPILED})
endfunction()
