#include "Host/dut/FaultPanel.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QScrollArea>

#include "Host/HostSettings.h"
#include "Host/dut/FaultDialog.h"
#include "Host/dut/FaultWords.h"
#include "Host/dut/NameChoice.h"
#include "Support/WholeFile.h"
#include "ui_FaultPanel.h"

namespace {

constexpr int kFaultRefreshMs = 250;
constexpr int kTimedOut = 2;  // "Connection: the target did not answer in time"
constexpr int kDelayMs = 3000;
constexpr char kRead[] = "VOND_MMRf_GetCalDataV7_r";
constexpr char kWrite[] = "VOND_MMRf_SetCalDataV7_r";
constexpr char kScenarioFolder[] = "scenario/folder";

QByteArray Compact(const QJsonObject &json)
{
    return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

// Words that come below the edge of a scroll area are brought into view, when the layout has a place
// for them.
void ScrollTo(QWidget *words)
{
    QTimer::singleShot(0, words, [words] {
        QWidget *parent = words->parentWidget();
        while (parent != nullptr && qobject_cast<QScrollArea *>(parent) == nullptr)
            parent = parent->parentWidget();
        if (parent != nullptr && words->isVisible())
            static_cast<QScrollArea *>(parent)->ensureWidgetVisible(words);
    });
}

}  // namespace

CFaultPanel::CFaultPanel(CSimulatedDut &dut, QWidget *parent)
    : QWidget(parent), m_dut(dut), m_ui(std::make_unique<Ui::CFaultPanel>()), m_faults(dut)
{
    m_ui->setupUi(this);
    m_ui->m_nextFunction->addItem("any function", "*");
    for (const QString &function : FaultFunctions())
        m_ui->m_nextFunction->addItem(function, function);
    SetUpTable();
    ConnectNextCall();
    ConnectTable();
    ConnectScenarios();
    m_timer.setInterval(kFaultRefreshMs);
    connect(&m_timer, &QTimer::timeout, this, &CFaultPanel::Refresh);
    Refresh();
}

CFaultPanel::~CFaultPanel() = default;

void CFaultPanel::showEvent(QShowEvent *event)
{
    Refresh();
    m_timer.start();
    QWidget::showEvent(event);
}

void CFaultPanel::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

// Keys of the table.
bool CFaultPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_ui->m_faults || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Delete)
        RemoveSelected();
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        EditFault();
    else
        return QWidget::eventFilter(watched, event);
    return true;
}

void CFaultPanel::SetUpTable()
{
    QTableView &table = *m_ui->m_faults;
    table.setModel(&m_faults);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table.verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    table.installEventFilter(this);
    connect(&table, &QTableView::doubleClicked, this, &CFaultPanel::EditFault);
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CFaultPanel::ShowButtons);
}

void CFaultPanel::ConnectNextCall()
{
    const auto strike = [this](QPushButton *button, const QJsonObject &fault) {
        connect(button, &QPushButton::clicked, this, [this, fault] { StrikeNextCall(fault); });
    };
    strike(m_ui->m_failNext, {{"kind", "fail"}});
    strike(m_ui->m_delayNext, {{"kind", "delay"}, {"ms", kDelayMs}});
    strike(m_ui->m_timeOutNext, {{"kind", "fail"}, {"result", kTimedOut}});
    strike(m_ui->m_noiseNext, {{"kind", "noise"}});
    connect(m_ui->m_unplugRead, &QPushButton::clicked, this, [this] { UnplugInNextRound(kRead); });
    connect(m_ui->m_unplugWrite, &QPushButton::clicked, this,
            [this] { UnplugInNextRound(kWrite); });
}

void CFaultPanel::ConnectTable()
{
    connect(m_ui->m_addFault, &QPushButton::clicked, this, &CFaultPanel::AddFault);
    connect(m_ui->m_editFault, &QPushButton::clicked, this, &CFaultPanel::EditFault);
    connect(m_ui->m_removeFault, &QPushButton::clicked, this, &CFaultPanel::RemoveSelected);
    connect(m_ui->m_removeAll, &QPushButton::clicked, this, &CFaultPanel::RemoveAll);
}

void CFaultPanel::ConnectScenarios()
{
    const SNameChoice what = {
        .subject = "scenario", .title = "Scenario", .none = "none", .names = SimulatedScenarios()};
    m_scenarios = new CNameChoice(*m_ui->m_scenario, *m_ui->m_scenarioFile, what, this);
    connect(m_scenarios, &CNameChoice::Signal_Chosen, this, &CFaultPanel::TakeScenario);
    connect(m_ui->m_saveScenario, &QPushButton::clicked, this, &CFaultPanel::AskWhereToSave);
    m_scenario =
        CNameChoice::NameOrPath(qEnvironmentVariable("VOND_SIM_SCENARIO"), SimulatedScenarios());
    if (m_dut->GetScenarioText(nullptr, 0) == 0)
        m_scenario.clear();
    m_scenarios->ShowCurrent(m_scenario);
}

void CFaultPanel::StrikeNextCall(QJsonObject fault)
{
    fault.insert("function", m_ui->m_nextFunction->currentData().toString());
    fault.insert("nth", 1);
    for (const CFaultModel::SRow &row : m_faults.Rows()) {
        if (row.fault.isOver && row.fault.source == eVondSimFaultAdded && row.json == fault)
            m_dut->RemoveFault(row.fault.id);
    }
    Outcome(m_dut->AddFault(Compact(fault)), "The fault can't be added");
}

