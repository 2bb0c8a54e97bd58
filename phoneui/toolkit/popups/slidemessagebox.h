#ifndef SLIDEMESSAGEBOX_H
#define SLIDEMESSAGEBOX_H

#include "messageboxbase.h"

class QPropertyAnimation;

/// A box that can rise from below and dim the screen behind it. Nothing turns the slide on, so that it comes and
/// goes at once as any other.
class SlideMessageBox : public MessageBoxBase
{
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)

public:
    explicit SlideMessageBox(QWidget *parent);

    /// What dims the screen; not the base's colour.
    QColor getBackgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color);

public slots:
    void show();
    void showAfterAnimation();
    void showAnimationFinished();
    void hide();
    void hideAfterAnimation();
    void close();
    void closeAfterAnimation();
    void reject() override;
    void rejectAfterAnimation();
    void accept() override;
    void acceptAfterAnimation();
    /// Also true while the box slides.
    bool isVisible();
    int exec() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    using Slot = void (SlideMessageBox::*)();

    void beginToGo();
    void slideOut(Slot after);
    void endSlide(Slot after);

    QPropertyAnimation *m_showAnimation;
    QPropertyAnimation *m_hideAnimation;
    QPropertyAnimation *m_backgroundAnimation;
    bool m_useAnimation = false;
    bool m_animating = false;
    QColor m_backgroundColor = QColor(0, 0, 0, 0);
};

#endif
