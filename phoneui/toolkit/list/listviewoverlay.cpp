#include "listview.h"

#include "editfieldgeometry.h"
#include "listviewchecklineedititem.h"
#include "listviewlineedititem.h"
#include "listviewtimeedititem.h"
#include "rowkinds.h"

#include "core.h"
#include "textcodec.h"

#include <QIntValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QRegExpValidator>

/// Silences all signals of the line edit but `destroyed`, by which the style forgets it.
static void disconnectTextSignals(QLineEdit *edit)
{
    const QMetaObject &meta = QLineEdit::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == QMetaMethod::Signal)
            QObject::disconnect(edit, method, nullptr, QMetaMethod());
    }
}

static QRegExp ipAddress()
{
    const QString octet = QStringLiteral("(?:[0-1]?[0-9]?[0-9]|2[0-4][0-9]|25[0-5])");
    return QRegExp("^" + octet + "\\." + octet + "\\." + octet + "\\." + octet + "$", Qt::CaseSensitive);
}

/// How much of the text the phone stores: its bytes up to the first NUL.
static int storedBytes(const QString &text)
{
    return int(qstrlen(getEncodedString(text).constData()));
}

void ListView::checkFocus()
{
    ListViewItem *row = selectedIdx() == -1 ? nullptr : item(selectedIdx());
    if (!row) {
        hideOverlay(m_editOverlay);
        hideOverlay(m_timeOverlay);
        return;
    }
    const int type = row->type();
    if (!RowKinds::hasTextField(type)) {
        takeFocus(this);
        hideOverlay(m_editOverlay);
    }
    if (type != RowKinds::TimeEdit)
        hideOverlay(m_timeOverlay);

    // The focus may have moved the selection on.
    row = item(selectedIdx());
    if (!row || row->type() != type)
        return;
    row->setGeometry(rowRect(selectedIdx()));
    setUpLineEdit(row);
    setUpCheckLineEdit(row);
    setUpTimeEdit(row);
}

QLineEdit *ListView::createOverlay()
{
    // A line of the font is higher than the field. What is too much goes above and below alike, as in the row.
    static constexpr int Overlap = 1;

    auto *overlay = new QLineEdit(this);
    overlay->setTextMargins(0, -Overlap, 0, -Overlap);
    overlay->setObjectName(QStringLiteral("ListView::QLineEdit"));
    overlay->installEventFilter(this);
    overlay->setFont(font());
    overlay->setStyleSheet(QStringLiteral("QLineEdit {background-color: white; color: black; border: none; }"));
    overlay->ensurePolished();
    overlay->setAttribute(Qt::WA_OpaquePaintEvent); // white all over: the rows behind need no paint
    return overlay;
}

/// Moves the focus within the list. What lies over the list, such as a toast, keeps it: the list sorts out its
/// focus a moment after the key, and by then something may have opened.
void ListView::takeFocus(QWidget *widget)
{
    const QWidget *holder = window()->focusWidget();
    const bool isElsewhere
        = holder && holder->isVisible() && holder != this && !isAncestorOf(holder) && !holder->isAncestorOf(this);
    if (!isElsewhere)
        widget->setFocus(Qt::OtherFocusReason);
}

void ListView::hideOverlay(QLineEdit *overlay)
{
    if (!overlay)
        return;
    // The focus goes first: hiding the widget that has it would hand it to the next one of the window.
    if (overlay->isVisible())
        takeFocus(this);
    overlay->hide();
}

void ListView::showOverlay(QLineEdit *overlay, const QString &text, const QRect &rect)
{
    overlay->setText(text);
    connect(overlay, &QLineEdit::textChanged, this, &ListView::lineEditTextChanged);
    overlay->setGeometry(rect);
    overlay->setVisible(true);
    overlay->raise();
}

void ListView::setEditValidator(QValidator *validator)
{
    m_editOverlay->setValidator(validator);
    delete m_editValidator;
    m_editValidator = validator;
}

template <class Row> void ListView::fillEditOverlay(Row *row, const QRect &rect)
{
    m_editOverlay->setEchoMode(row->echoPasswordMode() ? QLineEdit::Password : QLineEdit::Normal);
    m_editOverlay->setReadOnly(row->editTextDisabled());
    disconnectTextSignals(m_editOverlay);
    if (row->getMaxLength() > 0)
        m_editOverlay->setMaxLength(row->getMaxLength());
    showOverlay(m_editOverlay, row->editText(), rect);
}

