#include "Host/BenchHost.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QMessageBox>
#include <QScrollArea>
#include <QTime>
#include <QTreeWidget>
#include <QtGlobal>

#include "Host/HostSettings.h"
#include "Host/Picture.h"
#include "Host/ReasonHint.h"
#include "Host/Sign.h"
#include "Host/Tap.h"
#include "Host/ToolWindow.h"
#include "Host/door/DoorPanel.h"
#include "Host/dut/DutPanel.h"
#include "Host/dut/FaultPanel.h"
#include "Host/dut/RadioWords.h"
#include "ui_BenchHost.h"

namespace {

constexpr int kPagesHeight = 900;  // at the start, as far as there is room
constexpr int kEventsHeight = 150;
constexpr int kRadioMs = 250;      // between two looks at the radio
constexpr int kMostEvents = 1000;  // of the log; older ones go

constexpr char kPictureFolder[] = "picture/folder";
const QString kOldAnswerHint =
    "No DUT is plugged in: the tool goes by what it has read before. Reset "
    "makes it forget that.";
const QString kPlugHint =
    "No DUT is plugged in. Plug it in on the page DUT, then press Reset and Query.";

QString OrNone(const QString &text)
{
    return text.isEmpty() ? QString("none") : text;
}

QString YesOrNo(bool isYes)
{
    return isYes ? "Yes" : "No";
}

// Qt keeps a version as 0xMMNNPP.
QString QtVersionText(int version)
{
    return QString("%1.%2.%3").arg(version >> 16).arg((version >> 8) & 0xff).arg(version & 0xff);
}

QString JoinedTexts(const QJsonArray &array)
{
    QStringList texts;
    for (const QJsonValue &value : array)
        texts << value.toString();
    return texts.join(", ");
}

}  // namespace

CBenchHost::CBenchHost(CPluginHandle &plugin, QWidget *parent)
    : QMainWindow(parent), m_plugin(plugin), m_ui(std::make_unique<Ui::CBenchHost>())
{
    m_ui->setupUi(this);
    m_ui->m_events->header()->setResizeContentsPrecision(0);  // only the lines in sight
    for (int column : {0, 1})
        m_ui->m_events->header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    m_ui->m_splitter->setStretchFactor(0, 1);  // the pages have the room
    m_ui->m_splitter->setSizes({kPagesHeight, kEventsHeight});
    FillPluginFields();
    AddPanels();
    ShowSign(*m_ui->m_isSupportSign, ESign::None);
    for (QWidget *part : {m_ui->m_caption_hint, m_ui->m_hint})
        part->hide();
    ShowState();
    connect(&m_radioTimer, &QTimer::timeout, this, &CBenchHost::ShowRadio);
    m_radioTimer.start(kRadioMs);
    connect(&m_plugin, &CPluginHandle::Signal_Activated, this,
            [this](const QString &name, bool isActivated) {
                AddEvent("Activated", QString("%1: %2").arg(name, isActivated ? "on" : "off"));
                ShowState();
            });
    connect(&m_plugin, &CPluginHandle::Signal_Busy, this, [this](const QString &name, bool isBusy) {
        AddEvent("Busy", QString("%1: %2").arg(name, isBusy ? "on" : "off"));
        ShowState();
        // The page changes its buttons after this signal.
        QMetaObject::invokeMethod(this, &CBenchHost::ShowState, Qt::QueuedConnection);
    });
    qApp->installEventFilter(this);
}

// The panels go by the DUT that is a member.
CBenchHost::~CBenchHost()
{
    delete m_ui->m_panels;
}

void CBenchHost::AddPanels()
{
    const ETrace trace = TraceOfSession();
    // A trace that is played back answers in place of the DUT.
    m_hasDut = m_dut.IsThere() && trace != ETrace::PlayedBack;
    if (m_hasDut) {
        AddPanel("DUT", new CDutPanel(m_dut));
        AddPanel("Faults", new CFaultPanel(m_dut));
    }
    if (m_dut.IsThere() || trace != ETrace::None)
        AddPanel("Door", new CDoorPanel(m_dut));
    m_ui->m_panels->removeTab(0);
    AddPanel("Plug-in", m_ui->m_pluginPage);
    m_ui->m_panels->setCurrentIndex(0);
    for (QWidget *part : {m_ui->m_caption_dutRadio, m_ui->m_dutRadioSign, m_ui->m_dutRadio})
        part->setVisible(m_hasDut);
}

void CBenchHost::AddPanel(const QString &title, QWidget *panel)
{
    auto *area = new QScrollArea(m_ui->m_panels);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidget(panel);
    m_ui->m_panels->addTab(area, title);
}

