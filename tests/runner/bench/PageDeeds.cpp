#include "tests/runner/bench/PageDeeds.h"

#include <QtTest>

#include "tests/common/SimJournal.h"

namespace {

QString Wish(const SBenchMember &member)
{
    if (member.type == "boolean")
        return member.values.value(0) == "true" ? "false" : "true";
    return member.type == "list" ? member.choices.value(member.choices.size() / 2) : QString("mid");
}

}  // namespace

const QVector<SPageDeeds> &PageDeeds()
{
    static const QVector<SPageDeeds> pages = {
        {"CNrContRxDockWidgetV7", {"m_start", "m_stop"}},
        {"CNrRssiDockWidgetV7", {"m_btnRssiSeqSrhCalculator", "m_start"}},
        {"CNrRsrpForceDockWidgetV7", {"m_start", "resetPushButton", "m_stop", "clearPushButton"}},
        {"CNrRsrpNormalDockWidgetV7", {"m_start", "resetPushButton", "m_stop", "clearPushButton"}},
        {"CNrSingleToneTxDockWidgetV7", {"m_start", "m_stop"}},
        {"CNrPuschTxForcedDockWidgetV7", {"m_start", "m_stop"}},
        {"CNrPuschTxNormalDockWidgetV7", {"m_start", "m_stop"}},
        {"CNrRxPathlossDockWidgetV7", {"m_btnUpload", "m_btnDownload"}},
        {"CNrAptProfileDockWidgetV7", {"m_btnUpload", "m_btnDownload"}},
    };
    return pages;
}

void AddPageDeeds()
{
    QTest::addColumn<QString>("profile");
    QTest::addColumn<int>("page");
    for (int page = 0; page < PageDeeds().size(); ++page) {
        QTest::addRow("handset %s", PageDeeds()[page].page) << "handset" << page;
        QTest::addRow("odd %s", PageDeeds()[page].page) << ODD_PROFILE << page;
    }
}

QVector<SDeed> SetAll(CBenchPage *page)
{
    QVector<SDeed> deeds;
    for (const SBenchMember &known : page->Members()) {
        if (!known.IsInput())
            continue;
        SDeed deed;
        const QString name = known.Name() + (known.isCells ? "[0]" : "");
        if (page->FindInput(name, deed.member, deed.column) || !deed.member.isEnabled ||
            !deed.member.isShown)
            continue;
        if (page->Set(name, Wish(deed.member)))
            continue;
        SBenchMember after;
        page->FindInput(name, after, deed.column);
        deed.value = after.values.value(qMax(deed.column, 0));
        deeds.append(deed);
    }
    return deeds;
}

QVector<QByteArray> Requests()
{
    QVector<QByteArray> requests;
    for (const SJournalCall &call : Journal()) {
        const QByteArray name = call.call.function;
        if (!name.contains("Report") && !name.contains("GetChipIdName"))
            requests.append(name + ' ' + call.request.toHex());
    }
    return requests;
}
