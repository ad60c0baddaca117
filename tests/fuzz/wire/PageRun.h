// What the tool does with a DUT on behalf of one page, from the launch query to the last answer,
// with the rules that hold whatever the DUT answers. A broken rule ends the process.
//
// Everything goes through the core, as the pages reach it; jobs of the pool have ended when a
// function returns. Called from the one thread that the core's requests come from.
//
//   CPageRun run(EPageId::Rssi);
//   run.Launch();
//   run.Use();
#pragma once

#include <string>

#include <QJsonObject>

#include "Controller/core/PageTable.h"

class CPageRun
{
public:
    explicit CPageRun(EPageId page);

    // Support, page list and the page's document.
    void Launch();
    // The page's requests: test, reads and stop; of a calibration page the moves and documents.
    void Use();
    // Of a calibration page: what a save has written loads again and makes the same file.
    void UseFile();

private:
    void Test();
    void ReadRssi();
    void ReadReports();
    void ReadValue();
    void Calibrate();
    void SelectAnother();
    void ShowAndStore();

    EPageId m_page;
    QString m_name;
    bool m_isGeneration1 = false;
    QJsonObject m_document;  // packaged
};
