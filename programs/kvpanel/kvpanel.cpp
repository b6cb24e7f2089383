// SPDX-License-Identifier: Apache-2.0
// kvpanel: the cut-options panel behind JSON lines, and the check of panel bundles.
#include "CheckCommand.h"
#include "LineReader.h"
#include "PanelDriver.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <unistd.h>

namespace {

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

bool writeReply(const QJsonObject &reply)
{
    const QByteArray line = QJsonDocument(reply).toJson(QJsonDocument::Compact) + '\n';
    return std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout) ==
               static_cast<std::size_t>(line.size()) &&
           std::fflush(stdout) == 0;
}

QJsonObject replyTo(PanelDriver &driver, LineReader::Result result, const QByteArray &line)
{
    if (result == LineReader::Result::TooLong)
        return PanelDriver::failure(
            QStringLiteral("the line is longer than %1 bytes").arg(LineReader::maxLineLength));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError)
        return PanelDriver::failure(QStringLiteral("not a JSON object: %1 at byte %2")
                                        .arg(error.errorString())
                                        .arg(error.offset + 1));
    if (!document.isObject())
        return PanelDriver::failure(QStringLiteral("not a JSON object"));
    return driver.handle(document.object());
}

} // namespace

int main(int argc, char **argv)
{
    if (!hasDisplay())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kvpanel"));
    QApplication::setApplicationVersion(QStringLiteral(KV_VERSION));
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Drives the cut-options panel without a screen: one JSON request a line on standard input, one "
        "JSON reply a line on standard output. See kvpanel(1)."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption bundleOption(
        QStringLiteral("bundle"), QStringLiteral("The plug-in bundle's folder."), QStringLiteral("DIR"));
    parser.addOption(bundleOption);
    const QCommandLineOption checkOption(
        QStringLiteral("check"),
        QStringLiteral("Check whether the panels of a bundle follow the panel protocol with a PPD."));
    parser.addOption(checkOption);
    parser.process(application);
    if (parser.isSet(checkOption))
        return runCheck(parser.positionalArguments(), parser.isSet(bundleOption));
    if (!parser.positionalArguments().isEmpty()) {
        std::fprintf(stderr, "kvpanel: unexpected argument \"%s\"; requests come on standard input\n",
                     qPrintable(parser.positionalArguments().constFirst()));
        return 1;
    }

    PanelDriver driver(parser.value(bundleOption));
    LineReader reader(STDIN_FILENO);
    QByteArray line;
    for (;;) {
        const LineReader::Result result = reader.next(&line);
        if (result == LineReader::Result::End)
            return 0;
        if (result == LineReader::Result::Line && line.trimmed().isEmpty())
            continue;
        if (!writeReply(replyTo(driver, result, line))) {
            std::fprintf(stderr, "kvpanel: cannot write the reply to standard output\n");
            return 1;
        }
    }
}
