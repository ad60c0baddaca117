#include "Host/dut/DutPanel.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QJsonDocument>
#include <QSlider>

#include "Host/HostSettings.h"
#include "Host/dut/NameChoice.h"
#include "Host/dut/RadioWords.h"
#include "Host/dut/SliderNumber.h"
#include "ui_DutPanel.h"

namespace {

constexpr int kRefreshMs = 200;
constexpr int kRefreshesPerFlash = 5;  // the flash is asked for this seldom
constexpr char kLastProfile[] = "profile/last";
constexpr char kDefaultProfile[] = "handset";
constexpr char kUnplugged[] = "unplugged";
constexpr char kOthers[] = "default";  // key of all bands or routes without a number of their own

QJsonObject ObjectOf(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

// What the DUT came up with, as the simulated DUT itself finds it.
QString ProfileAtStart()
{
    const QString profile = qEnvironmentVariable("VOND_SIM_PROFILE");
    if (profile.isEmpty())
        return kDefaultProfile;
    const QStringList names = SimulatedProfiles();
    return IsUnknownProfile(profile, names) ? QString(kUnplugged)
                                            : CNameChoice::NameOrPath(profile, names);
}

}  // namespace

CDutPanel::CDutPanel(CSimulatedDut &dut, QWidget *parent)
    : QWidget(parent), m_dut(dut), m_ui(std::make_unique<Ui::CDutPanel>()),
      m_profile(ProfileAtStart()), m_flash(dut)
{
    m_ui->setupUi(this);
    m_ui->m_flash->setModel(&m_flash);
    m_ui->m_flash->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_ui->m_flash->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    MakeChoices();
    ConnectButtons();
    m_timer.setInterval(kRefreshMs);
    connect(&m_timer, &QTimer::timeout, this, &CDutPanel::Refresh);
    m_profiles->ShowCurrent(m_profile);
    OnNewDut();
}

CDutPanel::~CDutPanel() = default;

QString CDutPanel::RememberedProfile()
{
    const QString profile = CHostSettings().Value(kLastProfile).toString();
    const bool isFile = profile.contains('/');
    return isFile && !QFileInfo(profile).isFile() ? QString() : profile;
}

void CDutPanel::ToolHasAsked()
{
    m_ui->m_dutHint->hide();
}

void CDutPanel::showEvent(QShowEvent *event)
{
    m_refreshCount = 0;
    Refresh();
    m_timer.start();
    QWidget::showEvent(event);
}

void CDutPanel::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

void CDutPanel::MakeChoices()
{
    const SNameChoice profiles = {
        .subject = "profile", .title = "Profile of the DUT", .names = SimulatedProfiles()};
    m_profiles = new CNameChoice(*m_ui->m_profileChoice, *m_ui->m_profileFile, profiles, this);
    connect(m_profiles, &CNameChoice::Signal_Chosen, this, &CDutPanel::TakeProfile);

    m_levels = {.key = "levelDbm",
                .choice = m_ui->m_band,
                .number = new CSliderNumber(*m_ui->m_levelSlider, *m_ui->m_level, this),
                .asOthers = m_ui->m_levelAsOthers};
    m_losses = {.key = "pathLossDb",
                .choice = m_ui->m_route,
                .number = new CSliderNumber(*m_ui->m_lossSlider, *m_ui->m_loss, this),
                .asOthers = m_ui->m_lossAsOthers};
    MakeTable(m_levels);
    MakeTable(m_losses);
    m_numbers = {std::pair("noiseFigureDb", MakeNumber("noiseFigureDb", "m_noise")),
                 std::pair("fluctuationDb", MakeNumber("fluctuationDb", "m_fluctuation")),
                 std::pair("temperatureC", MakeNumber("temperatureC", "m_temperature"))};
}

void CDutPanel::MakeTable(SNumberTable &table)
{
    connect(table.choice, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &CDutPanel::ShowRadioKeys);
    connect(table.number, &CSliderNumber::Signal_Changed, this,
            [this, &table](double value) { ChangeTable(table, value); });
    connect(table.asOthers, &QPushButton::clicked, this,
            [this, &table] { ChangeTable(table, QJsonValue::Null); });
}

CSliderNumber *CDutPanel::MakeNumber(const char *key, const QString &widget)
{
    auto *number = new CSliderNumber(*findChild<QSlider *>(widget + "Slider"),
                                     *findChild<QDoubleSpinBox *>(widget), this);
    connect(number, &CSliderNumber::Signal_Changed, this, [this, key](double value) {
        ChangeRadio({{key, value}});
    });
    return number;
}

void CDutPanel::ConnectButtons()
{
    connect(m_ui->m_plugged, &QCheckBox::clicked, this, [this](bool isPlugged) {
        m_dut->SetPlugged(isPlugged ? 1 : 0);
        Refresh();
    });
    connect(m_ui->m_resetDut, &QPushButton::clicked, this, &CDutPanel::ResetDut);
    connect(m_ui->m_ownRadio, &QPushButton::clicked, this, [this] {
        Tell(m_dut->SetRadio(nullptr) == 0 ? QString() : m_dut.Error());
        ShowRadioKeys();
    });
    connect(m_ui->m_restoreFlash, &QPushButton::clicked, this, [this] {
        Tell(m_dut->RestoreFlash() == 0 ? QString() : m_dut.Error());
        ShowFlash();
    });
}

// A broken file leaves the DUT as it is.
void CDutPanel::TakeProfile(const QString &nameOrPath)
{
    const QByteArray name = nameOrPath.toUtf8();
    const bool isGood = m_dut->CheckProfile(name) == 0 && m_dut->SetProfile(name) == 0;
    Tell(isGood ? QString() : "The profile can't be used: " + m_dut.Error());
    if (isGood) {
        m_profile = nameOrPath;
        CHostSettings().Set(kLastProfile, nameOrPath);
        m_ui->m_dutHint->setText("The tool goes by the old DUT until it is reset and shown again.");
        m_ui->m_dutHint->show();
        OnNewDut();
        emit Signal_DutChanged();
    }
    m_profiles->ShowCurrent(m_profile);
}

void CDutPanel::ResetDut()
{
    m_dut->SetScenario("");
    m_dut->ClearFaults();
    const bool isGood = m_dut->SetProfile(m_profile.toUtf8()) == 0;
    Tell(isGood ? QString() : "The profile can't be used: " + m_dut.Error());
    OnNewDut();
    emit Signal_DutChanged();
}

void CDutPanel::OnNewDut()
{
    ShowProfileText();
    ShowFlash();
    FillBandsAndRoutes();
    Refresh();
}

void CDutPanel::ShowProfileText()
{
    const QJsonObject profile = ObjectOf(m_dut->ProfileText());
    m_ui->m_about->setText(profile.value("about").toString());
}

void CDutPanel::FillBandsAndRoutes()
{
    const QSignalBlocker noBand(m_ui->m_band);
    const QSignalBlocker noRoute(m_ui->m_route);
    m_ui->m_band->clear();
    m_ui->m_route->clear();
    m_ui->m_band->addItem("other bands", kOthers);
    m_ui->m_route->addItem("other routes", kOthers);
    uint32_t band = 0;
    for (uint32_t i = 0; (band = m_dut->Band(i)) != 0; ++i) {
        const QString name = QString("n%1").arg(band);
        if (m_ui->m_band->findData(name) < 0)
            m_ui->m_band->addItem(name, name);
    }
    for (const uint32_t route : m_flash.RxRoutes())
        m_ui->m_route->addItem(QString("route %1").arg(route), QString::number(route));
}

void CDutPanel::ChangeRadio(const QJsonObject &keys)
{
    const QByteArray text = QJsonDocument(keys).toJson(QJsonDocument::Compact);
    Tell(m_dut->SetRadio(text) == 0 ? QString() : m_dut.Error());
    ShowRadioKeys();
}

void CDutPanel::ChangeTable(const SNumberTable &table, const QJsonValue &value)
{
    ChangeRadio({{table.key, QJsonObject{{table.choice->currentData().toString(), value}}}});
}

void CDutPanel::Refresh()
{
    m_ui->m_plugged->setChecked(m_dut->IsPlugged() != 0);
    ShowRadioState();
    ShowRadioKeys();
    if (m_refreshCount++ % kRefreshesPerFlash == 0)
        ShowFlash();
}

void CDutPanel::ShowRadioState()
{
    SVondSimRadioState state = {};
    m_dut->GetRadioState(&state);
    m_ui->m_radio->setText(RadioWords(state));
    m_ui->m_running->setText(RunningWords(state));
    FollowTest(state);
}

void CDutPanel::FollowTest(const SVondSimRadioState &state)
{
    const QString test = QString::fromUtf8(state.test);
    const bool isNew = !test.isEmpty() && (test != m_runningTest || state.elapsedNs < m_elapsedNs);
    m_runningTest = test;
    m_elapsedNs = state.elapsedNs;
    if (!isNew || !state.isReceiving)
        return;
    const int band = m_ui->m_band->findData(QString("n%1").arg(state.band));
    m_ui->m_band->setCurrentIndex(qMax(band, 0));
    const int route = m_ui->m_route->findData(QString::number(state.route));
    m_ui->m_route->setCurrentIndex(qMax(route, 0));
}

void CDutPanel::ShowRadioKeys()
{
    const QJsonObject radio = ObjectOf(CSimulatedDut::Text(m_dut->GetRadioText).toUtf8());
    ShowTable(m_levels, radio);
    ShowTable(m_losses, radio);
    for (const auto &[key, number] : m_numbers)
        number->Show(radio.value(key).toDouble());
}

// A band or a route without a number of its own goes by that of the others.
void CDutPanel::ShowTable(const SNumberTable &table, const QJsonObject &radio)
{
    const QJsonObject numbers = radio.value(table.key).toObject();
    const QString key = table.choice->currentData().toString();
    const bool isOwn = key != kOthers && numbers.contains(key);
    table.number->Show(numbers.value(isOwn ? key : QString(kOthers)).toDouble());
    table.asOthers->setEnabled(isOwn);
}

void CDutPanel::ShowFlash()
{
    m_flash.Refresh();
    const QString file = CSimulatedDut::Text(m_dut->GetFlashFile);
    m_ui->m_flashFile->setText(
        file.isEmpty() ? "No file: what is written lasts until the profile changes." : file);
    m_ui->m_flashSummary->setText(m_flash.Summary());
}

void CDutPanel::Tell(const QString &message)
{
    m_ui->m_dutMessage->setText(message);
    m_ui->m_dutMessage->setVisible(!message.isEmpty());
}
