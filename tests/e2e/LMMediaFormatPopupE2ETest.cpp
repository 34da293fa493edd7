// SPDX-License-Identifier: MIT
// The framework as a host and its user meet it: every action goes through the
// facade or through the windows on screen (tabs, rows, edit buttons, the
// editor's boxes and buttons), and what is checked is what the user sees and
// what the host's callback receives.

#include "ILMFmtPresetDataSource.h"
#include "ILMMediaFormatPopup.h"
#include "LMDefaultCatalogue.h"
#include "LME2EUser.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMUiTestSupport.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

using namespace Lumeran;

namespace {

const QString kEditorName = QStringLiteral("LMFormatEditingWndCtrl");
// Recent, the default catalogue's four categories, Custom.
constexpr int kDefaultTabCount = 6;

QString Localized(const QString& key) {
    return LMFormatInternationalizationMgr::sharedObject()->stringForKey(key);
}

QString Localized(const std::string& key) {
    return Localized(QString::fromStdString(key));
}

// What the host's callback received, one entry per call. Shared with the
// callback, which the popup keeps after the test.
struct Completions {
    struct Call {
        std::shared_ptr<const ILMFormatPreset> preset;
        std::shared_ptr<const ILMFormatNode> node;
    };
    std::vector<Call> calls;
};

bool SetupCatalogue(const std::string& path) {
    auto popup = ILMMediaFormatPopup::Shared();
    popup->SetupExternalFormatData(path);
    popup->WaitForFormatDataLoadingComplete();
    return true;
}

// Pops the selection up through the facade as a host's format button would and
// waits for its tabs; nullptr when it did not show them.
QWidget* OpenPopup(const std::shared_ptr<Completions>& completions, int tabs = kDefaultTabCount) {
    ILMMediaFormatPopup::Shared()->PopupSelection(
        ILMMediaFormatPopup::Rect{100.0f, 50.0f, 100.0f, 20.0f},
        [completions](auto preset, auto node) {
            completions->calls.push_back({preset, node});
        });
    QWidget* popup = E2E::VisiblePopup();
    return popup && E2E::WaitForTabCount(popup, tabs) ? popup : nullptr;
}

// Opens the popup on the first category's tab, wherever it was left.
QWidget* OpenOnFirstCategory(const std::shared_ptr<Completions>& completions) {
    QWidget* popup = OpenPopup(completions);
    return popup && E2E::ClickTab(popup, 1) ? popup : nullptr;
}

// In the editor: picks another resolution and clicks Save.
struct ResolutionChange {
    QString before;
    QString chosen;
};

ResolutionChange SaveWithAnotherResolution(QDialog* editor) {
    ResolutionChange change;
    QComboBox* resolution = E2E::Box(editor, QStringLiteral("cmbResolution"));
    if (!resolution || !resolution->isEnabled() || resolution->count() < 2) {
        ADD_FAILURE() << "the resolution box offers no choice";
        return change;
    }
    change.before = resolution->currentText();
    E2E::ChooseAnotherItem(resolution);
    change.chosen = resolution->currentText();
    EXPECT_TRUE(E2E::ClickButton(editor, QStringLiteral("btnSave")));
    return change;
}

// Runs body inside the editor's modal loop as soon as an action of the test
// opens the editor (the pointer's moves before a click may run events, so the
// body waits for the editor rather than for the next turn of the loop). A body
// that fails before closing the editor must not hang the test: whatever is still
// open afterwards is closed with Escape. Destroyed, it no longer waits.
class EditorSession {
public:
    explicit EditorSession(std::function<void(QDialog*)> body) : m_body(std::move(body)) {
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Poll(); });
        m_deadline.start();
        m_timer.start();
    }

    // Whether the editor appeared and the body ran.
    bool Ran() const { return m_ran; }

