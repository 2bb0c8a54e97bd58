#include "toastlog.h"

#include "toast.h"

#include <QApplication>
#include <QEvent>

ToastLog::ToastLog(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool ToastLog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (auto *toast = qobject_cast<Toast *>(watched))
            m_texts.append(toast->message());
    }
    return false;
}
