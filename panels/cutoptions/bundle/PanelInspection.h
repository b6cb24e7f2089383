// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <protocol/PDEPanelInspection.h>

/// Gives tools access to the internal state of the cut-options panel; see PDEPanelInspection.
class PanelInspection : public PDEPanelInspection {
public:
    QJsonObject panelState(PDEPanel *panel) const override;
    bool savePreview(PDEPanel *panel, const QString &path, QString *error) const override;
    QJsonObject tapeInfo(PMPrintSettings settings, PMPageFormat format, ppd_file_t *ppd) const override;
    QJsonObject tryFormatter(const QJsonObject &request) const override;
};
