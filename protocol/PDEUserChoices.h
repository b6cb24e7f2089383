// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>

#include <QString>
#include <QVariantMap>

#include <optional>
#include <utility>
#include <vector>

/// Choices of PPD options: keyword and choice, each keyword once.
using PDEChoices = std::vector<std::pair<QString, QString>>;

/// Optional interface of a panel, version 1: applies choices that the user made before, or made elsewhere.
///
/// A panel's class derives from it beside PDEPanel, and the dialog finds it with dynamic_cast. A panel that
/// refreshes its controls from the PPD's marks may lose what only its own controls had; the dialog, which
/// knows what the panel would have saved before, restores it here.
class KV_EXPORT PDEUserChoices_v1 {
public:
    virtual ~PDEUserChoices_v1() = default;

    /// What the panel's controls show: keyword and choice of each option that it handles. It differs from
    /// what the panel saves where a rule of the panel replaces a choice and leaves its control as it is.
    /// Changes nothing.
    virtual PDEChoices shownChoices() const = 0;

    /// How often the user has chosen a ready-made combination since the panel was made; always 0 for a panel
    /// without combinations. A combination is the user's choice of all its options, even where it changes
    /// nothing: the dialog compares the number with the one it knows, and no longer asks for what the user
    /// chose of these options before.
    virtual int combinationsChosen() const = 0;

    /// Makes each choice as though the user had made it on the panel's own control: the control shows it, the
    /// dialog receives it through willChangePPDOptionKeyValue(), and the panel's rules are applied. No alert
    /// is shown. A choice that its control shows anyway is skipped, and so is one whose control is hidden or
    /// which the option does not have. A control that is disabled receives the choice all the same, since its
    /// state is saved. The caller sees what came of it by letting the panel save. The panel decides the
    /// order, so that a choice that enables another one is made first.
    virtual void applyUserChoices(const PDEChoices &choices) = 0;
};

/// Optional interface of a panel, version 1: summarizes choices that are not marked in the PPD. Of a panel
/// without it the dialog shows summaryInfo(), which may be behind the panel's controls.
class KV_EXPORT PDEChoiceSummary_v1 {
public:
    virtual ~PDEChoiceSummary_v1() = default;

    /// As PDEPanel::summaryInfo(), but for these choices. An option that is not among them counts as it is
    /// marked. Changes nothing.
    virtual std::optional<QVariantMap> summaryInfoFor(const PDEChoices &choices) const = 0;
};
