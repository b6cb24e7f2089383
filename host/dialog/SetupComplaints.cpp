// SPDX-License-Identifier: Apache-2.0
#include "SetupComplaints.h"

#include <QCoreApplication>

#include <algorithm>

namespace dialog {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(dialog::HeadlessRun)
};

} // namespace

void tellChangesByPanel(const Console &console, const host::PrinterSetup &setup,
                        const std::vector<host::JobChoice> &wishes)
{
    for (const host::JobChoice &wish : wishes) {
        const auto now = std::ranges::find(setup.choices(), wish.name, &host::JobChoice::name);
        if (now != setup.choices().end() && now->value != wish.value)
            console.complain(Text::tr("\"%1\" cannot be \"%2\" together with the other cut options and is "
                                      "printed as \"%3\"")
                                 .arg(QString::fromUtf8(wish.name), QString::fromUtf8(wish.value),
                                      QString::fromUtf8(now->value)));
    }
}

bool tellConflicts(const Console &console, const host::PrinterSetup &setup)
{
    const std::vector<host::Conflict> conflicts = setup.conflicts();
    for (const host::Conflict &conflict : conflicts)
        console.complain(conflict.sentence());
    const std::optional<host::Remedy> remedy = conflicts.empty() ? std::nullopt : setup.remedy();
    if (remedy)
        console.complain(Text::tr("This would help: %1").arg(remedy->sentence()));
    return !conflicts.empty();
}

} // namespace dialog
