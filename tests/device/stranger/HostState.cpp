#include "tests/device/stranger/HostState.h"

#include <cfenv>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <locale>
#include <new>

#include <pthread.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#if defined(__x86_64__)
#include <xmmintrin.h>
#endif

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QLocale>
#include <QLoggingCategory>
#include <QPixmapCache>
#include <QSettings>
#include <QStyle>
#include <QStyleHints>
#include <QTextCodec>
#include <QThreadPool>
#include <QToolTip>

namespace {

Q_LOGGING_CATEGORY(lcHost, "host.own", QtWarningMsg)

template <typename T>
QString Address(T pointer)
{
    return QString::number(reinterpret_cast<quintptr>(pointer), 16);
}

QString Colors(const QPalette &palette)
{
    QStringList colors;
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        for (int role = 0; role < QPalette::NColorRoles; ++role)
            colors.append(palette
                              .color(static_cast<QPalette::ColorGroup>(group),
                                     static_cast<QPalette::ColorRole>(role))
                              .name(QColor::HexArgb));
    }
    return colors.join(' ');
}

void AddSignals(SHostState &state)
{
    for (int i = 1; i < NSIG; ++i) {
        struct sigaction action = {};
        if (sigaction(i, nullptr, &action) == 0)
            state[QString("signal %1").arg(i)] =
                Address(action.sa_handler) + QString(" flags %1").arg(action.sa_flags);
    }
    sigset_t blocked;
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    for (int i = 1; i < NSIG; ++i)
        state["signals blocked"] += QString::number(sigismember(&blocked, i));
}

void AddNumbers(SHostState &state)
{
    state["rounding"] = QString::number(std::fegetround());
    state["floating-point traps"] = QString::number(fegetexcept());
#if defined(__x86_64__)
    state["MXCSR"] = QString::number(_mm_getcsr() & ~0x3FU);  // without what has happened
#endif
    state["setlocale"] = std::setlocale(LC_ALL, nullptr);
    state["std::locale"] = QString::fromStdString(std::locale().name());
    state["QLocale"] = QLocale().name() + QString::number(QLocale().numberOptions());
    state["codec"] = QTextCodec::codecForLocale()->name();
}

void AddProcess(SHostState &state)
{
    QFile status("/proc/self/status");
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("Umask:"))
                state["umask"] = line.mid(6).trimmed();
        }
    }
    state["current folder"] = QDir::currentPath();
    for (char **entry = environ; *entry; ++entry)
        state["environment"] += QString::fromLocal8Bit(*entry) + '\n';
    for (int i = 0; i < RLIM_NLIMITS; ++i) {
        rlimit limit = {};
        getrlimit(static_cast<__rlimit_resource>(i), &limit);
        state["limits"] += QString(" %1/%2").arg(limit.rlim_cur).arg(limit.rlim_max);
    }
    state["terminate handler"] = Address(std::get_terminate());
    state["new handler"] = Address(std::get_new_handler());
}

void AddQt(SHostState &state)
{
    const QtMessageHandler messages = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(messages);
    state["message handler"] = Address(messages);
    const auto filter = QLoggingCategory::installFilter(nullptr);
    QLoggingCategory::installFilter(filter);
    state["log filter"] = Address(filter);
    state["host's log"] =
        QString("%1%2").arg(lcHost().isDebugEnabled()).arg(lcHost().isWarningEnabled());
    state["organisation"] =
        QCoreApplication::organizationName() + '/' + QCoreApplication::organizationDomain();
    state["application"] =
        QCoreApplication::applicationName() + '/' + QCoreApplication::applicationVersion() + '/' +
        QGuiApplication::applicationDisplayName() + '/' + QGuiApplication::desktopFileName();
    state["settings format"] = QString::number(QSettings::defaultFormat());
    state["settings file"] = QSettings().fileName();
    state["library paths"] = QCoreApplication::libraryPaths().join(':');
    for (int i = 0; i < Qt::AA_AttributeCount; ++i)
        state["attributes"] += QString::number(
            QCoreApplication::testAttribute(static_cast<Qt::ApplicationAttribute>(i)));
    for (const QByteArray &name : qApp->dynamicPropertyNames())
        state["properties"] +=
            QString::fromUtf8(name) + '=' + qApp->property(name).toString() + ' ';
    const QThreadPool *pool = QThreadPool::globalInstance();
    state["pool"] = QString("%1 threads, %2 ms, %3 at work")
                        .arg(pool->maxThreadCount())
                        .arg(pool->expiryTimeout())
                        .arg(pool->activeThreadCount());
}

