// SPDX-License-Identifier: MIT
#include "LMUiTestSupport.h"

#include "ILMFmtPresetDataSource.h"
#include "LMDefaultCatalogue.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMSingleton_p.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QTest>
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

QStringList EveryLanguage() {
    QStringList languages = LMFormatInternationalizationMgr::sharedObject()->supportLanguages();
    languages.append(LMFormatLanguageChinese);
    return languages;
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

void ParkPointer() {
    // The bottom right corner of the screen: the tests' windows sit at its top
    // left. On a real display the pointer stays where the last case left it,
    // over a cell it would hover or a window it would enter.
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QPoint corner = screen->geometry().bottomRight();
    QCursor::setPos(corner);
    // On X the move goes through the server: wait until the pointer is there.
    if (!QTest::qWaitFor([corner] { return QCursor::pos() == corner; }, 1000))
        ADD_FAILURE() << "the pointer did not move to the corner of the screen";
}

void UiTest::SetUp() {
    // Every case starts as in a process of its own: no windows, no catalogue,
    // lists read from this case's settings and the pointer out of the way.
    ParkPointer();
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
