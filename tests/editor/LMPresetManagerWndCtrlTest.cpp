// SPDX-License-Identifier: MIT
#include "LMPresetManagerWndCtrl.h"
#include "ILMFmtPresetDataSource.h"
#include "LMEditorTestSupport.h"
#include "LMFmtPresetDataSource.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMUiTestSupport.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

using namespace Lumeran;
using Lumeran::TestSupport::Localized;

namespace {

std::vector<std::string> Listed() {
    std::vector<std::string> names;
    const auto root = std::as_const(*ILMFmtPresetDataSource::Shared()).GetCustomList();
    for (int i = 0; i < root->ChildCount(); ++i) {
        const auto group = root->ChildAt(i);
        for (int j = 0; j < group->FormatPresetCount(); ++j)
            names.push_back(group->Title() + "/" + group->FormatPresetAt(j)->Title());
    }
    return names;
}

void AddCustom(const std::string& group, const std::string& format, const std::string& title) {
    ILMFmtPresetDataSource::Shared()->AddCustomPreset(
        ILMFormatPreset::MallocFormatPreset(format, title),
        ILMFormatNode::MallocFormatNode(group, group + " file format", 0));
    ILMFmtPresetDataSource::Shared()->SaveCustomList();
}

} // namespace

class LMPresetManagerWndCtrlTest : public TestSupport::UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        AddCustom("MP4", "mp4", "One");
        AddCustom("MP4", "mp4", "Two");
        AddCustom("MKV", "mkv", "Three");
        window = std::make_unique<LMPresetManagerWndCtrl>();
        window->setFileChooser([this](QWidget*, bool save) {
            ++chooserCalls;
            return save ? exportPath : importPath;
        });
        window->showManager();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    void TearDown() override {
        window.reset();
        UiTest::TearDown();
    }

    QTreeWidget* tree() const {
        return window->findChild<QTreeWidget*>(QStringLiteral("treePresets"));
    }
    QPushButton* button(const char* name) const {
        return window->findChild<QPushButton*>(QString::fromLatin1(name));
    }
    void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    QTreeWidgetItem* item(const QString& group, const QString& title) const {
        for (QTreeWidgetItem* found :
             tree()->findItems(title, Qt::MatchExactly | Qt::MatchRecursive)) {
            if (found->parent() && found->parent()->text(0) == group)
                return found;
        }
        return nullptr;
    }
    // Clicks the row of the preset, as a user picks it.
    void pick(const QString& group, const QString& title) {
        QTreeWidgetItem* row = item(group, title);
        ASSERT_TRUE(row) << title.toStdString();
        const QRect rect = tree()->visualItemRect(row);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, rect.center());
        ASSERT_EQ(tree()->currentItem(), row);
    }
    QString selectedTitle() const {
        return tree()->currentItem() ? tree()->currentItem()->text(0) : QString();
    }
    // Types into the field the list opened for a rename, then presses Return.
    void typeName(const QString& name) {
        auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_TRUE(field) << "no name field has the focus";
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, name);
        QTest::keyClick(field, Qt::Key_Return);
        // The list takes the typed name from its queue, as it does for a user.
        QApplication::processEvents();
    }

    std::unique_ptr<LMPresetManagerWndCtrl> window;
    QTemporaryDir dir;
    QString exportPath = dir.filePath(QStringLiteral("out.json"));
    QString importPath;
    int chooserCalls = 0;
};

TEST_F(LMPresetManagerWndCtrlTest, TheListShowsTheCustomPresetsByFormat) {
    ASSERT_EQ(tree()->topLevelItemCount(), 2);
    EXPECT_EQ(tree()->topLevelItem(0)->text(0), QStringLiteral("MP4"));
    EXPECT_EQ(tree()->topLevelItem(0)->childCount(), 2);
    EXPECT_EQ(tree()->topLevelItem(1)->text(0), QStringLiteral("MKV"));
    EXPECT_EQ(tree()->topLevelItem(1)->child(0)->text(0), QStringLiteral("Three"));
    // The first preset is selected, so the keyboard starts on it.
    EXPECT_EQ(selectedTitle(), QStringLiteral("One"));
    EXPECT_FALSE(button("btnMoveUp")->isEnabled());
    EXPECT_TRUE(button("btnMoveDown")->isEnabled());
}

