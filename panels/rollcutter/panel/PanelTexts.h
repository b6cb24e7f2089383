// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Bundle.h>
#include <rollcutter/rules/CutGroup.h>

#include <QString>

#include <memory>
#include <utility>

namespace rollcutter {

/// The texts of the panel, in the language of the bundle.
class PanelTexts {
public:
    /// Shares the bundle. Null stands for a bundle without texts, where each key is its own text.
    explicit PanelTexts(std::shared_ptr<const platform::Bundle> bundle)
        : m_bundle(std::move(bundle))
    {
    }

    /// The text of the key; the key itself if the bundle does not have it.
    QString text(const QString &key) const;
    /// The way to cut, with the number of labels: "Cut after every 5 labels".
    QString settingText(const CutSetting &setting) const;
    /// The title of a way to cut on its radio button: "Cut after every", before the field with the number.
    QString buttonText(const CutSetting &setting) const;
    /// The choice of the option as the PPD describes it; for a custom number, the number.
    static QString choiceText(const PrinterOptions &options, const QString &keyword, const QString &choice);

private:
    std::shared_ptr<const platform::Bundle> m_bundle;
};

} // namespace rollcutter
