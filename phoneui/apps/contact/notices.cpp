#include "notices.h"

#include "imagebutton.h"
#include "messagebox.h"
#include "screenwatch.h"
#include "toast.h"

namespace Notices {

static constexpr int ToastTime = 2000; // ms

static QPixmap picture(Icon icon)
{
    switch (icon) {
    case Icon::Confirm: return QPixmap(":ui/images/widget/confirm.png");
    case Icon::Delete: return QPixmap(":ui/images/widget/delete.png");
    case Icon::Error: break;
    }
    return QPixmap(":ui/images/widget/error_emoti.png");
}

bool show(BaseWidget *screen, const QString &text, Icon icon)
{
    const ScreenWatch watch(screen);
    Toast toast(text, ToastTime, screen);
    toast.setIcon(picture(icon));
    toast.exec();
    return !watch.closed();
}

bool ask(BaseWidget *screen, MessageBox &box, const QString &title, const QString &message, const QString &ok,
         const QString &cancel)
{
    const ScreenWatch watch(screen);
    box.setTitle(title);
    box.setMessage(message);
    box.okButton()->setText(ok);
    box.cancelButton()->setText(cancel);
    return box.exec() == QDialog::Accepted && !watch.closed();
}

}
