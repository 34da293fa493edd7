// SPDX-License-Identifier: MIT
#pragma once

#include <LMMediaFormatPopup/ILMFormatNode.h>
#include <LMMediaFormatPopup/ILMFormatPreset.h>

#include <QMainWindow>

#include <memory>

class LMDemoConverter;
class QActionGroup;
class QFormLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

// The demo's main window, a small converter and the host side of the framework:
// a source file; the "Format" button that shows the current choice and pops the
// selector up under itself; "Edit…" that opens the preset editor on it;
// "Manage presets…" that opens the window of the user's custom presets; a
// language menu; and "Convert", which runs FFmpeg with the chosen preset.
class LMDemoHostWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit LMDemoHostWindow(QWidget* parent = nullptr);
    ~LMDemoHostWindow() override;

    // The application's names, which also name its settings file and the
    // popup's prompts; called once, before the window is made.
    static void nameApplication();

    QPushButton* formatButton() const { return m_formatButton; }
    QPushButton* editButton() const { return m_editButton; }
    QPushButton* manageButton() const { return m_manageButton; }
    QPushButton* convertButton() const { return m_convertButton; }
    QPushButton* cancelButton() const { return m_cancelButton; }
    LMDemoConverter* converter() const { return m_converter; }
    std::shared_ptr<Lumeran::ILMFormatPreset> currentPreset() const { return m_preset; }
    std::shared_ptr<const Lumeran::ILMFormatNode> currentNode() const { return m_node; }

    void setSource(const QString& path);
    void popupFormats();
    void editFormat();
    void convert();
    // Takes a choice from the popup; empty handles (a dismissal) keep the last one.
    void showChoice(std::shared_ptr<const Lumeran::ILMFormatPreset> preset,
                    std::shared_ptr<const Lumeran::ILMFormatNode> node);

protected:
    void changeEvent(QEvent* event) override;

private:
    QFormLayout* buildForm();
    // The format button's look: left-aligned, in the colours of the palette.
    void styleFormatButton();
    QHBoxLayout* buildConvertRow();
    void connectConverter();
    void chooseSource();
    void buildLanguageMenu();
    void refreshChoice();
    void conversionFinished(bool ok, const QString& outputOrError);

    QLineEdit* m_source;
    QPushButton* m_formatButton;
    QPushButton* m_editButton;
    QPushButton* m_manageButton;
    QLabel* m_description;
    QPlainTextEdit* m_arguments;
    QPushButton* m_convertButton;
    QPushButton* m_cancelButton;
    QProgressBar* m_progress;
    QLabel* m_status;
    QActionGroup* m_languages;
    LMDemoConverter* m_converter;
    // The host's own copy of the chosen preset: the editor writes into it.
    std::shared_ptr<Lumeran::ILMFormatPreset> m_preset;
    std::shared_ptr<const Lumeran::ILMFormatNode> m_node;
};
