// SPDX-License-Identifier: MIT
// lmformat: inspect format catalogues and the presets they hold, search them,
// and look after the recent and custom lists in the application settings.
// `lmformat --help` lists the commands; LMCliCommands.cpp holds their table.
//
// The lists live where a host keeps them: in the application settings, here the
// default QSettings of "lmformat" by "Lumeran", or the INI file of --settings.
// With --language, tree and search print titles and descriptions as the popup
// shows them in that language (en, ja, zh-Hans, fr, de, it, es, pt-BR).

#include "ILMAppSettings.h"
#include "ILMFmtPresetDataSource.h"
#include "LMCliCommands.h"
#include "LMCliOutput.h"
#include "LMFormatInternationalizationMgr.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <optional>

using namespace Lumeran;

namespace {

const QString kDescription =
    QStringLiteral("Inspects format catalogues and their presets, searches them, and keeps the\n"
                   "recent and custom lists of the popup.\n\nCommands:\n");

// Global options come before the command; everything after it is an operand.
struct Options {
    QCommandLineOption help = QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")},
                                                 QStringLiteral("Show this help and exit."));
    QCommandLineOption settings = QCommandLineOption(
        QStringLiteral("settings"),
        QStringLiteral("Keep the recent and custom lists in this INI file instead of the "
                       "application settings of lmformat."),
        QStringLiteral("FILE"));
    QCommandLineOption language =
        QCommandLineOption(QStringLiteral("language"),
                           QStringLiteral("Show titles and descriptions in this language: en, ja, "
                                          "zh-Hans, fr, de, it, es or pt-BR."),
                           QStringLiteral("CODE"));
};

void SetUp(QCommandLineParser& parser, const Options& options) {
    parser.setApplicationDescription(kDescription + LMCliCommands::Summaries());
    parser.addOption(options.help);
    parser.addOption(options.settings);
    parser.addOption(options.language);
    parser.addPositionalArgument(QStringLiteral("COMMAND"), QStringLiteral("A command above."),
                                 QStringLiteral("COMMAND ..."));
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
}

int Usage() {
    std::fprintf(stderr,
                 "usage: lmformat [--settings FILE] [--language CODE] COMMAND ...\n"
                 "       %s\n"
                 "--settings FILE keeps the recent and custom lists in that INI file instead of\n"
                 "the application settings of lmformat.\n",
                 LMCliCommands::Synopsis(QStringLiteral("       ")).toUtf8().constData());
    return 2;
}

// The popup's language for tree and search; exit code 1 for a code it lacks.
int UseLanguage(const QString& code) {
    auto* manager = LMFormatInternationalizationMgr::sharedObject();
    const QString name = manager->languageWithCode(code);
    if (manager->codeWithLanguage(name) != code)
        return LMCliOutput::Fail("unknown language code \"" + code.toStdString() +
                                 "\" (en, ja, zh-Hans, fr, de, it, es, pt-BR)");
    manager->setLanguage(name);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Lumeran"));
    QCoreApplication::setApplicationName(QStringLiteral("lmformat"));
    QCommandLineParser parser;
    const Options options;
    SetUp(parser, options);
    if (!parser.parse(QCoreApplication::arguments()))
        return Usage();
    if (parser.isSet(options.help)) {
        std::fputs(parser.helpText().toUtf8().constData(), stdout);
        return 0;
    }
    // The settings file must be in place before the data source is first made:
    // it reads the lists from the settings then.
    if (parser.isSet(options.settings)) {
        const QString file = parser.value(options.settings);
        if (file.isEmpty())
            return Usage();
        ILMAppSettings::UseSettingsFile(file.toStdString());
    }
    const QString languageCode = parser.value(options.language);
    if (!languageCode.isEmpty() && UseLanguage(languageCode) != 0)
        return 1;
    const QStringList words = parser.positionalArguments();
    if (words.isEmpty())
        return Usage();
    ILMFmtPresetDataSource::Shared()->SetSaveFailureHandler(
        [](const std::string& message) { LMCliOutput::Fail(message); });
    const std::optional<int> result = LMCliCommands::Run(words, !languageCode.isEmpty());
    return result ? *result : Usage();
}
