# SPDX-License-Identifier: MIT
# Shared settings for every target of the project, and how the four libraries
# are put together from the object libraries of their folders.
include(GenerateExportHeader)

# Warnings, strict Qt defines and, in CI, warnings as errors.
function(lmfp_configure_target target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
    if(LMFP_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
        QT_USE_QSTRINGBUILDER QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
endfunction()

# The export headers of the four libraries all live in one generated folder.
set(LMFP_EXPORT_HEADER_DIR ${PROJECT_BINARY_DIR}/exports)

# The code of one source folder, compiled once: into the library it belongs to,
# and into the test programs, benchmarks and fuzzers that link it directly, so
# that nothing has to be exported for them.
#   lmfp_add_objects(<target> LIBRARY <library> SOURCES ...
#                    [DEPENDS <object libraries it uses>...]
#                    [PUBLIC <other libraries>...] [PRIVATE <other libraries>...])
# DEPENDS names the object libraries of the folders this one includes; within a
# library they end up in the same binary, across libraries the library links the
# other library (see lmfp_add_library).
function(lmfp_add_objects target)
    cmake_parse_arguments(ARG "" "LIBRARY" "SOURCES;DEPENDS;PUBLIC;PRIVATE" ${ARGN})
    add_library(${target} OBJECT ${ARG_SOURCES})
    lmfp_configure_target(${target})
    set_target_properties(${target} PROPERTIES
        POSITION_INDEPENDENT_CODE ON
        LMFP_LIBRARY ${ARG_LIBRARY}
        LMFP_OBJECT_DEPENDS "${ARG_DEPENDS}")
    # Compiled for a shared library, the export macro of the library's export
    # header means "export"; CMake defines <library>_EXPORTS only for the
    # library's own sources, and these are compiled as another target's.
    target_compile_definitions(${target} PRIVATE
        $<$<STREQUAL:$<TARGET_PROPERTY:${ARG_LIBRARY},TYPE>,SHARED_LIBRARY>:${ARG_LIBRARY}_EXPORTS>)
    target_include_directories(${target} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR} ${LMFP_EXPORT_HEADER_DIR})
    # Object libraries that link each other share usage requirements, not objects.
    target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
    set_property(TARGET ${target} APPEND PROPERTY LMFP_PUBLIC_LIBS ${ARG_PUBLIC})
    set_property(TARGET ${target} APPEND PROPERTY LMFP_PRIVATE_LIBS ${ARG_PRIVATE})
endfunction()

# Every object library that <objects> need, themselves included, into <var>.
function(lmfp_object_closure var)
    set(result "")
    set(pending ${ARGN})
    while(pending)
        list(POP_FRONT pending object)
        if(object IN_LIST result)
            continue()
        endif()
        list(APPEND result ${object})
        get_target_property(depends ${object} LMFP_OBJECT_DEPENDS)
        if(depends)
            list(APPEND pending ${depends})
        endif()
    endwhile()
    set(${var} ${result} PARENT_SCOPE)
endfunction()

# Links a program with the objects of the given object libraries and of every
# one they depend on. CMake takes the objects of directly linked object libraries
# only, so the whole closure is linked directly. Such a program must not link the
# framework's libraries as well: it would hold every singleton twice.
#   lmfp_link_objects(<target> <object library>...)
function(lmfp_link_objects target)
    lmfp_object_closure(objects ${ARGN})
    target_link_libraries(${target} PRIVATE ${objects})
    # Code written for the installed package (the demo host's sources) names
    # public headers as <LMMediaFormatPopup/Header.h>; see LMFPInstall.cmake.
    target_include_directories(${target} PRIVATE ${PROJECT_BINARY_DIR}/include)
endfunction()

# One of the four framework libraries, made of the objects of its folders,
# exported as LMMediaFormatPopup::<target>, with its export header <target>Export.h
# (macro <TARGET>_EXPORT) and hidden symbols by default: only classes of
# installed headers carry the macro.
#   lmfp_add_library(<target> OBJECTS <object library>...)
function(lmfp_add_library target)
    cmake_parse_arguments(ARG "" "" "OBJECTS" ${ARGN})
    add_library(${target})
    add_library(LMMediaFormatPopup::${target} ALIAS ${target})
    string(TOUPPER ${target} upper)
    generate_export_header(${target}
        BASE_NAME ${target}
        EXPORT_MACRO_NAME ${upper}_EXPORT
        EXPORT_FILE_NAME ${LMFP_EXPORT_HEADER_DIR}/${target}Export.h)
    set(public_libs "")
    set(private_libs "")
    set(headers "")
    foreach(object IN LISTS ARG_OBJECTS)
        target_sources(${target} PRIVATE $<TARGET_OBJECTS:${object}>)
        add_dependencies(${target} ${object})
        get_target_property(dir ${object} SOURCE_DIR)
        target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${dir}>)
        # A folder of another library is reached through that library.
        get_target_property(depends ${object} LMFP_OBJECT_DEPENDS)
        foreach(depend IN LISTS depends)
            get_target_property(library ${depend} LMFP_LIBRARY)
            if(NOT library STREQUAL target)
                list(APPEND public_libs ${library})
            endif()
        endforeach()
        get_target_property(libs ${object} LMFP_PUBLIC_LIBS)
        if(libs)
            list(APPEND public_libs ${libs})
        endif()
        get_target_property(libs ${object} LMFP_PRIVATE_LIBS)
        if(libs)
            list(APPEND private_libs ${libs})
        endif()
        get_target_property(object_headers ${object} LMFP_PUBLIC_HEADERS)
        if(object_headers)
            list(APPEND headers ${object_headers})
        endif()
    endforeach()
    list(REMOVE_DUPLICATES public_libs)
    target_link_libraries(${target} PUBLIC ${public_libs} PRIVATE ${private_libs})
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${LMFP_EXPORT_HEADER_DIR}>
        $<INSTALL_INTERFACE:include/LMMediaFormatPopup>)
    set_target_properties(${target} PROPERTIES
        LINKER_LANGUAGE CXX
        AUTOMOC OFF
        AUTOUIC OFF
        AUTORCC OFF
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        LMFP_PUBLIC_HEADERS "${headers}"
        LMFP_EXPORT_HEADER ${LMFP_EXPORT_HEADER_DIR}/${target}Export.h)
    # Installed by cmake/LMFPInstall.cmake, which runs after every folder is known.
    set_property(GLOBAL APPEND PROPERTY LMFP_LIBRARIES ${target})
