# Provides the target KoQtToolkit::QtChartsPrivate with the Qt Charts private headers.
#
# A Qt from the official installer ships them (Qt5::ChartsPrivate). Debian does not: there,
# scripts/setup.sh stages the headers of exactly the installed Qt Charts version under
# .cache/qt-private in the layout of an official install, and this module points at them.

set(KO_QTTOOLKIT_STAGED_QT_PRIVATE_DIR "${PROJECT_SOURCE_DIR}/.cache/qt-private"
    CACHE PATH "Where scripts/setup.sh stages the Qt Charts private headers")

find_package(Qt5 ${Qt5_VERSION} QUIET COMPONENTS Core Gui Widgets)

add_library(KoQtToolkit_QtChartsPrivate INTERFACE)
add_library(KoQtToolkit::QtChartsPrivate ALIAS KoQtToolkit_QtChartsPrivate)

set(_ko_staged "${KO_QTTOOLKIT_STAGED_QT_PRIVATE_DIR}/QtCharts/${Qt5Charts_VERSION}")
if(TARGET Qt5::ChartsPrivate)
    message(STATUS "Qt Charts private headers: Qt's own")
    target_link_libraries(KoQtToolkit_QtChartsPrivate INTERFACE Qt5::ChartsPrivate)
elseif(EXISTS "${_ko_staged}/QtCharts/private/chartaxiselement_p.h")
    message(STATUS "Qt Charts private headers: staged in ${_ko_staged}")
    target_include_directories(KoQtToolkit_QtChartsPrivate SYSTEM INTERFACE
        "${_ko_staged}" "${_ko_staged}/QtCharts")
    target_link_libraries(KoQtToolkit_QtChartsPrivate INTERFACE
        Qt5::Charts Qt5::CorePrivate Qt5::GuiPrivate Qt5::WidgetsPrivate)
else()
    message(FATAL_ERROR
        "The Qt Charts ${Qt5Charts_VERSION} private headers were not found. "
        "Run scripts/setup.sh: it stages them from Debian's source package "
        "into ${KO_QTTOOLKIT_STAGED_QT_PRIVATE_DIR}.")
endif()
unset(_ko_staged)
