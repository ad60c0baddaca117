// A slider and a number beside it that show one value, in tenths on the slider.
//
// What the user does to one shows in the other and is told at once; a number that is typed counts with
// Enter, or when the field is left. The number may go beyond the slider's ends.
//
//     auto *level = new CSliderNumber(*m_ui->m_levelSlider, *m_ui->m_level, this);
//     connect(level, &CSliderNumber::Signal_Changed, this, [](double value) { ... });
//     level->Show(-65.0);   // from outside: nothing is told
#pragma once

#include <QObject>

class QDoubleSpinBox;
class QSlider;

class CSliderNumber : public QObject
{
    Q_OBJECT

public:
    CSliderNumber(QSlider &slider, QDoubleSpinBox &number, QObject *parent);

    // Nothing while the user holds the slider or is typing.
    void Show(double value);

signals:
    void Signal_Changed(double value);

private:
    void OnSlider(int tenths);
    void OnNumber(double value);
    void SetSlider(double value);

    QSlider &m_slider;
    QDoubleSpinBox &m_number;
};
