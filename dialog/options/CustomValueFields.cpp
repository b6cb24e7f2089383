// SPDX-License-Identifier: Apache-2.0
#include "CustomValueFields.h"

#include <dialog/widgets/LengthField.h>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>

#include <algorithm>

namespace dialog {
inline namespace options {

namespace {

/// Returns the expression for the characters that the parameter allows. Braces are excluded: the server reads
/// an unclosed brace as a value that contains all the options that follow.
QRegularExpression characters(host::PpdParameterKind kind)
{
    return QRegularExpression(kind == host::PpdParameterKind::Passcode ? QStringLiteral("[0-9]*")
                                                                       : QStringLiteral("[^{}\\t\\n]*"));
}

} // namespace

CustomValueFields::CustomValueFields(std::vector<host::PpdParameter> parameters, QWidget *parent)
    : QWidget(parent)
    , m_parameters(std::move(parameters))
    , m_missing(new QLabel(this))
{
    auto *const form = new QFormLayout(this);
    form->setContentsMargins({});
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    for (std::size_t i = 0; i < m_parameters.size(); ++i)
        addField(form, i);
    m_missing->setWordWrap(true);
    m_missing->setTextFormat(Qt::PlainText);
    form->addRow(m_missing);
    if (!m_fields.empty())
        setFocusProxy(m_fields.front());
    showValues(m_parameters);
}

void CustomValueFields::addField(QFormLayout *form, std::size_t index)
{
    const host::PpdParameter &parameter = m_parameters[index];
    QWidget *const field = parameter.isNumber() ? makeNumber(index) : makeText(index);
    field->setObjectName(QString::fromUtf8(parameter.name));
    field->setAccessibleName(parameter.text);
    form->addRow(QString(parameter.text).replace(u'&', QStringLiteral("&&")), field);
    m_fields.push_back(field);
}

QWidget *CustomValueFields::makeNumber(std::size_t index)
{
    const host::PpdParameter &parameter = m_parameters[index];
    if (parameter.kind == host::PpdParameterKind::Points) {
        auto *const field =
            new LengthField(host::Points(parameter.minimum), host::Points(parameter.maximum), this);
        connect(field, &LengthField::valueChanged, this, [this, field, index] {
            m_parameters[index].number = field->length().number();
            changed();
        });
        return field;
    }
    const int decimals = parameter.kind == host::PpdParameterKind::Integer ? 0 : 4;
    auto *const field = new NumberField(parameter.minimum, parameter.maximum, decimals, this);
    connect(field, &NumberField::valueChanged, this, [this, index](double number) {
        m_parameters[index].number = number;
        changed();
    });
    return field;
}

QWidget *CustomValueFields::makeText(std::size_t index)
{
    const host::PpdParameter &parameter = m_parameters[index];
    auto *const field = new QLineEdit(this);
    field->setMaxLength(static_cast<int>(parameter.maximum));
    field->setValidator(new QRegularExpressionValidator(characters(parameter.kind), field));
    if (parameter.kind != host::PpdParameterKind::Text)
        field->setEchoMode(QLineEdit::Password);
    connect(field, &QLineEdit::textEdited, this, [this, index](const QString &text) {
        m_parameters[index].characters = text;
        changed();
    });
    return field;
}

void CustomValueFields::changed()
{
    const auto missing =
        std::ranges::find_if(m_parameters, [](const host::PpdParameter &each) { return !each.isComplete(); });
    m_missing->setVisible(missing != m_parameters.end());
    for (QWidget *const field : m_fields)
        field->setAccessibleDescription({});
    if (missing == m_parameters.end()) {
        Q_EMIT edited();
        return;
    }
    m_missing->setText(tr("\"%1\" needs at least %n character(s). Until then, the previous value is used.",
                          nullptr, static_cast<int>(missing->minimum))
                           .arg(missing->text));
    m_fields[static_cast<std::size_t>(missing - m_parameters.begin())]->setAccessibleDescription(
        m_missing->text());
}

void CustomValueFields::showValues(const std::vector<host::PpdParameter> &parameters)
{
    // A text that is still too short is not marked; keep it, so that the user can complete it.
    if (!isComplete() && std::ranges::any_of(m_fields, [](QWidget *field) { return field->hasFocus(); }))
        return;
    m_parameters = parameters;
    for (std::size_t i = 0; i < m_fields.size() && i < m_parameters.size(); ++i) {
        host::PpdParameter &parameter = m_parameters[i];
        // Send the value that is shown, which is limited to the rounded limits of its field.
        if (auto *const length = qobject_cast<LengthField *>(m_fields[i])) {
            length->showLength(host::Points(parameter.number));
            parameter.number = length->length().number();
        } else if (auto *const number = qobject_cast<NumberField *>(m_fields[i])) {
            number->showNumber(parameter.number);
            parameter.number = number->value();
        } else if (auto *const text = qobject_cast<QLineEdit *>(m_fields[i]);
                   text && text->text() != parameter.characters) {
            text->setText(parameter.characters);
        }
    }
    const QSignalBlocker quiet(this);
    changed();
}

bool CustomValueFields::isComplete() const
{
    return std::ranges::all_of(m_parameters, &host::PpdParameter::isComplete);
}

QByteArray CustomValueFields::value() const
{
    return host::customChoiceValue(m_parameters);
}

} // namespace options
} // namespace dialog