private:
    void Poll() {
        QDialog* editor = E2E::VisibleDialog(kEditorName);
        if (!editor) {
            if (m_deadline.hasExpired(10000))
                m_timer.stop();
            return;
        }
        m_timer.stop();
        m_ran = true;
        m_body(editor);
        if (QDialog* prompt = E2E::VisibleNamePrompt())
            QTest::keyClick(prompt, Qt::Key_Escape);
        if (QDialog* still = E2E::VisibleDialog(kEditorName))
            QTest::keyClick(still, Qt::Key_Escape);
    }

    std::function<void(QDialog*)> m_body;
    QTimer m_timer;
    QElapsedTimer m_deadline;
    bool m_ran = false;
};

// Runs the second host process over a settings file and returns the lines it
// printed.
QStringList RunHost(const std::string& settingsPath, const QString& command) {
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    host.setProcessEnvironment(environment);
    host.start(QString::fromUtf8(LMFP_E2E_HOST), {QString::fromStdString(settingsPath), command});
    if (!host.waitForFinished(20000)) {
        ADD_FAILURE() << "the second host did not finish";
        host.kill();
        host.waitForFinished();
        return {};
    }
    EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(host.exitCode(), 0) << host.readAllStandardError().toStdString();
    return QString::fromUtf8(host.readAllStandardOutput())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

// The texts of the host's lines of one kind ("row: x" gives x for "row").
QStringList LinesOf(const QStringList& lines, const QString& kind) {
    const QString prefix = kind + QStringLiteral(": ");
    QStringList texts;
    for (const QString& line : lines) {
        if (line.startsWith(prefix))
            texts.append(line.mid(prefix.size()));
    }
    return texts;
}

std::shared_ptr<ILMFormatNode> FirstCategory() {
    auto root = ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets();
    return root && root->ChildCount() > 0 ? root->ChildAt(0) : nullptr;
}

// The languages besides English, as a host passes them.
const QStringList kOtherLanguages{LMFormatLanguageJapanese,  LMFormatLanguageChinese,
                                  LMFormatLanguageFrench,    LMFormatLanguageGerman,
                                  LMFormatLanguageItalian,   LMFormatLanguageSpanish,
                                  LMFormatLanguagePortuguese};

// Keys that every table translates: each language must show its own text there.
const QStringList kTranslatedEverywhere{
    QStringLiteral("Recent"),      QStringLiteral("Custom"),
    QStringLiteral("Device"),      QStringLiteral("Web Video"),
    QStringLiteral("Resolution"),  QStringLiteral("FrameRate"),
    QStringLiteral("Quality"),     QStringLiteral("Channel"),
    QStringLiteral("Sample Rate"), QStringLiteral("Reset"),
    QStringLiteral("Save"),        QStringLiteral("Save as New Preset")};

// Switches through every other language and back to English, checking each
// time that what shown() reads off the screen is the translation of its key,
// and differs from the English text where every table translates the key.
void ExpectShownInEveryLanguage(const QStringList& keys,
                                const std::function<QStringList()>& shown) {
    auto* mgr = LMFormatInternationalizationMgr::sharedObject();
    const QStringList english = shown();
    ASSERT_EQ(english.size(), keys.size());
    for (qsizetype i = 0; i < keys.size(); ++i)
        EXPECT_EQ(english.at(i), mgr->stringForKey(keys.at(i)));
    for (const QString& language : kOtherLanguages) {
        mgr->setLanguage(language);
        const QStringList texts = shown();
        ASSERT_EQ(texts.size(), keys.size()) << language.toStdString();
        for (qsizetype i = 0; i < keys.size(); ++i) {
            EXPECT_EQ(texts.at(i), mgr->stringForKey(keys.at(i))) << language.toStdString();
            if (kTranslatedEverywhere.contains(keys.at(i))) {
                EXPECT_NE(texts.at(i), english.at(i)) << language.toStdString();
            }
        }
    }
    mgr->setLanguage(LMFormatLanguageEnglish);
}

class LMMediaFormatPopupE2ETest : public TestSupport::UiTest {
protected:
    void TearDown() override {
        // A popup left open would report its dismissal during the next test.
        if (QWidget* popup = E2E::VisiblePopup())
            QTest::keyClick(popup, Qt::Key_Escape);
        UiTest::TearDown();
    }
};

} // namespace

