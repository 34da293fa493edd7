// SPDX-License-Identifier: MIT
#include "LMPresetVerifier.h"

#include "LMFFmpegArguments.h"
#include "LMFFmpegCapabilities.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <cmath>
#include <map>
#include <sstream>

namespace Lumeran {

namespace {

// A preset's encode of half a second takes far less; a hung FFmpeg is stopped.
constexpr int kRunTimeoutMs = 300000;

// What ffprobe calls each container's demuxer.
const std::map<std::string, std::string>& ProbeNames() {
    static const std::map<std::string, std::string> names = {{"mp4", "mov,mp4,m4a,3gp,3g2,mj2"},
                                                             {"mov", "mov,mp4,m4a,3gp,3g2,mj2"},
                                                             {"m4v", "mov,mp4,m4a,3gp,3g2,mj2"},
                                                             {"m4a", "mov,mp4,m4a,3gp,3g2,mj2"},
                                                             {"3gp", "mov,mp4,m4a,3gp,3g2,mj2"},
                                                             {"3g2", "mov,mp4,m4a,3gp,3g2,mj2"},
                                                             {"mkv", "matroska,webm"},
                                                             {"mka", "matroska,webm"},
                                                             {"webm", "matroska,webm"},
                                                             {"wmv", "asf"},
                                                             {"avi", "avi"},
                                                             {"mxf", "mxf"},
                                                             {"vcd", "mpeg"},
                                                             {"svcd", "mpeg"},
                                                             {"dvd", "mpeg"},
                                                             {"wav", "wav"},
                                                             {"aiff", "aiff"},
                                                             {"au", "au"},
                                                             {"mp3", "mp3"},
                                                             {"flac", "flac"}};
    return names;
}

double Rational(const QString& text) {
    const QStringList parts = text.split(QLatin1Char('/'));
    if (parts.size() == 2 && parts.at(1).toDouble() != 0)
        return parts.at(0).toDouble() / parts.at(1).toDouble();
    return text.toDouble();
}

std::string Number(double value) {
    std::ostringstream out;
    out << std::round(value * 1000) / 1000;
    return out.str();
}

struct Run {
    int exitCode = -1;
    QString output;
    QString errors;
};

Run RunProgram(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(program, arguments);
    Run run;
    if (!process.waitForStarted(kRunTimeoutMs)) {
        run.errors = program + QStringLiteral(" cannot be run: ") + process.errorString();
        return run;
    }
    process.closeWriteChannel();
    if (!process.waitForFinished(kRunTimeoutMs)) {
        process.kill();
        process.waitForFinished();
    }
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.output = QString::fromUtf8(process.readAllStandardOutput());
    run.errors = QString::fromUtf8(process.readAllStandardError());
    return run;
}

QStringList ToQt(const std::vector<std::string>& arguments) {
    QStringList list;
    for (const auto& argument : arguments)
        list << QString::fromStdString(argument);
    return list;
}

// FFmpeg's complaint of a missing encoder names it: "Unknown encoder 'libx265'".
std::string UnknownEncoder(const QString& errors) {
    const QString marker = QStringLiteral("Unknown encoder '");
    const qsizetype at = errors.indexOf(marker);
    if (at < 0)
        return {};
    const qsizetype start = at + marker.size();
    const qsizetype end = errors.indexOf(QLatin1Char('\''), start);
    return end < 0 ? std::string() : errors.mid(start, end - start).toStdString();
}

void CompareVideo(const ILMCodecPreset& codec, const QJsonObject& video,
                  std::vector<std::string>& problems) {
    const std::string name = video.value(QStringLiteral("codec_name")).toString().toStdString();
    if (!codec.IsAutoValue() && name != codec.StreamCodec())
        problems.push_back("video codec: " + name + ", expected " + codec.StreamCodec());
    const auto size = codec.CurrentResolution();
    const bool sourceSize = !size || size->IsAutoValue();
    const int width = sourceSize ? LMPresetVerifier::kSourceWidth : size->Width();
    const int height = sourceSize ? LMPresetVerifier::kSourceHeight : size->Height();
    const int gotWidth = video.value(QStringLiteral("width")).toInt();
    const int gotHeight = video.value(QStringLiteral("height")).toInt();
    if (gotWidth != width || gotHeight != height)
        problems.push_back("frame size: " + std::to_string(gotWidth) + "x" +
                           std::to_string(gotHeight) + ", expected " + std::to_string(width) + "x" +
                           std::to_string(height));
    const auto rate = codec.CurrentFramerate();
    const double expected =
        !rate || rate->IsAutoValue() ? LMPresetVerifier::kSourceRate : rate->FramesPerSecond();
    const double got = Rational(video.value(QStringLiteral("r_frame_rate")).toString());
    if (std::abs(got - expected) > 0.01)
        problems.push_back("frame rate: " + Number(got) + ", expected " + Number(expected));
}

void CompareAudio(const ILMCodecPreset& codec, const QJsonObject& audio,
                  std::vector<std::string>& problems) {
    const std::string name = audio.value(QStringLiteral("codec_name")).toString().toStdString();
    if (!codec.IsAutoValue() && name != codec.StreamCodec())
        problems.push_back("audio codec: " + name + ", expected " + codec.StreamCodec());
    const auto hertz = codec.CurrentSamplerate();
    const int expectedHertz =
        !hertz || hertz->IsAutoValue() ? LMPresetVerifier::kSourceHertz : hertz->Hertz();
    const int gotHertz = audio.value(QStringLiteral("sample_rate")).toString().toInt();
    if (gotHertz != expectedHertz)
        problems.push_back("sample rate: " + std::to_string(gotHertz) + ", expected " +
                           std::to_string(expectedHertz));
    const auto layout = codec.CurrentChannelLayout();
    const int expectedChannels =
        !layout || layout->IsAutoValue() ? LMPresetVerifier::kSourceChannels : layout->Channels();
    const int gotChannels = audio.value(QStringLiteral("channels")).toInt();
    if (gotChannels != expectedChannels)
        problems.push_back("channels: " + std::to_string(gotChannels) + ", expected " +
                           std::to_string(expectedChannels));
}

} // namespace

LMPresetVerifier::LMPresetVerifier(std::string ffmpeg, std::string workDir)
    : m_ffmpeg(std::move(ffmpeg)), m_workDir(std::move(workDir)) {
    if (m_ffmpeg.empty())
        m_ffmpeg = "ffmpeg";
    const QFileInfo beside(QFileInfo(QString::fromStdString(m_ffmpeg)).dir(),
                           QStringLiteral("ffprobe"));
    m_ffprobe = m_ffmpeg.find('/') != std::string::npos && beside.isExecutable()
                    ? beside.filePath().toStdString()
                    : std::string("ffprobe");
}

void LMPresetVerifier::UseCapabilities(const LMFFmpegCapabilities* capabilities) {
    m_capabilities = capabilities;
}

bool LMPresetVerifier::MakeSource() {
    const QString source =
        QDir(QString::fromStdString(m_workDir)).filePath(QStringLiteral("source.mkv"));
    const Run run = RunProgram(
        QString::fromStdString(m_ffmpeg),
        {QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error"),
         QStringLiteral("-y"), QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
         QStringLiteral("testsrc2=size=%1x%2:rate=%3:duration=0.5")
             .arg(kSourceWidth)
             .arg(kSourceHeight)
             .arg(kSourceRate),
         QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
         QStringLiteral("aevalsrc=sin(440*2*PI*t)|sin(550*2*PI*t):s=%1:d=0.5").arg(kSourceHertz),
         QStringLiteral("-c:v"), QStringLiteral("ffv1"), QStringLiteral("-c:a"),
         QStringLiteral("pcm_s16le"), source});
    if (run.exitCode == 0)
        return true;
    m_problem = "the source clip cannot be made: " + run.errors.trimmed().toStdString();
    return false;
}

LMPresetVerifier::Result
LMPresetVerifier::Verify(const std::shared_ptr<const ILMFormatPreset>& preset) const {
    Result result;
    if (!preset) {
        result.problems.emplace_back("no preset");
        return result;
    }
    if (m_capabilities) {
        const auto availability = m_capabilities->Availability(preset);
        if (availability.IsMissing()) {
            result.problems.push_back("FFmpeg has no " + availability.missingName + " " +
                                      availability.missingKind);
            return result;
        }
    }
    const QDir dir(QString::fromStdString(m_workDir));
    const QString output = dir.filePath(
        QStringLiteral("out.") + QString::fromStdString(LMFFmpegArguments::FileExtension(preset)));
    const auto command = LMFFmpegArguments::Command(
        preset, dir.filePath(QStringLiteral("source.mkv")).toStdString(), output.toStdString());
    result.command = "ffmpeg " + LMFFmpegArguments::Join(command);
    const Run encode = RunProgram(
        QString::fromStdString(m_ffmpeg),
        QStringList{QStringLiteral("-nostdin"), QStringLiteral("-v"), QStringLiteral("error")} +
            ToQt(command));
    if (encode.exitCode != 0) {
        const std::string missing = UnknownEncoder(encode.errors);
        result.problems.push_back(missing.empty() ? "the encode failed: " +
                                                        encode.errors.trimmed().toStdString()
                                                  : "FFmpeg has no " + missing + " encoder");
        return result;
    }
    const Run probe = RunProgram(
        QString::fromStdString(m_ffprobe),
        {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-show_entries"),
         QStringLiteral("format=format_name:stream=codec_type,codec_name,width,height,r_frame_rate,"
                        "sample_rate,channels"),
         QStringLiteral("-of"), QStringLiteral("json"), output});
    QFile::remove(output);
    if (probe.exitCode != 0) {
        result.problems.push_back("ffprobe failed: " + probe.errors.trimmed().toStdString());
        return result;
    }
    result.problems = Compare(*preset, probe.output.toStdString());
    result.ok = result.problems.empty();
    return result;
}

std::vector<std::string> LMPresetVerifier::Compare(const ILMFormatPreset& preset,
                                                   const std::string& probeJson) {
    std::vector<std::string> problems;
    const QJsonObject info = QJsonDocument::fromJson(QByteArray::fromStdString(probeJson)).object();
    const std::string container = info.value(QStringLiteral("format"))
                                      .toObject()
                                      .value(QStringLiteral("format_name"))
                                      .toString()
                                      .toStdString();
    const auto expected = ProbeNames().find(preset.FormatId());
    if (expected == ProbeNames().end())
        problems.push_back("container: " + container + ", no known probe name for " +
                           preset.FormatId());
    else if (container != expected->second)
        problems.push_back("container: " + container + ", expected " + expected->second);

    QJsonObject video, audio;
    for (const QJsonValue& stream : info.value(QStringLiteral("streams")).toArray()) {
        const QJsonObject s = stream.toObject();
        (s.value(QStringLiteral("codec_type")).toString() == QStringLiteral("video") ? video
                                                                                     : audio) = s;
    }
    if (const auto codec = preset.CurrentVideoCodec()) {
        if (video.isEmpty())
            problems.emplace_back("no video stream");
        else
            CompareVideo(*codec, video, problems);
    } else if (!video.isEmpty()) {
        problems.emplace_back("a video stream the preset leaves out");
    }
    if (const auto codec = preset.CurrentAudioCodec()) {
        if (audio.isEmpty())
            problems.emplace_back("no audio stream");
        else
            CompareAudio(*codec, audio, problems);
    } else if (!audio.isEmpty()) {
        problems.emplace_back("an audio stream the preset leaves out");
    }
    return problems;
}

} // namespace Lumeran
