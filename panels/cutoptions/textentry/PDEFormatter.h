// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>

/// A selection in a text, in UTF-16 units; with length 0, the place of the cursor.
struct PDETextRange {
    qsizetype location = 0;
    qsizetype length = 0;
};

/// Holds what is typed into a text field to a style of characters, a length in bytes, a list of refused
/// texts and a range of values, and turns values into display texts through a format string.
///
/// The owner of a field calls isPartialStringValid() for each edit before it is kept; for a QLineEdit,
/// textentry::FormatterAttachment does. A refused edit beeps once and posts one notification,
/// "InvalidCharacterNotification" or "FormatErrorNotification", on the default notification centre.
class PDEFormatter {
public:
    /// What a notification is about when no character is to blame: an object that the formatter keeps
    /// alive, a text, or neither, which stands for the formatter itself.
    using NotificationObject = std::variant<std::monostate, std::shared_ptr<const void>, QString>;

    /// Why an edit was refused.
    struct Refusal {
        /// The notification's name.
        QString notification;
        /// The character that the notification names, one UTF-16 unit: of a paste that is refused as a
        /// whole, its last one.
        std::optional<QString> invalidText;
    };

    /// The names of the notifications about refused edits.
    static inline const QString invalidCharacterNotification = QStringLiteral("InvalidCharacterNotification");
    static inline const QString formatErrorNotification = QStringLiteral("FormatErrorNotification");

    /// A formatter that takes any text and displays it as it is.
    static std::unique_ptr<PDEFormatter> init();
    /// The same with a style, see textentry::TextStyle.
    static std::unique_ptr<PDEFormatter> initWithStyle(std::int32_t style);
    /// The same with a format string; nothing stands for "%@".
    static std::unique_ptr<PDEFormatter> initWithFormatString(const std::optional<QString> &format);
    static std::unique_ptr<PDEFormatter> initWithFormatString(const std::optional<QString> &format,
                                                              std::int32_t style);
    /// Displays the date, in the calendar format of the locale until a format string is set. The locale is a
    /// dictionary as textentry::descriptionWithCalendarFormat() takes it.
    static std::unique_ptr<PDEFormatter> initWithCalendarDate(const std::optional<QDateTime> &date,
                                                              const std::optional<QVariantMap> &locale);

    PDEFormatter(const PDEFormatter &) = delete;
    PDEFormatter &operator=(const PDEFormatter &) = delete;

    /// Absent only in a formatter made for a calendar date that was given none.
    std::optional<QString> formatString() const { return mFormatString; }
    /// Nothing stands for "%@".
    void setFormatString(const std::optional<QString> &format);

    /// The date, the locale of its format, and the object of the notifications. Date and locale can be
    /// absent.
    std::optional<QDateTime> calendarDate() const { return mDate; }
    void setCalendarDate(const std::optional<QDateTime> &date) { mDate = date; }
    std::optional<QVariantMap> calendarLocale() const { return mLocale; }
    void setCalendarLocale(const std::optional<QVariantMap> &locale) { mLocale = locale; }
    const NotificationObject &notificationObject() const { return mObject; }
    void setNotificationObject(NotificationObject object) { mObject = std::move(object); }

    /// The characters that are allowed; see textentry::TextStyle.
    std::int32_t textStyle() const { return mTextStyle; }
    void setTextStyle(std::int32_t style) { mTextStyle = style; }
    /// The longest text in bytes of the system encoding; 0 for no limit, and below 0 nothing is short enough.
    std::int32_t maxLength() const { return mMaxLength; }
    void setMaxLength(std::int32_t length) { mMaxLength = length; }

    /// The bounds of a number's value. Setting one puts it in force; taking it out of force keeps its value.
    std::int32_t maxValue() const { return mMaxValue; }
    void setMaxValue(std::int32_t value);
    std::int32_t minValue() const { return mMinValue; }
    void setMinValue(std::int32_t value);
    bool isValidityMaxValue() const { return mIsValidityMaxValue; }
    void setValidityMaxValue(bool inForce) { mIsValidityMaxValue = inForce; }
    bool isValidityMinValue() const { return mIsValidityMinValue; }
    void setValidityMinValue(bool inForce) { mIsValidityMinValue = inForce; }

    /// The list of refused texts. Adding nothing does nothing, the same text may be added again, and
    /// removing takes every one of it out.
    void addInvalidCharacter(const std::optional<QString> &text);
    void removeInvalidCharacter(const QString &text);
    bool isInvalidCharacter(const QString &text) const;

    /// The text that displays the value: the calendar date in CalendarDate style when one is set; a format
    /// string without "%@" filled with the value's integer in the numeric styles; otherwise the format
    /// string filled with the value.
    QString stringForObjectValue(const QVariant &object) const;

    /// Stores stringForObjectValue() of the text in object, unless either is absent. Always true; the error
    /// description is never set.
    bool getObjectValue(std::optional<QString> *object, const std::optional<QString> &string,
                        QString *errorDescription) const;

    /// Whether the edit that turns the original text, with its selection, into the partial one may be kept.
    /// Beeps and posts the notification when not. Edits that do not move the selection forward, deletions
    /// among them, are always kept. Never sets the error description.
    bool isPartialStringValid(const std::optional<QString> &partial,
                              const std::optional<PDETextRange> &proposed,
                              const std::optional<QString> &original, PDETextRange originalSelection,
                              QString *errorDescription) const;

    /// The same without a sound: why the edit may not be kept, or nothing when it may.
    std::optional<Refusal> refusalOf(const std::optional<QString> &partial,
                                     const std::optional<PDETextRange> &proposed,
                                     const std::optional<QString> &original,
                                     PDETextRange originalSelection) const;

    /// Beeps and posts the notification about a refused edit.
    void announce(const Refusal &refusal) const;

private:
    PDEFormatter() = default;

    bool isBeyondBounds(std::int32_t value) const;

    std::optional<QString> mFormatString;
    std::int32_t mTextStyle = 0;
    std::int32_t mMaxLength = 0;
    bool mIsValidityMaxValue = false;
    bool mIsValidityMinValue = false;
    std::int32_t mMaxValue = 0;
    std::int32_t mMinValue = 0;
    NotificationObject mObject;
    QStringList mInvalidCaracters;
    std::optional<QDateTime> mDate;
    std::optional<QVariantMap> mLocale;
};
