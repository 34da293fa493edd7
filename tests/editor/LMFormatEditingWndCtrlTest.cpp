// SPDX-License-Identifier: MIT
#include "LMFormatEditingWndCtrl.h"

#include "LMFormatEditingWndCtrl_p.h"

#include "ILMFmtPresetDataSource.h"
#include "LMEditorTestSupport.h"
#include "LMFakeFormatPreset.h"
#include "LMFmtPresetDataSource.h"
#include "LMFormatEditingWndCtrlDelegate.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMFormatRegistry.h"
#include "LMNewPresetPrompt.h"
#include "LMNewPresetView.h"
#include "LMSizeEstimate.h"
#include "LMSizeText.h"
#include "LMUiTestSupport.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <set>
#include <vector>

using namespace Lumeran;
using Lumeran::TestSupport::Localized;

namespace {

class RecordingDelegate : public LMFormatEditingWndCtrlDelegate {
public:
    void formatEditingWndCtrlDidCreateFormatPreset(LMFormatEditingWndCtrl* ctrl) override {
        calls.push_back(ctrl);
    }
    std::vector<LMFormatEditingWndCtrl*> calls;
};

// The real editor, counting how often a session ends.
class CountingEditor : public LMFormatEditingWndCtrl {
public:
    int willCloseCount = 0;

protected:
    void windowWillClose() override {
        ++willCloseCount;
        LMFormatEditingWndCtrl::windowWillClose();
    }
};

QStringList itemsOf(const QComboBox* box) {
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items << box->itemText(i);
    return items;
}

std::shared_ptr<ILMFormatNode> catalogueNode(const std::string& category,
                                             const std::string& format) {
    TestSupport::LoadDefaultCatalogueIntoSharedDataSource();
    const auto root = ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets();
    const auto group = root ? root->FindChild(category) : nullptr;
    return group ? group->FindChild(format) : nullptr;
}

// A copy of a catalogue preset: a session changes the very object it is given,
// and the catalogue is loaded once per process.
std::shared_ptr<ILMFormatPreset> cataloguePreset(const std::shared_ptr<ILMFormatNode>& node,
                                                 const std::string& title) {
    const auto preset = node ? node->FindFormatPreset(title) : nullptr;
    return preset ? preset->Clone() : nullptr;
}

std::string resolutionOf(const std::shared_ptr<const ILMFormatPreset>& preset) {
    const auto codec = preset ? preset->CurrentVideoCodec() : nullptr;
    const auto resolution = codec ? codec->CurrentResolution() : nullptr;
    return resolution ? resolution->Name() : std::string();
}

// Codec names, numbers and units read the same in every language.
bool isTechnicalName(const QString& name) {
    static const QRegularExpression digit(QStringLiteral("[0-9]"));
    static const QRegularExpression upper(QStringLiteral("^[A-Z0-9.-]+$"));
    static const QStringList brands{QStringLiteral("Opus"),    QStringLiteral("Vorbis"),
                                    QStringLiteral("Xvid"),    QStringLiteral("DivX"),
                                    QStringLiteral("ProRes"),  QStringLiteral("DNxHD"),
                                    QString::fromUtf8("μ-law")};
    if (digit.match(name).hasMatch() || brands.contains(name))
        return true;
    const QStringList tokens = name.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return !tokens.isEmpty() && std::all_of(tokens.begin(), tokens.end(), [](const QString& t) {
        return upper.match(t).hasMatch();
    });
}

} // namespace

