// SPDX-License-Identifier: Apache-2.0
// What the panel costs beyond libcups: opening, showing, redrawing, one action. Run bench_panel.
#include "RatioReporter.h"

#include <options/OptionPDE.h>
#include <tests/support/PpdBuilder.h>
#include <tests/support/TestDialog.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdio>

using test_support::PpdBuilder;
using test_support::TestDialog;

namespace {

/// A printer of the benchmark: its name in the output and its PPD file.
struct Printer {
    std::string name;
    QByteArray path;
};

std::shared_ptr<const platform::Bundle> bundle()
{
    static const auto opened = platform::Bundle::open(QStringLiteral(KV_BUNDLE), {QStringLiteral("en")});
    return opened;
}

test_support::PpdPointer openMarked(const Printer &printer)
{
    test_support::PpdPointer ppd(ppdOpenFile(printer.path.constData()));
    ppdMarkDefaults(ppd.get());
    return ppd;
}

std::shared_ptr<OptionPDE13_v400_> openPanel(const std::shared_ptr<TestDialog> &dialog)
{
    auto panel = OptionPDE13_v400_::initWithCallback(dialog, bundle());
    panel->panelView();
    return panel;
}

/// A dialog with its panel on show.
struct Shown {
    explicit Shown(const Printer &printer)
        : dialog(std::make_shared<TestDialog>(openMarked(printer)))
    {
        dialog->setPaper(QStringLiteral("24mm"));
        panel = openPanel(dialog);
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
    }

    std::shared_ptr<TestDialog> dialog;
    std::shared_ptr<OptionPDE13_v400_> panel;
};

void click(QWidget *box)
{
    const QPointF indicator(8, box->height() / 2.0);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, indicator, indicator, Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(box, &event);
    }
}

void floorOfLibcups(benchmark::State &state, const Printer &printer)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(openMarked(printer));
}

void createPanelAndView(benchmark::State &state, const Printer &printer)
{
    const auto dialog = std::make_shared<TestDialog>(openMarked(printer));
    for (auto _ : state)
        benchmark::DoNotOptimize(openPanel(dialog));
}

void willShow(benchmark::State &state, const Printer &printer)
{
    const Shown shown(printer);
    for (auto _ : state) {
        shown.panel->willShow();
        shown.dialog->changes.clear();
    }
}

void redrawPreview(benchmark::State &state, const Printer &printer)
{
    const Shown shown(printer);
    QImage canvas(shown.panel->preview()->size(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&canvas);
    for (auto _ : state)
        shown.panel->preview()->drawRect(painter);
}

void clickCheckBox(benchmark::State &state, const Printer &printer)
{
    const Shown shown(printer);
    QCheckBox *const box = shown.panel->checkBox(OptionKind::HalfCut);
    for (auto _ : state) {
        click(box);
        shown.dialog->changes.clear();
        shown.dialog->asked.clear();
    }
}

void stepCount(benchmark::State &state, const Printer &printer)
{
    const Shown shown(printer);
    platform::Stepper *const stepper = shown.panel->countStepper();
    int count = 0;
    for (auto _ : state) {
        stepper->setValue(1 + ++count % 9);
        shown.panel->changeCutEveryValue(stepper);
        shown.dialog->changes.clear();
        shown.dialog->asked.clear();
    }
}

void changePaper(benchmark::State &state, const Printer &printer)
{
    const Shown shown(printer);
    bool heatShrink = false;
    for (auto _ : state) {
        heatShrink = !heatShrink;
        shown.dialog->setPaper(heatShrink ? QStringLiteral("HS11mm") : QStringLiteral("24mm"));
        shown.dialog->postPaperChange();
        shown.dialog->asked.clear();
    }
}

void updateUI(benchmark::State &state, const Printer &printer)
{
    const Shown shown(printer);
    for (auto _ : state) {
        shown.panel->updateUI();
        shown.dialog->asked.clear();
    }
}

void printFirstOpening(const Printer &printer)
{
    const auto dialog = std::make_shared<TestDialog>(openMarked(printer));
    (void)bundle();
    QElapsedTimer timer;
    timer.start();
    const auto panel = openPanel(dialog);
    std::printf("first opening of the process, panel and view: %.2f ms\n",
                static_cast<double>(timer.nsecsElapsed()) / 1e6);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    std::vector<Printer> printers;
    const auto add = [&](const char *name, const PpdBuilder &builder) {
        const QString path = folder.filePath(QLatin1String(name));
        builder.writeTo(path);
        printers.push_back({name, path.toUtf8()});
    };
    add("9 options", PpdBuilder().autoCutObjHidden().allOptions().counts(1, 9));
    add("9 options, counts to 300", PpdBuilder().autoCutObjHidden().allOptions().counts(1, 300));
    add("200 options of 50",
        PpdBuilder().autoCutObjHidden().allOptions().counts(1, 9).foreignOptions(191, 50));
    printFirstOpening(printers.front());

    using Function = void (*)(benchmark::State &, const Printer &);
    constexpr std::pair<const char *, Function> measured[] = {
        {"floor", floorOfLibcups},
        {"create panel and view", createPanelAndView},
        {"willShow", willShow},
        {"redraw preview", redrawPreview},
        {"click a box", clickCheckBox},
        {"step the count", stepCount},
        {"change the paper", changePaper},
        {"updateUI", updateUI},
    };
    for (const Printer &printer : printers) {
        for (const auto &[name, function] : measured)
            benchmark::RegisterBenchmark((std::string(name) + '/' + printer.name).c_str(), function, printer)
                ->Unit(benchmark::kMicrosecond);
    }
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    return 0;
}
