#ifndef TOASTLOG_H
#define TOASTLOG_H

#include <QJsonArray>
#include <QObject>

/// The texts of the toasts shown since the last key, for those who look a little late.
class ToastLog : public QObject
{
    Q_OBJECT

public:
    explicit ToastLog(QObject *parent = nullptr);

    QJsonArray texts() const { return m_texts; }
    void clear() { m_texts = QJsonArray(); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QJsonArray m_texts;
};

#endif
