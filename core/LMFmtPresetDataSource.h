// SPDX-License-Identifier: MIT
#pragma once

#include "ILMArtworkImageMgr.h"
#include "ILMFmtPresetDataSource.h"
#include "LMLoaderExitGuard.h"

#include <atomic>
#include <future>
#include <memory>
#include <thread>

namespace Lumeran {

class LMStoredList;

// The preset data source. Hosts reach it through ILMFmtPresetDataSource::Shared();
// this header is not installed. Tests, tools and benchmarks make their own
// instances to keep each one over its own settings store.
//
// Destroying an instance whose load has not been waited for ends the process, as
// destroying any running std::thread does; call WaitForLoadingComplete() first.
// (The shared instance is never destroyed; at exit its load is abandoned.)
class LMFmtPresetDataSource final : public ILMFmtPresetDataSource {
public:
    // Reads the recent and custom trees from ILMAppSettings::Shared().
    LMFmtPresetDataSource();
    ~LMFmtPresetDataSource();
    LMFmtPresetDataSource(const LMFmtPresetDataSource&) = delete;
    LMFmtPresetDataSource& operator=(const LMFmtPresetDataSource&) = delete;

    void AsyncLoadExternalDataSource(const std::string& path,
                                     std::function<void()> completion) override;
    void WaitForLoadingComplete() override;
    std::shared_ptr<ILMFormatNode> GetExternalFormatPresets() override;
    std::shared_ptr<const ILMFmtPresetRecentItem> GetCurrentPreset() const override;
    std::shared_ptr<const ILMFmtPresetRecentItem> GetDefaultPreset() const override;
    RecentList GetRecentList() const override;
    bool PushRecentItem(std::shared_ptr<const ILMFmtPresetRecentItem> item) override;
    bool PushRecentItem(std::shared_ptr<const ILMFormatPreset> preset,
                        std::shared_ptr<const ILMFormatNode> node) override;
    bool RemoveRecentItem(const std::string& title) override;
    bool RemoveRecentItem(std::shared_ptr<const ILMFmtPresetRecentItem> item) override;
    void SaveRecentList() const override;
    std::shared_ptr<ILMFormatNode> GetCustomList() override;
    std::shared_ptr<const ILMFormatNode> GetCustomList() const override;
    void AddCustomPreset(std::shared_ptr<const ILMFormatPreset> preset,
                         std::shared_ptr<const ILMFormatNode> node) override;
    bool RemoveCustomPreset(std::shared_ptr<const ILMFormatPreset> preset,
                            std::shared_ptr<const ILMFormatNode> node) override;
    void SaveCustomList() const override;
    std::shared_ptr<ILMArtworkImageGroup> GetArtworkGroup(int faceID) const override;
    std::shared_ptr<ILMFormatNode>
    SearchFormatPresets(std::shared_ptr<const ILMFormatNode> node, const std::string& key,
                        std::shared_ptr<ILMFormatNode> parent) override;
    RecentList SearchFormatPresets(const RecentList& list, const std::string& key) override;
    bool LastSaveSucceeded() const override;
    void SetSaveFailureHandler(std::function<void(const std::string& message)> handler) override;
    std::vector<LMPresetBackup> GetBackups(StoredList list) const override;
    bool RestoreBackup(StoredList list, int index) override;
    LMPresetFileResult
    ExportCustomPresets(const std::string& path,
                        const std::vector<LMCustomPresetRef>& presets) const override;
    LMPresetFileResult ImportCustomPresets(const std::string& path, ImportClash clash) override;
    bool RenameCustomPreset(const std::string& group, const std::string& title,
                            const std::string& newTitle, std::string* error) override;
    std::string DuplicateCustomPreset(const std::string& group, const std::string& title) override;
    bool MoveCustomPreset(const std::string& group, const std::string& title,
                          MoveDirection direction) override;
    LMPresetArgumentsResult
    AddCustomPresetFromArguments(const std::string& name,
                                 const std::vector<std::string>& arguments) override;

    // The "Recent" tree behind the recent list (oldest child first), as it will
    // be saved; for inspection by tools and tests.
    std::shared_ptr<const ILMFormatNode> GetRecentRoot() const { return m_recentRoot; }

private:
    std::shared_ptr<const ILMFmtPresetRecentItem> MakeDefaultPreset() const;
    std::shared_ptr<ILMFormatNode> LoadNode(const std::string& key) const;
    void SaveNode(std::shared_ptr<const ILMFormatNode> node, const std::string& key) const;
    std::string GetRecentNodeKey() const;
    std::string GetCustomNodeKey() const;
    std::shared_ptr<ILMFormatNode> MakeDefaultRecentNode() const;
    std::shared_ptr<ILMFormatNode> MakeDefaultCustomNode() const;
    RecentList MakeRecentList(std::shared_ptr<const ILMFormatNode> recentNode) const;

    LMStoredList& StoreFor(const std::string& key) const;
    void ReplaceRoot(const std::string& key, std::shared_ptr<ILMFormatNode> root) const;
    void SaveWithRetry(const std::string& key) const;

    // The trees are replaced when a save merged in what another process stored.
    mutable std::shared_ptr<ILMFormatNode> m_customRoot;
    std::shared_ptr<ILMFormatNode> m_externalRoot;
    mutable std::shared_ptr<ILMFormatNode> m_recentRoot;
    mutable RecentList m_recentList;
    std::shared_ptr<const ILMFmtPresetRecentItem> m_defaultPreset;
    std::shared_ptr<ILMArtworkImageMgr> m_artworkMgr;
    // The load's result. The notifier thread waits on a copy of it rather than on
    // this object: get() on one future object while another thread still waits
    // on that same object is a data race (and may free the state under it).
    std::shared_future<std::shared_ptr<ILMFormatNode>> m_pending;
    std::thread m_loader;
    std::shared_ptr<LMLoaderExitGuard::Load> m_load;

    // How each list is kept in the settings, and what the last saves did.
    std::unique_ptr<LMStoredList> m_recentStore;
    std::unique_ptr<LMStoredList> m_customStore;
    mutable bool m_recentUnsaved = false;
    mutable bool m_customUnsaved = false;
    mutable bool m_lastSaveOk = true;
    std::function<void(const std::string&)> m_saveFailureHandler;
    // Set at exit: the load stops where it is and its completion is not called.
    std::shared_ptr<std::atomic<bool>> m_cancel;
};

} // namespace Lumeran
