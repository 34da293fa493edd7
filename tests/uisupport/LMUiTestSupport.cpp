// SPDX-License-Identifier: MIT
#include "LMUiTestSupport.h"

#include "ILMFmtPresetDataSource.h"
#include "LMDefaultCatalogue.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMSingleton_p.h"

#include <QApplication>
#include <QWidget>

namespace Lumeran::TestSupport {

void LoadDefaultCatalogueIntoSharedDataSource() {
    auto source = ILMFmtPresetDataSource::Shared();
    // Each test starts with a new shared data source (SetUp); it loads once. A
    // weak pointer, because a new source may well get the address of the old.
    static std::weak_ptr<ILMFmtPresetDataSource> loadedInto;
    if (loadedInto.lock() != source) {
        loadedInto = source;
        source->AsyncLoadExternalDataSource(LMDefaultCatalogue::Path(), {});
    }
    source->WaitForLoadingComplete();
}

void ClearSharedLists() {
    auto source = ILMFmtPresetDataSource::Shared();
    for (const auto& item : source->GetRecentList())
        source->RemoveRecentItem(item);
    source->SaveRecentList();
    auto custom = source->GetCustomList();
    while (custom && custom->ChildCount() > 0)
        custom->RemoveChildAt(0);
    source->SaveCustomList();
}

void UiTest::SetUp() {
    // Every case starts as in a process of its own: no windows, no catalogue and
    // lists read from this case's settings.
    LMSingletons::ResetForTesting();
    ClearSharedLists();
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageEnglish);
}

void UiTest::TearDown() {
    // Windows a test left open would receive the next test's events.
    for (QWidget* window : QApplication::topLevelWidgets())
        window->hide();
    QCoreApplication::processEvents();
    ClearSharedLists();
}

} // namespace Lumeran::TestSupport
