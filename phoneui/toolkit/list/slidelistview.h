#ifndef SLIDELISTVIEW_H
#define SLIDELISTVIEW_H

#include "listview.h"

#include <QEasingCurve>
#include <QRect>

class QPropertyAnimation;

/// A list that slides in from outside the screen when it is shown, and out when it is hidden or closed.
class SlideListView : public ListView
{
    Q_OBJECT

public:
    /// Where the list comes from.
    enum eSlideType { SlideNone = 0, SlideFromBottom = 1, SlideFromTop = 2, SlideFromLeft = 3, SlideFromRight = 4 };

    explicit SlideListView(QWidget *parent = nullptr);

    /// Where the list will stand. Until it is shown it waits off the screen.
    void setGeometry(QRect const &rect);
    void setGeometry(int x, int y, int w, int h);
    void setSlideType(SlideListView::eSlideType const &type);
    SlideListView::eSlideType getSlideType() const { return m_slideType; }
    /// The display, whose size is the way of a slide.
    void setScreenRect(QRect const &rect) { m_screenRect = rect; }
    QRect getScreenRect() const { return m_screenRect; }

    // Times (ms) and curves as they were last set; until then the slides have times and curves of their own.

    void setShowDuration(int duration);
    int getShowDuration() const { return m_showDuration; }
    void setHideDuration(int duration);
    int getHideDuration() const { return m_hideDuration; }
    void setShowAnimationType(QEasingCurve::Type const &type);
    QEasingCurve getShowAnimationType() const { return m_showEasing; }
    void setHideAnimationType(QEasingCurve::Type const &type);
    QEasingCurve getHideAnimationType() const { return m_hideEasing; }
    bool useAnimation() const { return m_useAnimation; }
    /// The list always slides, whatever it is told.
    void setUseAnimation(bool) { }

    /// False from the moment at which the list begins to leave.
    bool isVisible() const;

signals:
    void showFinished();
    void hideFinished();
    void closeFinished();

public slots:
    void show();
    void hide();
    void close();
    void hideAfterAnimation();
    void closeAfterAnimation();

private:
    using Slot = void (SlideListView::*)();

    QPoint slideOffset() const;
    void slideOut(const QRect &from, Slot after);

    QPropertyAnimation *m_showAnimation;
    QPropertyAnimation *m_hideAnimation;
    QRect m_startRect;
    QRect m_targetRect;
    QRect m_screenRect;
    eSlideType m_slideType = SlideFromBottom;
    int m_hideDuration = 100;
    int m_showDuration = 100;
    QEasingCurve::Type m_showEasing = QEasingCurve::Linear;
    QEasingCurve::Type m_hideEasing = QEasingCurve::Linear;
    bool m_useAnimation = true;
};

#endif
