#include "searchlineedit.h"

#include "editfieldgeometry.h"
#include "rowpainting.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>

namespace {

const char InputBox[] = ":ui/images/widget/inputbox";

// The line edit inside the box.
constexpr QPoint EditTopLeft(8, 5);
constexpr int EditFromRight = 34, EditFromBottom = 7;

// The pictures of the box, which stands at the widget's top at its own height.
constexpr int BoxHeight = 30, Outline = 2;

}

SearchLineEdit::SearchLineEdit(QWidget *parent) : QWidget(parent), m_lineEdit(new QLineEdit(this))
{
    setObjectName("SearchLineEdit");
    setFocusPolicy(Qt::StrongFocus);
    const QFont phoneFont("1V_02_GO_UI", 20);
    setFont(phoneFont);

    m_lineEdit->setObjectName("SearchLineEdit::m_lineEdit");
    m_lineEdit->setFont(phoneFont);
    m_lineEdit->setStyleSheet("QLineEdit {background-color: white; color: black; border: none; }");
    m_lineEdit->hide();
    m_lineEdit->installEventFilter(this);
    connect(m_lineEdit, &QLineEdit::textChanged, this, QOverload<>::of(&SearchLineEdit::update));
    connect(m_lineEdit, &QLineEdit::textChanged, this, &SearchLineEdit::textChanged);
}

QString SearchLineEdit::text()
{
    return m_lineEdit->text();
}

void SearchLineEdit::setText(QString text)
{
    m_lineEdit->setText(text);
}

void SearchLineEdit::setGeometry(int x, int y, int w, int h)
{
    QWidget::setGeometry(x, y, w, h);
    m_lineEditRect = QRect(EditTopLeft, QPoint(width() - 1 - EditFromRight, height() - 1 - EditFromBottom));
    m_lineEdit->setGeometry(m_lineEditRect);
    const QRect line = textRect();
    m_lineEdit->setTextMargins(0, line.top() - m_lineEditRect.top(), 0, m_lineEditRect.bottom() - line.bottom());
}

void SearchLineEdit::focusInEvent(QFocusEvent *)
{
    m_lineEdit->setVisible(true);
    m_lineEdit->setFocus(Qt::OtherFocusReason);
}

void SearchLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Down) {
        event->ignore();
        return;
    }
    event->accept();
    const QPointer<SearchLineEdit> alive(this);
    m_lineEdit->hide();
    emit leaveFocus();
    if (alive)
        update();
}

bool SearchLineEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_lineEdit && event->type() == QEvent::FocusIn) {
        update();
        emit enterFocus();
    } else if (watched == m_lineEdit && event->type() == QEvent::FocusOut) {
        update();
    }
    return QWidget::eventFilter(watched, event);
}

void SearchLineEdit::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    RowPainting::drawSlices(&painter, rect(), InputBox, m_lineEdit->hasFocus() ? "_sel" : QString());
    if (m_searchLineMode)
        paintGlass(&painter);
    if (m_lineEdit->isHidden())
        paintText(&painter);
}

void SearchLineEdit::paintGlass(QPainter *painter) const
{
    const QPixmap glass(QString(InputBox) + "_search.png");
    const QRect end(QPoint(m_lineEditRect.right() + 1, 0), QPoint(width() - 1 - Outline, BoxHeight - 1));
    const int left = end.left() + (end.width() - glass.width()) / 2;
    RowPainting::drawCentred(painter, end, left, glass);
}

QRect SearchLineEdit::textRect() const
{
    // A line of the font is higher than the usual field. Its lowest pixel is free; the rest of what is too much
    // goes above, where only accents of capitals reach.
    static constexpr int FreeBelow = 1;

    QRect line = EditFieldGeometry::textOf(m_lineEditRect, fontMetrics().height());
    if (line.height() > m_lineEditRect.height())
        line.moveBottom(m_lineEditRect.bottom() + FreeBelow);
    return line;
}

void SearchLineEdit::paintText(QPainter *painter) const
{
    QRect line = textRect();
    if (!m_searchLineMode)
        line.setRight(width() - 1 - line.left());
    painter->setPen(Qt::black);
    RowPainting::drawElided(painter, line, Qt::AlignLeft | Qt::AlignTop, m_lineEdit->displayText());
}
