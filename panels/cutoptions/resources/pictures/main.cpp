// SPDX-License-Identifier: Apache-2.0
// kv_picturegen: draws the pictures that the cut-options panel shows.
#include "ContactSheet.h"
#include "Renderer.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>

#include <cstdio>

namespace {

using pictures::Errors;

using Writer = Errors (*)(const pictures::PictureSpec &, const QString &);

Errors writeEach(Writer write, const QString &folder)
{
    if (!QDir().mkpath(folder))
        return {QStringLiteral("The folder %1 cannot be made.").arg(folder)};
    Errors errors;
    for (const pictures::PictureSpec &spec : pictures::allPictures())
        errors += write(spec, folder);
    return errors;
}

Errors writeContactSheet(const QString &path)
{
    const std::variant<QImage, Errors> sheet = pictures::contactSheet();
    if (const Errors *errors = std::get_if<Errors>(&sheet))
        return *errors;
    return pictures::writePng(std::get<QImage>(sheet), path);
}

} // namespace

int main(int argc, char **argv)
{
    // The program only writes files and must run on machines without a screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Draws the pictures of the cut-options panel."));
    parser.addHelpOption();
    const QCommandLineOption output(QStringLiteral("output"),
                                    QStringLiteral("Write all pictures into the folder."),
                                    QStringLiteral("folder"));
    const QCommandLineOption sources(QStringLiteral("svg"),
                                     QStringLiteral("Write the SVG of all pictures into the folder."),
                                     QStringLiteral("folder"));
    const QCommandLineOption sheet(QStringLiteral("contact-sheet"),
                                   QStringLiteral("Write one image with all pictures side by side."),
                                   QStringLiteral("file"));
    parser.addOptions({output, sources, sheet});
    parser.process(application);

    Errors errors;
    if (parser.isSet(output))
        errors += writeEach(pictures::writeVariants, parser.value(output));
    if (parser.isSet(sources))
        errors += writeEach(pictures::writeSvgs, parser.value(sources));
    if (parser.isSet(sheet))
        errors += writeContactSheet(parser.value(sheet));
    if (!parser.isSet(output) && !parser.isSet(sources) && !parser.isSet(sheet))
        errors.append(QStringLiteral("Nothing to do: give --output, --svg or --contact-sheet."));
    errors.removeDuplicates();
    for (const QString &error : errors)
        std::fprintf(stderr, "kv_picturegen: %s\n", qPrintable(error));
    return errors.isEmpty() ? 0 : 1;
}