void CBenchHost::FillPluginFields()
{
    const QJsonObject library = m_plugin.MetaData();
    const QJsonObject plugin = library.value("MetaData").toObject();
    m_ui->m_name->setText(OrNone(plugin.value("name").toString()));
    m_ui->m_type->setText(OrNone(plugin.value("type").toString()));
    m_ui->m_version->setText(OrNone(plugin.value("version").toString()));
    m_ui->m_dependencies->setText(OrNone(JoinedTexts(plugin.value("dependencies").toArray())));
    m_ui->m_pluginNote->setText(OrNone(m_plugin.Tool().GetPluginNote()));
    m_ui->m_class->setText(library.value("className").toString());
    m_ui->m_interface->setText(library.value("IID").toString());
    m_ui->m_qt->setText(
        QString("%1, %2").arg(QtVersionText(library.value("version").toInt()),
                              library.value("debug").toBool() ? "debug" : "release"));
    m_ui->m_file->setText(m_plugin.File());
}

SPluginToolLaunchRequirement CBenchHost::Query()
{
    NoteOfHost("Host: Query");
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QElapsedTimer timer;
    timer.start();
    SPluginToolLaunchRequirement answer = m_plugin.Tool().QueryLaunchRequirement();
    const qint64 elapsed = timer.elapsed();
    QApplication::restoreOverrideCursor();
    FillAnswer(answer);
    TellThatToolHasAsked();
    const QString outcome =
        answer.isSupport ? "supported" : "not supported: " + answer.unsupportReason;
    AddEvent("Query", QString("%1 ms, %2").arg(elapsed).arg(outcome));
    return answer;
}

void CBenchHost::TellThatToolHasAsked()
{
    if (auto *panel = m_ui->m_panels->findChild<CDutPanel *>())
        panel->ToolHasAsked();
}

void CBenchHost::FillAnswer(const SPluginToolLaunchRequirement &answer)
{
    const uint32_t handle = qApp->property("vondTargetHandle").toUInt();
    const QString profile = ProfileName();
    m_ui->m_handle->setText(QString("%1 (0x%2)").arg(handle).arg(handle, 0, 16));
    m_ui->m_profile->setText(profile.isEmpty() ? "not chosen" : profile);
    m_ui->m_isSupport->setText(answer.isSupport ? "Yes, now" : "No");
    ShowSign(*m_ui->m_isSupportSign, answer.isSupport ? ESign::Good : ESign::Bad);
    m_ui->m_reason->setText(OrNone(answer.unsupportReason));
    ShowHint(answer);
    m_ui->m_isNeedDb->setText(YesOrNo(answer.isNeedDb));
    m_ui->m_isNeedDriver->setText(YesOrNo(answer.isNeedDriver));
    m_ui->m_launchNote->setText(OrNone(answer.launchNote));
}

// The DUT itself knows best whether it is there.
void CBenchHost::ShowHint(const SPluginToolLaunchRequirement &answer)
{
    QString hint = ReasonHint(answer.unsupportReason);
    if (m_hasDut && m_dut->IsPlugged() == 0)
        hint = answer.isSupport ? kOldAnswerHint : kPlugHint;
    m_ui->m_hint->setText(hint);
    for (QWidget *part : {m_ui->m_caption_hint, m_ui->m_hint})
        part->setVisible(!hint.isEmpty());
}

QString CBenchHost::ProfileName() const
{
    if (!m_hasDut)
        return qEnvironmentVariable("VOND_SIM_PROFILE");
    const QJsonDocument profile = QJsonDocument::fromJson(m_dut->ProfileText());
    return profile.object().value("name").toString();
}

void CBenchHost::ShowRadio()
{
    const SToolTest test = TestInTool();
    m_ui->m_toolRadio->setText(OrNone(test.text));
    if (test.text.isEmpty())
        ShowSign(*m_ui->m_toolRadioSign, ESign::None);
    else
        ShowSign(*m_ui->m_toolRadioSign, test.color);
    if (!m_hasDut)
        return;
    SVondSimRadioState state = {};
    m_dut->GetRadioState(&state);
    // The time alone: the rest stands on the page DUT, and would not fit into the line.
    const QString time = RunningWords(state).section(',', 0, 0).toLower();
    m_ui->m_dutRadio->setText(RadioWords(state) + (time.isEmpty() ? "" : ", " + time));
    ShowSign(*m_ui->m_dutRadioSign, state.isTransmitting ? ESign::Bad
                                    : state.isReceiving  ? ESign::Good
                                                         : ESign::None);
}

