# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Provides the target KoQtToolkit::QtChartsPrivate with the Qt Charts private headers.
#
# A Qt from the official installer ships them (Qt5::ChartsPrivate, Qt6::ChartsPrivate). Debian
# does not: there, scripts/setup.sh stages the headers of exactly the installed Qt Charts version
# in the layout of an official install, under .cache/qt-private for Qt 5 and .cache/qt6-private
# for Qt 6, and this module points at them.

if(KO_QTTOOLKIT_QT_MAJOR STREQUAL "5")
    set(_ko_staged_default "${PROJECT_SOURCE_DIR}/.cache/qt-private")
else()
    set(_ko_staged_default "${PROJECT_SOURCE_DIR}/.cache/qt${KO_QTTOOLKIT_QT_MAJOR}-private")
endif()
set(KO_QTTOOLKIT_STAGED_QT_PRIVATE_DIR "${_ko_staged_default}"
    CACHE PATH "Where scripts/setup.sh stages the Qt Charts private headers")
unset(_ko_staged_default)

find_package(${KO_QT} ${KO_QT_VERSION} QUIET COMPONENTS Core Gui Widgets)

add_library(KoQtToolkit_QtChartsPrivate INTERFACE)
add_library(KoQtToolkit::QtChartsPrivate ALIAS KoQtToolkit_QtChartsPrivate)

# Qt 6 declares the private target even where its headers are missing: look for a header.
set(_ko_own FALSE)
if(TARGET ${KO_QT}::ChartsPrivate)
    get_target_property(_ko_dirs ${KO_QT}::ChartsPrivate INTERFACE_INCLUDE_DIRECTORIES)
    foreach(_ko_dir IN LISTS _ko_dirs)
        if(EXISTS "${_ko_dir}/QtCharts/private/chartaxiselement_p.h")
            set(_ko_own TRUE)
        endif()
    endforeach()
    unset(_ko_dir)
    unset(_ko_dirs)
endif()

set(_ko_staged "${KO_QTTOOLKIT_STAGED_QT_PRIVATE_DIR}/QtCharts/${KO_QT_CHARTS_VERSION}")
if(_ko_own)
    message(STATUS "Qt Charts private headers: Qt's own")
    target_link_libraries(KoQtToolkit_QtChartsPrivate INTERFACE ${KO_QT}::ChartsPrivate)
elseif(EXISTS "${_ko_staged}/QtCharts/private/chartaxiselement_p.h")
    message(STATUS "Qt Charts private headers: staged in ${_ko_staged}")
    target_include_directories(KoQtToolkit_QtChartsPrivate SYSTEM INTERFACE
        "${_ko_staged}" "${_ko_staged}/QtCharts")
    target_link_libraries(KoQtToolkit_QtChartsPrivate INTERFACE
        ${KO_QT}::Charts ${KO_QT}::CorePrivate ${KO_QT}::GuiPrivate ${KO_QT}::WidgetsPrivate)
else()
    message(FATAL_ERROR
        "The Qt Charts ${KO_QT_CHARTS_VERSION} private headers were not found. "
        "Run scripts/setup.sh: it stages them from Debian's source package "
        "into ${KO_QTTOOLKIT_STAGED_QT_PRIVATE_DIR}.")
endif()
unset(_ko_staged)
unset(_ko_own)
