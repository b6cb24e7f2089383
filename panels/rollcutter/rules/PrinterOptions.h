// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDEUserChoices.h>

#include <cups/ppd.h>

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace rollcutter {

/// A choice that the PPD lists.
struct OptionChoice {
    QString name;
    /// The text for the user, in the language of the PPD.
    QString text;
    /// The PostScript code, from which CUPS makes the header of the raster pages.
    QByteArray code;
};

/// The options of a printer with the choices of one job: the given choices, and for all other options the
/// marks of the PPD. Reads only.
class PrinterOptions {
public:
    /// The PPD must outlive the object. Null stands for a printer without a PPD, which has no options.
    explicit PrinterOptions(ppd_file_t *ppd, PDEChoices given = {});

    /// Whether the PPD has the option.
    bool has(const QString &keyword) const { return option(keyword); }
    /// The option's text for the user; empty if the PPD does not have the option.
    QString text(const QString &keyword) const;
    /// The choices of the option in the order of the PPD, without the custom choice; empty if the PPD does
    /// not have the option.
    std::vector<OptionChoice> choices(const QString &keyword) const;
    /// The choice of the job: the given one, otherwise the marked one, otherwise the default of the PPD.
    /// Absent if there is none. A custom number is "Custom.NUMBER".
    std::optional<QString> current(const QString &keyword) const;
    /// Whether the option accepts custom values besides its listed choices.
    bool hasCustom(const QString &keyword) const;
    /// The smallest and the largest whole number that the custom choice of the option accepts; absent if it
    /// accepts none, or if its PostScript code loses the number.
    std::optional<std::pair<int, int>> customRange(const QString &keyword) const;
    /// Whether the choice of the option reaches the filters of CUPS. The PostScript code of a choice sets
    /// fields of the raster pages; a field that the code of a later option sets again is lost. In one of
    /// CUPS's own drivers, the resolution overwrites the intervals and the speed in this way.
    bool isSent(const QString &keyword) const;

private:
    ppd_option_t *option(const QString &keyword) const;
    const ppd_cparam_t *customNumber(const QString &keyword) const;

    ppd_file_t *m_ppd;
    PDEChoices m_given;
};

} // namespace rollcutter
