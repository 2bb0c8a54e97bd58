#include "selectpopupbase.h"

#include "imagebutton.h"
#include "listview.h"

#include "core.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QPropertyAnimation>

namespace {

constexpr QRect corners(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

constexpr QRect PopupPlace = corners(190, 0, 383, 160);
constexpr QRect ListPlace = corners(5, 8, 187, 129);
constexpr QRect LeftButtonPlace = corners(7, 133, 93, 157);
constexpr QRect RightButtonPlace = corners(100, 133, 186, 157);
constexpr QPoint BeyondDisplay(384, 0);

constexpr int ShowTime = 100, HideTime = 10, AlphaTime = 5; // ms
constexpr float AlphaOpaque = 90;
constexpr int DisplayHeight = 160;
constexpr int SlideBottom = 157; // of the plate in its first place

QPropertyAnimation *makeAnimation(QObject *popup, const char *property, int time)
{
    auto *animation = new QPropertyAnimation(popup, property, popup);
    animation->setDuration(time);
    return animation;
}

void setRange(QPropertyAnimation *animation, const QVariant &from, const QVariant &to)
{
    animation->setStartValue(from);
    animation->setEndValue(to);
}

}

SelectPopupBase::SelectPopupBase(QWidget *parent, int type)
    : QDialog(parent, Qt::FramelessWindowHint), m_popupType(type),
      m_showAnimation(makeAnimation(this, "geometry", ShowTime)),
      m_hideAnimation(makeAnimation(this, "geometry", HideTime)),
      m_alphaAnimation(makeAnimation(this, "m_AlphaValue", AlphaTime))
{
    static constexpr int FontPointSize = 13;
    setModal(true);
    QDialog::setGeometry(PopupPlace);
    setAttribute(Qt::WA_TranslucentBackground);
    QFont font = this->font();
    font.setPointSize(FontPointSize);
    setFont(font);
    m_contentsTitleFont = font;

    m_nextButton = makeButton(LeftButtonPlace, QString::fromUtf8("∨"), &SelectPopupBase::nextButtonClicked);
    m_cancelButton = makeButton(RightButtonPlace, QString(), &SelectPopupBase::reject);
    m_okButton = makeButton(LeftButtonPlace, QString(), &SelectPopupBase::onClickOkButton);
    m_okButton->hide();

    const int left = PopupPlace.left(), right = PopupPlace.right();
    const QRect place = corners(left, 0, right, SlideBottom);
    const QRect below = corners(left, DisplayHeight, right, DisplayHeight + SlideBottom);
    m_showAnimation->setEasingCurve(QEasingCurve::OutQuad);
    m_hideAnimation->setEasingCurve(QEasingCurve::InQuad);
    setRange(m_showAnimation, below, place);
    setRange(m_hideAnimation, place, below);
    setRange(m_alphaAnimation, 0.f, AlphaOpaque);
    connect(theCore, &Core::signalBroadcast, this, &SelectPopupBase::signalReciever);
}

ImageButton *SelectPopupBase::makeButton(const QRect &rect, const QString &text, Slot onClick)
{
    auto *button = new ImageButton(this);
    button->setGeometry(rect);
    button->setLeftGap(0);
    button->setRightGap(0);
    button->setText(text);
    connect(button, &ImageButton::clicked, this, onClick);
    return button;
}

void SelectPopupBase::setUpList(ListView *list)
{
    m_listView = list;
    list->setAttribute(Qt::WA_TranslucentBackground);
    list->setGeometry(ListPlace);
    list->setStartFuncKey(Qt::Key_F6);
    connect(list, &ListView::clicked, this, &SelectPopupBase::clickedListView);
}

void SelectPopupBase::setGeometry(const QRect &rect)
{
    QDialog::setGeometry(rect);
    // The slides begin and end at the left edge, and come in from below the display whatever the height.
    const int right = rect.width() - 1, height = rect.height();
    setRange(m_showAnimation, corners(0, DisplayHeight, right, 2 * DisplayHeight - 1),
             corners(0, 0, right, DisplayHeight - 1));
    setRange(m_hideAnimation, corners(0, 0, right, height - 1),
             corners(0, height, right, height + DisplayHeight - 1));
}

void SelectPopupBase::setGeometry(int x, int y, int width, int height)
{
    setGeometry(QRect(x, y, width, height));
}

void SelectPopupBase::setStartFuncKey(int key)
{
    m_listView->setStartFuncKey(key);
}

void SelectPopupBase::setBackgroundImage(const QPixmap &image)
{
    m_backgroundImage = image;
    update();
}

void SelectPopupBase::clearBackgroundImage()
{
    setBackgroundImage(QPixmap());
}

void SelectPopupBase::setAlphaValue(float alpha)
{
    m_AlphaValue = alpha;
    update();
}

void SelectPopupBase::setContentsTitle(const QString &title)
{
    m_contentsTitle = title;
    update();
}

void SelectPopupBase::setContentsTitlePos(int x, int y)
{
    m_contentsTitleX = x;
    m_contentsTitleY = y;
    update();
}

void SelectPopupBase::setContentsTitleFont(QFont font)
{
    m_contentsTitleFont = font;
    update();
}

void SelectPopupBase::signalReciever(const QString &name, const QByteArray &)
{
    if (name == QLatin1String("closeSelectPopup()"))
        reject();
}

void SelectPopupBase::clickedListView(int idx)
{
    // A slot of the list may have ended the popup before the list came to tell of the click.
    if (m_inExec && !QWidget::isVisible())
        return;
    m_selectedIdx = idx;
    if (idx == -1)
        reject();
    else if (m_multipleCheck)
        return;
    else if (idx < m_listView->itemSize())
        accept();
    else
        reject();
}

void SelectPopupBase::nextButtonClicked()
{
    if (m_multipleCheck)
        accept();
    else
        turnPage();
}

void SelectPopupBase::turnPage()
{
    m_listView->nextPage();
}

void SelectPopupBase::onClickOkButton()
{
    if (m_multipleCheck)
        accept();
}

void SelectPopupBase::focusInEvent(QFocusEvent *)
{
    m_listView->setFocus(Qt::OtherFocusReason);
}

SelectPopupBase::Button SelectPopupBase::buttonOfKey(int key) const
{
    // By default the next and the OK button share a key and a place, and one of them shows.
    if (key == m_nextKey && m_nextButton->isVisible())
        return Button::Next;
    if (key == m_okKey && m_okButton->isVisible())
        return Button::Ok;
    return key == m_cancelKey || key == Qt::Key_Escape ? Button::Cancel : Button::None;
}

ImageButton *SelectPopupBase::button(Button which) const
{
    switch (which) {
    case Button::Next: return m_nextButton;
    case Button::Ok: return m_okButton;
    case Button::Cancel: return m_cancelButton;
    case Button::None: break;
    }
    return nullptr;
}

void SelectPopupBase::keyPressEvent(QKeyEvent *event)
{
    m_keyPressed = true;
    event->accept();
    if (ImageButton *pressed = button(buttonOfKey(event->key())))
        pressed->setHover(true);
}

void SelectPopupBase::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    if (!m_keyPressed)
        return;
    const Button which = buttonOfKey(event->key());
    if (which == Button::None)
        return;

