# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# ko_qttoolkit_add_example(<target> <sources>...)
#
# An example program linked against the library as an application would link it, built with the
# gallery's strict Qt defines. With the tests on, CTest runs it as example.<target> with
# --screenshot into the build folder and checks that a PNG image appears.
function(ko_qttoolkit_add_example target)
    add_executable(${target} ${ARGN})
    target_link_libraries(${target} PRIVATE ko::qtToolkit ${KO_QT}::Widgets ${KO_QT}::Charts)
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
    if(KO_QTTOOLKIT_TESTS)
        add_test(NAME example.${target}
            COMMAND "${CMAKE_COMMAND}" -DPROGRAM=$<TARGET_FILE:${target}>
                    -DOUTPUT=${CMAKE_CURRENT_BINARY_DIR}/${target}.png
                    -P "${PROJECT_SOURCE_DIR}/cmake/KoQtToolkitExampleScreenshot.cmake")
        set_tests_properties(example.${target} PROPERTIES
            ENVIRONMENT "${ko_test_environment}" LABELS example)
    endif()
endfunction()
