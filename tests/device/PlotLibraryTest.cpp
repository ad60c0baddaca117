// The library that draws: missing, without its Qwt, and beside another Qwt that the host has loaded.
//
// The plug-in is a copy in a tree of its own, so that what stands beside it is the test's. A library is
// loaded once in a process: each function runs in a process of its own.
#include <dlfcn.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QPluginLoader>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

#include "PluginInterface/VondPluginInterface.h"
#include "Simulator/VondSim.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr char kTool[] = "libQuorlinRf.so";
constexpr char kPlots[] = "libQuorlinPlots.so";

QString Built(const QString &file)
{
    return QCoreApplication::applicationDirPath() + "/../" + file;
}

}  // namespace

class PlotLibraryTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QDir(m_tree.path()).mkdir("plugins");
        // The same pair as the test's own, of which there is one.
        QVERIFY(QFile::link(QFileInfo(Built("lib")).canonicalFilePath(), m_tree.filePath("lib")));
        QVERIFY(QFile::copy(Built(QString("plugins/") + kTool), Plugin(kTool)));
    }

    void withoutTheLibraryTheActionIsOffAndNamesThePackage()
    {
        QVERIFY(Show());
        QVERIFY(!Action()->isEnabled());
        QVERIFY(Action()->toolTip().contains("libQuorlinPlots.so"));
        QVERIFY(Action()->toolTip().contains("Debian package quorlin-rf"));
    }

    void withoutQwtTheActionIsOffAndNamesThePackage()
    {
        QFile built(Built(QString("plugins/") + kPlots));
        QVERIFY(built.open(QIODevice::ReadOnly));
        QByteArray bytes = built.readAll();
        QVERIFY(bytes.contains("libqwt-qt5.so.6"));
        bytes.replace("libqwt-qt5.so.6", "libqwt-qt5.so.0");
        QFile copy(Plugin(kPlots));
        QVERIFY(copy.open(QIODevice::WriteOnly) && copy.write(bytes) == bytes.size());
        copy.close();
        QVERIFY(Show());
        // Qwt is installed, only not the one that this library asks for: a load tells.
        Action()->trigger();
        QVERIFY(!Action()->isEnabled());
        QVERIFY(Action()->toolTip().contains("Debian package libqwt-qt5-6"));
        QCOMPARE(m_window->statusBar()->currentMessage(), Action()->toolTip());
    }

    void aLibraryOfAnotherVersionMakesNoPlot()
    {
        QVERIFY(QFile::copy(Built("lib/libOtherPlots.so"), Plugin(kPlots)));
        QVERIFY(Show());
        Action()->trigger();
        QVERIFY(!Action()->isEnabled());
        QVERIFY(Action()->toolTip().contains("another version"));
    }

    void anotherQwtOfTheHostIsNoMatter()
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        QSKIP("Sanitizers allow no deep binding.");
#else
        void *other = dlopen(qPrintable(Built("lib/libOtherQwt.so")), RTLD_NOW | RTLD_GLOBAL);
        QVERIFY2(other, dlerror());
        QVERIFY(QFile::copy(Built(QString("plugins/") + kPlots), Plugin(kPlots)));
        QVERIFY(Show());
        QVERIFY(Action()->isEnabled());
        Action()->trigger();
        auto *plot = m_window->findChild<QWidget *>("CPlotWindow");
        QVERIFY(plot && WaitUntil([&] { return plot->isVisible(); }));
        QVERIFY(plot->findChild<QWidget *>("QwtPlotCanvas"));
        QVERIFY(!plot->grab().isNull());
        const auto calls = reinterpret_cast<int (*)()>(dlsym(other, "OtherQwtCalls"));
        QCOMPARE(calls(), 0);
#endif
    }

    void cleanup()
    {
        m_loader.unload();
    }

private:
    QString Plugin(const char *file) const
    {
        return m_tree.filePath("plugins/") + file;
    }
    QAction *Action() const
    {
        return m_window->findChild<QAction *>("m_actionPlot");
    }
    bool Show()
    {
        VondSim_Reset();
        VondSim_SetProfile("handset");
        qApp->setProperty("vondTargetHandle", 1U);
        m_loader.setFileName(Plugin(kTool));
        auto *tool = qobject_cast<VondPluginInterface *>(m_loader.instance());
        if (!tool)
            return false;
        tool->ShowPlugin();
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "CQuorlinForm")
                m_window = qobject_cast<QMainWindow *>(widget);
        }
        return m_window && WaitUntil([&] { return m_window->isEnabled() && Action(); });
    }

    QTemporaryDir m_tree;
    QPluginLoader m_loader;
    QMainWindow *m_window = nullptr;
};

QUORLIN_TEST_CLASS(PlotLibraryTest)
#include "PlotLibraryTest.moc"
