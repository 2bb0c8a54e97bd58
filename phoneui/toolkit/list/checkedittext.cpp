#include "checkedittext.h"

CheckEditText::CheckEditText(bool checked, bool useEditText, const QString &text)
    : m_checked(checked), m_editText(text), m_useEditText(useEditText)
{
}

void CheckEditText::setEditText(QString const &text)
{
    m_editText = m_maxLength != 0 ? text.left(m_maxLength) : text;
}

void CheckEditText::setMaxLength(int length)
{
    m_maxLength = length;
    setEditText(m_editText);
}

QString CheckEditText::shownText() const
{
    return m_echoPasswordMode ? QString(m_editText.size(), QLatin1Char('*')) : m_editText;
}
