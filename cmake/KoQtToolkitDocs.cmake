# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# The API reference: Doxygen over the installed headers, docs/namespaces.dox (what each namespace
# is for) and docs/mainpage.md.
#
#   cmake --build build --target docs
#
# writes the HTML to KO_QTTOOLKIT_DOCS_OUTPUT_DIR/html, a Qt Help file (<package>.qch, made by
# Qt's qhelpgenerator) and a Doxygen tag file (<package>.tags) beside it, and prints how many
# public symbols the reference documents. Any Doxygen warning (an undocumented public class,
# function, signal, property or enum value among them) fails the target. The target is not part
# of the default build. Without Doxygen there is no docs target; without qhelpgenerator the
# reference is built without its .qch; without Qt's tag files (Debian's qtbase5-doc-dev) Qt's
# classes are not linked.
#
# In:  ko_public_headers (the installed headers, relative to src/)

find_package(Doxygen 1.9 QUIET)
if(NOT DOXYGEN_FOUND)
    message(STATUS "Docs: Doxygen not found, no docs target")
    return()
endif()

set(KO_QTTOOLKIT_DOCS_OUTPUT_DIR "${PROJECT_BINARY_DIR}/docs" CACHE PATH
    "Where the docs target writes the API reference")

# Qt's qhelpgenerator, of the Qt this build uses: in Qt's libexec (Qt 6) or beside qmake (Qt 5).
# Qt 6's libexec comes first: Debian's Qt 6 qmake lies in /usr/bin, whose qhelpgenerator is
# qtchooser's, which runs Qt 5's.
set(_ko_qt_tool_dirs "")
if(KO_QTTOOLKIT_QT_MAJOR STREQUAL "6" AND QT6_INSTALL_PREFIX AND QT6_INSTALL_LIBEXECS)
    list(APPEND _ko_qt_tool_dirs "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS}")
endif()
if(TARGET ${KO_QT}::qmake)
    get_target_property(_ko_qmake ${KO_QT}::qmake LOCATION)
    get_filename_component(_ko_qmake_dir "${_ko_qmake}" DIRECTORY)
    list(APPEND _ko_qt_tool_dirs "${_ko_qmake_dir}")
endif()
find_program(KO_QTTOOLKIT_QHELPGENERATOR NAMES qhelpgenerator
    HINTS ${_ko_qt_tool_dirs} NO_DEFAULT_PATH)
find_program(KO_QTTOOLKIT_QHELPGENERATOR NAMES qhelpgenerator-qt${KO_QTTOOLKIT_QT_MAJOR} qhelpgenerator)
if(KO_QTTOOLKIT_QHELPGENERATOR)
    set(KO_DOXYGEN_GENERATE_QHP YES)
else()
    set(KO_DOXYGEN_GENERATE_QHP NO)
    set(KO_QTTOOLKIT_QHELPGENERATOR "")
    message(STATUS "Docs: qhelpgenerator not found, the reference is built without its .qch")
endif()

# Links to Qt's own classes, through the tag files of Qt's documentation where they are
# installed (Debian: qtbase5-doc-dev, for either Qt major). Qt Charts has none in Debian.
set(KO_QTTOOLKIT_QT_TAGS_DIR "/usr/share/qt5/doc" CACHE PATH
    "The folder holding Qt's Doxygen tag files (qtcore/qtcore.tags, ...)")
set(_ko_tagfiles "")
foreach(_ko_module qtcore qtgui qtwidgets qtcharts)
    set(_ko_tags "${KO_QTTOOLKIT_QT_TAGS_DIR}/${_ko_module}/${_ko_module}.tags")
    if(EXISTS "${_ko_tags}")
        string(APPEND _ko_tagfiles
            " \\\n    \"${_ko_tags}=https://doc.qt.io/qt-${KO_QTTOOLKIT_QT_MAJOR}/\"")
    else()
        list(APPEND _ko_missing_tags ${_ko_module})
    endif()
