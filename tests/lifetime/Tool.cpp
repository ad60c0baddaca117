#include "tests/lifetime/Tool.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QThreadPool>
#include <QTimer>

#include "Simulator/VondSim.h"
#include "tests/common/Cells.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/ContRxProfiles.h"

namespace {

constexpr int kLongMs = 60000;  // ends a broken round; never waited for in a good one

bool IsOn(const QWidget *page, const char *button)
{
    const auto *found = page->findChild<QPushButton *>(button);
    return found && found->isEnabled();
}

// What the editor takes, and does not hold.
QString Neighbour(const QAbstractSpinBox *box)
{
    if (const auto *whole = qobject_cast<const QSpinBox *>(box))
        return QString::number(whole->value() + (whole->value() < whole->maximum() ? 1 : -1));
    const auto *decimal = qobject_cast<const QDoubleSpinBox *>(box);
    const double step = decimal->singleStep();
    return QString::number(decimal->value() +
                           (decimal->value() + step <= decimal->maximum() ? step : -step));
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
    const bool needsRun = request.before == EBefore::Running || request.before == EBefore::Results;
    if (failure.isEmpty() && needsRun && !IsOn(page, "m_stop")) {
        failure = Press(page, "m_start");
        const bool canStop = page->findChild<QPushButton *>("m_stop");
        if (failure.isEmpty() && canStop && !IsOn(page, "m_stop"))
            failure = "the test does not start";
    }
    if (failure.isEmpty())
        failure = PrepareData(request, page);
    if (failure.isEmpty())
        failure = PrepareFiles(request, page);
    if (!failure.isEmpty() || request.way == EWay::Timer)
        return failure;
    // Changed cells are counted a moment later.
    const QAction *action = Action(request);
    const bool isOn =
        action ? WaitUntil([action] { return action->isEnabled(); }) : IsOn(page, request.button);
    return isOn ? QString() : QString("%1 is off").arg(request.button);
}

QString CTool::Press(const QDockWidget *page, const char *button)
{
    QTest::mouseClick(page->findChild<QPushButton *>(button), Qt::LeftButton);
    return Settle();
}

// What the test has measured, or the DUT's calibration data.
QString CTool::PrepareData(const SRequest &request, const QDockWidget *page)
{
    if (request.before == EBefore::Results && IsOn(page, "m_btnFetchPd"))
        return Press(page, "m_btnFetchPd");
    if (request.before == EBefore::Results &&
        page->metaObject()->indexOfMethod("Slot_RsrpRxTimerTimeout()") >= 0) {
        QMetaObject::invokeMethod(const_cast<QDockWidget *>(page), "Slot_RsrpRxTimerTimeout");
        return Settle();
    }
    if (request.before != EBefore::Read && request.before != EBefore::Edited)
        return {};
    const QString failure = Press(page, "m_btnUpload");
    if (!failure.isEmpty() || request.before == EBefore::Read)
        return failure;
    MakeAllEditors(page);
    const QString cells = "_data_";
    for (const QTableWidget *table : page->findChildren<QTableWidget *>()) {
        QWidget *cell = table->objectName().contains(cells) ? table->cellWidget(0, 0) : nullptr;
        auto *box = qobject_cast<QAbstractSpinBox *>(cell);
        if (!box || !box->isEnabled() || !table->isVisible())
            continue;
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, Neighbour(box));
        QTest::keyClick(box, Qt::Key_Return);
        return Settle();
    }
    return "no cell can be changed";
}

// Files that the request opens are made by the tool itself.
QString CTool::PrepareFiles(const SRequest &request, const QDockWidget *page)
{
    if (QFile::exists(File(request)))
        return {};
    if (request.before == EBefore::File) {
        const QString failure = Press(page, "m_btnUpload");
        if (!failure.isEmpty())
            return failure;
        AnswerDialog(File(request), {});
        return Press(page, "m_btnSave");
    }
    if (request.before == EBefore::Settings) {
        AnswerDialog(File(request), {});
        page->findChild<QAction *>("m_actionSaveSettings")->trigger();
        return Settle();
    }
    return {};
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
    // Nobody answers the question whether to write over a file.
    const bool readsFile = request.before == EBefore::File || request.before == EBefore::Settings;
    if (request.hasDialog && !readsFile)
        QFile::remove(File(request));
    if (request.hasDialog)
        AnswerDialog(File(request), onDialog);
    if (request.way == EWay::Action) {
        Action(request)->trigger();
        return;
    }
    if (request.way == EWay::Timer) {
        QMetaObject::invokeMethod(page, request.button);
        return;
    }
    QTest::mouseClick(page->findChild<QPushButton *>(request.button), Qt::LeftButton);
}

// A file dialog, or a question. An earlier request's, which never opened, is waited for no more.
void CTool::AnswerDialog(const QString &file, const std::function<void()> &onDialog)
{
    m_dialogs = std::make_unique<QTimer>();
    QObject::connect(m_dialogs.get(), &QTimer::timeout, [this, file, onDialog] {
        const QPointer<QDialog> dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || qobject_cast<QMessageBox *>(dialog))
            return;
        m_dialogs->stop();
        if (onDialog)
            onDialog();
        if (!dialog)
            return;
        if (!qobject_cast<QFileDialog *>(dialog)) {
            dialog->reject();
            return;
        }
        qobject_cast<QFileDialog *>(dialog)->setOption(QFileDialog::DontConfirmOverwrite);
        dialog->findChild<QLineEdit *>("fileNameEdit")->setText(file);
        QMetaObject::invokeMethod(dialog, "accept");
    });
    m_dialogs->start(0);
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
    const bool isData = request.way == EWay::File;
    const bool isResults = request.before == EBefore::Results;
    return m_folder + '/' + request.page + (isData ? ".ini" : isResults ? ".jsonl" : ".json");
}

QAction *CTool::Action(const SRequest &request) const
{
    if (request.way != EWay::Action)
        return nullptr;
    auto *own = Page(request.page)->findChild<QAction *>(request.button);
    return own ? own : m_session->Window()->findChild<QAction *>(request.button);
}
