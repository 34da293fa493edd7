// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMMediaFormatExport.h"
#include "LMPresetAvailability.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>

namespace Lumeran {

// What one FFmpeg binary can encode and write: the names its -encoders and
// -muxers lists print. Asking the binary takes a noticeable moment (it loads
// every codec library), so Load() runs it on a thread of its own and the answer
// is kept in a cache folder, keyed by the binary's absolute path, size and
// modification time: the next load of an unchanged binary reads the file.
//
// Until the load is done, and for good when the binary is missing, cannot be
// run, crashes or prints something else than those lists, the state is
// Unknown and every preset's availability is Unknown too: a broken FFmpeg
// never makes a preset look unavailable.
class LMMEDIAFORMAT_EXPORT LMFFmpegCapabilities {
public:
    enum class State { NotLoaded, Loading, Ready, Unknown };

    // binary: path of an ffmpeg program, or empty for the "ffmpeg" on PATH.
    // cacheDir: where the lists are kept, or empty for the host's cache location
    // (QStandardPaths::CacheLocation).
    explicit LMFFmpegCapabilities(std::string binary = {}, std::string cacheDir = {});
    ~LMFFmpegCapabilities();
    LMFFmpegCapabilities(const LMFFmpegCapabilities&) = delete;
    LMFFmpegCapabilities& operator=(const LMFFmpegCapabilities&) = delete;

    // Starts the load on a thread of its own, once; later calls do nothing.
    // onDone, when given, is called on that thread when the state is settled.
    void Load(std::function<void()> onDone = {});
    // Waits at most timeoutMs (negative: for good) for a started load; true when
    // it is over (Ready or Unknown). Starts the load if nobody did.
    bool WaitForReady(int timeoutMs = -1);
    State CurrentState() const;
    // Why the state is Unknown ("ffmpeg not found", "… crashed"), else empty.
    std::string Problem() const;
    // The binary that was (or is to be) asked, as an absolute path once found.
    std::string Binary() const;
    // True when the last load read the cache instead of running the binary.
    bool CameFromCache() const;

    bool HasEncoder(const std::string& name) const;
    bool HasMuxer(const std::string& name) const;
    std::set<std::string> Encoders() const;
    std::set<std::string> Muxers() const;

    // Available, or the first encoder (video, then audio) or muxer the binary
    // lacks; Unknown unless Ready. With a catalogue, a missing preset also gets
    // an alternative from it (see FindAlternative).
    LMPresetAvailability
    Availability(const std::shared_ptr<const ILMFormatPreset>& preset,
                 const std::shared_ptr<const ILMFormatNode>& catalogue = nullptr) const;
    // The available preset of the catalogue closest to preset: one with a video
    // stream for a video preset, then the same container, the same container
    // family (MP4/MOV/M4V/3GP, Matroska/WebM), the same category and the same
    // title, in that order of weight; catalogue order breaks ties.
    void FindAlternative(const std::shared_ptr<const ILMFormatPreset>& preset,
                         const std::shared_ptr<const ILMFormatNode>& catalogue,
                         LMPresetAvailability& into) const;

    // The names of an "ffmpeg -encoders" or "-muxers" listing (the lines after
    // its "--" rule); empty when the text has no such rule.
    static std::set<std::string> ParseEncoders(const std::string& text);
    static std::set<std::string> ParseMuxers(const std::string& text);

private:
    void Run();
    bool ReadCache(const std::string& file, const std::string& stamp);
    void WriteCache(const std::string& file, const std::string& stamp) const;
    void Settle(State state, const std::string& problem);

    std::string m_binary;
    std::string m_cacheDir;
    mutable std::mutex m_mutex;
    std::condition_variable m_settled;
    State m_state = State::NotLoaded;
    std::string m_problem;
    bool m_fromCache = false;
    std::set<std::string> m_encoders;
    std::set<std::string> m_muxers;
    std::function<void()> m_onDone;
    std::thread m_thread;
};

} // namespace Lumeran
