// SPDX-License-Identifier: MIT
#include "LMPresetManagerWndCtrl.h"

#include "LMFormatInternationalizationMgr.h"
#include "LMSingleton.h"
#include "ui_LMPresetManagerWndCtrl.h"

#include <QFileDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>

using Lumeran::ILMFmtPresetDataSource;
using Lumeran::ILMFormatNode;
using Direction = ILMFmtPresetDataSource::MoveDirection;
using Clash = ILMFmtPresetDataSource::ImportClash;

namespace {

constinit Lumeran::LMSingleton<LMPresetManagerWndCtrl> s_manager{
    [] { return std::make_shared<LMPresetManagerWndCtrl>(); }};

// Where a preset item keeps the title it had before an edit, so a refused
// rename can be put back.
constexpr int TitleRole = Qt::UserRole + 1;

QString FromStd(const std::string& text) {
    return QString::fromStdString(text);
}

QString ChooseWithDialog(QWidget* parent, bool save, const QString& filter) {
    if (save)
        return QFileDialog::getSaveFileName(parent, QString(), QStringLiteral("presets.json"),
                                            filter);
    return QFileDialog::getOpenFileName(parent, QString(), QString(), filter);
}

} // namespace

struct LMPresetManagerWndCtrl::Private {
    Ui::LMPresetManagerWndCtrl ui;
    std::shared_ptr<ILMFmtPresetDataSource> source;
    FileChooser chooser;

    // The selected preset item, or null when a group (or nothing) is selected.
    QTreeWidgetItem* selectedPreset() const {
        QTreeWidgetItem* item = ui.treePresets->currentItem();
        return item && item->parent() ? item : nullptr;
    }
    static std::string groupOf(const QTreeWidgetItem* item) {
        return item->parent()->text(0).toStdString();
    }
    static std::string titleOf(const QTreeWidgetItem* item) {
        return item->data(0, TitleRole).toString().toStdString();
    }
    QTreeWidgetItem* find(const std::string& group, const std::string& title) const {
        for (int i = 0; i < ui.treePresets->topLevelItemCount(); ++i) {
            QTreeWidgetItem* node = ui.treePresets->topLevelItem(i);
            if (node->text(0).toStdString() != group)
                continue;
            for (int j = 0; j < node->childCount(); ++j) {
                if (titleOf(node->child(j)) == title)
                    return node->child(j);
            }
        }
        return nullptr;
    }
    QString text(const char* key) const {
        return LMFormatInternationalizationMgr::sharedObject()->stringForKey(
            QString::fromUtf8(key));
    }
};

LMPresetManagerWndCtrl::LMPresetManagerWndCtrl(std::shared_ptr<ILMFmtPresetDataSource> source,
                                               QWidget* parent)
    : QDialog(parent), d(std::make_unique<Private>()) {
    d->ui.setupUi(this);
    d->source = source ? std::move(source) : ILMFmtPresetDataSource::Shared();
    QTreeWidget* tree = d->ui.treePresets;
    connect(tree, &QTreeWidget::currentItemChanged, this, &LMPresetManagerWndCtrl::updateButtons);
    connect(tree, &QTreeWidget::itemChanged, this, &LMPresetManagerWndCtrl::itemRenamed);
    connect(d->ui.btnRename, &QPushButton::clicked, this, &LMPresetManagerWndCtrl::renameSelected);
    connect(d->ui.btnDuplicate, &QPushButton::clicked, this,
            &LMPresetManagerWndCtrl::duplicateSelected);
    connect(d->ui.btnMoveUp, &QPushButton::clicked, this, [this] { moveSelected(Direction::Up); });
    connect(d->ui.btnMoveDown, &QPushButton::clicked, this,
            [this] { moveSelected(Direction::Down); });
    connect(d->ui.btnRemove, &QPushButton::clicked, this, &LMPresetManagerWndCtrl::removeSelected);
    connect(d->ui.btnImport, &QPushButton::clicked, this, &LMPresetManagerWndCtrl::importFile);
    connect(d->ui.btnExport, &QPushButton::clicked, this, &LMPresetManagerWndCtrl::exportFile);
    connect(d->ui.buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(lizationMgr(), &LMFormatInternationalizationMgr::languageDidChange, this,
            &LMPresetManagerWndCtrl::languageDidChanged);
    d->ui.buttonBox->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("btnClose"));
    languageDidChanged();
    reload();
}

LMPresetManagerWndCtrl::~LMPresetManagerWndCtrl() = default;

LMPresetManagerWndCtrl* LMPresetManagerWndCtrl::shared() {
    return s_manager.Instance().get();
}

