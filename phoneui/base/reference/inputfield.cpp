#include "inputfield.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTextCharFormat>

bool InputField::takesText(QObject *object)
{
    // A line edit that is read-only takes no input method.
    return object && object->inherits("QLineEdit") && InputField(object).query(Qt::ImEnabled).toBool();
}

QVariant InputField::query(Qt::InputMethodQuery query) const
{
    QInputMethodQueryEvent event(query);
    QCoreApplication::sendEvent(m_edit, &event);
    return event.value(query);
}

bool InputField::hasFocus() const
{
    return is(QGuiApplication::focusObject());
}

InputField::Place InputField::place() const
{
    if (!m_edit)
        return Place();
    return {query(Qt::ImSurroundingText).toString(), query(Qt::ImCursorPosition).toInt(),
            query(Qt::ImAnchorPosition).toInt()};
}

int InputField::room() const
{
    const Place at = place();
    return query(Qt::ImMaximumTextLength).toInt() - at.text.size() + qAbs(at.cursor - at.anchor);
}

bool InputField::isMasked() const
{
    return m_edit && !m_edit->property("inputMask").toString().isEmpty();
}

void InputField::write(const QString &finished, int replaced, const QString &pending) const
{
    if (!m_edit)
        return;
    QList<QInputMethodEvent::Attribute> attributes;
    if (!pending.isEmpty()) {
        QTextCharFormat format;
        format.setFontUnderline(true);
        attributes.append({QInputMethodEvent::TextFormat, 0, pending.size(), format});
    }
    QInputMethodEvent event(pending, attributes);
    event.setCommitString(finished, -replaced, replaced);
    QCoreApplication::sendEvent(m_edit, &event);
}
