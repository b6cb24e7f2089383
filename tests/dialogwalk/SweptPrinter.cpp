// SPDX-License-Identifier: Apache-2.0
#include "SweptPrinter.h"

#include "ShownPlan.h"

#include <host/setup/JobReport.h>
#include <host/strip/CutPlanText.h>
#include <host/strip/VirtualPrinter.h>
#include <platform/PopUpButton.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace dialogwalk {

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// The options as a printer receives them.
OptionTexts optionsOf(const QJsonObject &job)
{
    OptionTexts texts;
    const QJsonArray options = job["options"].toArray();
    for (const auto &each : options)
        texts[each.toObject()["keyword"].toString().toUtf8()] = each.toObject()["choice"].toString().toUtf8();
    QByteArrayList pages;
    const QJsonArray numbers = job["pages"].toArray();
    for (const auto &page : numbers)
        pages.append(QByteArray::number(page.toInt()));
    texts["page-ranges"] = pages.join(',');
    texts["copies"] = QByteArray::number(job["copies"].toInt());
    texts["collate"] = job["collate"].toBool() ? "true" : "false";
    return texts;
}

} // namespace

SweptPrinter::SweptPrinter(const QString &ppdPath)
    : m_ppdPath(ppdPath)
    , m_facts(PrinterFacts::of(contentOf(ppdPath)))
{
    auto ppd = host::PpdFile::open(ppdPath);
    auto document = host::LabelDocument::open(m_labels.path());
    EXPECT_TRUE(ppd && document);
    m_document = std::move(document).value();
    m_setup = std::make_unique<host::PrinterSetup>(
        host::Destination(), std::move(ppd).value(), host::SetupRequest(),
        host::PanelSource{QStringLiteral(KV_BINARY_DIR "/bin"), {}});
    for (int page = 0; page < m_document->pageCount(); ++page)
        m_jobRequest.pages.pages.push_back(page);
    look();
}

void SweptPrinter::choosePaper(const char *name)
{
    m_setup->choosePaper(*m_setup->ppd().paper(name));
    look();
}

bool SweptPrinter::isPresetEnabled(int row) const
{
    platform::PopUpButton *const presets = panel().presets();
    presets->validateItems();
    return presets->model()->index(row, 0).flags() & Qt::ItemIsEnabled;
}

void SweptPrinter::choosePreset(int row)
{
    panel().presets()->chooseItem(row);
    look();
}

void SweptPrinter::click(QCheckBox *box)
{
    box->click();
    look();
}

void SweptPrinter::visitPage()
{
    m_setup->announce(*m_setup->panels().front());
    look();
}

void SweptPrinter::look()
{
    m_setup->notePanelInput();
    m_ticket = host::ticketFor(*m_setup, *m_document, m_jobRequest);
    m_plan = host::makePlan(*m_ticket, *m_document, renderer());
    m_options.clear();
    for (const host::JobOption &option : m_ticket->job.options)
        m_options[option.name] = option.value;
}

const host::LabelRenderer &SweptPrinter::renderer()
{
    std::unique_ptr<host::LabelRenderer> &renderer = m_renderers[m_ticket->paper->name];
    if (!renderer)
        renderer = std::make_unique<host::LabelRenderer>(*m_document, *m_ticket->layout);
    return *renderer;
}

QStringList SweptPrinter::disagreements() const
{
    const OptionTexts boxes = panel().saved();
    QStringList lines;
    for (auto each = boxes.begin(); each != boxes.end(); ++each) {
        if (m_options.value(each.key()) != each.value())
            lines.append(QString::fromUtf8(each.key() + " is " + m_options.value(each.key()) +
                                           ", its box says " + each.value()));
    }
    return lines;
}

QJsonObject SweptPrinter::job() const
{
    return host::printedJobJson(*m_ticket, *m_document, m_ppdPath, *m_plan);
}

QJsonObject SweptPrinter::writtenJob()
{
    const Sandbox folder;
    const host::PrintedStrip strip{*m_plan, renderer(), m_ticket->document, m_ticket->printer,
                                   m_ticket->paper->text};
    const auto printed = host::VirtualPrinter::print(strip, job(), {}, folder.path(QStringLiteral("job")));
    EXPECT_TRUE(printed) << printed.error().message.toStdString();
    return QJsonDocument::fromJson(
               contentOf(folder.path(QStringLiteral("job/") + host::VirtualPrinter::jobName)))
        .object();
}

QStringList SweptPrinter::compareOptions(const OptionTexts &printed) const
{
    QStringList lines;
    for (auto each = m_options.begin(); each != m_options.end(); ++each) {
        const bool isPrinted = each.key().startsWith("Kv") || each.key() == "PageSize";
        if (isPrinted && printed.value(each.key()) != each.value())
            lines.append(QString::fromUtf8(each.key() + " was shown as " + each.value() + ", printed is " +
                                           printed.value(each.key())));
    }
    return lines;
}

QStringList SweptPrinter::compareStrip(const OptionTexts &printed) const
{
    const auto expected = expectedStrip(printed, m_facts, m_labels.pages());
    if (!expected)
        return {QStringLiteral("a paper is printed that the printer lacks")};
    const QString figures = host::cutPlanFigures(*m_plan);
    const ExpectedStrip shown = stripOf(*m_plan, host::cutPlanDescription(*m_plan).join(u' '));
    return differences(shown, *expected) +
           compareFigures(QStringLiteral("the line of figures"), figures, *expected);
}

QStringList SweptPrinter::print(Files files)
{
    const OptionTexts before = m_options;
    const host::CutPlan shown = *m_plan;
    // Before printing the dialog looks at everything once more.
    look();
    const QJsonObject job = files == Files::Yes ? writtenJob() : this->job();
    const OptionTexts printed = optionsOf(job);
    QStringList lines = compareOptions(printed) + compareStrip(printed);
    if (job["plan"].toObject() != host::cutPlanJson(shown))
        lines.append(QStringLiteral("the plan that is printed was not shown"));
    look();
    if (m_options != before || *m_plan != shown)
        lines.append(QStringLiteral("printing has changed the job"));
    return lines;
}

} // namespace dialogwalk