class LMFormatEditingWndCtrlTest : public TestSupport::UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        editor.setDelegate(&delegate);
        mp4 = catalogueNode("Video", "MP4");
        ASSERT_TRUE(mp4);
    }

    // Runs body inside the editor's modal loop. A failed assertion returns from
    // body early; the editor is then cancelled so that the loop still ends.
    bool edit(std::shared_ptr<ILMFormatPreset> preset, std::shared_ptr<const ILMFormatNode> node,
              const std::function<void()>& body) {
        QTimer::singleShot(0, &editor, [this, body] {
            body();
            if (editor.isVisible())
                editor.reject();
        });
        return editor.startEditing(std::move(preset), std::move(node));
    }

    QComboBox* box(const char* name) const {
        return editor.findChild<QComboBox*>(QString::fromLatin1(name));
    }
    QPushButton* button(const char* name) const {
        return editor.findChild<QPushButton*>(QString::fromLatin1(name));
    }
    void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }

    // Moves a box to index with the arrow keys, as a user does; every step is a
    // choice of the user's.
    static void choose(QComboBox* combo, int index) {
        for (int step = 0; combo->currentIndex() != index && step <= combo->count(); ++step)
            QTest::keyClick(combo, combo->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    }
    void choose(const char* name, const QString& item) {
        QComboBox* combo = box(name);
        choose(combo, combo->findText(item));
    }

    QStringList shownTexts() const {
        QStringList texts;
        for (const char* name : {"cmbVEncoder", "cmbResolution", "cmbFrameRate", "cmbVQuality",
                                 "cmbAEncoder", "cmbChannel", "cmbSampleRate", "cmbAQuality"})
            texts << box(name)->currentText();
        return texts;
    }

    // The name prompt the editor shows, while it is up.
    LMNewPresetPrompt* prompt() const {
        for (LMNewPresetPrompt* candidate : editor.findChildren<LMNewPresetPrompt*>()) {
            if (candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    QPushButton* promptButton(const char* name) const {
        return prompt() ? prompt()->findChild<QPushButton*>(QString::fromLatin1(name)) : nullptr;
    }

    CountingEditor editor;
    // The editor's insides: its actions and the naming of a new preset.
    LMFormatEditingWndCtrlPrivate* const d = LMFormatEditingWndCtrlPrivate::get(&editor);
    RecordingDelegate delegate;
    std::shared_ptr<ILMFormatNode> mp4;
};

// ---- Loading a preset --------------------------------------------------------------

TEST_F(LMFormatEditingWndCtrlTest, MissingVideoStreamDisablesTheVideoBoxesAndFillsTheAudioSide) {
    const auto wav = catalogueNode("Audio", "WAV");
    edit(cataloguePreset(wav, "High Quality"), wav, [this] {
        for (const char* name : {"cmbVEncoder", "cmbResolution", "cmbFrameRate", "cmbVQuality"}) {
            EXPECT_FALSE(box(name)->isEnabled()) << name;
            EXPECT_EQ(box(name)->count(), 0) << name;
        }
        EXPECT_TRUE(box("cmbAEncoder")->isEnabled());
        EXPECT_EQ(itemsOf(box("cmbAEncoder")),
                  (QStringList{QStringLiteral("PCM 16-bit"), QStringLiteral("PCM 24-bit")}));
        EXPECT_EQ(box("cmbAEncoder")->currentText(), QStringLiteral("PCM 16-bit"));
        EXPECT_TRUE(box("cmbSampleRate")->isEnabled());
        EXPECT_EQ(box("cmbSampleRate")->currentText(), QStringLiteral("48000 Hz"));
        EXPECT_TRUE(box("cmbChannel")->isEnabled());
        EXPECT_EQ(box("cmbChannel")->currentText(), QStringLiteral("Stereo"));
        // PCM has no quality levels at all.
        EXPECT_EQ(box("cmbAQuality")->count(), 0);
        EXPECT_FALSE(box("cmbAQuality")->isEnabled());
    });
}

TEST_F(LMFormatEditingWndCtrlTest, MissingAudioStreamListsTheCodecsWithNoneChosen) {
    const auto prores = catalogueNode("Video", "ProRes MOV");
    const auto preset = ILMFormatPreset::MallocFormatPreset("mov", "Silent");
    ASSERT_TRUE(preset);
    preset->SetCurrentAudioCodec(-1);
    ASSERT_LT(preset->CurrentAudioCodecIndex(), 0);
    edit(preset, prores, [this] {
        EXPECT_FALSE(box("cmbAEncoder")->isEnabled());
        EXPECT_GT(box("cmbAEncoder")->count(), 0);
        EXPECT_EQ(box("cmbAEncoder")->currentIndex(), -1);
        for (const char* name : {"cmbChannel", "cmbSampleRate", "cmbAQuality"}) {
            EXPECT_FALSE(box(name)->isEnabled()) << name;
            EXPECT_EQ(box(name)->count(), 0) << name;
        }
        EXPECT_EQ(box("cmbVEncoder")->currentText(), QStringLiteral("ProRes"));
        EXPECT_TRUE(box("cmbResolution")->isEnabled());
    });
}

TEST_F(LMFormatEditingWndCtrlTest, AutomaticCodecEmptiesAndDisablesItsBoxesButNotTheEncoder) {
    auto preset = ILMFormatPreset::MallocFormatPreset("mp4", "Automatic");
    ASSERT_TRUE(preset);
    preset->SetCurrentVideoCodec(3);
    preset->SetCurrentAudioCodec(3);
    ASSERT_TRUE(preset->CurrentVideoCodec()->IsAutoValue());
    ASSERT_TRUE(preset->CurrentAudioCodec()->IsAutoValue());
    edit(preset, mp4, [this] {
        for (const char* encoder : {"cmbVEncoder", "cmbAEncoder"}) {
            EXPECT_TRUE(box(encoder)->isEnabled()) << encoder;
            EXPECT_EQ(box(encoder)->currentText(), QStringLiteral("Auto")) << encoder;
        }
        for (const char* name : {"cmbResolution", "cmbFrameRate", "cmbVQuality", "cmbChannel",
                                 "cmbSampleRate", "cmbAQuality"}) {
            EXPECT_FALSE(box(name)->isEnabled()) << name;
            EXPECT_EQ(box(name)->count(), 0) << name;
        }
    });
}

TEST_F(LMFormatEditingWndCtrlTest, QualityBoxOffersEveryLevelButTheLast) {
    // H.264 and AAC have four levels, the last one "Best".
    edit(cataloguePreset(mp4, "Medium Quality"), mp4, [this] {
        const QStringList levels{QStringLiteral("High"), QStringLiteral("Medium"),
                                 QStringLiteral("Low")};
        EXPECT_EQ(itemsOf(box("cmbVQuality")), levels);
        EXPECT_EQ(itemsOf(box("cmbAQuality")), levels);
        EXPECT_EQ(box("cmbVQuality")->currentText(), QStringLiteral("Medium"));
    });
    // The VCD codecs have two: only the first is offered.
    const auto vcd = catalogueNode("Video", "VCD");
    edit(cataloguePreset(vcd, "PAL"), vcd, [this] {
        EXPECT_EQ(itemsOf(box("cmbVQuality")), QStringList{QStringLiteral("High")});
        EXPECT_EQ(itemsOf(box("cmbAQuality")), QStringList{QStringLiteral("High")});
    });
    auto four = std::make_shared<TestSupport::LMFakeFormatPreset>("Four", 4);
    edit(four, mp4, [this] {
        EXPECT_EQ(itemsOf(box("cmbVQuality")),
                  (QStringList{QStringLiteral("Level 1"), QStringLiteral("Level 2"),
                               QStringLiteral("Level 3")}));
        EXPECT_TRUE(box("cmbVQuality")->isEnabled());
    });
    auto one = std::make_shared<TestSupport::LMFakeFormatPreset>("One", 1);
    edit(one, mp4, [this] {
        EXPECT_EQ(box("cmbVQuality")->count(), 0);
        EXPECT_FALSE(box("cmbVQuality")->isEnabled());
    });
}

TEST_F(LMFormatEditingWndCtrlTest, PinnedBestQualityIsNamedButNotOffered) {
    auto preset = cataloguePreset(mp4, "High Quality");
    preset->CurrentVideoCodec()->SetCurrentQuality(3);
    edit(preset, mp4, [this] {
        EXPECT_EQ(box("cmbVQuality")->count(), 3);
        EXPECT_EQ(box("cmbVQuality")->currentIndex(), -1);
        EXPECT_EQ(box("cmbVQuality")->placeholderText(), QStringLiteral("Best"));
        // Another preset's quality box shows no leftover name.
        d->ResetAction();
    });
    edit(cataloguePreset(mp4, "High Quality"), mp4, [this] {
        EXPECT_EQ(box("cmbVQuality")->currentText(), QStringLiteral("High"));
        EXPECT_TRUE(box("cmbVQuality")->placeholderText().isEmpty());
    });
}

TEST_F(LMFormatEditingWndCtrlTest, TitleNamesTheNodeUnlessThePresetTitleHoldsIt) {
    const auto node = ILMFormatNode::MallocFormatNode("MP4", "MP4 file format", 0);
    edit(ILMFormatPreset::MallocFormatPreset("mp4", "MP4 High Quality"), node, [this] {
        EXPECT_EQ(editor.windowTitle(), QStringLiteral("Settings - MP4 High Quality"));
    });
    edit(ILMFormatPreset::MallocFormatPreset("mp4", "HD 720p"), node,
         [this] { EXPECT_EQ(editor.windowTitle(), QStringLiteral("Settings - MP4 HD 720p")); });
    edit(cataloguePreset(mp4, "High Quality"), mp4, [this] {
        EXPECT_EQ(editor.windowTitle(), QStringLiteral("Settings - MP4 High Quality"));
    });
    edit(ILMFormatPreset::MallocFormatPreset("mp4", "HD 720p"), nullptr,
         [this] { EXPECT_EQ(editor.windowTitle(), QStringLiteral("Settings - HD 720p")); });
    edit(nullptr, node, [this] { EXPECT_EQ(editor.windowTitle(), QStringLiteral("Settings")); });
}

TEST_F(LMFormatEditingWndCtrlTest, NoPresetShowsEmptyDisabledControls) {
    edit(nullptr, mp4, [this] {
        for (QComboBox* combo : editor.findChildren<QComboBox*>()) {
            EXPECT_FALSE(combo->isEnabled()) << combo->objectName().toStdString();
            EXPECT_EQ(combo->count(), 0) << combo->objectName().toStdString();
        }
        for (const char* name : {"btnDefault", "btnSave", "btnSaveNewPreset"})
            EXPECT_FALSE(button(name)->isEnabled()) << name;
    });
    EXPECT_TRUE(ILMFmtPresetDataSource::Shared()->GetRecentList().empty());
}

TEST_F(LMFormatEditingWndCtrlTest, NameMissingFromTheTableIsShownAsTheManagerReturnsIt) {
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageJapanese);
    edit(cataloguePreset(mp4, "High Quality"), mp4, [this] {
        // Codec names are in no table and come back as they are; option names are translated.
        EXPECT_EQ(box("cmbVEncoder")->currentText(), QStringLiteral("H.264"));
        EXPECT_EQ(box("cmbVQuality")->currentText(), Localized("High"));
        EXPECT_NE(Localized("High"), QStringLiteral("High"));
        EXPECT_EQ(box("cmbResolution")->currentText(), Localized("Same as source"));
        EXPECT_NE(Localized("Same as source"), QStringLiteral("Same as source"));
    });
    auto unknown = std::make_shared<TestSupport::LMFakeFormatPreset>("Zorblax 9000", 3);
    edit(unknown, mp4, [this] {
        EXPECT_EQ(box("cmbVEncoder")->currentText(), QStringLiteral("Zorblax 9000"));
        EXPECT_EQ(box("cmbVEncoder")->currentText(), Localized("Zorblax 9000"));
    });
}

TEST_F(LMFormatEditingWndCtrlTest, EditingTwiceShowsOnlyTheSecondPresetAndStartsUnsaved) {
    EXPECT_TRUE(edit(cataloguePreset(mp4, "High Quality"), mp4, [this] { click("btnSave"); }));
    EXPECT_TRUE(editor.btnSaved());
    const auto wav = catalogueNode("Audio", "WAV");
    const bool saved = edit(cataloguePreset(wav, "Low Quality"), wav, [this] {
        EXPECT_FALSE(editor.btnSaved());
        EXPECT_EQ(editor.windowTitle(), QStringLiteral("Settings - WAV Low Quality"));
        for (const char* name : {"cmbVEncoder", "cmbResolution", "cmbFrameRate", "cmbVQuality"})
            EXPECT_EQ(box(name)->count(), 0) << name;
        EXPECT_EQ(box("cmbAEncoder")->currentText(), QStringLiteral("PCM 16-bit"));
        EXPECT_EQ(box("cmbSampleRate")->currentText(), QStringLiteral("22050 Hz"));
        EXPECT_EQ(box("cmbChannel")->currentText(), QStringLiteral("Mono"));
    });
    EXPECT_FALSE(saved);
    EXPECT_FALSE(editor.btnSaved());
}

TEST_F(LMFormatEditingWndCtrlTest, OpensCentredOnTheScreen) {
    edit(cataloguePreset(mp4, "High Quality"), mp4, [this] {
        const QRect area = editor.screen()->availableGeometry();
        const QPoint offset = editor.frameGeometry().center() - area.center();
        EXPECT_LE(offset.manhattanLength(), 2) << offset.x() << "," << offset.y();
    });
}

TEST_F(LMFormatEditingWndCtrlTest, EveryLabelAndButtonTextFitsWholeInEveryLanguage) {
    LMFormatInternationalizationMgr* mgr = LMFormatInternationalizationMgr::sharedObject();
    for (const QString& language : TestSupport::EveryLanguage()) {
        mgr->setLanguage(language);
        ASSERT_EQ(mgr->language(), language);
        int checked = 0;
        edit(cataloguePreset(mp4, "High Quality"), mp4, [this, &language, &checked] {
            const std::string where = language.toStdString();
            for (const QLabel* label : editor.findChildren<QLabel*>()) {
                if (!label->isVisible() || label->wordWrap() || label->text().isEmpty())
                    continue;
                const qreal width = QFontMetricsF(label->font()).horizontalAdvance(label->text());
                EXPECT_LE(width, label->contentsRect().width())
                    << where << ": label \"" << label->text().toStdString() << "\"";
                ++checked;
            }
            for (const QPushButton* button : editor.findChildren<QPushButton*>()) {
                if (!button->isVisible() || button->text().isEmpty())
                    continue;
                // The style's own measure of the button: text, margins and bevel.
                EXPECT_LE(button->sizeHint().width(), button->width())
                    << where << ": button \"" << button->text().toStdString() << "\"";
                const qreal width = QFontMetricsF(button->font()).horizontalAdvance(button->text());
                EXPECT_LE(width, button->contentsRect().width())
                    << where << ": button \"" << button->text().toStdString() << "\"";
                ++checked;
            }
        });
        // Eight labels and four buttons at least.
        EXPECT_GE(checked, 12) << language.toStdString();
    }
}

TEST_F(LMFormatEditingWndCtrlTest, EveryOptionNameOfTheRegistryIsTranslatedOrTechnical) {
    std::set<std::string> names;
    for (const auto& container : LMFormatRegistry::Instance().Containers()) {
        for (const bool audio : {false, true}) {
            for (const LMCodecInfo* codec : container->Codecs(audio)) {
                names.insert(codec->name);
                for (const auto& option : codec->resolutions)
                    names.insert(option->Name());
                for (const auto& option : codec->framerates)
                    names.insert(option->Name());
                for (const auto& option : codec->samplerates)
                    names.insert(option->Name());
                for (const auto& option : codec->channelLayouts)
                    names.insert(option->Name());
                for (const auto& option : codec->qualities)
                    names.insert(option->Name());
            }
        }
    }
    ASSERT_GT(names.size(), 40u);
    // A word is translated in some language (German "Stereo" stays "Stereo",
    // Japanese does not); every table gives some text for it.
    std::map<std::string, bool> translated;
    for (const QString& language :
         LMFormatInternationalizationMgr::sharedObject()->supportLanguages()) {
        LMFormatInternationalizationMgr::sharedObject()->setLanguage(language);
        for (const std::string& name : names) {
            const QString shown = Localized(name.c_str());
            EXPECT_FALSE(shown.isEmpty()) << name;
            translated[name] = translated[name] || shown != QString::fromStdString(name);
        }
    }
    for (const std::string& name : names)
        EXPECT_TRUE(translated[name] || isTechnicalName(QString::fromStdString(name))) << name;
}

// ---- Changing and saving -----------------------------------------------------------

TEST_F(LMFormatEditingWndCtrlTest, ChangingTheVideoEncoderRebuildsItsBoxesAndAutoDisablesThem) {
    edit(cataloguePreset(mp4, "High Quality"), mp4, [this] {
        const QStringList audioBefore = shownTexts().mid(4);
        ASSERT_EQ(box("cmbVEncoder")->currentText(), QStringLiteral("H.264"));
        EXPECT_EQ(box("cmbResolution")->count(), 10);
        EXPECT_TRUE(itemsOf(box("cmbResolution")).contains(QStringLiteral("1080x1920")));

        choose("cmbVEncoder", QStringLiteral("HEVC"));
        EXPECT_EQ(box("cmbVEncoder")->currentText(), QStringLiteral("HEVC"));
        EXPECT_EQ(box("cmbResolution")->count(), 8);
        EXPECT_FALSE(itemsOf(box("cmbResolution")).contains(QStringLiteral("1080x1920")));
        EXPECT_EQ(box("cmbResolution")->currentText(), QStringLiteral("Same as source"));
        EXPECT_EQ(itemsOf(box("cmbVQuality")).size(), 3);
        for (const char* name : {"cmbResolution", "cmbFrameRate", "cmbVQuality"})
            EXPECT_TRUE(box(name)->isEnabled()) << name;

        choose("cmbVEncoder", QStringLiteral("Auto"));
        EXPECT_TRUE(box("cmbVEncoder")->isEnabled());
        for (const char* name : {"cmbResolution", "cmbFrameRate", "cmbVQuality"}) {
            EXPECT_FALSE(box(name)->isEnabled()) << name;
            EXPECT_EQ(box(name)->count(), 0) << name;
        }
        EXPECT_EQ(shownTexts().mid(4), audioBefore);
    });
}

TEST_F(LMFormatEditingWndCtrlTest, ChangedResolutionThenCancelLeavesTheCallersPresetAlone) {
    const auto preset = cataloguePreset(mp4, "High Quality");
    const auto before = preset->Clone();
    const bool saved = edit(preset, mp4, [this] {
        choose("cmbResolution", QStringLiteral("1280x720"));
        ASSERT_EQ(box("cmbResolution")->currentText(), QStringLiteral("1280x720"));
        QTest::keyClick(&editor, Qt::Key_Escape);
        EXPECT_FALSE(editor.isVisible());
    });
    EXPECT_FALSE(saved);
    EXPECT_TRUE(preset->IsEqualTo(before));
    EXPECT_EQ(resolutionOf(preset), "Same as source");
    EXPECT_TRUE(ILMFmtPresetDataSource::Shared()->GetRecentList().empty());
}

TEST_F(LMFormatEditingWndCtrlTest, ChangedResolutionThenSaveReachesTheCallerAndTheRecentList) {
    const auto preset = cataloguePreset(mp4, "High Quality");
    const bool saved = edit(preset, mp4, [this] {
        choose("cmbResolution", QStringLiteral("1280x720"));
        click("btnSave");
        EXPECT_FALSE(editor.isVisible());
    });
    EXPECT_TRUE(saved);
    EXPECT_EQ(resolutionOf(preset), "1280x720");
    EXPECT_EQ(preset->Title(), "High Quality");

    const auto recent = ILMFmtPresetDataSource::Shared()->GetRecentList();
    ASSERT_EQ(recent.size(), 1u);
    EXPECT_EQ(recent[0]->FormatNode()->Title(), "MP4");
    EXPECT_TRUE(recent[0]->FormatPreset()->IsEqualTo(preset));
    // Saved at once: a data source reading the same settings finds it.
    LMFmtPresetDataSource reread;
    const auto stored = reread.GetRecentList();
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_EQ(stored[0]->FormatNode()->Title(), "MP4");
    EXPECT_EQ(resolutionOf(stored[0]->FormatPreset()), "1280x720");
}

TEST_F(LMFormatEditingWndCtrlTest, ResetShowsTheOriginalValuesAgain) {
    const auto preset = cataloguePreset(mp4, "Medium Quality");
    const auto before = preset->Clone();
    edit(preset, mp4, [this] {
        const QStringList original = shownTexts();
        choose("cmbVEncoder", QStringLiteral("HEVC"));
        choose("cmbResolution", QStringLiteral("1920x1080"));
        choose("cmbVQuality", QStringLiteral("Low"));
        choose("cmbChannel", QStringLiteral("Mono"));
        choose("cmbSampleRate", QStringLiteral("32000 Hz"));
        ASSERT_NE(shownTexts(), original);

        click("btnDefault");
        EXPECT_EQ(shownTexts(), original);
        EXPECT_TRUE(editor.isVisible());
        // What Save then writes is the original as well.
        click("btnSave");
    });
    EXPECT_TRUE(preset->IsEqualTo(before));
}

TEST_F(LMFormatEditingWndCtrlTest, SaveAsNewPresetTwiceProposesCustom0ThenCustom1) {
    const auto preset = cataloguePreset(mp4, "High Quality");
    const auto before = preset->Clone();
    QStringList proposals;
    edit(preset, mp4, [&] {
        choose("cmbResolution", QStringLiteral("1280x720"));
        for (int round = 0; round < 2; ++round) {
            click("btnSaveNewPreset");
            ASSERT_TRUE(prompt());
            EXPECT_EQ(prompt()->windowModality(), Qt::WindowModal);
            EXPECT_EQ(prompt()->parentWidget(), &editor);
            EXPECT_EQ(prompt()->informativeText(), Localized("customSave"));
            proposals << prompt()->accessoryView()->strValue();
            EXPECT_EQ(prompt()->accessoryView()->textField()->text(), proposals.last());
            QTest::mouseClick(promptButton("btnOK"), Qt::LeftButton);
            EXPECT_FALSE(prompt());
            EXPECT_TRUE(editor.isVisible());
        }
        // The edits stay in the editor after filing copies.
        EXPECT_EQ(box("cmbResolution")->currentText(), QStringLiteral("1280x720"));
    });
    EXPECT_EQ(proposals,
              (QStringList{QStringLiteral("MP4-custom0"), QStringLiteral("MP4-custom1")}));
    EXPECT_EQ(delegate.calls, (std::vector<LMFormatEditingWndCtrl*>{&editor, &editor}));
    EXPECT_TRUE(preset->IsEqualTo(before));

    LMFmtPresetDataSource reread;
    for (const auto& custom :
         {ILMFmtPresetDataSource::Shared()->GetCustomList(), reread.GetCustomList()}) {
        ASSERT_EQ(custom->ChildCount(), 1);
        const auto group = custom->ChildAt(0);
        EXPECT_EQ(group->Title(), "MP4");
        ASSERT_EQ(group->FormatPresetCount(), 2);
        EXPECT_EQ(group->FormatPresetAt(0)->Title(), "MP4-custom0");
        EXPECT_EQ(group->FormatPresetAt(1)->Title(), "MP4-custom1");
        EXPECT_EQ(resolutionOf(group->FormatPresetAt(0)), "1280x720");
    }
}

TEST_F(LMFormatEditingWndCtrlTest, ProposedNameIsThePresetTitleWhenItHoldsTheNodeTitle) {
    const auto node = ILMFormatNode::MallocFormatNode("MP4", "", 0);
    const auto preset = ILMFormatPreset::MallocFormatPreset("mp4", "MP4 High Quality");
    edit(preset, node, [&] {
        EXPECT_EQ(d->GetDefaultCustomFormatName(), QStringLiteral("MP4 High Quality-custom0"));
        // Taken by a group other than the preset's own still counts.
        auto taken = preset->Clone();
        taken->SetTitle("MP4 High Quality-custom0");
        ILMFmtPresetDataSource::Shared()->AddCustomPreset(
            taken, ILMFormatNode::MallocFormatNode("Elsewhere", "", 0));
        EXPECT_TRUE(d->HasDefind("MP4 High Quality-custom0"));
        EXPECT_FALSE(d->HasDefind("mp4 high quality-custom0"));
        EXPECT_EQ(d->GetDefaultCustomFormatName(), QStringLiteral("MP4 High Quality-custom1"));
    });
}

TEST_F(LMFormatEditingWndCtrlTest, TypedNameNamesTheNewPresetAndEnterAnswersOk) {
    edit(cataloguePreset(mp4, "Low Quality"), mp4, [this] {
        click("btnSaveNewPreset");
        ASSERT_TRUE(prompt());
        QLineEdit* field = prompt()->accessoryView()->textField();
        // The proposal is selected: typing replaces it.
        QTest::keyClicks(field, QStringLiteral("Phone small"));
        EXPECT_EQ(prompt()->accessoryView()->strValue(), QStringLiteral("Phone small"));
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_FALSE(prompt());
    });
    const auto group = ILMFmtPresetDataSource::Shared()->GetCustomList()->FindChild("MP4");
    ASSERT_TRUE(group);
    EXPECT_TRUE(group->FindFormatPreset("Phone small"));
    EXPECT_EQ(delegate.calls.size(), 1u);
}

TEST_F(LMFormatEditingWndCtrlTest, PromptOkWithAnEmptyFieldDoesNothing) {
    edit(cataloguePreset(mp4, "High Quality"), mp4, [this] {
        click("btnSaveNewPreset");
        ASSERT_TRUE(prompt());
        QLineEdit* field = prompt()->accessoryView()->textField();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Backspace);
        ASSERT_TRUE(field->text().isEmpty());
        QTest::mouseClick(promptButton("btnOK"), Qt::LeftButton);
        EXPECT_FALSE(prompt());
        EXPECT_TRUE(editor.isVisible());
    });
    EXPECT_EQ(ILMFmtPresetDataSource::Shared()->GetCustomList()->ChildCount(), 0);
    EXPECT_TRUE(delegate.calls.empty());
    EXPECT_EQ(LMFmtPresetDataSource().GetCustomList()->ChildCount(), 0);
}

TEST_F(LMFormatEditingWndCtrlTest, PromptCancelFilesNothing) {
    edit(cataloguePreset(mp4, "High Quality"), mp4, [this] {
        click("btnSaveNewPreset");
        ASSERT_TRUE(prompt());
        QTest::mouseClick(promptButton("btnCancel"), Qt::LeftButton);
        EXPECT_FALSE(prompt());
        EXPECT_TRUE(editor.isVisible());
    });
    EXPECT_EQ(ILMFmtPresetDataSource::Shared()->GetCustomList()->ChildCount(), 0);
    EXPECT_TRUE(delegate.calls.empty());
}

TEST_F(LMFormatEditingWndCtrlTest, ClosingWithTheTitleBarControlBehavesAsCancel) {
    const auto preset = cataloguePreset(mp4, "High Quality");
    const auto before = preset->Clone();
    const bool saved = edit(preset, mp4, [this] {
        choose("cmbResolution", QStringLiteral("1280x720"));
        // What the window system sends when its close control is clicked.
        QCloseEvent close;
        QCoreApplication::sendEvent(editor.windowHandle(), &close);
        EXPECT_FALSE(editor.isVisible());
    });
    EXPECT_FALSE(saved);
    EXPECT_EQ(editor.willCloseCount, 1);
    EXPECT_TRUE(preset->IsEqualTo(before));
    EXPECT_TRUE(ILMFmtPresetDataSource::Shared()->GetRecentList().empty());
}

TEST_F(LMFormatEditingWndCtrlTest, EveryWayOfClosingPassesThroughWindowWillCloseOnce) {
    const std::vector<std::pair<const char*, std::function<void()>>> ways{
        {"Save", [this] { click("btnSave"); }},
        {"Escape", [this] { QTest::keyClick(&editor, Qt::Key_Escape); }},
        {"close", [this] { editor.close(); }},
        {"reject", [this] { editor.reject(); }},
        {"CancelAction", [this] { d->CancelAction(); }},
        {"hide", [this] { editor.hide(); }},
        {"open prompt, then reject",
         [this] {
             click("btnSaveNewPreset");
             editor.reject();
             EXPECT_FALSE(prompt());
         }},
    };
    for (const auto& [way, close] : ways) {
        const int before = editor.willCloseCount;
        const bool saved = edit(cataloguePreset(mp4, "High Quality"), mp4, close);
        EXPECT_EQ(editor.willCloseCount - before, 1) << way;
        EXPECT_EQ(saved, std::string(way) == "Save") << way;
        EXPECT_FALSE(editor.isVisible()) << way;
    }
    EXPECT_TRUE(delegate.calls.empty());
}

TEST_F(LMFormatEditingWndCtrlTest, EnterInABoxDoesNotSave) {
    const auto preset = cataloguePreset(mp4, "High Quality");
    const auto before = preset->Clone();
    const bool saved = edit(preset, mp4, [this] {
        choose("cmbResolution", QStringLiteral("1280x720"));
        QTest::keyClick(box("cmbResolution"), Qt::Key_Return);
        EXPECT_TRUE(editor.isVisible());
        EXPECT_FALSE(editor.btnSaved());
    });
    EXPECT_FALSE(saved);
    EXPECT_TRUE(preset->IsEqualTo(before));
}

TEST_F(LMFormatEditingWndCtrlTest, TitleAndLabelsFollowALanguageChangeMadeWhileClosed) {
    edit(cataloguePreset(mp4, "High Quality"), mp4, [] {});
    ASSERT_EQ(editor.windowTitle(), QStringLiteral("Settings - MP4 High Quality"));
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageFrench);
    ASSERT_NE(Localized("Settings"), QStringLiteral("Settings"));
    EXPECT_EQ(editor.windowTitle(), Localized("Settings") + QStringLiteral(" - MP4 High Quality"));
    EXPECT_EQ(editor.findChild<QGroupBox*>(QStringLiteral("grpVideo"))->title(),
              Localized("Video"));
    EXPECT_EQ(editor.findChild<QLabel*>(QStringLiteral("lblSampleRate"))->text(),
              Localized("Sample Rate"));
    EXPECT_EQ(button("btnSaveNewPreset")->text(), Localized("Save as New Preset"));
    EXPECT_EQ(button("btnDefault")->text(), Localized("Reset"));
    EXPECT_EQ(box("cmbResolution")->currentText(), Localized("Same as source"));
}

