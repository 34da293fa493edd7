// SPDX-License-Identifier: MIT
#include "LMMediaFormatPopupQt.h"

#include "LMFormatEditingWndCtrl.h"
#include "LMFormatSelectionWndCtrl.h"
#include "LMPresetManagerWndCtrl.h"

#include <QCoreApplication>
#include <QRectF>

namespace Lumeran {

void LMMediaFormatPopupQt::PopupSelection(const std::pair<float, float>& point,
                                          Completion completion) {
    PopupSelection(Rect{point.first, point.second, 1.0f, 1.0f}, std::move(completion));
}

void LMMediaFormatPopupQt::PopupSelection(const Rect& rect, Completion completion) {
    const QRectF anchor(double(rect.x), double(rect.y), double(rect.width), double(rect.height));
    LMFormatSelectionWndCtrl::shared()->popupSelection(
        anchor, [completion = std::move(completion)](std::shared_ptr<const ILMFormatPreset> preset,
                                                     std::shared_ptr<const ILMFormatNode> node) {
            if (completion)
                completion(preset, node);
        });
}

bool LMMediaFormatPopupQt::PopupEditing(std::shared_ptr<ILMFormatPreset> preset,
                                        std::shared_ptr<const ILMFormatNode> node) {
    return LMFormatEditingWndCtrl::shared()->startEditing(std::move(preset), std::move(node));
}

void LMMediaFormatPopupQt::PopupManager() {
    LMPresetManagerWndCtrl::shared()->showManager();
}

void LMMediaFormatPopupQt::LoadExternalDataInMainThread() {
    // The application object is the GUI thread's context; without one (a host
    // that quits while loading) there is nothing left to build.
    QCoreApplication* app = QCoreApplication::instance();
    if (!app)
        return;
    QMetaObject::invokeMethod(
        app, [] { LMFormatSelectionWndCtrl::shared()->loadExternalDataInMainThread(); },
        Qt::QueuedConnection);
}

} // namespace Lumeran
