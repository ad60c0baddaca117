#include "Runner/report/Reports.h"

#include <QDir>

#include "Runner/report/HtmlReport.h"
#include "Runner/report/JUnit.h"
#include "Runner/report/ReportTexts.h"
#include "Support/WholeFile.h"

namespace {

constexpr qint64 kRewriteMs = 1000;

QString CannotWrite(const QString &file, const QString &why)
{
    return QString("%1 can't be written: %2").arg(file, why);
}

}  // namespace

QString PrepareFolder(const QString &folder)
{
    const QFileInfo info(folder);
    if (info.exists() && !info.isDir())
        return QString("%1 is no folder.").arg(folder);
    if (!QDir().mkpath(folder))
        return QString("The folder %1 can't be made.").arg(folder);
    const QDir dir(folder);
    if (!dir.isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        return QString("The folder %1 is not empty.").arg(folder);
    return QFileInfo(folder).isWritable() ? QString()
                                          : QString("The folder %1 can't be written.").arg(folder);
}

QString CReports::Open(const QString &folder, const SRunInfo &info,
                       const QVector<SCaseResult> &cases)
{
    if (const QString error = PrepareFolder(folder); !error.isEmpty())
        return error;
    m_folder = folder;
    m_info = info;
    m_isAdded.fill(false, cases.size());
    for (const SCaseResult &result : cases) {
        m_cases.append(Summarize(result));
        for (const auto &[key, value] : result.sweep)
            if (!m_sweptKeys.contains(key))
                m_sweptKeys << key;
    }
    m_lines.setFileName(QDir(folder).filePath("results.jsonl"));
    m_table.setFileName(QDir(folder).filePath("results.csv"));
    for (QFile *file : {&m_lines, &m_table})
        if (!file->open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            return CannotWrite(file->fileName(), file->errorString());
    m_isOpen = true;
    const QString error = Append(m_table, CsvHeader(m_sweptKeys));
    return error.isEmpty() ? WriteForPeople() : error;
}

QString CReports::Add(int index, const SCaseResult &result)
{
    if (!m_isOpen || m_isAdded[index])
        return {};
    m_isAdded[index] = true;
    m_cases[index] = Summarize(result);
    QString error = Append(m_lines, JsonLine(m_info, result));
    if (error.isEmpty())
        error = Append(m_table, CsvRows(m_info, m_sweptKeys, result));
    if (error.isEmpty() && m_sinceWritten.hasExpired(kRewriteMs))
        error = WriteForPeople();
    return error;
}

QString CReports::Finish(const QString &whyNotRun)
{
    if (!m_isOpen)
        return {};
    QByteArray lines;
    for (int i = 0; i < m_cases.size(); ++i) {
        if (m_isAdded[i])
            continue;
        if (!whyNotRun.isEmpty())
            m_cases[i].result.reasons = QStringList(whyNotRun);
        lines += JsonLine(m_info, m_cases[i].result);
    }
    QString error = Append(m_lines, lines);
    m_isOpen = false;
    m_lines.close();
    m_table.close();
    const QString second = WriteForPeople();
    return error.isEmpty() ? second : error;
}

// One write of all bytes, so that a line is there whole or not at all; of half a one nothing is left.
QString CReports::Append(QFile &file, const QByteArray &bytes)
{
    const qint64 end = file.pos();
    if (bytes.isEmpty() || file.write(bytes) == bytes.size())
        return {};
    const QString why = file.errorString();
    file.resize(end);
    file.seek(end);
    return CannotWrite(file.fileName(), why);
}

QString CReports::WriteWhole(const QString &name, const QByteArray &bytes)
{
    const QString path = QDir(m_folder).filePath(name);
    const QString why = SaveWhole(path, bytes);
    return why.isEmpty() ? why : CannotWrite(path, why);
}

QString CReports::WriteForPeople()
{
    const QString error = WriteWhole("junit.xml", JUnitXml(m_info, m_cases));
    const QString second = WriteWhole("report.html", HtmlReport(m_info, m_cases));
    m_sinceWritten.start();
    return error.isEmpty() ? second : error;
}
