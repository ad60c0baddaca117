#include "Host/Sign.h"

#include <QColor>
#include <QLabel>
#include <QPalette>

namespace {

// Of two colours, the one that is seen on the window's ground.
struct SSignColors
{
    const char *onLight = "";
    const char *onDark = "";
};
constexpr SSignColors kGood = {.onLight = "#1b5e20", .onDark = "#a5d6a7"};
constexpr SSignColors kBad = {.onLight = "#b71c1c", .onDark = "#ff8a80"};

constexpr char kDot[] = "\u25CF";

}  // namespace

void ShowSign(QLabel &label, ESign sign)
{
    label.setVisible(sign != ESign::None);
    if (sign == ESign::None)
        return;
    constexpr int kMiddle = 128;
    const SSignColors &colors = sign == ESign::Good ? kGood : kBad;
    const bool isLight = label.parentWidget()->palette().window().color().lightness() > kMiddle;
    ShowSign(label, QColor(QLatin1String(isLight ? colors.onLight : colors.onDark)));
}

void ShowSign(QLabel &label, const QColor &color)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, color);
    label.setPalette(palette);
    label.setText(QString::fromUtf8(kDot));
    label.setVisible(true);
}
