# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DTOKENS=tokens.json -DSHEET=orva.qss -DOUTPUT=... -P StyleSheet.cmake
# Writes the style sheet with the colours put in; a @name@ that is no token stops the build.
file(READ ${TOKENS} tokens)
file(READ ${SHEET} sheet)
string(JSON count LENGTH "${tokens}")
math(EXPR last "${count} - 1")
foreach(index RANGE ${last})
    string(JSON name MEMBER "${tokens}" ${index})
    string(JSON colour GET "${tokens}" ${name})
    string(REPLACE "@${name}@" "${colour}" sheet "${sheet}")
endforeach()
string(REGEX REPLACE "/\\*[^*]*\\*+([^/*][^*]*\\*+)*/" "" sheet "${sheet}")
if(sheet MATCHES "@([a-z0-9-]+)@")
    message(FATAL_ERROR "${SHEET}: @${CMAKE_MATCH_1}@ is no colour of ${TOKENS}")
endif()
file(WRITE ${OUTPUT} "${sheet}")
