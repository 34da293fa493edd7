// SPDX-License-Identifier: MIT
#pragma once

#include "ILMMediaFormatPopup.h"

namespace Lumeran {

// The facade on Qt Widgets: forwards to the selection window and the preset
// editor, and moves the end of the catalogue load onto the GUI thread.
class LMMediaFormatPopupQt final : public ILMMediaFormatPopup {
public:
    void PopupSelection(const std::pair<float, float>& point, Completion completion) override;
    void PopupSelection(const Rect& rect, Completion completion) override;
    bool PopupEditing(std::shared_ptr<ILMFormatPreset> preset,
                      std::shared_ptr<const ILMFormatNode> node) override;
    void PopupManager() override;

    // Called on the loader's thread: queues the building of the tabs onto the
    // GUI thread and returns at once.
    void LoadExternalDataInMainThread();
};

} // namespace Lumeran
