#include "inputpopup.h"

#include "imagebutton.h"
#include "inputpopuplineedit.h"

#include "core.h"

#include <QKeyEvent>

#include <utility>

namespace {

constexpr int FieldLeft = 10, FieldTop = 75, FieldFromRight = 11, FieldBottom = 106;
constexpr int LongPressTime = 500; // ms
constexpr int DeselectTime = 1; // ms: a dialog selects the text of its focused field while it appears

}

InputPopup::InputPopup(QWidget *parent)
    : MessageBox(parent), m_lineEdit(new InputPopupLineEdit(this)), m_imeType(IMEDigit)
{
    m_lineEdit->setGeometry(QRect(QPoint(FieldLeft, FieldTop), QPoint(width() - FieldFromRight, FieldBottom)));
    m_lineEdit->setStyleSheet("QLineEdit { lineedit-password-character: 42; background-color: transparent; "
                              "color: black; border: none;}");
    connect(&m_longPressTimer, &QTimer::timeout, this, &InputPopup::longPressTimeout);
}

void InputPopup::setMaxLength(int length)
{
    m_lineEdit->setMaxLength(length);
}

void InputPopup::setEchoPassword(bool password)
{
    m_lineEdit->setEchoMode(password ? QLineEdit::Password : QLineEdit::Normal);
}

void InputPopup::setEditText(const QString &text)
{
    m_lineEdit->setText(text);
}

QString InputPopup::editText()
{
    return m_lineEdit->text();
}

void InputPopup::setCursorToTextEnd()
{
    m_lineEdit->setCursorPosition(m_lineEdit->text().length());
}

void InputPopup::deselectLineEdit()
{
    m_lineEdit->deselect();
}

void InputPopup::keyPressEvent(QKeyEvent *event)
{
    m_keyHeld = true;
    m_pressedKey = event->key();
    m_longPressTimer.start(LongPressTime);
    MessageBoxBase::keyPressEvent(event);
}

void InputPopup::longPressTimeout()
{
    m_longPressTimer.stop();
    m_longPressFlag = true;
    const int key = std::exchange(m_pressedKey, -1);
    if (key == Qt::Key_Context2)
        m_lineEdit->clear();
    for (ImageButton *button : {additionalButton(), okButton(), cancelButton()}) {
        if (button->isVisible() && !setButtonHover(button, false))
            return;
    }
}

void InputPopup::keyReleaseEvent(QKeyEvent *event)
{
    if (!m_keyHeld)
        return;
    m_keyHeld = false;
    m_longPressTimer.stop();
    m_longPressFlag = false;
    MessageBoxBase::keyReleaseEvent(event);
}

void InputPopup::showEvent(QShowEvent *)
{
    m_lineEdit->setFocus(Qt::OtherFocusReason);
    theCore->setVisibleMenu(true);
    theCore->setUseF13ToDel(false);
    theCore->setIMEStatus(IMEStatus(m_imeType), false);
    QTimer::singleShot(DeselectTime, this, &InputPopup::deselectLineEdit);
}

void InputPopup::hideEvent(QHideEvent *)
{
    m_longPressTimer.stop();
    cancelTimer();
    theCore->setVisibleMenu(false);
    theCore->setUseF13ToDel(true);
}
