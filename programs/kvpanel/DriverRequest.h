// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <cstdint>
#include <optional>
#include <stdexcept>

/// A request that cannot be carried out, with the sentence that says why.
class RequestError : public std::runtime_error {
public:
    /// Creates an error with one sentence for the user.
    explicit RequestError(const QString &reason)
        : std::runtime_error(reason.toStdString())
    {
    }
    /// The sentence.
    QString reason() const { return QString::fromUtf8(what()); }
};

/// One request's members, read by type. Whatever is missing or of another type than asked for is a
/// RequestError that names the member.
class DriverRequest {
public:
    /// Creates a request from its members. The context precedes the names of members in error messages.
    explicit DriverRequest(QJsonObject members, QString context = QString());

    /// Returns whether the request has the member.
    bool has(const char *name) const;

    /// Returns a text; the second function returns the default if the member is missing.
    QString text(const char *name) const;
    QString text(const char *name, const QString &whenMissing) const;
    /// A text that the system takes for a path as a whole, without U+0000.
    QString path(const char *name) const;
    /// A text or null.
    std::optional<QString> textOrNull(const char *name) const;
    bool flag(const char *name, bool whenMissing) const;
    double number(const char *name) const;
    std::optional<double> numberOrNull(const char *name) const;
    /// A whole number of 32 bits.
    std::int32_t integer(const char *name) const;
    std::int32_t integer(const char *name, std::int32_t whenMissing) const;
    QJsonArray list(const char *name) const;
    /// The object member's own members, or nothing for null.
    std::optional<DriverRequest> objectOrNull(const char *name) const;

    /// All members.
    const QJsonObject &members() const { return m_members; }

    /// The value as a whole number of 32 bits; nothing when it is anything else.
    static std::optional<std::int32_t> toInteger(const QJsonValue &value);

    /// The error for a member that is not what it should be.
    RequestError illTyped(const char *name, const char *expected) const;

private:
    QJsonValue required(const char *name) const;

    QJsonObject m_members;
    QString m_context;
};
