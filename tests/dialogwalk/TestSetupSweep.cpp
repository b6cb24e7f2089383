// SPDX-License-Identifier: Apache-2.0
// Every combination of boxes that clicks reach, with every ready-made combination on every kind of paper:
// looking at another page, trying another paper and printing leave the job as it is. Without windows, since
// there are so many.
#include "GoOn.h"
#include "Intent.h"

#include <host/setup/SetupJob.h>
#include <platform/PopUpButton.h>

#include <QFile>

#include <gtest/gtest.h>

#include <bit>

namespace {

using namespace dialogwalk;

/// A printer that is set up on its panel alone.
class SweptPrinter {
public:
    explicit SweptPrinter(const QString &ppdPath)
        : m_facts(PrinterFacts::of(read(ppdPath)))
    {
        auto ppd = host::PpdFile::open(ppdPath);
        auto document =
            host::LabelDocument::open(QStringLiteral(KV_SOURCE_DIR "/resources/documents/labels.pdf"));
        EXPECT_TRUE(ppd && document);
        m_document = std::move(document).value();
        m_setup = std::make_unique<host::PrinterSetup>(
            host::Destination(), std::move(ppd).value(), host::SetupWishes(),
            host::PanelSource{QStringLiteral(KV_BINARY_DIR "/bin"), {}});
        for (int page = 0; page < m_document->pageCount(); ++page)
            m_draft.pages.pages.push_back(page);
    }

    PanelBoxes panel() const { return PanelBoxes(m_setup->panel()->panelView()); }
    host::PrinterSetup &setup() { return *m_setup; }

    void choosePaper(const char *name) { m_setup->choosePaper(*m_setup->ppd().paper(name)); }
    void choosePreset(int row)
    {
        platform::PopUpButton *const presets = panel().presets();
        presets->setCurrentIndex(row);
        Q_EMIT presets->activated(row);
    }
    /// Greyed, as they are when the pop-up opens.
    bool isPresetEnabled(int row) const
    {
        platform::PopUpButton *const presets = panel().presets();
        presets->validateItems();
        return presets->model()->index(row, 0).flags() & Qt::ItemIsEnabled;
    }

    OptionTexts options() const
    {
        OptionTexts texts;
        for (const host::JobOption &option : ticket().job.options)
            texts[option.name] = option.value;
        return texts;
    }
    host::Ticket ticket() const { return host::ticketFor(*m_setup, *m_document, m_draft); }
    const PrinterFacts &facts() const { return m_facts; }

    /// Where the panel's boxes and the strip's sentences are not those of the job; empty when they are.
    QStringList departures() const
    {
        const OptionTexts texts = options();
        const OptionTexts boxes = panel().saved();
        QStringList lines;
        for (auto each = boxes.begin(); each != boxes.end(); ++each) {
            if (texts.value(each.key()) != each.value())
                lines.append(QString::fromUtf8(each.key() + " is " + texts.value(each.key()) +
                                               ", its box says " + each.value()));
        }
        return lines;
    }

private:
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    PrinterFacts m_facts;
    std::unique_ptr<host::LabelDocument> m_document;
    std::unique_ptr<host::PrinterSetup> m_setup;
    host::JobDraft m_draft;
};

struct Family {
    const char *name;
    const char *ppd;
    /// One of each kind.
    std::vector<const char *> papers;
};

void PrintTo(const Family &family, std::ostream *out)
{
    *out << family.name;
}

const Family families[] = {
    {"Tape", "kvelland-lx900.ppd", {"24x60mm", "HS12x50", "FL21x45", "DC24x38", "AV36x89"}},
    {"FewOptions", "kvelland-lx300.ppd", {"12x50mm", "HS12x50", "FL18x40"}},
    {"PaperLabels", "kvelland-dz500.ppd", {"62x100mm", "DC29x90", "AV62x100"}},
};

class SetupSweep : public testing::TestWithParam<Family> {
protected:
    static QString text(const OptionTexts &texts)
    {
        QStringList lines;
        for (auto each = texts.begin(); each != texts.end(); ++each) {
            if (each.key().startsWith("Kv") || each.key() == "PageSize")
                lines.append(QString::fromUtf8(each.key() + '=' + each.value()));
        }
        return lines.join(u' ');
    }

    /// What has changed although no rule of the panel may change it, or without a sentence that says so.
    QStringList unexplained(const OptionTexts &before, const OptionTexts &after)
    {
        const QString told = printer.setup().replacedChoices().join(u' ');
        const host::PpdFile &ppd = printer.setup().ppd();
        QStringList lines;
        for (auto each = before.begin(); each != before.end(); ++each) {
            const QString keyword = QString::fromUtf8(each.key());
            const QString saved = QString::fromUtf8(after.value(each.key()));
            const bool isTold =
                told.contains(u'"' + ppd.optionText(keyword) + QStringLiteral("\" cannot be")) &&
                told.contains(QStringLiteral("printed as \"") + ppd.choiceText(keyword, saved));
            const bool isRule = isTold && mayBeReplaced(each.key(), after.value("PageSize"));
            if (after.value(each.key()) != each.value() && !isRule)
                lines.append(QStringLiteral("%1 is %2 now").arg(keyword, saved));
        }
        return lines;
    }

    /// Another page and back, and another paper and back: each leaves the options as they are.
    void leavesTheJob(const char *paper)
    {
        const OptionTexts before = printer.options();
        const auto holds = [&](const char *what) {
            const OptionTexts after = printer.options();
            const QStringList lines = unexplained(before, after) + printer.departures();
            if (!lines.isEmpty() && faults++ < 5)
                ADD_FAILURE() << what << "\n"
                              << text(before).toStdString() << "\n"
                              << text(after).toStdString() << "\n"
                              << lines.join(u'\n').toStdString() << "\n"
                              << printer.setup().replacedChoices().join(u'\n').toStdString();
        };
        holds("asked once more");
        printer.setup().announcePanel();
        holds("another page and back");
        // Another one each time.
        const std::vector<const char *> &papers = GetParam().papers;
        const char *const other = papers[static_cast<std::size_t>(points) % papers.size()];
        printer.choosePaper(other);
        printer.setup().announcePanel();
        printer.choosePaper(paper);
        holds("another paper and back");
        ++points;
    }

    SweptPrinter printer{QStringLiteral(KV_SOURCE_DIR "/resources/ppd/") + QLatin1String(GetParam().ppd)};
    const GoOn goOn;
    int faults = 0;
    int points = 0;
};

INSTANTIATE_TEST_SUITE_P(Families, SetupSweep, testing::ValuesIn(families),
                         [](const auto &family) { return std::string(family.param.name); });

/// One box is clicked from each combination to the next.
TEST_P(SetupSweep, NothingButTheUserChangesTheJob)
{
    const std::vector<QCheckBox *> boxes = printer.panel().boxes();
    const int presets = printer.panel().presets()->count();
    for (const char *const paper : GetParam().papers) {
        printer.choosePaper(paper);
        for (int preset = -1; preset < presets; ++preset) {
            if (preset >= 0 && !printer.isPresetEnabled(preset))
                continue;
            if (preset >= 0)
                printer.choosePreset(preset);
            leavesTheJob(paper);
            for (std::uint32_t count = 1; count < 1U << boxes.size(); ++count) {
                QCheckBox *const box = boxes[static_cast<std::size_t>(std::countr_zero(count))];
                // Greyed boxes take no click.
                box->click();
                leavesTheJob(paper);
            }
        }
    }
    EXPECT_EQ(faults, 0);
    std::cout << points << " points\n";
}

} // namespace
