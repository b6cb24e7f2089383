// SPDX-License-Identifier: Apache-2.0
#include "LocalizedPpd.h"

#include <clocale>
#include <thread>

using test_support::PpdPointer;

namespace {

/// Sets an environment variable for as long as it lives.
class EnvironmentChange {
public:
    EnvironmentChange(const char *name, const QByteArray &value)
        : m_name(name)
        , m_previous(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~EnvironmentChange() { qputenv(m_name, m_previous); }
    Q_DISABLE_COPY_MOVE(EnvironmentChange)

private:
    const char *m_name;
    QByteArray m_previous;
};

} // namespace

PpdPointer openLocalized(const QString &path, const QByteArray &locale)
{
    // libcups asks the environment once for each thread, and only when no locale is set for messages.
    const EnvironmentChange all("LC_ALL", locale);
    const EnvironmentChange language("LANGUAGE", locale.left(2));
    const QByteArray previous = std::setlocale(LC_MESSAGES, nullptr);
    std::setlocale(LC_MESSAGES, "C");
    PpdPointer ppd;
    std::thread([&] {
        ppd.reset(ppdOpenFile(qPrintable(path)));
        if (ppd)
            ppdLocalize(ppd.get());
    }).join();
    std::setlocale(LC_MESSAGES, previous.constData());
    return ppd;
}
