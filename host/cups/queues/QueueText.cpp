// SPDX-License-Identifier: Apache-2.0
#include "QueueText.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace queues {

namespace {

struct QueueWordsText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::queues::QueueText)
};

struct Reason {
    const char *keyword;
    const char *sentence;
};

// The keywords of RFC 8011, section 5.4.12, and those that CUPS adds.
constexpr Reason reasons[] = {
    {"media-needed", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer needs labels or tape.")},
    {"media-jam", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "Labels or tape are jammed.")},
    {"media-low",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The label roll or tape is nearly empty.")},
    {"media-empty", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The label roll or tape is empty.")},
    {"moving-to-paused", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer is pausing.")},
    {"paused", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The queue is paused; jobs wait.")},
    {"shutdown", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer is switched off.")},
    {"connecting-to-device",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "Connecting to the printer.")},
    {"timed-out", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer does not respond.")},
    {"stopping", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer is stopping.")},
    {"stopped-partly",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "Some printers of the class are stopped.")},
    {"toner-low", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The toner is nearly used up.")},
    {"toner-empty", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The toner is used up.")},
    {"spool-area-full",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The print server has no space left.")},
    {"cover-open", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer's cover is open.")},
    {"interlock-open",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "An interlock of the printer is open.")},
    {"door-open", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer's door is open.")},
    {"input-tray-missing",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The cassette or roll holder is missing.")},
    {"output-tray-missing",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The output tray is missing.")},
    {"output-area-almost-full",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The output tray is nearly full.")},
    {"output-area-full", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The output tray is full.")},
    {"marker-supply-low",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "Ink or ribbon is nearly used up.")},
    {"marker-supply-empty", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "Ink or ribbon is used up.")},
    {"marker-waste-almost-full",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The waste box is nearly full.")},
    {"marker-waste-full", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The waste box is full.")},
    {"fuser-over-temp", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer is too hot.")},
    {"fuser-under-temp", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer is warming up.")},
    {"offline", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer is offline.")},
    {"hold-new-jobs", QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "New jobs are held.")},
    {"deactivated",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer was deactivated by its administrator.")},
    {"cups-missing-filter",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "A filter of the printer's driver is missing.")},
    {"cups-insecure-filter",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText",
                       "A filter of the printer's driver is not installed securely.")},
    {"cups-waiting-for-job-completed",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "Waiting for the printer to finish the job.")},
    {"cups-ipp-conformance-failure",
     QT_TRANSLATE_NOOP("host::cups::queues::QueueText", "The printer does not conform to its protocol.")},
};

constexpr std::pair<const char *, StateSeverity> severities[] = {
    {"-report", StateSeverity::Good},
    {"-warning", StateSeverity::Warning},
    {"-error", StateSeverity::Error},
};

/// Returns the keyword without its severity.
QString plainKeyword(QString reason)
{
    for (const auto &[suffix, severity] : severities) {
        if (reason.endsWith(QLatin1String(suffix)))
            reason.chop(static_cast<qsizetype>(qstrlen(suffix)));
    }
    return reason;
}

QString stateSentence(const Destination &destination)
{
    switch (destination.state) {
    case QueueState::Ready:
        return QueueWordsText::tr("Ready.");
    case QueueState::Printing:
        return QueueWordsText::tr("Printing.");
    case QueueState::Paused:
        return QueueWordsText::tr("The queue is paused; jobs wait.");
    case QueueState::Unknown:
        break;
    }
    return destination.isDiscovered ? QueueWordsText::tr("Found on the network.")
                                    : QueueWordsText::tr("State unknown.");
}

} // namespace

QString stateReasonSentence(const QString &reason)
{
    const QString keyword = plainKeyword(reason);
    for (const Reason &known : reasons) {
        if (keyword == QLatin1String(known.keyword))
            return QCoreApplication::translate("host::cups::queues::QueueText", known.sentence);
    }
    return QString(keyword).replace(u'-', u' ') + u'.';
}

StateSeverity stateReasonSeverity(const QString &reason)
{
    // CUPS reports an unreachable printer only with "-report"; for users, this is a warning.
    if (reason == QStringLiteral("offline-report"))
        return StateSeverity::Warning;
    for (const auto &[suffix, severity] : severities) {
        if (reason.endsWith(QLatin1String(suffix)))
            return severity;
    }
    // RFC 8011: a reason without a suffix is an error, but this one only describes the progress.
    return reason == QStringLiteral("connecting-to-device") ? StateSeverity::Good : StateSeverity::Error;
}

QStringList queueSentences(const Destination &destination)
{
    QStringList sentences;
    const bool stopped = destination.state == QueueState::Paused;
    // "Ready" would contradict a reason such as an empty roll.
    if (destination.state != QueueState::Ready || queueSeverity(destination) == StateSeverity::Good)
        sentences.append(stateSentence(destination));
    for (const QString &reason : destination.stateReasons) {
        const QString sentence = stateReasonSentence(reason);
        if (!sentences.contains(sentence))
            sentences.append(sentence);
    }
    if (!destination.acceptsJobs)
        sentences.append(QueueWordsText::tr("The queue accepts no jobs."));
    const QString message = destination.stateMessage.trimmed();
    // "Paused" repeats "The queue is paused", and "Idle" adds nothing.
    const bool addsInformation = !message.isEmpty() && !(stopped && message == QStringLiteral("Paused")) &&
                                 message != QStringLiteral("Idle");
    if (addsInformation)
        sentences.append(QueueWordsText::tr("Server message: %1").arg(message));
    return sentences;
}

StateSeverity queueSeverity(const Destination &destination)
{
    const bool stopped = destination.state == QueueState::Paused || !destination.acceptsJobs;
    StateSeverity worst = stopped ? StateSeverity::Error : StateSeverity::Good;
    for (const QString &reason : destination.stateReasons)
        worst = std::max(worst, stateReasonSeverity(reason));
    return worst;
}

} // namespace queues
} // namespace cups
} // namespace host
