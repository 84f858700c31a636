# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Finds the Qt the library is built against and names what differs between the Qt majors.
#
# KO_QTTOOLKIT_QT_MAJOR picks Qt 5.15 (the default) or Qt 6.4 and later. Afterwards:
#   KO_QT                     the prefix of Qt's packages and targets: Qt5 or Qt6
#   KO_QT_VERSION             the version of the Qt found (Qt5_VERSION or Qt6_VERSION)
#   KO_QT_CHARTS_VERSION      the version of the Qt Charts found
#   KO_QTTOOLKIT_PACKAGE      the CMake package, library file and include folder name:
#                             ko_qtToolkit_cxx for Qt 5, ko_qtToolkit_cxx_qt6 for Qt 6, so that
#                             both builds install side by side into one prefix

set(KO_QTTOOLKIT_QT_MAJOR 5 CACHE STRING "The Qt major version to build against: 5 or 6")
set_property(CACHE KO_QTTOOLKIT_QT_MAJOR PROPERTY STRINGS 5 6)

if(KO_QTTOOLKIT_QT_MAJOR STREQUAL "5")
    set(_ko_qt_minimum 5.15)
    set(KO_QTTOOLKIT_PACKAGE ko_qtToolkit_cxx)
elseif(KO_QTTOOLKIT_QT_MAJOR STREQUAL "6")
    set(_ko_qt_minimum 6.4)
    set(KO_QTTOOLKIT_PACKAGE ko_qtToolkit_cxx_qt6)
else()
    message(FATAL_ERROR "KO_QTTOOLKIT_QT_MAJOR is \"${KO_QTTOOLKIT_QT_MAJOR}\"; it must be 5 or 6.")
endif()

set(KO_QT "Qt${KO_QTTOOLKIT_QT_MAJOR}")
find_package(${KO_QT} ${_ko_qt_minimum} REQUIRED COMPONENTS Core Gui Widgets Charts Svg)
set(KO_QT_VERSION "${${KO_QT}_VERSION}")
set(KO_QT_CHARTS_VERSION "${${KO_QT}Charts_VERSION}")
unset(_ko_qt_minimum)
message(STATUS "Qt: ${KO_QT_VERSION}, Qt Charts ${KO_QT_CHARTS_VERSION}; package ${KO_QTTOOLKIT_PACKAGE}")
string(REGEX MATCH "^[0-9]+\\.[0-9]+" KO_QT_VERSION_MAJOR_MINOR "${KO_QT_VERSION}")
