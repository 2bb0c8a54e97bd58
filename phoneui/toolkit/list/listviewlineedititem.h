#ifndef LISTVIEWLINEEDITITEM_H
#define LISTVIEWLINEEDITITEM_H

#include "listviewitem.h"

/// A title and a text field. The list floats its line edit over the field of the selected row; the row keeps the
/// text and cuts it to its limits.
class ListViewLineEditItem : public ListViewItem
{
public:
    ListViewLineEditItem(QString const &title, QString const &text);
    ~ListViewLineEditItem() override;

    int type() override;
    void paint(QPainter *painter, QRect &rect) override;
    int editTextLeftMargin() override;
    void setEditTextLeftMargin(int margin) override;

    void setEditText(QString const &text);
    QString editText() { return m_editText; }
    void setEchoPasswordMode(bool password) { m_echoPasswordMode = password; }
    bool echoPasswordMode() { return m_echoPasswordMode; }

    /// The limit in characters; 0 is no limit. A smaller limit takes the byte limit down with it.
    void setMaxLength(int length);
    int getMaxLength() { return m_maxLength; }
    /// The limit in bytes as the phone stores text, where a character beyond Latin-1 counts as two; 0 is no limit.
    /// It is never the larger of the two limits.
    void setMaxBytes(int bytes);
    int getMaxBytes() { return m_maxBytes; }

    void setEditTextDisabled(bool disabled) { m_editTextDisabled = disabled; }
    bool editTextDisabled() { return m_editTextDisabled; }
    void setIPValidate(bool validate) { m_ipValidate = validate; }
    bool isIPValidate() { return m_ipValidate; }
    void setSipPortValidate(bool validate) { m_sipPortValidate = validate; }
    bool isSipPortValidate() { return m_sipPortValidate; }
    QColor labelColor() const { return m_labelColor; }
    void setLabelColor(QColor const &color) { m_labelColor = color; }

protected:
    /// The value as it is shown: stars for a password.
    QString shownText() const;
    /// The whole look of the row, with the field where the line edit stands. Without a valid colour the title has
    /// that of the row.
    void paintTitleAndField(QPainter *painter, const QRect &rect, const QRect &edit, const QColor &titleColor);

private:
    QString m_editText;
    int m_editTextLeftMargin = 0;
    bool m_echoPasswordMode = false;
    int m_maxLength = 0;
    int m_maxBytes = 0;
    bool m_editTextDisabled = false;
    bool m_ipValidate = false;
    bool m_sipPortValidate = false;
    QColor m_labelColor;
};

#endif
