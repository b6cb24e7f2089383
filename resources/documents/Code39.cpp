// SPDX-License-Identifier: Apache-2.0
#include "Code39.h"

#include <string_view>

namespace documents {

namespace {

constexpr double wide = 2.5;
constexpr std::string_view characters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. *$/+%";

/// The nine elements of each character, beginning with a bar; w is a wide one.
constexpr std::string_view patterns[] = {
    "nnnwwnwnn", "wnnwnnnnw", "nnwwnnnnw", "wnwwnnnnn", "nnnwwnnnw", "wnnwwnnnn", "nnwwwnnnn", "nnnwnnwnw",
    "wnnwnnwnn", "nnwwnnwnn", "wnnnnwnnw", "nnwnnwnnw", "wnwnnwnnn", "nnnnwwnnw", "wnnnwwnnn", "nnwnwwnnn",
    "nnnnnwwnw", "wnnnnwwnn", "nnwnnwwnn", "nnnnwwwnn", "wnnnnnnww", "nnwnnnnww", "wnwnnnnwn", "nnnnwnnww",
    "wnnnwnnwn", "nnwnwnnwn", "nnnnnnwww", "wnnnnnwwn", "nnwnnnwwn", "nnnnwnwwn", "wwnnnnnnw", "nwwnnnnnw",
    "wwwnnnnnn", "nwnnwnnnw", "wwnnwnnnn", "nwwnwnnnn", "nwnnnnwnw", "wwnnnnwnn", "nwwnnnwnn", "nwnnwnwnn",
    "nwnwnwnnn", "nwnwnnnwn", "nwnnnwnwn", "nnnwnwnwn",
};
static_assert(std::size(patterns) == characters.size());

} // namespace

std::vector<BarCodeElement> code39(const QString &text)
{
    std::vector<BarCodeElement> elements;
    for (const QChar character : u'*' + text + u'*') {
        const std::size_t index = characters.find(character.toLatin1());
        if (index == std::string_view::npos)
            continue;
        if (!elements.empty())
            elements.push_back({false, 1.0});
        bool bar = true;
        for (const char width : patterns[index]) {
            elements.push_back({bar, width == 'w' ? wide : 1.0});
            bar = !bar;
        }
    }
    return elements;
}

} // namespace documents