endfunction()

# The old per-folder names, LMMediaFormatPopup::<name>, each an interface target
# that links the library now holding that folder. Deprecated; kept for one release.
#   lmfp_add_compat_alias(<name> <library>)
function(lmfp_add_compat_alias name library)
    add_library(lmfp_compat_${name} INTERFACE)
    target_link_libraries(lmfp_compat_${name} INTERFACE ${library})
    set_target_properties(lmfp_compat_${name} PROPERTIES EXPORT_NAME ${name})
    add_library(LMMediaFormatPopup::${name} ALIAS lmfp_compat_${name})
    set_property(GLOBAL APPEND PROPERTY LMFP_COMPAT_ALIASES lmfp_compat_${name})
endfunction()

# The headers of a folder that a host includes; they are installed flat into
# include/LMMediaFormatPopup/ beside the library's export header. Everything else
# in the folder stays private, so these may include only each other, other
# libraries' public headers, Qt and the standard library.
#   lmfp_install_headers(<object library> <header relative to this folder or absolute>...)
function(lmfp_install_headers target)
    foreach(header IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH header BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
        set_property(TARGET ${target} APPEND PROPERTY LMFP_PUBLIC_HEADERS ${header})
    endforeach()
endfunction()

# A GoogleTest program registered with CTest, one test per case, run offscreen.
# Programs whose label is in LMFP_REAL_DISPLAY_LABELS are registered a second
# time, each case as "xcb.<case>" with the label xcb alone (the discovery of
# CMake 3.25 splits a list of labels into separate properties), started by
# scripts/run-on-x-server.sh on an X server of its own.
#   lmfp_add_test(<target> LABEL <label> SOURCES ... OBJECTS ... LIBS ...)
# OBJECTS are object libraries (the framework's folders, the test support), linked
# with everything they need through lmfp_link_objects; LIBS are other libraries.
# Widget tests pass GUI to get a QApplication main instead of a QCoreApplication one.
function(lmfp_add_test target)
    cmake_parse_arguments(ARG "GUI" "LABEL" "SOURCES;OBJECTS;LIBS" ${ARGN})
    add_executable(${target} ${ARG_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/LMTestMain.cpp)
    lmfp_configure_target(${target})
    if(ARG_GUI)
        target_compile_definitions(${target} PRIVATE LMFP_TEST_GUI)
        target_link_libraries(${target} PRIVATE Qt6::Widgets Qt6::Test)
    endif()
    lmfp_link_objects(${target} ${ARG_OBJECTS} lmfp_testsupport)
    target_link_libraries(${target} PRIVATE ${ARG_LIBS} GTest::gtest GTest::gmock)
    include(GoogleTest)
    gtest_discover_tests(${target}
        PROPERTIES LABELS "${ARG_LABEL}" ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 120
        DISCOVERY_TIMEOUT 60)
    if(LMFP_REAL_DISPLAY_TESTS AND ARG_LABEL IN_LIST LMFP_REAL_DISPLAY_LABELS)
        # gtest_discover_tests starts the cases through the target's emulator,
        # read when it is called: set for this registration only.
        set_property(TARGET ${target} PROPERTY CROSSCOMPILING_EMULATOR
            ${PROJECT_SOURCE_DIR}/scripts/run-on-x-server.sh)
        gtest_discover_tests(${target} TEST_PREFIX xcb.
            PROPERTIES LABELS xcb TIMEOUT 120
            DISCOVERY_TIMEOUT 60)
        set_property(TARGET ${target} PROPERTY CROSSCOMPILING_EMULATOR "")
    endif()
endfunction()
