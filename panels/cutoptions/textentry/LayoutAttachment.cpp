// SPDX-License-Identifier: Apache-2.0
#include "LayoutAttachment.h"

#include "FormatterAttachment.h"
#include "PDETextField.h"

#include <platform/LayoutLoader.h>
#include <platform/Log.h>

#include <algorithm>
#include <array>

namespace textentry {

namespace {

/// One dynamic property: the type that its value must have, and what it sets.
struct FormatterProperty {
    const char *name;
    QMetaType::Type type;
    void (*apply)(PDEFormatter &formatter, const QVariant &value);
};

constexpr std::array properties{
    FormatterProperty{
        "formatterStyle", QMetaType::Int,
        [](PDEFormatter &formatter, const QVariant &value) { formatter.setTextStyle(value.toInt()); }},
    FormatterProperty{
        "formatterMaxLength", QMetaType::Int,
        [](PDEFormatter &formatter, const QVariant &value) { formatter.setMaxLength(value.toInt()); }},
    FormatterProperty{
        "formatterMaxValue", QMetaType::Int,
        [](PDEFormatter &formatter, const QVariant &value) { formatter.setMaxValue(value.toInt()); }},
    FormatterProperty{
        "formatterMinValue", QMetaType::Int,
        [](PDEFormatter &formatter, const QVariant &value) { formatter.setMinValue(value.toInt()); }},
    FormatterProperty{"formatterInvalidCharacters", QMetaType::QStringList,
                      [](PDEFormatter &formatter, const QVariant &value) {
                          for (const QString &text : value.toStringList())
                              formatter.addInvalidCharacter(text);
                      }},
    FormatterProperty{
        "formatterFormat", QMetaType::QString,
        [](PDEFormatter &formatter, const QVariant &value) { formatter.setFormatString(value.toString()); }},
};

void applyProperty(PDEFormatter &formatter, const QLineEdit &field, const FormatterProperty &property)
{
    const QVariant value = field.property(property.name);
    if (!value.isValid())
        return;
    if (value.metaType().id() == property.type) {
        property.apply(formatter, value);
        return;
    }
    platform::log(QStringLiteral("text field %1: property %2 is of type %3, not %4, and has no effect")
                      .arg(field.objectName(), QString::fromLatin1(property.name),
                           QString::fromLatin1(value.typeName()),
                           QString::fromLatin1(QMetaType(property.type).name())));
}

} // namespace

void registerWithLayoutLoader()
{
    platform::LayoutLoader::registerWidgetClass(
        QStringLiteral("PDETextField13_v400_"),
        [](QWidget *parent) -> QWidget * { return new PDETextField13_v400_(parent); });
    platform::LayoutLoader::registerHook(QStringLiteral("textentry"), [](QWidget *widget) {
        if (auto *const field = qobject_cast<QLineEdit *>(widget))
            attachFormatterFromProperties(field);
    });
}

void attachFormatterFromProperties(QLineEdit *field)
{
    const auto isSet = [field](const FormatterProperty &property) {
        return field->property(property.name).isValid();
    };
    if (std::ranges::none_of(properties, isSet))
        return;
    std::unique_ptr<PDEFormatter> formatter = PDEFormatter::init();
    for (const FormatterProperty &property : properties)
        applyProperty(*formatter, *field, property);
    FormatterAttachment::attach(field, std::move(formatter));
}

} // namespace textentry
