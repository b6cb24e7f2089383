// SPDX-License-Identifier: Apache-2.0
#include <platform/NotificationCenter.h>

#include <QStringList>

#include <gtest/gtest.h>

using platform::Notification;
using platform::NotificationCenter;

namespace {

const QString paperChanged = QStringLiteral("paper changed");

} // namespace

TEST(NotificationCenter, TellsObserversOfTheNameInOrder)
{
    NotificationCenter center;
    QStringList heard;
    int observer = 0;
    center.addObserver(&observer, paperChanged, nullptr,
                       [&](const Notification &) { heard.append(QStringLiteral("first")); });
    center.addObserver(&observer, QStringLiteral("other"), nullptr,
                       [&](const Notification &) { heard.append(QStringLiteral("wrong")); });
    center.addObserver(&observer, paperChanged, nullptr,
                       [&](const Notification &) { heard.append(QStringLiteral("second")); });
    center.post(paperChanged);
    EXPECT_EQ(heard, (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
}

TEST(NotificationCenter, AnObserverOfOneObjectHearsOnlyThatObject)
{
    NotificationCenter center;
    int observer = 0;
    int watched = 0;
    int stranger = 0;
    int heard = 0;
    center.addObserver(&observer, paperChanged, &watched, [&](const Notification &) { ++heard; });
    center.post(paperChanged, &stranger);
    center.post(paperChanged);
    EXPECT_EQ(heard, 0);
    center.post(paperChanged, &watched);
    EXPECT_EQ(heard, 1);
}

TEST(NotificationCenter, RemovingNeedsTheSameNameAndObject)
{
    NotificationCenter center;
    int observer = 0;
    int object = 0;
    int heard = 0;
    center.addObserver(&observer, paperChanged, &object, [&](const Notification &) { ++heard; });
    center.removeObserver(&observer, paperChanged, nullptr);
    center.removeObserver(&observer, QStringLiteral("other"), &object);
    center.post(paperChanged, &object);
    EXPECT_EQ(heard, 1);
    center.removeObserver(&observer, paperChanged, &object);
    center.post(paperChanged, &object);
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(center.observerCount(), 0U);
}

TEST(NotificationCenter, AnObserverRemovedWhilePostingIsNotCalled)
{
    NotificationCenter center;
    int first = 0;
    int second = 0;
    int heard = 0;
    center.addObserver(&first, paperChanged, nullptr,
                       [&](const Notification &) { center.removeObserver(&second); });
    center.addObserver(&second, paperChanged, nullptr, [&](const Notification &) { ++heard; });
    center.post(paperChanged);
    EXPECT_EQ(heard, 0);
}

TEST(NotificationCenter, AnObserverMayRemoveItselfWhileItRuns)
{
    NotificationCenter center;
    int observer = 0;
    int heard = 0;
    center.addObserver(&observer, paperChanged, nullptr, [&](const Notification &) {
        ++heard;
        center.removeObserver(&observer, paperChanged, nullptr);
    });
    center.post(paperChanged);
    center.post(paperChanged);
    EXPECT_EQ(heard, 1);
}

TEST(NotificationCenter, CarriesTheText)
{
    NotificationCenter center;
    int observer = 0;
    QString text;
    center.addObserver(&observer, paperChanged, nullptr,
                       [&](const Notification &posted) { text = posted.text; });
    center.post(Notification{paperChanged, nullptr, QStringLiteral("x")});
    EXPECT_EQ(text, QStringLiteral("x"));
}
