// lmformat: inspect format catalogues and the presets they hold, search them,
// and look after the recent and custom lists in the application settings.
//
//   lmformat [--settings FILE] [--language CODE] COMMAND ...
//   lmformat validate FILE
//   lmformat tree FILE
//   lmformat ffmpeg FILE "CATEGORY/FORMAT/PRESET"
//   lmformat search CATALOGUE TEXT
//   lmformat recent list | push CATALOGUE "CATEGORY/FORMAT/PRESET" | remove TITLE
//   lmformat custom list | add CATALOGUE "CATEGORY/FORMAT/PRESET" NAME | remove NODE PRESET
//   lmformat recent|custom backups | restore N
//
// The lists live where a host keeps them: in the application settings, here the
// default QSettings of "lmformat" by "Lumeran", or the INI file of --settings.
// With --language, tree and search print titles and descriptions as the popup
// shows them in that language (en, ja, zh-Hans, fr, de, it, es, pt-BR).

#include "ILMAppSettings.h"
#include "ILMFmtPresetDataSource.h"
#include "ILMFormatNode.h"
#include "ILMJsonReader.h"
#include "LMFFmpegArguments.h"
#include "LMFormatInternationalizationMgr.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>

#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <utility>

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

// Set by --language: titles and descriptions go through the localization
// manager, and each line carries the description after a tab.
bool g_localized = false;

std::string Localized(const std::string& text) {
    if (!g_localized || text.empty())
        return text;
    return LMFormatInternationalizationMgr::sharedObject()
        ->stringForKey(QString::fromStdString(text))
        .toStdString();
}

std::string Line(const std::string& title, const std::string& description) {
    if (!g_localized || description.empty())
        return Localized(title);
    return Localized(title) + "\t" + Localized(description);
}