TEST_F(LMFormatEditingWndCtrlTest, SharedIsOneEditorAndTheAppNameIsTheApplications) {
    EXPECT_EQ(LMFormatEditingWndCtrl::shared(), LMFormatEditingWndCtrl::shared());
    EXPECT_EQ(LMFormatEditingWndCtrlPrivate::getAppName(), QCoreApplication::applicationName());
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Lumeran Converter"));
    EXPECT_EQ(LMFormatEditingWndCtrlPrivate::getAppName(), QStringLiteral("Lumeran Converter"));
}

TEST_F(LMFormatEditingWndCtrlTest, TheVisibleCancelButtonEndsTheSessionWithoutSaving) {
    const auto preset = cataloguePreset(mp4, "High Quality");
    const auto before = preset->Clone();
    const int closedBefore = editor.willCloseCount;
    bool cancelShown = false;
    const bool saved = edit(preset, mp4, [&] {
        QPushButton* cancel = button("btnCancel");
        ASSERT_NE(cancel, nullptr);
        cancelShown = cancel->isVisible() && cancel->isEnabled() &&
                      cancel->text() == QStringLiteral("Cancel");
        choose("cmbResolution", QStringLiteral("1280x720"));
        click("btnCancel");
        EXPECT_FALSE(editor.isVisible());
    });
    EXPECT_TRUE(cancelShown);
    EXPECT_FALSE(saved);
    EXPECT_EQ(editor.willCloseCount - closedBefore, 1);
    EXPECT_TRUE(preset->IsEqualTo(before));
    EXPECT_TRUE(ILMFmtPresetDataSource::Shared()->GetRecentList().empty());
}

