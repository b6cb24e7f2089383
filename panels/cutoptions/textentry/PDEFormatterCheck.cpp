// SPDX-License-Identifier: Apache-2.0
// The formatter's check of one edit.
#include "PDEFormatter.h"

#include "TextStyle.h"

#include <platform/NotificationCenter.h>
#include <platform/Numbers.h>
#include <platform/Sound.h>
#include <platform/TextEncoding.h>
#include <ppd/PDEUtilsMethod13.h>

namespace {

/// What the edit puts in: the part of the new text between the old selection's start and the new one's.
/// Empty for an edit that does not move the selection forward.
QString insertedText(const std::optional<QString> &partial, const std::optional<PDETextRange> &proposed,
                     PDETextRange originalSelection)
{
    if (!partial || !proposed || proposed->location <= originalSelection.location)
        return {};
    return partial->mid(originalSelection.location, proposed->location - originalSelection.location);
}

/// The text's length as printers count it, in bytes of the system encoding; in characters when that
/// encoding does not have them all.
qsizetype lengthInSystemEncoding(const QString &text)
{
    const std::optional<QByteArray> bytes = platform::TextEncoding::system().encode(text);
    return bytes ? bytes->size() : text.size();
}

} // namespace

bool PDEFormatter::isBeyondBounds(std::int32_t value) const
{
    return (mIsValidityMaxValue && mMaxValue < value) || (mIsValidityMinValue && mMinValue > value);
}

std::optional<PDEFormatter::Refusal> PDEFormatter::refusalOf(const std::optional<QString> &partial,
                                                             const std::optional<PDETextRange> &proposed,
                                                             const std::optional<QString> &original,
                                                             PDETextRange originalSelection) const
{
    const QString inserted = insertedText(partial, proposed, originalSelection);
    if (inserted.isEmpty())
        return std::nullopt;

    // The encodings, the list of refused texts and the length are about the insertion or the text as a
    // whole: they refuse every character of it or none, so the last one is the one that is reported.
    const bool restricted = mTextStyle != textentry::AnyText;
    if ((restricted && !platform::TextEncoding::macRoman().canEncode(inserted)) ||
        isInvalidCharacter(inserted))
        return Refusal{invalidCharacterNotification, inserted.right(1)};
    const qsizetype length = lengthInSystemEncoding(*partial);
    if (mMaxLength != 0 && length > mMaxLength)
        return Refusal{invalidCharacterNotification, std::nullopt};
    if (!restricted)
        return std::nullopt;
    if (!platform::TextEncoding::ascii().canEncode(inserted))
        return Refusal{invalidCharacterNotification, std::nullopt};

    const bool secondPoint = mTextStyle == textentry::DecimalNumber && original &&
                             PDEUtilsMethod13::scanString(*original, QStringLiteral("."));
    // A number's value is looked at when the field is full, so that 2 may be typed on the way to 25.
    const bool outOfRange = textentry::isNumeric(mTextStyle) && (mMaxLength == 0 || length == mMaxLength) &&
                            isBeyondBounds(platform::integerValue(*partial));
    // Of several faults the one that the last faulty character makes is reported.
    const QString *notification = nullptr;
    for (const QChar character : inserted) {
        if ((secondPoint && character == u'.') || !textentry::hasCharacter(mTextStyle, character.unicode()))
            notification = &invalidCharacterNotification;
        else if (outOfRange)
            notification = &formatErrorNotification;
    }
    return notification ? std::optional(Refusal{*notification, std::nullopt}) : std::nullopt;
}

void PDEFormatter::announce(const Refusal &refusal) const
{
    platform::Notification notification{refusal.notification, nullptr, {}};
    if (refusal.invalidText)
        notification.text = *refusal.invalidText;
    else if (const auto *const text = std::get_if<QString>(&mObject))
        notification.text = *text;
    else if (const auto *const object = std::get_if<std::shared_ptr<const void>>(&mObject); object && *object)
        notification.object = object->get();
    else
        notification.object = this;

    platform::beep();
    platform::NotificationCenter::defaultCenter().post(notification);
}

bool PDEFormatter::isPartialStringValid(const std::optional<QString> &partial,
                                        const std::optional<PDETextRange> &proposed,
                                        const std::optional<QString> &original,
                                        PDETextRange originalSelection, QString *) const
{
    const std::optional<Refusal> refusal = refusalOf(partial, proposed, original, originalSelection);
    if (refusal)
        announce(*refusal);
    return !refusal;
}
