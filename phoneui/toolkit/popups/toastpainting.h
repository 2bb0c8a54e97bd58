#ifndef TOASTPAINTING_H
#define TOASTPAINTING_H

#include <QPixmap>
#include <QString>

class QPainter;

/// How the two kinds of toast draw themselves: notices with an icon, waits with a picture that moves.
namespace ToastPainting {

struct Content
{
    QString message;
    QPixmap picture;
    int fontSize; ///< pixels
};

/// Where things stand on the panel, in pixels below its top.
struct PanelLayout
{
    int pictureTop;
    int textTop;
    int elideLines; ///< the text is cut at the width of that many lines
};

/// How far the box around the text is larger than the text, in pixels.
struct BoxLayout
{
    qreal extraTextHeight; ///< of the frame that the text is centred in
    qreal above; ///< from the box's top to the text
    qreal extraHeight;
    qreal minimumHeight;
    qreal pictureTop; ///< below the box's top
    qreal textDrop; ///< how far the text's frame begins lower than it was measured in
};

PanelLayout noticePanel(const QPixmap &icon, int fontSize, bool severalLines);
PanelLayout waitPanel(const QPixmap &picture);
BoxLayout noticeBox(const QPixmap &icon);
BoxLayout waitBox(const QPixmap &picture);

/// The panel across the screen; `narrow` for a screen that is not as wide as the display.
void drawPanel(QPainter *painter, const Content &content, bool narrow, const PanelLayout &layout);
/// The rounded box around the text, in a toast of that size.
void drawBox(QPainter *painter, const QSize &size, const Content &content, const BoxLayout &layout);

}

#endif
