// Runs the RSRP page for a long time on the simulated DUT and watches memory and the cost of a
// fetch.
//
//   RsrpSoak --minutes 65 --seed 1     the soak, a line a minute; ends with 1 when memory grew
//   RsrpSoak --minutes 65 --plot       with the page's plot open; ends with 1 also when it costs too much
//   RsrpSoak --rows 100000             what the plot costs a fetch at so many rows; ends as with --plot
//   RsrpSoak --fetches 10              a short run of so many fetches; also without arguments
//
// Ends with 2 when the page does not do what it should, or opens a box.
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include <QCommandLineParser>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QTimer>

#include "tests/soak/SoakRun.h"

namespace {

// A box holds everything until somebody answers it, and none has a place in this run.
void EndAtABox()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    std::fprintf(stderr, "RsrpSoak: a box opened: %s: %s %s\n", qPrintable(box->windowTitle()),
                 qPrintable(box->text()), qPrintable(box->informativeText()));
    std::_Exit(2);
}

}  // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    CSoakApplication application(argc, argv);
    QLoggingCategory::setFilterRules(
        QStringLiteral("quorlin.*.debug=false\nquorlin.*.critical=false"));
    QCommandLineParser parser;
    const QCommandLineOption minutes("minutes", "Length of the soak.", "minutes");
    const QCommandLineOption fetches("fetches", "Length of a short run.", "fetches", "10");
    const QCommandLineOption seed("seed", "Decides which action comes when.", "seed", "1");
    const QCommandLineOption plot("plot", "With the page's plot open.");
    const QCommandLineOption rows("rows", "What the plot costs at so many rows.", "rows");
    parser.addOptions({minutes, fetches, seed, plot, rows});
    parser.addHelpOption();
    parser.process(application);

    QTimer boxes;
    QObject::connect(&boxes, &QTimer::timeout, EndAtABox);
    boxes.start(5000);
    try {
        CSoakRun run(parser.value(seed).toUInt(), parser.isSet(plot));
        if (parser.isSet(minutes))
            return run.Minutes(parser.value(minutes).toInt()) ? 0 : 1;
        if (parser.isSet(rows))
            return run.AtRows(parser.value(rows).toInt()) ? 0 : 1;
        run.Fetches(parser.value(fetches).toInt());
        return 0;
    } catch (const std::runtime_error &error) {
        std::fprintf(stderr, "RsrpSoak: %s\n", error.what());
        return 2;
    }
}
