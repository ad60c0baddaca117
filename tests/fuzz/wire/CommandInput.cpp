#include "tests/fuzz/wire/CommandInput.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QJsonArray>
#include <QJsonDocument>

#include "Operations/capability/TargetCapability.h"
#include "tests/fuzz/common/JsonMutator.h"
#include "tests/fuzz/wire/FuzzAnswers.h"
#include "tests/fuzz/wire/FuzzPages.h"

namespace {

std::map<std::pair<QByteArray, EPageId>, QJsonObject> s_bases;

}  // namespace

EPageId TargetPage(const QString &name)
{
    const auto pages = TargetPages();
    const auto page = std::find(pages.begin(), pages.end(), PageOf(name));
    return page == pages.end() ? pages.front() : *page;
}

void TakeBaseDocuments()
{
    for (const char *dut : FuzzAnswers::kDuts) {
        FuzzAnswers::Plug(dut);
        for (EPageId id : TargetPages())
            s_bases[{dut, id}] = PackagedPage(id, PatchedPage(id));
    }
}

const QJsonObject &BaseDocument(const QByteArray &dut, EPageId id)
{
    const auto found = s_bases.find({dut, id});
    return found == s_bases.end() ? s_bases.at({FuzzAnswers::kDuts[0], id}) : found->second;
}

CCommandInput::CCommandInput(const QByteArray &text)
{
    const QJsonObject input = ReadJson(text).object();
    const QByteArray dut = input["dut"].toString().toUtf8();
    FuzzAnswers::Plug(dut);
    for (const QJsonValue &function : input["fail"].toArray())
        FuzzAnswers::Fail(function.toString().toUtf8(), 4);
    m_page = TargetPage(input["page"].toString());
    m_isForOthers = input["others"].toBool();
    m_isGood = !input["bad"].toBool();
    m_base = &BaseDocument(dut, m_page);
    m_document = Merged(*m_base, input["document"].toObject()).toObject();
    m_bytes = QByteArray::fromHex(input["bytes"].toString().toLatin1());
}

bool CCommandInput::IsFor(std::initializer_list<EPageId> pages) const
{
    return m_isForOthers || std::find(pages.begin(), pages.end(), m_page) != pages.end();
}
