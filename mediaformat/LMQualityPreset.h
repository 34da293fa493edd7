// SPDX-License-Identifier: MIT
#pragma once

#include "ILMCodecQualityPreset.h"

namespace Lumeran {

// One quality level of a codec, as the registry describes it.
class LMQualityPreset final : public ILMCodecQualityPreset {
public:
    struct Data {
        std::string id;
        std::string name;
        Kind kind = Kind::Crf;
        std::string value;
        std::string pixelFormat;
    };

    explicit LMQualityPreset(Data data) : m_data(std::move(data)) {}

    std::string Name() const override { return m_data.name; }
    std::string Id() const override { return m_data.id; }
    Kind RateControl() const override { return m_data.kind; }
    std::string Value() const override { return m_data.value; }
    std::string PixelFormat() const override { return m_data.pixelFormat; }

    const std::string& IdRef() const { return m_data.id; }

private:
    Data m_data;
};

} // namespace Lumeran
