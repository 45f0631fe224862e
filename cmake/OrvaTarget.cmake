# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of ORVA is compiled with: warnings as errors, and the sanitizers asked for.

add_library(orva_build_options INTERFACE)

if(MSVC)
    target_compile_options(orva_build_options INTERFACE /W4 /WX /utf-8 /permissive-)
else()
    target_compile_options(orva_build_options INTERFACE
        -Wall -Wextra -Wpedantic -Werror $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow> -Wconversion -Wno-sign-conversion
        -Wcast-align -Wformat=2 -Wimplicit-fallthrough -Wundef
        $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual -Wextra-semi>)
endif()

target_compile_definitions(orva_build_options INTERFACE
    QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH QT_NO_JAVA_STYLE_ITERATORS
    $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(ORVA_SANITIZE)
    target_compile_options(orva_build_options INTERFACE
        -fsanitize=${ORVA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(orva_build_options INTERFACE -fsanitize=${ORVA_SANITIZE})
endif()

# orva_target(NAME): applies the common options and Qt's code generators to a target.
function(orva_target name)
    target_link_libraries(${name} PRIVATE orva_build_options)
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON
        AUTOUIC ON
        AUTOUIC_SEARCH_PATHS ${PROJECT_SOURCE_DIR}/forms)
endfunction()
