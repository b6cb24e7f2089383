// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <tests/model/PrinterDescription.h>

#include <QJsonObject>
#include <QList>

namespace walk {

/// One dialog from its opening on: a printer and what is asked of the panel driver, in order. The first
/// request opens the printer; the caller that runs the episode fills in its "ppd" member.
struct Episode {
    model::PrinterDescription printer;
    QList<QJsonObject> requests;
};

/// The PPD file of the printer.
QByteArray ppdOf(const model::PrinterDescription &printer);

/// The episode as the panel driver reads it, one request a line, with the PPD at that path, and a last
/// one that reads the panel back.
QByteArray linesOf(const Episode &episode, const QString &ppdPath);

} // namespace walk
