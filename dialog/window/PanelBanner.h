// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/widgets/Banner.h>
#include <host/setup/SetupKeeper.h>

namespace dialog {
inline namespace window {

/// Reports the panels of the printer that cannot be used. A panel that has ended or blocked the program
/// before is loaded again if the user presses the button.
class PanelBanner : public Banner {
    Q_OBJECT

public:
    /// Creates a hidden banner. The keeper is not owned and must outlive the banner.
    PanelBanner(host::SetupKeeper &keeper, QWidget *parent);

    /// Shows the messages of the keeper's current setup.
    void showSetup();

private:
    void retry();

    host::SetupKeeper &m_keeper;
};

} // namespace window
} // namespace dialog
