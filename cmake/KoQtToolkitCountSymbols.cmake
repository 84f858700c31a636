# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Counts the public symbols the API reference documents, from the Doxygen tag file the docs
# target writes, and prints them by kind:
#
#   cmake -DTAGFILE=build/docs/ko_qtToolkit_cxx.tags -P cmake/KoQtToolkitCountSymbols.cmake
#
# A symbol is a namespace, a class, or a member of one (function, signal, property, enum, enum
# value, typedef, variable). The tag file lists namespace members once more under their file,
# and the main page under its own entry: only namespaces and classes are read. The docs build
# fails on any undocumented public symbol, so every symbol counted is a documented one.

if(NOT TAGFILE OR NOT EXISTS "${TAGFILE}")
    message(FATAL_ERROR "No tag file: ${TAGFILE}")
endif()

file(STRINGS "${TAGFILE}" _lines)
set(_inside OFF)
set(_symbols "")
foreach(_line IN LISTS _lines)
    if(_line MATCHES "<compound kind=\"([a-z]+)\"")
        if(CMAKE_MATCH_1 MATCHES "^(namespace|class|struct|union)$")
            set(_inside ON)
            list(APPEND _symbols "${CMAKE_MATCH_1}")
        else()
            set(_inside OFF)
        endif()
    elseif(_inside AND _line MATCHES "<member kind=\"([a-z]+)\"")
        list(APPEND _symbols "${CMAKE_MATCH_1}")
    endif()
endforeach()

list(LENGTH _symbols _total)
set(_kinds ${_symbols})
list(REMOVE_DUPLICATES _kinds)
set(_summary "")
foreach(_kind IN LISTS _kinds)
    set(_of_kind ${_symbols})
    list(FILTER _of_kind INCLUDE REGEX "^${_kind}$")
    list(LENGTH _of_kind _count)
    list(APPEND _summary "${_count} ${_kind}")
endforeach()
list(JOIN _summary ", " _summary)
message("docs: ${_total} documented public symbols (${_summary})")
