#include "pluginhost.h"

#include "baseappinterface.h"
#include "pluginverification.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QMap>

PluginHost::~PluginHost()
{
    unload();
}

static QMap<QByteArray, QByteArray> parseBlock(const QByteArray &block)
{
    QMap<QByteArray, QByteArray> values;
    const QList<QByteArray> lines = block.split('\n');
    for (const QByteArray &line : lines) {
        const int equals = line.indexOf('=');
        if (equals > 0)
            values.insert(line.left(equals), line.mid(equals + 1));
    }
    return values;
}

static QByteArray majorMinor(const QByteArray &version)
{
    const QList<QByteArray> parts = version.split('.');
    return parts.size() < 2 ? version : parts.at(0) + '.' + parts.at(1);
}

QString PluginHost::verificationFault(const QByteArray &block)
{
    const auto values = parseBlock(block);
    const auto wanted = parseBlock(PHONEUI_PLUGIN_VERIFICATION_DATA);
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        const QByteArray value = values.value(it.key());
        const bool same = it.key() == "version" ? majorMinor(value) == majorMinor(it.value()) : value == it.value();
        if (!same)
            return QString("%1 is \"%2\", not \"%3\"")
                .arg(QLatin1String(it.key()), QLatin1String(value), QLatin1String(it.value()));
    }
    return QString();
}

BaseAppInterface *PluginHost::load(const QString &path)
{
    const auto refuse = [&path](const QString &reason) {
        qWarning("Plug-in %s refused: %s", qPrintable(QFileInfo(path).fileName()), qPrintable(reason));
        return nullptr;
    };
    QPluginLoader loader(path);
    const QString id = loader.metaData().value("IID").toString();
    if (id.isEmpty())
        return refuse("it is no plug-in");
    if (id != BaseAppInterface_iid)
        return refuse("its interface is " + id);
    const auto query
        = reinterpret_cast<const char *(*)()>(QLibrary::resolve(path, "qt_plugin_query_verification_data"));
    if (!query)
        return refuse("it shows no verification data");
    const QString fault = verificationFault(query());
    if (!fault.isEmpty())
        return refuse("verification data: " + fault);

    QObject *object = loader.instance();
    if (!object)
        return refuse(loader.errorString());
    auto *app = qobject_cast<BaseAppInterface *>(object);
    if (!app)
        return refuse("its object is no application");
    m_objects.append(object);
    return app;
}

void PluginHost::unload()
{
    for (const QPointer<QObject> &object : qAsConst(m_objects)) {
        if (auto *app = qobject_cast<BaseAppInterface *>(object.data()))
            app->end();
        delete object.data();
    }
    m_objects.clear();
}
