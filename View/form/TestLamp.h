// The running test, in the status bar: "● Single Tone TX  n78  3549.990 MHz  23.00 dBm  00:01:23".
//
// Red while the DUT transmits, green while it receives, nothing when no test runs; the words tell
// the same as the colour, and a screen reader is told at the start. The time goes by a clock that counts on while the window is hidden. GUI
// thread.
//
//   auto *lamp = new CTestLamp(statusBar());
//   connect(&ctrl, &CQuorlinViewCtrl::Signal_NewestTest, lamp, &CTestLamp::Show);
#pragma once

#include <QLabel>
#include <QTimer>

#include "Model/RunningTest.h"

class CTestLamp : public QLabel
{
    Q_OBJECT

public:
    explicit CTestLamp(QWidget *parent = nullptr);

public slots:
    void Show(const SRunningTestInfo &newest);

private:
    void Tick();

    SRunningTestInfo m_test;
    QString m_told;  // to who reads the screen aloud
    QTimer m_clock;
};
