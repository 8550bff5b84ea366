# dbus_interface(SOURCES_VARIABLE INTERFACE HEADER header MEMBERS "kind Name [argument type]..."...)
#
# Generates a proxy of the members named from the installed description of a D-Bus interface, as OrgFreedesktop...
# in the header ${INTERFACE}.h. Qt's generator refuses a whole file for one argument whose type it has no name for,
# and the installed files name none, so the members in use are picked and given their types here: for a method's
# argument the annotation is Out0 or In0, for a property "-". The types are declared in HEADER.
function(dbus_interface SOURCES_VARIABLE INTERFACE)
    cmake_parse_arguments(ARG "" "HEADER" "MEMBERS" ${ARGN})
    find_file(DBUS_INTERFACE_FILE_${INTERFACE} ${INTERFACE}.xml
        PATHS ${CMAKE_SYSTEM_PREFIX_PATH} PATH_SUFFIXES share/dbus-1/interfaces REQUIRED)
    set(INSTALLED_FILE ${DBUS_INTERFACE_FILE_${INTERFACE}})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${INSTALLED_FILE})
    file(READ ${INSTALLED_FILE} INSTALLED)

    set(PICKED "")
    foreach(MEMBER IN LISTS ARG_MEMBERS)
        pick_dbus_member(ELEMENT "${INSTALLED}" "${MEMBER}")
        string(APPEND PICKED "${ELEMENT}\n")
    endforeach()
    set(PICKED_FILE ${CMAKE_CURRENT_BINARY_DIR}/${INTERFACE}.xml)
    file(GENERATE OUTPUT ${PICKED_FILE}
        CONTENT "<node><interface name=\"${INTERFACE}\">\n${PICKED}</interface></node>\n")

    set_source_files_properties(${PICKED_FILE} PROPERTIES INCLUDE ${ARG_HEADER} NO_NAMESPACE ON)
    qt6_add_dbus_interface(GENERATED ${PICKED_FILE} ${INTERFACE})
    set(${SOURCES_VARIABLE} ${${SOURCES_VARIABLE}} ${GENERATED} PARENT_SCOPE)
endfunction()

# One member's element of a description, with its annotation inside.
function(pick_dbus_member ELEMENT_VARIABLE DESCRIPTION MEMBER)
    separate_arguments(WORDS UNIX_COMMAND "${MEMBER}")
    list(POP_FRONT WORDS KIND NAME)
    string(FIND "${DESCRIPTION}" "<${KIND} name=\"${NAME}\"" BEGIN)
    if(BEGIN EQUAL -1)
        message(FATAL_ERROR "The installed D-Bus interface has no ${KIND} ${NAME}")
    endif()
    string(SUBSTRING "${DESCRIPTION}" ${BEGIN} -1 REST)
    string(REGEX MATCH "^<[^>]*>" OPENING "${REST}")
    string(REGEX REPLACE "/>$" ">" OPEN "${OPENING}")
    set(CONTENT "")
    if(OPEN STREQUAL OPENING)
        string(LENGTH "${OPENING}" CONTENT_BEGIN)
        string(FIND "${REST}" "</${KIND}>" CONTENT_END)
        math(EXPR CONTENT_LENGTH "${CONTENT_END} - ${CONTENT_BEGIN}")
        string(SUBSTRING "${REST}" ${CONTENT_BEGIN} ${CONTENT_LENGTH} CONTENT)
    endif()
    while(WORDS)
        list(POP_FRONT WORDS ARGUMENT TYPE)
        string(REPLACE ".-" "" ANNOTATION "org.qtproject.QtDBus.QtTypeName.${ARGUMENT}")
        string(PREPEND CONTENT "<annotation name=\"${ANNOTATION}\" value=\"${TYPE}\"/>")
    endwhile()
    set(${ELEMENT_VARIABLE} "${OPEN}${CONTENT}</${KIND}>" PARENT_SCOPE)
endfunction()
