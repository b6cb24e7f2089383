// SPDX-License-Identifier: Apache-2.0

#include <host/documents/ConverterProgram.h>
#include <tests/samples/SampleImages.h>
#include <tests/samples/Sandbox.h>

#include <QBuffer>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/inotify.h>
#include <unistd.h>

using host::ConverterProgram;

namespace {

/// Reports whether a file in a folder was opened.
class OpenWatch {
public:
    explicit OpenWatch(const QString &folder)
        : m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(inotify_add_watch(m_descriptor, QFile::encodeName(folder).constData(), IN_OPEN), 0);
    }
    ~OpenWatch() { close(m_descriptor); }
    Q_DISABLE_COPY_MOVE(OpenWatch)

    bool hasSeenOpening() const
    {
        alignas(inotify_event) char events[4096];
        return read(m_descriptor, events, sizeof events) > 0;
    }

private:
    int m_descriptor;
};

} // namespace

TEST(ConverterProgram, ThatIsMissingIsNamedInTheError)
{
    ConverterProgram converter(QStringLiteral("nothing"));
    EXPECT_EQ(converter.run({}, QByteArray(1 << 20, 'x')), ConverterProgram::End::Missing);
    EXPECT_TRUE(converter.output().isEmpty());
    const host::DocumentErrorReason problem = converter.missing();
    EXPECT_EQ(problem.kind, host::DocumentErrorKind::Unreadable);
    EXPECT_TRUE(problem.reason.contains(QStringLiteral("/kvprint-nothing\""))) << qPrintable(problem.reason);
}

TEST(ConverterProgram, RejectsWrongArguments)
{
    for (const QStringList &arguments : {QStringList(), QStringList{"1", "1", "1", "/A", "[", "1"}}) {
        ConverterProgram converter(QStringLiteral("imagepdf"));
        EXPECT_EQ(converter.run(arguments, QByteArray(1 << 20, 'x')), ConverterProgram::End::Rejected);
    }
}

TEST(ConverterProgram, LoadsNothingFromOutsideAnSvg)
{
    const Sandbox sandbox;
    const QByteArray png =
        sandbox.write(QStringLiteral("picture.png"), encoded(filled(Qt::red), "png")).toUtf8();
    const QByteArray other =
        sandbox.write(QStringLiteral("other.svg"), svg(R"(width="9" height="9" id="a")")).toUtf8();
    const QByteArray style = sandbox.write(QStringLiteral("style.css"), "rect { fill: red }").toUtf8();
    const QByteArray size = R"(width="40" height="40" xmlns:xi="http://www.w3.org/2001/XInclude")";
    const QByteArray rows[] = {
        svg(size, "<image href='" + png + "' width='40' height='40'/>"),
        svg(size, "<image href='picture.png' width='40' height='40'/>"),
        svg(size, "<image xlink:href='file://" + png + "' width='40' height='40'/>"),
        svg(size, "<use href='" + other + "#a'/>"),
        svg(size, "<filter id='f'><feImage href='" + png +
                      "'/></filter>"
                      "<rect width='40' height='40' filter='url(#f)'/>"),
        svg(size, "<rect width='40' height='40' fill='url(file://" + other + "#a)'/>"),
        svg(size, "<style>@import url('file://" + style + "');</style><rect width='40' height='40'/>"),
        svg(size, "<xi:include href='" + other + "'/>"),
        svg(size, "<text><xi:include parse='text' href='" + style + "'/></text>"),
        "<?xml-stylesheet href='" + style + "' type='text/css'?>" + svg(size).mid(svg(size).indexOf("<svg")),
        withDeclarations("<!ENTITY x SYSTEM 'file://" + style + "'>", svg(size, "<text>&x;</text>")),
        withDeclarations("<!ENTITY % x SYSTEM 'file://" + style + "'> %x;", svg(size)),
        svg(size).replace("<svg", "<!DOCTYPE svg SYSTEM 'file://" + style + "'><svg"),
    };
    const OpenWatch watch(sandbox.path({}));
    for (const QByteArray &row : rows) {
        ConverterProgram(QStringLiteral("svgpdf")).run({"40", "40"}, row);
        EXPECT_FALSE(watch.hasSeenOpening()) << row.toStdString();
    }
    EXPECT_TRUE(QFile(QString::fromUtf8(style)).open(QIODevice::ReadOnly));
    EXPECT_TRUE(watch.hasSeenOpening());
}

TEST(ConverterProgram, DrawsNoPixelsWhereShapesAreEnough)
{
    const QByteArray rows[] = {
        "<text y='20'>Label</text>",
        "<linearGradient id='g'><stop stop-color='red'/><stop offset='1' "
        "stop-opacity='0.5'/></linearGradient>"
        "<rect width='40' height='40' fill='url(#g)'/>",
        "<g opacity='0.5'><circle r='20'/></g>",
        "<clipPath id='c'><circle r='20'/></clipPath><rect width='40' height='40' clip-path='url(#c)'/>",
    };
    for (const QByteArray &row : rows) {
        ConverterProgram converter(QStringLiteral("svgpdf"));
        EXPECT_EQ(converter.run({"40", "40"}, svg({}, row)), ConverterProgram::End::Converted);
        EXPECT_TRUE(converter.output().contains("%PDF")) << row.toStdString();
        EXPECT_FALSE(converter.output().contains("/Subtype /Image")) << row.toStdString();
    }
}

TEST(ConverterProgram, PdfsThatDoNotFitAreReported)
{
    QBuffer closed;
    const auto stored = host::storePdf("%PDF", &closed);
    ASSERT_FALSE(stored);
    EXPECT_EQ(stored.error().kind, host::DocumentErrorKind::NotStored);
}
