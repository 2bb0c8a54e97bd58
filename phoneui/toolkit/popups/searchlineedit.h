#ifndef SEARCHLINEEDIT_H
#define SEARCHLINEEDIT_H

#include <QRect>
#include <QWidget>

class QLineEdit;

/// The search box above a list: a drawn frame with a line edit inside that is there only while the box is used.
///
/// The line edit comes with the focus and goes with Down, which hands the focus on to the next widget of the screen
/// and emits `leaveFocus`. A screen that takes the focus away by itself leaves the line edit visible.
class SearchLineEdit : public QWidget
{
    Q_OBJECT

public:
    explicit SearchLineEdit(QWidget *parent);

    QLineEdit *lineEdit() { return m_lineEdit; }
    QString text();
    void setText(QString text);
    /// A search field shows the magnifying glass at its end; another uses that room for its text.
    void setSearchLineMode(bool on) { m_searchLineMode = on; }
    void setGeometry(int x, int y, int w, int h);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void textChanged(QString text);
    void enterFocus();
    void leaveFocus();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Where the line of text stands, with the line edit and without.
    QRect textRect() const;
    void paintGlass(QPainter *painter) const;
    void paintText(QPainter *painter) const;

    QLineEdit *m_lineEdit;
    QRect m_lineEditRect;
    bool m_searchLineMode = true;
};

#endif
