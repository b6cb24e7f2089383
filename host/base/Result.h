// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace host {

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

private:
    std::variant<Value, Error> m_content;
};

} // namespace host
