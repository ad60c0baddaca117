// A calibration page on the simulated DUT: what the tests of both pages share.
//
// Cells are edited as a user does: click, type, go on. A file dialog is answered by the next
// AnswerFileDialog.
//
//   CCalibrationSession session(kPathLossPage);
//   QVERIFY(session.ShowAndWait());
//   QVERIFY(session.Run(kRead));
//   session.Type("calDataIf_data_group2_memberProperty_lna0", 0, 3, "1.5");
//   session.Select("powerMode", "LPM");
#pragma once

#include <functional>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTableWidget>
#include <QTimer>
#include <QWheelEvent>
#include <QtTest>

#include "Vond/VondCalRecords.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/common/SimJournal.h"
#include "tests/common/WaitUntil.h"

constexpr char kPathLossPage[] = "CNrRxPathlossDockWidgetV7";
constexpr char kAptPage[] = "CNrAptProfileDockWidgetV7";

constexpr char kReadCall[] = "VOND_MMRf_GetCalDataV7_r";
constexpr char kWriteCall[] = "VOND_MMRf_SetCalDataV7_r";
constexpr char kBlockCall[] = "VOND_MMRf_GetCalBlkInfoV7_r";

struct SFlowButton
{
    const char *button;
    const char *done;
    const char *failed;  // title; with a point behind it the status line
};

constexpr SFlowButton kRead = {"m_btnUpload", "Read data from target successfully.",
                               "Read data from target failed"};
constexpr SFlowButton kWrite = {"m_btnDownload", "Write data to target successfully.",
                                "Write data to target failed"};
constexpr SFlowButton kImport = {"m_btnLoad", "Import data from file successfully.",
                                 "Import data from file failed"};
constexpr SFlowButton kExport = {"m_btnSave", "Export data to file successfully.",
                                 "Export data to file failed"};

// Answers the next file dialog: with a file, as a user who types its path and replaces what is
// there, or by cancelling it.
inline void AnswerFileDialog(const QString &file,
                             const std::function<void(QFileDialog *)> &look = {})
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, file, look] {
        QPointer<QFileDialog> dialog =
            qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer->stop();
        timer->deleteLater();
        if (look)
            look(dialog);
        if (!dialog)
            return;
        if (file.isEmpty()) {
            dialog->reject();
            return;
        }
        dialog->setOption(QFileDialog::DontConfirmOverwrite);
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(file);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    timer->start(0);
}

class CCalibrationSession : public CPluginSession
{
public:
    explicit CCalibrationSession(const QString &page, const QString &profile = "handset")
        : CPluginSession(profile, 1, page)
    {
    }

    // Presses a flow's button and waits for its good end; a file flow gets the file. False when it
    // fails, which the log tells.
    bool Run(const SFlowButton &flow, const QString &file = {})
    {
        if (!file.isEmpty())
            AnswerFileDialog(file);
        CBoxWatcher boxes;
        Press(flow.button);
        const bool isOver = WaitUntil(
            [&] { return !boxes.Seen().isEmpty() || (IsIdle() && StatusBar() == flow.done); });
        for (const SSeenBox &box : boxes.Seen())
            qWarning() << box.title << box.text << box.informative;
        return isOver && boxes.Seen().isEmpty();
    }

    // All four buttons can be pressed, and nothing covers the page.
    bool IsIdle() const
    {
        for (const SFlowButton &flow : {kRead, kWrite, kImport, kExport}) {
            if (!Find<QPushButton>(flow.button)->isEnabled())
                return false;
        }
        return true;
    }
    bool IsAnyButtonOn() const
    {
        for (const SFlowButton &flow : {kRead, kWrite, kImport, kExport}) {
            if (Find<QPushButton>(flow.button)->isEnabled())
                return true;
        }
        return false;
    }

    static QString ConfigName(const QString &member)
    {
        return "calDataIf_config_group1_memberProperty_" + member;
    }
    static QString DataName(int group, const QString &member)
    {
        return QString("calDataIf_data_group%1_memberProperty_%2").arg(group).arg(member);
    }

    QComboBox *Selector(const QString &member) const { return Find<QComboBox>(ConfigName(member)); }
    // Goes to a selector and chooses an item with the keys.
    void Select(const QString &member, const QString &item) const
    {
        QComboBox *selector = Selector(member);
        selector->setFocus();
        const int steps = selector->findText(item) - selector->currentIndex();
        for (int i = 0; i < qAbs(steps); ++i)
            QTest::keyClick(selector, steps > 0 ? Qt::Key_Down : Qt::Key_Up);
        QCOMPARE(selector->currentText(), item);
    }
    // Turns the wheel by one notch over a selector that has no focus.
    void TurnWheel(const QString &member, int notches) const
    {
        QComboBox *selector = Selector(member);
        const QPointF at = selector->rect().center();
        QWheelEvent wheel(at, selector->mapToGlobal(at.toPoint()), {}, {0, 120 * notches},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(selector, &wheel);
    }

    QTableWidget *Table(int group, const QString &member) const
    {
        return Find<QTableWidget>(DataName(group, member));
    }
    QAbstractSpinBox *Cell(int group, const QString &member, int row, int column) const
    {
        return qobject_cast<QAbstractSpinBox *>(Table(group, member)->cellWidget(row, column));
    }
    QString CellText(int group, const QString &member, int row, int column) const
    {
        return Cell(group, member, row, column)->text();
    }
    QStringList TableTexts(int group, const QString &member) const
    {
        QStringList texts;
        const QTableWidget *table = Table(group, member);
        for (int r = 0; r < table->rowCount(); ++r) {
            for (int c = 0; c < table->columnCount(); ++c)
                texts.append(qobject_cast<QAbstractSpinBox *>(table->cellWidget(r, c))->text());
        }
        return texts;
    }
    static void Type(QAbstractSpinBox *editor, const QString &text)
    {
        editor->setFocus();
        editor->selectAll();
        QTest::keyClicks(editor, text);
    }
    void Type(int group, const QString &member, int row, int column, const QString &text) const
    {
        Type(Cell(group, member, row, column), text);
    }
};

// What two rounds of a download differ in: 16-bit words of the records, by their offset.
struct SWordChange
{
    int round;
    int offset;
    int16_t before;
    int16_t after;

    bool operator==(const SWordChange &other) const
    {
        return round == other.round && offset == other.offset && before == other.before &&
               after == other.after;
    }
};

// The records of the last download, a round each: all calls behind the first `skip`.
inline QVector<QByteArray> Rounds(int skip)
{
    QVector<QByteArray> rounds;
    const QVector<SJournalCall> calls = JournalOf(kWriteCall);
    for (int i = skip; i < calls.size(); ++i)
        rounds.append(calls[i].request);
    return rounds;
}

inline int16_t WordAt(const QByteArray &record, int offset)
{
    return static_cast<int16_t>(static_cast<uint8_t>(record[offset]) |
                                static_cast<uint8_t>(record[offset + 1]) << 8);
}

inline QVector<SWordChange> Changes(const QVector<QByteArray> &before,
                                    const QVector<QByteArray> &after)
{
    QVector<SWordChange> changes;
    for (int round = 0; round < qMin(before.size(), after.size()); ++round) {
        for (int offset = 0; offset + 1 < before[round].size(); offset += 2) {
            const int16_t was = WordAt(before[round], offset);
            const int16_t is = WordAt(after[round], offset);
            if (was != is)
                changes.append({round, offset, was, is});
        }
    }
    return changes;
}