TEST_F(LMFormatEditingWndCtrlTest, TheCancelButtonFollowsTheLanguage) {
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageGerman);
    ASSERT_NE(Localized("Cancel"), QStringLiteral("Cancel"));
    ASSERT_NE(button("btnCancel"), nullptr);
    EXPECT_EQ(button("btnCancel")->text(), Localized("Cancel"));
}

TEST_F(LMFormatEditingWndCtrlTest, TheNamePromptShowsTheApplicationsNameOnce) {
    const QString appName = QStringLiteral("Lumeran Converter");
    QGuiApplication::setApplicationDisplayName(appName);
    int shown = -1;
    QString message;
    edit(cataloguePreset(mp4, "High Quality"), mp4, [&] {
        click("btnSaveNewPreset");
        ASSERT_TRUE(prompt());
        // Everything the prompt shows in words: its title bar and its labels.
        shown = int(prompt()->windowTitle().count(appName));
        for (const QLabel* label : prompt()->findChildren<QLabel*>()) {
            if (label->isVisible())
                shown += int(label->text().count(appName));
        }
        message = prompt()->messageText();
        QTest::mouseClick(promptButton("btnCancel"), Qt::LeftButton);
    });
    QGuiApplication::setApplicationDisplayName(QString());
    EXPECT_EQ(shown, 1);
    EXPECT_EQ(message, Localized("Save as New Preset"));
}

