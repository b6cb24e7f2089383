// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CommandLine.h"
#include "PrintDialog.h"

#include <QImage>

namespace dialog {

/// Where a run of the program writes what it has to say.
struct Console {
    std::function<void(const QString &)> out;
    std::function<void(const QString &)> error;
};

/// One run of kvprint: opens printer, document and bundle, shows the dialog or presses its Print button by
/// itself, and prints on the virtual printer.
class PrintRun {
public:
    PrintRun(CommandLine command, Console console);

    /// Everything from the files to the last message. Without a dialog it does not wait for anybody.
    ExitStatus run();

private:
    /// False, with the reason told, when the command asks for what this program cannot do.
    bool canDo();
    /// Answers nothing, and says why, when the dialog cannot be opened for what was asked.
    std::unique_ptr<PrintDialog> openDialog();
    std::optional<PrintRequest> openRequest();
    std::optional<host::PpdPaper> choosePaper(const host::PpdFile &ppd);
    /// False, with the reason told, when the bundle is so damaged that printing on would mislead.
    bool loadPanels(PrintRequest &request);
    bool askPanels(PrintRequest &request, const QString &folder);
    void goOnWithoutPanel(PrintRequest &request, const QString &problem);
    std::optional<QString> sendJob(const host::PrintJob &job);
    bool saveScreenshot(const QImage &picture);
    bool printAtOnce(PrintDialog &dialog);
    void tell(const std::vector<SummarySection> &summary);
    void complain(const QString &message);

    CommandLine m_command;
    Console m_console;
    bool m_withoutPanel = false;
    QString m_folder;
    /// What the virtual printer puts beside the strip; null for nothing.
    QImage m_picture;
};

} // namespace dialog
