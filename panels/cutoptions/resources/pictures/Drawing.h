// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Theme.h"

#include <QSize>
#include <QStringList>

#include <initializer_list>
#include <utility>

namespace pictures {

/// The size of every picture in points. It fits the preview of the panel, which draws pictures unscaled.
constexpr QSize naturalSize(184, 80);

/// Composes one picture from the parts in parts/NAME.svg.
///
/// A part is an SVG fragment with placeholders of the form @NAME@. A placeholder stands for a colour of the
/// theme or for a number that the caller of add() passes. Numbers are in points; x runs to the right and y
/// downwards from the upper left corner of the picture. Later parts cover earlier ones.
class Drawing {
public:
    /// The values of the numeric placeholders by name.
    using Numbers = std::initializer_list<std::pair<const char *, double>>;

    /// An empty picture in the colours of the theme.
    explicit Drawing(Theme theme);

    /// Adds the part with these numbers. A part that does not exist, or that has a placeholder without a
    /// value, is skipped and reported by errors().
    void add(const QString &part, Numbers numbers);

    /// Returns the picture as an SVG document.
    QString svg() const;

    /// The errors so far, one sentence each that names the part; empty without errors.
    const QStringList &errors() const { return m_errors; }

private:
    QString filledIn(const QString &part, QString text, Numbers numbers);

    Theme m_theme;
    QString m_content;
    QStringList m_errors;
};

} // namespace pictures