// ---- Descriptions follow the settings -------------------------------------------------

TEST_F(LMFormatEditingWndCtrlTest, ANewEncoderKeepsTheFrameSizeAndTheSavedPresetDescribesIt) {
    const auto preset = cataloguePreset(mp4, "HD 1080p");
    ASSERT_EQ(preset->Description(), "H.264 1920x1080 / AAC");
    const bool saved = edit(preset, mp4, [this] {
        choose("cmbVEncoder", QStringLiteral("HEVC"));
        ASSERT_EQ(box("cmbVEncoder")->currentText(), QStringLiteral("HEVC"));
        EXPECT_EQ(box("cmbResolution")->currentText(), QStringLiteral("1920x1080"));
        choose("cmbResolution", QStringLiteral("1280x720"));
        click("btnSave");
    });
    EXPECT_TRUE(saved);
    EXPECT_EQ(preset->Description(), "HEVC 1280x720 / AAC");
    const auto recent = ILMFmtPresetDataSource::Shared()->GetRecentList();
    ASSERT_EQ(recent.size(), 1u);
    EXPECT_EQ(recent[0]->FormatPreset()->Description(), "HEVC 1280x720 / AAC");
}

TEST_F(LMFormatEditingWndCtrlTest, SavedUnchangedAPresetKeepsItsCataloguesWording) {
    const auto preset = cataloguePreset(mp4, "High Quality");
    preset->SetDescription("Best for sharing");
    edit(preset, mp4, [this] {
        // Changed and changed back: the settings stand as they were.
        choose("cmbResolution", QStringLiteral("1280x720"));
        choose("cmbResolution", QStringLiteral("Same as source"));
        click("btnSave");
    });
    EXPECT_EQ(preset->Description(), "Best for sharing");
}

