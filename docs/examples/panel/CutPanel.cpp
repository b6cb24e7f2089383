// SPDX-License-Identifier: Apache-2.0
#include "CutPanel.h"

CutPanel::CutPanel(std::shared_ptr<PDEPluginCallback13_v400_> dialog)
    : m_dialog(std::move(dialog))
    , m_box(QStringLiteral("Cut after every label"))
{
    // The signal clicked() is the user's; setChecked() does not send it.
    QObject::connect(&m_box, &QCheckBox::clicked, [this] { saveValuesAndReturnError(nullptr); });
    ppd_file_t *const ppd = m_dialog->ppdFile();
    const ppd_option_t *const option = ppd ? ppdFindOption(ppd, "CutMedia") : nullptr;
    if (option && option->num_choices >= 2)
        m_choices = {option->choices[0].choice, option->choices[1].choice};
}

std::optional<QStringList> CutPanel::supportedPPDOptionKeys()
{
    return m_choices.isEmpty() ? std::nullopt : std::optional(QStringList{keyword});
}

QString CutPanel::markedChoice() const
{
    const ppd_choice_t *const marked =
        m_choices.isEmpty() ? nullptr : ppdFindMarkedChoice(m_dialog->ppdFile(), "CutMedia");
    return marked ? QString::fromUtf8(marked->choice) : QString();
}

bool CutPanel::restoreValuesAndReturnError(QString *)
{
    m_box.setChecked(!m_choices.isEmpty() && markedChoice() == m_choices[1]);
    return true;
}

bool CutPanel::saveValuesAndReturnError(QString *)
{
    // The dialog marks the choice; a panel never marks the PPD itself.
    if (!m_choices.isEmpty())
        m_dialog->willChangePPDOptionKeyValue(keyword, m_choices[m_box.isChecked() ? 1 : 0]);
    return true;
}

std::optional<QVariantMap> CutPanel::summaryInfo()
{
    const QString value = m_box.isChecked() ? QStringLiteral("Yes") : QStringLiteral("No");
    return QVariantMap{{m_box.text(), value}, {PDESummaryDisplayOrderKey, QStringList{m_box.text()}}};
}

PDEStripEffects CutPanel::stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const
{
    if (m_choices.isEmpty())
        return {};
    // A choice of the job counts; without one, the choice that is marked in the PPD.
    QString choice = markedChoice();
    for (const auto &[key, value] : choices) {
        if (key == keyword)
            choice = value;
    }
    PDEStripEffects effects{.cutting = PDECutting::Known};
    effects.ends.assign(labels.size(), PDELabelEnd{.fullCut = choice == m_choices[1]});
    return effects;
}
