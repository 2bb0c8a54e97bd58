#ifndef SCREENREPORT_H
#define SCREENREPORT_H

#include <QJsonObject>

class Status;
class ToastLog;
class WindowStack;

/// What is on the screen, told in words: the object that `phonectl screen` prints.
QJsonObject screenReport(const WindowStack &windows, Status *status, const ToastLog &toasts);

#endif
