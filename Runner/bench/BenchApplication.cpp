#include "Runner/bench/BenchApplication.h"

#include <QLoggingCategory>

namespace {

char s_programName[] = "quorlin";
char *s_arguments[] = {s_programName, nullptr};
int s_argumentCount = 1;

// What Qt says of a platform without a display, to nobody's use.
constexpr const char *kIdleWords[] = {"This plugin does not support propagateSizeHints()",
                                      "QStandardPaths: XDG_RUNTIME_DIR not set"};

QtMessageHandler s_messages = nullptr;

void OnMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    for (const char *words : kIdleWords) {
        if (text.startsWith(QLatin1String(words)))
            return;
    }
    s_messages(type, context, text);
}

}  // namespace

// Packaging a page names each table of results on the critical log, which is part of its work.
std::unique_ptr<QApplication> MakeBenchApplication(bool isVerbose)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(isVerbose ? QStringLiteral("quorlin.*.debug=true")
                                               : QStringLiteral("quorlin.*.debug=false\n"
                                                                "quorlin.engine.critical=false"));
    s_messages = qInstallMessageHandler(&OnMessage);
    auto application = std::make_unique<QApplication>(s_argumentCount, s_arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return application;
}
