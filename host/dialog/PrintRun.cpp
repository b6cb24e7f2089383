// SPDX-License-Identifier: Apache-2.0
#include "PrintRun.h"

#include <host/OutputFiles.h>
#include <host/VirtualPrinter.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QLocale>

namespace dialog {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(dialog::PrintRun)
};

/// The names of the papers, the first ones of many.
QString paperNames(const host::PpdFile &ppd)
{
    constexpr qsizetype shown = 12;
    QStringList names;
    for (const host::PpdPaper &paper : ppd.papers())
        names.append(QString::fromUtf8(paper.name));
    const qsizetype more = names.size() - shown;
    if (more <= 0)
        return names.join(QStringLiteral(", "));
    return Text::tr("%1 and %2 more").arg(names.first(shown).join(QStringLiteral(", "))).arg(more);
}

} // namespace

PrintRun::PrintRun(CommandLine command, Console console)
    : m_command(std::move(command))
    , m_console(std::move(console))
{
}

void PrintRun::complain(const QString &message)
{
    m_console.error(QCoreApplication::applicationName() + QStringLiteral(": ") + message + u'\n');
}

std::optional<host::PpdPaper> PrintRun::choosePaper(const host::PpdFile &ppd)
{
    if (m_command.paper) {
        std::optional<host::PpdPaper> paper = ppd.paper(*m_command.paper);
        if (!paper)
            complain(Text::tr("The PPD file \"%1\" has no paper \"%2\"; it has: %3")
                         .arg(ppd.path(), QString::fromUtf8(*m_command.paper), paperNames(ppd)));
        return paper;
    }
    if (std::optional<host::PpdPaper> paper = ppd.markedPaper())
        return paper;
    const std::vector<host::PpdPaper> papers = ppd.papers();
    if (!papers.empty())
        return papers.front();
    complain(Text::tr("The PPD file \"%1\" names no paper to print on").arg(ppd.path()));
    return std::nullopt;
}

std::optional<PrintRequest> PrintRun::openRequest()
{
    auto ppd = host::PpdFile::open(*m_command.ppd);
    if (!ppd) {
        complain(ppd.error().message);
        return std::nullopt;
    }
    ppd.value().markDefaults();
    ppd.value().localize(QLocale().name());
    const std::optional<host::PpdPaper> paper = choosePaper(ppd.value());
    if (!paper)
        return std::nullopt;
    auto document = host::LabelDocument::open(m_command.documents.constFirst());
    if (!document) {
        complain(document.error().message);
        return std::nullopt;
    }
    PrintRequest request;
    request.state = std::make_shared<host::DialogState>(std::move(ppd).value());
    request.document = std::move(document).value();
    request.paper = *paper;
    return request;
}

void PrintRun::goOnWithoutPanel(PrintRequest &request, const QString &problem)
{
    complain(problem);
    m_withoutPanel = true;
    request.panels.reset();
    request.panelProblem = Text::tr("The cut options cannot be shown. %1").arg(problem);
}

bool PrintRun::loadPanels(PrintRequest &request)
{
    const auto folder = host::PanelBundle::find(m_command.bundle);
    auto bundle = folder ? host::PanelBundle::load(folder.value(), QLocale().uiLanguages())
                         : host::Result<host::PanelBundle, host::BundleError>(folder.error());
    if (!bundle && bundle.error().kind == host::BundleFailure::ResourceMissing) {
        complain(bundle.error().message);
        return false;
    }
    if (!bundle) {
        goOnWithoutPanel(request, bundle.error().message);
        return true;
    }
    request.panels = std::make_unique<host::PanelSession>(std::move(bundle).value(),
                                                          std::make_shared<host::PanelHost>(request.state));
    return askPanels(request, folder.value());
}

