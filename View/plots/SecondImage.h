// A second image beside a calibration page, for its plot: of the DUT or a file, read once.
//
// The page is off while it is read, as in a comparison; what it shows stays. A failure is told in Words() and
// leaves the image there was. GUI thread; the page owns it.
//
//   m_second->CompareWith({.kind = ECalSide::File, .file = "golden.ini"});
//   connect(m_second, &CSecondImage::Signal_Changed, ...);
//   const QJsonObject document = m_second->Document(key);
#pragma once

#include "Model/CalSecondImage.h"
#include "View/compare/PageWork.h"
#include "View/plots/PlotSource.h"

class CSecondImage : public QObject, public ISecondImage
{
    Q_OBJECT

public:
    explicit CSecondImage(const SComparePage &page);

    void CompareWith(const SComparedSide &side) override;
    void Drop() override;
    bool IsThere() const override { return m_image != nullptr; }
    bool IsUnderWay() const override { return m_isUnderWay; }
    const QString &Name() const { return m_name; }    // "DUT", "golden.ini"
    const QString &Words() const { return m_words; }  // what became of the last request
    // The page's document with this image's values; empty when the image has none of them. selection:
    // tells one selection of the page from the other.
    const QJsonObject &Document(const QString &selection);

signals:
    void Signal_Changed();

private:
    void Take(const SCalSecondRead &read);
    void Say(const QString &words);

    const SComparePage m_page;
    CPageWork m_work;
    bool m_isUnderWay = false;
    QString m_asked;  // the name of what is being read
    QString m_name;
    QString m_words;
    std::shared_ptr<const ICalSecondImage> m_image;
    QString m_selection;  // of m_document; null: there is none yet
    QJsonObject m_document;
};
