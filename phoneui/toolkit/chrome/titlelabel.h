#ifndef TITLELABEL_H
#define TITLELABEL_H

#include <QColor>
#include <QLabel>
#include <QStringList>

/// The title on the status bar: "Contacts | All (1/300)" is drawn as a breadcrumb with the number on a pill.
class TitleLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TitleLabel(QWidget *parent = nullptr);

    /// Keeps the title as it is and hands it on with blanks behind it, which keep the label's width steady.
    void setText(const QString &text);
    /// The title as it was set.
    QString title() const { return m_title; }

    QColor titleColor() const { return m_color; }
    void setTitleColor(const QColor &color);

    /// One line, without measuring the words: the bar gives the title what its other parts leave.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int drawPiece(QPainter *painter, int x, int right, const QString &text) const;
    void drawPill(QPainter *painter, int x, const QString &number) const;
    QString pillText(QString *rest) const;

    QString m_title;
    QStringList m_pieces; ///< the title split at its bars
    QColor m_color;
};

#endif
