# Shared settings for every target of the project.
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

# A framework library: one per source folder, exported as LMMediaFormatPopup::<alias>,
# with a generated export header <base>Export.h and hidden symbols by default.
#   lmfp_add_library(<target> ALIAS <alias> EXPORT_BASE <base> SOURCES ...)
function(lmfp_add_library target)
    cmake_parse_arguments(ARG "" "ALIAS;EXPORT_BASE" "SOURCES" ${ARGN})
    add_library(${target} ${ARG_SOURCES})
    add_library(LMMediaFormatPopup::${ARG_ALIAS} ALIAS ${target})
    lmfp_configure_target(${target})
    string(TOUPPER ${ARG_EXPORT_BASE} upper)
    generate_export_header(${target}
        BASE_NAME ${ARG_EXPORT_BASE}
        EXPORT_MACRO_NAME ${upper}_EXPORT
        EXPORT_FILE_NAME ${CMAKE_CURRENT_BINARY_DIR}/${ARG_EXPORT_BASE}Export.h)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${CMAKE_CURRENT_BINARY_DIR}>
        $<INSTALL_INTERFACE:include/LMMediaFormatPopup>)
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        EXPORT_NAME ${ARG_ALIAS}
        LMFP_EXPORT_HEADER ${CMAKE_CURRENT_BINARY_DIR}/${ARG_EXPORT_BASE}Export.h)
    # Installed by cmake/LMFPInstall.cmake, which runs after every folder is known.
    set_property(GLOBAL APPEND PROPERTY LMFP_LIBRARIES ${target})
endfunction()

# The headers of a library that a host includes; they are installed flat into
# include/LMMediaFormatPopup/ beside the library's export header. Everything else
# in the folder stays private, so these may include only each other, other
# libraries' public headers, Qt and the standard library.
#   lmfp_install_headers(<target> <header relative to this folder or absolute>...)
function(lmfp_install_headers target)
    foreach(header IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH header BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
        set_property(TARGET ${target} APPEND PROPERTY LMFP_PUBLIC_HEADERS ${header})
    endforeach()
endfunction()

# A GoogleTest program registered with CTest, one test per case, run offscreen.
#   lmfp_add_test(<target> LABEL <label> SOURCES ... LIBS ...)
# Widget tests pass GUI to get a QApplication main instead of a QCoreApplication one.
function(lmfp_add_test target)
    cmake_parse_arguments(ARG "GUI" "LABEL" "SOURCES;LIBS" ${ARGN})
    add_executable(${target} ${ARG_SOURCES} ${PROJECT_SOURCE_DIR}/tests/support/LMTestMain.cpp)
    lmfp_configure_target(${target})
    if(ARG_GUI)
        target_compile_definitions(${target} PRIVATE LMFP_TEST_GUI)
        target_link_libraries(${target} PRIVATE Qt6::Widgets Qt6::Test)
    endif()
    target_link_libraries(${target} PRIVATE ${ARG_LIBS} lmfp_testsupport GTest::gtest GTest::gmock)
    include(GoogleTest)
    gtest_discover_tests(${target}
        PROPERTIES LABELS "${ARG_LABEL}" ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 120
        DISCOVERY_TIMEOUT 60)
endfunction()
