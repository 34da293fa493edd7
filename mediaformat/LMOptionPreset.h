// SPDX-License-Identifier: MIT
#pragma once

#include "ILMChannelLayoutPreset.h"
#include "ILMFrameratePreset.h"
#include "ILMResolutionPreset.h"
#include "ILMSampleratePreset.h"

#include <string>

namespace Lumeran {

// One entry of the registry's option tables. A single immutable value serves
// all four option kinds: each kind reads only the fields that mean something
// to it, and the registry shares one object between every codec that lists it.
class LMOptionPreset final : public ILMResolutionPreset,
                             public ILMFrameratePreset,
                             public ILMSampleratePreset,
                             public ILMChannelLayoutPreset {
public:
    struct Data {
        std::string id;
        std::string name;
        bool automatic = false;
        int width = 0;
        int height = 0;
        std::string rate;
        double framesPerSecond = 0;
        int hertz = 0;
        int channels = 0;
        std::string layout;
    };

    explicit LMOptionPreset(Data data) : m_data(std::move(data)) {}

    std::string Name() const override { return m_data.name; }
    std::string Id() const override { return m_data.id; }
    bool IsAutoValue() const override { return m_data.automatic; }
    int Width() const override { return m_data.width; }
    int Height() const override { return m_data.height; }
    std::string Rate() const override { return m_data.rate; }
    double FramesPerSecond() const override { return m_data.framesPerSecond; }
    int Hertz() const override { return m_data.hertz; }
    int Channels() const override { return m_data.channels; }
    std::string LayoutName() const override { return m_data.layout; }

    const std::string& IdRef() const { return m_data.id; }

private:
    Data m_data;
};

} // namespace Lumeran
