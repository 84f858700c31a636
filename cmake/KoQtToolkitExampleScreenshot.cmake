# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Runs an example with --screenshot and checks that it wrote a PNG file with something in it:
#   cmake -DPROGRAM=<example> -DOUTPUT=<file.png> -P KoQtToolkitExampleScreenshot.cmake
# The caller's environment (QT_QPA_PLATFORM=offscreen) passes on to the example.

file(REMOVE "${OUTPUT}")
execute_process(COMMAND "${PROGRAM}" --screenshot "${OUTPUT}" RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} --screenshot exited with ${result}")
endif()
if(NOT EXISTS "${OUTPUT}")
    message(FATAL_ERROR "${PROGRAM} --screenshot wrote no ${OUTPUT}")
endif()
file(SIZE "${OUTPUT}" size)
file(READ "${OUTPUT}" signature LIMIT 8 HEX)
if(size EQUAL 0 OR NOT signature STREQUAL "89504e470d0a1a0a")
    message(FATAL_ERROR "${OUTPUT} is not a PNG image (${size} bytes)")
endif()
message(STATUS "${OUTPUT}: ${size} bytes")
