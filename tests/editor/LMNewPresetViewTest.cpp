// SPDX-License-Identifier: MIT
#include "LMNewPresetView.h"

#include "LMEditorTestSupport.h"
#include "LMFormatInternationalizationMgr.h"
#include "LMNewPresetPrompt.h"
#include "LMUiTestSupport.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <optional>

using Lumeran::TestSupport::Localized;

// The view as the editor shows it: inside the name prompt, over a window that
// has a text field of its own.
class LMNewPresetViewTest : public Lumeran::TestSupport::UiTest {
protected:
    void SetUp() override {
        UiTest::SetUp();
        auto* layout = new QVBoxLayout(&window);
        otherField = new QLineEdit(&window);
        layout->addWidget(otherField);
        window.show();
    }

    // Shows a prompt holding a new view whose strValue is initial, as the
    // editor does; the response lands in response.
    void showPrompt(const QString& initial) {
        prompt = new LMNewPresetPrompt(&window);
        prompt->setMessageText(QStringLiteral("Converter"));
        prompt->setInformativeText(Localized("customSave"));
        view = LMNewPresetView::creatNewPresetView();
        view->setStrValue(initial);
        prompt->setAccessoryView(view);
        prompt->beginSheetModalForWindow(&window, [this](int code) {
            response = code;
            answeredName = view ? view->strValue() : QString();
        });
    }
    QLineEdit* field() const { return view->textField(); }
    QPushButton* promptButton(const char* name) const {
        return prompt->findChild<QPushButton*>(QString::fromLatin1(name));
    }

    QWidget window;
    QLineEdit* otherField = nullptr;
    QPointer<LMNewPresetPrompt> prompt;
    QPointer<LMNewPresetView> view;
    std::optional<int> response;
    QString answeredName;
};

TEST_F(LMNewPresetViewTest, ProposedNameIsKeptWhenOkIsPressedWithoutTyping) {
    showPrompt(QStringLiteral("MP4-custom0"));
    EXPECT_EQ(field()->text(), QStringLiteral("MP4-custom0"));
    QTest::mouseClick(promptButton("btnOK"), Qt::LeftButton);
    ASSERT_TRUE(response);
    EXPECT_EQ(*response, LMNewPresetPrompt::FirstButtonReturn);
    EXPECT_EQ(*response, 1000);
    EXPECT_EQ(answeredName, QStringLiteral("MP4-custom0"));
    EXPECT_FALSE(prompt->isVisible());
}

TEST_F(LMNewPresetViewTest, ClearingTheFieldGivesAnEmptyStrValue) {
    showPrompt(QStringLiteral("MP4-custom0"));
    QSignalSpy changes(view.data(), &LMNewPresetView::strValueChanged);
    field()->selectAll();
    QTest::keyClick(field(), Qt::Key_Delete);
    EXPECT_TRUE(view->strValue().isEmpty());
    ASSERT_EQ(changes.count(), 1);
    EXPECT_TRUE(changes.at(0).at(0).toString().isEmpty());
}

TEST_F(LMNewPresetViewTest, EditsInAnotherFieldRefreshStrValueFromTheViewsOwnField) {
    showPrompt(QStringLiteral("MP4-custom0"));
    QTest::keyClicks(otherField, QStringLiteral("elsewhere"));
    ASSERT_EQ(otherField->text(), QStringLiteral("elsewhere"));
    EXPECT_EQ(view->strValue(), field()->text());
    EXPECT_EQ(view->strValue(), QStringLiteral("MP4-custom0"));
    field()->end(false);
    QTest::keyClicks(field(), QStringLiteral("b"));
    EXPECT_EQ(view->strValue(), QStringLiteral("MP4-custom0b"));
}

TEST_F(LMNewPresetViewTest, EveryEditUpdatesStrValue) {
    LMNewPresetView standalone;
    QSignalSpy changes(&standalone, &LMNewPresetView::strValueChanged);
    QTest::keyClicks(standalone.textField(), QStringLiteral("abc"));
    ASSERT_EQ(changes.count(), 3);
    EXPECT_EQ(changes.at(0).at(0).toString(), QStringLiteral("a"));
    EXPECT_EQ(changes.at(2).at(0).toString(), QStringLiteral("abc"));
    EXPECT_EQ(standalone.strValue(), QStringLiteral("abc"));
    EXPECT_EQ(standalone.property("strValue").toString(), QStringLiteral("abc"));
}

TEST_F(LMNewPresetViewTest, SettingStrValueShowsItInTheFieldAndNotifiesOnce) {
    LMNewPresetView standalone;
    QSignalSpy changes(&standalone, &LMNewPresetView::strValueChanged);
    standalone.setStrValue(QStringLiteral("MKV-custom3"));
    EXPECT_EQ(standalone.textField()->text(), QStringLiteral("MKV-custom3"));
    EXPECT_EQ(changes.count(), 1);
    standalone.setStrValue(QStringLiteral("MKV-custom3"));
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(LMNewPresetViewTest, EnterInTheNameFieldAnswersOk) {
    showPrompt(QStringLiteral("MP4-custom0"));
    QTest::keyClicks(field(), QStringLiteral("Mine"));
    QTest::keyClick(field(), Qt::Key_Return);
    ASSERT_TRUE(response);
    EXPECT_EQ(*response, LMNewPresetPrompt::FirstButtonReturn);
    // The proposal was selected when the prompt opened, so typing replaced it.
    EXPECT_EQ(answeredName, QStringLiteral("Mine"));
}

TEST_F(LMNewPresetViewTest, CancelAndEscapeAnswerTheSecondButton) {
    showPrompt(QStringLiteral("MP4-custom0"));
    QTest::mouseClick(promptButton("btnCancel"), Qt::LeftButton);
    ASSERT_TRUE(response);
    EXPECT_EQ(*response, LMNewPresetPrompt::SecondButtonReturn);

    response.reset();
    showPrompt(QStringLiteral("MP4-custom0"));
    QTest::keyClick(field(), Qt::Key_Escape);
    ASSERT_TRUE(response);
    EXPECT_EQ(*response, LMNewPresetPrompt::SecondButtonReturn);
}

TEST_F(LMNewPresetViewTest, PromptIsWindowModalOverItsWindowAndGoesAwayAfterAnswering) {
    showPrompt(QStringLiteral("MP4-custom0"));
    EXPECT_TRUE(prompt->isVisible());
    EXPECT_EQ(prompt->windowModality(), Qt::WindowModal);
    EXPECT_EQ(prompt->parentWidget(), &window);
    EXPECT_EQ(prompt->messageText(), QStringLiteral("Converter"));
    QTest::mouseClick(promptButton("btnOK"), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(prompt);
}

TEST_F(LMNewPresetViewTest, TextsFollowTheLanguageButOkStaysOk) {
    showPrompt(QStringLiteral("MP4-custom0"));
    const auto* label = view->findChild<QLabel*>(QStringLiteral("lblName"));
    EXPECT_EQ(label->text(), Localized("preset name"));
    EXPECT_EQ(promptButton("btnCancel")->text(), QStringLiteral("Cancel"));
    LMFormatInternationalizationMgr::sharedObject()->setLanguage(LMFormatLanguageJapanese);
    EXPECT_EQ(label->text(), Localized("preset name"));
    EXPECT_NE(label->text(), QStringLiteral("Preset name"));
    EXPECT_EQ(promptButton("btnCancel")->text(), Localized("Cancel"));
    EXPECT_NE(Localized("Cancel"), QStringLiteral("Cancel"));
    EXPECT_EQ(promptButton("btnOK")->text(), QStringLiteral("OK"));
}