TEST_F(LMMediaFormatPopupE2ETest, AChoiceReachesTheHostOnceAndHeadsRecentInTheNextProcess) {
    ASSERT_TRUE(SetupCatalogue(LMDefaultCatalogue::Path()));
    auto completions = std::make_shared<Completions>();
    QWidget* popup = OpenPopup(completions);
    ASSERT_NE(popup, nullptr);

    // Fresh settings: nothing recent, so the popup opens on the first category.
    ASSERT_NE(FirstCategory(), nullptr);
    EXPECT_EQ(E2E::SelectedTab(popup), 1);
    EXPECT_EQ(E2E::TabTitles(popup).value(1), Localized(FirstCategory()->Title()));
    const QStringList nodes = E2E::SelectedRowTexts(E2E::NodeList(popup));
    ASSERT_EQ(nodes.size(), 1);
    QAbstractItemView* presets = E2E::PresetList(popup);
    const QStringList rows = E2E::RowTexts(presets);
    ASSERT_GT(rows.size(), 1);

    E2E::ClickRow(presets, 1);
    EXPECT_FALSE(popup->isVisible());
    ASSERT_EQ(completions->calls.size(), 1u);
    const auto& [preset, node] = completions->calls.front();
    ASSERT_NE(preset, nullptr);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(Localized(preset->Title()), rows.at(1));
    EXPECT_EQ(Localized(node->Title()), nodes.first());
    EXPECT_NE(node->FindFormatPreset(preset->Title()), nullptr);

    // Here, the next showing keeps the tab it had; its Recent tab has the
    // choice on top.
    auto again = std::make_shared<Completions>();
    popup = OpenPopup(again);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(E2E::SelectedTab(popup), 1);
    ASSERT_TRUE(E2E::ClickTab(popup, 0));
    const QStringList recent = E2E::RowTexts(E2E::PresetList(popup));
    ASSERT_FALSE(recent.isEmpty());
    EXPECT_TRUE(recent.first().contains(rows.at(1))) << recent.first().toStdString();
    EXPECT_TRUE(recent.first().contains(nodes.first())) << recent.first().toStdString();
    QTest::keyClick(popup, Qt::Key_Escape);

    // A host started afterwards over the same settings shows the same.
    const QStringList lines = RunHost(settings->FilePath(), QStringLiteral("show-recent"));
    EXPECT_EQ(LinesOf(lines, QStringLiteral("tab")),
              QStringList{Localized(QStringLiteral("Recent"))});
    const QStringList shown = LinesOf(lines, QStringLiteral("row"));
    ASSERT_FALSE(shown.isEmpty()) << lines.join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(shown.first(), recent.first());
}

TEST_F(LMMediaFormatPopupE2ETest, ClickingOutsideThePopupReportsADismissalOnceAndRecordsNothing) {
    ASSERT_TRUE(SetupCatalogue(LMDefaultCatalogue::Path()));
    QWidget host;
    host.setGeometry(0, 0, 300, 40);
    auto* elsewhere = new QPushButton(QStringLiteral("Elsewhere"), &host);
    host.show();
    auto completions = std::make_shared<Completions>();
    QWidget* popup = OpenPopup(completions);
    ASSERT_NE(popup, nullptr);

    QTest::mouseClick(elsewhere, Qt::LeftButton);
    EXPECT_FALSE(popup->isVisible());
    ASSERT_EQ(completions->calls.size(), 1u);
    EXPECT_EQ(completions->calls.front().preset, nullptr);
    EXPECT_EQ(completions->calls.front().node, nullptr);
    // Another click there, with the popup gone, reports nothing more.
    QTest::mouseClick(elsewhere, Qt::LeftButton);
    EXPECT_EQ(completions->calls.size(), 1u);

    // Recent stays empty: its tab lists nothing at the next showing.
    EXPECT_TRUE(ILMFmtPresetDataSource::Shared()->GetRecentList().empty());
    auto again = std::make_shared<Completions>();
    popup = OpenPopup(again);
    ASSERT_NE(popup, nullptr);
    ASSERT_TRUE(E2E::ClickTab(popup, 0));
    EXPECT_EQ(E2E::SelectedTab(popup), 0);
    EXPECT_TRUE(E2E::RowTexts(E2E::PresetList(popup)).isEmpty());
}

