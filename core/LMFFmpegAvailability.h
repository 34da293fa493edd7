// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatPreset.h"
#include "LMCoreExport.h"
#include "LMPresetAvailability.h"

#include <QObject>

#include <memory>
#include <string>

namespace Lumeran {
class LMFFmpegCapabilities;
}

// Which presets the host's FFmpeg can run, for the lists: off until the host
// names its FFmpeg (ILMMediaFormatPopup::SetFFmpegPath), then every preset's
// availability from that binary, with alternatives from the loaded catalogue.
// The binary is asked off the GUI thread; availabilityChanged() comes on the
// GUI thread once its answer is in, so the lists draw their rows again.
class LMCORE_EXPORT LMFFmpegAvailability : public QObject {
    Q_OBJECT

public:
    // The process's one instance; GUI thread only.
    static LMFFmpegAvailability* shared();

    // Starts asking the binary at path (empty: "ffmpeg" on PATH), its lists
    // cached in cacheDir (empty: the host's cache location). A second call
    // replaces the first.
    void setFFmpegPath(const std::string& path, const std::string& cacheDir = {});
    // Forgets the binary: nothing is marked any more.
    void clear();
    // Whether a path was set.
    bool isActive() const;
    // Blocks until the binary answered (or timeoutMs passed); true when it did.
    bool waitForReady(int timeoutMs = -1);
    // Unknown until a path is set and its binary answered.
    Lumeran::LMPresetAvailability
    availability(const std::shared_ptr<const Lumeran::ILMFormatPreset>& preset) const;

Q_SIGNALS:
    void availabilityChanged();

private:
    LMFFmpegAvailability();
    ~LMFFmpegAvailability() override;

    std::shared_ptr<Lumeran::LMFFmpegCapabilities> m_capabilities;
    int m_generation = 0;
};
