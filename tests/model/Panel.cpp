// SPDX-License-Identifier: Apache-2.0
#include "Panel.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace model {

namespace {

// In the order of Row.
constexpr std::array<RowNames, 9> allNames = {{
    {"KvCutLabel", "mCutEveryChkBx", "RS_CutAtEvery", "RS_STitle_CutLabels"},
    {"KvCutAtEnd", "mCutAndEndChkBx", "RS_CutAtEnd", "RS_STitle_CutAtEnd"},
    {"KvMirror", "mMirrorPrintChkBx", "RS_MirrorPrinting", "RS_STitle_MirrorPrinting"},
    {"KvAutoTapeCut", "mAutoCutChkBx", "RS_AutoTapeCut", "RS_STitle_AutoTapeCut"},
    {"KvHalfCut", "mHalfCutChkBx", "RS_HalfCut", "RS_STitle_HalfCut"},
    {"KvChainPrint", "mChainPrintChkBx", "RS_ChainPrinting", "RS_STitle_ChainPrint"},
    {"KvSpecialTape", "mSpecialTapeChkBx", "RS_SpecialTape", "RS_STitle_SpecialTape"},
    {"KvRemoveBlkSpace", "mRemoveBlkSpaceChkBx", "RS_RemoveBlkSpace", "RS_STitle_RemoveBlkSpace"},
    {"KvCutMark", "mCutMarkChkBx", "RS_CutMark", "RS_STitle_CutMark"},
}};

} // namespace

const RowNames &namesOf(Row row)
{
    return allNames[static_cast<std::size_t>(row)];
}

int leadingNumber(const QString &text)
{
    auto at = std::find_if(text.begin(), text.end(), [](QChar c) { return !c.isSpace(); });
    const bool negative = at != text.end() && *at == u'-';
    if (at != text.end() && (*at == u'-' || *at == u'+'))
        ++at;
    qint64 number = 0;
    for (; at != text.end() && *at >= u'0' && *at <= u'9'; ++at)
        number = std::min<qint64>(number * 10 + (at->unicode() - u'0'), qint64(1) << 33);
    number = negative ? -number : number;
    return static_cast<int>(
        std::clamp<qint64>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

Panel::Panel(Dialog &dialog, Localizer localize, const LayoutFile &layout)
    : m_dialog(dialog)
    , m_localize(std::move(localize))
    , m_layout(layout)
{
    m_selections.fill(-1);
    if (m_dialog.isHeatShrink())
        m_dialog.mark("KvAutoTapeCut", "OFF");
    hasOwnAutoCutBox = option(Row::AutoCut) && m_dialog.printer.autoCutObjHidden == QStringLiteral("False");
}

const OptionDescription *Panel::option(Row row) const
{
    return m_dialog.printer.option(namesOf(row).keyword);
}

int Panel::choiceCount(Row row) const
{
    const auto *known = option(row);
    return known ? static_cast<int>(known->choices.size()) : 0;
}

int Panel::defaultIndex(Row row) const
{
    const int count = choiceCount(row);
    for (int index = 0; index < count; ++index) {
        if (option(row)->choices[static_cast<std::size_t>(index)].keyword == option(row)->defaultChoice)
            return index;
    }
    return count == 0 ? 0 : -1;
}

int Panel::markedElseDefault(Row row) const
{
    const int marked = m_dialog.markedIndex(namesOf(row).keyword);
    return marked >= 0 ? marked : defaultIndex(row);
}

int Panel::withinList(Row row, int index) const
{
    return index >= 0 && index < choiceCount(row) ? index : -1;
}

QString Panel::title(Row row, const char *fallback) const
{
    const auto *known = option(row);
    return m_localize(known ? known->text : QString(fallback));
}

void Panel::willShow()
{
    if (!std::exchange(isShownBefore, true)) {
        for (const Row row : rows)
            initialize(row);
        save();
    }
    refreshAll();
}

void Panel::restore()
{
    for (const Row row : rows)
        rereadMarks(row);
    refreshAll();
}

void Panel::initialize(Row row)
{
    auto &box = (*view)[row];
    box.enabled = option(row) != nullptr;
    if (row == Row::RemoveBlkSpace) {
        readTape();
        box.enabled = tapeState == 0 || tapeState == 2;
    }
    if (!option(row) || (row == Row::AutoCut && !hasOwnAutoCutBox))
        return;
    box.text = title(row, namesOf(row).titleKey);
    const auto standard = option(row)->defaultChoice.value_or(QString());
    if (choiceCount(row) > 0)
        box.value = standard == (row == Row::CutEvery ? "1" : "ON") ? 1 : 0;
    if (row != Row::CutEvery)
        return;
    view->countWord.text = m_localize("RS_Labels");
    view->countField.enabled = view->countStepper.enabled = true;
    view->countField.text = standard;
    view->countStepper.value = leadingNumber(standard);
}

void Panel::readTape()
{
    tapeState = m_dialog.tapeInfo().kind;
}

void Panel::shouldPrint()
{
    for (const Row row : rows) {
        const auto *known = option(row);
        if (!known || m_dialog.markedIndex(namesOf(row).keyword) >= 0)
            continue;
        const int index = withinList(row, defaultIndex(row));
        if (index >= 0)
            m_dialog.willChange(namesOf(row).keyword,
                                known->choices[static_cast<std::size_t>(index)].keyword);
    }
}

QStringList Panel::supportedKeys()
{
    if (m_supportedKeys)
        return *m_supportedKeys;
    save();
    m_supportedKeys.emplace();
    for (const Row row : rows) {
        if (!option(row))
            continue;
        m_supportedKeys->append(namesOf(row).keyword);
        if (row == Row::CutEvery && !option(Row::AutoCut))
            m_supportedKeys->append("KvAutoTapeCut");
    }
    return *m_supportedKeys;
}

} // namespace model
