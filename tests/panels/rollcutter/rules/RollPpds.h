// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <tests/support/PpdBuilder.h>

#include <QFile>
#include <QString>
#include <QTemporaryFile>

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

/// CUPS's driver with intervals as its authors meant it. In the delivered one, the resolution sets the fields
/// of the intervals and of the speed to 0 again, so that they never reach the printer.
inline QByteArray intervalDriver()
{
    QFile file(cupsDriver("intelbar.ppd"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray ppd = file.readAll();
    const QByteArray overwriting = "/cupsRowCount 0/cupsRowFeed 0/cupsRowStep 0";
    EXPECT_TRUE(ppd.contains(overwriting));
    EXPECT_TRUE(ppd.contains(" 2 1 roll"));
    return ppd.replace(overwriting, "").replace(" 2 1 roll", " 3 -1 roll");
}

inline test_support::PpdPointer openIntervalDriver()
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    file.write(intervalDriver());
    file.flush();
    test_support::PpdPointer ppd(ppdOpenFile(file.fileName().toUtf8().constData()));
    EXPECT_TRUE(ppd);
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
                     {"Auto", "Auto"},
                     {"EndOfPage", "EndOfPage"},
                     {"EndOfDoc", "EndOfDoc"},
                     {"EndOfSet", "EndOfSet"},
                     {"EndOfJob", "EndOfJob"}});
}

} // namespace roll_ppds
