// SPDX-License-Identifier: Apache-2.0
// Replays what the fuzzer of the keystroke check has found worth keeping; the program ends when the
// formatter and the reference disagree about an input.
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

TEST(FuzzCorpus, Keystroke)
{
    const QDir corpus(QStringLiteral(KV_SOURCE_DIR "/fuzz/corpus/keystroke"));
    const QStringList names = corpus.entryList(QDir::Files);
    EXPECT_GE(names.size(), 20);
    for (const QString &name : names) {
        QFile file(corpus.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        SCOPED_TRACE(name.toStdString());
        EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                                         static_cast<std::size_t>(bytes.size())),
                  0);
    }
}
