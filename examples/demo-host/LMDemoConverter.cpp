// SPDX-License-Identifier: MIT
#include "LMDemoConverter.h"

#include <LMMediaFormatPopup/LMFFmpegArguments.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

using namespace Lumeran;

LMDemoConverter::LMDemoConverter(QObject* parent) : QObject(parent) {
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &LMDemoConverter::readProgress);
    connect(&m_process, &QProcess::readyReadStandardError, this, &LMDemoConverter::readErrors);
    connect(&m_process, &QProcess::finished, this, &LMDemoConverter::processFinished);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            Q_EMIT finished(false, QStringLiteral("ffmpeg could not be started: ") +
                                       m_process.errorString());
    });
}

LMDemoConverter::~LMDemoConverter() {
    // Whoever listened may be going away too: nothing is announced any more.
    m_process.disconnect(this);
    cancel();
}

QString LMDemoConverter::outputPathFor(const QString& source,
                                       const std::shared_ptr<const ILMFormatPreset>& preset) {
    // "-converted" keeps the output's name apart from the source's, whatever
    // the source's extension, so the source is never written over.
    const QFileInfo info(source);
    return info.dir().filePath(info.completeBaseName() + QStringLiteral("-converted.") +
                               QString::fromStdString(LMFFmpegArguments::FileExtension(preset)));
}

bool LMDemoConverter::start(const QString& source, std::shared_ptr<const ILMFormatPreset> preset) {
    if (isRunning() || !preset || source.isEmpty())
        return false;
    const std::vector<std::string> options = LMFFmpegArguments::OutputOptions(preset);
    if (options.empty())
        return false;
    m_output = outputPathFor(source, preset);
    m_errors.clear();
    m_pending.clear();
    m_durationUs = 0;

    // Progress as key=value lines on stdout; the usual log (with the source's
    // duration and any error) stays on stderr.
    QStringList arguments{QStringLiteral("-hide_banner"), QStringLiteral("-nostdin"),
                          QStringLiteral("-y"),           QStringLiteral("-progress"),
                          QStringLiteral("pipe:1"),       QStringLiteral("-nostats"),
                          QStringLiteral("-i"),           source};
    for (const std::string& option : options)
        arguments << QString::fromStdString(option);
    arguments << m_output;
    Q_EMIT progress(-1.0);
    m_process.start(QStringLiteral("ffmpeg"), arguments);
    return true;
}

bool LMDemoConverter::isRunning() const {
    return m_process.state() != QProcess::NotRunning;
}

void LMDemoConverter::cancel() {
    if (!isRunning())
        return;
    m_cancelled = true;
    m_process.kill();
    m_process.waitForFinished(3000);
}

void LMDemoConverter::readErrors() {
    m_errors += QString::fromUtf8(m_process.readAllStandardError());
    if (m_durationUs > 0)
        return;
    static const QRegularExpression duration(
        QStringLiteral(R"(Duration: (\d+):(\d\d):(\d\d)\.(\d\d))"));
    const QRegularExpressionMatch match = duration.match(m_errors);
    if (match.hasMatch()) {
        const qint64 seconds = match.captured(1).toLongLong() * 3600 +
                               match.captured(2).toLongLong() * 60 + match.captured(3).toLongLong();
        m_durationUs = seconds * 1000000 + match.captured(4).toLongLong() * 10000;
    }
}

void LMDemoConverter::readProgress() {
    m_pending += m_process.readAllStandardOutput();
    qsizetype newline;
    while ((newline = m_pending.indexOf('\n')) >= 0) {
        const QByteArray line = m_pending.left(newline).trimmed();
        m_pending.remove(0, newline + 1);
        if (line.startsWith("out_time_us=") && m_durationUs > 0) {
            const qint64 done = line.mid(12).toLongLong();
            Q_EMIT progress(qBound(0.0, double(done) / double(m_durationUs), 1.0));
        } else if (line == "progress=end") {
            Q_EMIT progress(1.0);
        }
    }
}

void LMDemoConverter::processFinished(int exitCode, QProcess::ExitStatus status) {
    if (m_cancelled) {
        m_cancelled = false;
        QFile::remove(m_output); // half a file is no file
        Q_EMIT finished(false, QStringLiteral("Cancelled"));
        return;
    }
    readErrors();
    if (status == QProcess::NormalExit && exitCode == 0) {
        Q_EMIT finished(true, m_output);
        return;
    }
    // FFmpeg says what went wrong in its last lines.
    QStringList lines = m_errors.trimmed().split(QLatin1Char('\n'));
    const QStringList last = lines.mid(qMax(0, lines.size() - 3));
    Q_EMIT finished(false, last.isEmpty() || last.join(QString()).isEmpty()
                               ? QStringLiteral("ffmpeg stopped (exit code %1).").arg(exitCode)
                               : last.join(QLatin1Char('\n')));
}