TEST_F(LMMediaFormatPopupE2ETest, SavingAnEditFromThePopupCompletesWithTheEditedPreset) {
    ASSERT_TRUE(SetupCatalogue(LMDefaultCatalogue::Path()));
    auto completions = std::make_shared<Completions>();
    QWidget* popup = OpenOnFirstCategory(completions);
    ASSERT_NE(popup, nullptr);
    QAbstractItemView* presets = E2E::PresetList(popup);
    ASSERT_FALSE(E2E::RowTexts(presets).isEmpty());

    ResolutionChange change;
    EditorSession session(
        [&change](QDialog* editor) { change = SaveWithAnotherResolution(editor); });
    E2E::ClickEditButton(presets, 0);
    ASSERT_TRUE(session.Ran()) << "the edit button opened no editor";

    EXPECT_NE(change.chosen, change.before);
    EXPECT_FALSE(popup->isVisible());
    EXPECT_EQ(E2E::VisibleDialog(kEditorName), nullptr);
    ASSERT_EQ(completions->calls.size(), 1u);
    const auto& [preset, node] = completions->calls.front();
    ASSERT_NE(preset, nullptr);
    ASSERT_NE(node, nullptr);
    const auto video = preset->CurrentVideoCodec();
    ASSERT_NE(video, nullptr);
    const auto resolution = video->CurrentResolution();
    ASSERT_NE(resolution, nullptr);
    EXPECT_EQ(Localized(resolution->Name()), change.chosen);
}

TEST_F(LMMediaFormatPopupE2ETest, SavingAsANewPresetTwiceFilesTwoNumberedCustomPresetsThatLast) {
    ASSERT_TRUE(SetupCatalogue(LMDefaultCatalogue::Path()));
    auto completions = std::make_shared<Completions>();
    QWidget* popup = OpenOnFirstCategory(completions);
    ASSERT_NE(popup, nullptr);
    E2E::ClickRow(E2E::NodeList(popup), 0);
    QAbstractItemView* presets = E2E::PresetList(popup);
    const QStringList nodes = E2E::SelectedRowTexts(E2E::NodeList(popup));
    ASSERT_EQ(nodes.size(), 1);
    const QString nodeTitle = nodes.first();
    // A preset whose title does not hold its node's title is named after the node.
    ASSERT_FALSE(E2E::RowTexts(presets).value(0).contains(nodeTitle));

    QStringList proposed;
    EditorSession session([&](QDialog* editor) {
        for (int i = 0; i < 2; ++i) {
            EXPECT_TRUE(E2E::ClickButton(editor, QStringLiteral("btnSaveNewPreset")));
            QDialog* prompt = nullptr;
            if (!QTest::qWaitFor(
                    [&prompt] { return (prompt = E2E::VisibleNamePrompt()) != nullptr; })) {
                ADD_FAILURE() << "Save as New Preset asked for no name";
                return;
            }
            const auto* field = prompt->findChild<QLineEdit*>();
            proposed.append(field ? field->text() : QString());
            EXPECT_TRUE(E2E::ClickButton(prompt, QStringLiteral("btnOK")));
            EXPECT_TRUE(QTest::qWaitFor([] { return !E2E::VisibleNamePrompt(); }));
            // The editor stays open for more.
            EXPECT_TRUE(editor->isVisible());
        }
        QTest::keyClick(editor, Qt::Key_Escape);
    });
    E2E::ClickEditButton(presets, 0);
    ASSERT_TRUE(session.Ran()) << "the edit button opened no editor";

    const QStringList expected{nodeTitle + QStringLiteral("-custom0"),
                               nodeTitle + QStringLiteral("-custom1")};
    EXPECT_EQ(proposed, expected);
    // Leaving the editor without Save brings the popup back, still undecided.
    EXPECT_TRUE(popup->isVisible());
    EXPECT_TRUE(completions->calls.empty());

    ASSERT_TRUE(E2E::ClickTab(popup, kDefaultTabCount - 1));
    EXPECT_EQ(E2E::TabTitles(popup).value(E2E::SelectedTab(popup)),
              Localized(QStringLiteral("Custom")));
    EXPECT_EQ(E2E::RowTexts(E2E::NodeList(popup)), QStringList{nodeTitle});
    EXPECT_EQ(E2E::RowTexts(E2E::PresetList(popup)), expected);
    QTest::keyClick(popup, Qt::Key_Escape);

    const QStringList lines = RunHost(settings->FilePath(), QStringLiteral("show-custom"));
    EXPECT_EQ(LinesOf(lines, QStringLiteral("node")), QStringList{nodeTitle});
    EXPECT_EQ(LinesOf(lines, QStringLiteral("preset")), expected)
        << lines.join(QLatin1Char('|')).toStdString();
}

