// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutGroup.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace rollcutter {

/// When an option of the roll has an effect.
enum class RowRule {
    Always,
    OnlyTearing, ///< only while the user tears the labels off
    NotCutting,  ///< not while the printer cuts
};

/// An option that the panel shows as a list of the PPD's choices.
struct RollRow {
    const char *keyword;
    RowRule rule;
    /// Printers of all kinds may have an option with this name. It is shown only beside other options of the
    /// roll, and left to the dialog if it has custom values, for which the dialog has fields.
    bool isCommon;
};

/// These options, in the order in which the panel shows them. The names with hyphens are those of the IPP
/// attributes, for PPDs that are made from the attributes of a printer.
inline constexpr RollRow rollRows[] = {
    {"inTearInterval", RowRule::OnlyTearing, false},
    {"inCutInterval", RowRule::Always, false},
    {"zeMediaTracking", RowRule::Always, false},
    {"media-tracking", RowRule::Always, false},
    {"label-mode", RowRule::Always, false},
    {"zeLabelTop", RowRule::Always, false},
    {"zeTearOffPosition", RowRule::NotCutting, false},
    {"Darkness", RowRule::Always, true},
    {"cupsDarkness", RowRule::Always, true},
    {"inPrintDensity", RowRule::Always, true},
    {"print-darkness", RowRule::Always, true},
    {"zePrintRate", RowRule::Always, true},
    {"inPrintRate", RowRule::Always, true},
    {"print-speed", RowRule::Always, true},
};

/// The options of the roll printer that the panel shows and the rules between them.
class RollRules {
public:
    /// The rules for the options that the PPD has.
    explicit RollRules(const PrinterOptions &options);

    /// The options that select a way to cut, with their settings.
    const std::vector<CutGroup> &groups() const { return m_groups; }
    /// The options that are shown as lists, in display order: those that no group chooses.
    const std::vector<RollRow> &rows() const { return m_rows; }
    /// All options of the panel.
    const QStringList &keywords() const { return m_keywords; }

    /// Returns the key of the text that explains why the option cannot be changed at the moment; absent if it
    /// can, or if it is no option of the panel.
    std::optional<QString> disabledReason(const QString &keyword, const PrinterOptions &options) const;

    /// The style that the group has with the current choices; CutStyle::Other if there is none.
    static CutStyle styleOf(const CutGroup &group, const PrinterOptions &options);
    /// Whether the user tears the labels off: a group says so and none cuts.
    bool isTorn(const PrinterOptions &options) const;
    /// Returns the key of a sentence about what happens to the strip; absent if the places of the cuts say
    /// everything.
    std::optional<QString> stripText(const PrinterOptions &options) const;

private:
    void addRow(const RollRow &row, const PrinterOptions &options);
    bool isCut(const PrinterOptions &options) const;

    std::vector<CutGroup> m_groups;
    std::vector<RollRow> m_rows;
    QStringList m_keywords;
};

} // namespace rollcutter
