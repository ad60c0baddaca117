// A coloured dot beside words. It says nothing that the words don't say.
//
//     ShowSign(*ui.m_answerSign, ESign::Good);
#pragma once

class QColor;
class QLabel;

enum class ESign
{
    None,  // no dot
    Good,  // also: the radio receives
    Bad,   // also: the radio transmits
};

void ShowSign(QLabel &label, ESign sign);
// In a colour of somebody else.
void ShowSign(QLabel &label, const QColor &color);
