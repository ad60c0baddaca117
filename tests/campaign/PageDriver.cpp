#include "tests/campaign/PageDriver.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStatusBar>
#include <QTableWidget>
#include <QThreadPool>
#include <QtTest>

#include "Simulator/VondSim.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/CalibrationSession.h"

namespace {

// Only a case that does not hold waits so long.
constexpr int kPatienceMs = 5000;

QString PlainText(QString box)
{
    return box.remove("<P><FONT COLOR='#000080'><FONT SIZE='4'>")
        .remove("</FONT></FONT></P>")
        .replace("<br>", "\n");
}

QByteArray Content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The DUT's answer fills it; the line edit of a spin box has no name of its own.
bool IsResult(const QWidget *editor)
{
    constexpr char kResponse[] = "_response_";
    return editor->objectName().contains(kResponse) ||
           editor->parentWidget()->objectName().contains(kResponse);
}

bool IsAlike(const QString &seen, const QString &wanted, bool isStartOnly)
{
    return isStartOnly ? seen.startsWith(wanted) : seen == wanted;
}

}  // namespace

QString SLiving::Text() const
{
    return QString("%1 objects, %2 windows, %3 files").arg(objects).arg(windows).arg(files);
}

SLiving Living(const QMainWindow *window)
{
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    SLiving living;
    living.objects = window ? window->findChildren<QObject *>().size() : 0;
    living.windows = QApplication::topLevelWidgets().size();
    living.files = static_cast<int>(QDir("/proc/self/fd").entryList(QDir::Files).size());
    return living;
}

CPageDriver::CPageDriver(const SPage &page)
    : m_page(page), m_session(page.profile, 1, page.className),
      m_goodFile(m_folder.filePath("good.ini"))
{
}

bool CPageDriver::Ready()
{
    if (!m_session.ShowAndWait())
        return false;
    for (QSpinBox *box : m_session.Page()->findChildren<QSpinBox *>()) {
        // No report but by the driver's own tick.
        if (box->objectName().endsWith("_reportPeriod"))
            box->setValue(box->maximum());
    }
    for (QCheckBox *box : m_session.Page()->findChildren<QCheckBox *>()) {
        // The carrier search is what Calculate is for.
        if (box->objectName().endsWith("_enableCsr"))
            QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    }
    if (qstrcmp(m_page.group, "cal") != 0)
        return true;
    // A calibration page has data once it has read some, and a file once it has written one.
    if (!RunWell(m_page.requests[0]))
        return false;
    AnswerFileDialog(m_goodFile);
    m_session.Press("m_btnSave");
    return WaitUntil([&] { return m_session.StatusBar() == m_page.requests[2].done; });
}

const SRequest &CPageDriver::StartOrStop(EState state) const
{
    return m_page.requests[state == EState::Running ? 0 : 1];
}

bool CPageDriver::RunWell(const SRequest &request)
{
    Act(request);
    return Await(request, GoodWords(request)).isEmpty();
}

bool CPageDriver::BringTo(EState state)
{
    return m_state == state || RunWell(StartOrStop(state));
}

bool CPageDriver::Home()
{
    if (m_page.hasTest && !BringTo(EState::Idle))
        return false;
    auto *clear = m_session.Page()->findChild<QAbstractButton *>("clearPushButton");
    if (!clear)
        return true;
    QTest::mouseClick(clear, Qt::LeftButton);
    return WaitUntil([&] { return clear->isEnabled() && Rows() == 0; });
}

int CPageDriver::Rows() const
{
    int rows = 0;
    for (const QTableWidget *table : m_session.Page()->findChildren<QTableWidget *>())
        rows += table->rowCount();
    return rows;
}

QString CPageDriver::Entries() const
{
    QStringList entries;
    for (const QLineEdit *editor : m_session.Page()->findChildren<QLineEdit *>()) {
        if (!IsResult(editor))
            entries.append(editor->text());
    }
    for (const QComboBox *choice : m_session.Page()->findChildren<QComboBox *>()) {
        if (!IsResult(choice))
            entries.append(choice->currentText());
    }
    for (const QAbstractButton *tick : m_session.Page()->findChildren<QAbstractButton *>())
        entries.append(tick->isChecked() ? "on" : "off");
    return entries.join('\n');
}

QByteArray CPageDriver::Exported()
{
    for (int i = 0; i < m_page.requestCount; ++i) {
        if (m_page.requests[i].way != EWay::Save)
            continue;
        return RunWell(m_page.requests[i])
                   ? Content(m_folder.filePath(QString("out%1.ini").arg(m_files)))
                   : QByteArray("no export");
    }
    return {};
}

