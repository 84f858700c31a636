# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Warnings, sanitizers and visibility shared by every target of the project.

add_compile_options(-Wall -Wextra)
if(KO_QTTOOLKIT_DEVELOPER_MODE)
    add_compile_options(-Werror)
endif()

if(KO_QTTOOLKIT_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "KO_QTTOOLKIT_FUZZ needs clang's libFuzzer: configure with CXX=clang++")
    endif()
    # The library is instrumented for coverage; only the fuzz targets link libFuzzer's main.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(KO_QTTOOLKIT_SANITIZERS OR KO_QTTOOLKIT_FUZZ)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
