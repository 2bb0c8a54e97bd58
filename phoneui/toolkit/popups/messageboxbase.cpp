#include "messageboxbase.h"

#include "imagebutton.h"
#include "messageboxbackground.h"
#include "softkeypainting.h"

#include "core.h"
#include "keyinjection.h"

#include <QDebug>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QTimer>

namespace {

constexpr QRect BoxGeometry(0, 0, 384, 160);
constexpr QRect PanelGeometry(2, 27, 380, 133);

// The places on the panel.
constexpr QRect TitleIconGeometry(13, 0, 354, 32);
constexpr int TitleGap = 21, TitleWidth = 354;
constexpr QRect LoneTextGeometry(10, 32, 360, 74);
constexpr QRect UpperTextGeometry(10, 37, 360, 37);
constexpr QRect LowerTextGeometry(10, 59, 360, 37);
constexpr QRect AlarmIconGeometry(150, 60, 20, 25);
constexpr int AdditionalLeft = 90, OkLeft = 185, CancelLeft = 280;
constexpr int ButtonTop = 106;
constexpr QSize ButtonSize(95, 27);

constexpr int TextPointSize = SoftKeyPainting::PointSize;
constexpr int TitleHeight = 28;
constexpr Qt::Alignment Middle = Qt::AlignHCenter | Qt::AlignVCenter;

/// Chooses the label's font for its text: a single line that is too wide is written one step smaller.
void fitFont(QLabel *label)
{
    QFont font = label->font();
    font.setPointSize(TextPointSize);
    label->setFont(label->wordWrap() ? font : SoftKeyPainting::fittedFont(font, label->text(), label->width()));
}

/// Gives the label a place in which its text may take several lines, or one line alone.
void place(QLabel *label, const QRect &geometry, Qt::Alignment alignment, bool severalLines)
{
    label->setGeometry(geometry);
    label->setAlignment(alignment);
    label->setWordWrap(severalLines);
    fitFont(label);
}

}

MessageBoxBase::MessageBoxBase(QWidget *parent) : QDialog(parent, Qt::FramelessWindowHint)
{
    setObjectName("MessageBoxBase");
    setFocusPolicy(Qt::StrongFocus);
    setGeometry(BoxGeometry);
    setAttribute(Qt::WA_TranslucentBackground);

    m_background = new MessageBoxBackground(this);
    m_background->setGeometry(PanelGeometry);
    m_background->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_background->setFocusPolicy(Qt::NoFocus);

    buildTitle();
    buildTexts();
    buildButtons();

    m_alarmIconLabel = new QLabel(m_background);
    m_alarmIconLabel->setGeometry(AlarmIconGeometry);
    m_alarmIconLabel->setPixmap(QPixmap(":ui/images/alarm_icon_02.png"));
    m_alarmIconLabel->hide();

    QFont textFont;
    textFont.setPointSize(TextPointSize);
    for (QLabel *label : {m_titleLabel, m_messageLabel, m_subMessageLabel})
        label->setFont(textFont);
    m_background->setTitleHeight(TitleHeight);
    // The keys are the box's own from the start.
    setFocus(Qt::OtherFocusReason);
}

QLabel *MessageBoxBase::addLabel(const QRect &geometry, const char *color, Qt::Alignment alignment)
{
    auto *label = new QLabel(m_background);
    label->setGeometry(geometry);
    label->setStyleSheet(QString("QLabel { color: %1; }").arg(QLatin1String(color)));
    label->setAlignment(alignment);
    // Texts hold names that people typed.
    label->setTextFormat(Qt::PlainText);
    return label;
}

void MessageBoxBase::buildTitle()
{
    const QPixmap icon(":ui/images/widget/popup_i.png");
    m_titleIconLabel = addLabel(TitleIconGeometry, "white", Qt::AlignLeft | Qt::AlignVCenter);
    m_titleIconLabel->setAttribute(Qt::WA_TranslucentBackground);
    m_titleIconLabel->setPixmap(icon);

    const QRect beside(icon.width() + TitleGap, TitleIconGeometry.top(), TitleWidth, TitleIconGeometry.height());
    m_titleLabel = addLabel(beside, "white", Qt::AlignLeft | Qt::AlignVCenter);
    m_titleLabel->setAttribute(Qt::WA_TranslucentBackground);
}

