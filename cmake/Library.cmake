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
if(ZEMBROLIX_FUZZ)
    target_compile_options(zembrolix_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# The headers that nearly every file includes, compiled once for the debug builds. A file still includes what it uses: they
# compile each by itself, and the release, which takes several at a time, has none of these.
set(precompiled_files
    <algorithm> <array> <functional> <memory> <optional> <string> <utility> <vector>
    <QByteArray> <QDir> <QFile> <QFileInfo> <QHash> <QPointer> <QSet> <QString> <QStringList> <QTimer>)
set(precompiled_screens ${precompiled_files}
    <QAccessible> <QApplication> <QImage> <QKeyEvent> <QMouseEvent> <QPainter> <QPixmap> <QWidget>)
set(precompiled_tests <gmock/gmock.h> <QTest>)

# Compiles a set of headers for the targets that reuse it; they are compiled with the same options.
function(zembrolix_precompiled name)
    cmake_parse_arguments(arg "" "" "HEADERS;LINK;OPTIONS" ${ARGN})
    set(empty ${PROJECT_BINARY_DIR}/precompiled.cpp)
    file(CONFIGURE OUTPUT ${empty} CONTENT "")
    add_library(${name} OBJECT ${empty})
    target_link_libraries(${name} PRIVATE zembrolix_flags ${arg_LINK})
    target_compile_options(${name} PRIVATE ${arg_OPTIONS})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
endfunction()

if(ZEMBROLIX_PRECOMPILED)
    zembrolix_precompiled(precompiled_files HEADERS ${precompiled_files} LINK Qt6::Core)
    zembrolix_precompiled(precompiled_screens HEADERS ${precompiled_screens} LINK Qt6::Widgets)
endif()

# One folder of the house, or a part of one: a static library that sees only what it links. SCREENS where it draws,
# PLAIN where it does without the toolkit, APART where its files use the same names for things of their own.
function(zembrolix_library name)
    cmake_parse_arguments(arg "SCREENS;PLAIN;APART" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC zembrolix_flags ${arg_LINK})
    if(ZEMBROLIX_UNITY AND NOT arg_APART)
        set_target_properties(${name} PROPERTIES UNITY_BUILD ON)
    endif()
    if(NOT ZEMBROLIX_PRECOMPILED)
        return()
    endif()
    if(arg_SCREENS)
        target_precompile_headers(${name} REUSE_FROM precompiled_screens)
    elseif(NOT arg_PLAIN)
        target_precompile_headers(${name} REUSE_FROM precompiled_files)
    endif()
endfunction()
