#include "tools/modelcheck/Form.h"

#include <QXmlStreamReader>

SForm ReadForm(const QByteArray &text)
{
    SForm form;
    QXmlStreamReader reader(text);
    if (reader.readNextStartElement() && reader.name() != QLatin1String("ui"))
        reader.raiseError(QStringLiteral("The root element is not \"ui\"."));
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() || reader.name() != QLatin1String("widget"))
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        form.widgets.push_back(
            {attributes.value("name").toString(), attributes.value("class").toString()});
    }
    if (reader.hasError())
        form.error =
            QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString());
    return form;
}
