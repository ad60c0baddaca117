#include "tests/lifetime/Tool.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QThreadPool>

#include "Simulator/VondSim.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/ContRxProfiles.h"

namespace {

constexpr int kLongMs = 60000;  // ends a broken round; never waited for in a good one

bool IsOn(const QWidget *page, const char *button)
{
    const auto *found = page->findChild<QPushButton *>(button);
    return found && found->isEnabled();
}

}  // namespace

CTool::CTool(const QString &folder) : m_folder(folder) {}

CTool::~CTool() = default;

QString CTool::Prepare(const SRequest &request)
{
    Load();
    VondSim_ClearJournal();
    if (request.before == EBefore::Fresh) {
        (*m_session)->ResetPlugin();
        (*m_session)->HidePlugin();
        return Settle();
    }
    QString failure = Show();
    QDockWidget *page = Page(request.page);
    if (failure.isEmpty() && !page)
        failure = "the page is not there";
    if (failure.isEmpty())
        failure = Raise(page);
    if (!failure.isEmpty())
        return failure;
    // The test of an earlier round on the same page.
    if (IsOn(page, "m_stop") && request.before == EBefore::Nothing) {
        QTest::mouseClick(page->findChild<QPushButton *>("m_stop"), Qt::LeftButton);
        failure = Settle();
    }
    if (auto *period =
            page->findChild<QSpinBox *>("cmdIf_request_group1_memberProperty_reportPeriod"))
        period->setValue(period->maximum());
    auto *search = page->findChild<QCheckBox *>("cmdIf_request_group1_memberProperty_enableCsr");
    // The carrier search, which the DUT refuses in a start, is what the reading is about.
    if (search && search->isEnabled() &&
        search->isChecked() != (qstrcmp(request.button, "m_btnCalculate") == 0))
        search->click();
    if (failure.isEmpty() && request.before == EBefore::Running && !IsOn(page, "m_stop")) {
        QTest::mouseClick(page->findChild<QPushButton *>("m_start"), Qt::LeftButton);
        failure = Settle();
        if (failure.isEmpty() && !IsOn(page, "m_stop"))
            failure = "the test does not start";
    }
    const bool needsFile = request.before == EBefore::File && !QFile::exists(File(request));
    if (failure.isEmpty() && (request.before == EBefore::Read || needsFile)) {
        QTest::mouseClick(page->findChild<QPushButton *>("m_btnUpload"), Qt::LeftButton);
        failure = Settle();
    }
    if (failure.isEmpty() && needsFile) {
        AnswerFileDialog(File(request));
        QTest::mouseClick(page->findChild<QPushButton *>("m_btnSave"), Qt::LeftButton);
        failure = Settle();
    }
    if (request.way != EWay::Timer && failure.isEmpty() && !IsOn(page, request.button))
        failure = QString("%1 is off").arg(request.button);
    return failure;
}

void CTool::Load()
{
    if (!m_session)
        m_session = std::make_unique<CPluginSession>(Type1Profile(), 1, QString());
}

QString CTool::PrepareAnyPage()
{
    Load();
    return Show();
}

QString CTool::Show()
{
    (*m_session)->ShowPlugin();
    const bool isShown = WaitUntil(
        [this] {
            const QMainWindow *window = m_session->Window();
            return window->isEnabled() && HasPages() && m_session->StatusBar() != "Init failed.";
        },
        kLongMs);
    return isShown ? Settle() : "the tool is not shown: " + m_session->StatusBar();
}

QString CTool::Raise(QDockWidget *page)
{
    page->raise();
    if (!WaitUntil([page] { return page->isEnabled() && !page->visibleRegion().isEmpty(); },
                   kLongMs))
        return "the page does not come to the front";
    return Settle();
}

void CTool::Make(const SRequest &request, const std::function<void()> &onDialog)
{
    if (request.way == EWay::Launch) {
        (*m_session)->ShowPlugin();
        return;
    }
    QDockWidget *page = Page(request.page);
    if (request.way == EWay::Timer) {
        QMetaObject::invokeMethod(page, request.button);
        return;
    }
    if (request.way == EWay::File) {
        // Nobody answers the question whether to write over a file.
        if (request.before == EBefore::Read)
            QFile::remove(File(request));
        AnswerFileDialog(File(request), [onDialog](QFileDialog *) {
            if (onDialog)
                onDialog();
        });
    }
    QTest::mouseClick(page->findChild<QPushButton *>(request.button), Qt::LeftButton);
}

QString CTool::Settle()
{
    const auto isQuiet = [this] {
        if (!QThreadPool::globalInstance()->waitForDone(0))
            return false;
        QCoreApplication::processEvents();
        return QThreadPool::globalInstance()->waitForDone(0) &&
               (!m_session || m_session->busy.isEmpty() || !m_session->busy.last());
    };
    return WaitUntil(isQuiet, kLongMs) ? QString() : "the tool stays busy";
}

QString CTool::RfOff()
{
    auto *button = m_session->Window()->findChild<QPushButton *>("m_rfOff");
    QTest::mouseClick(button, Qt::LeftButton);
    const QString failure = Settle();
    if (!failure.isEmpty())
        return failure;
    return m_session->StatusBar() == "RF off." ? QString() : m_session->StatusBar();
}

void CTool::Unload()
{
    if (!m_session)
        return;
    m_session->Unload();
    m_session->busy.clear();  // nobody is left to say that it has ended
}

bool CTool::HasPages() const
{
    return m_session && m_session->Window() &&
           !m_session->Window()->findChildren<QDockWidget *>().isEmpty();
}

QDockWidget *CTool::Page(const char *page) const
{
    return m_session && m_session->Window() ? m_session->Window()->findChild<QDockWidget *>(page)
                                            : nullptr;
}

bool CTool::IsUsable(const char *page) const
{
    const QDockWidget *dock = Page(page);
    return dock && (IsOn(dock, "m_start") || IsOn(dock, "m_stop") || IsOn(dock, "m_btnUpload"));
}

QString CTool::File(const SRequest &request) const
{
    return m_folder + '/' + request.page + ".ini";
}
