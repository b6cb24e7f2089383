// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>

#include <QString>
#include <QVariantMap>

#include <optional>
#include <utility>
#include <vector>

/// Choices of PPD options as pairs of keyword and choice; each keyword occurs once.
using PDEChoices = std::vector<std::pair<QString, QString>>;

/// Optional interface of a panel, version 1: applies choices that the user made earlier or in another place.
///
/// A panel's class derives from it in addition to PDEPanel, and the dialog finds it with dynamic_cast. A
/// panel that refreshes its controls from the marks of the PPD may lose choices that only its controls held;
/// the dialog, which knows what the panel would have saved before, restores them with this interface.
class KV_EXPORT PDEUserChoices_v1 {
public:
    virtual ~PDEUserChoices_v1() = default;

    /// Returns the choices that the panel's controls show: keyword and choice of each option that the panel
    /// handles. They differ from the saved choices where a rule of the panel replaces a choice without
    /// changing its control. Changes nothing.
    virtual PDEChoices shownChoices() const = 0;

    /// Returns how many times the user has chosen a predefined combination since the panel was created;
    /// always 0 for a panel without combinations. A combination is the user's choice of all its options,
    /// including those that it does not change: when the number changes, the dialog discards the user's
    /// earlier choices of these options.
    virtual int combinationsChosen() const = 0;

    /// Sets each choice as if the user had made it with the panel's own control: the control shows it, the
    /// dialog receives it through willChangePPDOptionKeyValue(), and the panel applies its rules. No alert is
    /// shown. Skips a choice that the control already shows, whose control is hidden, or that the option does
    /// not have. A disabled control still receives its choice, because its state is saved. The caller obtains
    /// the result by saving the panel's values. The panel determines the order, so that a choice that enables
    /// another one is set first.
    virtual void applyUserChoices(const PDEChoices &choices) = 0;
};

/// Optional interface of a panel, version 1: summarizes choices that are not marked in the PPD. For a panel
/// without it, the dialog shows summaryInfo(), which may be older than the state of the panel's controls.
class KV_EXPORT PDEChoiceSummary_v1 {
public:
    virtual ~PDEChoiceSummary_v1() = default;

    /// Returns the same as PDEPanel::summaryInfo(), but for these choices. For an option that is not among
    /// them, the choice that is marked in the PPD is used. Changes nothing.
    virtual std::optional<QVariantMap> summaryInfoFor(const PDEChoices &choices) const = 0;
};
