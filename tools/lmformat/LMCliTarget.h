// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"

#include <QStringList>

#include <memory>

// What a command needs loaded before it runs.
enum class LMCliNeeds {
    Nothing,
    // The catalogue named by the first operand.
    Catalogue,
    // The catalogue, and the preset its second operand names as
    // "CATEGORY/FORMAT/PRESET".
    Preset,
    // The catalogue of the first operand, or the default catalogue when there
    // is none, and the preset of the second operand when it is given.
    CatalogueOrDefault,
};

// The catalogue and preset a command's operands name. Every command that reads
// a catalogue goes through Load(), so all of them fail alike.
struct LMCliTarget {
    std::shared_ptr<Lumeran::ILMFormatNode> catalogue;
    std::shared_ptr<const Lumeran::ILMFormatPreset> preset;
    // The format node that holds preset.
    std::shared_ptr<const Lumeran::ILMFormatNode> node;

    // Loads what needs asks for. When the catalogue cannot be read or holds no
    // such preset, prints why and returns false.
    bool Load(LMCliNeeds needs, const QStringList& operands);
};
