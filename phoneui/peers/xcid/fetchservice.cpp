#include "fetchservice.h"

#include "fetchaddress.h"
#include "fetchprocess.h"
#include "peerlink.h"

#include <QFile>

/// Seconds after which an answer that nobody took is taken by nobody.
static constexpr int AnswerLife = 60;

FetchService::FetchService(const PhoneHome &home, QObject *parent)
    : RequestSocket("XCID/UI",
                    {{"ui2http_directory_search_request(str)",
                      [this](const QVariantList &arguments) { return fetch(arguments.first().toByteArray()); }},
                     {"ui2http_directory_page_request(str)",
                      [this](const QVariantList &arguments) { return fetch(arguments.first().toByteArray()); }},
                     {"ui2http_directory_cancel_request()", [this](const QVariantList &) { return cancel(); }}},
                    parent),
      m_home(home), m_answers(home)
{
    m_answers.clean(0);
}

const char *FetchService::fetch(const QByteArray &text)
{
    drop();
    const FetchAddress address = FetchAddress::parse(text);
    if (!address.url.isValid())
        return "it names no server";
    m_fetch = new FetchProcess(m_home, this);
    const QByteArray shown = FetchAddress::loggable(address.url).toUtf8();
    connect(m_fetch, &FetchProcess::succeeded, this, &FetchService::answer);
    connect(m_fetch, &FetchProcess::failed, this, [this, shown](const QString &reason) {
        qWarning("The fetch of %s failed: %s", shown.constData(), qPrintable(reason));
        drop();
    });
    m_fetch->fetch(text);
    return nullptr;
}

const char *FetchService::cancel()
{
    // It may have ended already.
    drop();
    return nullptr;
}

void FetchService::answer(int status, const QByteArray &body)
{
    drop();
    m_answers.clean(AnswerLife);
    const QString path = m_answers.store(body);
    if (path.isEmpty())
        return;
    if (sendToShell(m_home,
                    {"contact/XCID", "http2ui_directory_service_response(str,int)", {path.toUtf8(), status}}))
        return;
    qWarning("No phone takes the answer");
    QFile::remove(path);
}

void FetchService::drop()
{
    if (!m_fetch)
        return;
    m_fetch->disconnect(this);
    m_fetch->deleteLater();
    m_fetch = nullptr;
}
