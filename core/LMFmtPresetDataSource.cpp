// SPDX-License-Identifier: MIT
#include "LMFmtPresetDataSource.h"

#include "ILMFileProvider.h"
#include "ILMJsonReader.h"
#include "ILMLogConfig.h"
#include "ILMStringHelper.h"
#include "LMCatalogueLoadHook_p.h"
#include "LMCustomListChanges.h"
#include "LMDefaultCatalogue.h"
#include "LMFormatReadOptions.h"
#include "LMLoaderExitGuard.h"
#include "LMShownText.h"
#include "LMStoredList.h"

#include <algorithm>
#include <chrono>

namespace Lumeran {

namespace {

char FoldAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Whether ToLower(text) contains lowerKey (itself already lower-cased). Search
// runs at every keystroke over every preset, so ASCII text (nearly all of it) is
// folded on the fly, byte by byte exactly as ToLower folds it, instead of being
// copied first; other text goes through ToLower itself.
bool Contains(const std::string& text, const std::string& lowerKey) {
    const bool ascii =
        std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
    if (!ascii)
        return ILMStringHelper::ToLower(text).find(lowerKey) != std::string::npos;
    const std::size_t n = text.size();
    const std::size_t m = lowerKey.size();
    if (m > n)
        return false;
    for (std::size_t i = 0; i + m <= n; ++i) {
        std::size_t j = 0;
        while (j < m && FoldAscii(text[i + j]) == lowerKey[j])
            ++j;
        if (j == m)
            return true;
    }
    return false;
}

// Whether the text, as written or as shown in the language on screen, holds the key.
bool Matches(const std::string& text, const std::string& lowerKey) {
    if (Contains(text, lowerKey))
        return true;
    const std::string* shown = LMShownText::LowerCase(text);
    return shown && shown->find(lowerKey) != std::string::npos;
}

// Runs on the std::async worker: the whole parse stays off the caller's thread.
// Whatever goes wrong there (an exception included) ends as an empty tree and the
// one log line, never as an exception on the thread that collects the result; a
// load cancelled at exit ends quietly.
std::shared_ptr<ILMFormatNode> LoadExternalTree(const std::string& path,
                                                const std::atomic<bool>& cancel) {
    try {
        LMCatalogueLoadHook::Run(path);
        const auto json = cancel ? nullptr : ILMJsonReader::ReadJsonFile(path, nullptr);
        if (!json) {
            if (!cancel)
                ILMLogConfig::Printf("Failed load external format %s", path.c_str());
            return {};
        }
        LMFormatReadOptions options;
        options.cancel = &cancel;
        return ILMFormatNode::MallocFormatNode(json, options);
    } catch (const std::exception& e) {
        ILMLogConfig::Printf("Failed load external format %s: %s", path.c_str(), e.what());
    } catch (...) {
        ILMLogConfig::Printf("Failed load external format %s", path.c_str());
    }
    return {};
}

} // namespace

LMFmtPresetDataSource::LMFmtPresetDataSource()
    : m_recentStore(std::make_unique<LMStoredList>(GetRecentNodeKey(), LMStoredList::Kind::Recent,
                                                   MakeDefaultRecentNode())),
      m_customStore(std::make_unique<LMStoredList>(GetCustomNodeKey(), LMStoredList::Kind::Custom,
                                                   MakeDefaultCustomNode())) {
    m_defaultPreset = MakeDefaultPreset();
    m_recentRoot = LoadNode(GetRecentNodeKey());
    if (!m_recentRoot)
        m_recentRoot = MakeDefaultRecentNode();
    m_recentList = MakeRecentList(m_recentRoot);
    m_customRoot = LoadNode(GetCustomNodeKey());
    if (!m_customRoot)
        m_customRoot = MakeDefaultCustomNode();
}

// A source that goes away during a load stops it and never calls its completion
// (which may refer to what the host tears down with the source). The loader
// holds nothing of the source, so it is left to finish on its own.
LMFmtPresetDataSource::~LMFmtPresetDataSource() {
    if (m_load) {
        const std::lock_guard lock(m_load->completing);
        m_load->cancel = true;
    }
    if (m_loader.joinable())
        m_loader.detach();
}

// ---- External data ---------------------------------------------------------------

void LMFmtPresetDataSource::AsyncLoadExternalDataSource(const std::string& path,
                                                        std::function<void()> completion) {
    const std::string artworkPath =
        ILMFileProvider::AppendPathExtension(ILMFileProvider::RemovePathExtension(path), "icfg");
    m_artworkMgr = ILMArtworkImageMgr::MallocArtworkImageMgr(artworkPath, nullptr);
    auto load = std::make_shared<LMLoaderExitGuard::Load>();
    // A second load replaces the first; the first still finishes and reports.
    if (m_loader.joinable())
        m_loader.detach();
    m_load = load;
    // The tree of an earlier load gives way: until this load ends there is none.
    m_externalRoot.reset();
    // Everything below works on its own copy of the future: a completion may
    // collect the tree, and with it m_pending, before this call returns.
    const auto pending = std::async(std::launch::async, [path, load] {
                             return LoadExternalTree(path, load->cancel);
                         }).share();
    m_pending = pending;
    LMLoaderExitGuard::Watch(load, [pending](std::chrono::milliseconds timeout) {
        return pending.wait_for(timeout) == std::future_status::ready;
    });
    m_loader = std::thread([pending, load, completion = std::move(completion)] {
        pending.wait();
        const std::lock_guard lock(load->completing);
        if (completion && !load->cancel)
            completion();
    });
}

void LMFmtPresetDataSource::WaitForLoadingComplete() {
    if (m_loader.joinable())
        m_loader.join();
}

std::shared_ptr<ILMFormatNode> LMFmtPresetDataSource::GetExternalFormatPresets() {
    if (m_externalRoot)
        return m_externalRoot;
    if (m_pending.valid() &&
        m_pending.wait_for(std::chrono::milliseconds(1)) == std::future_status::ready) {
        // Collected once: a failed load leaves the root empty and the future
        // invalid, so later calls return at once without waiting again.
        auto pending = std::move(m_pending);
        m_externalRoot = pending.get();
    }
    return m_externalRoot;
}

std::shared_ptr<const ILMFmtPresetRecentItem> LMFmtPresetDataSource::GetCurrentPreset() const {
    if (!m_recentList.empty())
        return m_recentList.front();
    return GetDefaultPreset();
}

std::shared_ptr<const ILMFmtPresetRecentItem> LMFmtPresetDataSource::GetDefaultPreset() const {
    return m_defaultPreset;
}

std::shared_ptr<ILMArtworkImageGroup> LMFmtPresetDataSource::GetArtworkGroup(int faceID) const {
    if (!m_artworkMgr)
        return {};
    return m_artworkMgr->ArtworkGroup(faceID);
}

std::shared_ptr<const ILMFmtPresetRecentItem> LMFmtPresetDataSource::MakeDefaultPreset() const {
    auto node = ILMFormatNode::MallocFormatNode(std::shared_ptr<ILMFormatNode>());
    node->SetFaceID(ILMArtworkImageMgr::FormatFaceIDMP4);
    node->SetTitle("MP4");
    node->SetDescription("MP4 Format");
    auto preset = ILMFormatPreset::MallocFormatPreset(LMFormatNameMP4, "");
    if (preset) {
        preset->SetFaceID(ILMArtworkImageMgr::FormatFaceIDMP4);
        node->AddFormatPreset(preset);
    }
    return ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, node);
}

