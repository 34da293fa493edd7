// SPDX-License-Identifier: MIT
#pragma once

#include <LMMediaFormatPopup/ILMFormatPreset.h>

#include <QObject>
#include <QProcess>
#include <QString>

#include <memory>

// Runs one FFmpeg encode of a source file with a chosen preset and reports how
// far it got, from FFmpeg's machine-readable progress output (-progress).
class LMDemoConverter : public QObject {
    Q_OBJECT

public:
    explicit LMDemoConverter(QObject* parent = nullptr);
    ~LMDemoConverter() override;

    // The file the encode of source with preset writes: beside the source, with
    // the container's extension, never over the source itself.
    static QString outputPathFor(const QString& source,
                                 const std::shared_ptr<const Lumeran::ILMFormatPreset>& preset);

    // Starts the encode; false (and nothing started) when one is running or the
    // preset cannot be encoded.
    bool start(const QString& source, std::shared_ptr<const Lumeran::ILMFormatPreset> preset);
    bool isRunning() const;
    // Stops a running encode and removes what it wrote; finished() then says
    // "Cancelled".
    void cancel();

Q_SIGNALS:
    // Fraction done, 0 to 1; -1 while the length of the source is unknown.
    void progress(double fraction);
    // ok with the output path, or not ok with FFmpeg's own last words.
    void finished(bool ok, const QString& outputOrError);

private:
    void readProgress();
    void readErrors();
    void processFinished(int exitCode, QProcess::ExitStatus status);

    QProcess m_process;
    QString m_output;
    QString m_errors;
    QByteArray m_pending;
    qint64 m_durationUs = 0;
    bool m_cancelled = false;
};
