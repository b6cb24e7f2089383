// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OutputError.h"
#include "StripPdf.h"

#include <QImage>
#include <QJsonObject>

namespace host {

/// The printer that needs no print server: its output is a folder with the label strip as a PDF and the
/// job's options as JSON.
class VirtualPrinter {
public:
    /// The names of what it writes.
    static const QString stripName;
    static const QString jobName;
    static const QString dialogName;

    /// Prints the strip and the job's options, for programs, into the folder, which is made when it is not
    /// there. Files and folder are for this user alone. A picture of the dialog is put beside the strip
    /// unless it is null. Either all files are there afterwards or, as far as the file system permits, none
    /// of them is, nor a folder that was made for them.
    static std::optional<OutputError> print(const PrintedStrip &strip, const QJsonObject &job,
                                            const QImage &dialog, const QString &folder);

    /// A folder of its own for one job, named after the time, among the user's data. Not made yet.
    static QString freshFolder();
};

} // namespace host
