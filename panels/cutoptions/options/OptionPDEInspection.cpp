// SPDX-License-Identifier: Apache-2.0
// The panel's state as JSON, for tools that check printers and reproduce bug reports.
#include "Controls.h"
#include "OptionPDE.h"

#include <platform/Geometry.h>
#include <platform/StaticText.h>

#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonObject controlState(const QWidget *control)
{
    const QRectF frame = platform::frameFromBottom(control);
    return {{"hidden", controls::isHidden(control)},
            {"enabled", controls::isEnabled(control)},
            {"x", frame.x()},
            {"y", frame.y()},
            {"width", frame.width()},
            {"height", frame.height()}};
}

QJsonObject with(QJsonObject object, const char *name, const QJsonValue &value)
{
    object.insert(QLatin1String(name), value);
    return object;
}

QJsonValue titleOf(const PDEChoice *choice)
{
    return choice && choice->ppdTitle() ? QJsonValue(*choice->ppdTitle()) : QJsonValue();
}

QJsonObject popUpState(const OptionPDE13_v400_ &panel)
{
    const platform::PopUpButton *const popUp = panel.popUp();
    QJsonArray items;
    for (int position = 0; popUp && position < popUp->count(); ++position) {
        const int tag = popUp->tagOfItem(position);
        items.append(QJsonObject{
            {"tag", tag}, {"title", popUp->itemText(position)}, {"enabled", panel.validateMenuItem(tag)}});
    }
    return {{"items", items}, {"selectedTag", popUp ? popUp->selectedTag() : 0}};
}

QJsonObject previewState(const OptionView13_v400_ *preview)
{
    if (!preview)
        return {{"present", false}, {"picture", QJsonValue()}};
    const QRectF frame = platform::frameFromBottom(preview);
    const platform::Image *const picture = preview->targetDrawImage();
    return {{"present", true},
            {"x", frame.x()},
            {"y", frame.y()},
            {"isDZ", preview->isDZ()},
            {"picture", picture ? QJsonValue(picture->name()) : QJsonValue()}};
}

QJsonObject countWordState(const QLabel &word)
{
    const auto *const text = dynamic_cast<const platform::StaticText *>(&word);
    const bool greyed = text && text->textColor() == platform::ControlTextColor::Disabled;
    return with(with(controlState(&word), "title", word.text()), "textColor",
                greyed ? QStringLiteral("disabled") : QStringLiteral("enabled"));
}

} // namespace

QJsonObject OptionPDE13_v400_::inspection() const
{
    if (!kPDEView)
        return {};
    QJsonObject controlStates;
    QJsonObject marked;
    QJsonObject selections{{"mAutoCut_CutEvery_Selection", titleOf(mAutoCut_CutEvery_Selection)}};
    for (const OptionRow &row : optionTable) {
        if (const QCheckBox *const box = checkBox(row.kind))
            controlStates.insert(
                QLatin1String(row.boxName),
                with(with(controlState(box), "state", controls::state(box)), "title", controls::title(box)));
        selections.insert(QLatin1String(row.selectionName), titleOf(selection(row.kind)));
        const ppd_choice_t *const choice = ppd ? ppdFindMarkedChoice(ppd, row.keyword) : nullptr;
        marked.insert(QLatin1String(row.keyword),
                      choice ? QJsonValue(QString::fromUtf8(choice->choice)) : QJsonValue());
    }
    if (mCutEveryTxBx)
        controlStates.insert(QStringLiteral("mCutEveryTxBx"),
                             with(controlState(mCutEveryTxBx), "text", mCutEveryTxBx->text()));
    if (mCutEveryStpr)
        controlStates.insert(QStringLiteral("mCutEveryStpr"),
                             with(controlState(mCutEveryStpr), "value", mCutEveryStpr->value()));
    if (mCutEveryStr)
        controlStates.insert(QStringLiteral("mCutEveryStr"), countWordState(*mCutEveryStr));
    return {
        {"view", QJsonObject{{"width", kPDEView->width()}, {"height", kPDEView->height()}}},
        {"controls", controlStates},
        {"popUp", popUpState(*this)},
        {"preview", previewState(mOptionView)},
        {"selections", selections},
        {"marked", marked},
        {"tapeState", mTapeState},
        {"flags", QJsonObject{{"set_formatSetting", set_formatSetting},
                              {"mAutoCutHideKey_dec", mAutoCutHideKey_dec},
                              {"usb_dec", usb_dec},
                              {"column_dec", column_dec},
                              {"checkValues_dec", checkValues_dec},
                              {"isDZPrinter", isDZPrinter()},
                              {"isHSTapePage", isHSTapePage()}}},
    };
}
