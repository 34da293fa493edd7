// SPDX-License-Identifier: MIT
#include "LMFFmpegAvailability.h"

#include "ILMFmtPresetDataSource.h"
#include "LMFFmpegCapabilities.h"

#include <QMetaObject>
#include <QPointer>

using namespace Lumeran;

LMFFmpegAvailability::LMFFmpegAvailability() = default;
LMFFmpegAvailability::~LMFFmpegAvailability() = default;

LMFFmpegAvailability* LMFFmpegAvailability::shared() {
    static LMFFmpegAvailability instance;
    return &instance;
}

void LMFFmpegAvailability::setFFmpegPath(const std::string& path, const std::string& cacheDir) {
    m_capabilities = std::make_shared<LMFFmpegCapabilities>(path, cacheDir);
    const int generation = ++m_generation;
    QPointer<LMFFmpegAvailability> self(this);
    // Called on the loading thread: the news goes to the GUI thread, and only
    // for the binary that is still the current one.
    m_capabilities->Load([self, generation] {
        QMetaObject::invokeMethod(
            self.data(),
            [self, generation] {
                if (self && self->m_generation == generation)
                    Q_EMIT self->availabilityChanged();
            },
            Qt::QueuedConnection);
    });
    Q_EMIT availabilityChanged();
}

void LMFFmpegAvailability::clear() {
    if (!m_capabilities)
        return;
    m_capabilities.reset();
    ++m_generation;
    Q_EMIT availabilityChanged();
}

bool LMFFmpegAvailability::isActive() const {
    return m_capabilities != nullptr;
}

bool LMFFmpegAvailability::waitForReady(int timeoutMs) {
    return m_capabilities && m_capabilities->WaitForReady(timeoutMs);
}

LMPresetAvailability
LMFFmpegAvailability::availability(const std::shared_ptr<const ILMFormatPreset>& preset) const {
    if (!m_capabilities)
        return {};
    return m_capabilities->Availability(
        preset, ILMFmtPresetDataSource::Shared()->GetExternalFormatPresets());
}
