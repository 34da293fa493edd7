// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <functional>
#include <memory>

class LMFormatInternationalizationMgr;
class LMNewPresetView;

// The question "name of the new preset?" shown over the editor: a bold message,
// an informative line, an accessory view and the buttons "OK" and "Cancel"; the
// window title is set apart from the message (the editor shows the
// application's name there, and only there). It
// is window-modal, so only the window it is shown over is blocked, and it
// answers with the code of the button that ended it.
class LMNewPresetPrompt : public QDialog {
    Q_OBJECT

public:
    // Response codes, numbered like the buttons: "OK" is the first button.
    static constexpr int FirstButtonReturn = 1000;
    static constexpr int SecondButtonReturn = 1001;

    explicit LMNewPresetPrompt(QWidget* parent = nullptr);
    ~LMNewPresetPrompt() override;

    QString messageText() const;
    void setMessageText(const QString& text);
    QString informativeText() const;
    void setInformativeText(const QString& text);

    // Shown between the texts and the buttons; the prompt takes ownership and
    // gives it the keyboard focus when shown.
    LMNewPresetView* accessoryView() const;
    void setAccessoryView(LMNewPresetView* view);

    // Shows the prompt window-modal over window and returns at once. When the
    // user answers, completionHandler receives the response code, and the
    // prompt deletes itself afterwards.
    void beginSheetModalForWindow(QWidget* window, std::function<void(int)> completionHandler);

    LMFormatInternationalizationMgr* lizationMgr() const;

    // Escape and the window's close control answer as the second button does.
    void reject() override;

private:
    void languageDidChanged();

    struct Private;
    std::unique_ptr<Private> d;
};
