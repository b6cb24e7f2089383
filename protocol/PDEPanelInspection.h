// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>
#include <platform/PrintingServices.h>

#include <QJsonObject>
#include <QString>

#include <cups/ppd.h>

class PDEPanel;

/// An optional interface of a bundle: the state of a panel that its controls do not show. For tools that
/// check PPDs and reproduce bug reports; a print dialog does not need it.
class KV_EXPORT PDEPanelInspection {
public:
    virtual ~PDEPanelInspection() = default;

    /// The panel's state as JSON: "view", "controls", "popUp", "preview", "selections", "marked", "tapeState"
    /// and "flags". "marked" has each keyword of the panel with its choice that is marked in the PPD, or
    /// null. The panel must come from the same bundle and have its view loaded.
    virtual QJsonObject panelState(PDEPanel *panel) const = 0;

    /// Draws the panel's preview picture into an image file, or to any destination that platform::OutputFile
    /// writes to. On failure, returns false and sets the error.
    virtual bool savePreview(PDEPanel *panel, const QString &path, QString *error) const = 0;

    /// The paper as the bundle understands it: "status", "length" in millimetres, "kind" and "name".
    virtual QJsonObject tapeInfo(PMPrintSettings settings, PMPageFormat format, ppd_file_t *ppd) const = 0;

    /// Tries edits on the bundle's text formatter; request and reply are those of the panel driver's
    /// "formatter". Returns an object with "error" if the request is invalid.
    virtual QJsonObject tryFormatter(const QJsonObject &request) const = 0;
};
