// The bench host: a host application for the plug-in on the engineer's desk and in tests.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <QApplication>
#include <QLoggingCategory>

#include "Host/BenchHost.h"
#include "Host/Demo.h"
#include "Host/LinkLibrary.h"
#include "Host/Options.h"
#include "Host/PluginHandle.h"
#include "Host/SimulatedDut.h"
#include "Host/Tap.h"
#include "Host/ToolWindow.h"
#include "Host/WindowPlaces.h"
#include "Host/dut/DutPanel.h"

namespace {

constexpr std::chrono::seconds kDemoDeadline(60);
constexpr char kProfileVariable[] = "VOND_SIM_PROFILE";

void Print(FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", line.toUtf8().constData());
    std::fflush(stream);
}

void Complain(const QString &text)
{
    Print(stderr, "quorlin-host: " + text);
}

QtMessageHandler s_qtMessages = nullptr;

// Qt's last words before it aborts.
void OnQtMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type != QtFatalMsg)
        return s_qtMessages(type, context, text);
    Complain(text);
    Complain("Set DISPLAY or WAYLAND_DISPLAY to a display, or QT_QPA_PLATFORM=offscreen to run "
             "without one.");
    std::_Exit(eHostExitNoDisplay);
}

// The application object; without a display, the end of the program.
std::unique_ptr<QApplication> MakeApplication(int &count, char **arguments)
{
    s_qtMessages = qInstallMessageHandler(&OnQtMessage);
    auto application = std::make_unique<QApplication>(count, arguments);
    qInstallMessageHandler(s_qtMessages);
    return application;
}

int RunDemo(CBenchHost &host, CPluginHandle &plugin, const SHostOptions &options)
{
    host.show();
    CDemo demo(host, plugin, options.screenshotFile);
    QObject::connect(&demo, &CDemo::Signal_Said, [](const QString &line) { Print(stdout, line); });
    QObject::connect(&demo, &CDemo::Signal_Ended, [](const QString &failure) {
        if (failure.isEmpty())
            Print(stdout, "The demonstration went well.");
        else
            Complain(failure);
        QCoreApplication::exit(failure.isEmpty() ? eHostExitGood : eHostExitFailed);
    });
    demo.Start(kDemoDeadline);
    return QCoreApplication::exec();
}

// The picture is taken at the first moment when all pages are there.
void SaveWhenReady(CToolWindow &tool, CBenchHost &host, const QString &file)
{
    if (!tool.Attach())
        return Complain("Can't save a picture: the tool has no window with a status bar.");
    QObject::connect(&tool, &CToolWindow::Signal_Status, &host,
                     [&tool, &host, file](const QString &text) {
                         if (text != QLatin1String(kPagesReady))
                             return;
                         tool.disconnect(&host);
                         QString error;
                         if (tool.SaveScreenshot(file, error))
                             return host.AddEvent("Picture", file);
                         host.AddEvent("Picture", error);
                         Complain(error);
                     });
}

int RunWindow(CBenchHost &host, const SHostOptions &options)
{
    const CWindowPlaces places(host);
    host.show();
    CToolWindow tool;
    if (!options.screenshotFile.isEmpty())
        SaveWhenReady(tool, host, options.screenshotFile);
    QMetaObject::invokeMethod(
        &host,
        [&host] {
            const SPluginToolLaunchRequirement answer = host.Query();
            if (answer.isSupport)
                host.ShowTool();
            else
                Complain("The tool can't run on this DUT: " + answer.unsupportReason);
        },
        Qt::QueuedConnection);
    return QCoreApplication::exec();
}

// As the options say, or as it was left, unless the environment says otherwise. The demonstration is the
// same for everybody.
QString ProfileAtStart(const SHostOptions &options)
{
    const bool isRemembered = options.profile.isEmpty() && !options.isDemo &&
                              qEnvironmentVariableIsEmpty(kProfileVariable);
    return isRemembered ? CDutPanel::RememberedProfile() : options.profile;
}

}  // namespace

int main(int argc, char **argv)
{
    SHostOptions options;
    if (const std::optional<int> exitCode = ReadHostOptions(argc, argv, options))
        return *exitCode;

    if (const QString error = RunUnderTap(options, argv); !error.isEmpty()) {
        Complain(error);
        return eHostExitOptions;
    }
    // The simulated DUT comes with the plug-in and takes profile and scenario at that moment.
    const QString profile = ProfileAtStart(options);
    if (!profile.isEmpty())
        qputenv(kProfileVariable, profile.toUtf8());
    if (!options.scenario.isEmpty())
        qputenv("VOND_SIM_SCENARIO", options.scenario.toUtf8());
    QLoggingCategory::setFilterRules(options.isVerbose ? "quorlin.*.debug=true"
                                                       : "quorlin.*.debug=false");
    // Qt gets no options: it knows a "-plugin" of its own. Its settings come from the environment.
    int programNameOnly = 1;
    const std::unique_ptr<QApplication> application = MakeApplication(programNameOnly, argv);
    QString error;
    CLinkLibrary link;
    if (!options.linkFile.isEmpty() && !link.Open(options.linkFile, error)) {
        Complain(error);
        return eHostExitNoPlugin;
    }
    application->setProperty("vondTargetHandle", link.IsOpen() ? link.Handle() : options.handle);

    CPluginHandle plugin;
    if (!plugin.Load(options.pluginFile, error)) {
        Complain(error);
        return eHostExitNoPlugin;
    }
    const QStringList profiles = SimulatedProfiles();
    if (IsUnknownProfile(options.profile, profiles)) {
        Complain(QString("There is no profile '%1', and no file of that name. Profiles: %2.")
                     .arg(options.profile, profiles.join(", ")));
        return eHostExitOptions;
    }
    if (const QString reason = ScenarioError(options.scenario); !reason.isEmpty()) {
        Complain(reason);
        return eHostExitOptions;
    }
    CBenchHost host(plugin);
    return options.isDemo ? RunDemo(host, plugin, options) : RunWindow(host, options);
}
