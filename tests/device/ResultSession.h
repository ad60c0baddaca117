// Exports of results by the keyboard, and what stands in the files then.
//
//   QVERIFY(Export(session, folder.filePath("rsrp.csv")));
//   const CCsvFile csv(folder.filePath("rsrp.csv"));
//   QCOMPARE(csv.Column("RSRP0 (dBm)").size(), 5);
#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/CalibrationSession.h"

inline void PressExport(const CPluginSession &session, Qt::KeyboardModifiers more = {})
{
    session.Window()->activateWindow();  // a dialog may have been the active one
    QVERIFY(QTest::qWaitForWindowActive(session.Window()));
    QTest::keyClick(session.Window(), Qt::Key_E, Qt::ControlModifier | more);
}

// By Ctrl+E, and Alt where it is the second export of its page. False when it is not told done.
inline bool Export(const CPluginSession &session, const QString &file,
                   Qt::KeyboardModifiers more = {})
{
    CBoxWatcher boxes;
    AnswerFileDialog(file);
    PressExport(session, more);
    const bool isDone = WaitUntil([&] {
        if (!boxes.Seen().isEmpty())
            return true;
        return session.StatusBar().startsWith("Exported ") && session.StatusBar().contains(file);
    });
    for (const SSeenBox &box : boxes.Seen())
        qWarning() << box.title << box.plain;
    if (!isDone)
        qWarning() << "no export:" << session.StatusBar() << QApplication::activeModalWidget();
    return isDone && boxes.Seen().isEmpty();
}

inline QByteArray FileBytes(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QJsonObject JsonFile(const QString &name)
{
    return QJsonDocument::fromJson(FileBytes(name)).object();
}

// A CSV file as Python's csv module reads it.
class CCsvFile
{
public:
    explicit CCsvFile(const QString &name)
    {
        QProcess python;
        python.start(QUORLIN_PYTHON, {"-c",
                                      "import csv, json, sys\n"
                                      "with open(sys.argv[1], newline='', encoding='utf-8') as f:\n"
                                      "    print(json.dumps(list(csv.reader(f, strict=True))))\n",
                                      name});
        python.waitForFinished();
        for (const QJsonValue &line :
             QJsonDocument::fromJson(python.readAllStandardOutput()).array()) {
            QStringList texts;
            for (const QJsonValue &field : line.toArray())
                texts.append(field.toString());
            m_lines.append(texts);
        }
    }

    QStringList Headers() const { return m_lines.value(0); }
    int Rows() const { return m_lines.size() - 1; }
    QStringList Column(const QString &header) const
    {
        const int column = Headers().indexOf(header);
        QStringList texts;
        for (int row = 1; row < m_lines.size(); ++row)
            texts.append(column < 0 ? "no such column" : m_lines[row].value(column));
        return texts;
    }

private:
    QVector<QStringList> m_lines;
};
