// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/widgets/Banner.h>
#include <host/printer/Constraints.h>

namespace host {
inline namespace setup {
class SetupKeeper;
} // namespace setup
} // namespace host

namespace dialog {
inline namespace options {

/// Tells which of the chosen options cannot be printed together, and offers the printer's own remedy.
class ConflictBanner : public Banner {
    Q_OBJECT

public:
    /// The keeper is borrowed; its printer is the one whose conflicts are told.
    ConflictBanner(host::SetupKeeper &keeper, QWidget *parent);

    /// Shows these conflicts, and the remedy as a button where there is one; no conflicts hide the banner.
    void setConflicts(const std::vector<host::Conflict> &conflicts,
                      const std::optional<host::Remedy> &remedy = {});

Q_SIGNALS:
    /// The remedy was applied to the printer's options.
    void remedied();

private:
    host::SetupKeeper &m_keeper;
    std::optional<host::Remedy> m_shownRemedy;
};

} // namespace options
} // namespace dialog