    const QPointer<SelectPopupBase> alive(this);
    button(which)->setHover(false);
    if (!alive)
        return;
    if (which == Button::Next)
        nextButtonClicked();
    else if (which == Button::Ok)
        accept();
    else
        clickedListView(-1);
}

int SelectPopupBase::exec()
{
    const QPointer<SelectPopupBase> alive(this);
    show();
    if (!alive)
        return Rejected;
    m_inExec = true;
    const int result = QDialog::exec();
    if (alive)
        m_inExec = false;
    return result;
}

void SelectPopupBase::show()
{
    const QPointer<SelectPopupBase> alive(this);
    setVisible(true);
    if (!alive)
        return;
    m_animating = false;
    if (m_useAnimation) {
        connect(m_showAnimation, &QPropertyAnimation::finished, this, &SelectPopupBase::showAfterAnimation);
        m_showAnimation->start();
    }
}

void SelectPopupBase::showAfterAnimation()
{
    m_animating = false;
    disconnect(m_showAnimation, &QPropertyAnimation::finished, this, &SelectPopupBase::showAfterAnimation);
}

bool SelectPopupBase::isVisible()
{
    return (m_useAnimation && m_animating) || QWidget::isVisible();
}

/// Every way to end takes the slide or skips it. What the slide would leave to its end is `plain`.
void SelectPopupBase::leave(Slot plain, Slot afterAnimation)
{
    if (m_useFastClose) {
        const QPointer<SelectPopupBase> alive(this);
        (this->*afterAnimation)();
        if (!alive)
            return;
        move(BeyondDisplay);
        (this->*plain)();
        return;
    }
    m_animating = true;
    if (m_useAnimation) {
        connect(m_hideAnimation, &QPropertyAnimation::finished, this, afterAnimation);
        m_hideAnimation->start();
    } else {
        (this->*plain)();
    }
}

