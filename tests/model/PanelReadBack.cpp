// SPDX-License-Identifier: Apache-2.0
// What can be read of the panel: its summary lines and its whole state.
#include "Panel.h"

namespace model {

namespace {

constexpr std::array<Row, 9> summaryOrder = {
    Row::CutEvery,   Row::AutoCut, Row::CutAtEnd,       Row::HalfCut, Row::SpecialTape,
    Row::ChainPrint, Row::Mirror,  Row::RemoveBlkSpace, Row::CutMark,
};

// In the order of Row.
constexpr std::array<const char *, 9> selectionNames = {
    "mCutEvery_Selection",    "mCutEnd_Selection",         "mMirror_Selection",
    "mAutoCut_Selection",     "mHalfCut_Selection",        "mChainPrint_Selection",
    "mSpecialTape_Selection", "mRemoveBlkSpace_Selection", "mCutMark_Selection",
};

QJsonValue textOrNull(const std::optional<QString> &text)
{
    return text ? QJsonValue(*text) : QJsonValue();
}

QString keywordAt(const OptionDescription &option, int index)
{
    return option.choices[static_cast<std::size_t>(index)].keyword;
}

} // namespace

QJsonObject Panel::summary() const
{
    QJsonObject lines;
    QJsonArray order;
    for (const Row row : summaryOrder) {
        const bool replaced = row == Row::AutoCut && selection(Row::CutEvery) >= 0;
        const bool useless = row == Row::RemoveBlkSpace && tapeState != 0 && tapeState != 2;
        if (selection(row) < 0 || replaced || useless)
            continue;
        const auto name = title(row, namesOf(row).summaryKey);
        order.append(name);
        lines[name] = summaryValue(row);
    }
    lines["Summary Display Order"] = order;
    return lines;
}

QString Panel::summaryValue(Row row) const
{
    const Row decisive = row == Row::CutEvery ? Row::AutoCut : row;
    const auto &held = option(row)->choices[static_cast<std::size_t>(selection(row))];
    switch (m_dialog.markedIndex(namesOf(decisive).keyword)) {
    case 0:
        return m_localize("RS_STitle_No");
    case 1:
        return row == Row::CutEvery ? held.keyword + " " + m_localize("RS_Labels")
                                    : m_localize("RS_STitle_Yes");
    default:
        return held.text;
    }
}

QJsonObject Panel::controlsState() const
{
    const int shift = view->height - m_layout.viewHeight();
    const auto common = [this, shift](const char *name, const Control &control) {
        const auto frame = m_layout.frame(name);
        return QJsonObject{{"hidden", control.hidden}, {"enabled", control.enabled},
                           {"x", frame.x()},           {"y", control.y + shift},
                           {"width", frame.width()},   {"height", frame.height()}};
    };
    QJsonObject controls;
    for (const Row row : rows) {
        auto box = common(namesOf(row).box, (*view)[row]);
        box["state"] = (*view)[row].value;
        box["title"] = (*view)[row].text;
        controls[namesOf(row).box] = box;
    }
    auto field = common("mCutEveryTxBx", view->countField);
    field["text"] = view->countField.text;
    controls["mCutEveryTxBx"] = field;
    auto stepper = common("mCutEveryStpr", view->countStepper);
    stepper["value"] = view->countStepper.value;
    controls["mCutEveryStpr"] = stepper;
    auto word = common("mCutEveryStr", view->countWord);
    word["title"] = view->countWord.text;
    word["textColor"] = view->isWordGrey ? "disabled" : "enabled";
    controls["mCutEveryStr"] = word;
    return controls;
}

QJsonObject Panel::state() const
{
    QJsonObject selections;
    QJsonObject marked;
    for (const Row row : rows) {
        const int held = selection(row);
        selections[selectionNames[static_cast<std::size_t>(row)]] =
            held < 0 ? QJsonValue() : QJsonValue(keywordAt(*option(row), held));
        marked[namesOf(row).keyword] = textOrNull(m_dialog.marked(namesOf(row).keyword));
    }
    selections["mAutoCut_CutEvery_Selection"] =
        m_cutEveryBoxSelection < 0 ? QJsonValue()
                                   : QJsonValue(keywordAt(*option(Row::AutoCut), m_cutEveryBoxSelection));
    QJsonObject settings;
    for (const auto &[keyword, choice] : m_dialog.settings.asKeyValueRange())
        settings[keyword] = choice;
    QJsonArray items;
    for (const int tag : view->presets)
        items.append(QJsonObject{{"tag", tag}, {"title", ""}, {"enabled", isPresetAllowed(tag)}});
    const auto uri = m_dialog.deviceURI.value_or(QString());
    return {
        {"view", QJsonObject{{"width", m_layout.viewWidth()}, {"height", view->height}}},
        {"controls", controlsState()},
        {"popUp", QJsonObject{{"items", items}, {"selectedTag", view->selectedPreset}}},
        {"preview", QJsonObject{{"present", true},
                                {"x", m_layout.frame("mOptionDummyView").x()},
                                {"y", view->previewY},
                                {"isDZ", m_dialog.isPaperLabelSeries()},
                                {"picture", picture()}}},
        {"selections", selections},
        {"marked", marked},
        {"settings", settings},
        {"tapeState", tapeState},
        {"flags", QJsonObject{{"set_formatSetting", isShownBefore},
                              {"mAutoCutHideKey_dec", hasOwnAutoCutBox},
                              {"usb_dec", uri.startsWith("usb:") || uri.startsWith("KVLXUSB:")},
                              {"column_dec", false},
                              {"checkValues_dec", true},
                              {"isDZPrinter", m_dialog.isPaperLabelSeries()},
                              {"isHSTapePage", m_dialog.isHeatShrink()}}},
    };
}

} // namespace model