TEST_F(LMPresetManagerWndCtrlTest, RenameTakesTheTypedNameAndSavesIt) {
    pick(QStringLiteral("MP4"), QStringLiteral("Two"));
    click("btnRename");
    typeName(QStringLiteral("Phone"));
    EXPECT_EQ(Listed(), (std::vector<std::string>{"MP4/One", "MP4/Phone", "MKV/Three"}));
    EXPECT_TRUE(window->statusText().isEmpty());
    // Saved: a new start of the store reads the new name.
    const LMFmtPresetDataSource restarted;
    const auto group = restarted.GetCustomList()->FindChild("MP4");
    ASSERT_TRUE(group);
    EXPECT_TRUE(group->FindFormatPreset("Phone"));
    EXPECT_FALSE(group->FindFormatPreset("Two"));
}

TEST_F(LMPresetManagerWndCtrlTest, RenameToANameTheFormatHasIsRefusedAndSaysWhy) {
    pick(QStringLiteral("MP4"), QStringLiteral("One"));
    QTest::keyClick(tree(), Qt::Key_F2);
    typeName(QStringLiteral("Two"));
    EXPECT_EQ(Listed(), (std::vector<std::string>{"MP4/One", "MP4/Two", "MKV/Three"}));
    EXPECT_EQ(item(QStringLiteral("MP4"), QStringLiteral("One"))->text(0), QStringLiteral("One"));
    EXPECT_EQ(window->statusText(),
              Localized("Another preset of this format already has this name."));
    // Another format may have the name.
    pick(QStringLiteral("MKV"), QStringLiteral("Three"));
    QTest::keyClick(tree(), Qt::Key_F2);
    typeName(QStringLiteral("Two"));
    EXPECT_EQ(Listed(), (std::vector<std::string>{"MP4/One", "MP4/Two", "MKV/Two"}));
}

TEST_F(LMPresetManagerWndCtrlTest, DuplicateMoveAndRemoveChangeTheListAndFollowTheSelection) {
    pick(QStringLiteral("MP4"), QStringLiteral("One"));
    click("btnDuplicate");
    EXPECT_EQ(Listed(),
              (std::vector<std::string>{"MP4/One", "MP4/One (2)", "MP4/Two", "MKV/Three"}));
    EXPECT_EQ(selectedTitle(), QStringLiteral("One (2)"));
    click("btnMoveDown");
    EXPECT_EQ(Listed(),
              (std::vector<std::string>{"MP4/One", "MP4/Two", "MP4/One (2)", "MKV/Three"}));
    EXPECT_EQ(selectedTitle(), QStringLiteral("One (2)"));
    EXPECT_FALSE(button("btnMoveDown")->isEnabled());
    click("btnMoveUp");
    click("btnMoveUp");
    EXPECT_EQ(Listed(),
              (std::vector<std::string>{"MP4/One (2)", "MP4/One", "MP4/Two", "MKV/Three"}));
    EXPECT_FALSE(button("btnMoveUp")->isEnabled());
    click("btnRemove");
    EXPECT_EQ(Listed(), (std::vector<std::string>{"MP4/One", "MP4/Two", "MKV/Three"}));
    EXPECT_EQ(selectedTitle(), QStringLiteral("One"));
}

TEST_F(LMPresetManagerWndCtrlTest, TheKeyboardAloneReachesAndPressesEveryButton) {
    // A preset between two others, so that both moves are open to it.
    AddCustom("MP4", "mp4", "Last");
    window->showManager();
    QTest::keyClick(tree(), Qt::Key_Down); // One -> Two
    EXPECT_EQ(selectedTitle(), QStringLiteral("Two"));
    const char* order[] = {"btnRename", "btnDuplicate", "btnMoveUp", "btnMoveDown",
                           "btnRemove", "btnImport",    "btnExport"};
    for (const char* name : order) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), button(name)) << name;
    }
    // Back to Move Up, and Space presses it.
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    ASSERT_EQ(QApplication::focusWidget(), button("btnMoveUp"));
    QTest::keyClick(button("btnMoveUp"), Qt::Key_Space);
    EXPECT_EQ(Listed(), (std::vector<std::string>{"MP4/Two", "MP4/One", "MP4/Last", "MKV/Three"}));
}

