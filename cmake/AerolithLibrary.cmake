# aerolith_library(NAME FOLDER folder SOURCES ... HEADERS ... LINKS ... [PRIVATE_LINKS ...])
#
# One static library per folder of src/. Its headers are reached as "folder/Header.h", and only by targets that
# link it: each library shows its headers through an include directory of its own, made of links to the files.
# An include against the allowed link graph therefore does not build.
function(aerolith_library NAME)
    cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;HEADERS;LINKS;PRIVATE_LINKS" ${ARGN})
    set(INCLUDE_ROOT ${CMAKE_BINARY_DIR}/include/${NAME})
    file(REMOVE_RECURSE ${INCLUDE_ROOT})
    file(MAKE_DIRECTORY ${INCLUDE_ROOT}/${ARG_FOLDER})
    foreach(HEADER IN LISTS ARG_HEADERS)
        file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${HEADER} ${INCLUDE_ROOT}/${ARG_FOLDER}/${HEADER} SYMBOLIC)
    endforeach()

    if(ARG_SOURCES)
        add_library(${NAME} STATIC ${ARG_SOURCES} ${ARG_HEADERS})
        target_include_directories(${NAME} PUBLIC ${INCLUDE_ROOT})
        target_link_libraries(${NAME} PUBLIC ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS} aerolith_warnings)
    else()
        add_library(${NAME} INTERFACE)
        target_include_directories(${NAME} INTERFACE ${INCLUDE_ROOT})
        target_link_libraries(${NAME} INTERFACE ${ARG_LINKS})
    endif()
endfunction()
