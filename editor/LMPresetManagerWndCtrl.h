// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFmtPresetDataSource.h"
#include "LMMediaFormatPopupExport.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <memory>

class LMFormatInternationalizationMgr;
class QTreeWidgetItem;

// The window in which users look after their custom presets: the presets by
// format, with Rename (also F2), Duplicate, Move Up, Move Down and Remove for
// the one selected, and Import… and Export… for preset files. Every change goes
// to the data source and is saved at once; the line under the list says what
// an import or export did, or why a change was refused.
//
// Built from standard widgets with the names of what they do, so the keyboard
// reaches everything and a screen reader reads it; the texts follow the popup's
// language.
class LMMEDIAFORMATPOPUP_EXPORT LMPresetManagerWndCtrl : public QDialog {
    Q_OBJECT

public:
    // Asks for the file to import from (save = false) or export to (save =
    // true); an empty text when the user cancelled.
    using FileChooser = std::function<QString(QWidget* parent, bool save)>;

    explicit LMPresetManagerWndCtrl(
        std::shared_ptr<Lumeran::ILMFmtPresetDataSource> source = nullptr,
        QWidget* parent = nullptr);
    ~LMPresetManagerWndCtrl() override;

    // The one window of the process, over the shared data source; made on first use.
    static LMPresetManagerWndCtrl* shared();

    // Reads the custom list again and shows the window, raised, with the list
    // focused.
    void showManager();
    // Replaces the file dialogs (tests answer with a path of their own).
    void setFileChooser(FileChooser chooser);
    // The line that says what the last import, export or refused change did.
    QString statusText() const;

    LMFormatInternationalizationMgr* lizationMgr() const;

private:
    void reload();
    void languageDidChanged();
    void updateButtons();
    void renameSelected();
    void itemRenamed(QTreeWidgetItem* item);
    void duplicateSelected();
    void moveSelected(Lumeran::ILMFmtPresetDataSource::MoveDirection direction);
    void removeSelected();
    void importFile();
    void exportFile();

    struct Private;
    std::unique_ptr<Private> d;
};
