// SPDX-License-Identifier: Apache-2.0
#include "CommandParser.h"
#include "PrintRun.h"
#include "StandardStreams.h"

#include <dialog/translations/Translations.h>
#include <host/base/OutOfMemory.h>
#include <platform/TemporaryFile.h>

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>

#include <fontconfig/fontconfig.h>

#include <thread>

#include <malloc.h>
#include <unistd.h>

namespace {

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/// Returns whether the arguments request the dialog rather than a report.
bool asksForDialog(const QStringList &arguments)
{
    const auto command = programs::parseCommandLine(arguments);
    return command && command.value().task == programs::Task::Print && !command.value().noDialog;
}

/// Returns whether the user can see windows. Decided before there is an application object, which could not
/// be created without a display.
bool chooseScreen(const QStringList &arguments)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && (!asksForDialog(arguments) || !hasDisplay()))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    return !platform.startsWith("offscreen") && !platform.startsWith("minimal");
}

QtMessageHandler usualHandler = nullptr;

/// Suppresses the messages of Qt about features that its offscreen platform does not have.
void passOnMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const bool knownLack = message.startsWith(QStringLiteral("This plugin does not support ")) ||
                           message.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR not set"));
    if (!knownLack)
        usualHandler(type, context, message);
}

/// Suppresses the warnings of Qt's image readers, "libpng warning: ...". The program reports what it cannot
/// print itself. QT_LOGGING_RULES can enable the warnings.
void silenceReaders()
{
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false\nqt.svg*=false\nqt.pdf*=false"));
}

/// Returns the exit status: an error if standard output could not be written completely.
int status(programs::ExitStatus status, const programs::StandardStreams &streams)
{
    const bool seemsGood =
        status == programs::ExitStatus::Printed || status == programs::ExitStatus::PrintedWithoutPanel;
    return static_cast<int>(seemsGood && streams.isOutputIncomplete() ? programs::ExitStatus::Failed
                                                                      : status);
}

programs::ExitStatus reject(const programs::UsageError &error, programs::StandardStreams &streams)
{
    if (error.kind != programs::UsageErrorKind::Wrong) {
        streams.out(error.message);
        return programs::ExitStatus::Printed;
    }
    programs::StandardStreams::error(
        QStringLiteral("kvprint: %1\n%2\n")
            .arg(error.message,
                 QCoreApplication::translate("programs::kvprint::CommandLine", "Try \"kvprint --help\".")));
    return programs::ExitStatus::WrongUsage;
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): running out of memory ends the program
int main(int argc, char **argv)
{
    host::OutOfMemory::installHandlers();
    programs::StandardStreams streams;
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const bool attended = chooseScreen(arguments);
    if (!attended)
        usualHandler = qInstallMessageHandler(passOnMessage);
    silenceReaders();
    // One heap for all threads: they allocate little, and each would keep a heap of its own.
    mallopt(M_ARENA_MAX, 1);
    // Reading the font configuration takes a tenth of the time until the dialog is shown. It runs beside Qt's
    // connection to the display.
    const std::jthread fonts = attended ? std::jthread(FcInit) : std::jthread();
    // Qt would remove its own options from the arguments, which have another meaning for lp: "-title" is
    // "-t itle".
    argc = 1;
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kvprint"));
    QApplication::setApplicationVersion(QStringLiteral(KV_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.kvprint.kvprint"));
    dialog::installTranslations(QLocale());
    host::OutOfMemory::translate();

    auto command = programs::parseCommandLine(arguments);
    if (!command)
        return status(reject(command.error(), streams), streams);
    if (const auto checked = checkInput(command.value(), isatty(STDIN_FILENO) == 1); !checked)
        return status(reject(checked.error(), streams), streams);
    command.value().noDialog = command.value().noDialog || !attended;
    const programs::Console console{[&](const QString &text) { return streams.out(text); },
                                    programs::StandardStreams::error};
    platform::TemporaryFile::removeLeftovers(QDir::tempPath());
    return status(programs::PrintRun(std::move(command).value(), console).run(), streams);
}