// ---- Persistence -----------------------------------------------------------------

LMStoredList& LMFmtPresetDataSource::StoreFor(const std::string& key) const {
    return key == GetRecentNodeKey() ? *m_recentStore : *m_customStore;
}

// Reads what can be read; a value that could not be read in full has been put
// aside by the store before anything can overwrite it.
std::shared_ptr<ILMFormatNode> LMFmtPresetDataSource::LoadNode(const std::string& key) const {
    return StoreFor(key).Load();
}

void LMFmtPresetDataSource::SaveNode(std::shared_ptr<const ILMFormatNode> node,
                                     const std::string& key) const {
    if (!node || key.empty())
        return;
    LMStoredList& store = StoreFor(key);
    std::shared_ptr<ILMFormatNode> merged;
    m_lastSaveOk = store.Save(node, &merged);
    (key == GetRecentNodeKey() ? m_recentUnsaved : m_customUnsaved) = !m_lastSaveOk;
    if (!m_lastSaveOk) {
        if (m_saveFailureHandler)
            m_saveFailureHandler("Could not save " + key + ": " + store.LastError());
        return;
    }
    if (merged)
        ReplaceRoot(key, std::move(merged));
}

// Another process saved too: what is in memory becomes what was written.
void LMFmtPresetDataSource::ReplaceRoot(const std::string& key,
                                        std::shared_ptr<ILMFormatNode> root) const {
    if (key == GetRecentNodeKey()) {
        m_recentRoot = std::move(root);
        m_recentList = MakeRecentList(m_recentRoot);
    } else {
        m_customRoot = std::move(root);
    }
}

