# SPDX-License-Identifier: MIT
# The integration guide shows examples/minimal-host/main.cpp, which the build
# compiles; this keeps the page's copy identical to the file.
#   cmake -DGUIDE=<docs/integration.md> -DEXAMPLE=<main.cpp> -DMARKER=<line before the block>
#         -P LMGuideExampleTest.cmake
foreach(var GUIDE EXAMPLE MARKER)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "${var} is not set")
    endif()
endforeach()

file(READ "${GUIDE}" guide)
file(READ "${EXAMPLE}" example)
string(FIND "${guide}" "${MARKER}\n```cpp\n" start)
if(start EQUAL -1)
    message(FATAL_ERROR "${GUIDE} has no code block after \"${MARKER}\"")
endif()
string(LENGTH "${MARKER}\n```cpp\n" skip)
math(EXPR start "${start} + ${skip}")
string(SUBSTRING "${guide}" ${start} -1 rest)
string(FIND "${rest}" "\n```\n" end)
if(end EQUAL -1)
    message(FATAL_ERROR "the code block after \"${MARKER}\" in ${GUIDE} is not closed")
endif()
math(EXPR end "${end} + 1")
string(SUBSTRING "${rest}" 0 ${end} shown)
if(NOT shown STREQUAL example)
    message(FATAL_ERROR "the code in ${GUIDE} differs from ${EXAMPLE}; copy the file into the page")
endif()
