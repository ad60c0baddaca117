// pictures --script FILE [--dark] (--to FOLDER | --check) PLUGIN
//
// Takes pictures of the tool on the simulated DUT, as a script says. With --check it makes them and writes
// none. Exit code 1 with words when a step can't be done.
#include <cstdio>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

#include "PluginInterface/VondPluginInterface.h"
#include "tools/pictures/PictureLook.h"
#include "tools/pictures/PictureRun.h"

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({"script", "What to take.", "file"});
    parser.addOption({"dark", "As on a dark desktop."});
    parser.addOption({"to", "Folder of the pictures.", "folder"});
    parser.addOption({"check", "Writes nothing."});
    parser.addPositionalArgument("plugin", "The tool.");
    parser.addHelpOption();
    parser.process(application);

    QString error;
    const QVector<SPictureStep> steps = ReadPictureSteps(parser.value("script"), error);
    const bool isBad =
        parser.positionalArguments().size() != 1 || parser.isSet("to") == parser.isSet("check");
    if (steps.isEmpty() || isBad) {
        std::fprintf(stderr, "%s\n", qPrintable(isBad ? parser.helpText() : error));
        return 2;
    }
    UseLook(application, parser.isSet("dark"));
    application.setProperty("vondTargetHandle", 1u);
    QPluginLoader library(QFileInfo(parser.positionalArguments()[0]).absoluteFilePath());
    auto *tool = qobject_cast<VondPluginInterface *>(library.instance());
    if (!tool) {
        std::fprintf(stderr, "%s\n", qPrintable(library.errorString()));
        return 1;
    }
    if (parser.isSet("to"))
        QDir().mkpath(parser.value("to"));
    tool->ShowPlugin();
    CPictureRun run(steps, parser.value("to"));
    run.Start();
    const int result = application.exec();
    delete library.instance();
    library.unload();
    return result;
}
