// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace model {

/// One choice of a printer option, as a PPD spells it.
struct ChoiceDescription {
    QString keyword;
    QString text;
};

/// One option of a printer's PPD. A PPD may leave the default out, or name one that it does not offer.
struct OptionDescription {
    QString keyword;
    QString text;
    std::vector<ChoiceDescription> choices;
    std::optional<QString> defaultChoice;
};

/// A printer as its maker describes it, which is all that the model knows of its PPD.
struct PrinterDescription {
    std::vector<OptionDescription> options;
    /// The names of the page sizes, in the PPD's order.
    QStringList papers;
    std::optional<QString> tapeType;
    std::optional<QString> autoCutObjHidden;

    /// The option with the keyword, found as libcups finds it, without regard to case; null when absent.
    const OptionDescription *option(const QString &keyword) const;
};

/// An off/on option of the usual form, with its title in English.
OptionDescription switchOption(const QString &keyword, const QString &text, bool on);
/// A count option with the counts from first to last.
OptionDescription countOption(const QString &keyword, const QString &text, int first, int last, int standard);

} // namespace model
