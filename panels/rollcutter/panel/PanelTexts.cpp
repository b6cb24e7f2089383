// SPDX-License-Identifier: Apache-2.0
#include "PanelTexts.h"

namespace rollcutter {

QString PanelTexts::text(const QString &key) const
{
    return m_bundle ? m_bundle->localizedStringForKey(key) : key;
}

QString PanelTexts::settingText(const CutSetting &setting) const
{
    if (setting.style == CutStyle::EveryFew)
        return text(QStringLiteral("CUT_EVERY_NUMBER")).arg(setting.labels);
    return buttonText(setting);
}

QString PanelTexts::buttonText(const CutSetting &setting) const
{
    if (setting.style == CutStyle::Other && !setting.text.isEmpty())
        return setting.text;
    return text(QString::fromLatin1(cutStyleRow(setting.style).textKey));
}

QString PanelTexts::choiceText(const PrinterOptions &options, const QString &keyword, const QString &choice)
{
    for (const OptionChoice &listed : options.choices(keyword)) {
        if (listed.name == choice)
            return listed.text.isEmpty() ? choice : listed.text;
    }
    const QString custom = QStringLiteral("Custom.");
    return choice.startsWith(custom) ? choice.mid(custom.size()) : choice;
}

} // namespace rollcutter
