#include "View/plots/SecondImage.h"

#include <QFileInfo>
#include <QPointer>

namespace {

const QString kWork = QStringLiteral("Plot comparison");

QString NameOf(const SComparedSide &side)
{
    return side.kind == ECalSide::File ? QFileInfo(side.file).fileName() : QStringLiteral("DUT");
}

}  // namespace

CSecondImage::CSecondImage(const SComparePage &page)
    : QObject(page.widget), m_page(page), m_work(page)
{
    connect(m_page.viewCtrl, &CQuorlinViewCtrl::Signal_SecondImageDone, this, &CSecondImage::Take);
}

void CSecondImage::CompareWith(const SComparedSide &side)
{
    const QPointer<CSecondImage> self(this);
    const bool isBegun = m_work.Begin(kWork);
    if (!self)
        return;
    if (!isBegun) {
        Say(QStringLiteral("The page is busy. Compare when it has ended."));
        return;
    }
    m_isUnderWay = true;
    m_asked = NameOf(side);
    m_page.viewCtrl->RequestSecondImage(m_page.item, m_page.document(), side);
    Say(QStringLiteral("Reading %1...").arg(m_asked));
}

void CSecondImage::Take(const SCalSecondRead &read)
{
    const QPointer<CSecondImage> self(this);
    m_isUnderWay = false;
    if (!m_work.End() || !self)
        return;
    if (!read.image) {
        m_page.say(kWork + QLatin1String(" failed."));
        Say(QStringLiteral("%1 could not be read. %2").arg(m_asked, FailureText(read.result)));
        return;
    }
    m_image = read.image;
    m_name = m_asked;
    m_selection = QString();
    m_page.say(kWork + QLatin1String(" done."));
    Say(QStringLiteral("Thin lines: %1.").arg(m_name));
}

void CSecondImage::Drop()
{
    m_image = nullptr;
    m_selection = QString();
    m_document = {};
    Say({});
}

void CSecondImage::Say(const QString &words)
{
    m_words = words;
    emit Signal_Changed();
}

const QJsonObject &CSecondImage::Document(const QString &selection)
{
    if (m_image && (m_selection.isNull() || m_selection != selection)) {
        m_document = m_image->Document(m_page.shown()).value_or(QJsonObject());
        m_selection = selection;
    }
    return m_document;
}
