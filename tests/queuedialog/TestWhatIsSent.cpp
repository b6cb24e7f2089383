// SPDX-License-Identifier: Apache-2.0
// What is set in the dialog is exactly what the printer's filter gets.
#include "FullPpd.h"
#include "QueueDialogFixture.h"

#include <dialog/options/OptionControl.h>
#include <tests/samples/SamplePdf.h>

#include <QApplication>
#include <QClipboard>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QProcess>
#include <QSpinBox>
#include <QTreeWidget>
#include <QWindow>

#include <cups/cups.h>

#include <map>

using test_support::RecordedDocument;

namespace {

class WhatIsSentTest : public QueueDialogTest {
protected:
    static void SetUpTestSuite()
    {
        QueueDialogTest::SetUpTestSuite();
        cupsd->addQueue(QStringLiteral("full"), fullPpd());
    }

    /// Brings the group of options to the front.
    void chooseGroup(const QString &text) const
    {
        auto *const groups = find<QListWidget>(QStringLiteral("Option groups"));
        ASSERT_TRUE(groups);
        const auto found = groups->findItems(text, Qt::MatchExactly);
        ASSERT_FALSE(found.isEmpty());
        QTest::mouseClick(
            window->windowHandle(), Qt::LeftButton, {},
            groups->viewport()->mapTo(window.get(), groups->visualItemRect(found.first()).center()));
        QApplication::processEvents();
    }

    static QCheckBox *boxIn(const QWidget *parent, const QString &text)
    {
        for (QCheckBox *const box : parent->findChildren<QCheckBox *>()) {
            if (box->text().remove(u'&') == QString(text).remove(u'&'))
                return box;
        }
        return nullptr;
    }

    /// Option, value and whether it is sent, as the page of what will be sent shows them.
    std::map<QByteArray, QByteArray> shownAsSent() const
    {
        std::map<QByteArray, QByteArray> shown;
        const auto *const list = find<QTreeWidget>(QStringLiteral("Options of the job"));
        for (int row = 0; list && row < list->topLevelItemCount(); ++row) {
            const QTreeWidgetItem *const item = list->topLevelItem(row);
            if (item->text(3) == QStringLiteral("yes"))
                shown[item->text(0).toUtf8()] = item->text(1).toUtf8();
        }
        return shown;
    }

    QString lpLine() const
    {
        return field<QLineEdit>(QStringLiteral("The same job on the command line"))->text();
    }

    static std::map<QByteArray, QByteArray> options(const RecordedDocument &document)
    {
        cups_option_t *list = nullptr;
        const int count = cupsParseOptions(document.optionText.constData(), 0, &list);
        std::map<QByteArray, QByteArray> result;
        for (int i = 0; i < count; ++i) {
            const QByteArray name = list[i].name;
            // These attributes differ between any two jobs.
            if (name != "job-uuid" && !name.startsWith("date-time") && !name.startsWith("time-at"))
                result[name] = list[i].value;
        }
        cupsFreeOptions(count, list);
        return result;
    }

