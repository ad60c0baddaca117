#include "View/form/TestLamp.h"

#include <utility>

#include "View/access/Announce.h"
#include "View/access/Contrast.h"
#include "View/editors/FormFont.h"

namespace {

constexpr int kTickMs = 1000;
// One of the two is read on any ground, light or dark, or is brought to where it is (Contrast.h).
struct SLampColors
{
    const char *onLight;
    const char *onDark;
};
constexpr SLampColors kTransmits = {.onLight = "#b71c1c", .onDark = "#ff8a80"};
constexpr SLampColors kReceives = {.onLight = "#1b5e20", .onDark = "#a5d6a7"};

QString ElapsedText(qint64 seconds)
{
    constexpr int kMinute = 60;
    constexpr int kHour = 3600;
    const auto two = [](qint64 number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    return two(seconds / kHour) + QLatin1Char(':') + two(seconds % kHour / kMinute) +
           QLatin1Char(':') + two(seconds % kMinute);
}

}  // namespace

CTestLamp::CTestLamp(QWidget *parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("m_testLamp"));
    setAccessibleName(QStringLiteral("Running test"));
    setTextFormat(Qt::PlainText);
    setFont(FormFont(parent));
    hide();
    m_clock.setInterval(kTickMs);
    connect(&m_clock, &QTimer::timeout, this, &CTestLamp::Tick);
}

void CTestLamp::Show(const SRunningTestInfo &newest)
{
    m_test = newest;
    const bool isAny = !newest.text.isEmpty();
    setVisible(isAny);
    if (!isAny) {
        m_clock.stop();
        clear();
        m_told.clear();
        return;
    }
    const SLampColors &colors = newest.transmits ? kTransmits : kReceives;
    const QColor ground = parentWidget()->palette().window().color();
    const bool isLight = Contrast(Qt::black, ground) >= Contrast(Qt::white, ground);
    QPalette palette;
    palette.setColor(QPalette::WindowText,
                     Readable(QColor(isLight ? colors.onLight : colors.onDark), ground));
    setPalette(palette);
    const QLatin1String what(newest.transmits ? "The DUT transmits" : "The DUT receives");
    setToolTip(what);
    Tick();
    const QString told = what + QLatin1String(": ") + newest.text;
    if (std::exchange(m_told, told) != told) {
        setAccessibleDescription(told);
        Announce(this);
    }
    m_clock.start();
}

void CTestLamp::Tick()
{
    const qint64 seconds = (RunningClockMs() - m_test.startedMs) / kTickMs;
    setText(QStringLiteral("\u25CF %1  %2").arg(m_test.text, ElapsedText(seconds)));
}
