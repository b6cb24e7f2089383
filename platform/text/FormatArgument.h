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

/// A value's text for a log or a display: a text is itself, a number its digits, a list "(a, b)", a map
/// "{key = value}". Nothing for a value that is null.
std::optional<QString> description(const QVariant &value);

/// "<ClassName: 0x55d0c0ffee00>", for an object that has no description() of its own.
QString anonymousDescription(const std::type_info &type, const void *address);

/// A class whose objects describe themselves for logs.
template<typename Type>
concept Described = requires(const Type &object)
{
    {
        object.description()
        } -> std::convertible_to<QString>;
};

/// One value for a directive of a format string, together with its kind, so that a directive that asks
/// for another kind can be told instead of reading memory that is not there.
///
/// Made implicitly from what one would hand to printf. An object is described at once, and nothing is
/// kept but its text and address.
class FormatArgument {
public:
    /// A whole number, a character or a flag, sign-extended, and the number of bytes that it had as an
    /// argument: at least those of an int.
    struct Integer {
        std::int64_t value;
        int bytes;
    };
    /// A text or an object: its description (nothing for null) and its address.
    struct Object {
        std::optional<QString> description;
        const void *address;
    };
    using Value = std::variant<Integer, double, Object>;

    template<typename Number>
    requires std::is_integral_v<Number> || std::is_enum_v<Number> FormatArgument(Number number)
        : m_value(Integer{static_cast<std::int64_t>(number),
                          static_cast<int>(sizeof(Number) < sizeof(int) ? sizeof(int) : sizeof(Number))})
    {
    }

    template<std::floating_point Number>
    FormatArgument(Number number)
        : m_value(static_cast<double>(number))
    {
    }

    FormatArgument(std::nullptr_t)
        : m_value(Object{std::nullopt, nullptr})
    {
    }

    FormatArgument(const QString &text)
        : m_value(Object{text, &text})
    {
    }

    /// A C string in the system encoding, up to its terminator; null is an absent text. Bytes that are not
    /// valid there are read as Latin-1, so that a log line shows them rather than nothing.
    FormatArgument(const char *text);

    template<std::same_as<std::optional<QString>> Text>
    FormatArgument(const Text &text)
        : m_value(Object{text, &text})
    {
    }

    template<std::same_as<QVariant> Variant>
    FormatArgument(const Variant &value)
        : m_value(Object{platform::description(value), &value})
    {
    }

    template<Described Type>
    FormatArgument(const Type &object)
        : m_value(Object{QString(object.description()), &object})
    {
    }

    /// An object by address, alive or null; or any other address, which is only shown.
    template<typename Type>
    FormatArgument(const Type *object)
        : m_value(Object{object ? std::optional(describe(object)) : std::nullopt, object})
    {
    }

    template<typename Type>
    FormatArgument(const std::shared_ptr<Type> &object)
        : FormatArgument(static_cast<const Type *>(object.get()))
    {
    }

    template<typename Type>
    FormatArgument(const std::unique_ptr<Type> &object)
        : FormatArgument(static_cast<const Type *>(object.get()))
    {
    }

    const Value &value() const { return m_value; }

    /// True for a null pointer and an absent text.
    bool isNull() const;

    /// The argument as "%@" shows it; "(null)" when it is null.
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
