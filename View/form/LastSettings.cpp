#include "View/form/LastSettings.h"

#include <QAction>
#include <QPointer>

#include "Support/BoxText.h"
#include "Support/MessageBoxMan.h"
#include "Support/Settings.h"
#include "View/editors/NamedAction.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/settings/PageSettings.h"

namespace {

constexpr char kRestoreKey[] = "settings/restoreAtStart";

QString KeyOf(const CAutoBindingDataModelDockWidget &page)
{
    return QLatin1String("settings/") + QLatin1String(page.metaObject()->className());
}

}  // namespace

CLastSettings::CLastSettings(QWidget *window)
    : m_action(AddAction(window, "m_actionRestoreSettings", "&Restore settings at start",
                         {"Ctrl+Shift+S"}, {}))
{
    m_action->setCheckable(true);
    m_action->setChecked(CSettings::Get().Value(kRestoreKey).toBool());
    QObject::connect(m_action, &QAction::toggled, window,
                     [](bool isOn) { CSettings::Get().SetValue(kRestoreKey, isOn); });
}

void CLastSettings::Keep(const QList<CAutoBindingDataModelDockWidget *> &pages) const
{
    if (!m_action->isChecked())
        return;
    for (const CAutoBindingDataModelDockWidget *page : pages) {
        const CPageSettings *settings = CPageSettings::Of(page);
        const QByteArray text = settings ? settings->Text() : QByteArray();
        if (!text.isEmpty())
            CSettings::Get().SetValue(KeyOf(*page), text);
    }
}

void CLastSettings::Restore(const QList<CAutoBindingDataModelDockWidget *> &pages)
{
    if (!m_action->isChecked())
        return;
    QStringList refused;
    QVector<QPointer<CAutoBindingDataModelDockWidget>> left;
    for (CAutoBindingDataModelDockWidget *page : pages)
        left.append(page);
    for (const auto &page : left) {
        const QByteArray text =
            page ? CSettings::Get().Value(KeyOf(*page)).toByteArray() : QByteArray();
        CPageSettings *settings = page ? CPageSettings::Of(page) : nullptr;
        if (!settings || text.isEmpty())
            continue;
        const QString title = page->windowTitle().trimmed();
        // A page that is not on top is off, and nothing follows an editor that is.
        const bool wasOn = page->isEnabled();
        page->setEnabled(true);
        for (const QString &line : settings->Take(text))
            refused.append(title + QLatin1String(": ") + line);
        if (page)
            page->setEnabled(wasOn);
    }
    if (refused.isEmpty())
        return;
    CMessageBoxMan box;
    box.SetOwner(m_action->parentWidget());
    box.Show(eBoxWarningAsIs, QStringLiteral("Not all settings were restored."),
             BoxText(refused.join(QLatin1Char('\n'))), {}, {}, -1);
}
