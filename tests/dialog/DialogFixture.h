// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <dialog/window/PrintDialog.h>
#include <dialog/window/StripPreview.h>
#include <host/strip/CutPlanText.h>
#include <tests/samples/SamplePdf.h>
#include <tests/samples/SamplePpd.h>

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

/// Records what the dialog sends, and fails on request.
class RecordingSender : public dialog::JobSender {
public:
    void send(const dialog::ReadyJob &job) override
    {
        jobs.push_back(job.plan ? host::cutPlanFigures(*job.plan) : QString());
        ticket = job.ticket;
        measuredCount =
            job.plan ? std::ranges::count(job.plan->labels(), true, &host::PlannedLabel::isMeasured) : 0;
        if (isSlow)
            return;
        if (problem)
            Q_EMIT failed(*problem);
        else
            Q_EMIT sent();
    }
    void cancel() override { Q_EMIT canceled(); }

    /// The option's value in the last job; empty when the option is not sent.
    QByteArray sentOption(const char *name) const
    {
        for (const host::JobOption &option : ticket ? ticket->job.options : std::vector<host::JobOption>()) {
            if (option.name == name && option.isSent)
                return option.value;
        }
        return {};
    }

    std::vector<QString> jobs;
    std::optional<host::Ticket> ticket;
    /// The number of labels of the last job that were measured when it was sent.
    std::ptrdiff_t measuredCount = 0;
    std::optional<QString> problem;
    /// The test reports the outcome of send().
    bool isSlow = false;
};

/// The dialog on a sandboxed printer and document, with the real bundle or none.
class DialogTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::vector<SamplePage> pages;
        for (int page = 0; page < 3; ++page)
            pages.push_back({QSizeF(60, 24) * mm, [](QPainter &painter) {
                                 painter.fillRect(QRectF(10 * mm, 8 * mm, 20 * mm, 8 * mm), Qt::black);
                             }});
        documentPath = writePdf(sandbox, QStringLiteral("labels.pdf"), pages);
    }

    /// The sandboxed printer, with the panels of the bundle in that folder.
    std::unique_ptr<host::PrinterSetup> makeSetup(const QString &bundle)
    {
        return std::make_unique<host::PrinterSetup>(host::Destination(), openTapePpd(sandbox),
                                                    host::SetupRequest(), host::PanelSource{bundle, {}});
    }

    void open(const QString &bundle = QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle"))
    {
        show(makeSetup(bundle));
    }

    void show(std::unique_ptr<host::PrinterSetup> setup)
    {
        window.reset();
        state = &setup->state();
        keeper = std::make_unique<host::SetupKeeper>(std::move(setup));
        auto document = host::LabelDocument::open(documentPath);
        ASSERT_TRUE(document) << document.error().message.toStdString();
        window =
            std::make_unique<dialog::PrintDialog>(std::move(document).value(), *keeper, sender, requested);
        window->show();
        QApplication::processEvents();
    }

    template<typename Widget>
    Widget *find(const QString &accessibleName = {}) const
    {
        for (Widget *const widget : window->findChildren<Widget *>()) {
            if (accessibleName.isEmpty() || widget->accessibleName() == accessibleName)
                return widget;
        }
        return nullptr;
    }

    QCheckBox *box(const char *name) const { return window->findChild<QCheckBox *>(QLatin1String(name)); }

    QPushButton *button(const char *text) const
    {
        for (QPushButton *const candidate : window->findChildren<QPushButton *>()) {
            if (candidate->text().remove(u'&') == QLatin1String(text))
                return candidate;
        }
        return nullptr;
    }

    static void click(QAbstractButton *target)
    {
        ASSERT_TRUE(target);
        const int x = target->layoutDirection() == Qt::RightToLeft ? target->width() - 8 : 8;
        QTest::mouseClick(target, Qt::LeftButton, {}, {x, target->height() / 2});
        QApplication::processEvents();
    }

    QString stripInWords() const
    {
        return find<QWidget>(QStringLiteral("Label strip"))->accessibleDescription();
    }

    void chooseTab(const char *title) const
    {
        auto *const tabs = window->findChild<QTabWidget *>();
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->tabText(i).remove(u'&') == QLatin1String(title))
                QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {}, tabs->tabBar()->tabRect(i).center());
        }
        QApplication::processEvents();
        EXPECT_EQ(tabs->tabText(tabs->currentIndex()).remove(u'&'), QLatin1String(title));
    }

    /// Returns when the strip shows the job as it will come out.
    void awaitStrip() const
    {
        const auto *const strip = window->findChild<dialog::StripPreview *>();
        while (!strip->isComplete())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    QString line(const QString &section, const QString &title) const
    {
        for (const dialog::SummarySection &candidate : window->summary()) {
            for (const auto &[lineTitle, value] : candidate.lines) {
                if (candidate.title == section && lineTitle == title)
                    return value;
            }
        }
        return QStringLiteral("(no such line)");
    }

    Sandbox sandbox;
    /// What the command line requests.
    dialog::RequestedSettings requested;
    QString documentPath;
    host::DialogState *state = nullptr;
    RecordingSender sender;
    std::unique_ptr<host::SetupKeeper> keeper;
    std::unique_ptr<dialog::PrintDialog> window;
};