    static int priorityOf(int jobId)
    {
        http_t *const http =
            httpConnect2("127.0.0.1", cupsd->port(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_IF_REQUESTED, 1,
                         test_support::failureMilliseconds, nullptr);
        cups_job_t *jobs = nullptr;
        const int count = cupsGetJobs2(http, &jobs, nullptr, 0, CUPS_WHICHJOBS_ALL);
        int priority = -1;
        for (int i = 0; i < count; ++i) {
            if (jobs[i].id == jobId)
                priority = jobs[i].priority;
        }
        cupsFreeJobs(count, jobs);
        httpClose(http);
        return priority;
    }
};

} // namespace

TEST_F(WhatIsSentTest, NothingTouchedSendsThePaperAndThePanelsChoices)
{
    openAndSettle(QStringLiteral("full"));
    const auto job = printed();
    EXPECT_EQ(job.option("PageSize"), "W24H60");
    EXPECT_EQ(job.title, "labels.pdf");
    EXPECT_EQ(job.copies, "1");
    EXPECT_EQ(job.option("KvMirror"), "OFF");
    EXPECT_EQ(job.option("Darkness"), QByteArray());
    // The pages are landscape, the paper is portrait.
    sandbox.write(QStringLiteral("sent.pdf"), job.content);
    const auto sent = host::LabelDocument::open(sandbox.path(QStringLiteral("sent.pdf")));
    const auto original = host::LabelDocument::open(documentPath);
    ASSERT_TRUE(sent && original);
    EXPECT_EQ(sent.value()->pageCount(), original.value()->pageCount());
    for (int page = 0; page < sent.value()->pageCount(); ++page) {
        EXPECT_NEAR(sent.value()->pageSize(page).width(), 68.0, 0.1) << page;
        EXPECT_NEAR(sent.value()->pageSize(page).height(), 170.0, 0.1) << page;
    }
}

TEST_F(WhatIsSentTest, EveryControlArrives)
{
    openAndSettle(QStringLiteral("full"));
    Hands::click(panelBox("mMirrorPrintChkBx"));
    Hands::click(panelBox("mHalfCutChkBx"));
    choosePaper(QStringLiteral("Labels 52 mm x 75 mm"));

    chooseTab(QStringLiteral("Options"));
    Hands::pick(control<QComboBox>("Darkness"), QStringLiteral("Own darkness…"));
    Hands::typeInto(control<QWidget>("Darkness", QStringLiteral("Level")), QStringLiteral("42"));
    Hands::click(control<QCheckBox>("Turbo"));
    Hands::pick(control<QComboBox>("Feed"), QStringLiteral("Short edge"));
    Hands::pick(control<QComboBox>("Twins"), QStringLiteral("Same (Second)"));
    chooseGroup(QStringLiteral("Finishing"));
    const auto *const marks = window->findChild<dialog::OptionControl *>(QStringLiteral("Marks"));
    Hands::click(boxIn(marks, QStringLiteral("Fold marks")));
    Hands::click(boxIn(marks, QStringLiteral("Text & date")));
    Hands::pick(control<QComboBox>("Stamp"), QStringLiteral("Custom…"));
    Hands::typeInto(control<QLineEdit>("Stamp", QStringLiteral("Words")), QStringLiteral("It's 5{\""));
    EXPECT_EQ(control<QLineEdit>("Stamp", QStringLiteral("Words"))->text(), QStringLiteral("It's 5\""));

    chooseTab(QStringLiteral("Job"));
    Hands::typeInto(field<QLineEdit>(QStringLiteral("Job name")), QStringLiteral("Shelf 7 'b\""));
    Hands::pick(field<QComboBox>(QStringLiteral("Orientation")), QStringLiteral("Landscape"));
    Hands::pick(field<QComboBox>(QStringLiteral("Page size")), QStringLiteral("Fill the label"));
    Hands::pick(field<QComboBox>(QStringLiteral("When to print")), QStringLiteral("When it is released"));
    Hands::typeInto(field<QSpinBox>(QStringLiteral("Priority")), QStringLiteral("70"));
    Hands::typeInto(field<QSpinBox>(QStringLiteral("Copies")), QStringLiteral("2"));
    Hands::click(boxIn(window.get(), QStringLiteral("Set by set")));
    Hands::typeInto(field<QLineEdit>(QStringLiteral("Pages")), QStringLiteral("1-2"));

    chooseTab(QStringLiteral("What will be sent"));
    const auto shown = shownAsSent();
    const QString line = lpLine();
    const bool isSeenBefore = isSeen(QStringLiteral("lp cannot express these options: Stamp"));
    Hands::click(button(QStringLiteral("Copy")));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), line);
    EXPECT_TRUE(line.startsWith(QStringLiteral("lp -h ") + cupsd->address())) << line.toStdString();

    const std::map<QByteArray, QByteArray> expected = {
        {"PageSize", "DC52x75"},
        {"KvMirror", "ON"},
        {"KvHalfCut", "OFF"},
        {"Darkness", "Custom.42"},
        {"Turbo", "True"},
        {"Feed", "Short"},
        {"Twins", "Second"},
        {"Marks", "Fold,Text"},
        {"orientation-requested", "3"},
        {"print-scaling", "none"},
        {"job-hold-until", "indefinite"},
        {"page-ranges", "1-2"},
        {"job-priority", "70"},
    };
    for (const auto &[name, value] : expected) {
        const auto found = shown.find(name);
        EXPECT_EQ(found == shown.end() ? QByteArray("(not shown)") : found->second, value)
            << name.constData();
    }

    print();
    const int jobId = sender->lastJob()->id;
    EXPECT_EQ(priorityOf(jobId), 70);
    const std::size_t before = cupsd->documents().size();
    cupsd->run(QStringLiteral("lp"), {QStringLiteral("-i"), QStringLiteral("full-%1").arg(jobId),
                                      QStringLiteral("-H"), QStringLiteral("resume")});
    ASSERT_TRUE(waitUntil([&] { return cupsd->documents().size() > before; }));
    const RecordedDocument job = cupsd->documents().back();
    EXPECT_EQ(job.title, "Shelf 7 'b\"");
    EXPECT_EQ(job.copies, "2");
    const auto got = options(job);
    // Nothing is sent that was not shown.
    for (const auto &[name, value] : got) {
        const bool isServers = name == "job-originating-host-name" || name == "document-name-supplied";
        EXPECT_TRUE(isServers || shown.contains(name)) << name.constData();
    }
    for (const auto &[name, value] : shown) {
        const QByteArray skipped[] = {"copies", "job-hold-until", "job-priority",
                                      "multiple-document-handling"};
        if (std::ranges::find(skipped, name) != std::end(skipped))
            continue;
        const QByteArray arrived = job.option(name.constData());
        const bool isSame = arrived == value || arrived.toLower() == value.toLower();
        EXPECT_TRUE(isSame || name == "Collate")
            << name.constData() << ": " << arrived.constData() << " instead of " << value.constData();
    }
    EXPECT_EQ(job.option("Stamp"), shown.at("Stamp")) << job.optionText.constData();

    // The line prints the same.
    QProcess shell;
    shell.setWorkingDirectory(QFileInfo(documentPath).path());
    shell.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), line});
    ASSERT_TRUE(shell.waitForFinished(test_support::failureMilliseconds));
    ASSERT_EQ(shell.exitCode(), 0) << shell.readAllStandardError().toStdString() << line.toStdString();
    const QByteArray request = shell.readAllStandardOutput().split(' ').value(3);
    cupsd->run(QStringLiteral("lp"), {QStringLiteral("-i"), QString::fromUtf8(request), QStringLiteral("-H"),
                                      QStringLiteral("resume")});
    ASSERT_TRUE(waitUntil([&] { return cupsd->documents().size() > before + 1; }));
    const RecordedDocument same = cupsd->documents().back();
    EXPECT_EQ(same.title, job.title);
    EXPECT_EQ(same.copies, job.copies);
    // Except for what the command line cannot express, which the page shows. lp adds the queue's defaults.
    EXPECT_TRUE(isSeenBefore) << line.toStdString();
    const auto sames = options(same);
    for (const auto &[name, value] : got) {
        if (name == "Stamp")
            continue;
        const auto found = sames.find(name);
        EXPECT_EQ(found == sames.end() ? QByteArray("(none)") : found->second, value) << name.constData();
    }
}

