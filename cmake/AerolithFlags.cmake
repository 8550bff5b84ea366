# Flags live on two INTERFACE targets, so that what is generated (moc, D-Bus proxies) can leave them out.
add_library(aerolith_warnings INTERFACE)
target_compile_options(aerolith_warnings INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)
target_compile_definitions(aerolith_warnings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_STRICT_ITERATORS)

# Each folder is compiled as one file, in a sixth of the time. GCC then takes a test's own fixture for a header's.
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(aerolith_warnings INTERFACE -Wno-subobject-linkage)
endif()

# What ships parses bytes from the air: it is hardened, and the same sources give the same bytes in any folder.
add_compile_options(
    "$<$<CONFIG:Release>:-fstack-protector-strong;-D_FORTIFY_SOURCE=2;-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>")
add_link_options("$<$<CONFIG:Release>:-Wl,-z,relro,-z,now>")
# For qt_add_resources: this version alone has no file times in it.
set(AEROLITH_RESOURCE_OPTIONS --format-version 1)

set(AEROLITH_SANITIZE "" CACHE STRING "Sanitizers to build with, as given to -fsanitize=")
if(AEROLITH_SANITIZE)
    add_compile_options(-fsanitize=${AEROLITH_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${AEROLITH_SANITIZE})
    # GCC loses sight of an optional's flag, or of an object's kind, in instrumented code and warns of what cannot be.
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        target_compile_options(aerolith_warnings INTERFACE -Wno-maybe-uninitialized -Wno-array-bounds)
    endif()
    if(AEROLITH_SANITIZE MATCHES undefined)
        add_compile_options(-fno-sanitize-recover=undefined)
    endif()
endif()

option(AEROLITH_COVERAGE "Measure line coverage with gcov" OFF)
if(AEROLITH_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
