#ifndef NOTICES_H
#define NOTICES_H

#include <QString>

class BaseWidget;
class MessageBox;

/// The short notices and the questions of the contact screens.
namespace Notices {

enum class Icon { Confirm, Delete, Error };

/// Shows a toast for two seconds or until a key, and returns then. False when the screen was closed meanwhile: the
/// caller then does nothing more than return.
bool show(BaseWidget *screen, const QString &text, Icon icon);

/// Asks with the box, which is filled anew. True for OK while the screen is still there.
bool ask(BaseWidget *screen, MessageBox &box, const QString &title, const QString &message, const QString &ok,
         const QString &cancel);

}

#endif
