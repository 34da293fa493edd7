// SPDX-License-Identifier: MIT
#pragma once

#include "LMTestEnvironment.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

namespace Lumeran::TestSupport {

// Loads the default catalogue into the shared data source and waits for it; only
// the first call in a process loads, later calls return at once.
void LoadDefaultCatalogueIntoSharedDataSource();

// Every language the framework has texts for: the seven of the language menu
// and Chinese, which a host may set.
QStringList EveryLanguage();

// Empties the shared data source's recent and custom lists and saves them, so a
// test that runs after another in the same process starts from nothing.
void ClearSharedLists();

// Moves the pointer to the bottom right corner of the screen, away from every
// window a test shows, and waits until it is there.
void ParkPointer();

// Fixture of the widget tests: a settings file of its own, empty recent and
// custom lists, the English language, the pointer parked (ParkPointer), and
// nothing left over for the next test.
class UiTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    std::unique_ptr<IsolatedSettings> settings = std::make_unique<IsolatedSettings>();
};

} // namespace Lumeran::TestSupport
