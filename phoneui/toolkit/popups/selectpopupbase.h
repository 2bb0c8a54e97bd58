#ifndef SELECTPOPUPBASE_H
#define SELECTPOPUPBASE_H

#include <QDialog>
#include <QFont>
#include <QPixmap>

class ImageButton;
class ListView;
class QPropertyAnimation;

/// What the popups of choices have in common: a plate over the right half of the screen with a list and two
/// buttons, driven by soft keys, that ends with a row of the list, a key, a button or the broadcast
/// "closeSelectPopup()".
///
/// The owner fills the list, runs `exec()` and reads `selectedIdx()`.
class SelectPopupBase : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(float m_AlphaValue READ getAlphaValue WRITE setAlphaValue)

public:
    /// The chosen row, -1 after cancel.
    int selectedIdx() const { return m_selectedIdx; }

    /// Pages; with several choices it is the key that ends them.
    ImageButton *nextButton() const { return m_nextButton; }
    ImageButton *cancelButton() const { return m_cancelButton; }
    /// Hidden at first. Who shows it in the place of the next button has a key that accepts.
    ImageButton *okButton() const { return m_okButton; }

    void setGeometry(const QRect &rect);
    void setGeometry(int x, int y, int width, int height);
    void setStartFuncKey(int key);
    /// Whether rows are checked and the popup stays, until the next button ends it.
    void setMultipleCheck(const bool &multiple) { m_multipleCheck = multiple; }
    /// Whether the popup also leaves the screen to the right when it ends.
    void setUseFastClose(bool use) { m_useFastClose = use; }
    bool getUseFastClose() const { return m_useFastClose; }

    void setCancelKey(int key) { m_cancelKey = key; }
    int CancelKey() const { return m_cancelKey; }
    void setNextKey(int key) { m_nextKey = key; }
    int NextKey() const { return m_nextKey; }
    void setOkKey(int key) { m_okKey = key; }
    int OkKey() const { return m_okKey; }

    // Kept for the owner; the look does not follow.

    void setUseBackGroundRect(bool use) { m_useBackGroundRect = use; }
    bool useBackGroundRect() const { return m_useBackGroundRect; }
    void setUseBackGroundRectVideo(bool use) { m_useBackGroundRectVideo = use; }
    void setBackgroundImage(const QPixmap &image);
    void clearBackgroundImage();
    void setAlphaValue(float alpha);
    float getAlphaValue() const { return m_AlphaValue; }

    /// Words on the plate, for an owner that makes room for them above the list.
    void setContentsTitle(const QString &title);
    QString contentsTitle() const { return m_contentsTitle; }
    void setContentsTitlePos(int x, int y);
    void setContentsTitleFont(QFont font);

    /// Popups come and go at once, whatever they are told.
    void setUseAnimation(bool) { }

signals:
    /// For owners and subclasses; the popup answers by its result alone.
    void clicked(int idx);

public slots:
    void show();
    void showAfterAnimation();
    void hide();
    void hideAfterAnimation();
    void close();
    void closeAfterAnimation();
    void reject() override;
    void rejectAfterAnimation();
    void accept() override;
    void acceptAfterAnimation();
    /// Also true while the popup slides.
    bool isVisible();
    int exec() override;
    void signalReciever(const QString &name, const QByteArray &data);
    void clickedListView(int idx);
    void nextButtonClicked();
    void onClickOkButton();

protected:
    SelectPopupBase(QWidget *parent, int type);

    /// Places the list, a child of the popup, on the plate and listens to it.
    void setUpList(ListView *list);
    /// Shows the next page of the list.
    virtual void turnPage();

    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    bool m_useAnimation = false;

private:
    using Slot = void (SelectPopupBase::*)();
    enum class Button { None, Next, Ok, Cancel };

    ImageButton *makeButton(const QRect &rect, const QString &text, Slot onClick);
    Button buttonOfKey(int key) const;
    ImageButton *button(Button which) const;
    void leave(Slot plain, Slot afterAnimation);
    void finishLeaving(Slot plain, Slot afterAnimation);
    void paintTitle(QPainter *painter, int left, int right);
    void plainHide();
    void plainClose();
    void plainReject();
    void plainAccept();

    ListView *m_listView = nullptr;
    ImageButton *m_nextButton;
    ImageButton *m_cancelButton;
    ImageButton *m_okButton;
    bool m_useBackGroundRect = true;
    bool m_useBackGroundRectVideo = false;
    int m_popupType; // the owner's mark; every type looks and acts alike
    int m_selectedIdx = -1;
    bool m_keyPressed = false;
    QPixmap m_backgroundImage;
    float m_AlphaValue = 0;
    QString m_contentsTitle;
    int m_contentsTitleX = 18;
    int m_contentsTitleY = 30;
    QFont m_contentsTitleFont;
    QPropertyAnimation *m_showAnimation;
    QPropertyAnimation *m_hideAnimation;
    QPropertyAnimation *m_alphaAnimation;
    bool m_animating = false;
    bool m_inExec = false;
    bool m_useFastClose = false;
    int m_cancelKey = Qt::Key_Context4;
    int m_nextKey = Qt::Key_Context3;
    int m_okKey = Qt::Key_Context3;
    bool m_multipleCheck = false;
};

#endif
