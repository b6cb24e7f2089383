// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Banner.h"

namespace host {
struct Conflict;
class SetupKeeper;
} // namespace host

namespace dialog {

/// Tells which of the chosen options cannot be printed together, and offers the printer's own remedy.
class ConflictBanner : public Banner {
    Q_OBJECT

public:
    /// The keeper is borrowed; its printer is the one whose conflicts are told.
    ConflictBanner(host::SetupKeeper &keeper, QWidget *parent);

    /// Tells these conflicts; none hides the banner.
    void setConflicts(const std::vector<host::Conflict> &conflicts);

Q_SIGNALS:
    /// The remedy was applied to the printer's options.
    void remedied();

private:
    host::SetupKeeper &m_keeper;
};

} // namespace dialog
