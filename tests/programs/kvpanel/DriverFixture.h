// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <programs/kvpanel/PanelDriver.h>
#include <tests/support/PpdBuilder.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace test_support {

/// A driver for a printer with all nine options, asked in JSON with single quotes for double ones.
class PanelDriverTest : public testing::Test {
protected:
    void SetUp() override { usePpd(PpdBuilder().autoCutObjHidden().allOptions()); }

    void usePpd(const PpdBuilder &builder) { ASSERT_TRUE(builder.writeTo(m_ppd)); }

    QJsonObject ask(const char *json)
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(QByteArray(json).replace('\'', '"'), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << json;
        return m_driver.handle(document.object());
    }

    QJsonObject open(QJsonObject members = {})
    {
        members.insert(QStringLiteral("op"), QStringLiteral("open"));
        if (!members.contains(QStringLiteral("ppd")))
            members.insert(QStringLiteral("ppd"), m_ppd);
        return m_driver.handle(members);
    }

    void show()
    {
        ASSERT_EQ(open({{"paper", QJsonObject{{"name", "24mm"}, {"height", 170.0}}}}).value("ok"), true);
        ASSERT_EQ(ask("{'op':'view'}").value("view"), true);
        ASSERT_EQ(ask("{'op':'restore'}").value("result"), true);
        ASSERT_EQ(ask("{'op':'willShow'}").value("ok"), true);
    }

    QJsonObject state() { return ask("{'op':'state'}").value("state").toObject(); }
    QJsonObject control(const char *name)
    {
        return state().value("controls").toObject().value(QLatin1String(name)).toObject();
    }

    QString errorOf(const QJsonObject &reply)
    {
        EXPECT_EQ(reply.value("ok"), false) << QJsonDocument(reply).toJson().toStdString();
        EXPECT_EQ(reply.size(), 2);
        return reply.value("error").toString();
    }

    QTemporaryDir m_folder;
    QString m_ppd = m_folder.filePath(QStringLiteral("printer.ppd"));
    PanelDriver m_driver{QStringLiteral(KV_BINARY_DIR "/bin/KVLXDZOptions.bundle")};
};

inline const QJsonArray noEvents;

} // namespace test_support
