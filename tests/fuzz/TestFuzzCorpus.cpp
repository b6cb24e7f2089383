// SPDX-License-Identifier: Apache-2.0
// Replays what a fuzzer has found worth keeping. The fuzzer's check ends the program when it fails.
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

TEST(FuzzCorpus, HoldsForEveryFile)
{
    const QDir corpus(QStringLiteral(KV_CORPUS));
    const QStringList names = corpus.entryList(QDir::Files);
    EXPECT_GE(names.size(), 5) << KV_CORPUS;
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