// Saves key's list, then the other one too when its last save failed.
void LMFmtPresetDataSource::SaveWithRetry(const std::string& key) const {
    const bool recent = key == GetRecentNodeKey();
    SaveNode(recent ? m_recentRoot : m_customRoot, key);
    const bool ok = m_lastSaveOk;
    if (recent ? m_customUnsaved : m_recentUnsaved)
        SaveNode(recent ? m_customRoot : m_recentRoot,
                 recent ? GetCustomNodeKey() : GetRecentNodeKey());
    m_lastSaveOk = ok && m_lastSaveOk;
}

bool LMFmtPresetDataSource::LastSaveSucceeded() const {
    return m_lastSaveOk;
}

void LMFmtPresetDataSource::SetSaveFailureHandler(
    std::function<void(const std::string& message)> handler) {
    m_saveFailureHandler = std::move(handler);
}

std::vector<LMPresetBackup> LMFmtPresetDataSource::GetBackups(StoredList list) const {
    return (list == StoredList::Recent ? m_recentStore : m_customStore)->Backups();
}

bool LMFmtPresetDataSource::RestoreBackup(StoredList list, int index) {
    const bool recent = list == StoredList::Recent;
    const LMStoredList& store = recent ? *m_recentStore : *m_customStore;
    const auto backups = store.Backups();
    if (index < 0 || index >= static_cast<int>(backups.size()))
        return false;
    auto root = store.ReadBackup(backups[static_cast<std::size_t>(index)]);
    if (!root)
        return false;
    ReplaceRoot(recent ? GetRecentNodeKey() : GetCustomNodeKey(), std::move(root));
    return true;
}

std::string LMFmtPresetDataSource::GetRecentNodeKey() const {
    return "recent_format_preset";
}

std::string LMFmtPresetDataSource::GetCustomNodeKey() const {
    return "custom_format_preset";
}

std::shared_ptr<ILMFormatNode> LMFmtPresetDataSource::MakeDefaultRecentNode() const {
    return ILMFormatNode::MallocFormatNode("Recent", "Recent Selection",
                                           ILMArtworkImageMgr::CategoryFaceIDRecentList);
}

std::shared_ptr<ILMFormatNode> LMFmtPresetDataSource::MakeDefaultCustomNode() const {
    return ILMFormatNode::MallocFormatNode("Custom", "Custom Preset",
                                           ILMArtworkImageMgr::CategoryFaceIDCustomize);
}

// ---- Recent list -----------------------------------------------------------------

ILMFmtPresetDataSource::RecentList
LMFmtPresetDataSource::MakeRecentList(std::shared_ptr<const ILMFormatNode> recentNode) const {
    RecentList result;
    const int count = recentNode->ChildCount();
    result.reserve(static_cast<std::size_t>(count));
    // The root keeps its children oldest first; the list is newest first.
    for (int i = 0; i < count; ++i) {
        const auto child = recentNode->ChildAt(count - 1 - i);
        const auto preset = ILMFormatNode::FirstFormatPreset(child);
        if (child && preset)
            result.push_back(ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(preset, child));
    }
    return result;
}