void AddLooks(SHostState &state)
{
    state["style"] = Address(QApplication::style()) + ' ' + QApplication::style()->objectName();
    state["style sheet"] = qApp->styleSheet();
    state["palette"] = Colors(QApplication::palette());
    state["palette of buttons"] = Colors(QApplication::palette("QPushButton"));
    state["palette of tips"] = Colors(QToolTip::palette());
    state["font"] = QApplication::font().toString();
    state["font of buttons"] = QApplication::font("QPushButton").toString();
    state["font of tips"] = QToolTip::font().toString();
    state["times"] = QString("%1 %2 %3 %4")
                         .arg(QApplication::cursorFlashTime())
                         .arg(QApplication::doubleClickInterval())
                         .arg(QApplication::keyboardInputInterval())
                         .arg(QApplication::wheelScrollLines());
    state["drag"] =
        QString("%1 %2").arg(QApplication::startDragDistance()).arg(QApplication::startDragTime());
    for (const Qt::UIEffect effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo,
                                      Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip})
        state["effects"] += QString::number(QApplication::isEffectEnabled(effect));
    state["direction"] = QString::number(QGuiApplication::layoutDirection());
    state["quits by itself"] = QString::number(QGuiApplication::quitOnLastWindowClosed());
    state["cursor"] = QString::number(QGuiApplication::overrideCursor() != nullptr);
    state["icon"] = QString::number(QGuiApplication::windowIcon().isNull());
    state["icon theme"] = QIcon::themeName() + QIcon::themeSearchPaths().join(':');
    state["pixmap cache"] = QString::number(QPixmapCache::cacheLimit());
    state["tab focus"] = QString::number(QGuiApplication::styleHints()->tabFocusBehavior());
    state["clipboard"] = QGuiApplication::clipboard()->text();
}

[[noreturn]] void HostTerminates()
{
    std::abort();
}

}  // namespace

SHostState HostState()
{
    SHostState state;
    AddSignals(state);
    AddNumbers(state);
    AddProcess(state);
    AddQt(state);
    AddLooks(state);
    return state;
}

QStringList HostStateChanges(const SHostState &before)
{
    const SHostState now = HostState();
    QStringList changes;
    QStringList names = before.keys() + now.keys();
    names.removeDuplicates();
    for (const QString &name : names) {
        if (before.value(name) != now.value(name))
            changes.append(
                QString("%1: %2, now %3").arg(name, before.value(name), now.value(name)));
    }
    changes.sort();
    return changes;
}

void BecomeUnusualHost()
{
    umask(027);
    std::setlocale(LC_ALL, "C.UTF-8");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    std::signal(SIGUSR1, SIG_IGN);
    std::signal(SIGPIPE, SIG_DFL);
    std::set_terminate(HostTerminates);
    QCoreApplication::setOrganizationName("Stranger");
    QCoreApplication::setOrganizationDomain("stranger.example");
    QCoreApplication::setApplicationName("strange host");
    QCoreApplication::setApplicationVersion("9.9");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QApplication::setDoubleClickInterval(523);
    QApplication::setWheelScrollLines(5);
    QGuiApplication::clipboard()->setText("of the host");
    QPixmapCache::setCacheLimit(4321);
    qputenv("STRANGER", "host");
    qApp->setProperty("stranger", 42);
    qApp->setProperty("vondTargetHandle", 1U);
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Highlight, QColor(0x20, 0x60, 0x20));
    QApplication::setPalette(palette);
    QFont font = QApplication::font();
    font.setPointSizeF(10.5);
    QApplication::setFont(font);
}
