#ifndef FETCH_H
#define FETCH_H

#include "fetchaddress.h"
#include "fetchsettings.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>

/// One fetch, from its first connection to its end: a body that came whole and within its limit, or the reason why
/// there is none. How long it may take is for others to watch: the network library cannot be stopped while a server
/// floods it.
class Fetch : public QObject
{
    Q_OBJECT

public:
    Fetch(const FetchAddress &address, const FetchSettings &settings, QObject *parent = nullptr);

    void start();

signals:
    // One of the two comes, once.

    void succeeded(int status, const QByteArray &body);
    /// Fit for the log.
    void failed(const QString &reason);

private:
    void get(const QUrl &url);
    QNetworkRequest request(const QUrl &url) const;
    bool mayHaveCredentials(const QUrl &url) const;
    void checkHead();
    void read();
    void handleFinished();
    void follow(const QUrl &target);
    QString fault() const;
    bool isRedirect() const;
    void fail(const QString &reason);
    void leaveReply();

    const FetchAddress m_address;
    const FetchSettings m_settings;
    QNetworkAccessManager m_manager;
    QPointer<QNetworkReply> m_reply;
    QByteArray m_body;
    QString m_certificateFault;
    int m_redirects = 0;
};

#endif
