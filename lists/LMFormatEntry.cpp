// SPDX-License-Identifier: MIT
#include "LMFormatEntry.h"

#include "ILMArtworkImageGroupAdapter.h"
#include "ILMFmtPresetDataSource.h"
#include "LMFormatInternationalizationMgr.h"

namespace {

const QString kSameAsSource = QStringLiteral("Same as source");

QString localized(const std::string& key) {
    return LMFormatInternationalizationMgr::sharedObject()->stringForKey(
        QString::fromStdString(key));
}

} // namespace

LMFormatEntry
LMFormatEntry::fromRecentItem(std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem> item) {
    LMFormatEntry entry;
    entry.m_recentItem = std::move(item);
    return entry;
}

LMFormatEntry LMFormatEntry::fromNode(std::shared_ptr<const Lumeran::ILMFormatNode> node) {
    LMFormatEntry entry;
    entry.m_node = std::move(node);
    return entry;
}

LMFormatEntry LMFormatEntry::fromPreset(std::shared_ptr<const Lumeran::ILMFormatPreset> preset) {
    LMFormatEntry entry;
    entry.m_preset = std::move(preset);
    return entry;
}

const std::shared_ptr<const Lumeran::ILMFmtPresetRecentItem>& LMFormatEntry::recentItem() const {
    return m_recentItem;
}

const std::shared_ptr<const Lumeran::ILMFormatNode>& LMFormatEntry::node() const {
    return m_node;
}

const std::shared_ptr<const Lumeran::ILMFormatPreset>& LMFormatEntry::preset() const {
    return m_preset;
}

QString LMFormatEntry::title() const {
    const LMFormatInternationalizationMgr* mgr = LMFormatInternationalizationMgr::sharedObject();
    QString text;
    if (m_recentItem) {
        // A recent title is composed from node and preset titles; only this
        // phrase inside it is a key of its own.
        text = QString::fromStdString(m_recentItem->Title());
        if (text.contains(kSameAsSource))
            text.replace(kSameAsSource, mgr->stringForKey(kSameAsSource));
    } else if (m_node) {
        text = localized(m_node->Title());
    } else if (m_preset) {
        text = localized(m_preset->Title());
    }
    return mgr->stringForKey(text);
}

QString LMFormatEntry::description() const {
    QString text;
    if (m_recentItem)
        text = localized(m_recentItem->Description());
    else if (m_node)
        text = localized(m_node->Description());
    else if (m_preset)
        text = localized(m_preset->Description());
    return LMFormatInternationalizationMgr::sharedObject()->stringForKey(text);
}

bool LMFormatEntry::visibleDescription() const {
    return !m_node;
}

QIcon LMFormatEntry::image() const {
    std::shared_ptr<Lumeran::ILMArtworkImageGroup> group;
    if (m_recentItem)
        group = m_recentItem->GetArtworkGroup();
    else if (m_node)
        group = Lumeran::ILMFmtPresetDataSource::Shared()->GetArtworkGroup(m_node->FaceID());
    else if (m_preset)
        group = Lumeran::ILMFmtPresetDataSource::Shared()->GetArtworkGroup(m_preset->FaceID());
    if (!group)
        return {};
    return Lumeran::ILMArtworkImageGroupAdapter::imageFromArtworkImageGroup(group);
}
