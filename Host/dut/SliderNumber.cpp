#include "Host/dut/SliderNumber.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QtGlobal>

namespace {

constexpr double kStepsPerUnit = 10.0;

bool IsTyping(const QDoubleSpinBox &number)
{
    const auto *line = number.findChild<QLineEdit *>();
    return number.hasFocus() && line && line->isModified();
}

}  // namespace

CSliderNumber::CSliderNumber(QSlider &slider, QDoubleSpinBox &number, QObject *parent)
    : QObject(parent), m_slider(slider), m_number(number)
{
    m_number.setKeyboardTracking(false);
    connect(&m_slider, &QSlider::valueChanged, this, &CSliderNumber::OnSlider);
    connect(&m_number, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &CSliderNumber::OnNumber);
}

void CSliderNumber::Show(double value)
{
    if (m_slider.isSliderDown() || IsTyping(m_number))
        return;
    const QSignalBlocker blocker(m_number);
    m_number.setValue(value);
    SetSlider(value);
}

void CSliderNumber::OnSlider(int tenths)
{
    const double value = tenths / kStepsPerUnit;
    const QSignalBlocker blocker(m_number);
    m_number.setValue(value);
    emit Signal_Changed(value);
}

void CSliderNumber::OnNumber(double value)
{
    SetSlider(value);
    emit Signal_Changed(value);
}

void CSliderNumber::SetSlider(double value)
{
    const QSignalBlocker blocker(m_slider);
    m_slider.setValue(qRound(value * kStepsPerUnit));
}