void CBenchHost::ShowState()
{
    const bool isBusy = m_plugin.IsBusy();
    m_ui->m_activated->setText(m_plugin.IsActivated() ? "Shown" : "Hidden");
    m_ui->m_busy->setText(isBusy ? "Working" : IsTestRunning() ? "A test runs" : "Idle");
    // These reach the target, or let the user start a second operation on it.
    for (QPushButton *button : {m_ui->m_query, m_ui->m_reset, m_ui->m_enable})
        button->setEnabled(!isBusy);
    if (!isBusy)
        m_ui->statusbar->clearMessage();
    ShowRadio();
}

void CBenchHost::AddEvent(const QString &event, const QString &detail)
{
    const QString time = QTime::currentTime().toString("HH:mm:ss.zzz");
    while (m_ui->m_events->topLevelItemCount() >= kMostEvents)
        delete m_ui->m_events->takeTopLevelItem(0);
    auto *item = new QTreeWidgetItem(m_ui->m_events, {time, event, detail});
    item->setToolTip(2, detail);
    m_ui->m_events->scrollToItem(item);
}

// Logged before the call, in front of the signals that the call raises.
void CBenchHost::BeginAction(const QString &action)
{
    NoteOfHost("Host: " + action);
    AddEvent(action, {});
}

void CBenchHost::ShowTool()
{
    BeginAction("Show");
    m_plugin.Tool().ShowPlugin();
}

void CBenchHost::on_m_hide_clicked()
{
    BeginAction("Hide");
    m_plugin.Tool().HidePlugin();
}

void CBenchHost::on_m_reset_clicked()
{
    if (!MayStopTest("A test runs on the DUT. Stop it and reset the tool?"))
        return;
    BeginAction("Reset");
    m_plugin.Tool().ResetPlugin();
    TellThatToolHasAsked();
    if (m_plugin.IsActivated())
        m_ui->statusbar->showMessage("The pages are gone. Show the tool to have them again.");
}

void CBenchHost::on_m_disable_clicked()
{
    BeginAction("Disable");
    m_plugin.Tool().DisablePages();
}

void CBenchHost::on_m_enable_clicked()
{
    BeginAction("Enable");
    m_plugin.Tool().EnablePages();
}

// Taken before the dialog opens: what the user saw when he pressed the button.
void CBenchHost::on_m_picture_clicked()
{
    const QImage picture = PictureOf({this, FindToolWindow()});
    CHostSettings settings;
    const QString name = QDateTime::currentDateTime().toString("'quorlin-'yyyyMMdd-HHmmss'.png'");
    QString file = QFileDialog::getSaveFileName(
        this, "Save a picture", QDir(settings.Value(kPictureFolder).toString()).filePath(name),
        "Pictures (*.png)");
    if (file.isEmpty())
        return;
    if (QFileInfo(file).suffix().isEmpty())
        file += ".png";
    settings.Set(kPictureFolder, QFileInfo(file).absolutePath());
    QString error;
    const bool isSaved = SavePicture(picture, file, error);
    AddEvent("Picture", isSaved ? file : error);
    if (isSaved)
        m_ui->statusbar->showMessage("Saved as " + file);
    else
        QMessageBox::warning(this, windowTitle(), error);
}

void CBenchHost::closeEvent(QCloseEvent *event)
{
    if (!MayClose(event, "the bench host"))
        return;
    NoteOfHost("Host: Close");
    m_plugin.Tool().HidePlugin();
    event->accept();
}

// The tool's window doesn't look at its busy state when it is closed: that is left to the host.
bool CBenchHost::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Close && watched == FindToolWindow() &&
        !MayClose(static_cast<QCloseEvent *>(event), "the tool"))
        return true;
    return QMainWindow::eventFilter(watched, event);
}

bool CBenchHost::MayClose(QCloseEvent *event, const QString &window)
{
    if (!m_plugin.IsBusy() &&
        MayStopTest(QString("A test runs on the DUT. Stop it and close %1?").arg(window)))
        return true;
    if (m_plugin.IsBusy())
        RefuseClose(event, window);
    else
        event->ignore();
    return false;
}

bool CBenchHost::MayStopTest(const QString &question)
{
    return !IsTestRunning() ||
           QMessageBox::question(this, windowTitle(), question, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

void CBenchHost::RefuseClose(QCloseEvent *event, const QString &window)
{
    event->ignore();
    AddEvent("Close", QString("%1: refused, the tool is busy").arg(window));
    const QString reason =
        QString("The tool works on the target: %1 can be closed when it is idle.").arg(window);
    m_ui->statusbar->showMessage(reason);
    TellInTool(reason);
}
