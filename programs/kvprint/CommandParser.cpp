// SPDX-License-Identifier: Apache-2.0
#include "CommandParser.h"

#include "CommandHelp.h"
#include "CommandOption.h"
#include "JobOptionsText.h"

#include <QCoreApplication>

#include <algorithm>

namespace programs {
inline namespace kvprint {

namespace {

struct CommandParserText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::CommandLine)
};

UsageError wrong(const QString &message)
{
    return {UsageErrorKind::Wrong, message};
}

bool takesDocuments(Task task)
{
    return task == Task::Print || task == Task::Summary || task == Task::DryRun;
}

/// Parses the arguments in their order, as lp does: letters can be combined ("-sd tape"), and a value is the
/// rest of its argument or the next argument, even if that begins with a dash.
class Reader {
public:
    explicit Reader(QStringList words)
        : m_words(std::move(words))
    {
    }

    host::Result<CommandLine, UsageError> read()
    {
        bool onlyDocuments = false;
        while (!m_words.isEmpty() && !m_error) {
            const QString word = m_words.takeFirst();
            if (onlyDocuments || word == QStringLiteral("-") || !word.startsWith(u'-'))
                m_command.documents.append(word);
            else if (word == QStringLiteral("--"))
                onlyDocuments = true;
            else if (word.startsWith(QStringLiteral("--")))
                readName(word);
            else
                readLetters(word);
        }
        if (!m_error)
            m_error = checkTogether();
        if (m_error)
            return *m_error;
        return m_command;
    }

private:
    void readName(const QString &word)
    {
        const qsizetype equals = word.indexOf(u'=');
        const QString name = word.mid(2, equals < 0 ? -1 : equals - 2);
        const CommandOption *const option = findOption(QStringView(name));
        if (!option)
            m_error = wrong(CommandParserText::tr("Unknown option \"%1\"").arg(QStringLiteral("--") + name));
        else if (!option->value && equals >= 0)
            m_error = wrong(
                CommandParserText::tr("The option \"%1\" does not accept a value").arg(option->spelling()));
        else
            use(*option, equals < 0 ? std::nullopt : std::optional(word.mid(equals + 1)));
    }

    void readLetters(const QString &word)
    {
        for (qsizetype i = 1; i < word.size() && !m_error; ++i) {
            const CommandOption *const option = findOption(word[i]);
            if (!option) {
                m_error = wrong(
                    CommandParserText::tr("Unknown option \"%1\"").arg(QStringLiteral("-") + word.mid(i, 1)));
                return;
            }
            const bool takesRest = option->value && i + 1 < word.size();
            use(*option, takesRest ? std::optional(word.mid(i + 1)) : std::nullopt);
            if (takesRest)
                return;
        }
    }

    /// Applies the option with the value from the same argument, if there is one.
    void use(const CommandOption &option, std::optional<QString> value)
    {
        if (!option.parse) {
            m_error = answer(option);
            return;
        }
        if (option.value && !value) {
            if (m_words.isEmpty()) {
                m_error = wrong(CommandParserText::tr("The option \"%1\" requires a value: %2")
                                    .arg(option.spelling(), QString::fromLatin1(option.value)));
                return;
            }
            value = m_words.takeFirst();
        }
        if (const ParseResult parsed = option.parse(m_command, value.value_or(QString())); !parsed)
            m_error = wrong(option.spelling() + QStringLiteral(": ") + parsed.error());
        m_used.push_back(&option);
    }

    static UsageError answer(const CommandOption &option)
    {
        if (qstrcmp(option.name, "help") == 0)
            return {UsageErrorKind::HelpRequested, commandHelp()};
        return {UsageErrorKind::VersionRequested, versionText()};
    }

    std::optional<UsageError> checkTogether() const
    {
        for (const CommandOption *const option : m_used) {
            if (!option->goesWith(m_command.task))
                return wrongTask(*option);
            if (option->printer == CommandOption::Printer::Queue && m_command.ppd)
                return notTogether(*option, QStringLiteral("--ppd"));
            if (option->printer == CommandOption::Printer::Virtual && !m_command.ppd)
                return wrong(CommandParserText::tr(
                                 "The option \"%1\" applies to the virtual printer and requires \"--ppd\"")
                                 .arg(option->spelling()));
        }
        if (m_command.settings.hold && holdNeedsJob(*m_command.settings.hold) && !m_command.jobToChange)
            return wrong(
                CommandParserText::tr("-H: \"%1\" applies to a job that was already sent and requires \"-i\"")
                    .arg(*m_command.settings.hold));
        return checkDocuments();
    }

    std::optional<UsageError> checkDocuments() const
    {
        if (!takesDocuments(m_command.task) && !m_command.documents.isEmpty())
            return wrong(CommandParserText::tr("\"%1\" does not accept documents, but \"%2\" is specified")
                             .arg(taskSpelling(), m_command.documents.constFirst()));
        if (m_command.documents.count(QStringLiteral("-")) > 1)
            return wrong(CommandParserText::tr("Standard input (\"-\") can be printed only once"));
        return std::nullopt;
    }

    /// The spelling of the option that selects the task; empty for printing.
    QString taskSpelling() const
    {
        for (const CommandOption &each : commandOptions()) {
            if (each.asksFor(m_command.task))
                return each.spelling();
        }
        return {};
    }

    static UsageError notTogether(const CommandOption &option, const QString &other)
    {
        return wrong(CommandParserText::tr("The options \"%1\" and \"%2\" cannot be combined")
                         .arg(option.spelling(), other));
    }

    UsageError wrongTask(const CommandOption &option) const
    {
        if (const QString task = taskSpelling(); !task.isEmpty())
            return notTogether(option, task);
        QStringList tasks;
        for (const CommandOption &each : commandOptions()) {
            for (const Task task : {Task::List, Task::Summary, Task::DryRun, Task::ChangeJob}) {
                if (option.goesWith(task) && each.asksFor(task))
                    tasks.append(each.spelling());
            }
        }
        return wrong(CommandParserText::tr("The option \"%1\" requires one of: %2")
                         .arg(option.spelling(), tasks.join(QStringLiteral(", "))));
    }

    QStringList m_words;
    CommandLine m_command;
    std::vector<const CommandOption *> m_used;
    std::optional<UsageError> m_error;
};

} // namespace

host::Result<CommandLine, UsageError> parseCommandLine(const QStringList &arguments)
{
    return Reader(arguments.mid(1)).read();
}

host::Result<void, UsageError> checkInput(const CommandLine &command, bool inputIsTerminal)
{
    if (!takesDocuments(command.task) || !command.documents.isEmpty() || !inputIsTerminal)
        return {};
    return wrong(CommandParserText::tr("No document is specified; name a file, or \"-\" for standard input"));
}

} // namespace kvprint
} // namespace programs
