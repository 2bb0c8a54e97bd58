#ifndef INPUTPOPUP_H
#define INPUTPOPUP_H

#include "messagebox.h"

#include <QTimer>

class InputPopupLineEdit;

/// A box that asks for one short text. Besides the keys of a MessageBox it knows a long press of 500 ms: it takes
/// the highlight off the buttons, and on the left soft key it empties the field. The release after it acts all the
/// same.
class InputPopup : public MessageBox
{
    Q_OBJECT

public:
    explicit InputPopup(QWidget *parent);

    /// In characters: who has to keep to a number of bytes counts them after `exec()`.
    void setMaxLength(int length);
    /// The input mode in which the popup opens, an IMEStatus.
    void setIMEType(int type) { m_imeType = type; }
    void setEchoPassword(bool password);
    void setEditText(const QString &text);
    QString editText();
    void setCursorToTextEnd();
    /// A mark that the popup keeps for its owner.
    void setProgramKeyEnable(bool enable) { m_programKeyEnable = enable; }

public slots:
    void deselectLineEdit();
    void longPressTimeout();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    InputPopupLineEdit *m_lineEdit;
    bool m_keyHeld = false;
    bool m_longPressFlag = false;
    int m_pressedKey = 0; ///< -1 after its long press
    QTimer m_longPressTimer;
    int m_imeType;
    bool m_programKeyEnable = false;
};

#endif
