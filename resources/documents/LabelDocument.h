// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>

#include <functional>
#include <vector>

class QPainter;

namespace documents {

/// A PDF document of labels, one a page.
///
/// A page is as wide as the tape and as high as the label is long, as the papers of tape printers are.
/// What is on it runs along the tape, from the page's upper edge downwards: the label is read by turning
/// the page to the left.
class LabelDocument {
public:
    /// Tenths of a millimetre: the units in which labels are drawn.
    static constexpr double unitsPerMillimetre = 10.0;

    explicit LabelDocument(QString title);

    /// Adds a label of that width across the tape and length along it, in millimetres. The painter has the
    /// label's upper left corner, as it is read, at its origin; x runs along the tape.
    void addLabel(QSizeF millimetres, std::function<void(QPainter &)> draw);
    /// Adds a label on which nothing is printed.
    void addBlankLabel(QSizeF millimetres);

    /// The document, with its fonts' used parts in it.
    QByteArray pdf() const;

private:
    struct Label {
        QSizeF millimetres;
        std::function<void(QPainter &)> draw;
    };

    QString m_title;
    std::vector<Label> m_labels;
};

} // namespace documents
