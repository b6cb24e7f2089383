// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <tests/support/PpdBuilder.h>

#include <QString>

#include <gtest/gtest.h>

/// PPDs of roll printers: those that ppdc makes of CUPS's own driver descriptions, and invented ones.
namespace roll_ppds {

/// The path of a PPD that CUPS's driver description contains, for example "zebra.ppd".
inline QString cupsDriver(const char *name)
{
    return QStringLiteral(KV_CUPS_DRIVERS "/") + QLatin1String(name);
}

inline test_support::PpdPointer openCupsDriver(const char *name)
{
    test_support::PpdPointer ppd(ppdOpenFile(cupsDriver(name).toUtf8().constData()));
    EXPECT_TRUE(ppd) << name;
    ppdMarkDefaults(ppd.get());
    return ppd;
}

/// A printer whose only option of the roll is CutMedia with these choices; the first is the default.
inline test_support::PpdBuilder cutMedia(std::vector<test_support::PpdChoiceLine> choices,
                                         const QByteArray &uiType = "PickOne")
{
    const QByteArray first = choices.front().keyword;
    return test_support::PpdBuilder().option(test_support::PpdOptionLines{.keyword = "CutMedia",
                                                                          .text = "Cut Media",
                                                                          .choices = std::move(choices),
                                                                          .defaultChoice = first,
                                                                          .uiType = uiType});
}

/// The choices of CutMedia that libcups writes for a driverless printer with all trim finishings.
inline test_support::PpdBuilder driverless()
{
    return cutMedia({{"None", "None"},
                     {"trim", "Cut"},
                     {"trim-after-pages", "Cut after every page"},
                     {"trim-after-documents", "Cut after every document"},
                     {"trim-after-copies", "Cut after every copy"},
                     {"trim-after-job", "Cut after job"}});
}

} // namespace roll_ppds