TEST_F(LMFormatEditingWndCtrlTest, ANewPresetWithOtherSettingsDescribesThem) {
    edit(cataloguePreset(mp4, "Low Quality"), mp4, [this] {
        choose("cmbResolution", QStringLiteral("854x480"));
        click("btnSaveNewPreset");
        ASSERT_TRUE(prompt());
        QLineEdit* field = prompt()->accessoryView()->textField();
        QTest::keyClicks(field, QStringLiteral("Phone small"));
        QTest::keyClick(field, Qt::Key_Return);
    });
    const auto group = ILMFmtPresetDataSource::Shared()->GetCustomList()->FindChild("MP4");
    ASSERT_TRUE(group);
    const auto created = group->FindFormatPreset("Phone small");
    ASSERT_TRUE(created);
    EXPECT_EQ(created->Description(), "H.264 854x480 / AAC");
}

// ---- The size estimate ---------------------------------------------------------------

TEST_F(LMFormatEditingWndCtrlTest, TheSizeLineFollowsTheSettingsAsTheyChange) {
    const auto preset = cataloguePreset(mp4, "High Quality");
    edit(preset, mp4, [this] {
        QLabel* line = editor.findChild<QLabel*>(QStringLiteral("lblSizeEstimate"));
        ASSERT_TRUE(line);
        EXPECT_TRUE(line->isVisible());
        const auto estimate = [this] { return LMSizeEstimate::For(d->editingPreset(), 600); };
        // What the line says is the estimate of the settings the boxes show.
        const auto expected = [&estimate] {
            return Localized("≈ %1 per 10 minutes").arg(QString::fromStdString(estimate().Size()));
        };
        static const QRegularExpression range(
            QStringLiteral("^≈ [0-9.]+( [kMG]B)?–[0-9.]+ [kMG]B per 10 minutes$"));
        const QString sameAsSource = line->text();
        EXPECT_TRUE(range.match(sameAsSource).hasMatch()) << sameAsSource.toStdString();
        EXPECT_EQ(sameAsSource, expected());
        const auto fullHd = estimate();

        choose("cmbResolution", QStringLiteral("1280x720"));
        const QString hd = line->text();
        EXPECT_NE(hd, sameAsSource);
        EXPECT_EQ(hd, expected());
        EXPECT_LT(estimate().High(), fullHd.High());
        const auto high = estimate();

        choose("cmbVQuality", QStringLiteral("Low"));
        EXPECT_NE(line->text(), hd);
        EXPECT_EQ(line->text(), expected());
        EXPECT_LT(estimate().High(), high.High());
    });
}

