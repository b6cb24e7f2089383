// SPDX-License-Identifier: Apache-2.0
#include "JobTicket.h"

#include <QTextBoundaryFinder>

#include <cups/cups.h>

namespace host {
inline namespace cups {
inline namespace jobs {

QString sendableTitle(const QString &title)
{
    constexpr qsizetype maxBytes = 255;
    const QByteArray all = title.toUtf8();
    if (all.size() <= maxBytes)
        return title;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, title);
    qsizetype end = 0;
    qsizetype bytes = 0;
    for (qsizetype next = characters.toNextBoundary(); next > 0; next = characters.toNextBoundary()) {
        bytes += QStringView(title).sliced(end, next - end).toUtf8().size();
        if (bytes > maxBytes)
            break;
        end = next;
    }
    if (end > 0)
        return title.first(end);
    // A single letter with too many combining marks: splits between two characters.
    qsizetype length = maxBytes;
    while ((all[length] & 0xC0) == 0x80)
        --length;
    return QString::fromUtf8(all.first(length));
}

bool isSentAsName(const JobOption &option)
{
    const QByteArray value = option.value.toLower();
    const bool isSwitch = value == "true" || value == "false";
    return value.startsWith('{') ||
           (isSwitch && (option.name == "PageSize" || option.name.toLower().startsWith("no")));
}

const JobOption *findUnsendable(const std::vector<JobOption> &options)
{
    for (const JobOption &option : options) {
        int depth = 0;
        // After the first brace is closed, braces have no special meaning.
        for (qsizetype i = 0; i < option.value.size() && (i == 0 || depth > 0); ++i)
            depth += option.value[i] == '{' ? 1 : option.value[i] == '}' && depth > 0 ? -1 : 0;
        if (option.isSent && depth > 0)
            return &option;
    }
    return nullptr;
}

void encodeJobOptions(ipp_t *request, const std::vector<JobOption> &options)
{
    cups_option_t *usual = nullptr;
    int count = 0;
    for (const JobOption &option : options) {
        if (option.isSent && !isSentAsName(option))
            count = cupsAddOption(option.name.constData(), option.value.constData(), count, &usual);
    }
    for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION})
        cupsEncodeOptions2(request, count, usual, group);
    cupsFreeOptions(count, usual);
    for (const JobOption &option : options) {
        if (option.isSent && isSentAsName(option))
            ippAddString(request, IPP_TAG_JOB, IPP_TAG_NAME, option.name.constData(), nullptr,
                         option.value.constData());
    }
}

} // namespace jobs
} // namespace cups
} // namespace host
