// SPDX-License-Identifier: Apache-2.0
// Compares the formatter's check of one edit with the plain reference, with settings and texts read from the
// fuzzer's bytes: style, length limit, bounds, which of them are in force, the two places, the lengths of the
// original and of the rejected text, then the texts in UTF-16.
#include "FuzzInput.h"

#include <KeystrokeReference.h>
#include <platform/TextEncoding.h>
#include <textentry/PDEFormatter.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool utf8 = [] {
        qputenv("LC_ALL", "C.UTF-8"); // the reference counts bytes of UTF-8
        platform::TextEncoding::refreshSystem();
        return true;
    }();
    static_cast<void>(utf8);

    FuzzInput input(data, size);
    reference::Settings settings{
        static_cast<std::int8_t>(input.byte()), static_cast<std::int8_t>(input.byte()), {}, {}, {}};
    const std::uint8_t inForce = input.byte();
    if (inForce & 1)
        settings.maxValue = input.number<std::int32_t>();
    if (inForce & 2)
        settings.minValue = input.number<std::int32_t>();
    reference::Edit edit;
    edit.originalLocation = input.byte();
    edit.proposedLocation = edit.originalLocation + static_cast<std::int8_t>(input.byte());
    edit.original = input.utf16(input.byte());
    if (inForce & 4)
        settings.invalid = {input.utf16(input.byte() % 4)};
    edit.partial = input.utf16(size);
    if (edit.proposedLocation < 0)
        return 0;

    const auto formatter = PDEFormatter::initWithStyle(settings.style);
    formatter->setMaxLength(settings.maxLength);
    if (settings.maxValue)
        formatter->setMaxValue(*settings.maxValue);
    if (settings.minValue)
        formatter->setMinValue(*settings.minValue);
    for (const QString &text : settings.invalid)
        formatter->addInvalidCharacter(text);
    const auto refusal = formatter->refusalOf(edit.partial, PDETextRange{edit.proposedLocation, 0},
                                              edit.original, {edit.originalLocation, 0});
    reference::Verdict verdict;
    if (refusal)
        verdict = {false, refusal->notification, refusal->invalidText};
    if (verdict != reference::check(settings, edit))
        qFatal("the formatter and the reference disagree about \"%s\"", qPrintable(edit.partial));
    return 0;
}
