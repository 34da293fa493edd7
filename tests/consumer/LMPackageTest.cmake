# SPDX-License-Identifier: MIT
# Installs the current build into a prefix of its own and builds the consumer
# project against that prefix only, so the installed files alone (package,
# headers, libraries with their run paths, catalogue) have to carry a host.
#   cmake -DBUILD_DIR=<build> -DCONFIG=<config> -DWORK_DIR=<dir> -DCONSUMER_SOURCE_DIR=<dir>
#         -DGENERATOR=<generator> -DCXX_COMPILER=<compiler> -DMODE=<host|headers>
#         -P LMPackageTest.cmake
# MODE host: runs the consumer offscreen without LD_LIBRARY_PATH and checks its
# choice. MODE headers: compiles every installed header on its own.

foreach(var BUILD_DIR WORK_DIR CONSUMER_SOURCE_DIR GENERATOR CXX_COMPILER MODE)
    if(NOT DEFINED ${var})
        message(FATAL_ERROR "${var} is not set")
    endif()
endforeach()

file(REMOVE_RECURSE "${WORK_DIR}")
set(PREFIX "${WORK_DIR}/prefix")
set(CONSUMER_BUILD "${WORK_DIR}/consumer")
set(PACKAGE_DIR "${PREFIX}/lib/cmake/LMMediaFormatPopup")
set(DATA_DIR "${PREFIX}/share/LMMediaFormatPopup")
set(INCLUDE_DIR "${PREFIX}/include/LMMediaFormatPopup")
# What the programs run with: no library path but the binaries' own, no display,
# and settings in the work folder instead of the user's.
set(RUN_ENV ${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH QT_QPA_PLATFORM=offscreen
    "XDG_CONFIG_HOME=${WORK_DIR}/config")

# step(<what> COMMAND...): runs the command, fails the test with its output when it fails.
function(step what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE out ERROR_VARIABLE err
                    TIMEOUT 100)
    if(NOT code EQUAL 0)
        message(FATAL_ERROR "${what} failed (${code}):\n${out}\n${err}")
    endif()
    set(step_output "${out}" PARENT_SCOPE)
endfunction()

set(install_args --install "${BUILD_DIR}" --prefix "${PREFIX}")
if(CONFIG)
    list(APPEND install_args --config "${CONFIG}")
endif()
step("cmake --install" ${CMAKE_COMMAND} ${install_args})

foreach(file
        "${PACKAGE_DIR}/LMMediaFormatPopupConfig.cmake"
        "${PACKAGE_DIR}/LMMediaFormatPopupConfigVersion.cmake"
        "${PACKAGE_DIR}/LMMediaFormatPopupTargets.cmake"
        "${INCLUDE_DIR}/ILMMediaFormatPopup.h"
        "${INCLUDE_DIR}/LMMediaFormatPopupExport.h"
        "${DATA_DIR}/catalogue/formats.json"
        "${DATA_DIR}/catalogue/formats.icfg"
        "${DATA_DIR}/catalogue/artwork/mp4.svg"
        "${DATA_DIR}/translations/en.lproj/Localizable.qm"
        "${DATA_DIR}/translations/zh-Hans.lproj/Localizable.qm")
    if(NOT EXISTS "${file}")
        message(FATAL_ERROR "not installed: ${file}")
    endif()
endforeach()
# Implementation headers stay inside the build.
foreach(header LMFmtPresetDataSource.h LMFormatRegistry.h LMFormatJson.h LMMediaFormatPopupQt.h)
    if(EXISTS "${INCLUDE_DIR}/${header}")
        message(FATAL_ERROR "private header installed: ${header}")
    endif()
endforeach()

# The installed tool runs through its run path and reads the installed catalogue.
if(MODE STREQUAL "host")
    step("installed lmformat" ${RUN_ENV} "${PREFIX}/bin/lmformat" validate
         "${DATA_DIR}/catalogue/formats.json")
    message(STATUS "installed lmformat: ${step_output}")
endif()

if(MODE STREQUAL "headers")
    set(check_headers ON)
else()
    set(check_headers OFF)
endif()
step("configuring the consumer" ${CMAKE_COMMAND} -S "${CONSUMER_SOURCE_DIR}" -B "${CONSUMER_BUILD}"
    -G "${GENERATOR}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_PREFIX_PATH=${PREFIX}"
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF -DLMFP_CONSUMER_CHECK_HEADERS=${check_headers})
# The package must come from the prefix, not from the build tree.
file(STRINGS "${CONSUMER_BUILD}/CMakeCache.txt" package_dir REGEX "^LMMediaFormatPopup_DIR:")
string(REGEX REPLACE "^[^=]*=" "" package_dir "${package_dir}")
file(REAL_PATH "${package_dir}" package_dir)
file(REAL_PATH "${PACKAGE_DIR}" expected_dir)
if(NOT package_dir STREQUAL expected_dir)
    message(FATAL_ERROR "the consumer found the package in ${package_dir}, not in ${expected_dir}")
endif()
if(MODE STREQUAL "headers")
    step("compiling the installed headers" ${CMAKE_COMMAND} --build "${CONSUMER_BUILD}" -j2
         --target lmfp-consumer-headers)
    return()
endif()
step("building the consumer" ${CMAKE_COMMAND} --build "${CONSUMER_BUILD}" -j2
     --target lmfp-consumer)

set(consumer "${CONSUMER_BUILD}/lmfp-consumer")
# Every framework library the consumer loads is the installed one.
find_program(LDD ldd)
if(LDD)
    step("ldd" ${CMAKE_COMMAND} -E env --unset=LD_LIBRARY_PATH "${LDD}" "${consumer}")
    string(REGEX MATCHALL "libLM[A-Za-z]+\\.so[.0-9]* => [^ ]+" resolved "${step_output}")
    if(NOT resolved)
        message(FATAL_ERROR "the consumer loads no framework library:\n${step_output}")
    endif()
    foreach(line IN LISTS resolved)
        if(NOT line MATCHES " => ${PREFIX}/lib/")
            message(FATAL_ERROR "not from the prefix: ${line}")
        endif()
    endforeach()
endif()

step("running the consumer" ${RUN_ENV} "${consumer}" "${DATA_DIR}/catalogue/formats.json")
if(NOT step_output MATCHES "^chosen: [^\n]+ / [^\n]+\n$")
    message(FATAL_ERROR "unexpected output of the consumer:\n${step_output}")
endif()
message(STATUS "consumer: ${step_output}")

# The choice went into the host's own settings, the recent list first.
set(settings "${WORK_DIR}/config/Lumeran/lmfp-consumer.conf")
if(NOT EXISTS "${settings}")
    message(FATAL_ERROR "the consumer wrote no settings at ${settings}")
endif()
file(STRINGS "${settings}" recent REGEX "^recent_format_preset=.")
if(NOT recent)
    message(FATAL_ERROR "no recent_format_preset in ${settings}")
endif()
