// What the core offers, apart from how it does it.
//
// Two families of requests: documents and tests of the pages (IRfTest), and the support of the DUT
// with its calibration items (IRfCoreCalDataOperation). Documents are compact JSON text.
//
// Calibration flows. A flow moves the data of some items, one after another, between the target's
// flash, memory and a file; a failed item does not end it. It starts on any thread, returns at once
// and answers once, on a pool thread, with a result for each item. An unknown item name moves
// nothing; its status is that of the item before it, or 0. Signal_CalRemarks tells before the
// answer what a move left out.
//
//   connect(&core, &IRfCoreCalDataOperation::Signal_UploadFromFlashDone, page, &Page::Slot_Done);
//   core.UploadFromFlashStart({core.GetCalItemName(1)});
#pragma once

#include <atomic>
#include <memory>
#include <string>

#include <QFile>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include "Model/CalRemarks.h"
#include "Model/OperationResult.h"

class CCalIniFile;

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
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
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
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    virtual void Stop() = 0;
};

class IRfCoreCalDataOperation : public QObject
{
    Q_OBJECT

public:
    // Names of the calibration items that the DUT has. Blocks on the link.
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    virtual void GetAllCalItem(QStringList &out) = 0;
    // The same, of those that have a section in the file; none for a file that can't be read. The
    // caller keeps the file. Blocks on the link.
    virtual void GetCalItemInFile(QStringList &out, CCalIniFile *file) = 0;

    // The four flows. The file belongs to the flow and is let go before the answer.
    virtual void UploadFromFlashStart(QStringList items) = 0;
    virtual void DownloadToFlashStart(QStringList items) = 0;
    virtual void LoadFromFileStart(std::shared_ptr<CCalIniFile> file, QStringList items) = 0;
    virtual void SaveToFileStart(std::shared_ptr<CCalIniFile> file, QStringList items) = 0;

    // Drops all that is cached of the target. Never blocks.
    virtual void ResetTargetCache() = 0;
    // Blocks on the link.
    virtual SRfSupportStatus GetSupportStatus() = 0;

    // Last text from an operation; cleared when a request starts.
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    QString GetErrorMessage() const { return m_errorMessage; }

signals:
    // Number of items that are done: 0, with an empty result, when the first one begins.
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    void Signal_FinishItemCount(int itemFinshCount, SEachItemOperationResult itemResult);
    void Signal_UploadFromFlashDone(bool isAllSuccess,
                                    QVector<SEachItemOperationResult> itemResult);
    void Signal_DownloadToFlashDone(bool isAllSuccess,
                                    QVector<SEachItemOperationResult> itemResult);
    void Signal_SaveToFileDone(bool isAllSuccess, QVector<SEachItemOperationResult> itemResult);
    void Signal_LoadFromFileDone(bool isAllSuccess, QVector<SEachItemOperationResult> itemResult);
    // How far an item's move is. round: the transfer under way, from 1 on; 0 while a file is read
    // or written. routesDone counts rows of the route tables.
    void Signal_CalProgress(QString item, int round, int routesDone, int routesInAll);
    // Remarks on an item's move, whatever its result is. Comes before the flow's answer, and only
    // when there are remarks.
    void Signal_CalRemarks(QString item, SCalRemarks remarks);

protected:
    // Results of the flow that runs, or of the last one.
    void ResetItemResults();
    void AddItemResult(const QString &item, int status, const QString &message);
    SEachItemOperationResult GetItemResult(int index) const;

    SRfSupportStatus m_supportStatus;  // last answer of GetSupportStatus
    QString m_errorMessage;
    QVector<SEachItemOperationResult> m_itemResults;
    bool m_isAllSuccess = true;
    // While it is set, a flow ends before its next item. A reset clears it; nothing sets it.
    // Prescribed; see docs/decisions/0036-prescribed-surface.md
    std::atomic<bool> m_isStop{false};
};
