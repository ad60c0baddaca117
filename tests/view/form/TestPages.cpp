#include "tests/view/form/TestPages.h"

#include <QMetaType>
#include <QTimer>

namespace {

bool s_isHeld = false;

}  // namespace

QStringList &PageLog()
{
    static QStringList log;
    return log;
}

void HoldRequests(bool isHeld)
{
    s_isHeld = isHeld;
}

void RegisterTestPages()
{
    qRegisterMetaType<CFirstPage *>("CFirstPage*");
    qRegisterMetaType<CSecondPage *>("CSecondPage*");
    qRegisterMetaType<CThirdPage *>("CThirdPage*");
    qRegisterMetaType<CHiddenPage *>("CHiddenPage*");
    qRegisterMetaType<CForeignDock *>("CForeignDock*");
    qRegisterMetaType<SPlainRecord *>("SPlainRecord*");
}

CTestPage::CTestPage(const QString &title, QWidget *parent)
    : CAutoBindingDataModelDockWidget(parent)
{
    setWindowTitle(title);
    setWidget(new QWidget(this));
    PageLog().append(title + ": built");
}

CTestPage::~CTestPage()
{
    PageLog().append(windowTitle() + ": gone");
}

void CTestPage::RequestDataModel()
{
    PageLog().append(windowTitle() + ": asked");
    if (!s_isHeld)
        QTimer::singleShot(0, this, &CTestPage::Answer);
}

void CTestPage::RunOperation()
{
    emit Signal_PluginIsBusy(true);
    isRunning = true;
    emit Signal_UpdateStatus(windowTitle() + " runs");
}

void CTestPage::Slot_TriggerStopTest()
{
    if (!isRunning)
        return;
    if (announcesStop)
        emit Signal_PluginIsBusy(true);
    isRunning = false;
    ++stops;
    PageLog().append(windowTitle() + ": stop");
}
