// SPDX-License-Identifier: Apache-2.0
#include "TestDialog.h"

#include <platform/NotificationCenter.h>
#include <platform/PropertyList.h>

namespace test_support {

TestDialog::TestDialog(PpdPointer ppd)
    : m_ppd(std::move(ppd))
{
}

PMPrintSession TestDialog::printSession() const
{
    asked.append(QStringLiteral("printSession"));
    return const_cast<platform::PrintSession *>(&m_session);
}

PMPrintSettings TestDialog::printSettings() const
{
    asked.append(QStringLiteral("printSettings"));
    return hasPrintSettings ? const_cast<platform::PrintSettings *>(&settings) : nullptr;
}

PMPageFormat TestDialog::pageFormat() const
{
    asked.append(QStringLiteral("pageFormat"));
    return const_cast<platform::PageFormat *>(&format);
}

::PMPrinter TestDialog::PMPrinter() const
{
    asked.append(QStringLiteral("PMPrinter"));
    return const_cast<platform::Printer *>(&printer);
}

ppd_file_t *TestDialog::ppdFile() const
{
    asked.append(QStringLiteral("ppdFile"));
    return m_ppd.get();
}

void TestDialog::willChangePPDOptionKeyValue(const QString &key, const std::optional<QString> &choice)
{
    changes.emplace_back(key, choice.value_or(QStringLiteral("(absent)")));
    if (choice && m_ppd)
        ppdMarkOption(m_ppd.get(), key.toUtf8().constData(), choice->toUtf8().constData());
}

void TestDialog::setPaper(const QString &name, double height)
{
    format.paper = platform::Paper{name, height, platform::noError, platform::noError, platform::noError};
}

void TestDialog::setTicketPaper(const std::optional<QString> &name)
{
    const QString key = QStringLiteral("com.tarvick.print.PrintSettingsTicket.LxE5");
    format.paper =
        platform::Paper{std::nullopt, 100.0, platform::noError, platform::noError, platform::noError};
    settings.remove(key);
    if (name)
        settings.setValue(key,
                          platform::toXmlPropertyList(QVariantMap{{QStringLiteral("LxPaperName2"), *name}}));
}

void TestDialog::postPaperChange() const
{
    platform::NotificationCenter::defaultCenter().post(
        QStringLiteral("PMPrintDestinationPaperDidChangeNotification"));
}

QString TestDialog::marked(const char *keyword) const
{
    const ppd_choice_t *const choice = ppdFindMarkedChoice(m_ppd.get(), keyword);
    return choice ? QString::fromUtf8(choice->choice) : QString();
}

} // namespace test_support
