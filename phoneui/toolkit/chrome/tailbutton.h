#ifndef TAILBUTTON_H
#define TAILBUTTON_H

#include <QPushButton>

/// One soft key of a Tail. Its text is a small command language: some texts draw a picture ("∨", "<-", "X", ">>",
/// any "erase"), and "MSG_" before a word draws the word all the same.
class TailButton : public QPushButton
{
    Q_OBJECT

public:
    /// Never takes the focus, so that it stays on the screen's list.
    explicit TailButton(QWidget *parent);

    float startPos() const { return m_startPos; }
    void setStartPos(float pos) { m_startPos = pos; }
    float endPos() const { return m_endPos; }
    void setEndPos(float pos) { m_endPos = pos; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    float m_startPos = 2.0F;
    float m_endPos = 2.0F;
};

#endif
