// The window of the bench host with one of its panels in front, beside a simulated DUT in the same
// process: what the user does reaches that DUT, and the test makes the calls that a tool would.
//
//     CPanelWindow window("DUT");
//     QTest::mouseClick(window.Find<QCheckBox>("m_plugged"), Qt::LeftButton);
//     QCOMPARE(VondSim_IsPlugged(), 0);
#pragma once

#include <memory>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "Host/BenchHost.h"
#include "Host/HostSettings.h"
#include "HostTestFiles.h"
#include "Simulator/VondSim.h"

class CPanelWindow
{
public:
    // The DUT as at load, and settings of the test's own.
    explicit CPanelWindow(const QString &title)
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        VondSim_Reset();
        QString error;
        m_isGood = m_plugin.Load(FakePlugin("FakeTool"), error);
        Open(title);
    }

    // A session ends, and another begins.
    void Open(const QString &title)
    {
        m_host.reset();
        m_host = std::make_unique<CBenchHost>(m_plugin);
        m_host->show();
        QTabWidget *panels = Panels();
        for (int i = 0; i < panels->count(); ++i) {
            if (panels->tabText(i).remove('&') == title)
                panels->setCurrentIndex(i);
        }
        QApplication::setActiveWindow(m_host.get());
        m_isGood = m_isGood && QTest::qWaitForWindowActive(m_host.get());
    }

    bool IsGood() const { return m_isGood; }
    // Of the panel in front: names are those of its form.
    template <class Widget>
    Widget *Find(const QString &name) const
    {
        return Panels()->currentWidget()->findChild<Widget *>(name);
    }
    // Types into a number, by keys.
    void Type(const char *name, const QString &text) const
    {
        auto *number = Find<QDoubleSpinBox>(name);
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, text);
        QTest::keyClick(number, Qt::Key_Return);
    }
    // Chooses a box's entry by its data, by keys: to the top, then down.
    void Choose(const char *name, const QString &value) const
    {
        auto *box = Find<QComboBox>(name);
        box->setFocus();
        const int index = box->findData(value);
        QVERIFY2(index >= 0, qPrintable(value));
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(box, Qt::Key_Down);
        QCOMPARE(box->currentData().toString(), value);
    }
    CBenchHost &Host() { return *m_host; }
    QString File(const QString &name) const { return m_settings.filePath(name); }

private:
    QTabWidget *Panels() const { return m_host->findChild<QTabWidget *>("m_panels"); }

    QTemporaryDir m_settings;
    CPluginHandle m_plugin;
    std::unique_ptr<CBenchHost> m_host;
    bool m_isGood = false;
};

// Answers the next boxes that ask for a file as a person would, while it lives.
class CFileBoxes
{
public:
    explicit CFileBoxes(const QString &path)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, path] {
            auto *box = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!box)
                return;
            auto *line = box->findChild<QLineEdit *>("fileNameEdit");
            line->setText(path);
            ++m_count;
            QTest::keyClick(line, Qt::Key_Return);
        });
        m_timer.start(1);
    }

    int Count() const { return m_count; }

private:
    QTimer m_timer;
    int m_count = 0;
};

inline bool WriteText(const QString &path, QByteArray text)
{
    QFile file(path);
    text.replace('\'', '"');
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

inline QJsonObject ToObject(QByteArray text)
{
    return QJsonDocument::fromJson(text.replace('\'', '"')).object();
}

// Of a function that copies a text of changing length.
template <class Copy, class... Given>
QByteArray CopiedText(Copy copy, Given... given)
{
    QByteArray text(static_cast<int>(copy(given..., nullptr, 0)) + 1, '\0');
    copy(given..., text.data(), static_cast<uint32_t>(text.size()));
    text.chop(1);
    return text;
}
