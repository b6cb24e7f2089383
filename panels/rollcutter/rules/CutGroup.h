// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CutStyle.h"
#include "PrinterOptions.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace rollcutter {

/// The ways to cut between which one option of the printer selects, with the number of labels from a second
/// option where the printer has one.
///
/// The options are those of CUPS's own label drivers (inPrintMode with inCutInterval, and zePrintMode) and
/// CutMedia, which PPD 4.3 defines and which libcups gives to a driverless printer that can trim.
class CutGroup {
public:
    /// The groups of the printer, one for each of the options that it has.
    static std::vector<CutGroup> groupsOf(const PrinterOptions &options);

    /// The option that selects the way to cut, and its text in the PPD.
    const QString &keyword() const { return m_keyword; }
    const QString &title() const { return m_title; }
    /// All options that the settings of the group choose.
    const QStringList &keywords() const { return m_keywords; }
    /// All settings, in the order of the PPD.
    const std::vector<CutSetting> &settings() const { return m_settings; }
    /// The numbers of labels of the settings with CutStyle::EveryFew, in ascending order; empty without such
    /// a setting.
    std::vector<int> intervals() const;

    /// The index of the setting that the job has; absent if its choices are those of no setting.
    std::optional<std::size_t> current(const PrinterOptions &options) const;
    /// The index of the first setting with the style, and for CutStyle::EveryFew with the number of labels;
    /// absent if there is none.
    std::optional<std::size_t> find(CutStyle style, int labels) const;

private:
    CutGroup(const PrinterOptions &options, const QString &keyword);

    void add(const OptionChoice &choice);
    void addIntervals(const PrinterOptions &options, const PDEChoices &mode, const QString &intervalKeyword);

    QString m_keyword;
    QString m_title;
    QStringList m_keywords;
    std::vector<CutSetting> m_settings;
};

} // namespace rollcutter
