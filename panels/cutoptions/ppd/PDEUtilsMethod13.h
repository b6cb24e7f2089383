// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ppd/PDEChoice.h>

#include <QPointF>
#include <QString>

#include <cups/ppd.h>

#include <cstdint>
#include <optional>

class QWidget;

/// Reads a printer's PPD for the panel: attributes, options, choice lists; and does a few chores with
/// texts. Nothing here marks a choice: that goes through the dialog.
///
/// A PPD handle, an option or an attribute that is not there is never an error. It reads as absent.
class PDEUtilsMethod13 {
public:
    /// Always true: the systems where it was not are no longer supported.
    static bool runningOn105OrLater();

    /// The value of the attribute, decoded in the system encoding; an attribute without a text has an
    /// empty value. Nothing when the PPD has no such attribute or its bytes cannot be decoded.
    static std::optional<QString> ppdAttrValStr(ppd_file_t *ppd, const char *keyword);

    /// The option's text for the user, decoded in the system encoding; nothing when the PPD has no such
    /// option or the text cannot be decoded.
    static std::optional<QString> ppdOptionTextStr(ppd_file_t *ppd, const char *keyword);

    /// Whether a "hidden" switch of the PPD says that an item is there: true exactly when the attribute's
    /// value is "False". A PPD that does not speak of the item does not support it.
    static bool isSupportedItem(ppd_file_t *ppd, const char *keyword);

    /// The point written in the attribute as "{x, y}"; the zero point when it is missing or empty.
    static QPointF originItem(ppd_file_t *ppd, const char *keyword);

    /// The option's choices in PPD order, possibly none; null for a null option.
    static std::unique_ptr<PDEChoiceList> arrayFromPPDOption(ppd_option_t *option);

    /// The first choice whose keyword is the one given; for an absent keyword, the PPD file's default,
    /// whatever is marked. Null when there is none, or no list.
    static const PDEChoice *findChoiceForString(const std::optional<QString> &keyword,
                                                const PDEChoiceList *choices);

    /// The option's text for the user, decoded as UTF-8; nothing for a null option or an undecodable
    /// text. Unlike ppdOptionTextStr(), which reads in the system encoding as attributes are read: texts
    /// shown on the panel are always UTF-8.
    static std::optional<QString> newOptionTitle(const ppd_option_t *option);

    /// The choice's text for the user, decoded as UTF-8.
    static std::optional<QString> newChoiceTitle(const ppd_choice_t *choice);

    /// Colours the control's text as enabled when the flag is exactly 1, as disabled for any other
    /// value. Does nothing for a control whose text has no colour of its own.
    static void setEnabledForText(std::uint8_t flag, QWidget *item);

    /// The number of bytes of the text in the system encoding or, when that cannot hold it, in the first
    /// available encoding that can; 0 for an absent text.
    static std::size_t stringLengthConvertedToEncoding(const std::optional<QString> &text);

    /// Whether the sought text occurs in the text, compared code unit by code unit. Never in an empty text.
    static bool scanString(const QString &text, const QString &sought);

    /// The text without the first occurrence of the sought text; nothing when it does not occur.
    static std::optional<QString> deleteString(const QString &text, const QString &sought);
};