endforeach()
if(_ko_missing_tags)
    message(STATUS "Docs: no Qt tag files for ${_ko_missing_tags} in ${KO_QTTOOLKIT_QT_TAGS_DIR}; those classes are not linked")
endif()
set(KO_DOXYGEN_TAGFILES "${_ko_tagfiles}")

set(_ko_inputs "")
foreach(_ko_header IN LISTS ko_public_headers)
    string(APPEND _ko_inputs " \\\n    \"${PROJECT_SOURCE_DIR}/src/${_ko_header}\"")
endforeach()
string(APPEND _ko_inputs " \\\n    \"${PROJECT_SOURCE_DIR}/docs/namespaces.dox\"")
string(APPEND _ko_inputs " \\\n    \"${PROJECT_SOURCE_DIR}/docs/mainpage.md\"")
set(KO_DOXYGEN_INPUT "${_ko_inputs}")

# The help namespace names the package and its version, so that Assistant registers the Qt 5 and
# the Qt 6 reference, and two versions, side by side: ko.qttoolkit.cxx.200, ko.qttoolkit.cxx.qt6.200.
string(TOLOWER "${KO_QTTOOLKIT_PACKAGE}" KO_DOXYGEN_QHP_NAMESPACE)
string(REPLACE "_" "." KO_DOXYGEN_QHP_NAMESPACE "${KO_DOXYGEN_QHP_NAMESPACE}")
string(APPEND KO_DOXYGEN_QHP_NAMESPACE
    ".${PROJECT_VERSION_MAJOR}${PROJECT_VERSION_MINOR}${PROJECT_VERSION_PATCH}")

set(_ko_doxyfile "${PROJECT_BINARY_DIR}/Doxyfile")
configure_file("${PROJECT_SOURCE_DIR}/docs/Doxyfile.in" "${_ko_doxyfile}" @ONLY)

set(_ko_header_paths "${ko_public_headers}")
list(TRANSFORM _ko_header_paths PREPEND "${PROJECT_SOURCE_DIR}/src/")
file(GLOB _ko_images "${PROJECT_SOURCE_DIR}/docs/*.png")

# Doxygen leaves pages of removed classes behind: start from an empty html folder.
add_custom_target(docs
    COMMAND "${CMAKE_COMMAND}" -E rm -rf "${KO_QTTOOLKIT_DOCS_OUTPUT_DIR}/html"
    COMMAND "${CMAKE_COMMAND}" -E make_directory "${KO_QTTOOLKIT_DOCS_OUTPUT_DIR}"
    COMMAND "${DOXYGEN_EXECUTABLE}" "${_ko_doxyfile}"
    COMMAND "${CMAKE_COMMAND}"
        "-DTAGFILE=${KO_QTTOOLKIT_DOCS_OUTPUT_DIR}/${KO_QTTOOLKIT_PACKAGE}.tags"
        -P "${PROJECT_SOURCE_DIR}/cmake/KoQtToolkitCountSymbols.cmake"
    WORKING_DIRECTORY "${PROJECT_BINARY_DIR}"
    DEPENDS "${_ko_doxyfile}" "${PROJECT_SOURCE_DIR}/docs/mainpage.md"
        "${PROJECT_SOURCE_DIR}/docs/namespaces.dox" ${_ko_header_paths} ${_ko_images}
    COMMENT "Building the API reference in ${KO_QTTOOLKIT_DOCS_OUTPUT_DIR}"
    VERBATIM)

message(STATUS "Docs: Doxygen ${DOXYGEN_VERSION}; 'cmake --build . --target docs' writes ${KO_QTTOOLKIT_DOCS_OUTPUT_DIR}")

unset(_ko_qt_tool_dirs)
unset(_ko_qmake)
unset(_ko_qmake_dir)
unset(_ko_tagfiles)
unset(_ko_tags)
unset(_ko_module)
unset(_ko_missing_tags)
unset(_ko_inputs)
unset(_ko_header)
unset(_ko_header_paths)
unset(_ko_images)
unset(_ko_doxyfile)
