// SPDX-License-Identifier: Apache-2.0
#include "TimedApplication.h"

#include <dialog/window/PrintDialog.h>
#include <dialog/window/StripPreview.h>
#include <tests/samples/SamplePdf.h>
#include <tests/samples/SamplePpd.h>
#include <tests/support/TestHome.h>

#include <QCheckBox>
#include <QScrollBar>
#include <QTest>

#include <cstdio>

namespace {

using bench::TimedApplication;
using Duration = TimedApplication::Duration;

/// Prints nothing.
class NoSender : public dialog::JobSender {
public:
    void send(const dialog::ReadyJob &) override {}
    void cancel() override {}
};

/// Labels 60 mm by 24 mm with a line of text and a few bars, at different places.
QString writeLabels(const Sandbox &sandbox, int count)
{
    std::vector<SamplePage> pages;
    for (int i = 0; i < count; ++i)
        pages.push_back({QSizeF(60, 24) * mm, [i](QPainter &painter) {
                             const double left = (5.0 + i % 20) * mm;
                             painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
                             painter.drawText(QPointF(left, 8 * mm), QStringLiteral("Label %1").arg(i));
                             for (int bar = 0; bar < 20; ++bar)
                                 painter.fillRect(QRectF(left + bar * mm, 12 * mm, 0.5 * mm, 8 * mm),
                                                  Qt::black);
                         }});
    return writePdf(sandbox, QStringLiteral("labels-%1.pdf").arg(count), pages);
}

/// Labels with one thin bar: without their blank ends, some hundred are visible.
QString writeThinLabels(const Sandbox &sandbox, int count)
{
    const SamplePage page{QSizeF(60, 24) * mm, [](QPainter &painter) {
                              painter.fillRect(QRectF(20 * mm, 4 * mm, 1.0 * mm, 16 * mm), Qt::black);
                          }};
    return writePdf(sandbox, QStringLiteral("thin.pdf"),
                    std::vector<SamplePage>(static_cast<std::size_t>(count), page));
}

Duration since(std::chrono::steady_clock::time_point begin)
{
    return std::chrono::steady_clock::now() - begin;
}

/// The dialog on a printer of its own, and what is done with it.
class Subject {
public:
    Subject(TimedApplication &application, const QString &path)
        : m_application(application)
        , m_document(std::move(host::LabelDocument::open(path)).value())
        , m_keeper(std::make_unique<host::PrinterSetup>(host::Destination(), openTapePpd(m_sandbox),
                                                        host::SetupRequest(),
                                                        host::PanelSource{QStringLiteral(KV_BUNDLE), {}}))
        , m_dialog(m_document, m_keeper, m_sender, dialog::RequestedSettings())
        , m_strip(*m_dialog.findChild<dialog::StripPreview *>())
    {
    }

    void open(const char *name)
    {
        measure(name, [this] { m_dialog.show(); });
    }
    void click(const char *name, const char *box)
    {
        auto *const target = m_dialog.findChild<QCheckBox *>(QLatin1String(box));
        measure(name, [target] { QTest::mouseClick(target, Qt::LeftButton, {}, {8, target->height() / 2}); });
    }
    void scroll(const char *name)
    {
        QScrollBar *const bar = m_strip.horizontalScrollBar();
        measure(name, [bar] { bar->setValue(bar->value() < bar->maximum() / 2 ? bar->maximum() : 0); });
    }

private:
    template<typename Action>
    void measure(const char *name, const Action &action)
    {
        m_application.reset();
        const auto begin = std::chrono::steady_clock::now();
        action();
        // What the action changes is shown after the events that it has posted.
        QCoreApplication::processEvents();
        while (!m_strip.isComplete())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const Duration shown = since(begin);
        // What follows behind the strip belongs to the longest event.
        for (int round = 0; round < 20; ++round)
            QTest::qWait(5);
        std::printf("%8d  %-28s %10.1f %14.1f %10.1f   %s\n", m_document->pageCount(), name, shown.count(),
                    m_application.longest().count(), m_application.busiest().count(),
                    qPrintable(m_application.longestName()));
        std::fflush(stdout);
    }

    Sandbox m_sandbox;
    TimedApplication &m_application;
    std::shared_ptr<const host::LabelDocument> m_document;
    host::SetupKeeper m_keeper;
    NoSender m_sender;
    dialog::PrintDialog m_dialog;
    dialog::StripPreview &m_strip;
};

/// What one event took if it measured and drew itself.
void printBaseline(const QString &path)
{
    const auto document = std::move(host::LabelDocument::open(path)).value();
    const host::LabelRenderer labels(*document, QSizeF(24, 60) * mm);
    const auto print = [&](const char *name, Duration time) {
        std::printf("%8d  %-28s %10.1f %14.1f\n", document->pageCount(), name, time.count(), time.count());
        std::fflush(stdout);
    };
    auto begin = std::chrono::steady_clock::now();
    for (int page = 0; page < document->pageCount(); ++page)
        static_cast<void>(labels.extent(page, host::MeasureBlank::Yes));
    print("baseline: measure at once", since(begin));
    begin = std::chrono::steady_clock::now();
    for (int page = 0; page < qMin(12, document->pageCount()); ++page)
        static_cast<void>(labels.render(page, 6.0));
    print("baseline: draw 12 at once", since(begin));
}

} // namespace

int main(int argc, char **argv)
{
    const test_support::TestHome home;
    TimedApplication application(argc, argv);
    const Sandbox sandbox;
    std::printf("%8s  %-28s %10s %14s %10s   %s\n", "labels", "what is done", "shown, ms", "longest event",
                "busiest", "which");
    for (const int count : {1, 500, 10'000}) {
        const QString path = writeLabels(sandbox, count);
        printBaseline(path);
        Subject subject(application, path);
        subject.open("open");
        subject.click("half cut", "mHalfCutChkBx");
        subject.scroll("scroll to the end");
        subject.click("remove blank", "mRemoveBlkSpaceChkBx");
        subject.click("half cut, without blank", "mHalfCutChkBx");
        subject.scroll("scroll, without blank");
        subject.click("leave blank", "mRemoveBlkSpaceChkBx");
        subject.click("remove blank again", "mRemoveBlkSpaceChkBx");
    }
    Subject subject(application, writeThinLabels(sandbox, 10'000));
    subject.open("open, thin");
    subject.click("remove blank, thin", "mRemoveBlkSpaceChkBx");
    subject.click("no cuts, thin", "mCutEveryChkBx");
    subject.scroll("scroll, thin");
    return 0;
}
