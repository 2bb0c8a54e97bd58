#ifndef PLUGINHOST_H
#define PLUGINHOST_H

#include <QList>
#include <QObject>
#include <QPluginLoader>
#include <QPointer>

class BaseAppInterface;

/// Loads applications from plug-ins and lets them go.
///
/// Start: the interface id and the verification block are checked before the application object is made, on the GUI
/// thread, with Core and QApplication in place. What is refused stands in the log with its reason. Stop: `unload`
/// ends and deletes the objects while QApplication still lives; a plug-in's own code would do it too late.
class PluginHost : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~PluginHost() override;

    /// The application of the plug-in file, or null.
    BaseAppInterface *load(const QString &path);
    void unload();

    /// Why the block that a plug-in shows is not this shell's, empty when it is.
    static QString verificationFault(const QByteArray &block);

private:
    QList<QPointer<QObject>> m_objects;
};

#endif