bool PrintRun::askPanels(PrintRequest &request, const QString &folder)
{
    request.claimedKeywords = request.panels->claimKeywords();
    PDEPanel *const panel = request.panels->firstPanel();
    if (!panel) {
        goOnWithoutPanel(request, Text::tr("The panel bundle \"%1\" could not make its panel").arg(folder));
        return true;
    }
    if (request.claimedKeywords.isEmpty()) {
        // The panel has nothing to offer for this printer.
        request.panels.reset();
        return true;
    }
    if (panel->panelView())
        return true;
    complain(Text::tr("The panel of the bundle \"%1\" cannot be shown: its layout file cannot be used")
                 .arg(folder));
    return false;
}

std::unique_ptr<PrintDialog> PrintRun::openDialog()
{
    std::optional<PrintRequest> request = openRequest();
    if (!request)
        return nullptr;
    // The paper is chosen before the panel is made, since a panel looks at it from the beginning.
    platform::Paper paper;
    paper.name = QString::fromUtf8(request->paper.name);
    paper.height = request->paper.size.height();
    request->state->setPaper(paper);
    if (!loadPanels(*request))
        return nullptr;
    return std::make_unique<PrintDialog>(std::move(*request),
                                         [this](const host::PrintJob &job) { return sendJob(job); });
}

std::optional<QString> PrintRun::sendJob(const host::PrintJob &job)
{
    m_folder = m_command.output.value_or(host::VirtualPrinter::freshFolder());
    const std::optional<host::OutputError> error = host::VirtualPrinter::print(job, m_picture, m_folder);
    if (!error)
        return std::nullopt;
    return error->message;
}

bool PrintRun::saveScreenshot(const QImage &picture)
{
    if (!m_command.screenshot)
        return true;
    const QFileInfo target(*m_command.screenshot);
    host::OutputFiles files(target.path());
    files.write(target.fileName(),
                [&](QIODevice *device) { return QImageWriter(device, "png").write(picture); });
    const std::optional<host::OutputError> error = files.commit();
    if (error)
        complain(error->message);
    return !error;
}

bool PrintRun::printAtOnce(PrintDialog &dialog)
{
    m_picture = dialog.grab().toImage();
    const bool printed = dialog.print();
    if (!printed)
        complain(dialog.problem());
    dialog.done(printed ? QDialog::Accepted : QDialog::Rejected);
    return printed;
}

void PrintRun::tell(const std::vector<SummarySection> &summary)
{
    m_console.out(summaryInPlainText(summary));
    m_console.out(Text::tr("The label strip is in:") + u'\n');
    m_console.out(QDir(m_folder).absolutePath() + u'\n');
}

bool PrintRun::canDo()
{
    if (!m_command.ppd)
        complain(Text::tr("No printer was named: --ppd FILE is missing"));
    else if (m_command.task != Task::Print)
        complain(Text::tr("The virtual printer of --ppd can only print"));
    else if (m_command.documents.isEmpty())
        complain(Text::tr("No document was named"));
    else if (m_command.documents.size() > 1)
        complain(Text::tr("Only one document can be printed at a time, and %1 were named")
                     .arg(m_command.documents.size()));
    else
        return true;
    return false;
}

ExitStatus PrintRun::run()
{
    if (!canDo())
        return ExitStatus::WrongUsage;
    const std::unique_ptr<PrintDialog> dialog = openDialog();
    if (!dialog)
        return ExitStatus::Failed;
    dialog->show();
    // Layout and first painting happen here, so that the picture shows what a person would see.
    QApplication::processEvents();
    if (!saveScreenshot(dialog->grab().toImage()))
        return ExitStatus::Failed;
    if (m_command.noDialog) {
        if (!printAtOnce(*dialog))
            return ExitStatus::Failed;
    } else if (dialog->exec() != QDialog::Accepted) {
        return ExitStatus::Cancelled;
    }
    tell(dialog->summary());
    return m_withoutPanel ? ExitStatus::PrintedWithoutPanel : ExitStatus::Printed;
}

} // namespace dialog
