// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Theme.h"

#include <QSize>
#include <QStringList>

#include <initializer_list>
#include <utility>

namespace pictures {

/// The size of every picture in points. It fits the panel's preview, which draws it unscaled.
constexpr QSize naturalSize(184, 80);

/// One picture while it is put together from the parts in parts/NAME.svg.
///
/// A part is a piece of SVG with names between at signs: those of the theme's colours, and numbers
/// in points (x to the right, y downwards from the picture's upper left corner) that whoever adds
/// the part gives. Later parts cover earlier ones.
class Drawing {
public:
    using Numbers = std::initializer_list<std::pair<const char *, double>>;

    explicit Drawing(Theme theme);

    /// Draws the part with these numbers. A part that does not exist, or that names something
    /// neither the theme nor the caller gives, is left out and becomes one of problems().
    void add(const QString &part, Numbers numbers);

    /// The whole picture as an SVG document.
    QString svg() const;

    /// What went wrong so far, one sentence each that names the part; empty when nothing did.
    const QStringList &problems() const { return m_problems; }

private:
    QString filledIn(const QString &part, QString text, Numbers numbers);

    Theme m_theme;
    QString m_content;
    QStringList m_problems;
};

} // namespace pictures
