// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelTexts.h"
#include "RollView.h"

#include <protocol/PDEControlReasons.h>
#include <protocol/PDELabelStrip.h>
#include <protocol/PDEPanel.h>
#include <protocol/PDEPanelHelp.h>
#include <protocol/PDEPluginCallback.h>
#include <protocol/PDEUserChoices.h>
#include <rollcutter/rules/RollRules.h>

#include <memory>

namespace rollcutter {

/// The panel for printers of labels on a roll: where the printer cuts, and how it handles the roll.
///
/// The choices of the controls are one list, m_choices. The user's input and the marks of the PPD change the
/// list, and everything else is made from it: the state of the controls, the preview, and what is saved.
class RollPanel final : public PDEPanel,
                        public PDELabelStrip_v1,
                        public PDEUserChoices_v1,
                        public PDEChoiceSummary_v1,
                        public PDEControlReasons_v1,
                        public PDEPanelHelp_v1 {
public:
    /// A panel for the dialog's printer; its controls show the marks of the PPD.
    RollPanel(std::shared_ptr<PDEPluginCallback13_v400_> dialog,
              std::shared_ptr<const platform::Bundle> bundle);

    // PDEPanel
    QWidget *panelView() override;
    QString panelName() override;
    QString panelKind() const override;
    std::optional<QStringList> supportedPPDOptionKeys() override;
    void willShow() override;
    void printWindowWillClose(QWidget *) override {}
    bool shouldHide() const override { return false; }
    bool shouldPrint() override { return true; }
    bool shouldShowHelp() const override { return true; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                    const std::optional<QString> &choice) override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    std::optional<QVariantMap> summaryInfo() override { return summaryInfoFor({}); }

    // The optional interfaces
    PDEStripEffects stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const override;
    PDEChoices shownChoices() const override { return m_choices; }
    int combinationsChosen() const override { return 0; }
    void applyUserChoices(const PDEChoices &choices) override;
    std::optional<QVariantMap> summaryInfoFor(const PDEChoices &choices) const override;
    std::optional<QString> reasonForDisabled(const QString &keyword) const override;
    QString helpText() const override;

private:
    ppd_file_t *ppd() const { return m_dialog->ppdFile(); }
    bool canChoose(const QString &keyword, const QString &choice) const;
    void choose(const PDEChoices &choices);
    void showChoices();

    std::shared_ptr<PDEPluginCallback13_v400_> m_dialog;
    PanelTexts m_texts;
    RollRules m_rules;
    /// The choice of each option of the panel that the controls show.
    PDEChoices m_choices;
    /// Null until the view is requested.
    std::unique_ptr<RollView> m_view;
};

} // namespace rollcutter
