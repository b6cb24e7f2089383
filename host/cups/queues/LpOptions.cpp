// SPDX-License-Identifier: Apache-2.0
#include "LpOptions.h"

#include <cups/cups.h>

#include <QFile>

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace queues {

namespace {

/// lpoptions writes no longer lines; in bytes.
constexpr qint64 maxLineLength = 8192;

std::vector<NamedValue> parse(const QByteArray &text)
{
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(text.constData(), 0, &options);
    std::vector<NamedValue> values;
    values.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        values.push_back({options[i].name, options[i].value});
    cupsFreeOptions(count, options);
    return values;
}

void merge(std::vector<NamedValue> &options, const std::vector<NamedValue> &later)
{
    for (const NamedValue &option : later) {
        std::erase_if(options, [&](const NamedValue &earlier) { return earlier.name == option.name; });
        options.push_back(option);
    }
}

std::optional<QString> defaultOfEnvironment()
{
    if (qEnvironmentVariableIsSet("LPDEST"))
        return qEnvironmentVariable("LPDEST");
    // Systems set "lp" where no printer is meant.
    if (qEnvironmentVariableIsSet("PRINTER") && qEnvironmentVariable("PRINTER") != QStringLiteral("lp"))
        return qEnvironmentVariable("PRINTER");
    return std::nullopt;
}

} // namespace

LpOptions LpOptions::read()
{
    LpOptions all;
    all.readFile(qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups")) +
                 QStringLiteral("/lpoptions"));
    all.readFile(qEnvironmentVariable("HOME") + QStringLiteral("/.cups/lpoptions"));
    if (const std::optional<QString> name = defaultOfEnvironment())
        all.m_defaultName = name;
    return all;
}

void LpOptions::readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    while (!file.atEnd()) {
        // "Dest NAME[/INSTANCE] OPTIONS" or "Default ..."
        const QByteArray line = file.readLine(maxLineLength).trimmed();
        const qsizetype space = line.indexOf(' ');
        const QByteArray kind = line.left(space).toLower();
        if (space < 0 || (kind != "dest" && kind != "default"))
            continue;
        const QByteArray rest = line.mid(space + 1).trimmed();
        const qsizetype end = rest.indexOf(' ');
        const QString name = QString::fromUtf8(rest.mid(0, end));
        const auto destination = splitDestinationName(name);
        auto entry = std::find_if(m_entries.begin(), m_entries.end(), [&destination](const Entry &each) {
            return each.queue == destination.first && each.instance == destination.second;
        });
        if (entry == m_entries.end())
            entry = m_entries.insert(entry, {destination.first, destination.second, {}});
        merge(entry->options, end < 0 ? std::vector<NamedValue>() : parse(rest.mid(end)));
        if (kind == "default")
            m_defaultName = name;
    }
}

std::vector<NamedValue> LpOptions::options(const QString &queue, const std::optional<QString> &instance) const
{
    for (const Entry &entry : m_entries) {
        if (entry.queue == queue && entry.instance == instance)
            return entry.options;
    }
    return {};
}

} // namespace queues
} // namespace cups
} // namespace host
