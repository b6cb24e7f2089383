// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <optional>
#include <utility>
#include <variant>

namespace host {
inline namespace base {

/// The error of an operation: its kind, from which the program decides how to continue, and one sentence for
/// the user that names the thing, the place and the reason.
template<typename KindType>
struct Failure {
    using Kind = KindType;
    Kind kind;
    QString message;
};

/// The result of an operation: a value or an error. Reading the one that is not held is a programming error
/// and throws std::bad_variant_access.
template<typename Value, typename Error>
class [[nodiscard]] Result {
public:
    /// A result that holds a value. Converts implicitly, so that a function can return a value.
    Result(Value value)
        : m_content(std::in_place_index<0>, std::move(value))
    {
    }
    /// A result that holds an error. Converts implicitly, so that a function can return an error.
    Result(Error error)
        : m_content(std::in_place_index<1>, std::move(error))
    {
    }

    /// Returns true if the result holds a value.
    explicit operator bool() const { return m_content.index() == 0; }

    /// The value. The overload for rvalues moves the value out of the result.
    const Value &value() const & { return std::get<0>(m_content); }
    Value &value() & { return std::get<0>(m_content); }
    Value &&value() && { return std::get<0>(std::move(m_content)); }
    /// The error.
    const Error &error() const { return std::get<1>(m_content); }

    /// Returns the same outcome without the value.
    Result<void, Error> withoutValue() const;

private:
    std::variant<Value, Error> m_content;
};

/// The result of an operation without a value: success or an error.
template<typename Error>
class [[nodiscard]] Result<void, Error> {
public:
    /// Success: "return {};".
    Result() = default;
    /// A result that holds an error. Converts implicitly, so that a function can return an error.
    Result(Error error)
        : m_error(std::move(error))
    {
    }

    /// Returns true on success.
    explicit operator bool() const { return !m_error; }

    /// The error. Reading it after success is a programming error and throws std::bad_optional_access.
    const Error &error() const { return m_error.value(); }

private:
    std::optional<Error> m_error;
};

/// Defined here because it needs the specialization for void.
template<typename Value, typename Error>
Result<void, Error> Result<Value, Error>::withoutValue() const
{
    return *this ? Result<void, Error>() : Result<void, Error>(error());
}

} // namespace base
} // namespace host
