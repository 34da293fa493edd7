// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"
#include "LMMediaFormatPopupExport.h"
#include "LMPresetAvailability.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace Lumeran {

// The framework's entry point for a host application. At start the host names
// its format catalogue (loaded off the GUI thread); later it pops the selection
// up under its format button and learns the choice through a callback:
//
//     auto popup = ILMMediaFormatPopup::Shared();
//     popup->SetupExternalFormatData("/path/to/formats.json");
//     ...
//     popup->PopupSelection(ILMMediaFormatPopup::Rect{x, y, w, h},
//                           [](auto preset, auto node) { if (preset) use(preset, node); });
//
// Every call belongs to the GUI thread, after the QApplication exists.
class LMMEDIAFORMATPOPUP_EXPORT ILMMediaFormatPopup {
public:
    // A rectangle in the host's screen coordinates (Qt's: origin at the top
    // left of the primary screen, y growing downwards): origin, then size.
    struct Rect {
        float x;
        float y;
        float width;
        float height;
    };
    // Called once per showing of the popup: with the chosen preset and the node
    // it belongs to, or with two empty handles when the popup was dismissed.
    using Completion = std::function<void(std::shared_ptr<const ILMFormatPreset>,
                                          std::shared_ptr<const ILMFormatNode>)>;

    virtual ~ILMMediaFormatPopup() = default;

    // Pops the selection up at a point (a 1 x 1 rectangle there).
    virtual void PopupSelection(const std::pair<float, float>& point, Completion completion) = 0;
    // Pops the selection up under rect, or above it when there is no room below.
    // Returns at once; the choice arrives later through completion. A showing
    // still open is completed first (two empty handles), then replaced.
    virtual void PopupSelection(const Rect& rect, Completion completion) = 0;
    // Opens the preset editor modally on preset; true when the user saved, and
    // then preset holds the new settings.
    virtual bool PopupEditing(std::shared_ptr<ILMFormatPreset> preset,
                              std::shared_ptr<const ILMFormatNode> node) = 0;
    // Shows the window in which the user renames, copies, orders, removes,
    // imports and exports the custom presets (or raises it when it is open), and
    // returns at once. Every change it makes is saved as it is made.
    virtual void PopupManager() = 0;

    // The one facade of the process, made on first use.
    static std::shared_ptr<ILMMediaFormatPopup> Shared();
    // Starts loading the catalogue at path (JSON, with its artwork configuration
    // beside it under the extension "icfg") on a worker thread; the popup builds
    // its tabs on the GUI thread when the load is done. Call once.
    void SetupExternalFormatData(const std::string& path);
    // Blocks until the load started by SetupExternalFormatData has finished;
    // returns at once when no load was started.
    void WaitForFormatDataLoadingComplete();

    // Opt-in: the lists mark the presets this FFmpeg cannot run (path empty:
    // the "ffmpeg" on PATH). Such a row is drawn dimmed with a warning mark, and
    // its tool tip and accessible description say what the binary lacks and
    // which preset to pick instead; it can still be chosen. The binary is asked
    // once off the GUI thread, its answer cached per binary in cacheDir (empty:
    // the application's cache location). Without this call nothing is marked.
    void SetFFmpegPath(const std::string& path, const std::string& cacheDir = {});
    // What the FFmpeg of SetFFmpegPath says of a preset (the one a completion
    // received, say): Unknown before the call or while the binary is asked.
    LMPresetAvailability PresetAvailability(std::shared_ptr<const ILMFormatPreset> preset) const;
};

} // namespace Lumeran
