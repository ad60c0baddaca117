#include "tests/hands/rules/EditUnderWay.h"

#include <QApplication>

#include "tests/hands/witness/PageReader.h"

void CEditUnderWay::Before()
{
    auto *editor = qobject_cast<QAbstractSpinBox *>(QApplication::focusWidget());
    if (editor != m_editor) {
        m_isUnderWay = false;
        m_values.clear();
    }
    m_editor = editor;
    if (!editor)
        return;
    m_text = editor->text();
    if (!m_isUnderWay)
        m_values.append(ShownValue(editor));
}

QString CEditUnderWay::End()
{
    if (!m_isUnderWay || !m_editor)
        return {};
    m_isUnderWay = false;
    bool isNumber = false;
    m_text.toDouble(&isNumber);
    if (isNumber || m_values.contains(ShownValue(m_editor)))
        return {};
    return QString("%1: \"%2\" became %3, not %4 as before the edit")
        .arg(NameOf(m_editor), m_text, ShownValue(m_editor), m_values.join(" or "));
}

QString CEditUnderWay::After(bool isTyping)
{
    if (!m_editor)
        m_isUnderWay = false;
    if (QApplication::focusWidget() != m_editor)
        return End();
    if (!m_editor)
        return {};
    if (!isTyping)
        m_isUnderWay = false;
    else if (m_editor->text() != m_text)
        m_isUnderWay = true;
    return {};
}
