#ifndef CHECKEDITTEXT_H
#define CHECKEDITTEXT_H

#include <QString>

/// What the rows with both a check and a text field keep: the check, the text with its limit in characters, and how
/// the field behaves.
class CheckEditText
{
public:
    CheckEditText(bool checked, bool useEditText, const QString &text);

    void setChecked(bool const &checked) { m_checked = checked; }
    bool isChecked() { return m_checked; }
    /// While set, the list leaves the check alone and the screen decides.
    void setIsNoValueChange(bool noChange) { m_isNoValueChange = noChange; }
    bool isNoValueChange() { return m_isNoValueChange; }

    void setEditText(QString const &text);
    QString editText() { return m_editText; }
    /// 0 is no limit.
    void setMaxLength(int length);
    int getMaxLength() { return m_maxLength; }
    void setEchoPasswordMode(bool password) { m_echoPasswordMode = password; }
    bool echoPasswordMode() { return m_echoPasswordMode; }
    void setUseEditText(bool use) { m_useEditText = use; }
    bool useEditText() { return m_useEditText; }
    void setEditTextDisabled(bool disabled) { m_editTextDisabled = disabled; }
    bool editTextDisabled() { return m_editTextDisabled; }

protected:
    ~CheckEditText() = default;

    /// The value as it is shown: stars for a password.
    QString shownText() const;

private:
    bool m_checked;
    bool m_isNoValueChange = false;
    QString m_editText;
    bool m_echoPasswordMode = false;
    int m_maxLength = 0;
    bool m_useEditText;
    bool m_editTextDisabled = false;
};

#endif
