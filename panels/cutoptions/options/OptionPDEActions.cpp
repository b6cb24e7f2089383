// SPDX-License-Identifier: Apache-2.0
// Handlers of user actions, which pass the selected choices of the PPD to the dialog.
#include "Controls.h"
#include "OptionPDE.h"

#include <platform/Alert.h>
#include <platform/Numbers.h>

#include <algorithm>
#include <limits>

namespace {

// The range of counts for a printer that does not list its counts.
constexpr int minCount = 1;
constexpr int maxCount = 99;

int countFromTitle(const PDEChoice &choice)
{
    return platform::integerValue(choice.ppdTitle().value_or(QString()));
}

} // namespace

const OptionRow *OptionPDE13_v400_::rowOfBox(const QWidget *box) const
{
    const auto found = std::ranges::find_if(
        optionTable, [&](const OptionRow &row) { return box && checkBox(row.kind) == box; });
    return found == optionTable.end() ? nullptr : &*found;
}

void OptionPDE13_v400_::changeOption(const QWidget *sender)
{
    if (mOptionView)
        mOptionView->update();
    if (const OptionRow *const row = rowOfBox(sender)) {
        const int state = controls::state(checkBox(row->kind));
        const bool cutsAutomatically = row->edits == OptionKind::AutoCut;
        if (cutsAutomatically && state == 1 && isHSTapePage())
            platform::Alert{QString(), localized(QStringLiteral("RS_Alrt_AutoCutWithHS")),
                            QStringLiteral("OK")}
                .runModal(kPDEView);
        chooseBoxState(*row);
    }
    enabledCheck_OP();
}

void OptionPDE13_v400_::chooseBoxState(const OptionRow &edited)
{
    selectionForItem(controls::state(checkBox(edited.kind)), QLatin1String(optionRow(edited.edits).keyword),
                     choices(edited.edits), edited.item);
    updateUIItem(edited.item);
}

int OptionPDE13_v400_::CountRange::clamped(int count) const
{
    return count < low ? low : std::min(count, high);
}

int OptionPDE13_v400_::CountRange::indexOf(int count) const
{
    // The bounds are arbitrary integers if the list is not sorted, so the difference may exceed the range of
    // int.
    const auto index = static_cast<std::int64_t>(count) - low;
    return index >= 0 && index <= std::numeric_limits<int>::max() ? static_cast<int>(index) : -1;
}

OptionPDE13_v400_::CountRange OptionPDE13_v400_::countRange() const
{
    const PDEChoiceList *const counts = choices(OptionKind::CutLabel);
    if (!counts || counts->empty())
        return {minCount, maxCount};
    return {countFromTitle(*counts->front()), countFromTitle(*counts->back())};
}

void OptionPDE13_v400_::changeCutEveryValue(const QWidget *sender)
{
    const CountRange counts = countRange();
    const bool stepped = sender && sender == mCutEveryStpr;
    const bool typed = sender && sender == mCutEveryTxBx;
    int count = 0;
    if (stepped || typed) {
        const QString text = typed ? mCutEveryTxBx->text() : QString();
        count = counts.clamped(stepped ? mCutEveryStpr->value() : platform::integerValue(text));
        if (mCutEveryStpr)
            mCutEveryStpr->setValue(count);
        showCount(QString::number(count));
        // A user who clears the field wants to type another number. The count that is inserted instead is
        // selected, so that the next digit replaces it.
        if (typed && std::ranges::none_of(text, [](QChar character) { return character.isDigit(); }))
            mCutEveryTxBx->selectAll();
    }
    const OptionRow &row = optionRow(OptionKind::CutLabel);
    selectionForItem(counts.indexOf(count), QLatin1String(row.keyword), choices(row.kind), row.item);
    updateUIItem(row.item);
}

void OptionPDE13_v400_::showCount(const QString &text)
{
    if (!mCutEveryTxBx || mCutEveryTxBx->text() == text)
        return;
    // The text may change while the user is typing: the cursor stays before the same number of trailing
    // digits.
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
    ++mCombinationsChosen;
    updateUIItem(ItemType::OptionPopUp);
}
