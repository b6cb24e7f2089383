// SPDX-License-Identifier: Apache-2.0
#include "PrintingServices.h"

#include <platform/PropertyList.h>

using platform::invalidParameter;
using platform::keyNotFound;
using platform::noError;

OSStatus PMGetPageFormatPaper(PMPageFormat format, PMPaper *paper)
{
    if (!format)
        return invalidParameter;
    if (!format->paper) {
        *paper = nullptr;
        return noError;
    }
    if (format->paper->paperStatus != noError)
        return format->paper->paperStatus;
    *paper = &*format->paper;
    return noError;
}

OSStatus PMPaperGetPPDPaperName(PMPaper paper, std::optional<QString> *name)
{
    if (!paper)
        return invalidParameter;
    if (paper->nameStatus != noError)
        return paper->nameStatus;
    *name = paper->name;
    return noError;
}

OSStatus PMPaperGetHeight(PMPaper paper, double *height)
{
    if (!paper)
        return invalidParameter;
    if (paper->heightStatus != noError)
        return paper->heightStatus;
    *height = paper->height;
    return noError;
}

OSStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QByteArray *value)
{
    if (!settings)
        return invalidParameter;
    const std::optional<QVariant> found = settings->value(key);
    if (!found || found->metaType() != QMetaType::fromType<QByteArray>())
        return keyNotFound;
    *value = found->toByteArray();
    return noError;
}

OSStatus PMPrintSettingsCreateDataRepresentation(PMPrintSettings settings, QByteArray *data)
{
    if (!settings)
        return invalidParameter;
    *data = platform::toXmlPropertyList(settings->values());
    return noError;
}

OSStatus PMSessionGetDataFromSession(PMPrintSession session, const QString &key, std::int32_t *value)
{
    if (!session)
        return invalidParameter;
    const std::optional<std::int32_t> found = session->data(key);
    if (!found)
        return keyNotFound;
    *value = *found;
    return noError;
}

OSStatus PMGetFirstPage(PMPrintSettings settings, std::uint32_t *first)
{
    if (!settings)
        return invalidParameter;
    *first = settings->firstPage;
    return noError;
}

OSStatus PMSetFirstPage(PMPrintSettings settings, std::uint32_t first, bool /*locked*/)
{
    if (!settings)
        return invalidParameter;
    settings->firstPage = first;
    return noError;
}

OSStatus PMGetLastPage(PMPrintSettings settings, std::uint32_t *last)
{
    if (!settings)
        return invalidParameter;
    *last = settings->lastPage;
    return noError;
}

OSStatus PMSetLastPage(PMPrintSettings settings, std::uint32_t last, bool /*locked*/)
{
    if (!settings)
        return invalidParameter;
    settings->lastPage = last;
    return noError;
}

OSStatus PMPrinterCopyDeviceURI(PMPrinter printer, QString *uri)
{
    if (!printer)
        return invalidParameter;
    if (!printer->deviceURI)
        return keyNotFound;
    *uri = *printer->deviceURI;
    return noError;
}
