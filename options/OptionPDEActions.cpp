// SPDX-License-Identifier: Apache-2.0
// What the user does with the controls, handed on as choices of the PPD.
#include "Controls.h"
#include "OptionPDE.h"

#include <platform/Alert.h>
#include <platform/Numbers.h>

#include <algorithm>
#include <limits>

namespace {

// The counts of a printer that does not list its own.
constexpr int smallestCount = 1;
constexpr int largestCount = 99;

} // namespace

const OptionPDE13_v400_::OptionRow *OptionPDE13_v400_::rowOfBox(const QWidget *box) const
{
    const auto found =
        std::ranges::find_if(optionTable, [&](const OptionRow &row) { return box && this->*row.box == box; });
    return found == optionTable.end() ? nullptr : &*found;
}

void OptionPDE13_v400_::changeOption(const QWidget *sender)
{
    if (mOptionView)
        mOptionView->update();
    if (const OptionRow *const row = rowOfBox(sender)) {
        const int state = controls::state(this->*row->box);
        const bool cutsAutomatically = row->boxChoices == &OptionPDE13_v400_::mAutoCut_Choices;
        if (cutsAutomatically && state == 1 && isHSTapePage())
            platform::Alert{QString(), localized(QStringLiteral("RS_Alrt_AutoCutWithHS")),
                            QStringLiteral("OK")}
                .runModal(kPDEView);
        selectionForItem(state, QLatin1String(row->boxKeyword), (this->*row->boxChoices).get(), row->item);
        updateUIItem(row->item);
    }
    enabledCheck_OP();
}

int OptionPDE13_v400_::countFromTitle(const PDEChoice &choice) const
{
    return platform::integerValue(choice.ppdTitle().value_or(QString()));
}

void OptionPDE13_v400_::changeCutEveryValue(const QWidget *sender)
{
    const bool listed = mCutEvery_Choices && !mCutEvery_Choices->empty();
    const int low = listed ? countFromTitle(*mCutEvery_Choices->front()) : smallestCount;
    const int high = listed ? countFromTitle(*mCutEvery_Choices->back()) : largestCount;
    const auto clamped = [low, high](int count) { return count < low ? low : std::min(count, high); };

    int count = 0;
    if (sender && sender == mCutEveryStpr) {
        count = clamped(mCutEveryStpr->value());
        mCutEveryStpr->setValue(count);
        showCount(QString::number(count));
    } else if (sender && sender == mCutEveryTxBx) {
        const QString typed = mCutEveryTxBx->text();
        count = clamped(platform::integerValue(typed));
        showCount(QString::number(count));
        // Who clears the field wants to type another number: what stands there instead is selected, so that
        // the next digit replaces it.
        if (std::ranges::none_of(typed, [](QChar character) { return character.isDigit(); }))
            mCutEveryTxBx->selectAll();
        mCutEveryStpr->setValue(count);
    }
    const OptionRow &row = OptionPDE13_v400_::row(OptionKind::CutLabel);
    // A list out of order can put the bounds anywhere; an index that no list can have chooses nothing.
    const auto index = static_cast<std::int64_t>(count) - low;
    selectionForItem(index >= 0 && index <= std::numeric_limits<int>::max() ? static_cast<int>(index) : -1,
                     QLatin1String(row.keyword), mCutEvery_Choices.get(), row.item);
    updateUIItem(row.item);
}

void OptionPDE13_v400_::showCount(const QString &text)
{
    if (!mCutEveryTxBx || mCutEveryTxBx->text() == text)
        return;
    // The field may be rewritten while somebody types in it: the cursor stays before the same last digits.
    const qsizetype fromEnd = mCutEveryTxBx->text().size() - mCutEveryTxBx->cursorPosition();
    mCutEveryTxBx->setText(text);
    mCutEveryTxBx->setCursorPosition(static_cast<int>(std::max<qsizetype>(text.size() - fromEnd, 0)));
}

void OptionPDE13_v400_::controlTextDidChange(const QWidget *object)
{
    if (object && object == mCutEveryTxBx)
        changeCutEveryValue(object);
}

void OptionPDE13_v400_::changeOptionPopUpButton(const QWidget *)
{
    updateUIItem(ItemType::OptionPopUp);
}