TEST_F(LMFormatEditingWndCtrlTest, PcmAudioGivesOneExactSize) {
    const auto wav = catalogueNode("Audio", "WAV");
    const auto preset = cataloguePreset(wav, "High Quality");
    edit(preset, wav, [this] {
        QLabel* line = editor.findChild<QLabel*>(QStringLiteral("lblSizeEstimate"));
        ASSERT_TRUE(line);
        const auto audio = d->editingPreset()->CurrentAudioCodec();
        const auto rate = audio->CurrentSamplerate();
        const auto layout = audio->CurrentChannelLayout();
        ASSERT_FALSE(rate->IsAutoValue());
        ASSERT_FALSE(layout->IsAutoValue());
        const double bytes = 2.0 * rate->Hertz() * layout->Channels() * 600;
        EXPECT_EQ(line->text(),
                  Localized("%1 per 10 minutes")
                      .arg(QString::fromStdString(LMSizeEstimate::FormatBytes(bytes))));
        choose("cmbChannel", QStringLiteral("Mono"));
        EXPECT_EQ(line->text(),
                  Localized("%1 per 10 minutes")
                      .arg(QString::fromStdString(LMSizeEstimate::FormatBytes(bytes / 2))));
    });
}

TEST_F(LMFormatEditingWndCtrlTest, AnAutomaticCodecHasNoSize) {
    auto preset = ILMFormatPreset::MallocFormatPreset("mp4", "Automatic");
    preset->SetCurrentVideoCodec(3);
    ASSERT_TRUE(preset->CurrentVideoCodec()->IsAutoValue());
    edit(preset, mp4, [this] {
        QLabel* line = editor.findChild<QLabel*>(QStringLiteral("lblSizeEstimate"));
        ASSERT_TRUE(line);
        EXPECT_EQ(line->text(), QStringLiteral("Size not known for an automatic codec"));
        choose("cmbVEncoder", QStringLiteral("H.264"));
        EXPECT_TRUE(line->text().startsWith(QStringLiteral("≈ "))) << line->text().toStdString();
    });
}

