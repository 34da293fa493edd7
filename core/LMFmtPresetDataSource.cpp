#include "LMFmtPresetDataSource.h"

#include "ILMAppSettings.h"
#include "ILMBase64Codec.h"
#include "ILMFileProvider.h"
#include "ILMJsonReader.h"
#include "ILMJsonWriter.h"
#include "ILMLogConfig.h"
#include "ILMStringHelper.h"

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

// Runs on the std::async worker: the whole parse stays off the caller's thread.
std::shared_ptr<ILMFormatNode> LoadExternalTree(const std::string& path) {
    const auto json = ILMJsonReader::ReadJsonFile(path, nullptr);
    if (json)
        return ILMFormatNode::MallocFormatNode(json);
    ILMLogConfig::Printf("Failed load external format %s", path.c_str());
    return {};
}

} // namespace

LMFmtPresetDataSource::LMFmtPresetDataSource() {
    m_defaultPreset = MakeDefaultPreset();
    m_recentRoot = LoadNode(GetRecentNodeKey());
    if (!m_recentRoot)
        m_recentRoot = MakeDefaultRecentNode();
    m_recentList = MakeRecentList(m_recentRoot);
    m_customRoot = LoadNode(GetCustomNodeKey());
    if (!m_customRoot)
        m_customRoot = MakeDefaultCustomNode();
}

LMFmtPresetDataSource::~LMFmtPresetDataSource() = default;

// ---- External data ---------------------------------------------------------------

void LMFmtPresetDataSource::AsyncLoadExternalDataSource(const std::string& path,
                                                        std::function<void()> completion) {
    const std::string artworkPath =
        ILMFileProvider::AppendPathExtension(ILMFileProvider::RemovePathExtension(path), "icfg");
    m_artworkMgr = ILMArtworkImageMgr::MallocArtworkImageMgr(artworkPath, nullptr);
    m_pending = std::async(std::launch::async, [path] { return LoadExternalTree(path); }).share();
    m_loader = std::thread([pending = m_pending, completion = std::move(completion)] {
        pending.wait();
        if (completion)
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

std::shared_ptr<ILMFormatNode> LMFmtPresetDataSource::LoadNode(const std::string& key) const {
    const std::string text = ILMAppSettings::Shared()->StringValue(key);
    if (text.empty())
        return {};
    const std::string decoded = ILMBase64Codec::Decode(text);
    if (decoded.empty())
        return {};
    return ILMFormatNode::MallocFormatNode(ILMJsonReader::ReadJsonString(decoded, nullptr));
}

void LMFmtPresetDataSource::SaveNode(std::shared_ptr<const ILMFormatNode> node,
                                     const std::string& key) const {
    if (!node || key.empty())
        return;
    const std::string text = ILMJsonWriter::WriteJsonString(node->ToJson());
    const auto settings = ILMAppSettings::Shared();
    settings->SetStringValue(ILMBase64Codec::Encode(text), key);
    settings->Synchronize();
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
    SaveNode(m_recentRoot, GetRecentNodeKey());
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
    auto child = m_customRoot->FindChild(node->Title());
    if (!child) {
        child = node->Clone(ILMFormatNode::CloneAttributes);
        m_customRoot->AddChild(child);
        child->SetParent(m_customRoot);
    }
    child->AddFormatPreset(preset->Clone());
}

bool LMFmtPresetDataSource::RemoveCustomPreset(std::shared_ptr<const ILMFormatPreset> preset,
                                               std::shared_ptr<const ILMFormatNode> node) {
    if (!preset || !node)
        return false;
    const auto child = m_customRoot->FindChild(node->Title());
    if (!child)
        return false;
    const bool removed = child->RemoveFormatPreset(preset->Title());
    if (removed && child->FormatPresetCount() == 0)
        m_customRoot->RemoveChild(child->Title());
    return removed;
}

void LMFmtPresetDataSource::SaveCustomList() const {
    SaveNode(m_customRoot, GetCustomNodeKey());
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
        if (Contains(preset->Title(), lowerKey) || Contains(preset->Description(), lowerKey))
            result->AddFormatPreset(preset->Clone());
    }
    const int childCount = node->ChildCount();
    for (int j = 0; j < childCount; ++j) {
        const auto child = node->ChildAt(j);
        if (Contains(child->Title(), lowerKey)) {
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
        if (entry &&
            (Contains(entry->Title(), lowerKey) || Contains(entry->Description(), lowerKey)))
            result.push_back(entry);
    }
    return result;
}

} // namespace Lumeran