void ListView::setUpLineEdit(ListViewItem *row)
{
    static constexpr int PointSize = 20, LowestPort = 10000, HighestPort = 65535;

    ListViewLineEditItem *field = RowKinds::lineEdit(row);
    if (!field)
        return;
    if (!m_editOverlay)
        m_editOverlay = createOverlay();
    QFont font = m_editOverlay->font();
    font.setPointSize(PointSize);
    m_editOverlay->setFont(font);
    setEditValidator(nullptr);

    const int margin = field->editTextLeftMargin();
    fillEditOverlay(field,
                    field->type() == RowKinds::NumberEdit ? EditFieldGeometry::numberEdit(row->geometry(), margin)
                                                          : EditFieldGeometry::lineEdit(row->geometry(), margin));
    if (field->isIPValidate())
        setEditValidator(new QRegExpValidator(ipAddress(), this));
    else if (field->isSipPortValidate())
        setEditValidator(new QIntValidator(LowestPort, HighestPort, this));
    takeFocus(m_editOverlay);
}

void ListView::setUpCheckLineEdit(ListViewItem *row)
{
    ListViewCheckLineEditItem *field = RowKinds::checkLineEdit(row);
    if (!field)
        return;
    if (!m_editOverlay)
        m_editOverlay = createOverlay();
    setEditValidator(nullptr);
    fillEditOverlay(
        field,
        EditFieldGeometry::checkLineEdit(row->geometry(), field->editTextLeftMargin(), field->useTitleText()));
    takeFocus(m_editOverlay);
}

void ListView::setUpTimeEdit(ListViewItem *row)
{
    ListViewTimeEditItem *field = RowKinds::timeEdit(row);
    if (!field)
        return;
    if (!m_timeOverlay) {
        m_timeOverlay = createOverlay();
        m_timeOverlay->setInputMask(QStringLiteral("99:99"));
        m_timeOverlay->update();
    }
    disconnectTextSignals(m_timeOverlay);
    showOverlay(m_timeOverlay, field->getTime(),
                EditFieldGeometry::timeEdit(row->geometry(), field->use_ampmSelection()));
    m_timeOverlay->setCursorPosition(0);
    takeFocus(m_timeOverlay);
}

void ListView::lineEditTextChanged(QString text)
{
    const QPointer<ListView> alive(this);
    emit textChanged(text);
    if (!alive)
        return;

    ListViewItem *row = item(selectedIdx());
    if (RowKinds::lineEdit(row)) {
        lineEditRowChanged(text);
    } else if (auto *check = RowKinds::checkLineEdit(row)) {
        check->setEditText(text);
        emit changeLineEditText(selectedIdx(), text);
    } else if (auto *time = RowKinds::timeEdit(row)) {
        time->setTime(text);
        emit changeLineEditText(selectedIdx(), text);
    }
}

void ListView::lineEditRowChanged(const QString &text)
{
    ListViewLineEditItem *row = RowKinds::lineEdit(item(selectedIdx()));
    row->setEditText(text);
    if (row->getMaxBytes() <= 0 || storedBytes(text) <= row->getMaxBytes()) {
        emit changeLineEditText(selectedIdx(), text);
        return;
    }
    // Taking the focus from the line edit ends the composition that made the text too long. The screen cuts it.
    const IMEStatus status = theCore->getIMEStatus();
    setFocus(Qt::OtherFocusReason);
    theCore->setIMEStatus(status, true);
    row = RowKinds::lineEdit(item(selectedIdx()));
    if (row)
        emit changeLineEditText(selectedIdx(), row->editText());
}

bool ListView::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOverlay = watched == m_editOverlay || watched == m_timeOverlay;
    if (isOverlay && (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        ListViewItem *row = item(selectedIdx());
        if (row && (key == Qt::Key_Enter || key == Qt::Key_Return)) {
            const int type = row->type();
            return type != RowKinds::CheckLineEdit && type != RowKinds::NumberEdit;
        }
    }
    return QWidget::eventFilter(watched, event);
}
