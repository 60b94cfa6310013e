# Warnings, strict Qt and the sanitizers, in one place for every target.
add_library(zembrolix_flags INTERFACE)
target_compile_options(zembrolix_flags INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-qual -Wconversion -Wno-sign-conversion)
target_compile_definitions(zembrolix_flags INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_STRICT_ITERATORS)
target_include_directories(zembrolix_flags INTERFACE ${PROJECT_SOURCE_DIR})
if(ZEMBROLIX_SANITIZE)
    target_compile_options(zembrolix_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(zembrolix_flags INTERFACE -fsanitize=address,undefined)
endif()

# One folder of the house, or a part of one: a static library that sees only what it links.
function(zembrolix_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC zembrolix_flags ${arg_LINK})
endfunction()
