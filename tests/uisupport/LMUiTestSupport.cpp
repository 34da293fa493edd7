#include "LMUiTestSupport.h"

#include "ILMFmtPresetDataSource.h"
#include "LMDefaultCatalogue.h"
#include "LMFormatInternationalizationMgr.h"

#include <QApplication>
#include <QWidget>

namespace Lumeran::TestSupport {

void LoadDefaultCatalogueIntoSharedDataSource() {
    static bool loaded = false;
    auto source = ILMFmtPresetDataSource::Shared();
    if (!loaded) {
        loaded = true;
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