TEST_F(LMMediaFormatPopupE2ETest,
       WaitingBeforeSetupReturnsAtOnceAndAMissingCatalogueLeavesOnlyRecentAndCustom) {
    // Nothing to wait for: the call returns (a wait on nothing would never end).
    ILMMediaFormatPopup::Shared()->WaitForFormatDataLoadingComplete();

    ASSERT_TRUE(SetupCatalogue(settings->DirPath() + "/no-such-catalogue.json"));
    auto completions = std::make_shared<Completions>();
    QWidget* popup = OpenPopup(completions, 2);
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(E2E::TabTitles(popup), (QStringList{Localized(QStringLiteral("Recent")),
                                                  Localized(QStringLiteral("Custom"))}));
    // Nothing to choose from but the (empty) custom list.
    EXPECT_EQ(E2E::SelectedTab(popup), 1);
    for (const QAbstractItemView* list : E2E::VisibleLists(popup))
        EXPECT_TRUE(E2E::RowTexts(list).isEmpty());
}

TEST_F(LMMediaFormatPopupE2ETest, EveryLanguageRetitlesTheOpenPopupAndTheOpenEditor) {
    ASSERT_TRUE(SetupCatalogue(LMDefaultCatalogue::Path()));
    auto completions = std::make_shared<Completions>();
    QWidget* popup = OpenPopup(completions);
    ASSERT_NE(popup, nullptr);
    QStringList tabKeys{QStringLiteral("Recent")};
    auto root = ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets();
    ASSERT_NE(root, nullptr);
    for (int i = 0; i < root->ChildCount(); ++i)
        tabKeys.append(QString::fromStdString(root->ChildAt(i)->Title()));
    tabKeys.append(QStringLiteral("Custom"));
    ExpectShownInEveryLanguage(tabKeys, [popup] { return E2E::TabTitles(popup); });
    EXPECT_TRUE(popup->isVisible());
    QTest::keyClick(popup, Qt::Key_Escape);

    // The editor, open through the facade, follows each change while it is up:
    // the labels of its boxes, then its buttons.
    const std::vector<std::pair<QString, QString>> boxLabels{
        {QStringLiteral("cmbVEncoder"), QStringLiteral("Encoder")},
        {QStringLiteral("cmbResolution"), QStringLiteral("Resolution")},
        {QStringLiteral("cmbFrameRate"), QStringLiteral("FrameRate")},
        {QStringLiteral("cmbVQuality"), QStringLiteral("Quality")},
        {QStringLiteral("cmbAEncoder"), QStringLiteral("Encoder")},
        {QStringLiteral("cmbChannel"), QStringLiteral("Channel")},
        {QStringLiteral("cmbSampleRate"), QStringLiteral("Sample Rate")},
        {QStringLiteral("cmbAQuality"), QStringLiteral("Quality")},
        {QStringLiteral("btnDefault"), QStringLiteral("Reset")},
        {QStringLiteral("btnSave"), QStringLiteral("Save")},
        {QStringLiteral("btnSaveNewPreset"), QStringLiteral("Save as New Preset")}};
    QStringList keys;
    for (const auto& [name, key] : boxLabels)
        keys.append(key);
    const auto shownTexts = [&boxLabels](QDialog* editor) {
        QStringList texts;
        for (const auto& [name, key] : boxLabels) {
            if (const auto* button = editor->findChild<QPushButton*>(name))
                texts.append(button->text());
            else
                texts.append(E2E::LabelOf(editor, E2E::Box(editor, name)));
        }
        return texts;
    };
    auto node = FirstCategory()->ChildAt(0);
    ASSERT_NE(node, nullptr);
    EditorSession session([&](QDialog* editor) {
        ExpectShownInEveryLanguage(keys, [&] { return shownTexts(editor); });
        EXPECT_TRUE(editor->isVisible());
        QTest::keyClick(editor, Qt::Key_Escape);
    });
    EXPECT_FALSE(
        ILMMediaFormatPopup::Shared()->PopupEditing(node->FormatPresetAt(0)->Clone(), node));
    EXPECT_TRUE(session.Ran()) << "PopupEditing opened no editor";
}

