#ifndef NEIGHBOURS_H
#define NEIGHBOURS_H

#include <QByteArray>
#include <QString>
#include <QStringList>

class QWidget;

/// What the screens ask of the phone's other applications and of the call manager.
namespace Neighbours {

/// The payload of a command whose items are texts.
QByteArray payload(const QStringList &texts);

/// Sends a command with text items to an application.
void send(const QString &application, const QString &command, const QStringList &texts);

/// Whether the line is taken, by the text that the call screens compare with.
bool isInCall();

/// Asks for a call to the number; the name is shown for the other side.
void dial(const QString &number, const QString &name);

/// Closes the contacts with the screen that calls, and asks for the call.
void leaveAndDial(QWidget *screen, const QString &number, const QString &name);

/// Hands a person to the home screen and to the key module, which asked for one.
void handOver(const QString &name, const QString &number);

/// Opens a new message to the number, in an application that is started if it does not run.
void writeMessage(const QString &number);

}

#endif
