#ifndef BASEAPPINTERFACE_H
#define BASEAPPINTERFACE_H

#include "catalogue.h"

#include <QByteArray>
#include <QString>
#include <QtPlugin>

class QObject;
class QWidget;

/// What the shell sees of an application: it is found by its name, shown, ended, and sent messages.
///
/// An application is known to Core from its construction to its destruction. All calls come on the GUI thread;
/// `receiveMsg` may come at any moment, also while a screen of the application runs its own event loop.
class BaseAppInterface
{
public:
    /// `name` is the address of the application's messages and of its catalogues, ":/NAME/NAME_de_DE.qm".
    /// `parent` is the application object's parent, kept for applications that are plain QObjects.
    BaseAppInterface(const QString &name, QObject *parent);

    /// Shows the application, or ends it when it is showing. True when the call was understood.
    virtual bool start(QWidget *parent, void *data) = 0;
    /// Closes everything of the application; it may be started again.
    virtual void end() = 0;
    /// A command of another application or of a peer; the command text alone tells what the payload holds.
    virtual void receiveMsg(const QString &command, const QByteArray &payload) = 0;

    QString appName() const { return m_name; }

    /// Takes the catalogue of the phone's language, or the default one, from the application's resources.
    void reloadLanguage();

protected:
    // Applications are deleted as the QObjects that they also are, never through this base.
    ~BaseAppInterface();

private:
    Q_DISABLE_COPY(BaseAppInterface)

    QString m_name;
    Catalogue m_catalogue;
};

#define BaseAppInterface_iid "com.norvane.Plugin.BaseAppInterface/1.0"
Q_DECLARE_INTERFACE(BaseAppInterface, BaseAppInterface_iid)

#endif
