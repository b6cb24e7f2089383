// SPDX-License-Identifier: Apache-2.0
#include "Step.h"

namespace dialogwalk {

namespace {

constexpr const char *names[] = {
    "click box",    "space on box", "toggle box",    "pick preset",      "step preset", "step count",
    "key on count", "type count",   "set count",     "pick paper",       "step paper",  "turn to page",
    "box by timer", "operate roll", "pick queue",    "pick option",      "step option", "press remedy",
    "type copies",  "step copies",  "click collate", "click last first", "type pages",  "replace PPD",
    "print",        "reopen",
};

} // namespace

QString nameOf(Action action)
{
    return QLatin1String(names[static_cast<std::size_t>(action)]);
}

} // namespace dialogwalk
