// SPDX-License-Identifier: Apache-2.0
// The finishings of IPP among the options of a PPD.
#include "PpdOptions.h"

namespace host {
inline namespace printer {

namespace {

/// Reads "*CutMedia EndOfPage *StapleLocation None"; empty if it is malformed.
std::vector<std::pair<QByteArray, QByteArray>> choicesIn(const QByteArray &text)
{
    const QByteArrayList words = text.simplified().split(' ');
    std::vector<std::pair<QByteArray, QByteArray>> choices;
    for (qsizetype i = 0; i + 1 < words.size(); i += 2) {
        if (!words[i].startsWith('*') || words[i].size() < 2)
            return {};
        choices.emplace_back(words[i].mid(1), words[i + 1]);
    }
    return words.size() % 2 == 0 ? choices : std::vector<std::pair<QByteArray, QByteArray>>();
}

} // namespace

std::vector<PpdFinishing> PpdOptions::finishings() const
{
    std::vector<PpdFinishing> finishings;
    for (const ppd_attr_t *each = ppdFindAttr(m_ppd.handle(), "cupsIPPFinishings", nullptr); each;
         each = ppdFindNextAttr(m_ppd.handle(), "cupsIPPFinishings", nullptr)) {
        const PpdFinishing finishing{QByteArray(each->spec).toInt(), each->text, choicesIn(each->value)};
        if (finishing.number > 0 && !finishing.choices.empty())
            finishings.push_back(finishing);
    }
    return finishings;
}

} // namespace printer
} // namespace host
