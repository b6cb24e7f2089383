// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QVariant>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <type_traits>
#include <typeinfo>
#include <variant>

namespace platform {
inline namespace text {

/// Returns the description of a value for a log or a display: a string is its own description, a number is
/// shown as its digits, a list as "(a, b)", a map as "{key = value}". Returns std::nullopt for a null value.
std::optional<QString> description(const QVariant &value);

/// Returns "<ClassName: 0x55d0c0ffee00>", the description of an object that has no description() of its own.
QString anonymousDescription(const std::type_info &type, const void *address);

/// A class whose objects describe themselves for logs with description().
template<typename Type>
concept Described = requires(const Type &object)
{
    {
        object.description()
        } -> std::convertible_to<QString>;
};

/// One argument of a format string, together with its type, so that a directive for another type is detected
/// and does not read memory of the wrong type.
///
/// Implicitly constructed from the types that are passed to printf, and from objects. The constructor reads
/// the description of an object; only the description and the address are kept.
class FormatArgument {
public:
    /// An integer, a character or a flag, sign-extended, and its size as an argument in bytes, which is at
    /// least that of an int.
    struct Integer {
        std::int64_t value;
        int bytes;
    };
    /// A string or an object: its description, absent for null, and its address.
    struct Object {
        std::optional<QString> description;
        const void *address;
    };
    using Value = std::variant<Integer, double, Object>;

    /// An integer, a character, a flag or an enumerator.
    template<typename Number>
    requires std::is_integral_v<Number> || std::is_enum_v<Number> FormatArgument(Number number)
        : m_value(Integer{static_cast<std::int64_t>(number),
                          static_cast<int>(sizeof(Number) < sizeof(int) ? sizeof(int) : sizeof(Number))})
    {
    }

    /// A floating-point number.
    template<std::floating_point Number>
    FormatArgument(Number number)
        : m_value(static_cast<double>(number))
    {
    }

    /// A null pointer.
    FormatArgument(std::nullptr_t)
        : m_value(Object{std::nullopt, nullptr})
    {
    }

    /// A string.
    FormatArgument(const QString &text)
        : m_value(Object{text, &text})
    {
    }

    /// A null-terminated C string in the system encoding; null is an absent text. Bytes that are invalid in
    /// that encoding are read as Latin-1, so that a log line shows them.
    FormatArgument(const char *text);

    /// A text that may be absent.
    template<std::same_as<std::optional<QString>> Text>
    FormatArgument(const Text &text)
        : m_value(Object{text, &text})
    {
    }

    /// A value, described by platform::description().
    template<std::same_as<QVariant> Variant>
    FormatArgument(const Variant &value)
        : m_value(Object{platform::description(value), &value})
    {
    }

    /// An object that describes itself.
    template<Described Type>
    FormatArgument(const Type &object)
        : m_value(Object{QString(object.description()), &object})
    {
    }

    /// A pointer to an existing object, or null; or any other pointer, of which the type and the address are
    /// shown.
    template<typename Type>
    FormatArgument(const Type *object)
        : m_value(Object{object ? std::optional(describe(object)) : std::nullopt, object})
    {
    }

    /// The object of a smart pointer, as above.
    template<typename Type>
    FormatArgument(const std::shared_ptr<Type> &object)
        : FormatArgument(static_cast<const Type *>(object.get()))
    {
    }

    /// The object of a smart pointer, as above.
    template<typename Type>
    FormatArgument(const std::unique_ptr<Type> &object)
        : FormatArgument(static_cast<const Type *>(object.get()))
    {
    }

    /// The value with its type.
    const Value &value() const { return m_value; }

    /// Returns true for a null pointer and an absent text.
    bool isNull() const;

    /// Returns the text that "%@" shows, which is "(null)" if the argument is null.
    QString description() const;

private:
    template<typename Type>
    static QString describe(const Type *object)
    {
        if constexpr (Described<Type>)
            return object->description();
        else if constexpr (std::is_polymorphic_v<Type>)
            return anonymousDescription(typeid(*object), object);
        else
            return anonymousDescription(typeid(Type *), object);
    }

    Value m_value;
};

} // namespace text
} // namespace platform
