#include "tests/device/RsrpSession.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QThreadPool>
#include <QtTest>

#include "Simulator/VondSim.h"
#include "tests/common/WaitUntil.h"

void BothRsrpPages()
{
    QTest::addColumn<QString>("mode");
    QTest::newRow("force") << "Force";
    QTest::newRow("normal") << "Normal";
}

CRsrpSession::CRsrpSession(const QString &mode, const QString &profile)
    : CPluginSession(profile, 1, "CNrRsrp" + mode + "DockWidgetV7"), mode(mode),
      txGroup(mode == "Force" ? "group3" : "group2")
{
}

bool CRsrpSession::Ready()
{
    if (!ShowAndWait())
        return false;
    Input<QSpinBox>("group1", "reportPeriod")->setValue(10000);
    return true;
}

bool CRsrpSession::Running()
{
    if (!Ready())
        return false;
    Press("m_start");
    return WaitForStatus("Rsrp start...");
}

bool CRsrpSession::WaitForStatus(const QString &text) const
{
    if (!CPluginSession::WaitForStatus(text))
        return false;
    // A start clears the reports first. The answer to that may come behind the start's, and until
    // then a tick fetches nothing.
    if (text == "Rsrp start...") {
        QThreadPool::globalInstance()->waitForDone(1000);
        QCoreApplication::processEvents();
    }
    return true;
}

// The answer to a fetch that came just before may have the last word.
bool CRsrpSession::Stop()
{
    bool isSaid = false;
    const auto listening =
        connect(Window()->statusBar(), &QStatusBar::messageChanged, this,
                [&isSaid](const QString &text) { isSaid = isSaid || text == "Rsrp stop."; });
    Press("m_stop");
    const bool isStopped = WaitUntil([&isSaid] { return isSaid; });
    disconnect(listening);
    return isStopped;
}

void CRsrpSession::Tick() const
{
    QMetaObject::invokeMethod(Page(), "Slot_RsrpRxTimerTimeout");
}

bool CRsrpSession::Fetch()
{
    const int before = Rows();
    Tick();
    return WaitUntil([&] { return Rows() > before; });
}

bool CRsrpSession::HoldFetch()
{
    VondSim_Hold(kRsrpReport);
    Tick();
    return VondSim_WaitUntilHeld(kRsrpReport, 20000) != 0;
}

QString CRsrpSession::Enabled() const
{
    QStringList on;
    const auto add = [&](const char *word, const QString &name) {
        if (Find<QWidget>(name)->isEnabled())
            on.append(word);
    };
    add("start", "m_start");
    add("stop", "m_stop");
    add("reset", "resetPushButton");
    add("clear", "clearPushButton");
    add("rx", "groupBox_rx");
    add("tx", "groupBox_tx");
    return on.join(' ');
}

QTableWidget *CRsrpSession::Table() const
{
    for (QTableWidget *table : Page()->findChildren<QTableWidget *>()) {
        if (!table->isHidden() && table->isVisibleTo(Page()))
            return table;
    }
    return nullptr;
}

QString CRsrpSession::Cell(int row, const QString &column) const
{
    const QTableWidget *table = Table();
    for (int c = 0; c < table->columnCount(); ++c) {
        if (table->horizontalHeaderItem(c)->text() != column)
            continue;
        if (const auto *label = qobject_cast<QLabel *>(table->cellWidget(row, c)))
            return label->text();
        return table->item(row, c) ? table->item(row, c)->text() : QString();
    }
    return "no such column";
}

QStringList CRsrpSession::Column(const QString &column) const
{
    QStringList texts;
    for (int row = 0; row < Rows(); ++row)
        texts.append(Cell(row, column));
    return texts;
}

bool CRsrpSession::Choose(const QString &member, const QString &text) const
{
    auto *box = Input<QComboBox>("group1", member);
    const int wanted = box->findText(text);
    while (wanted >= 0 && box->currentIndex() != wanted) {
        const int before = box->currentIndex();
        QTest::keyClick(box, before < wanted ? Qt::Key_Down : Qt::Key_Up);
        if (box->currentIndex() == before)
            return false;
    }
    return wanted >= 0;
}
