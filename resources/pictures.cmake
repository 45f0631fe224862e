# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the pictures at build time. Afterwards ORVA_PICTURES_QRC is the list of them and
# ORVA_PICTURES_SOURCE the C++ source to compile into a target; a static library needs
# Q_INIT_RESOURCE(orva_pictures).
set(ORVA_PICTURES_DIR ${CMAKE_CURRENT_BINARY_DIR}/pictures)
set(ORVA_PICTURES_QRC ${ORVA_PICTURES_DIR}/pictures.qrc)
set(ORVA_PICTURES_SOURCE ${CMAKE_CURRENT_BINARY_DIR}/qrc_pictures.cpp)

file(GLOB orva_svgs CONFIGURE_DEPENDS
    ${CMAKE_CURRENT_LIST_DIR}/icons/*.svg ${CMAKE_CURRENT_LIST_DIR}/art/*.svg)

# The tool writes the list last, so its age stands for that of every picture.
add_custom_command(OUTPUT ${ORVA_PICTURES_QRC}
    COMMAND orva-pictures ${CMAKE_CURRENT_LIST_DIR}/pictures.json
        ${CMAKE_CURRENT_LIST_DIR}/style/tokens.json ${ORVA_PICTURES_DIR}
    DEPENDS orva-pictures ${CMAKE_CURRENT_LIST_DIR}/pictures.json
        ${CMAKE_CURRENT_LIST_DIR}/style/tokens.json ${orva_svgs}
    COMMENT "Drawing the pictures"
    VERBATIM)

add_custom_command(OUTPUT ${ORVA_PICTURES_SOURCE}
    COMMAND Qt5::rcc --name orva_pictures -o ${ORVA_PICTURES_SOURCE} ${ORVA_PICTURES_QRC}
    DEPENDS ${ORVA_PICTURES_QRC}
    COMMENT "Packing the pictures"
    VERBATIM)
set_source_files_properties(${ORVA_PICTURES_SOURCE} PROPERTIES SKIP_AUTOGEN ON)
