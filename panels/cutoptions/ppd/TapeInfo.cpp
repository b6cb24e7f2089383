// SPDX-License-Identifier: Apache-2.0
#include "TapeInfo.h"

#include <platform/PropertyList.h>

#include <cmath>
#include <cstring>
#include <span>

namespace {

constexpr double pointsPerInch = 72.0;
constexpr double inchesPerMillimetre = 0.0393701;
constexpr qsizetype maxPaperNameLength = 255; // bytes, as far as papers have ever been compared
constexpr OSStatus noSessionData = -30891;

bool isListed(const ppd_file_t *ppd, const QByteArray &name)
{
    if (!ppd)
        return false;
    for (const ppd_size_t &size :
         std::span(ppd->sizes, static_cast<std::size_t>(std::max(ppd->num_sizes, 0)))) {
        if (std::strlen(size.name) == static_cast<std::size_t>(name.size()) &&
            std::memcmp(size.name, name.constData(), static_cast<std::size_t>(name.size())) == 0)
            return true;
    }
    return false;
}

/// The text as UTF-8, cut after maxPaperNameLength bytes. The longest name that a PPD can give a paper is
/// far shorter, so a name that is cut is listed nowhere; its first letters still tell the material.
QByteArray paperNameBytes(const std::optional<QString> &name)
{
    return name ? name->toUtf8().left(maxPaperNameLength) : QByteArray();
}

bool beginsWithFixedLengthPrefix(const QByteArray &name)
{
    return name.startsWith("DC") || name.startsWith("AV") || name.startsWith("FL");
}

} // namespace

OSStatus GetTapeInfo(PMPrintSession session, PMPrintSettings settings, PMPageFormat format, ppd_file_t *ppd,
                     TapeInfo *info)
{
    *info = TapeInfo();
    PMPaper paper = nullptr;
    if (const OSStatus status = PMGetPageFormatPaper(format, &paper); status != platform::noError)
        return status;
    if (!paper)
        return platform::noError;

    std::optional<QString> name;
    const bool named = PMPaperGetPPDPaperName(paper, &name) == platform::noError && name.has_value();
    if (named)
        info->paperName = name;
    else
        GetTapeInfo2(session, settings, info);

    double height = 0.0;
    if (const OSStatus status = PMPaperGetHeight(paper, &height); status != platform::noError)
        return status;
    if (height == 0.0)
        return platform::noError;
    info->length = height / pointsPerInch / inchesPerMillimetre;

    const QByteArray bytes = named ? paperNameBytes(name) : QByteArray();
    if (bytes.isEmpty())
        info->kind = TapeKindUnlisted;
    // Only a name that the PPD lists is trusted to say what the material is.
    else if (isListed(ppd, bytes) && beginsWithFixedLengthPrefix(bytes))
        info->kind = TapeKindFixedLength;
    return platform::noError;
}

OSStatus GetTapeInfo2(PMPrintSession, PMPrintSettings settings, TapeInfo *info)
{
    info->paperName.reset();
    QByteArray ticket;
    if (!settings || PMPrintSettingsGetValue(settings, PrintSettingsTicketKey, &ticket) != platform::noError)
        return platform::noError;
    info->paperName = platform::stringInXmlPropertyList(ticket, QStringLiteral("LxPaperName2"));
    return platform::noError;
}

OSStatus GetTicketFromSession(PMPrintSession session, const QString &key, std::int32_t *value)
{
    return PMSessionGetDataFromSession(session, key, value) == platform::noError ? platform::noError
                                                                                 : noSessionData;
}

OSStatus GetTapeInfo3(PMPrintSettings settings, PageRangeInfo *info)
{
    *info = PageRangeInfo();
    std::uint32_t first = 0;
    if (PMGetFirstPage(settings, &first) == platform::noError) {
        PMSetFirstPage(settings, first, false);
        info->firstPage = static_cast<std::int32_t>(first);
    }
    std::uint32_t last = 0;
    if (const OSStatus status = PMGetLastPage(settings, &last); status != platform::noError)
        return status;
    const OSStatus status = PMSetLastPage(settings, last, false);
    info->lastPage = static_cast<std::int32_t>(last);
    return status;
}

long RoundDouble(double value)
{
    const double whole = std::trunc(value);
    const double fraction = value - whole;
    if (fraction >= 0.5)
        return static_cast<long>(whole) + 1;
    if (fraction <= -0.5)
        return static_cast<long>(whole) - 1;
    return static_cast<long>(whole);
}

double MiriToInch(double millimetres)
{
    return millimetres * inchesPerMillimetre;
}

double InchToMiri(double inches)
{
    return inches / inchesPerMillimetre;
}

QByteArray ppdPaperName(PMPageFormat format)
{
    PMPaper paper = nullptr;
    std::optional<QString> name;
    if (PMGetPageFormatPaper(format, &paper) != platform::noError || !paper ||
        PMPaperGetPPDPaperName(paper, &name) != platform::noError)
        return {};
    return paperNameBytes(name);
}