LMFormatInternationalizationMgr* LMPresetManagerWndCtrl::lizationMgr() const {
    return LMFormatInternationalizationMgr::sharedObject();
}

void LMPresetManagerWndCtrl::showManager() {
    reload();
    d->ui.lblStatus->clear();
    show();
    raise();
    activateWindow();
    d->ui.treePresets->setFocus();
}

void LMPresetManagerWndCtrl::setFileChooser(FileChooser chooser) {
    d->chooser = std::move(chooser);
}

QString LMPresetManagerWndCtrl::statusText() const {
    return d->ui.lblStatus->text();
}

// ---- Texts ------------------------------------------------------------------------

void LMPresetManagerWndCtrl::languageDidChanged() {
    setWindowTitle(d->text("Manage Presets"));
    const QString listName = d->text("Your custom presets, by format");
    d->ui.treePresets->setAccessibleName(listName);
    d->ui.treePresets->setToolTip(listName);
    const std::pair<QPushButton*, const char*> buttons[] = {
        {d->ui.btnRename, "Rename"},  {d->ui.btnDuplicate, "Duplicate"},
        {d->ui.btnMoveUp, "Move Up"}, {d->ui.btnMoveDown, "Move Down"},
        {d->ui.btnRemove, "Remove"},  {d->ui.btnImport, "Import…"},
        {d->ui.btnExport, "Export…"},
    };
    for (const auto& [button, key] : buttons) {
        button->setText(d->text(key));
        button->setAccessibleName(d->text(key));
    }
    d->ui.buttonBox->button(QDialogButtonBox::Close)->setText(d->text("Close"));
    d->ui.lblClash->setText(d->text("Names already in use on import:"));
    d->ui.cmbClash->setAccessibleName(d->text("Names already in use on import:"));
    const int clash = std::max(d->ui.cmbClash->currentIndex(), 0);
    const QSignalBlocker blocker(d->ui.cmbClash);
    d->ui.cmbClash->clear();
    // In the order of ILMFmtPresetDataSource::ImportClash.
    d->ui.cmbClash->addItem(d->text("Keep both"));
    d->ui.cmbClash->addItem(d->text("Skip"));
    d->ui.cmbClash->addItem(d->text("Replace"));
    d->ui.cmbClash->setCurrentIndex(clash);
}

// ---- The list ---------------------------------------------------------------------

void LMPresetManagerWndCtrl::reload() {
    QTreeWidget* tree = d->ui.treePresets;
    const QTreeWidgetItem* current = d->selectedPreset();
    const std::string group = current ? Private::groupOf(current) : std::string();
    const std::string title = current ? Private::titleOf(current) : std::string();
    {
        const QSignalBlocker blocker(tree);
        tree->clear();
        const auto root = std::as_const(*d->source).GetCustomList();
        for (int i = 0; root && i < root->ChildCount(); ++i) {
            const auto node = root->ChildAt(i);
            auto* nodeItem = new QTreeWidgetItem(tree, {FromStd(node->Title())});
            nodeItem->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            for (int j = 0; j < node->FormatPresetCount(); ++j) {
                const auto preset = node->FormatPresetAt(j);
                auto* item = new QTreeWidgetItem(nodeItem, {FromStd(preset->Title())});
                item->setData(0, TitleRole, FromStd(preset->Title()));
                item->setToolTip(0, FromStd(preset->Description()));
                item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable);
            }
        }
        tree->expandAll();
    }
    QTreeWidgetItem* again = d->find(group, title);
    if (!again && tree->topLevelItemCount() > 0)
        again = tree->topLevelItem(0)->child(0);
    tree->setCurrentItem(again);
    updateButtons();
}

void LMPresetManagerWndCtrl::updateButtons() {
    QTreeWidgetItem* item = d->selectedPreset();
    const int index = item ? item->parent()->indexOfChild(item) : -1;
    d->ui.btnRename->setEnabled(item != nullptr);
    d->ui.btnDuplicate->setEnabled(item != nullptr);
    d->ui.btnRemove->setEnabled(item != nullptr);
    d->ui.btnMoveUp->setEnabled(item && index > 0);
    d->ui.btnMoveDown->setEnabled(item && index + 1 < item->parent()->childCount());
    d->ui.btnExport->setEnabled(d->ui.treePresets->topLevelItemCount() > 0);
}

// ---- Changes to one preset ----------------------------------------------------------

void LMPresetManagerWndCtrl::renameSelected() {
    if (QTreeWidgetItem* item = d->selectedPreset())
        d->ui.treePresets->editItem(item, 0);
}

