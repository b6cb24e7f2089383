// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/widgets/Banner.h>
#include <host/setup/Preflight.h>

namespace dialog {
inline namespace window {

/// Reports what a job wastes, and offers the settings with which it does not.
class PreflightBanner : public Banner {
    Q_OBJECT

public:
    /// Creates a hidden banner.
    explicit PreflightBanner(QWidget *parent);

    /// Shows the sentences, and the first two remedies as buttons. An empty list hides the banner.
    void setNotes(const std::vector<host::PreflightNote> &notes);

Q_SIGNALS:
    /// Emitted when the user has chosen a remedy, with its option.
    void remedyChosen(const host::NamedValue &option);

private:
    std::vector<host::PreflightRemedy> m_remedies;
};

} // namespace window
} // namespace dialog
