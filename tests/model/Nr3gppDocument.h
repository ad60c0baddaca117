// The 3GPP reference document as the library carries it.
//
//   const QJsonObject bands = Nr3gppDocument().value("operatingBand").toObject();
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include "Model/ModelResources.h"

inline QByteArray Nr3gppText()
{
    InitModelResources();
    QFile file(":/Nr3gpp.json");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

// Read once. The test that asks first fails when the text does not parse.
inline const QJsonObject &Nr3gppDocument()
{
    static const QJsonObject root = [] {
        QJsonParseError error{};
        const QJsonDocument document = QJsonDocument::fromJson(Nr3gppText(), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
        return document.object();
    }();
    return root;
}

inline QJsonObject Nr3gppTable(const char *name)
{
    return Nr3gppDocument().value(QLatin1String(name)).toObject();
}

inline QStringList Texts(const QJsonValue &array)
{
    QStringList texts;
    for (const QJsonValue &element : array.toArray())
        texts.append(element.toString());
    return texts;
}
