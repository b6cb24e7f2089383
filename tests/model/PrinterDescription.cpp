// SPDX-License-Identifier: Apache-2.0
#include "PrinterDescription.h"

#include <algorithm>

namespace model {

const OptionDescription *PrinterDescription::option(const QString &keyword) const
{
    const auto found = std::ranges::find_if(options, [&keyword](const OptionDescription &option) {
        return option.keyword.compare(keyword, Qt::CaseInsensitive) == 0;
    });
    return found == options.end() ? nullptr : &*found;
}

OptionDescription switchOption(const QString &keyword, const QString &text, bool on)
{
    return {keyword, text, {{"OFF", "Off"}, {"ON", "On"}}, on ? QStringLiteral("ON") : QStringLiteral("OFF")};
}

OptionDescription countOption(const QString &keyword, const QString &text, int first, int last, int standard)
{
    OptionDescription option{keyword, text, {}, QString::number(standard)};
    for (int count = first; count <= last; ++count)
        option.choices.push_back({QString::number(count), QStringLiteral("%1 labels").arg(count)});
    return option;
}

} // namespace model
