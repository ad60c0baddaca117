#include "tests/fuzz/wire/OutsideRule.h"

#include "tests/fuzz/common/FuzzTarget.h"

namespace {

QJsonObject Without(QJsonObject document, const char *root, const char *section)
{
    QJsonObject sections = document[root].toObject();
    sections.remove(section);
    document[root] = sections;
    document.remove("modelIntegrity");
    return document;
}

}  // namespace

void CheckOutside(const QJsonObject &before, const QJsonObject &after, const char *root,
                  const char *section)
{
    // A root that is no object has no sections, and stays as it is.
    if (!before[root].isObject()) {
        Require(before[root] == after[root], "a document without sections gets none");
        return;
    }
    Require(Without(before, root, section) == Without(after, root, section),
            "a response is written to its section alone");
}