QByteArray CPageDriver::ExportedFirst() const
{
    return Content(m_goodFile);
}

void CPageDriver::Act(const SRequest &request)
{
    m_session.Window()->findChild<QStatusBar *>()->clearMessage();
    m_boxesBefore = m_boxes.Seen().size();
    m_busyBefore = m_session.busy.size();
    switch (request.way) {
    case EWay::Tick:
        QMetaObject::invokeMethod(m_session.Page(), request.trigger);
        return;
    case EWay::Open:
        AnswerFileDialog(m_goodFile);
        break;
    case EWay::Save:
        AnswerFileDialog(m_folder.filePath(QString("out%1.ini").arg(++m_files)));
        break;
    case EWay::Button:
        break;
    }
    m_session.Press(request.trigger);
}

void CPageDriver::ForgetTest()
{
    if (m_state == EState::Running || *VondSim_RunningTest() == 0)
        return;
    const QByteArray profile = m_page.profile;
    if (profile.startsWith('{'))
        VondSim_SetProfileText(profile.constData());
    else
        VondSim_SetProfile(profile.constData());
}

bool CPageDriver::IsBusy() const
{
    return m_session.busy.size() == m_busyBefore + 1 && m_session.busy.last();
}

bool CPageDriver::IsAnswered() const
{
    return m_session.busy.size() == m_busyBefore + 2 && !m_session.busy.last();
}

bool CPageDriver::IsTold() const
{
    return m_boxes.Seen().size() > m_boxesBefore || !m_session.StatusBar().isEmpty();
}

QString CPageDriver::Enabled() const
{
    QStringList on;
    for (int i = 0; i < m_page.buttonCount; ++i) {
        const QWidget *button = m_session.Find<QWidget>(m_page.buttons[i].object);
        if (button && button->isEnabled())
            on.append(m_page.buttons[i].word);
    }
    return on.join(' ');
}

// A label's text; of a table the text of its last row's first cell.
QString CPageDriver::Shown(const char *widget) const
{
    auto *found = m_session.Find<QWidget>(widget);
    if (const auto *table = qobject_cast<QTableWidget *>(found)) {
        const bool isOfRows = table->objectName().contains("RSRP");
        const int row = isOfRows ? table->rowCount() - 1 : 0;
        found = table->cellWidget(row, 0);
        if (!found)
            return table->item(row, 0) ? table->item(row, 0)->text() : QString("no cell");
    }
    const auto *label = qobject_cast<QLabel *>(found);
    return label ? label->text() : QString("no label");
}

QString CPageDriver::DiffersInBoxes(const SWords &words) const
{
    QVector<SSeenBox> seen = m_boxes.Seen().mid(m_boxesBefore);
    // A Read of noise says besides which routes it has left out.
    if (seen.size() == 2 && words.isAnyText && seen.last().title + " failed" == words.title)
        seen.removeLast();
    const int wanted = words.hasBox ? 1 : 0;
    if (seen.size() != wanted)
        return QString("%1 boxes, not %2").arg(seen.size()).arg(wanted);
    for (const SSeenBox &box : seen) {
        if (words.isAnyText && box.title == words.title && !PlainText(box.text).isEmpty())
            continue;
        if (box.title != words.title || box.icon != words.icon)
            return QString("box titled %1, kind %2").arg(box.title).arg(box.icon);
        if (PlainText(box.text) != words.text)
            return "box says " + box.text;
        if (!IsAlike(box.informative, words.informative, words.isStartOnly))
            return "box says below " + box.informative;
    }
    return {};
}

QString CPageDriver::Differs(const SRequest &request, const SWords &words) const
{
    if (request.way != EWay::Tick && !IsAnswered())
        return "not answered";
    if (m_session.StatusBar() != words.status)
        return "status line: " + m_session.StatusBar();
    const QString boxes = DiffersInBoxes(words);
    if (!boxes.isEmpty())
        return boxes;
    if (Enabled() != words.enabled)
        return "enabled: " + Enabled();
    if (request.shown && !words.isGood && Shown(request.shown) != words.shown)
        return "shown: " + Shown(request.shown);
    if (request.shown && words.isGood && Shown(request.shown) == request.shownText)
        return "a failure is shown";
    return {};
}

QString CPageDriver::Await(const SRequest &request, const SWords &words)
{
    if (!WaitUntil([&] { return Differs(request, words).isEmpty(); }, kPatienceMs))
        return Differs(request, words);
    // Nothing comes behind it.
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    m_state = words.state;
    return Differs(request, words);
}
