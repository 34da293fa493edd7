#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"

#include <QMainWindow>

#include <memory>

class QLabel;
class QPlainTextEdit;
class QPushButton;

// The demo's main window: the host side of the framework. Its "Format" button
// shows the current choice and pops the selector up under itself; the choice
// comes back through the facade's callback and is shown with its FFmpeg
// arguments.
class LMDemoHostWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit LMDemoHostWindow(QWidget* parent = nullptr);

    QPushButton* formatButton() const { return m_formatButton; }
    std::shared_ptr<const Lumeran::ILMFormatPreset> currentPreset() const { return m_preset; }
    std::shared_ptr<const Lumeran::ILMFormatNode> currentNode() const { return m_node; }
    // How many times the popup's callback ran, and whether the last one was a dismissal.
    int completions() const { return m_completions; }

    void popupFormats();
    void showChoice(std::shared_ptr<const Lumeran::ILMFormatPreset> preset,
                    std::shared_ptr<const Lumeran::ILMFormatNode> node);

private:
    QPushButton* m_formatButton;
    QLabel* m_titleLabel;
    QLabel* m_descriptionLabel;
    QPlainTextEdit* m_arguments;
    QLabel* m_status;
    std::shared_ptr<const Lumeran::ILMFormatPreset> m_preset;
    std::shared_ptr<const Lumeran::ILMFormatNode> m_node;
    int m_completions = 0;
};
