# SPDX-License-Identifier: MIT
# What `cmake --install` gives a host: the four libraries, their public headers
# (flat, in include/LMMediaFormatPopup/), the compiled string tables, the default
# catalogue as files, lmformat, and a CMake package so that
#
#     find_package(LMMediaFormatPopup REQUIRED)
#     target_link_libraries(app PRIVATE LMMediaFormatPopup::LMMediaFormatPopup)
#
# is all a host writes. Included at the end of the top-level CMakeLists.txt, when
# every library of this build is known.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(LMFP_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/LMMediaFormatPopup)
set(LMFP_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/LMMediaFormatPopup)
set(LMFP_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/LMMediaFormatPopup)

# Installed binaries find the libraries beside them (libraries) or in the
# prefix's library folder (programs), wherever the prefix is moved to. The
# variable serves targets made after this point; the existing ones get the
# property below.
file(RELATIVE_PATH lmfp_bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN/${lmfp_bin_to_lib}")

get_property(lmfp_libraries GLOBAL PROPERTY LMFP_LIBRARIES)
set(lmfp_public_headers "")
foreach(lib IN LISTS lmfp_libraries)
    set_target_properties(${lib} PROPERTIES INSTALL_RPATH "$ORIGIN")
    get_target_property(headers ${lib} LMFP_PUBLIC_HEADERS)
    get_target_property(export_header ${lib} LMFP_EXPORT_HEADER)
    if(headers)
        list(APPEND lmfp_public_headers ${headers})
    endif()
    # Every public header includes its library's export header.
    list(APPEND lmfp_public_headers ${export_header})
endforeach()

# In the build tree too, <LMMediaFormatPopup/Header.h> names a public header, so
# code written for the installed package (the examples) builds unchanged here.
set(lmfp_forward_dir ${PROJECT_BINARY_DIR}/include)
foreach(header IN LISTS lmfp_public_headers)
    cmake_path(GET header FILENAME name)
    file(CONFIGURE OUTPUT ${lmfp_forward_dir}/LMMediaFormatPopup/${name}
        CONTENT "#include \"${header}\"\n")
endforeach()
foreach(lib IN LISTS lmfp_libraries)
    target_include_directories(${lib} INTERFACE $<BUILD_INTERFACE:${lmfp_forward_dir}>)
endforeach()

# The deprecated per-folder names go into the package too (interface targets).
get_property(lmfp_compat_aliases GLOBAL PROPERTY LMFP_COMPAT_ALIASES)

# INCLUDES DESTINATION adds include/ to every exported target, so that
# <LMMediaFormatPopup/ILMMediaFormatPopup.h> works beside <ILMMediaFormatPopup.h>.
install(TARGETS ${lmfp_libraries} ${lmfp_compat_aliases}
    EXPORT LMMediaFormatPopupTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${lmfp_public_headers} DESTINATION ${LMFP_INSTALL_INCLUDEDIR})

if(TARGET lmformat)
    set_target_properties(lmformat PROPERTIES INSTALL_RPATH "$ORIGIN/${lmfp_bin_to_lib}")
    install(TARGETS lmformat RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

# The tables are embedded in LMCore; the files are for hosts that ship or inspect
# them: translations/<code>.lproj/Localizable.qm.
if(TARGET lmfp_localization_obj)
    get_target_property(lmfp_l10n_dir lmfp_localization_obj BINARY_DIR)
    install(DIRECTORY ${lmfp_l10n_dir}/lproj/ DESTINATION ${LMFP_INSTALL_DATADIR}/translations
        FILES_MATCHING PATTERN "*.qm")
endif()

# The default catalogue is embedded in LMMediaFormat as well; as files it is a
# starting point for a host's own catalogue (formats.json, formats.icfg, artwork/).
install(DIRECTORY ${PROJECT_SOURCE_DIR}/mediaformat/catalogue/
    DESTINATION ${LMFP_INSTALL_DATADIR}/catalogue)

install(EXPORT LMMediaFormatPopupTargets
    NAMESPACE LMMediaFormatPopup::
    DESTINATION ${LMFP_INSTALL_CMAKEDIR})
set(LMFP_CATALOGUE_FILE ${LMFP_INSTALL_DATADIR}/catalogue/formats.json)
set(LMFP_TRANSLATIONS_DIR ${LMFP_INSTALL_DATADIR}/translations)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/LMMediaFormatPopupConfig.cmake.in
    ${PROJECT_BINARY_DIR}/package/LMMediaFormatPopupConfig.cmake
    INSTALL_DESTINATION ${LMFP_INSTALL_CMAKEDIR}
    PATH_VARS LMFP_INSTALL_INCLUDEDIR LMFP_CATALOGUE_FILE LMFP_TRANSLATIONS_DIR)
# The same promise as the libraries' sonames, which carry the major version.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/LMMediaFormatPopupConfigVersion.cmake
    VERSION ${PROJECT_VERSION}
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/package/LMMediaFormatPopupConfig.cmake
    ${PROJECT_BINARY_DIR}/package/LMMediaFormatPopupConfigVersion.cmake
    DESTINATION ${LMFP_INSTALL_CMAKEDIR})

# The program of docs/integration.md, built here so that the guide's code compiles.
if(TARGET LMMediaFormatPopup AND EXISTS ${PROJECT_SOURCE_DIR}/examples/minimal-host/CMakeLists.txt)
    add_subdirectory(${PROJECT_SOURCE_DIR}/examples/minimal-host
        ${PROJECT_BINARY_DIR}/examples/minimal-host)
endif()
