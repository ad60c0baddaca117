#include "View/entry/FrequencyDialog.h"

#include <cmath>

#include <QPushButton>

#include "Model/NrArfcn.h"
#include "ui_FrequencyDialog.h"

namespace {

constexpr double kKhzPerMhz = 1000;

QString MhzText(double khz)
{
    return QString::number(khz / kKhzPerMhz, 'f', 3) + QLatin1String(" MHz");
}

// The carrier as MHz and channel number.
QString PointText(double khz)
{
    const std::optional<qint64> arfcn = ArfcnOfKhz(khz);
    QString text = MhzText(khz);
    if (arfcn)
        text += QStringLiteral(", NR-ARFCN %1").arg(*arfcn);
    return text;
}

}  // namespace

double ChannelKhzAt(const SFrequencyPlace &place, double share)
{
    const double low = place.leastKhz + place.channelKhz / 2;
    const double high = place.mostKhz - place.channelKhz / 2;
    const double khz = low + share * std::max(high - low, 0.0);
    const double step = RasterStepKhz(place.band, place.scsKhz);
    double point = NearestRasterKhz(place.band, place.scsKhz, khz).value_or(khz);
    if (point < low)
        point += step;
    else if (point > high)
        point -= step;
    return point >= low && point <= high ? point : khz;
}

CFrequencyDialog::CFrequencyDialog(const SFrequencyPlace &place, QWidget *parent)
    : QDialog(parent), m_place(place), m_ui(std::make_unique<Ui::CFrequencyDialog>()),
      m_khz(place.khz)
{
    m_ui->setupUi(this);
    connect(m_ui->m_entry, &QLineEdit::textChanged, this, &CFrequencyDialog::Look);
    const struct
    {
        QPushButton *button;
        double share;  // of the way from the lowest channel to the highest
    } channels[] = {{m_ui->m_low, 0.0}, {m_ui->m_middle, 0.5}, {m_ui->m_high, 1.0}};
    for (const auto &channel : channels)
        connect(channel.button, &QPushButton::clicked, this,
                [this, share = channel.share] { Enter(ChannelKhzAt(m_place, share)); });
    connect(m_ui->m_nearest, &QPushButton::clicked, this, [this] {
        if (const auto point = NearestRasterKhz(m_place.band, m_place.scsKhz, m_khz))
            Enter(*point);
    });
    m_ui->m_entry->setText(QString::number(place.khz));
    m_ui->m_entry->selectAll();
}

CFrequencyDialog::~CFrequencyDialog() = default;

void CFrequencyDialog::Enter(double khz)
{
    m_ui->m_entry->setText(QString::number(std::llround(khz)));
    m_ui->m_entry->setFocus();
}

void CFrequencyDialog::Look()
{
    const std::optional<double> entered =
        KhzOfEntry(m_ui->m_entry->text(), m_place.leastKhz, m_place.mostKhz);
    const double khz = entered ? std::round(*entered) : 0;
    const bool isTaken = entered && khz >= m_place.leastKhz && khz <= m_place.mostKhz;
    m_ui->m_buttons->button(QDialogButtonBox::Ok)->setEnabled(isTaken);
    m_ui->m_nearest->setEnabled(isTaken);
    if (!entered) {
        m_ui->m_meaning->setText(QStringLiteral("No frequency and no NR-ARFCN"));
        m_ui->m_raster->clear();
        return;
    }
    m_ui->m_meaning->setText(
        PointText(khz) + (isTaken ? QString()
                                  : QStringLiteral(" is not within %1 to %2")
                                        .arg(MhzText(m_place.leastKhz), MhzText(m_place.mostKhz))));
    if (!isTaken)
        return m_ui->m_raster->clear();
    m_khz = static_cast<int>(khz);
    const std::optional<double> point = NearestRasterKhz(m_place.band, m_place.scsKhz, khz);
    m_ui->m_raster->setText(point ? PointText(*point) : QString());
}
