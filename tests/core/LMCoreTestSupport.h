// SPDX-License-Identifier: MIT
#pragma once

#include "ILMFormatNode.h"
#include "ILMFormatPreset.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <memory>
#include <mutex>
#include <string>

namespace Lumeran::TestSupport {

// A preset of the named container with a title and, optionally, a description.
std::shared_ptr<ILMFormatPreset> MakePreset(const std::string& format, const std::string& title,
                                            const std::string& description = {});
std::shared_ptr<ILMFormatNode> MakeNode(const std::string& title,
                                        const std::string& description = {}, int faceID = 0);
// A format node holding one preset per title, all of the same container.
std::shared_ptr<ILMFormatNode> MakeFormat(const std::string& title, const std::string& description,
                                          int faceID, const std::string& format,
                                          const QStringList& presetTitles);

// Writes a catalogue of one category of `formats` format nodes with
// `presetsPerFormat` MP4 presets each; returns the file's size in bytes.
qint64 WriteLargeCatalogue(const QString& path, int formats, int presetsPerFormat);

// Holds a load at its start: the loader waits at the catalogue load hook until
// the test writes the catalogue file and releases it. Beside the catalogue,
// "<name>.icfg" may be written to give the load an artwork configuration.
class LoadGate {
public:
    explicit LoadGate(const QString& name = QStringLiteral("gate"));
    ~LoadGate();
    LoadGate(const LoadGate&) = delete;
    LoadGate& operator=(const LoadGate&) = delete;

    bool IsValid() const { return m_valid; }
    std::string Path() const; // the catalogue, "<dir>/<name>.json"
    QString DirPath() const;
    // Writes text as the catalogue and lets the load read it; only the first
    // call counts. False when no load reached the gate within 30 seconds.
    bool Release(const QByteArray& text);

    struct State;

private:
    QTemporaryDir m_dir;
    QString m_path;
    bool m_valid = false;
    std::shared_ptr<State> m_state;
};

// Collects the lines written through Qt's message handler while it lives. Lines
// may come from any thread (the loader logs from its worker).
class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    QStringList Lines() const;

private:
    static void Handler(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QtMessageHandler m_previous;
    static std::mutex s_mutex;
    static QStringList s_lines;
};

// Mocks of the model interfaces, for tests that look at which calls are made.
class MockFormatNode : public ILMFormatNode {
public:
    MOCK_METHOD(void, SetParent, (std::shared_ptr<ILMFormatNode>), (override));
    MOCK_METHOD(int, FaceID, (), (const, override));
    MOCK_METHOD(void, SetFaceID, (int), (override));
    MOCK_METHOD(std::string, Title, (), (const, override));
    MOCK_METHOD(std::string, Description, (), (const, override));
    MOCK_METHOD(void, SetTitle, (const std::string&), (override));
    MOCK_METHOD(void, SetDescription, (const std::string&), (override));
    MOCK_METHOD(std::shared_ptr<ILMFormatNode>, Clone, (int), (const, override));
    MOCK_METHOD(std::shared_ptr<ILMJsonValue>, ToJson, (), (const, override));
    MOCK_METHOD(int, FormatPresetCount, (), (const, override));
    MOCK_METHOD(std::shared_ptr<const ILMFormatPreset>, FormatPresetAt, (int), (const, override));
    MOCK_METHOD(std::shared_ptr<ILMFormatPreset>, FormatPresetAt, (int), (override));
    MOCK_METHOD(void, AddFormatPreset, (std::shared_ptr<ILMFormatPreset>), (override));
    MOCK_METHOD(bool, RemoveFormatPreset, (const std::string&), (override));
    MOCK_METHOD(std::shared_ptr<ILMFormatPreset>, FindFormatPreset, (const std::string&),
                (const, override));
    MOCK_METHOD(int, ChildCount, (), (const, override));
    MOCK_METHOD(std::shared_ptr<const ILMFormatNode>, ChildAt, (int), (const, override));
    MOCK_METHOD(std::shared_ptr<ILMFormatNode>, ChildAt, (int), (override));
    MOCK_METHOD(void, AddChild, (std::shared_ptr<ILMFormatNode>), (override));
    MOCK_METHOD(void, RemoveChildAt, (int), (override));
    MOCK_METHOD(void, RemoveChild, (std::shared_ptr<const ILMFormatNode>), (override));
    MOCK_METHOD(void, RemoveChild, (const std::string&), (override));
    MOCK_METHOD(std::shared_ptr<ILMFormatNode>, FindChild, (const std::string&), (const, override));
    MOCK_METHOD(int, IndexOfChild, (const std::string&), (const, override));
    MOCK_METHOD(bool, IsEqualTo, (std::shared_ptr<const ILMFormatNode>), (const, override));
    MOCK_METHOD(std::shared_ptr<ILMFormatNode>, Parent, (), (const, override));
};

class MockFormatPreset : public ILMFormatPreset {
public:
    MOCK_METHOD(int, FaceID, (), (const, override));
    MOCK_METHOD(void, SetFaceID, (int), (override));
    MOCK_METHOD(std::string, Title, (), (const, override));
    MOCK_METHOD(void, SetTitle, (const std::string&), (override));
    MOCK_METHOD(std::string, Description, (), (const, override));
    MOCK_METHOD(std::shared_ptr<ILMFormatPreset>, Clone, (), (const, override));
    MOCK_METHOD(void, CopyFrom, (std::shared_ptr<const ILMFormatPreset>), (override));
    MOCK_METHOD(std::shared_ptr<ILMCodecPreset>, AudioCodecAt, (int), (const, override));
    MOCK_METHOD(std::shared_ptr<ILMCodecPreset>, VideoCodecAt, (int), (const, override));
    MOCK_METHOD(int, VideoCodecCount, (), (const, override));
    MOCK_METHOD(int, AudioCodecCount, (), (const, override));
    MOCK_METHOD(int, CurrentAudioCodecIndex, (), (const, override));
    MOCK_METHOD(int, CurrentVideoCodecIndex, (), (const, override));
    MOCK_METHOD(void, SetCurrentAudioCodec, (int), (override));
    MOCK_METHOD(void, SetCurrentVideoCodec, (int), (override));
    MOCK_METHOD(bool, IsEqualTo, (std::shared_ptr<const ILMFormatPreset>), (const, override));
    MOCK_METHOD(void, SetDescription, (const std::string&), (override));
    MOCK_METHOD(std::string, FormatName, (), (const, override));
    MOCK_METHOD(std::string, FormatId, (), (const, override));
};

} // namespace Lumeran::TestSupport
