// lmformat: inspect format catalogues and the presets they hold.
//
//   lmformat validate FILE
//   lmformat tree FILE
//   lmformat ffmpeg FILE "CATEGORY/FORMAT/PRESET"

#include "ILMFormatNode.h"
#include "ILMJsonReader.h"
#include "LMFFmpegArguments.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <functional>
#include <map>
#include <string>

using namespace Lumeran;

namespace {

int Fail(const std::string& message) {
    std::fprintf(stderr, "lmformat: %s\n", message.c_str());
    return 1;
}

void Print(const std::string& line) {
    std::printf("%s\n", line.c_str());
}

std::shared_ptr<ILMFormatNode> LoadCatalogue(const std::string& path, std::string* reason) {
    std::shared_ptr<const ILMError> error;
    const auto json = ILMJsonReader::ReadJsonFile(path, &error);
    if (!json) {
        *reason = path + ": " + (error ? error->Message() : std::string("unreadable"));
        return {};
    }
    auto root = ILMFormatNode::MallocFormatNode(json);
    if (!root)
        *reason = path + ": not a valid format catalogue (see the log line above)";
    return root;
}

void PrintTree(const std::shared_ptr<const ILMFormatNode>& node, int depth) {
    const std::string indent(static_cast<std::size_t>(depth) * 2, ' ');
    Print(indent + node->Title());
    for (int i = 0; i < node->FormatPresetCount(); ++i)
        Print(indent + "  " + node->FormatPresetAt(i)->Title());
    for (int i = 0; i < node->ChildCount(); ++i)
        PrintTree(node->ChildAt(i), depth + 1);
}

int CountPresets(const std::shared_ptr<const ILMFormatNode>& node) {
    int count = node->FormatPresetCount();
    for (int i = 0; i < node->ChildCount(); ++i)
        count += CountPresets(node->ChildAt(i));
    return count;
}

int CountNodes(const std::shared_ptr<const ILMFormatNode>& node) {
    int count = node->ChildCount();
    for (int i = 0; i < node->ChildCount(); ++i)
        count += CountNodes(node->ChildAt(i));
    return count;
}

// "CATEGORY/FORMAT/PRESET": the preset and the format node that holds it.
std::pair<std::shared_ptr<const ILMFormatPreset>, std::shared_ptr<const ILMFormatNode>>
FindPreset(const std::shared_ptr<const ILMFormatNode>& root, const std::string& path) {
    const QStringList parts = QString::fromStdString(path).split(QLatin1Char('/'));
    if (parts.size() < 2)
        return {};
    std::shared_ptr<const ILMFormatNode> node = root;
    for (qsizetype i = 0; i + 1 < parts.size() && node; ++i)
        node = node->FindChild(parts.at(i).toStdString());
    if (!node)
        return {};
    auto preset = node->FindFormatPreset(parts.last().toStdString());
    if (!preset)
        return {};
    return {preset, node};
}

using Command = std::function<int(const QStringList&)>;

int Validate(const QStringList& args) {
    if (args.size() != 1)
        return Fail("usage: lmformat validate FILE");
    std::string reason;
    const auto root = LoadCatalogue(args.at(0).toStdString(), &reason);
    if (!root)
        return Fail(reason);
    int formats = 0;
    for (int i = 0; i < root->ChildCount(); ++i)
        formats += CountNodes(root->ChildAt(i));
    std::printf("%d categories, %d formats, %d presets\n", root->ChildCount(), formats,
                CountPresets(root));
    return 0;
}

int Tree(const QStringList& args) {
    if (args.size() != 1)
        return Fail("usage: lmformat tree FILE");
    std::string reason;
    const auto root = LoadCatalogue(args.at(0).toStdString(), &reason);
    if (!root)
        return Fail(reason);
    PrintTree(root, 0);
    return 0;
}

int FFmpeg(const QStringList& args) {
    if (args.size() != 2)
        return Fail("usage: lmformat ffmpeg FILE \"CATEGORY/FORMAT/PRESET\"");
    std::string reason;
    const auto root = LoadCatalogue(args.at(0).toStdString(), &reason);
    if (!root)
        return Fail(reason);
    const auto [preset, node] = FindPreset(root, args.at(1).toStdString());
    if (!preset)
        return Fail("no preset \"" + args.at(1).toStdString() + "\" in " +
                    args.at(0).toStdString());
    Print(LMFFmpegArguments::Join(LMFFmpegArguments::OutputOptions(preset)));
    return 0;
}

int Usage() {
    std::fprintf(stderr, "usage: lmformat validate FILE\n"
                         "       lmformat tree FILE\n"
                         "       lmformat ffmpeg FILE \"CATEGORY/FORMAT/PRESET\"\n");
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("lmformat"));
    QStringList args = QCoreApplication::arguments().mid(1);
    if (args.isEmpty())
        return Usage();
    const std::map<QString, Command> commands{{QStringLiteral("validate"), Validate},
                                              {QStringLiteral("tree"), Tree},
                                              {QStringLiteral("ffmpeg"), FFmpeg}};
    const auto found = commands.find(args.takeFirst());
    if (found == commands.end())
        return Usage();
    return found->second(args);
}
