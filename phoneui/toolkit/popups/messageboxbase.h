#ifndef MESSAGEBOXBASE_H
#define MESSAGEBOXBASE_H

#include <QColor>
#include <QDialog>

class ImageButton;
class MessageBoxBackground;
class QHideEvent;
class QLabel;
class QTimer;

/// A modal box over the whole display: a title, one or two lines of text and up to three buttons on the soft keys
/// 2 to 4. Keys highlight on the press and act on the release, and none of them passes through to the screen below.
///
/// The texts find their places as they are set: a lone one stands in the middle of the panel, two stand one above
/// the other when the message is set first and the sub message after it.
class MessageBoxBase : public QDialog
{
    Q_OBJECT

public:
    explicit MessageBoxBase(QWidget *parent);

    void setTitle(const QString &title);
    QString getTitle();
    void setMessage(const QString &text);
    void setSubMessage(const QString &text);
    void setMessageAlignment(QFlags<Qt::AlignmentFlag> alignment);
    /// Gives the message the room of a longer, left-bound text.
    void setMessageMove();

    /// On soft key 2, hidden at first.
    ImageButton *additionalButton() { return m_additionalButton; }
    /// On soft key 3 and Enter.
    ImageButton *okButton() { return m_okButton; }
    /// On soft key 4 and Escape.
    ImageButton *cancelButton() { return m_cancelButton; }
    /// Shows the additional button; `false` does not hide it.
    void displayAdditionalButton(bool display);
    /// The additional key erases a character of the focused text and leaves the box open.
    void setSoft3ButtonToErase(bool on) { m_soft3ToErase = on; }
    /// The OK key emits `changeMessage` and leaves the box open, for a text of several pages.
    void setSkipAccept(bool on) { m_skipAccept = on; }

    /// The key that ended the box: 1 additional, 2 OK, 0 cancel and Escape. A click changes nothing here.
    int extraResult() { return m_extraResult; }
    void setExtraResult(int result) { m_extraResult = result; }

    // Marks that the box keeps for its owner.
    void setWidget(bool on) { m_widgetFlag = on; }
    bool isWidget() { return m_widgetFlag; }
    bool useBackGroundRect() const { return m_useBackGroundRect; }
    void setUseBackGroundRect(bool use) { m_useBackGroundRect = use; }
    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color) { m_backgroundColor = color; }

    /// Boxes appear at once: owners ask for a slide in vain.
    void setUseAnimation(bool) { }

    /// Emits `alarmTimeout` after that time, unless the box has ended by then. A second call starts anew.
    void startQuitTimer(int milliseconds);
    /// The look of an alarm: a bell beside the message, which is cut to one line.
    void showAlarmMessage();

signals:
    void alarmTimeout();
    void changeMessage();
    void cancelButtonClicked();

public slots:
    void quitAlarmSound();
    void cancelTimer();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    using QDialog::closeEvent;
    /// No event handler: closing a box is its dialog's business.
    void closeEvent(QHideEvent *event);

    /// Switches a button's look; false when a listener deleted the box on that.
    bool setButtonHover(ImageButton *button, bool hover);

private:
    QLabel *addLabel(const QRect &geometry, const char *color, Qt::Alignment alignment);
    ImageButton *addButton(int left);
    void buildTitle();
    void buildTexts();
    void buildButtons();

    ImageButton *buttonOfKey(int key) const;
    void additionalReleased();
    void okReleased();
    void cancelReleased();
    void escapeReleased();
    void endAlarm();

    QLabel *m_titleIconLabel = nullptr;
    QLabel *m_titleLabel = nullptr;
    QLabel *m_messageLabel = nullptr;
    QLabel *m_subMessageLabel = nullptr;
    QLabel *m_alarmIconLabel = nullptr;
    ImageButton *m_additionalButton = nullptr;
    ImageButton *m_okButton = nullptr;
    ImageButton *m_cancelButton = nullptr;
    MessageBoxBackground *m_background = nullptr;
    QTimer *m_quitTimer = nullptr;
    bool m_keyPressed = false; ///< stays set: only the releases before the first press are a former screen's
    bool m_widgetFlag = false;
    bool m_cancelKeyRejects = true;
    bool m_escapeKeyRejects = true;
    bool m_soft3ToErase = false;
    int m_extraResult = 0;
    bool m_skipAccept = false;
    bool m_useBackGroundRect = true;
    QColor m_backgroundColor = Qt::black;
};

#endif