TEST_F(LMFormatEditingWndCtrlTest, TheSizeLineIsInTheEditorsLanguage) {
    const auto preset = cataloguePreset(mp4, "High Quality");
    for (const QString& language : TestSupport::EveryLanguage()) {
        LMFormatInternationalizationMgr::sharedObject()->setLanguage(language);
        edit(preset->Clone(), mp4, [this, &language] {
            QLabel* line = editor.findChild<QLabel*>(QStringLiteral("lblSizeEstimate"));
            ASSERT_TRUE(line);
            const QString template_ = Localized("≈ %1 per 10 minutes");
            EXPECT_EQ(line->text(), template_.arg(LMSizeText::size(
                                        LMSizeEstimate::For(d->editingPreset(), 600),
                                        LMFormatInternationalizationMgr::sharedObject())))
                << language.toStdString();
            if (language != LMFormatLanguageEnglish) {
                EXPECT_NE(template_, QStringLiteral("≈ %1 per 10 minutes"))
                    << language.toStdString();
            }
        });
    }
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageEnglish);
}

TEST_F(LMFormatEditingWndCtrlTest, SizesAreWrittenWithTheLanguagesDecimalSignAndUnits) {
    LMFormatInternationalizationMgr* mgr = LMFormatInternationalizationMgr::sharedObject();
    mgr->setLanguage(LMFormatLanguageFrench);
    EXPECT_EQ(LMSizeText::bytes(1.7e9, mgr), QStringLiteral("1,7 Go"));
    EXPECT_EQ(LMSizeText::bytes(390e6, mgr), QStringLiteral("390 Mo"));
    mgr->setLanguage(LMFormatLanguageGerman);
    EXPECT_EQ(LMSizeText::bytes(4.5e6, mgr), QStringLiteral("4,5 MB"));
    mgr->setLanguage(LMFormatLanguageEnglish);
    EXPECT_EQ(LMSizeText::bytes(4.5e6, mgr),
              QString::fromStdString(LMSizeEstimate::FormatBytes(4.5e6)));

    const auto preset = cataloguePreset(mp4, "High Quality");
    mgr->setLanguage(LMFormatLanguageFrench);
    edit(preset->Clone(), mp4, [this] {
        QLabel* line = editor.findChild<QLabel*>(QStringLiteral("lblSizeEstimate"));
        ASSERT_TRUE(line);
        // A range in one unit names it once, after the second figure.
        static const QRegularExpression range(QStringLiteral("[0-9,]+( [kMG]o)?–[0-9,]+ [kMG]o"));
        EXPECT_TRUE(range.match(line->text()).hasMatch()) << line->text().toStdString();
        EXPECT_FALSE(line->text().contains(QStringLiteral("MB"))) << line->text().toStdString();
    });
    mgr->setLanguage(LMFormatLanguageEnglish);
}

TEST_F(LMFormatEditingWndCtrlTest, TheSizeLineSaysWhatSourceItAssumesOnlyWhereItAssumesOne) {
    // "Same as source" frame size and rate: sized for the assumed source.
    const auto preset = cataloguePreset(mp4, "High Quality");
    edit(preset, mp4, [this] {
        QLabel* line = editor.findChild<QLabel*>(QStringLiteral("lblSizeEstimate"));
        ASSERT_TRUE(line);
        EXPECT_TRUE(line->toolTip().contains(QStringLiteral("1920x1080")))
            << line->toolTip().toStdString();
        EXPECT_EQ(line->accessibleDescription(), line->toolTip());
    });
    // PCM at a chosen rate and layout is fixed by its settings alone.
    const auto wav = catalogueNode("Audio", "WAV");
    edit(cataloguePreset(wav, "High Quality"), wav, [this] {
        QLabel* line = editor.findChild<QLabel*>(QStringLiteral("lblSizeEstimate"));
        ASSERT_TRUE(line);
        EXPECT_TRUE(line->toolTip().isEmpty()) << line->toolTip().toStdString();
    });
}
