// SPDX-License-Identifier: Apache-2.0
#include "PanelGuard.h"

#include <QCoreApplication>

namespace host {
inline namespace panels {

namespace {

struct PanelGuardText {
    Q_DECLARE_TR_FUNCTIONS(host::panels::PanelGuard)
};

} // namespace

void PanelGuard::fail(const char *name, const QString &reason)
{
    const QString call = QString::fromLatin1(name);
    const QString text = reason.isEmpty()
                             ? PanelGuardText::tr("an error occurred in \"%1\"").arg(call)
                             : PanelGuardText::tr("an error occurred in \"%1\": %2").arg(call, reason);
    m_error = PanelBundle::error(BundleErrorKind::Failed, m_bundle, text);
    if (m_failed)
        m_failed();
}

} // namespace panels
} // namespace host
