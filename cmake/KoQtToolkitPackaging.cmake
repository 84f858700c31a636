# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Debian packages built by CPack from the install components:
#   runtime    the shared library                       libko-qttoolkit2
#   dev        headers, CMake package, pkg-config file  libko-qttoolkit-dev
#   designer   the Qt Designer plugin                   ko-qttoolkit-designer-plugin
#   examples   the gallery and the examples             ko-qttoolkit-examples
#   docs       the API reference, when a docs target    ko-qttoolkit-doc
#              exists (built before cpack runs)
# The Qt 6 build names its packages with "-qt6" (libko-qttoolkit-qt6-2, ...), so that both can be
# installed side by side, as their files are.
#
#   cmake --build build && (cd build && cpack)     # build/*.deb
#
# Dependencies on other packages come from dpkg-shlibdeps; those between our own packages are
# exact versions. The library derives from Qt Charts' private classes, so the runtime package
# also asks for exactly the Qt Charts package it was built against.

if(KO_QTTOOLKIT_QT_MAJOR STREQUAL "5")
    set(_ko_deb_suffix "")
    set(_ko_deb_qt_dev "qtbase5-dev, libqt5charts5-dev")
else()
    set(_ko_deb_suffix "-qt${KO_QTTOOLKIT_QT_MAJOR}")
    set(_ko_deb_qt_dev "qt6-base-dev, qt6-charts-dev")
endif()

# The examples of this build are installed with the examples component.
if(TARGET ko-qttoolkit-gallery)
    install(TARGETS ko-qttoolkit-gallery RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT examples)
endif()
if(TARGET ko-qttoolkit-designer-form)
    install(TARGETS ko-qttoolkit-designer-form RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT examples)
endif()

set(_ko_components runtime dev)
if(TARGET ko_qtToolkit_designer)
    list(APPEND _ko_components designer)
endif()
if(TARGET ko-qttoolkit-gallery OR TARGET ko-qttoolkit-designer-form)
    list(APPEND _ko_components examples)
endif()
# The API reference: whatever the docs target wrote to KO_QTTOOLKIT_DOCS_OUTPUT_DIR (HTML and the
# .qch), installed as it is; build the target before running cpack.
if(TARGET docs)
    set(KO_QTTOOLKIT_DOCS_OUTPUT_DIR "${PROJECT_BINARY_DIR}/docs" CACHE PATH
        "Where the docs target writes the API reference")
    install(DIRECTORY "${KO_QTTOOLKIT_DOCS_OUTPUT_DIR}/"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/ko-qttoolkit${_ko_deb_suffix}-doc"
        COMPONENT docs OPTIONAL)
    list(APPEND _ko_components docs)
endif()

# The Qt Charts package this build runs with: the Debian package owning the Qt Charts library
# found, at its installed version. A Qt from elsewhere has none, and the pin is left out.
set(_ko_charts_depends "")
get_target_property(_ko_charts_file ${KO_QT}::Charts LOCATION)
find_program(KO_DPKG_QUERY dpkg-query)
if(KO_DPKG_QUERY AND _ko_charts_file)
    get_filename_component(_ko_charts_file "${_ko_charts_file}" REALPATH)
    execute_process(COMMAND "${KO_DPKG_QUERY}" -S "${_ko_charts_file}"
        OUTPUT_VARIABLE _ko_charts_owner ERROR_QUIET RESULT_VARIABLE _ko_result
        OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(_ko_result EQUAL 0 AND _ko_charts_owner MATCHES "^([^:, ]+)(:[^:, ]+)?: ")
        set(_ko_charts_package "${CMAKE_MATCH_1}")
        execute_process(COMMAND "${KO_DPKG_QUERY}" -W "-f=\${Version}" "${_ko_charts_package}"
            OUTPUT_VARIABLE _ko_charts_version OUTPUT_STRIP_TRAILING_WHITESPACE)
        set(_ko_charts_depends "${_ko_charts_package} (= ${_ko_charts_version})")
    endif()
endif()
if(_ko_charts_depends)
    message(STATUS "Packages: the runtime package depends on ${_ko_charts_depends}")
else()
    message(STATUS "Packages: no Debian package owns ${_ko_charts_file}; the Qt Charts version is not pinned")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME "ko-qttoolkit${_ko_deb_suffix}")
set(CPACK_PACKAGE_VENDOR "ko_qtToolkit_cxx")
set(CPACK_PACKAGE_CONTACT "ko_qtToolkit_cxx developers")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_COMPONENTS_ALL ${_ko_components})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Our packages' binaries link the library of this build, which no installed package holds yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/src")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

if(_ko_deb_suffix)
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "libko-qttoolkit${_ko_deb_suffix}-${PROJECT_VERSION_MAJOR}")
else()
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "libko-qttoolkit${PROJECT_VERSION_MAJOR}")
endif()
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "${_ko_charts_depends}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "Touch-friendly Qt ${KO_QTTOOLKIT_QT_MAJOR} widgets and chart axes: the shared library")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME "libko-qttoolkit${_ko_deb_suffix}-dev")
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${_ko_deb_qt_dev}")
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
set(CPACK_COMPONENT_DEV_DESCRIPTION
    "Touch-friendly Qt ${KO_QTTOOLKIT_QT_MAJOR} widgets and chart axes: headers, CMake package and pkg-config file")

set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME "ko-qttoolkit${_ko_deb_suffix}-designer-plugin")
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_COMPONENT_DESIGNER_DEPENDS runtime)
set(CPACK_COMPONENT_DESIGNER_DESCRIPTION
    "Touch-friendly Qt ${KO_QTTOOLKIT_QT_MAJOR} widgets and chart axes: the Qt Designer plugin")

set(CPACK_DEBIAN_EXAMPLES_PACKAGE_NAME "ko-qttoolkit${_ko_deb_suffix}-examples")
set(CPACK_DEBIAN_EXAMPLES_PACKAGE_SECTION x11)
set(CPACK_COMPONENT_EXAMPLES_DEPENDS runtime)
set(CPACK_COMPONENT_EXAMPLES_DESCRIPTION
    "Touch-friendly Qt ${KO_QTTOOLKIT_QT_MAJOR} widgets and chart axes: the gallery and the examples")
# Both builds install the examples under the same names.
if(_ko_deb_suffix)
    set(CPACK_DEBIAN_EXAMPLES_PACKAGE_CONFLICTS "ko-qttoolkit-examples")
else()
    set(CPACK_DEBIAN_EXAMPLES_PACKAGE_CONFLICTS "ko-qttoolkit-qt6-examples")
endif()

set(CPACK_DEBIAN_DOCS_PACKAGE_NAME "ko-qttoolkit${_ko_deb_suffix}-doc")
set(CPACK_DEBIAN_DOCS_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCS_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_DOCS_DESCRIPTION
    "Touch-friendly Qt ${KO_QTTOOLKIT_QT_MAJOR} widgets and chart axes: the API reference")

include(CPack)

unset(_ko_components)
unset(_ko_deb_suffix)
unset(_ko_deb_qt_dev)
unset(_ko_charts_file)
unset(_ko_charts_owner)
unset(_ko_charts_package)
unset(_ko_charts_version)
unset(_ko_charts_depends)
unset(_ko_result)
