// SPDX-License-Identifier: Apache-2.0
#include "Walker.h"

#include "RandomRequest.h"

#include <QFile>

namespace walk {

Walker::Walker(const QString &bundleFolder, Telling tell)
    : m_driver(bundleFolder)
    , m_tell(std::move(tell))
{
}

QString Walker::localized(const QString &key)
{
    // Only the key that the panel looks up is compared, not the text of the catalogue.
    const auto place = m_language + '/' + key;
    if (!m_texts.contains(place))
        m_texts[place] = m_driver.handle({{"op", "localized"}, {"key", key}})["text"].toString();
    return m_texts[place];
}

void Walker::begin(const model::PrinterDescription &printer)
{
    const auto path = m_folder.filePath("printer.ppd");
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(ppdOf(printer));
    m_model = std::make_unique<model::DriverModel>([this](const QString &key) { return localized(key); });
    m_model->addPrinter(path, m_tell ? m_tell(printer) : printer);
}

std::optional<Divergence> Walker::step(int number, QJsonObject request)
{
    ++m_steps;
    if (request.value("op") == "open") {
        request["ppd"] = m_folder.filePath("printer.ppd");
        m_language = request.value("language").toString("en");
    }
    const auto reply = m_driver.handle(request);
    auto found = model::differences(m_model->handle(request), reply);
    if (found.isEmpty()) {
        const QJsonObject state{{"op", "state"}};
        const auto stateReply = m_driver.handle(state);
        found = model::differences(m_model->handle(state), stateReply);
        m_coverage.record(request, reply, stateReply["state"].toObject());
    }
    if (found.isEmpty())
        return std::nullopt;
    return Divergence{number, found};
}

std::optional<Divergence> Walker::run(const Episode &episode)
{
    begin(episode.printer);
    for (int number = 0; number < episode.requests.size(); ++number) {
        if (auto divergence = step(number, episode.requests[number]))
            return divergence;
    }
    return std::nullopt;
}

std::optional<Divergence> Walker::explore(Episode &episode, int length, Dice &dice)
{
    begin(episode.printer);
    episode.requests = {randomOpen(dice, episode.printer)};
    auto divergence = step(0, episode.requests.back());
    for (int number = 1; number < length && !divergence; ++number) {
        episode.requests.append(randomRequest(dice, *m_model, episode.printer));
        divergence = step(number, episode.requests.back());
    }
    return divergence;
}

} // namespace walk