TEST_F(LMMediaFormatPopupE2ETest, PopupEditingSavesIntoTheCallersPresetAndEscapeLeavesItAlone) {
    ASSERT_TRUE(SetupCatalogue(LMDefaultCatalogue::Path()));
    ASSERT_NE(FirstCategory(), nullptr);
    std::shared_ptr<const ILMFormatNode> node = FirstCategory()->ChildAt(0);
    ASSERT_NE(node, nullptr);
    const std::shared_ptr<ILMFormatPreset> preset = node->FormatPresetAt(0)->Clone();
    const auto original = preset->Clone();
    auto popup = ILMMediaFormatPopup::Shared();

    ResolutionChange change;
    EditorSession saving(
        [&change](QDialog* editor) { change = SaveWithAnotherResolution(editor); });
    EXPECT_TRUE(popup->PopupEditing(preset, node));
    ASSERT_TRUE(saving.Ran()) << "PopupEditing opened no editor";
    EXPECT_FALSE(preset->IsEqualTo(original));
    ASSERT_NE(preset->CurrentVideoCodec(), nullptr);
    ASSERT_NE(preset->CurrentVideoCodec()->CurrentResolution(), nullptr);
    EXPECT_NE(change.chosen, change.before);
    EXPECT_EQ(Localized(preset->CurrentVideoCodec()->CurrentResolution()->Name()), change.chosen);

    const auto saved = preset->Clone();
    int changedBoxes = 0;
    EditorSession cancelling([&changedBoxes](QDialog* editor) {
        for (const QString& name :
             {QStringLiteral("cmbResolution"), QStringLiteral("cmbVQuality")}) {
            QComboBox* box = E2E::Box(editor, name);
            if (!box || !box->isEnabled())
                continue;
            const QString before = box->currentText();
            E2E::ChooseAnotherItem(box);
            changedBoxes += box->currentText() != before ? 1 : 0;
        }
        QTest::keyClick(editor, Qt::Key_Escape);
    });
    EXPECT_FALSE(popup->PopupEditing(preset, node));
    ASSERT_TRUE(cancelling.Ran()) << "PopupEditing opened no editor";
    // Changes were made in the editor, and none of them reached the preset.
    EXPECT_EQ(changedBoxes, 2);
    EXPECT_TRUE(preset->IsEqualTo(saved));
}
