// SPDX-License-Identifier: Apache-2.0
#include "OptionRows.h"

#include "PanelTexts.h"

#include <QComboBox>
#include <QFormLayout>

namespace rollcutter {

namespace {

/// A list of choices that stays as narrow as the dialog: long texts of a PPD are shown in full when it is
/// open. A size adjust policy would create the open list at once.
class ChoiceBox : public QComboBox {
public:
    ChoiceBox() { setMinimumContentsLength(minimumLength); }

    QSize sizeHint() const override { return minimumSizeHint(); }

private:
    static constexpr int minimumLength = 18;
};

} // namespace

OptionRows::OptionRows(const RollRules &rules, const PrinterOptions &options, const ChoicesHook &chosen)
    : m_layout(new QFormLayout)
{
    for (const RollRow &row : rules.rows()) {
        const QString keyword = QString::fromLatin1(row.keyword);
        auto *const box = new ChoiceBox;
        box->setObjectName(keyword);
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        for (const OptionChoice &choice : options.choices(keyword))
            box->addItem(PanelTexts::choiceText(options, keyword, choice.name), choice.name);
        // The signal activated() is sent for the user's choices only.
        QObject::connect(box, &QComboBox::activated, box, [chosen, box, keyword](int index) {
            chosen({{keyword, box->itemData(index).toString()}});
        });
        // The label is the buddy, and so the accessible name, of the box.
        m_layout->addRow(options.text(keyword) + u':', box);
        m_rows.push_back({keyword, box});
    }
}

void OptionRows::showChoices(const PrinterOptions &options, const Reason &reason)
{
    for (const Row &row : m_rows) {
        const QString choice = options.current(row.keyword).value_or(QString());
        int index = row.box->findData(choice);
        if (index < 0 && !choice.isEmpty()) {
            // A custom value, for example one that a command line has set.
            row.box->addItem(PanelTexts::choiceText(options, row.keyword, choice), choice);
            index = row.box->count() - 1;
        }
        row.box->setCurrentIndex(index);
        const std::optional<QString> why = reason(row.keyword);
        row.box->setEnabled(!why);
        row.box->setToolTip(why.value_or(row.box->currentText()));
    }
}

} // namespace rollcutter
