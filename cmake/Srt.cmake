# SPDX-License-Identifier: GPL-3.0-or-later
# orva_srt: SRT for the link layer.
#
# Debian's libavformat brings a second build of SRT into the process, with the same names. So ours is
# linked statically, with its names kept inside, wherever the loader knows only one space of names.
pkg_check_modules(SRT REQUIRED srt)

add_library(orva_srt INTERFACE)
target_include_directories(orva_srt SYSTEM INTERFACE ${SRT_INCLUDE_DIRS})
if(UNIX AND NOT APPLE)
    find_library(SRT_STATIC libsrt.a REQUIRED HINTS ${SRT_LIBRARY_DIRS})
    target_link_libraries(orva_srt INTERFACE ${SRT_STATIC} PkgConfig::CRYPTO Threads::Threads)
    target_link_options(orva_srt INTERFACE -Wl,--exclude-libs,libsrt.a)
else()
    target_link_libraries(orva_srt INTERFACE ${SRT_LINK_LIBRARIES})
endif()
