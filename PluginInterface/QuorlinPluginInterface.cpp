#include "PluginInterface/QuorlinPluginInterface.h"

#include <QCoreApplication>

#include "PluginInterface/PageTypes.h"
#include "Support/Log.h"

QuorlinPluginInterface::QuorlinPluginInterface() : m_form(&RegisterPageTypes)
{
    connect(&m_form, &CQuorlinForm::Signal_PluginIsActivated, this,
            &QuorlinPluginInterface::Slot_PluginIsActivated);
    connect(&m_form, &CQuorlinForm::Signal_PluginIsBusy, this,
            &QuorlinPluginInterface::Slot_PluginIsBusy);
}

CQuorlinForm &QuorlinPluginInterface::Form()
{
    m_form.SetTargetHandle(qApp->property("vondTargetHandle").toUInt());
    return m_form;
}

QString QuorlinPluginInterface::GetPluginName()
{
    return QStringLiteral("Quorlin RF");
}

QString QuorlinPluginInterface::ChipName()
{
    return Form().RfChipName();
}

void QuorlinPluginInterface::ResetPlugin()
{
    Form().ResetPages();
}

void QuorlinPluginInterface::ShowPlugin()
{
    Form().setVisible(true);
    m_form.show();
}

void QuorlinPluginInterface::HidePlugin()
{
    Form().hide();
}

SPluginToolLaunchRequirement QuorlinPluginInterface::QueryLaunchRequirement()
{
    SPluginToolLaunchRequirement requirement;
    requirement.isNeedDriver = true;
    qCDebug(lcForm) << "QuorlinPluginInterface::QueryLaunchRequirement ()";
    QString reason;
    requirement.isSupport = Form().QueryPluginSupport(reason);
    if (!requirement.isSupport)
        requirement.unsupportReason = reason;
    qCDebug(lcForm) << "QuorlinPluginInterface::QueryLaunchRequirement () isSupport"
                    << requirement.isSupport << " isNeedDb " << requirement.isNeedDb
                    << " isNeedDriver" << requirement.isNeedDriver;
    return requirement;
}

QString QuorlinPluginInterface::GetPluginNote()
{
    return {};
}

void QuorlinPluginInterface::HostNotifyAfter(uint32_t) {}

void QuorlinPluginInterface::DisablePages()
{
    Form().DisableAllPages();
}

void QuorlinPluginInterface::EnablePages()
{
    Form().EnableAllPages();
}

void QuorlinPluginInterface::Slot_PluginIsActivated(bool isActivated)
{
    emit Signal_PluginIsActivated(GetPluginName(), isActivated);
}

void QuorlinPluginInterface::Slot_PluginIsBusy(bool isBusy)
{
    emit Signal_PluginIsBusy(GetPluginName(), isBusy);
}
