// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace host {

/// Why something could not be done: its kind, for the program to decide by, and one sentence for the
/// user that names the thing, the place and the reason.
template<typename KindType>
struct Failure {
    using Kind = KindType;
    Kind kind;
    QString message;
};

/// A value, or why there is none. Asking for the one that is not there is a fault of the caller.
template<typename Value, typename Error>
class [[nodiscard]] Result {
public:
    Result(Value value)
        : m_content(std::in_place_index<0>, std::move(value))
    {
    }
    Result(Error error)
        : m_content(std::in_place_index<1>, std::move(error))
    {
    }

    explicit operator bool() const { return m_content.index() == 0; }

    const Value &value() const & { return std::get<0>(m_content); }
    Value &value() & { return std::get<0>(m_content); }
    Value &&value() && { return std::get<0>(std::move(m_content)); }
    const Error &error() const { return std::get<1>(m_content); }

private:
    std::variant<Value, Error> m_content;
};

} // namespace host
