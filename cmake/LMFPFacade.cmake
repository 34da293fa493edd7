# The facade library: ILMMediaFormatPopup and its Qt implementation. Its sources
# sit in core/ beside the data source, but it links the widget libraries, so it is
# its own target; core itself stays free of widgets.
lmfp_add_library(LMMediaFormatPopup ALIAS LMMediaFormatPopup EXPORT_BASE LMMediaFormatPopup SOURCES
    ${PROJECT_SOURCE_DIR}/core/ILMMediaFormatPopup.cpp
    ${PROJECT_SOURCE_DIR}/core/ILMMediaFormatPopup.h
    ${PROJECT_SOURCE_DIR}/core/LMMediaFormatPopupQt.cpp
    ${PROJECT_SOURCE_DIR}/core/LMMediaFormatPopupQt.h)
target_include_directories(LMMediaFormatPopup PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/core>)
target_link_libraries(LMMediaFormatPopup
    PUBLIC LMMediaFormatPopup::Core LMMediaFormatPopup::Localization
           LMMediaFormatPopup::Selection LMMediaFormatPopup::Editor
           # Every installed header, the artwork adapter included, is reachable
           # through this one target.
           LMMediaFormatPopup::MediaFormatGui)
lmfp_install_headers(LMMediaFormatPopup ${PROJECT_SOURCE_DIR}/core/ILMMediaFormatPopup.h)