ILMFmtPresetDataSource::RecentList LMFmtPresetDataSource::GetRecentList() const {
    return m_recentList;
}

bool LMFmtPresetDataSource::PushRecentItem(std::shared_ptr<const ILMFmtPresetRecentItem> item) {
    // Nothing to copy from: refuse rather than store an entry that cannot be shown.
    if (!item || !item->FormatNode() || !item->FormatPreset())
        return false;
    const auto equal = std::find_if(m_recentList.begin(), m_recentList.end(),
                                    [&](const auto& entry) { return item->IsEqualTo(entry); });
    if (equal != m_recentList.end()) {
        const auto oldNode = (*equal)->FormatNode();
        m_recentList.erase(equal);
        m_recentRoot->RemoveChild(oldNode);
    }
    // The list keeps its own copies: later changes to the caller's objects (an
    // edited catalogue preset) must not rewrite the history.
    auto newNode = item->FormatNode()->Clone(ILMFormatNode::CloneAttributes);
    auto newPreset = item->FormatPreset()->Clone();
    newNode->AddFormatPreset(newPreset);
    newNode->SetParent(m_recentRoot);
    m_recentRoot->AddChild(newNode);
    m_recentList.insert(m_recentList.begin(),
                        ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(newPreset, newNode));
    return true;
}

bool LMFmtPresetDataSource::PushRecentItem(std::shared_ptr<const ILMFormatPreset> preset,
                                           std::shared_ptr<const ILMFormatNode> node) {
    return PushRecentItem(
        ILMFmtPresetRecentItem::MallocFmtPresetRecentItem(std::move(preset), std::move(node)));
}

// Both removals pass the entry's newest-first list position to the root as it is,
// although the root counts its children oldest first. Lists written by earlier
// versions were shaped by this, so it stays.
bool LMFmtPresetDataSource::RemoveRecentItem(const std::string& title) {
    const auto found = std::find_if(m_recentList.begin(), m_recentList.end(),
                                    [&](const auto& entry) { return entry->Title() == title; });
    if (found == m_recentList.end())
        return false;
    m_recentRoot->RemoveChildAt(static_cast<int>(found - m_recentList.begin()));
    m_recentList.erase(found);
    return true;
}

bool LMFmtPresetDataSource::RemoveRecentItem(std::shared_ptr<const ILMFmtPresetRecentItem> item) {
    const auto found = std::find(m_recentList.begin(), m_recentList.end(), item);
    if (!item || found == m_recentList.end())
        return false;
    m_recentRoot->RemoveChildAt(static_cast<int>(found - m_recentList.begin()));
    m_recentList.erase(found);
    return true;
}

void LMFmtPresetDataSource::SaveRecentList() const {
    SaveWithRetry(GetRecentNodeKey());
}

// ---- Custom list -----------------------------------------------------------------

std::shared_ptr<ILMFormatNode> LMFmtPresetDataSource::GetCustomList() {
    return m_customRoot;
}

std::shared_ptr<const ILMFormatNode> LMFmtPresetDataSource::GetCustomList() const {
    return m_customRoot;
}

void LMFmtPresetDataSource::AddCustomPreset(std::shared_ptr<const ILMFormatPreset> preset,
                                            std::shared_ptr<const ILMFormatNode> node) {
    if (!preset || !node)
        return;
    LMCustomListChanges::File(m_customRoot, node, preset);
}

bool LMFmtPresetDataSource::RemoveCustomPreset(std::shared_ptr<const ILMFormatPreset> preset,
                                               std::shared_ptr<const ILMFormatNode> node) {
    if (!preset || !node)
        return false;
    const auto child = m_customRoot->FindChild(node->Title());
    if (!child)
        return false;
    const bool removed = child->RemoveFormatPreset(preset->Title());
    if (removed && child->FormatPresetCount() == 0) {
        // A group that still carries presets this version cannot read is only
        // set aside: it leaves the list but is saved again as it was.
        if (ILMFormatNode::UnreadableEntryCount(child) > 0)
            ILMFormatNode::SetChildAside(m_customRoot, child->Title());
        else
            m_customRoot->RemoveChild(child->Title());
    }
    return removed;
}

