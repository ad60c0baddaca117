// The seven pages with a test: what each sends on the handset, and what has to reach the target.
//
// A document is the one that the core supplies, packaged, with values that the handset accepts.
//
//   for (const SStepPage &page : kStepPages)
//       m_core.Test(page.name, ModelToText(page.Document(m_core)));
#pragma once

#include "Controller/core/NrCore.h"
#include "Controller/core/PageTable.h"
#include "tests/controller/commands/PageDocuments.h"

struct SStepPage
{
    EPageId id;
    const char *name;
    const char *function;
    bool hasStatus;
    const char *running;  // at the DUT after a good start
    TextMap values;       // of request group 1
    QByteArray (*command)(const QJsonObject &document);

    QJsonObject Document(CNrCore &core) const;
};

extern const SStepPage kStepPages[7];

const SStepPage &StepPage(EPageId id);