void MessageBoxBase::buildTexts()
{
    m_messageLabel = addLabel(UpperTextGeometry, "black", Middle);
    m_subMessageLabel = addLabel(LowerTextGeometry, "black", Qt::AlignHCenter | Qt::AlignBottom);
}

ImageButton *MessageBoxBase::addButton(int left)
{
    auto *button = new ImageButton(m_background);
    button->setGeometry(QRect(QPoint(left, ButtonTop), ButtonSize));
    // The focus stays with the box, or with a text field in it: the keys tell which of the buttons is meant.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

void MessageBoxBase::buildButtons()
{
    m_additionalButton = addButton(AdditionalLeft);
    m_additionalButton->hide();
    m_okButton = addButton(OkLeft);
    m_cancelButton = addButton(CancelLeft);

    connect(m_additionalButton, &ImageButton::clicked, this, &MessageBoxBase::accept);
    connect(m_okButton, &ImageButton::clicked, this, &MessageBoxBase::accept);
    connect(m_okButton, &ImageButton::clicked, this, &MessageBoxBase::cancelTimer);
    connect(m_cancelButton, &ImageButton::clicked, this, &MessageBoxBase::reject);
    connect(m_cancelButton, &ImageButton::clicked, this, &MessageBoxBase::cancelTimer);
}

void MessageBoxBase::setTitle(const QString &title)
{
    m_titleLabel->setText(title);
}

QString MessageBoxBase::getTitle()
{
    return m_titleLabel->text();
}

void MessageBoxBase::setMessage(const QString &text)
{
    m_messageLabel->setText(text);
    if (m_subMessageLabel->text().isEmpty())
        place(m_messageLabel, LoneTextGeometry, Middle, true);
    else
        fitFont(m_messageLabel);
}

void MessageBoxBase::setSubMessage(const QString &text)
{
    m_subMessageLabel->setText(text);
    if (m_messageLabel->text().isEmpty()) {
        place(m_subMessageLabel, LoneTextGeometry, Middle, true);
        return;
    }
    place(m_messageLabel, UpperTextGeometry, m_messageLabel->alignment(), false);
    place(m_subMessageLabel, LowerTextGeometry, Qt::AlignHCenter | Qt::AlignBottom, false);
}

void MessageBoxBase::setMessageAlignment(QFlags<Qt::AlignmentFlag> alignment)
{
    m_messageLabel->setAlignment(alignment);
}

void MessageBoxBase::setMessageMove()
{
    static constexpr QPoint TopLeft(15, 40);
    static constexpr int Bottom = 99;
    m_messageLabel->setGeometry(QRect(TopLeft, QPoint(width() - 1, Bottom)));
}

void MessageBoxBase::displayAdditionalButton(bool display)
{
    if (display)
        m_additionalButton->show();
}

void MessageBoxBase::showAlarmMessage()
{
    static constexpr int TextMargin = 10, IconLeft = 5, IconTop = 58, TextLeft = 35, TextTop = 40, TextBottom = 99;
    static constexpr double WidestShare = 0.9;

    // The box's own font measures, not the label's.
    const QFontMetrics metrics(font());
    int textWidth = metrics.horizontalAdvance(m_messageLabel->text()) + TextMargin;
    if (textWidth > WidestShare * width())
        textWidth = int(WidestShare * width());
    m_messageLabel->setText(metrics.elidedText(m_messageLabel->text(), Qt::ElideRight, textWidth));

    const int margin = (width() - textWidth) / 2;
    const int left = margin + TextLeft;
    m_alarmIconLabel->move(margin + IconLeft, IconTop);
    m_messageLabel->setGeometry(QRect(QPoint(left, TextTop), QPoint(left + textWidth - 1, TextBottom)));
    m_alarmIconLabel->show();
    repaint();
}

void MessageBoxBase::startQuitTimer(int milliseconds)
{
    cancelTimer();
    m_quitTimer = new QTimer(this);
    m_quitTimer->setSingleShot(true);
    connect(m_quitTimer, &QTimer::timeout, this, &MessageBoxBase::quitAlarmSound);
    m_quitTimer->start(milliseconds);
}

void MessageBoxBase::quitAlarmSound()
{
    emit alarmTimeout();
}

void MessageBoxBase::cancelTimer()
{
    delete m_quitTimer;
    m_quitTimer = nullptr;
}

void MessageBoxBase::endAlarm()
{
    theCore->setAlarm(false);
    cancelTimer();
}

bool MessageBoxBase::setButtonHover(ImageButton *button, bool hover)
{
    const QPointer<MessageBoxBase> alive(this);
    button->setHover(hover);
    if (!alive)
        return false;
    button->repaint();
    return true;
}

/// The visible button that the key drives.
ImageButton *MessageBoxBase::buttonOfKey(int key) const
{
    ImageButton *button = nullptr;
    switch (key) {
    case Qt::Key_Context2: button = m_additionalButton; break;
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Context3: button = m_okButton; break;
    case Qt::Key_Context4:
    case Qt::Key_Escape: button = m_cancelButton; break;
    default: break;
    }
    return button && button->isVisible() ? button : nullptr;
}

void MessageBoxBase::keyPressEvent(QKeyEvent *event)
{
    m_keyPressed = true;
    event->accept();
    if (ImageButton *button = buttonOfKey(event->key()))
        setButtonHover(button, true);
}

void MessageBoxBase::keyReleaseEvent(QKeyEvent *event)
{
    if (!m_keyPressed)
        return;
    event->accept();
    const ImageButton *button = buttonOfKey(event->key());
    if (!button)
        return;
    if (button == m_additionalButton)
        additionalReleased();
    else if (button == m_okButton)
        okReleased();
    else if (event->key() == Qt::Key_Context4)
        cancelReleased();
    else
        escapeReleased();
}

void MessageBoxBase::additionalReleased()
{
    if (!setButtonHover(m_additionalButton, false))
        return;
    if (m_soft3ToErase) {
        injectKey(Qt::Key_Backspace, true);
        return;
    }
    setExtraResult(1);
    endAlarm();
    const QPointer<MessageBoxBase> alive(this);
    accept();
    if (alive)
        close();
}

void MessageBoxBase::okReleased()
{
    if (!setButtonHover(m_okButton, false))
        return;
    if (m_skipAccept) {
        emit changeMessage();
        return;
    }
    setExtraResult(2);
    endAlarm();
    accept();
}

void MessageBoxBase::cancelReleased()
{
    if (!setButtonHover(m_cancelButton, false))
        return;
    setExtraResult(0);
    if (m_cancelKeyRejects) {
        endAlarm();
        reject();
        return;
    }
    const QPointer<MessageBoxBase> alive(this);
    emit cancelButtonClicked();
    if (!alive)
        return;
    endAlarm();
    close();
}

void MessageBoxBase::escapeReleased()
{
    if (!m_escapeKeyRejects) {
        endAlarm();
        close();
        return;
    }
    if (!setButtonHover(m_cancelButton, false))
        return;
    setExtraResult(0);
    endAlarm();
    reject();
}

void MessageBoxBase::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
}

void MessageBoxBase::showEvent(QShowEvent *)
{
    theCore->setUseF13ToDel(false);
}

void MessageBoxBase::hideEvent(QHideEvent *)
{
    // Also when the box was closed from outside: its owner has done with it.
    cancelTimer();
    theCore->setAlarm(false);
    theCore->setUseF13ToDel(true);
}

void MessageBoxBase::closeEvent(QHideEvent *)
{
    qDebug() << "MessageBoxBase::closeEvent";
}
