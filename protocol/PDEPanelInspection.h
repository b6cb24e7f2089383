// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Export.h>
#include <platform/PrintingServices.h>

#include <QJsonObject>
#include <QString>

#include <cups/ppd.h>

class PDEPanel;

/// A bundle's optional look inside: what a panel holds beyond what its controls show. For tools that
/// check what a PPD gives and reproduce what users report; a print dialog has no need of it.
class KV_EXPORT PDEPanelInspection {
public:
    virtual ~PDEPanelInspection() = default;

    /// The panel's state as JSON: "view", "controls", "popUp", "preview", "selections", "tapeState" and
    /// "flags". The panel must come from the same bundle and have its view loaded.
    virtual QJsonObject panelState(PDEPanel *panel) const = 0;

    /// Draws the panel's preview picture into an image file, or to what platform::OutputFile writes to.
    /// False, with the reason, when it cannot.
    virtual bool savePreview(PDEPanel *panel, const QString &path, QString *error) const = 0;

    /// The paper as the bundle understands it: "status", "length" in millimetres, "kind" and "name".
    virtual QJsonObject tapeInfo(PMPrintSettings settings, PMPageFormat format, ppd_file_t *ppd) const = 0;

    /// Tries edits on the bundle's text formatter; request and reply are those of the panel driver's
    /// "formatter". Answers an object with "error" when the request cannot be understood.
    virtual QJsonObject tryFormatter(const QJsonObject &request) const = 0;
};
