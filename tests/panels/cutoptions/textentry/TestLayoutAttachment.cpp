// SPDX-License-Identifier: Apache-2.0
#include "Refusals.h"

#include <platform/LayoutLoader.h>
#include <platform/Log.h>
#include <textentry/FormatterAttachment.h>
#include <textentry/LayoutAttachment.h>
#include <textentry/PDETextField.h>

#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using textentry::FormatterAttachment;

namespace {

/// Loads a layout whose one text field has that class and those properties, in Designer's XML.
std::unique_ptr<QWidget> layoutWith(const QString &className, const QString &properties)
{
    static const QString layout = QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0"><class>Panel</class>
 <widget class="QWidget" name="Panel">
  <widget class="%1" name="count">%2</widget>
  <widget class="QLineEdit" name="plain"/>
 </widget>
</ui>)");
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("Panel.ui")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(layout.arg(className, properties).toUtf8());
    file.close();
    textentry::registerWithLayoutLoader();
    platform::LayoutLoader::Result result = platform::LayoutLoader::load(file.fileName());
    EXPECT_TRUE(result.view) << qPrintable(result.error);
    return std::move(result.view);
}

QString number(const char *name, int value)
{
    return QStringLiteral("<property name=\"%1\" stdset=\"0\"><number>%2</number></property>")
        .arg(QString::fromLatin1(name))
        .arg(value);
}

QString text(const char *name, const QString &value)
{
    return QStringLiteral("<property name=\"%1\" stdset=\"0\"><string>%2</string></property>")
        .arg(QString::fromLatin1(name), value);
}

QString texts(const char *name, const QStringList &values)
{
    QString items;
    for (const QString &value : values)
        items += QStringLiteral("<string>%1</string>").arg(value);
    return QStringLiteral("<property name=\"%1\" stdset=\"0\"><stringlist>%2</stringlist></property>")
        .arg(QString::fromLatin1(name), items);
}

QLineEdit *fieldIn(const std::unique_ptr<QWidget> &view)
{
    return view->findChild<QLineEdit *>(QStringLiteral("count"));
}

} // namespace

TEST(LayoutAttachment, PropertiesMakeAFormatter)
{
    const auto view =
        layoutWith(QStringLiteral("QLineEdit"),
                   number("formatterStyle", 2) + number("formatterMaxLength", 3) +
                       number("formatterMaxValue", 255) + number("formatterMinValue", 1) +
                       texts("formatterInvalidCharacters", {QStringLiteral("7"), QStringLiteral("00")}) +
                       text("formatterFormat", QStringLiteral("%d mm")));
    QLineEdit *const field = fieldIn(view);
    auto *const attachment = FormatterAttachment::of(field);
    ASSERT_TRUE(attachment);
    const PDEFormatter &formatter = attachment->formatter();
    EXPECT_EQ(formatter.textStyle(), 2);
    EXPECT_EQ(formatter.maxLength(), 3);
    EXPECT_EQ(formatter.maxValue(), 255);
    EXPECT_TRUE(formatter.isValidityMaxValue());
    EXPECT_EQ(formatter.minValue(), 1);
    EXPECT_TRUE(formatter.isValidityMinValue());
    EXPECT_TRUE(formatter.isInvalidCharacter(QStringLiteral("7")));
    EXPECT_TRUE(formatter.isInvalidCharacter(QStringLiteral("00")));
    EXPECT_EQ(formatter.formatString(), QStringLiteral("%d mm"));

    Refusals choiceErrors;
    QTest::keyClicks(field, QStringLiteral("2x756"));
    EXPECT_EQ(field->text(), QStringLiteral("25"));
    EXPECT_EQ(choiceErrors.beeps(), 3u);
}

TEST(LayoutAttachment, OnePropertyIsEnoughAndOthersStayAtRest)
{
    const auto view = layoutWith(QStringLiteral("QLineEdit"), number("formatterMaxLength", 2));
    auto *const attachment = FormatterAttachment::of(fieldIn(view));
    ASSERT_TRUE(attachment);
    EXPECT_EQ(attachment->formatter().textStyle(), 0);
    EXPECT_FALSE(attachment->formatter().isValidityMaxValue());
    EXPECT_FALSE(attachment->formatter().isValidityMinValue());
    EXPECT_EQ(attachment->formatter().formatString(), QStringLiteral("%@"));
}

TEST(LayoutAttachment, FieldsWithoutPropertiesStayAsTheyAre)
{
    const auto view = layoutWith(QStringLiteral("QLineEdit"), number("formatterStyle", 2));
    auto *const plain = view->findChild<QLineEdit *>(QStringLiteral("plain"));
    EXPECT_FALSE(plain->validator());
    EXPECT_FALSE(FormatterAttachment::of(plain));
}

TEST(LayoutAttachment, TextOfTheLayoutIsShownThroughTheFormat)
{
    const auto view = layoutWith(QStringLiteral("QLineEdit"),
                                 text("text", QStringLiteral("5")) + number("formatterStyle", 2) +
                                     text("formatterFormat", QStringLiteral("%d mm")));
    EXPECT_EQ(fieldIn(view)->text(), QStringLiteral("5 mm"));
}

TEST(LayoutAttachment, PropertyOfAWrongTypeIsToldAndPassedOver)
{
    QStringList log;
    platform::setLogSink([&log](const QString &line) { log.append(line); });
    const auto view =
        layoutWith(QStringLiteral("QLineEdit"),
                   text("formatterStyle", QStringLiteral("digits")) + number("formatterMaxLength", 2));
    platform::setLogSink({});
    ASSERT_EQ(log.size(), 1);
    EXPECT_EQ(log[0], QStringLiteral("text field count: property formatterStyle is of type QString, not int, "
                                     "and has no effect"));
    EXPECT_EQ(FormatterAttachment::of(fieldIn(view))->formatter().maxLength(), 2);
}

TEST(LayoutAttachment, ReportingFieldIsMadeByItsClassName)
{
    const auto view = layoutWith(QStringLiteral("PDETextField13_v400_"), number("formatterStyle", 2));
    auto *const field = qobject_cast<PDETextField13_v400_ *>(fieldIn(view));
    ASSERT_TRUE(field);
    EXPECT_TRUE(FormatterAttachment::of(field));
    int posted = 0;
    auto &center = platform::NotificationCenter::defaultCenter();
    center.addObserver(this, PDETextField13_v400_::resignFirstResponderNotification, field,
                       [&](const platform::Notification &) { ++posted; });
    QTest::keyClicks(field, QStringLiteral("1x"));
    center.removeObserver(this);
    EXPECT_EQ(posted, 1);
}