void PrintTree(const std::shared_ptr<const ILMFormatNode>& node, int depth) {
    const std::string indent(static_cast<std::size_t>(depth) * 2, ' ');
    Print(indent + Line(node->Title(), node->Description()));
    for (int i = 0; i < node->FormatPresetCount(); ++i) {
        const auto preset = node->FormatPresetAt(i);
        Print(indent + "  " + Line(preset->Title(), preset->Description()));
    }
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

// A change that did not reach the store is a failure worth an exit code; the
// data source's failure handler has already said why.
int SettingsWritten() {
    if (ILMFmtPresetDataSource::Shared()->LastSaveSucceeded())
        return 0;
    return 1;
}

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

int Search(const QStringList& args) {
    if (args.size() != 2)
        return Fail("usage: lmformat search CATALOGUE TEXT");
    std::string reason;
    const auto root = LoadCatalogue(args.at(0).toStdString(), &reason);
    if (!root)
        return Fail(reason);
    // An empty text filters nothing and so finds nothing to print.
    const auto found =
        ILMFmtPresetDataSource::Shared()->SearchFormatPresets(root, args.at(1).toStdString(), {});
    if (found)
        PrintTree(found, 0);
    return 0;
}

int RecentList(const QStringList& args) {
    if (!args.isEmpty())
        return Fail("usage: lmformat recent list");
    for (const auto& item : ILMFmtPresetDataSource::Shared()->GetRecentList())
        Print(item->Title() + "\t" + item->Description());
    return 0;
}

int RecentPush(const QStringList& args) {
    if (args.size() != 2)
        return Fail("usage: lmformat recent push CATALOGUE \"CATEGORY/FORMAT/PRESET\"");
    std::string reason;
    const auto root = LoadCatalogue(args.at(0).toStdString(), &reason);
    if (!root)
        return Fail(reason);
    const auto [preset, node] = FindPreset(root, args.at(1).toStdString());
    if (!preset)
        return Fail("no preset \"" + args.at(1).toStdString() + "\" in " +
                    args.at(0).toStdString());
    const auto source = ILMFmtPresetDataSource::Shared();
    if (!source->PushRecentItem(preset, node))
        return Fail("could not record \"" + args.at(1).toStdString() + "\"");
    source->SaveRecentList();
    return SettingsWritten();
}

int RecentRemove(const QStringList& args) {
    if (args.size() != 1)
        return Fail("usage: lmformat recent remove TITLE");
    const auto source = ILMFmtPresetDataSource::Shared();
    if (!source->RemoveRecentItem(args.at(0).toStdString()))
        return Fail("no recent entry \"" + args.at(0).toStdString() + "\"");
    source->SaveRecentList();
    return SettingsWritten();
}

int CustomList(const QStringList& args) {
    if (!args.isEmpty())
        return Fail("usage: lmformat custom list");
    const auto custom = std::as_const(*ILMFmtPresetDataSource::Shared()).GetCustomList();
    for (int i = 0; i < custom->ChildCount(); ++i) {
        const auto node = custom->ChildAt(i);
        for (int j = 0; j < node->FormatPresetCount(); ++j)
            Print(node->Title() + "/" + node->FormatPresetAt(j)->Title());
    }
    return 0;
}

int CustomAdd(const QStringList& args) {
    if (args.size() != 3)
        return Fail("usage: lmformat custom add CATALOGUE \"CATEGORY/FORMAT/PRESET\" NAME");
    std::string reason;
    const auto root = LoadCatalogue(args.at(0).toStdString(), &reason);
    if (!root)
        return Fail(reason);
    const auto [preset, node] = FindPreset(root, args.at(1).toStdString());
    if (!preset)
        return Fail("no preset \"" + args.at(1).toStdString() + "\" in " +
                    args.at(0).toStdString());
    const std::string name = args.at(2).toStdString();
    if (name.empty())
        return Fail("a custom preset needs a name");
    if (!ILMFormatNode::IsAcceptableText(name))
        return Fail("a custom preset name is limited to " +
                    std::to_string(ILMFormatNode::MaxTextLength) + " characters");
    // The data source files a copy of what it is given; name that copy's source.
    auto named = preset->Clone();
    named->SetTitle(name);
    const auto source = ILMFmtPresetDataSource::Shared();
    source->AddCustomPreset(named, node);
    source->SaveCustomList();
    return SettingsWritten();
}

int CustomRemove(const QStringList& args) {
    if (args.size() != 2)
        return Fail("usage: lmformat custom remove NODE PRESET");
    const auto source = ILMFmtPresetDataSource::Shared();
    const auto node = source->GetCustomList()->FindChild(args.at(0).toStdString());
    const auto preset = node ? node->FindFormatPreset(args.at(1).toStdString()) : nullptr;
    if (!preset || !source->RemoveCustomPreset(preset, node))
        return Fail("no custom preset \"" + args.at(0).toStdString() + "/" +
                    args.at(1).toStdString() + "\"");
    source->SaveCustomList();
    return SettingsWritten();
}

// "lmformat recent|custom backups": number, date, entries, and whether the value
// was put aside because it could not be read in full.
Command Backups(ILMFmtPresetDataSource::StoredList list) {
    return [list](const QStringList& args) {
        if (!args.isEmpty())
            return Fail("usage: lmformat recent|custom backups");
        const auto backups = ILMFmtPresetDataSource::Shared()->GetBackups(list);
        if (backups.empty())
            Print("no backups");
        for (std::size_t i = 0; i < backups.size(); ++i) {
            const LMPresetBackup& backup = backups[i];
            const QString date = QDateTime::fromMSecsSinceEpoch(backup.savedAtMs)
                                     .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
            std::printf("%zu\t%s\t%d %s%s\t%s\n", i + 1, date.toUtf8().constData(),
                        backup.entryCount, backup.entryCount == 1 ? "entry" : "entries",
                        backup.unreadable ? " (could not be read in full)" : "",
                        backup.path.c_str());
        }
        return 0;
    };
}

// "lmformat recent|custom restore N": N as "backups" numbers them, from 1.
Command Restore(ILMFmtPresetDataSource::StoredList list) {
    return [list](const QStringList& args) {
        bool ok = false;
        const int number = args.size() == 1 ? args.at(0).toInt(&ok) : 0;
        if (!ok || number < 1)
            return Fail("usage: lmformat recent|custom restore N (N from \"backups\")");
        const auto source = ILMFmtPresetDataSource::Shared();
        if (!source->RestoreBackup(list, number - 1))
            return Fail("backup " + std::to_string(number) +
                        " does not exist or holds nothing "
                        "readable");
        if (list == ILMFmtPresetDataSource::StoredList::Recent)
            source->SaveRecentList();
        else
            source->SaveCustomList();
        return SettingsWritten();
    };
}

// "recent" and "custom" take a verb of their own.
Command WithVerbs(std::map<QString, Command> verbs, std::string usage) {
    return [verbs = std::move(verbs), usage = std::move(usage)](const QStringList& args) {
        const auto found = args.isEmpty() ? verbs.end() : verbs.find(args.first());
        if (found == verbs.end())
            return Fail(usage);
        return found->second(args.mid(1));
    };
}

int Usage() {
    std::fprintf(stderr,
                 "usage: lmformat [--settings FILE] [--language CODE] COMMAND ...\n"
                 "       lmformat validate FILE\n"
                 "       lmformat tree FILE\n"
                 "       lmformat ffmpeg FILE \"CATEGORY/FORMAT/PRESET\"\n"
                 "       lmformat search CATALOGUE TEXT\n"
                 "       lmformat recent list\n"
                 "       lmformat recent push CATALOGUE \"CATEGORY/FORMAT/PRESET\"\n"
                 "       lmformat recent remove TITLE\n"
                 "       lmformat custom list\n"
                 "       lmformat custom add CATALOGUE \"CATEGORY/FORMAT/PRESET\" NAME\n"
                 "       lmformat custom remove NODE PRESET\n"
                 "       lmformat recent|custom backups\n"
                 "       lmformat recent|custom restore N\n"
                 "--settings FILE keeps the recent and custom lists in that INI file instead of\n"
                 "the application settings of lmformat.\n");
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Lumeran"));
    QCoreApplication::setApplicationName(QStringLiteral("lmformat"));
    QStringList args = QCoreApplication::arguments().mid(1);
    // Global options come before the command, and must be in place before the
    // data source is first made: it reads the lists from the settings then.
    QString languageCode;
    while (!args.isEmpty() && args.first().startsWith(QLatin1String("--"))) {
        const QString option = args.takeFirst();
        if (option == QLatin1String("--settings") && !args.isEmpty() && !args.first().isEmpty())
            ILMAppSettings::UseSettingsFile(args.takeFirst().toStdString());
        else if (option.startsWith(QLatin1String("--settings=")) && option.size() > 11)
            ILMAppSettings::UseSettingsFile(option.mid(11).toStdString());
        else if (option == QLatin1String("--language") && !args.isEmpty())
            languageCode = args.takeFirst();
        else
            return Usage();
    }
    if (!languageCode.isEmpty()) {
        auto* manager = LMFormatInternationalizationMgr::sharedObject();
        const QString name = manager->languageWithCode(languageCode);
        if (manager->codeWithLanguage(name) != languageCode)
            return Fail("unknown language code \"" + languageCode.toStdString() +
                        "\" (en, ja, zh-Hans, fr, de, it, es, pt-BR)");
        manager->setLanguage(name);
        g_localized = true;
    }
    if (args.isEmpty())
        return Usage();
    ILMFmtPresetDataSource::Shared()->SetSaveFailureHandler(
        [](const std::string& message) { Fail(message); });
    const std::map<QString, Command> commands{
        {QStringLiteral("validate"), Validate},
        {QStringLiteral("tree"), Tree},
        {QStringLiteral("ffmpeg"), FFmpeg},
        {QStringLiteral("search"), Search},
        {QStringLiteral("recent"),
         WithVerbs(
             {{QStringLiteral("list"), RecentList},
              {QStringLiteral("push"), RecentPush},
              {QStringLiteral("remove"), RecentRemove},
              {QStringLiteral("backups"), Backups(ILMFmtPresetDataSource::StoredList::Recent)},
              {QStringLiteral("restore"), Restore(ILMFmtPresetDataSource::StoredList::Recent)}},
             "usage: lmformat recent list | push CATALOGUE \"CATEGORY/FORMAT/PRESET\" | "
             "remove TITLE | backups | restore N")},
        {QStringLiteral("custom"),
         WithVerbs(
             {{QStringLiteral("list"), CustomList},
              {QStringLiteral("add"), CustomAdd},
              {QStringLiteral("remove"), CustomRemove},
              {QStringLiteral("backups"), Backups(ILMFmtPresetDataSource::StoredList::Custom)},
              {QStringLiteral("restore"), Restore(ILMFmtPresetDataSource::StoredList::Custom)}},
             "usage: lmformat custom list | add CATALOGUE \"CATEGORY/FORMAT/PRESET\" NAME | "
             "remove NODE PRESET | backups | restore N")}};
    const auto found = commands.find(args.takeFirst());
    if (found == commands.end())
        return Usage();
    return found->second(args);
}
