// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDELabelStrip.h>
#include <protocol/PDEPanel.h>
#include <protocol/PDEPluginCallback.h>

#include <QCheckBox>

#include <memory>

/// A panel with one check box for the PPD option "CutMedia": unchecked for its first choice, usually "None",
/// and checked for its second one, which cuts after every label.
class CutPanel : public PDEPanel, public PDELabelStrip_v1 {
public:
    /// Keeps the dialog's callback object, through which the panel reads the PPD and changes options.
    explicit CutPanel(std::shared_ptr<PDEPluginCallback13_v400_> dialog);

    QWidget *panelView() override { return &m_box; }
    QString panelName() override { return QStringLiteral("Cutter"); }
    QString panelKind() const override { return QStringLiteral("org.example.FullCut"); }
    std::optional<QStringList> supportedPPDOptionKeys() override;
    void willShow() override { restoreValuesAndReturnError(nullptr); }
    void printWindowWillClose(QWidget *) override {}
    bool shouldHide() const override { return false; }
    bool shouldPrint() override { return true; }
    bool shouldShowHelp() const override { return false; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &, const std::optional<QString> &) override
    {
        restoreValuesAndReturnError(nullptr);
    }
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    std::optional<QVariantMap> summaryInfo() override;
    PDEStripEffects stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const override;

private:
    inline static const QString keyword = QStringLiteral("CutMedia");
    QString markedChoice() const;

    std::shared_ptr<PDEPluginCallback13_v400_> m_dialog;
    /// The names of the option's first and second choice; empty if the printer has no cutter.
    QStringList m_choices;
    QCheckBox m_box;
};
