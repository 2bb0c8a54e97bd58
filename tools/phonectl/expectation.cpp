#include "expectation.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

/// Where a field stands in the answer, and how many values it takes (`most` -1: any number).
struct Expectation::Field
{
    const char *name;
    const char *path;
    Kind kind;
    int least;
    int most;
    const char *usage;
};

const Expectation::Field Expectation::Fields[] = {
    {"app", "app", Kind::Text, 1, 1, "app NAME"},
    {"screen", "screen", Kind::Text, 1, 1, "screen CLASS"},
    {"title", "title", Kind::Text, 1, 1, "title TEXT"},
    {"softkeys", "softkeys", Kind::Texts, 4, 4, "softkeys A B C D"},
    {"rows", "rows", Kind::Texts, 0, -1, "rows TEXT...         all rows that are visible"},
    {"row", "rows", Kind::TextAt, 2, 2, "row N TEXT           the visible row N, counted from 0"},
    {"selected", "selected", Kind::Number, 1, 1, "selected N"},
    {"start", "start", Kind::Number, 1, 1, "start N"},
    {"size", "size", Kind::Number, 1, 1, "size N"},
    {"edit", "edit", Kind::Text, 1, 1, "edit TEXT"},
    {"popup", "popup.class", Kind::Text, 1, 1, "popup CLASS"},
    {"message", "popup.message", Kind::Text, 1, 1, "message TEXT"},
    {"popup-rows", "popup.rows", Kind::Texts, 0, -1, "popup-rows TEXT..."},
    {"toast", "toasts", Kind::AnyText, 1, 1, "toast TEXT           one shown since the last key counts"},
    {"sent", "", Kind::Message, 2, -1, "sent TARGET COMMAND [ARG...]"},
    {"no popup", "popup", Kind::Nothing, 0, 0, "no popup"},
    {"no toast", "toast", Kind::Nothing, 0, 0, "no toast             none is shown now"},
    {"no sent", "", Kind::NoMessage, 2, 2, "no sent TARGET COMMAND"},
};

/// A value as JSON writes it.
static QString jsonText(const QJsonValue &value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

static QString quoted(const QStringList &texts)
{
    QStringList parts;
    for (const QString &text : texts)
        parts.append(jsonText(text));
    return parts.join(' ');
}

/// An argument of a message as a script writes it: a text bare, a number in digits.
static QString argumentText(const QJsonValue &value)
{
    return value.isString() ? value.toString() : jsonText(value);
}

QString Expectation::parse(const QStringList &words)
{
    const bool negated = words.value(0) == "no";
    const int nameWords = negated ? 2 : 1;
    const QString name = QStringList(words.mid(0, nameWords)).join(' ');

    const auto known = std::find_if(std::begin(Fields), std::end(Fields),
                                    [&name](const Field &field) { return name == QLatin1String(field.name); });
    if (known == std::end(Fields))
        return name.isEmpty() ? QStringLiteral("expect what?") : QStringLiteral("cannot expect \"%1\"").arg(name);
    m_field = known;
    m_values = words.mid(nameWords);

    const int count = m_values.size();
    if (count < m_field->least || (m_field->most >= 0 && count > m_field->most))
        return QStringLiteral("it reads: expect %1").arg(QString::fromLatin1(m_field->usage).simplified());
    if (m_field->kind == Kind::Number || m_field->kind == Kind::TextAt) {
        bool isNumber = false;
        m_values.first().toInt(&isNumber);
        if (!isNumber)
            return QStringLiteral("\"%1\" is no number").arg(m_values.first());
    }
    return {};
}

QString Expectation::request() const
{
    const bool isMessage = m_field->kind == Kind::Message || m_field->kind == Kind::NoMessage;
    return isMessage ? QStringLiteral("peek-sent") : QStringLiteral("screen");
}

int Expectation::patience() const
{
    // A toast lives for two seconds itself, and waiting for its end must outlast it.
    return qstrcmp(m_field->name, "no toast") == 0 ? 3000 : 2000;
}

QJsonValue Expectation::valueIn(const QJsonValue &answer) const
{
    QJsonValue value = answer;
    if (*m_field->path) {
        const QStringList path = QString::fromLatin1(m_field->path).split('.');
        for (const QString &step : path)
            value = value.toObject().value(step);
    }
    if (m_field->kind == Kind::AnyText) {
        // A toast that was up before the last key may still be seen.
        QJsonArray texts = value.toArray();
        const QJsonValue shown = answer.toObject().value("toast");
        if (shown.isString() && !texts.contains(shown))
            texts.append(shown);
        return texts;
    }
    if (m_field->kind == Kind::TextAt) {
        const int index = m_values.first().toInt();
        const QJsonArray rows = value.toArray();
        return index >= 0 && index < rows.size() ? rows.at(index) : QJsonValue();
    }
    return value;
}

bool Expectation::holds(const QJsonValue &answer) const
{
    const QJsonValue value = valueIn(answer);
    const QJsonArray list = value.toArray();
    const auto sent = [this](const QJsonValue &message) { return wasSent(message); };

    switch (m_field->kind) {
    case Kind::Text: return value.isString() && value.toString() == m_values.first();
    case Kind::Number: return value.isDouble() && value.toInt() == m_values.first().toInt();
    case Kind::Texts: return value.isArray() && list == QJsonArray::fromStringList(m_values);
    case Kind::TextAt: return value.isString() && value.toString() == m_values.at(1);
    case Kind::AnyText: return list.contains(m_values.first());
    case Kind::Message: return std::any_of(list.begin(), list.end(), sent);
    case Kind::Nothing: return value.isNull() || value.isUndefined();
    case Kind::NoMessage: return std::none_of(list.begin(), list.end(), sent);
    }
    return false;
}

bool Expectation::wasSent(const QJsonValue &message) const
{
    if (message["target"].toString() != m_values.at(0) || message["command"].toString() != m_values.at(1))
        return false;
    const QJsonArray arguments = message["args"].toArray();
    const QStringList wanted = m_values.mid(2);
    if (wanted.size() > arguments.size())
        return false;
    return std::equal(wanted.begin(), wanted.end(), arguments.begin(),
                      [](const QString &text, const QJsonValue &value) { return text == argumentText(value); });
}

QString Expectation::wanted() const
{
    const QString name = QString::fromLatin1(m_field->name);
    switch (m_field->kind) {
    case Kind::Nothing: return name;
    case Kind::Number: return name + ' ' + m_values.first();
    case Kind::TextAt: return name + ' ' + m_values.at(0) + ' ' + quoted(m_values.mid(1));
    case Kind::Texts: return name + ' ' + (m_values.isEmpty() ? QStringLiteral("(none)") : quoted(m_values));
    default: return name + ' ' + quoted(m_values);
    }
}

QString Expectation::found(const QJsonValue &answer) const
{
    const QJsonValue value = valueIn(answer);
    if (value.isNull() || value.isUndefined() || value == QJsonArray())
        return QStringLiteral("nothing");
    if (m_field->kind == Kind::Texts || m_field->kind == Kind::AnyText) {
        QStringList texts;
        const QJsonArray list = value.toArray();
        for (const QJsonValue &text : list)
            texts.append(text.toString());
        return quoted(texts);
    }
    return jsonText(value);
}

QString Expectation::help()
{
    QString text;
    for (const Field &field : Fields)
        text += QStringLiteral("    expect %1\n").arg(QLatin1String(field.usage));
    return text;
}
