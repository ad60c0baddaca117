#include "View/settings/PageSettings.h"

#include <QPointer>

#include "Support/FileDialogMan.h"
#include "Support/WholeFile.h"
#include "View/editors/NamedAction.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/settings/SettingsFile.h"

namespace {

constexpr char kFilter[] = "*.json";

QString TitleOf(const CAutoBindingDataModelDockWidget &page)
{
    return page.windowTitle().trimmed();
}

}  // namespace

CPageSettings::CPageSettings(CAutoBindingDataModelDockWidget *page) : QObject(page), m_page(page)
{
    AddAction(page, "m_actionSaveSettings", "&Save settings...", {"Ctrl+S"}, [this] { Save(); });
    AddAction(page, "m_actionLoadSettings", "L&oad settings...", {"Ctrl+O"}, [this] { Load(); });
}

CPageSettings *CPageSettings::Of(const CAutoBindingDataModelDockWidget *page)
{
    return page->findChild<CPageSettings *>(QString(), Qt::FindDirectChildrenOnly);
}

QByteArray CPageSettings::Text() const
{
    const SMemberSettings settings = m_page->Settings();
    if (settings.groups.isEmpty())
        return {};
    return SettingsText({.version = settings.version,
                         .page = TitleOf(*m_page),
                         .section = settings.section,
                         .groups = settings.groups});
}

QStringList CPageSettings::Take(const QByteArray &text)
{
    QString reason;
    const std::optional<SSettingsFile> file = ReadSettings(text, reason);
    if (!file)
        return {reason};
    const SMemberSettings own = m_page->Settings();
    if (file->page != TitleOf(*m_page) || file->section != own.section)
        return {QStringLiteral("These are settings of the page %1.").arg(file->page)};
    if (file->version > own.version)
        return {QStringLiteral("They are of version %1; this tool knows version %2.")
                    .arg(file->version)
                    .arg(own.version)};
    return m_page->TakeSettings(file->groups);
}

void CPageSettings::Save()
{
    const QPointer<CPageSettings> self(this);
    m_page->FinishEdit();
    if (!self)
        return;
    const QByteArray text = Text();
    const QString path =
        CFileDialogMan().GetSaveFileName(QStringLiteral("Save settings"), QLatin1String(kFilter));
    if (!self || path.isEmpty())
        return;
    const QString why = SaveWhole(path, text);
    if (why.isEmpty())
        emit m_page->Signal_UpdateStatus(QStringLiteral("Settings saved to %1.").arg(path));
    else
        m_page->Warn(QStringLiteral("Save settings failed."), path + QLatin1String(": ") + why);
}

void CPageSettings::Load()
{
    const QPointer<CPageSettings> self(this);
    const QString path =
        CFileDialogMan().GetOpenFileName(QStringLiteral("Load settings"), QLatin1String(kFilter));
    if (!self || path.isEmpty())
        return;
    constexpr qint64 kMostBytes = 2 * 1024 * 1024;
    QByteArray text;
    if (const QString why = ReadWhole(path, kMostBytes, text); !why.isEmpty())
        return m_page->Warn(QStringLiteral("Load settings failed."),
                            path + QLatin1String(": ") + why);
    const QStringList refused = Take(text);
    if (!self)
        return;
    if (refused.isEmpty())
        emit m_page->Signal_UpdateStatus(QStringLiteral("Settings loaded from %1.").arg(path));
    else
        m_page->Warn(QStringLiteral("Not all settings were loaded."),
                     refused.join(QLatin1Char('\n')));
}
