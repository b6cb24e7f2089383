// SPDX-License-Identifier: Apache-2.0
// examine_ppds FILE...: opens each PPD with libcups and as the dialog does, and does with it all that the
// dialog does: options, papers, constraints, texts. Prints a line for each that only libcups opens, with the
// reason, and for each that takes long. Leaves out PPDs without a paper of an office, such as "A4". The last
// line has the counts.
#include <PpdExamination.h>

#include <host/printer/PpdFile.h>

#include <cups/cups.h>
#include <cups/ppd.h>

#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <memory>

namespace {

struct Counts {
    int office = 0;
    int others = 0;
    int opened = 0;
    /// By libcups and the dialog alike.
    int refused = 0;
    int onlyByLibcups = 0;
};

struct PpdRelease {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};

bool isOpenedByLibcups(const QString &path)
{
    cups_file_t *const file = cupsFileOpen(QFile::encodeName(path).constData(), "r");
    const std::unique_ptr<ppd_file_t, PpdRelease> ppd(file ? ppdOpen2(file) : nullptr);
    if (file)
        cupsFileClose(file);
    return ppd != nullptr;
}

bool isOffice(const QByteArray &text)
{
    return text.contains("*PageSize A4") || text.contains("*PageSize Letter");
}

void examine(const QString &path, const QByteArray &text, Counts &counts)
{
    const auto ppd = host::PpdFile::open(path);
    if (ppd) {
        ++counts.opened;
        // Ends the program, after the name above, when answers contradict each other.
        examinePpd(text);
    } else if (!isOpenedByLibcups(path)) {
        ++counts.refused;
    } else {
        ++counts.onlyByLibcups;
        std::printf("only libcups opens it: %s\n", qPrintable(ppd.error().message));
    }
}

} // namespace

int main(int argc, char **argv)
{
    Counts counts;
    for (int i = 1; i < argc; ++i) {
        const QString path = QFile::decodeName(argv[i]);
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s: %s\n", argv[i], qPrintable(file.errorString()));
            return 2;
        }
        const QByteArray text = file.readAll();
        if (!isOffice(text)) {
            ++counts.others;
            continue;
        }
        ++counts.office;
        // Known when the program crashes.
        std::fprintf(stderr, "%s\n", argv[i]);
        QElapsedTimer timer;
        timer.start();
        examine(path, text, counts);
        constexpr qint64 longMilliseconds = 2000;
        if (timer.elapsed() > longMilliseconds)
            std::printf("takes %lld ms: %s\n", timer.elapsed(), argv[i]);
        std::fflush(stdout);
    }
    std::printf("counts %d %d %d %d %d\n", counts.office, counts.opened, counts.refused, counts.onlyByLibcups,
                counts.others);
    return counts.onlyByLibcups > 0 ? 1 : 0;
}
