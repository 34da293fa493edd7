// SPDX-License-Identifier: MIT
#pragma once

#include "LMCliTarget.h"

#include <QString>
#include <QStringList>

#include <string>

struct LMCliCommand;

// One run of a command: the words after its name and what was loaded for it.
struct LMCliCall {
    const LMCliCommand* command = nullptr;
    // "recent" or "custom" for a verb of the lists, else empty.
    QString group;
    QStringList operands;
    LMCliTarget target;
    // Set by --language: titles and descriptions are shown as the popup shows
    // them, each with its description after a tab.
    bool localized = false;
    // The FFmpeg of --ffmpeg PATH, for the commands that take it; empty when not
    // given ("ffmpeg" on PATH, for the commands that need one).
    QString ffmpeg;
    bool ffmpegGiven = false;

    std::string Operand(qsizetype index) const { return operands.at(index).toStdString(); }
};
