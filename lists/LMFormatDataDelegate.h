// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"

#include <memory>

class QObject;

// What a list tells the window that owns it: a preset was chosen, or the user
// asked to edit one. Methods have empty bodies so a receiver overrides only what
// it handles; a list with no delegate drops the event.
class LMFormatDataDelegate {
public:
    virtual ~LMFormatDataDelegate() = default;

    // ctrl is the list view controller that reports the choice.
    virtual void viewControllerSelectFormat(QObject* ctrl,
                                            std::shared_ptr<const Lumeran::ILMFormatPreset> preset,
                                            std::shared_ptr<const Lumeran::ILMFormatNode> node) {
        (void)ctrl;
        (void)preset;
        (void)node;
    }
    // The handles are mutable: an accepted edit is written into this very preset.
    virtual void viewControllerEditingFormat(QObject* ctrl,
                                             std::shared_ptr<Lumeran::ILMFormatPreset> preset,
                                             std::shared_ptr<Lumeran::ILMFormatNode> node) {
        (void)ctrl;
        (void)preset;
        (void)node;
    }
};
