// SPDX-License-Identifier: Apache-2.0
// What one key press costs in a field that holds a long text, up to 10,000 characters and beyond: the check
// alone, the check of a paste as long as the text, and the key press in a real field.
#include <textentry/FormatterAttachment.h>
#include <textentry/PDEFormatter.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <benchmark/benchmark.h>

namespace {

std::unique_ptr<PDEFormatter> fullFormatter(std::int32_t style)
{
    auto formatter = PDEFormatter::initWithStyle(style);
    formatter->setMaxLength(1000000);
    formatter->setMinValue(0);
    formatter->setMaxValue(1000);
    formatter->addInvalidCharacter(QStringLiteral("#"));
    return formatter;
}

void checkOfOneKey(benchmark::State &state)
{
    const auto formatter = fullFormatter(static_cast<std::int32_t>(state.range(0)));
    const QString original(state.range(1), u'7');
    const QString partial = original + u'8';
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(
            formatter->refusalOf(partial, PDETextRange{partial.size(), 0}, original, {original.size(), 0}));
    state.SetComplexityN(state.range(1));
}
BENCHMARK(checkOfOneKey)
    ->ArgNames({"style", "characters"})
    ->ArgsProduct({{2, 4}, {10, 100, 1000, 10000, 100000}})
    ->Complexity(benchmark::oN);

void checkOfOnePaste(benchmark::State &state)
{
    const auto formatter = fullFormatter(11);
    const QString partial(state.range(0), u'7');
    for ([[maybe_unused]] auto iteration : state)
        benchmark::DoNotOptimize(
            formatter->refusalOf(partial, PDETextRange{partial.size(), 0}, QString(), {0, 0}));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(checkOfOnePaste)
    ->ArgName("characters")
    ->RangeMultiplier(10)
    ->Range(10, 100000)
    ->Complexity(benchmark::oN);

/// A rejected key, which the field inserts and then removes.
void rejectedKeyInAField(benchmark::State &state)
{
    QLineEdit field;
    field.setMaxLength(1000000);
    textentry::FormatterAttachment::attach(&field, fullFormatter(2));
    field.setText(QString(state.range(0), u'7'));
    for ([[maybe_unused]] auto iteration : state) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QApplication::sendEvent(&field, &press);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(rejectedKeyInAField)->ArgName("characters")->RangeMultiplier(10)->Range(10, 10000);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
