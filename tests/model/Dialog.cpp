// SPDX-License-Identifier: Apache-2.0
#include "Dialog.h"

#include <QXmlStreamReader>

namespace model {

void Dialog::mark(const QString &keyword, const QString &choice)
{
    const auto *option = printer.option(keyword);
    if (!option)
        return;
    for (std::size_t index = 0; index < option->choices.size(); ++index) {
        if (option->choices[index].keyword.compare(choice, Qt::CaseInsensitive) != 0)
            continue;
        m_marks[option->keyword] = static_cast<int>(index);
        return;
    }
}

void Dialog::markDefaults()
{
    for (const auto &option : printer.options)
        mark(option.keyword, option.defaultChoice.value_or(QString()));
}

int Dialog::markedIndex(const QString &keyword) const
{
    const auto *option = printer.option(keyword);
    return option ? m_marks.value(option->keyword, -1) : -1;
}

std::optional<QString> Dialog::marked(const QString &keyword) const
{
    const auto index = markedIndex(keyword);
    if (index < 0)
        return std::nullopt;
    return printer.option(keyword)->choices[static_cast<std::size_t>(index)].keyword;
}

void Dialog::willChange(const QString &keyword, const QString &choice)
{
    record(keyword, choice);
    mark(keyword, choice);
    report({"willChange", keyword, choice});
}

void Dialog::record(const QString &keyword, const QString &choice)
{
    if (hasSettings)
        settings[keyword] = choice;
}

QString Dialog::paperName() const
{
    if (!paper || paper->paperStatus != 0 || paper->nameStatus != 0)
        return {};
    return paper->name.value_or(QString());
}

TapeInfo Dialog::tapeInfo(const std::optional<Paper> &of, const std::optional<QString> &ticketText) const
{
    TapeInfo info;
    if (!of)
        return info;
    if (of->paperStatus != 0) {
        info.status = of->paperStatus;
        return info;
    }
    const bool named = of->nameStatus == 0 && of->name;
    info.name = named ? of->name : ticketText ? paperNameInTicket(*ticketText) : std::nullopt;
    info.status = of->heightStatus;
    if (of->heightStatus != 0 || of->height == 0.0)
        return info;
    info.length = of->height / 72.0 / 0.0393701;
    if (!named || of->name->isEmpty()) {
        info.kind = 2;
        return info;
    }
    const auto prefix = of->name->left(2);
    const bool dieCut = prefix == "DC" || prefix == "AV" || prefix == "FL";
    info.kind = dieCut && printer.papers.contains(*of->name) ? 1 : 0;
    return info;
}

bool Dialog::isHeatShrink() const
{
    const auto name = tapeInfo().name;
    return name && name->startsWith(QLatin1String("HS"));
}

std::optional<QString> paperNameInTicket(const QString &ticket)
{
    QXmlStreamReader xml(ticket);
    if (!xml.readNextStartElement() || xml.name() != u"plist" || !xml.readNextStartElement() ||
        xml.name() != u"dict")
        return std::nullopt;
    std::optional<QString> found;
    QString key;
    while (xml.readNextStartElement()) {
        const bool isKey = xml.name() == u"key";
        const bool isString = xml.name() == u"string";
        const auto text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        if (isKey)
            key = text;
        else if (key == u"LxPaperName2")
            found = isString ? std::optional(text) : std::nullopt;
    }
    return xml.hasError() ? std::nullopt : found;
}

} // namespace model