TEST_F(WhatIsSentTest, FreeSizesAndTheDocumentsOwnArriveExactly)
{
    openAndSettle(QStringLiteral("full"));
    choosePaper(QStringLiteral("Custom size…"));
    auto *const width = find<QDoubleSpinBox>(QStringLiteral("Paper width"));
    auto *const length = find<QDoubleSpinBox>(QStringLiteral("Paper length"));
    ASSERT_TRUE(width && length);
    Hands::typeInto(width, width->suffix() == QStringLiteral(" mm") ? QStringLiteral("12.34")
                                                                    : QStringLiteral("0.5"));
    Hands::typeInto(length, length->suffix() == QStringLiteral(" mm") ? QStringLiteral("200.01")
                                                                      : QStringLiteral("7"));
    chooseTab(QStringLiteral("What will be sent"));
    const QByteArray shown = shownAsSent()["PageSize"];
    EXPECT_TRUE(shown == "Custom.12.34x200.01mm" || shown == "Custom.0.5x7in") << shown.constData();
    EXPECT_EQ(printed().option("PageSize"), shown);

    documentPath = writePdf(sandbox, QStringLiteral("odd.pdf"), {{QSizeF(51, 301), {}}});
    openAndSettle(QStringLiteral("full"));
    QPushButton *own = nullptr;
    for (QPushButton *const each : window->findChildren<QPushButton *>()) {
        if (each->isVisible() && each->text().startsWith(QStringLiteral("Use the document's size")))
            own = each;
    }
    Hands::click(own);
    const QByteArray paper = printed().option("PageSize");
    EXPECT_TRUE(paper.startsWith("Custom.")) << paper.constData();
    const std::optional<host::PpdPaper> size = keeper->setup()->ppd().paper(paper);
    ASSERT_TRUE(size);
    EXPECT_NEAR(size->size.width(), 51, 0.03);
    EXPECT_NEAR(size->size.height(), 301, 0.03);
}

