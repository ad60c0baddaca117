// What the core offers, apart from how it does it.
//
// Two families of requests: documents and tests of the pages (IRfTest), and the support of the DUT
// with its calibration items (IRfCoreCalDataOperation). Documents are compact JSON text.
#pragma once

#include <string>

#include <QFile>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>

enum ESupport
{
    eSupportUndecided = 0,
    eSupported = 1,
    eNotSupported = 2,
    eSupportUnknown = 3,  // could not be found out
};

// Can the tool run on the DUT at hand?
struct SRfSupportStatus
{
    int status = eSupportUndecided;  // ESupport
    QString message;                 // why, for the host to show
    QString advice;                  // what the user can do about status 3
};

// Reads a document from a resource or file.
class IJsonModel
{
public:
    virtual ~IJsonModel() = default;

    // False, with a critical log line, when the file cannot be opened or does not parse; out stays
    // as it was then.
    bool ReadDataModel(QFile &file, QJsonObject &out);

private:
    QJsonObject m_lastModel;
};

class IRfTest : public IJsonModel
{
public:
    // Class names of the pages that fit the modem, in tab order. Blocks on the link.
    virtual QStringList GetAllSupportPage() = 0;
    // A page's document. Blocks on the link.
    virtual std::string GetDataModel(QString pageName) = 0;
    // Starts a page's test on the pool.
    virtual void Test(QString pageName, std::string document) = 0;
    // Not the way to stop a test; answers so.
    virtual void Stop() = 0;
};

class IRfCoreCalDataOperation : public QObject
{
    Q_OBJECT

public:
    // Names of the calibration items that the DUT has. Blocks on the link.
    virtual void GetAllCalItem(QStringList &out) = 0;
    // Drops all that is cached of the target. Never blocks.
    virtual void ResetTargetCache() = 0;
    // Blocks on the link.
    virtual SRfSupportStatus GetSupportStatus() = 0;

    // Last text from an operation; cleared when a request starts.
    QString GetErrorMessage() const { return m_errorMessage; }

protected:
    SRfSupportStatus m_supportStatus;  // last answer of GetSupportStatus
    QString m_errorMessage;
};
