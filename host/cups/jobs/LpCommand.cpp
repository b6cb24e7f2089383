// SPDX-License-Identifier: Apache-2.0
#include "LpCommand.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

struct LpCommandText {
    Q_DECLARE_TR_FUNCTIONS(host::cups::jobs::LpCommand)
};

/// Options of lp with a letter of their own.
constexpr std::pair<const char *, const char *> letters[] = {
    {"copies", "-n"},
    {"job-priority", "-q"},
    {"job-hold-until", "-H"},
    {"page-ranges", "-P"},
};

/// Returns "NAME=VALUE" as lp parses it after -o. A backslash removes the special meaning of any character.
QByteArray optionWord(const JobOption &option)
{
    QByteArray word = option.name + '=';
    for (const char character : option.value) {
        if (QByteArrayView(" \t\n\v\f\r\\'\",{").contains(character))
            word += '\\';
        word += character;
    }
    return word;
}

QStringList optionTexts(const JobOption &option)
{
    for (const auto &[name, letter] : letters) {
        if (option.name == name)
            return {QString::fromLatin1(letter), QString::fromUtf8(option.value)};
    }
    return {QStringLiteral("-o"), QString::fromUtf8(optionWord(option))};
}

/// Returns the path as an argument of lp, which could read a file name that starts with a hyphen as standard
/// input.
QString fileWord(const QString &path)
{
    return path == QStringLiteral("-") ? path : path.startsWith(u'-') ? QStringLiteral("./") + path : path;
}

/// Returns the user's lpoptions that lp applies by itself and that the job does not contain: other names for
/// a paper, and the documents' formats.
QStringList unsentUserDefaults(const JobTicket &ticket)
{
    QStringList names;
    for (const NamedValue &option : ticket.destination.userOptions) {
        const bool isLeftOut = option.name == "media" || option.name == "PageRegion" ||
                               option.name == "raw" || option.name == "document-format";
        const auto isSent = [&](const JobOption &each) { return each.name == option.name && each.isSent; };
        if (isLeftOut && std::ranges::none_of(ticket.options, isSent))
            names += QString::fromUtf8(option.name);
    }
    return names;
}

/// Returns whether the document was converted; lp would send the original.
bool isConverted(const JobDocument &document)
{
    return document.shownName() != document.path && document.shownName() != QStringLiteral("-");
}

} // namespace

QString shellWord(const QString &word)
{
    const auto isPlain = [](QChar character) {
        return character.unicode() < 128 &&
               (character.isLetterOrNumber() || QStringView(u"-_./:=@%+,").contains(character));
    };
    if (!word.isEmpty() && std::all_of(word.begin(), word.end(), isPlain))
        return word;
    return u'\'' + QString(word).replace(u'\'', QStringLiteral("'\\''")) + u'\'';
}

std::optional<QString> LpCommand::differencesText() const
{
    if (differences.isEmpty())
        return std::nullopt;
    return LpCommandText::tr("lp cannot express these options: %1")
        .arg(differences.join(QStringLiteral(", ")));
}

LpCommand lpCommand(const CupsServer &server, const JobTicket &ticket)
{
    LpCommand command;
    QStringList words{QStringLiteral("lp")};
    if (server.address)
        words += {QStringLiteral("-h"), *server.address};
    if (server.encryption == Encryption::Required)
        words += QStringLiteral("-E");
    if (server.user)
        words += {QStringLiteral("-U"), *server.user};
    words += {QStringLiteral("-d"), ticket.destination.name(), QStringLiteral("-t"), ticket.title};
    for (const JobOption &option : ticket.options) {
        if (!option.isSent)
            continue;
        words += optionTexts(option);
        if (isSentAsName(option))
            command.differences += QString::fromUtf8(option.name);
    }
    command.differences += unsentUserDefaults(ticket);
    words += QStringLiteral("--");
    for (const JobDocument &document : ticket.documents)
        words += fileWord(document.shownName());
    if (std::ranges::any_of(ticket.documents, isConverted))
        command.differences += QStringLiteral("document-format");
    if (std::ranges::any_of(ticket.documents, &JobDocument::changesPages))
        command.differences += QLatin1String(scalingName);
    command.differences.removeDuplicates();
    for (QString &word : words)
        word = shellWord(word);
    command.line = words.join(u' ');
    return command;
}

} // namespace jobs
} // namespace cups
} // namespace host