TEST_F(WhatIsSentTest, MirrorPrintingStaysThroughPagesPapersAndAnotherPpd)
{
    openAndSettle(QStringLiteral("full"));
    Hands::click(panelBox("mMirrorPrintChkBx"));
    Hands::click(panelBox("mCutMarkChkBx"));
    const bool hasCutMark = panelBox("mCutMarkChkBx")->isChecked();
    const auto isOn = [this] {
        return panelBox("mMirrorPrintChkBx")->isChecked() &&
               keeper->setup()->ppd().markedChoice(QStringLiteral("KvMirror")) == QStringLiteral("ON");
    };
    EXPECT_TRUE(isOn());
    chooseTab(QStringLiteral("Page preview"));
    chooseTab(QStringLiteral("Cut Options"));
    EXPECT_TRUE(isOn());
    choosePaper(QStringLiteral("Labels 52 mm x 75 mm"));
    EXPECT_TRUE(isOn());
    choosePaper(QStringLiteral("Tape 12 mm x 60 mm"));
    EXPECT_TRUE(isOn());
    chooseTab(QStringLiteral("Options"));
    Hands::pick(control<QComboBox>("Darkness"), QStringLiteral("Dark"));

    // The administrator gives the queue another PPD, without a request from this program.
    QByteArray other = fullPpd();
    other.replace("*Darkness Dark/Dark", "*Darkness Pale/Pale").replace("Darkness Dark", "Darkness Pale");
    int replacements = 0;
    QObject::connect(keeper.get(), &host::SetupKeeper::setupChanged, window.get(), [&] { ++replacements; });
    meanwhile([&] { cupsd->replacePpd(QStringLiteral("full"), other); });
    ASSERT_TRUE(waitUntil([&] { return replacements > 0; }));
    QApplication::processEvents();
    EXPECT_TRUE(isOn());
    EXPECT_EQ(papers()->currentItem()->text(), QStringLiteral("Tape 12 mm x 60 mm"));
    EXPECT_TRUE(told().contains(QStringLiteral("Dark"))) << told().toStdString();
    const auto job = printed();
    EXPECT_EQ(job.option("KvMirror"), "ON");
    EXPECT_EQ(job.option("KvCutMark"), hasCutMark ? "ON" : "OFF");
    EXPECT_EQ(job.option("PageSize"), "W12H60");
    EXPECT_EQ(job.option("Darkness"), QByteArray());
    cupsd->addQueue(QStringLiteral("full"), fullPpd());
}

TEST_F(WhatIsSentTest, LookingAtItChangesNothing)
{
    openAndSettle(QStringLiteral("full"));
    const auto figures = [this] { return isSeen(QStringLiteral("Pieces: 3")); };
    EXPECT_TRUE(figures());
    Hands::click(panelBox("mSpecialTapeChkBx"));
    chooseTab(QStringLiteral("What will be sent"));
    EXPECT_EQ(shownAsSent()["KvHalfCut"], "OFF");
    chooseTab(QStringLiteral("Cut Options"));
    Hands::click(panelBox("mSpecialTapeChkBx"));
    QApplication::processEvents();
    EXPECT_TRUE(figures());
    EXPECT_TRUE(panelBox("mHalfCutChkBx")->isChecked());
    EXPECT_EQ(printed().option("KvHalfCut"), "ON");
}