void LMPresetManagerWndCtrl::itemRenamed(QTreeWidgetItem* item) {
    if (!item || !item->parent())
        return;
    const std::string title = Private::titleOf(item);
    const std::string newTitle = item->text(0).toStdString();
    if (newTitle == title)
        return;
    // The reasons a name is refused, said in the window's language; an empty
    // name is taken back without a word, as an edit left empty is.
    const std::string group = Private::groupOf(item);
    const auto node = std::as_const(*d->source).GetCustomList()->FindChild(group);
    QString refusal;
    if (node && node->FindFormatPreset(newTitle))
        refusal = d->text("Another preset of this format already has this name.");
    else if (!ILMFormatNode::IsAcceptableText(newTitle))
        refusal = d->text("Names are limited to %1 characters.").arg(ILMFormatNode::MaxTextLength);
    std::string error;
    if (!refusal.isEmpty() || newTitle.empty() ||
        !d->source->RenameCustomPreset(group, title, newTitle, &error)) {
        const QSignalBlocker blocker(d->ui.treePresets);
        item->setText(0, FromStd(title));
        d->ui.lblStatus->setText(refusal.isEmpty() ? FromStd(error) : refusal);
        return;
    }
    d->source->SaveCustomList();
    {
        const QSignalBlocker blocker(d->ui.treePresets);
        item->setData(0, TitleRole, FromStd(newTitle));
    }
    d->ui.lblStatus->clear();
}

void LMPresetManagerWndCtrl::duplicateSelected() {
    const QTreeWidgetItem* item = d->selectedPreset();
    if (!item)
        return;
    const std::string group = Private::groupOf(item);
    const std::string copy = d->source->DuplicateCustomPreset(group, Private::titleOf(item));
    if (copy.empty())
        return;
    d->source->SaveCustomList();
    reload();
    d->ui.treePresets->setCurrentItem(d->find(group, copy));
}

void LMPresetManagerWndCtrl::moveSelected(Direction direction) {
    const QTreeWidgetItem* item = d->selectedPreset();
    if (!item ||
        !d->source->MoveCustomPreset(Private::groupOf(item), Private::titleOf(item), direction))
        return;
    d->source->SaveCustomList();
    reload();
}

void LMPresetManagerWndCtrl::removeSelected() {
    QTreeWidgetItem* item = d->selectedPreset();
    if (!item)
        return;
    const auto root = d->source->GetCustomList();
    const auto node = root->FindChild(Private::groupOf(item));
    const auto preset = node ? node->FindFormatPreset(Private::titleOf(item)) : nullptr;
    const int index = item->parent()->indexOfChild(item);
    const int group = d->ui.treePresets->indexOfTopLevelItem(item->parent());
    if (!preset || !d->source->RemoveCustomPreset(preset, node))
        return;
    d->source->SaveCustomList();
    d->ui.treePresets->setCurrentItem(nullptr);
    reload();
    // The selection stays where it was, on the preset that took the place.
    QTreeWidget* tree = d->ui.treePresets;
    QTreeWidgetItem* nodeItem = tree->topLevelItem(std::min(group, tree->topLevelItemCount() - 1));
    if (nodeItem)
        tree->setCurrentItem(nodeItem->child(std::min(index, nodeItem->childCount() - 1)));
}

// ---- Files ------------------------------------------------------------------------

void LMPresetManagerWndCtrl::importFile() {
    const QString filter = d->text("Preset files") + QStringLiteral(" (*.json)");
    const QString path =
        d->chooser ? d->chooser(this, false) : ChooseWithDialog(this, false, filter);
    if (path.isEmpty())
        return;
    const auto clash = static_cast<Clash>(d->ui.cmbClash->currentIndex());
    const auto result = d->source->ImportCustomPresets(path.toStdString(), clash);
    if (!result.ok) {
        d->ui.lblStatus->setText(
            d->text("The file could not be imported: %1").arg(FromStd(result.message)));
        return;
    }
    d->source->SaveCustomList();
    reload();
    d->ui.lblStatus->setText(d->text("Imported: %1. Replaced: %2. Skipped: %3.")
                                 .arg(result.added + result.renamed)
                                 .arg(result.replaced)
                                 .arg(result.skipped));
}

void LMPresetManagerWndCtrl::exportFile() {
    const QString filter = d->text("Preset files") + QStringLiteral(" (*.json)");
    const QString path = d->chooser ? d->chooser(this, true) : ChooseWithDialog(this, true, filter);
    if (path.isEmpty())
        return;
    const auto result = d->source->ExportCustomPresets(path.toStdString(), {});
    if (!result.ok) {
        d->ui.lblStatus->setText(
            d->text("The presets could not be exported: %1").arg(FromStd(result.message)));
        return;
    }
    d->ui.lblStatus->setText(d->text("Exported: %1.").arg(result.written));
}