void LMFmtPresetDataSource::SaveCustomList() const {
    SaveWithRetry(GetCustomNodeKey());
}

LMPresetFileResult
LMFmtPresetDataSource::ExportCustomPresets(const std::string& path,
                                           const std::vector<LMCustomPresetRef>& presets) const {
    return LMCustomListChanges::Export(m_customRoot, path, presets);
}

LMPresetFileResult LMFmtPresetDataSource::ImportCustomPresets(const std::string& path,
                                                              ImportClash clash) {
    return LMCustomListChanges::Import(m_customRoot, path, clash);
}

bool LMFmtPresetDataSource::RenameCustomPreset(const std::string& group, const std::string& title,
                                               const std::string& newTitle, std::string* error) {
    return LMCustomListChanges::Rename(m_customRoot, {group, title}, newTitle, error);
}

std::string LMFmtPresetDataSource::DuplicateCustomPreset(const std::string& group,
                                                         const std::string& title) {
    return LMCustomListChanges::Duplicate(m_customRoot, {group, title});
}

bool LMFmtPresetDataSource::MoveCustomPreset(const std::string& group, const std::string& title,
                                             MoveDirection direction) {
    return LMCustomListChanges::Move(m_customRoot, {group, title}, direction);
}

LMPresetArgumentsResult
LMFmtPresetDataSource::AddCustomPresetFromArguments(const std::string& name,
                                                    const std::vector<std::string>& arguments) {
    auto catalogue = GetExternalFormatPresets();
    if (!catalogue) {
        const auto json = ILMJsonReader::ReadJsonFile(LMDefaultCatalogue::Path(), nullptr);
        catalogue = json ? ILMFormatNode::MallocFormatNode(json) : nullptr;
    }
    return LMCustomListChanges::FromArguments(m_customRoot, catalogue, name, arguments);
}

// ---- Search ----------------------------------------------------------------------

std::shared_ptr<ILMFormatNode>
LMFmtPresetDataSource::SearchFormatPresets(std::shared_ptr<const ILMFormatNode> node,
                                           const std::string& key,
                                           std::shared_ptr<ILMFormatNode> parent) {
    if (key.empty() || !node)
        return {};
    const std::string lowerKey = ILMStringHelper::ToLower(key);
    auto result = node->Clone(ILMFormatNode::CloneAttributes);
    result->SetParent(std::move(parent));
    const int presetCount = node->FormatPresetCount();
    for (int i = 0; i < presetCount; ++i) {
        const auto preset = node->FormatPresetAt(i);
        if (Matches(preset->Title(), lowerKey) || Matches(preset->Description(), lowerKey))
            result->AddFormatPreset(preset->Clone());
    }
    const int childCount = node->ChildCount();
    for (int j = 0; j < childCount; ++j) {
        const auto child = node->ChildAt(j);
        if (Matches(child->Title(), lowerKey)) {
            // A matching group is shown whole, so the user sees everything in it.
            auto copy = child->Clone(ILMFormatNode::CloneAll);
            copy->SetParent(result);
            result->AddChild(std::move(copy));
            continue;
        }
        auto sub = SearchFormatPresets(child, key, result);
        if (sub && (sub->FormatPresetCount() > 0 || sub->ChildCount() > 0))
            result->AddChild(std::move(sub));
    }
    return result;
}

ILMFmtPresetDataSource::RecentList
LMFmtPresetDataSource::SearchFormatPresets(const RecentList& list, const std::string& key) {
    if (key.empty())
        return list;
    const std::string lowerKey = ILMStringHelper::ToLower(key);
    RecentList result;
    for (const auto& entry : list) {
        if (entry && (Matches(entry->Title(), lowerKey) || Matches(entry->Description(), lowerKey)))
            result.push_back(entry);
    }
    return result;
}

} // namespace Lumeran
