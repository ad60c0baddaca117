#include "tests/modelcheck/PageFiles.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>

QString DataFile(const QString &name)
{
    return QStringLiteral(MODELCHECK_DATA "/") + name;
}

QString SourceFile(const QString &path)
{
    return QStringLiteral(MODELCHECK_SOURCE_ROOT "/") + path;
}

STextFile ReadText(const QString &file)
{
    QFile source(file);
    EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << qPrintable(file);
    return {QFileInfo(file).fileName(), source.readAll()};
}

QStringList Lines(const TFindings &findings)
{
    QStringList lines;
    for (const SFinding &finding : findings)
        lines.append(FindingLine(finding));
    return lines;
}

QStringList LinesOf(const QString &document, const QString &form)
{
    return Lines(CheckPage(ReadText(DataFile(document)), ReadText(DataFile(form))));
}

QStringList LinesOf(const QString &document)
{
    return Lines(CheckDocument(ReadText(DataFile(document))));
}
