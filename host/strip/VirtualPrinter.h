// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OutputError.h"
#include "StripPdf.h"

#include <QImage>
#include <QJsonObject>

namespace host {
inline namespace strip {

/// A printer without a print server: it writes the label strip as a PDF and the options of the job as JSON to
/// a folder.
class VirtualPrinter {
public:
    /// The names of the files in the folder: the strip, the options of the job, and the picture of the
    /// dialog.
    static const QString stripName;
    static const QString jobName;
    static const QString dialogName;

    /// Writes the strip and the machine-readable options of the job to the folder, which is created if it
    /// does not exist. Files and folder are accessible to this user only. A picture of the dialog is written,
    /// too, unless it is null. After an error, as far as the file system permits, neither files nor folders
    /// that this call created remain.
    static Result<void, OutputError> print(const PrintedStrip &strip, const QJsonObject &job,
                                           const QImage &dialog, const QString &folder);

    /// Returns the path of an unused folder for one job, named after the current time, below the user's data
    /// folder. The folder is not created.
    static QString unusedFolder();
};

} // namespace strip
} // namespace host