TEST_F(LMPresetManagerWndCtrlTest, ExportThenImportBringsRemovedPresetsBack) {
    click("btnExport");
    EXPECT_EQ(chooserCalls, 1);
    EXPECT_EQ(window->statusText(), Localized("Exported: %1.").arg(3));
    ASSERT_TRUE(QFile::exists(exportPath));
    pick(QStringLiteral("MKV"), QStringLiteral("Three"));
    click("btnRemove");
    EXPECT_EQ(Listed(), (std::vector<std::string>{"MP4/One", "MP4/Two"}));
    importPath = exportPath;
    // Names already in use are skipped: only the removed preset comes back.
    auto* clash = window->findChild<QComboBox*>(QStringLiteral("cmbClash"));
    clash->setFocus();
    QTest::keyClick(clash, Qt::Key_Down);
    ASSERT_EQ(clash->currentText(), Localized("Skip"));
    click("btnImport");
    EXPECT_EQ(Listed(), (std::vector<std::string>{"MP4/One", "MP4/Two", "MKV/Three"}));
    EXPECT_EQ(window->statusText(),
              Localized("Imported: %1. Replaced: %2. Skipped: %3.").arg(1).arg(0).arg(2));
    ASSERT_TRUE(item(QStringLiteral("MKV"), QStringLiteral("Three")));
}

TEST_F(LMPresetManagerWndCtrlTest, ABadFileSaysWhyAndChangesNothing) {
    importPath = dir.filePath(QStringLiteral("bad.json"));
    QFile bad(importPath);
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("{\"format\": \"lmformat-presets\", \"version\": 1, \"presets\": [");
    bad.close();
    click("btnImport");
    EXPECT_EQ(Listed(), (std::vector<std::string>{"MP4/One", "MP4/Two", "MKV/Three"}));
    EXPECT_TRUE(window->statusText().startsWith(
        Localized("The file could not be imported: %1").arg(QString())));
    EXPECT_TRUE(window->statusText().contains(QStringLiteral("not valid JSON")));
    // A cancelled file dialog does nothing at all.
    importPath.clear();
    click("btnImport");
    EXPECT_EQ(Listed(), (std::vector<std::string>{"MP4/One", "MP4/Two", "MKV/Three"}));
}

TEST_F(LMPresetManagerWndCtrlTest, EveryControlIsNamedInEveryLanguage) {
    auto* mgr = LMFormatInternationalizationMgr::sharedObject();
    const QString englishTitle = window->windowTitle();
    for (const QString& language : TestSupport::EveryLanguage()) {
        mgr->setLanguage(language);
        EXPECT_EQ(window->windowTitle(), Localized("Manage Presets")) << language.toStdString();
        if (mgr->languageCode() != QStringLiteral("en")) {
            EXPECT_NE(window->windowTitle(), englishTitle) << language.toStdString();
        }
        EXPECT_FALSE(tree()->accessibleName().isEmpty());
        for (QPushButton* each : window->findChildren<QPushButton*>()) {
            EXPECT_FALSE(each->text().isEmpty()) << language.toStdString();
            if (each->objectName() != QStringLiteral("btnClose")) {
                EXPECT_EQ(each->accessibleName(), each->text()) << language.toStdString();
            }
        }
        auto* clash = window->findChild<QComboBox*>(QStringLiteral("cmbClash"));
        EXPECT_EQ(clash->count(), 3);
        EXPECT_EQ(clash->itemText(2), Localized("Replace"));
        EXPECT_FALSE(clash->accessibleName().isEmpty());
    }
}
