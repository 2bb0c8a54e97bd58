#ifndef DIALER_H
#define DIALER_H

class QString;

/// Asks the call manager to dial the number; `name` is what the other side is shown as.
void dial(const QString &number, const QString &name);

#endif
