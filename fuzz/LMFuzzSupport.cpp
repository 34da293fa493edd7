// SPDX-License-Identifier: MIT
#include "LMFuzzSupport.h"

#include "ILMLogConfig.h"

#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace Lumeran::Fuzz {

namespace {

QtMessageHandler g_previousHandler = nullptr;

void FilterMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (context.category &&
        std::strcmp(context.category, ILMLogConfig::Category().categoryName()) == 0)
        return;
    if (g_previousHandler)
        g_previousHandler(type, context, message);
}

} // namespace

void Fail(const char* what) {
    std::fprintf(stderr, "lmfp fuzz finding: %s\n", what);
    std::abort();
}

void QuietLog() {
    g_previousHandler = qInstallMessageHandler(FilterMessage);
}

std::string ScratchDir() {
    static QTemporaryDir dir(QDir::tempPath() + QStringLiteral("/lmfp-fuzz-XXXXXX"));
    if (!dir.isValid())
        Fail("no scratch folder could be made");
    return dir.path().toStdString();
}

} // namespace Lumeran::Fuzz
