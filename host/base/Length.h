// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSizeF>

#include <compare>

namespace host {
inline namespace base {

/// One inch in other units. A point is that of PostScript and PDF, 1/72 inch.
inline constexpr double pointsPerInch = 72.0;
inline constexpr double millimetresPerInch = 25.4;
inline constexpr double metresPerInch = millimetresPerInch / 1000.0;

/// A length in one unit, like a std::chrono::duration. PPDs and PDFs measure in points, tapes and the user
/// interface in millimetres: because each unit has a type of its own, a length in points cannot be used as
/// one in millimetres. Numbers and lengths in other units are converted explicitly.
template<const double &unitsPerInch>
class Length {
public:
    /// A length of 0.
    constexpr Length() = default;
    /// The length of this number of units.
    constexpr explicit Length(double number)
        : m_number(number)
    {
    }
    /// The same length in this unit.
    template<const double &otherPerInch>
    constexpr explicit Length(Length<otherPerInch> other)
        : m_number(other.number() * (unitsPerInch / otherPerInch))
    {
    }

    /// The number of units.
    constexpr double number() const { return m_number; }

    // Lengths are added to lengths, and multiplied and divided by numbers.
    constexpr Length &operator+=(Length other) { return *this = *this + other; }
    constexpr Length &operator-=(Length other) { return *this = *this - other; }
    friend constexpr Length operator+(Length a, Length b) { return Length(a.m_number + b.m_number); }
    friend constexpr Length operator-(Length a, Length b) { return Length(a.m_number - b.m_number); }
    friend constexpr Length operator*(Length length, double by) { return Length(length.m_number * by); }
    friend constexpr Length operator*(double by, Length length) { return Length(length.m_number * by); }
    friend constexpr Length operator/(Length length, double by) { return Length(length.m_number / by); }
    /// The ratio of two lengths.
    friend constexpr double operator/(Length left, Length right) { return left.m_number / right.m_number; }
    // clang-tidy 14 reports the 0 with which the compiler writes "left < right".
    friend constexpr auto operator<=>(Length, Length) = default; // NOLINT(modernize-use-nullptr)

private:
    double m_number = 0.0;
};

using Points = Length<pointsPerInch>;
using Millimetres = Length<millimetresPerInch>;
using Metres = Length<metresPerInch>;

/// "12.5_mm" is Millimetres(12.5).
constexpr Millimetres operator""_mm(long double number)
{
    return Millimetres(static_cast<double>(number));
}

/// Returns a size in points as one in millimetres, and the other way round. Widths and heights that Qt's
/// classes calculate with stay QSizeF; the names of these functions are where their unit changes.
inline QSizeF inMillimetres(const QSizeF &points)
{
    return {Millimetres(Points(points.width())).number(), Millimetres(Points(points.height())).number()};
}
inline QSizeF inPoints(const QSizeF &millimetres)
{
    return {Points(Millimetres(millimetres.width())).number(),
            Points(Millimetres(millimetres.height())).number()};
}

} // namespace base
} // namespace host