void CFaultPanel::UnplugInNextRound(const char *function)
{
    const QJsonObject step = {{"when", QJsonObject{{"function", function}, {"call", 1}}},
                              {"plugged", false}};
    Outcome(m_dut->AddStep(Compact(step)), "The step can't be added");
}

void CFaultPanel::AddFault()
{
    const auto add = [this](const QByteArray &json) {
        const QString error = m_dut->AddFault(json) == 0 ? QString() : m_dut.Error();
        Refresh();
        return error;
    };
    auto *dialog = new CFaultDialog({}, add, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void CFaultPanel::EditFault()
{
    const std::vector<CFaultModel::SRow> rows = SelectedFaults();
    if (rows.size() != 1)
        return;
    const auto set = [this, id = rows[0].fault.id](const QByteArray &json) {
        const QString error = m_dut->SetFault(id, json) == 0 ? QString() : m_dut.Error();
        Refresh();
        return error;
    };
    auto *dialog = new CFaultDialog(rows[0].json, set, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void CFaultPanel::RemoveSelected()
{
    for (const CFaultModel::SRow &row : SelectedFaults())
        m_dut->RemoveFault(row.fault.id);
    Refresh();
}

// The scenario goes with its steps to come, which would put radio and plug back: they stay.
void CFaultPanel::RemoveAll()
{
    const QByteArray radio = CSimulatedDut::Text(m_dut->GetRadioText).toUtf8();
    const int32_t isPlugged = m_dut->IsPlugged();
    m_dut->SetScenario("");
    m_dut->ClearFaults();
    m_dut->SetPlugged(isPlugged);
    Outcome(m_dut->SetRadio(radio), "The radio can't be kept");
}

void CFaultPanel::TakeScenario(const QString &nameOrPath)
{
    const int32_t result = m_dut->SetScenario(nameOrPath.toUtf8());
    if (result == 0)
        m_scenario = nameOrPath;
    Outcome(result, "The scenario can't be used");
    m_scenarios->ShowCurrent(m_scenario);
}

void CFaultPanel::AskWhereToSave()
{
    const QString folder = CHostSettings().Value(kScenarioFolder).toString();
    auto *box =
        new QFileDialog(window(), "Save scenario", folder, "JSON files (*.json);;All files (*)");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setAcceptMode(QFileDialog::AcceptSave);
    box->setDefaultSuffix("json");
    connect(box, &QFileDialog::fileSelected, this, &CFaultPanel::SaveScenario);
    box->open();
}

void CFaultPanel::SaveScenario(const QString &path)
{
    const QByteArray name = QFileInfo(path).completeBaseName().toUtf8();
    const QByteArray text =
        CSimulatedDut::Text(m_dut->GetStateAsScenario, name.constData(), "").toUtf8();
    if (const QString why = SaveWhole(path, text); !why.isEmpty())
        return Tell(QString("%1 can't be written: %2.").arg(path, why));
    CHostSettings().Set(kScenarioFolder, QFileInfo(path).path());
    m_scenarios->Remember(path);
    m_scenarios->ShowCurrent(m_scenario);
    Tell(QString("Saved. Start with it: quorlin-host --scenario %1").arg(path));
}

void CFaultPanel::Refresh()
{
    m_faults.Refresh();
    ShowButtons();
    ShowScenario();
}

// Another may have taken the scenario away: a reset of the DUT.
void CFaultPanel::ShowScenario()
{
    const QByteArray text = CSimulatedDut::Text(m_dut->GetScenarioText).toUtf8();
    if (text.isEmpty() && !m_scenario.isEmpty()) {
        m_scenario.clear();
        m_scenarios->ShowCurrent(m_scenario);
    }
    const QJsonObject scenario = QJsonDocument::fromJson(text).object();
    const QString about = scenario.value("about").toString();
    const bool isNew = about != m_ui->m_scenarioAbout->text();
    m_ui->m_scenarioAbout->setText(about);
    m_ui->m_scenarioAbout->setVisible(!about.isEmpty());
    if (isNew)
        ScrollTo(m_ui->m_scenarioAbout);
}

std::vector<CFaultModel::SRow> CFaultPanel::SelectedFaults() const
{
    std::vector<CFaultModel::SRow> rows;
    for (const QModelIndex &index : m_ui->m_faults->selectionModel()->selectedRows()) {
        const CFaultModel::SRow &row = m_faults.Rows()[static_cast<std::size_t>(index.row())];
        if (row.IsFault())
            rows.push_back(row);
    }
    return rows;
}

void CFaultPanel::ShowButtons()
{
    const std::size_t count = SelectedFaults().size();
    m_ui->m_editFault->setEnabled(count == 1);
    m_ui->m_removeFault->setEnabled(count > 0);
    m_ui->m_removeAll->setEnabled(!m_faults.Rows().empty());
}

void CFaultPanel::Outcome(int32_t result, const QString &whatFailed)
{
    Tell(result == 0 ? QString() : whatFailed + ": " + m_dut.Error());
    Refresh();
}

void CFaultPanel::Tell(const QString &message)
{
    m_ui->m_faultMessage->setText(message);
    m_ui->m_faultMessage->setVisible(!message.isEmpty());
    ScrollTo(m_ui->m_faultMessage);
}
