// SPDX-License-Identifier: Apache-2.0
#include "CalendarFormat.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace textentry {

namespace {

/// The locale's texts, with the English ones for those that it lacks.
class CalendarLocale {
public:
    explicit CalendarLocale(const std::optional<QVariantMap> &dictionary)
        : m_dictionary(dictionary.value_or(QVariantMap()))
    {
    }

    /// The index-th of the texts that the dictionary lists under the key.
    QString item(const char *key, const QStringList &english, int index) const
    {
        const QVariantList list = m_dictionary.value(QString::fromLatin1(key)).toList();
        const QVariant found = list.value(index);
        return found.metaType().id() == QMetaType::QString ? found.toString() : english.value(index);
    }

    QString text(const char *key, const char *english) const
    {
        const QVariant found = m_dictionary.value(QString::fromLatin1(key));
        return found.metaType().id() == QMetaType::QString ? found.toString() : QString::fromLatin1(english);
    }

private:
    QVariantMap m_dictionary;
};

const QStringList &monthNames()
{
    static const QStringList names{"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};
    return names;
}

const QStringList &weekdayNames()
{
    static const QStringList names{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                   "Thursday", "Friday", "Saturday"};
    return names;
}

QStringList shortened(const QStringList &names)
{
    QStringList result;
    std::ranges::transform(names, std::back_inserter(result),
                           [](const QString &name) { return name.left(3); });
    return result;
}

QString digits(qint64 number, int width)
{
    return QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
}

/// The number of days since Sunday.
int weekday(const QDateTime &date)
{
    return date.date().dayOfWeek() % 7;
}

/// Hours and minutes ahead of Greenwich.
QString offset(const QDateTime &date)
{
    const int minutes = date.offsetFromUtc() / 60;
    return (minutes < 0 ? u'-' : u'+') + digits(std::abs(minutes) / 60, 2) +
           digits(std::abs(minutes) % 60, 2);
}

QString render(const QDateTime &date, const QString &format, const CalendarLocale &locale, int depth);

/// How deep the locale's formats may name each other: "%c" may name "%X", and that is all, since one that
/// names itself would have no end.
constexpr int deepestFormat = 2;

/// One directive: its letter and the text that it stands for.
struct CalendarDirective {
    char16_t letter;
    QString (*text)(const QDateTime &date, const CalendarLocale &locale, int depth);
};

using Date = const QDateTime &;
using Locale = const CalendarLocale &;

const std::array directives{
    CalendarDirective{u'Y', [](Date d, Locale, int) { return digits(d.date().year(), 4); }},
    CalendarDirective{u'y', [](Date d, Locale, int) { return digits(std::abs(d.date().year()) % 100, 2); }},
    CalendarDirective{u'm', [](Date d, Locale, int) { return digits(d.date().month(), 2); }},
    CalendarDirective{
        u'B',
        [](Date d, Locale l, int) { return l.item("NSMonthNameArray", monthNames(), d.date().month() - 1); }},
    CalendarDirective{u'b',
                      [](Date d, Locale l, int) {
                          return l.item("NSShortMonthNameArray", shortened(monthNames()),
                                        d.date().month() - 1);
                      }},
    CalendarDirective{u'd', [](Date d, Locale, int) { return digits(d.date().day(), 2); }},
    CalendarDirective{u'e', [](Date d, Locale, int) { return digits(d.date().day(), 1); }},
    CalendarDirective{u'j', [](Date d, Locale, int) { return digits(d.date().dayOfYear(), 3); }},
    CalendarDirective{
        u'A', [](Date d, Locale l, int) { return l.item("NSWeekDayNameArray", weekdayNames(), weekday(d)); }},
    CalendarDirective{u'a',
                      [](Date d, Locale l, int) {
                          return l.item("NSShortWeekDayNameArray", shortened(weekdayNames()), weekday(d));
                      }},
    CalendarDirective{u'w', [](Date d, Locale, int) { return digits(weekday(d), 1); }},
    CalendarDirective{u'H', [](Date d, Locale, int) { return digits(d.time().hour(), 2); }},
    CalendarDirective{u'I', [](Date d, Locale, int) { return digits((d.time().hour() + 11) % 12 + 1, 2); }},
    CalendarDirective{u'p',
                      [](Date d, Locale l, int) {
                          return l.item("NSAMPMDesignation", {"AM", "PM"}, d.time().hour() / 12);
                      }},
    CalendarDirective{u'M', [](Date d, Locale, int) { return digits(d.time().minute(), 2); }},
    CalendarDirective{u'S', [](Date d, Locale, int) { return digits(d.time().second(), 2); }},
    CalendarDirective{u'F', [](Date d, Locale, int) { return digits(d.time().msec(), 3); }},
    CalendarDirective{u'Z', [](Date d, Locale, int) { return d.timeZoneAbbreviation(); }},
    CalendarDirective{u'z', [](Date d, Locale, int) { return offset(d); }},
    CalendarDirective{u'x',
                      [](Date d, Locale l, int depth) {
                          return render(d, l.text("NSDateFormatString", "%m/%d/%y"), l, depth);
                      }},
    CalendarDirective{u'X',
                      [](Date d, Locale l, int depth) {
                          return render(d, l.text("NSTimeFormatString", "%H:%M:%S"), l, depth);
                      }},
    CalendarDirective{u'c',
                      [](Date d, Locale l, int depth) {
                          return render(d, l.text("NSTimeDateFormatString", "%X %x"), l, depth);
                      }},
    CalendarDirective{u'%', [](Date, Locale, int) { return QStringLiteral("%"); }},
};

QString render(const QDateTime &date, const QString &format, const CalendarLocale &locale, int depth)
{
    QString result;
    for (qsizetype at = 0; at < format.size(); ++at) {
        const char16_t letter = at + 1 < format.size() ? format[at + 1].unicode() : u'\0';
        const auto directive = std::ranges::find(directives, letter, &CalendarDirective::letter);
        const bool endless = depth >= deepestFormat && QStringView(u"xXc").contains(letter);
        if (format[at] != u'%' || directive == directives.end() || endless) {
            result += format[at];
            continue;
        }
        result += directive->text(date, locale, depth + 1);
        ++at;
    }
    return result;
}

} // namespace

QString descriptionWithCalendarFormat(const QDateTime &date, const std::optional<QString> &format,
                                      const std::optional<QVariantMap> &locale)
{
    return render(date, format.value_or(QStringLiteral("%Y-%m-%d %H:%M:%S %z")), CalendarLocale(locale), 0);
}

} // namespace textentry