void SelectPopupBase::finishLeaving(Slot plain, Slot afterAnimation)
{
    m_animating = false;
    disconnect(m_hideAnimation, &QPropertyAnimation::finished, this, afterAnimation);
    (this->*plain)();
}

void SelectPopupBase::plainHide()
{
    setVisible(false);
}

void SelectPopupBase::plainClose()
{
    QWidget::close();
}

void SelectPopupBase::plainReject()
{
    QDialog::reject();
}

void SelectPopupBase::plainAccept()
{
    QDialog::accept();
}

void SelectPopupBase::hide()
{
    leave(&SelectPopupBase::plainHide, &SelectPopupBase::hideAfterAnimation);
}

void SelectPopupBase::hideAfterAnimation()
{
    finishLeaving(&SelectPopupBase::plainHide, &SelectPopupBase::hideAfterAnimation);
}

void SelectPopupBase::close()
{
    leave(&SelectPopupBase::plainClose, &SelectPopupBase::closeAfterAnimation);
}

void SelectPopupBase::closeAfterAnimation()
{
    const QPointer<SelectPopupBase> alive(this);
    finishLeaving(&SelectPopupBase::plainClose, &SelectPopupBase::closeAfterAnimation);
    // The close rejects, and that sets it once more.
    if (alive)
        m_animating = false;
}

void SelectPopupBase::reject()
{
    leave(&SelectPopupBase::plainReject, &SelectPopupBase::rejectAfterAnimation);
}

void SelectPopupBase::rejectAfterAnimation()
{
    finishLeaving(&SelectPopupBase::plainReject, &SelectPopupBase::rejectAfterAnimation);
}

void SelectPopupBase::accept()
{
    leave(&SelectPopupBase::plainAccept, &SelectPopupBase::acceptAfterAnimation);
}

void SelectPopupBase::acceptAfterAnimation()
{
    finishLeaving(&SelectPopupBase::plainAccept, &SelectPopupBase::acceptAfterAnimation);
}

void SelectPopupBase::paintEvent(QPaintEvent *)
{
    static constexpr int PlateTop = 2;
    QPainter painter(this);
    const auto picture
        = [](const char *part) { return QPixmap(QString(":ui/images/widget/popup_01_%1.png").arg(part)); };
    const QPixmap left = picture("left"), middle = picture("mid"), right = picture("right");
    const int rightEdge = width() - 1 - right.width() - 1;
    painter.drawPixmap(0, PlateTop, left);
    painter.drawTiledPixmap(left.width(), PlateTop, rightEdge - left.width(), middle.height(), middle);
    painter.drawPixmap(rightEdge, PlateTop, right);

    if (!m_contentsTitle.isEmpty())
        paintTitle(&painter, left.width(), rightEdge - 1);
}

/// The title's letters are white, and stand on a band across the white plate.
void SelectPopupBase::paintTitle(QPainter *painter, int left, int right)
{
    static constexpr int Drop = 32, BandMargin = 1;
    painter->setFont(m_contentsTitleFont);
    const QFontMetrics metrics = painter->fontMetrics();
    const int baseline = m_contentsTitleY + Drop;
    painter->fillRect(
        corners(left, baseline - metrics.ascent() - BandMargin, right, baseline + metrics.descent() + BandMargin),
        Qt::black);
    painter->setPen(Qt::white);
    painter->drawText(m_contentsTitleX, baseline, m_contentsTitle);
}
