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

/// Reports which of the selected choices conflict, and offers the resolution computed from the PPD's
/// constraints.
class ConflictBanner : public Banner {
    Q_OBJECT

public:
    /// The keeper is not owned and must outlive the banner; the remedy is applied to its setup.
    ConflictBanner(host::SetupKeeper &keeper, QWidget *parent);

    /// Shows the conflicts, and the remedy as a button if there is one. An empty list hides the banner. Of
    /// many conflicts, only the first are shown.
    void setConflicts(const std::vector<host::Conflict> &conflicts,
                      const std::optional<host::Remedy> &remedy = {});

Q_SIGNALS:
    /// Emitted when the remedy has been applied to the printer's options.
    void remedyApplied();

private:
    host::SetupKeeper &m_keeper;
    std::optional<host::Remedy> m_shownRemedy;
};

} // namespace options
} // namespace dialog
