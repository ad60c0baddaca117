// The box text of a calibration flow's remarks.
//
// Sections that name another route come first. Records with one reason stand together, in the order in
// which they came; values have a line each. A long list goes into the box's details, and the text has
// its beginning. Pure function.
//
//   const SRemarkBox box = RemarkBox("RX PathLoss", remarks);
//   m_messageBox.Show(eBoxWarningAsIs, title, BoxText(box.text), {}, box.detail, -1);
#pragma once

#include "Model/CalRemarks.h"

struct SRemarkBox
{
    QString text;
    QString detail;  // empty where the text has all
};

SRemarkBox RemarkBox(const QString &item, const SCalRemarks &remarks);
